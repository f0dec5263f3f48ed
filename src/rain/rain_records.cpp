#include "rain/rain_records.h"

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/hidden_record.h"

namespace pluvane {

std::string IdKey(std::string_view id) { return UCase(Trim(id)); }

int FindRainRecord(Surface& surface, int kind, std::string_view id) {
  const std::string key = IdKey(id);
  CursorKeeper keeper(surface);
  for (int number : FindObjectList(surface, kTagIName, kind)) {
    surface.SetCurrentObject(number);
    if (IdKey(surface.ObjTag(kTagId)) != key) continue;
    keeper.Release();
    return number;
  }
  return 0;
}

std::vector<int> RecordsOfKind(Surface& surface, int kind) {
  return FindObjectList(surface, kTagIName, kind);
}

int AddRainRecord(Surface& surface, const NetworkState& state, int kind, std::string_view id) {
  const int number = AddHiddenRecord(surface, state);
  surface.SetObjTag(kTagIGroup, -1);
  surface.SetObjTag(kTagIName, kind);
  surface.SetObjTag(kTagId, id);
  return number;
}

int RewriteReferences(Surface& surface, int kind, std::string_view ref_tag, std::string_view old_id,
                      std::string_view new_id) {
  const std::string key = IdKey(old_id);
  CursorKeeper keeper(surface);
  int count = 0;
  for (int number : FindObjectList(surface, kTagIName, kind)) {
    surface.SetCurrentObject(number);
    if (IdKey(surface.ObjTag(ref_tag)) != key) continue;
    surface.SetObjTag(ref_tag, new_id);
    ++count;
  }
  return count;
}

void RenameScenarioRain(Surface& surface, std::string_view old_id, std::string_view new_id) {
  RewriteReferences(surface, kINameScenario, "IdPluie", old_id, new_id);
}

std::string RecordTag(Surface& surface, int number, std::string_view tag) {
  return TagOfObject(surface, number, tag);
}

}  // namespace pluvane
