#include "editors/section_library.h"

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/catalogue.h"
#include "network/hidden_record.h"

namespace pluvane {

int FindSection(Surface& surface, std::string_view id) {
  for (int n : FindObjectList(surface, "iName", kINameSection)) {
    if (TagOfObject(surface, n, "Id") == id) return n;
  }
  return 0;
}

std::vector<std::string> SectionIds(Surface& surface) {
  std::vector<std::string> ids;
  for (int n : FindObjectList(surface, "iName", kINameSection)) {
    ids.push_back(TagOfObject(surface, n, "Id"));
  }
  return ids;
}

std::string SectionListEntries(Surface& surface) {
  std::string entries;
  for (const std::string& id : SectionIds(surface)) {
    if (!entries.empty()) entries += '\t';
    entries += id;
  }
  return entries;
}

int AddSection(Surface& surface, const NetworkState& state, std::string_view id) {
  CursorKeeper keeper(surface);
  const int number = AddHiddenRecord(surface, state);
  surface.SetObjTag("Id", id);
  surface.SetObjTag("iName", kINameSection);
  surface.SetObjTag("iGroup", -1);
  return number;
}

}  // namespace pluvane
