#include "editors/section_library.h"

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/catalogue.h"
#include "network/hidden_record.h"

namespace pluvane {

int FindSection(Surface& surface, std::string_view id) {
  for (int n : FindObjectList(surface, kTagIName, kINameSection)) {
    if (TagOfObject(surface, n, kTagId) == id) return n;
  }
  return 0;
}

std::vector<std::string> SectionIds(Surface& surface) {
  std::vector<std::string> ids;
  for (int n : FindObjectList(surface, kTagIName, kINameSection)) {
    ids.push_back(TagOfObject(surface, n, kTagId));
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
  surface.SetObjTag(kTagId, id);
  surface.SetObjTag(kTagIName, kINameSection);
  surface.SetObjTag(kTagIGroup, -1);
  return number;
}

}  // namespace pluvane
