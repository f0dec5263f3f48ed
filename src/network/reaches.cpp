#include "network/reaches.h"

#include <algorithm>
#include <map>
#include <utility>

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/default_tags.h"
#include "network/hidden_record.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"

namespace pluvane {

namespace {

bool FoundNoCase(const std::string& value, const std::vector<std::string>& list) {
  return std::any_of(list.begin(), list.end(),
                     [&](const std::string& entry) { return EqualsNoCase(entry, value); });
}

std::string Rank(const char* name, int rank) { return name + std::to_string(rank); }

}  // namespace

int OrdonnerCollecteurs(UserInterface& ui, const std::vector<int>& objects,
                        const std::vector<std::string>& upstream_ids,
                        std::vector<std::string> downstream_ids, CollectorOrder& out) {
  const std::size_t n = std::min({objects.size(), upstream_ids.size(), downstream_ids.size()});
  out = {};
  std::size_t k = 0;
  for (std::size_t i = 0; i < n && k < n;) {
    if (FoundNoCase(upstream_ids[i], downstream_ids)) {
      ++i;
      continue;
    }
    // The next head: once taken, it points at itself and no longer hides the
    // collector that follows it.
    ++k;
    out.objects.push_back(objects[i]);
    out.upstream.push_back(upstream_ids[i]);
    out.downstream.push_back(downstream_ids[i]);
    downstream_ids[i] = upstream_ids[i];
    i = 0;
  }
  if (k != n) {
    ui.ShowMessage("Les collecteurs sélectionnés ne sont pas ordonnable!", kReachCreationTitle,
                   MessageIcon::kExclamation);
  }
  // Every collector but the last must flow into the next one; the ranks that
  // found no place stand blank and fail.
  for (std::size_t i = 0; i + 1 < n; ++i) {
    if (i >= k || !FoundNoCase(out.downstream[i], out.upstream)) return 0;
  }
  return k == n ? static_cast<int>(n) : 0;
}

int FindReach(Surface& surface, const std::string& reach_id) {
  CursorKeeper keeper(surface);
  return FindObject2(surface, kTagId, Trim(reach_id), kTagIName, kINameReach);
}

std::vector<int> ReachRecords(Surface& surface) {
  return FindObjectList(surface, kTagIName, kINameReach);
}

std::vector<std::string> ReachNumbers(Surface& surface) {
  CursorKeeper keeper(surface);
  std::vector<std::string> numbers;
  for (int reach : ReachRecords(surface)) {
    surface.SetCurrentObject(reach);
    numbers.push_back(Trim(surface.ObjTag(kTagId)));
  }
  return numbers;
}

std::vector<ReachCollector> ReachCollectors(Surface& surface, int reach) {
  CursorKeeper keeper(surface);
  std::vector<ReachCollector> collectors;
  surface.SetCurrentObject(reach);
  if (surface.CurrentObject() != reach) return collectors;
  const int count = ValInt(surface.ObjTag("NbColl"));
  for (int rank = 1; rank <= count; ++rank) {
    const std::string id = surface.ObjTag(Rank("IdColl", rank));
    if (Trim(id).empty()) continue;
    collectors.push_back({id, ValInt(surface.ObjTag(Rank("InameColl", rank)))});
  }
  return collectors;
}

int FindCollector(Surface& surface, const ReachCollector& collector) {
  CursorKeeper keeper(surface);
  return FindObject2(surface, kTagId, collector.id, kTagIName, collector.i_name);
}

int AddReachRecord(Surface& surface, NetworkState& state, const std::vector<int>& collectors) {
  if (state.PendingReach < 1) return 0;
  CursorKeeper keeper(surface);
  std::vector<ReachCollector> listed;
  for (int number : collectors) {
    surface.SetCurrentObject(number);
    listed.push_back({surface.ObjTag(kTagId), ValInt(surface.ObjTag(kTagIName))});
  }
  const int reach = AddHiddenRecord(surface, state);
  const std::string reach_id = CreateDefaultTags(surface, state, kReachKey, false);
  surface.SetCurrentObject(reach);
  surface.SetObjTag("NbColl", static_cast<int>(listed.size()));
  for (std::size_t i = 0; i < listed.size(); ++i) {
    const int rank = static_cast<int>(i) + 1;
    surface.SetObjTag(Rank("IdColl", rank), listed[i].id);
    surface.SetObjTag(Rank("InameColl", rank), listed[i].i_name);
  }
  for (int number : collectors) {
    surface.SetCurrentObject(number);
    surface.SetObjTag(kTagIBief, reach_id);
  }
  return reach;
}

bool RemoveFromReach(Surface& surface, const std::string& reach_id,
                     const std::string& collector_id) {
  CursorKeeper keeper(surface);
  const int reach = FindReach(surface, reach_id);
  if (reach < 1) return false;
  surface.SetCurrentObject(reach);
  const int count = ValInt(surface.ObjTag("NbColl"));
  for (int rank = 1; rank <= count; ++rank) {
    if (surface.ObjTag(Rank("IdColl", rank)) != collector_id) continue;
    surface.SetObjTag("NbColl", count - 1);
    surface.SetObjTag(Rank("IdColl", rank), "");
    surface.SetObjTag(Rank("InameColl", rank), "");
    return true;
  }
  return false;
}

bool AppendToReach(Surface& surface, const std::string& reach_id, const ReachCollector& collector) {
  CursorKeeper keeper(surface);
  const int reach = FindReach(surface, reach_id);
  if (reach < 1) return false;
  surface.SetCurrentObject(reach);
  const int rank = ValInt(surface.ObjTag("NbColl")) + 1;
  surface.SetObjTag("NbColl", rank);
  surface.SetObjTag(Rank("IdColl", rank), collector.id);
  surface.SetObjTag(Rank("InameColl", rank), collector.i_name);
  return true;
}

void DeleteReach(Surface& surface, int reach) {
  CursorKeeper keeper(surface);
  for (const ReachCollector& collector : ReachCollectors(surface, reach)) {
    const int number = FindCollector(surface, collector);
    if (number < 1) continue;
    surface.SetCurrentObject(number);
    surface.SetObjTag(kTagIBief, 0);
  }
  surface.DeleteObject(reach);
}

int UpdateReachTags(Surface& surface) {
  CursorKeeper keeper(surface);
  const std::vector<int> reaches = ReachRecords(surface);
  if (reaches.empty()) return 0;
  // The first object of each Id and iName, found in one walk.
  std::map<std::pair<std::string, int>, int> objects;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    const int i_name = ValInt(surface.ObjTag(kTagIName));
    if (i_name >= kINameReach || i_name < 1) continue;
    objects.emplace(std::make_pair(surface.ObjTag(kTagId), i_name), n);
  }
  int written = 0;
  for (int reach : reaches) {
    surface.SetCurrentObject(reach);
    const std::string reach_id = Trim(surface.ObjTag(kTagId));
    for (const ReachCollector& collector : ReachCollectors(surface, reach)) {
      auto found = objects.find({collector.id, collector.i_name});
      if (found == objects.end()) continue;
      surface.SetCurrentObject(found->second);
      surface.SetObjTag(kTagIBief, reach_id);
      ++written;
    }
  }
  return written;
}

}  // namespace pluvane
