// Reaches (biefs): named chains of collectors, kept as hidden records of
// iName 100 whose Id is the reach number. The record lists its collectors by
// rank (IdColl<i>, InameColl<i>, NbColl of them), upstream first; each
// collector carries the number of its reach in iBief, 0 when it has none.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

inline constexpr const char* kReachKey = "X_BIEF";
inline constexpr const char* kReachCreationTitle = "Création d'un nouveau Bief";

// One collector of a reach, as its record names it.
struct ReachCollector {
  std::string id;
  int i_name = 0;
};

// The collectors of an ordering, with the nodes at their two ends.
struct CollectorOrder {
  std::vector<int> objects;
  std::vector<std::string> upstream;
  std::vector<std::string> downstream;
};

// Orders n collectors from upstream to downstream by their end nodes
// (compared without regard to case): a collector whose upstream node is no
// collector's downstream node comes next. When not every collector found its
// place, "Les collecteurs sélectionnés ne sont pas ordonnable!" is shown.
// Returns n, or 0 when the chain has a gap, a fork or a loop.
int OrdonnerCollecteurs(UserInterface& ui, const std::vector<int>& objects,
                        const std::vector<std::string>& upstream_ids,
                        std::vector<std::string> downstream_ids, CollectorOrder& out);

// The reach record of that number (iName 100), 0 if none. The cursor is kept.
int FindReach(Surface& surface, const std::string& reach_id);
// The numbers of all reach records, in creation order.
std::vector<int> ReachRecords(Surface& surface);
// Their numbers (Ids, trimmed), in the same order.
std::vector<std::string> ReachNumbers(Surface& surface);

// The collectors a reach record lists: ranks 1 to NbColl, blank ranks passed
// over. The cursor is kept.
std::vector<ReachCollector> ReachCollectors(Surface& surface, int reach);

// The collector of a rank (that Id and iName), 0 if none. The cursor is kept.
int FindCollector(Surface& surface, const ReachCollector& collector);

// Makes a reach record listing the ordered collectors and writes its number as
// iBief on each of them; state.PendingReach holds the number. Returns the
// record, 0 when no number is pending.
int AddReachRecord(Surface& surface, NetworkState& state, const std::vector<int>& collectors);

// Takes a collector out of a reach: the rank that names it is blanked and
// NbColl lowered by one. Ranks are not closed up, so the last one then falls
// outside the count. False when the reach or the rank is not found.
bool RemoveFromReach(Surface& surface, const std::string& reach_id,
                     const std::string& collector_id);

// Adds a collector after the last counted rank of a reach, whatever its place
// in the chain (a blanked rank left outside the count is written over). False
// when the reach is not found. The cursor is kept.
bool AppendToReach(Surface& surface, const std::string& reach_id, const ReachCollector& collector);

// Deletes a reach record after giving back iBief 0 to its collectors.
void DeleteReach(Surface& surface, int reach);

// Writes, for each rank of each reach, the reach number as iBief of the
// collector of that Id and iName. Returns how many collectors were written.
int UpdateReachTags(Surface& surface);

}  // namespace pluvane
