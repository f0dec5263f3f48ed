// The tags a new element is born with: its Id (prefix and counter, made
// unique over the drawing), its label, its type and family, and the defaults
// of its kind, in the order the editors and the generators expect them. Two
// paths: the interactive one, by command key, and the one imports use, by
// type number, which differs in a few listed ways.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

// Where the element is being created.
struct CreationPlace {
  // The pointer's logical position; the object's centre when absent.
  std::optional<Point> position;
  // The node a uninodal element is dropped on, 0 when none.
  int target_node = 0;
};

// Writes the default tags on the current object for the command key. Unless
// `no_count`, the type's counter in `state.ElementCounters` moves on first.
// A reach (X_BIEF) gets tags only while `state.PendingReach` is set. Returns
// the Id written, empty when nothing was written.
std::string CreateDefaultTags(Surface& surface, NetworkState& state, std::string_view key,
                              bool no_count, const CreationPlace& place = {});

// Makes the Id of the current object unique over the drawing: while another
// object has it, the counter moves on and the Id becomes its part up to the
// underscore followed by the counter ("Obj_" and the counter when it has no
// underscore). The type's counter in `state.ElementCounters` follows. Returns
// the Id kept.
std::string MakeIdUnique(Surface& surface, NetworkState& state, int i_name, std::int32_t& counter);

// The import twin, by type number: catchments of both kinds take the "Bv_"
// prefix first, then "Bvs_"; dry-weather flows of BVS and HYBV are 0.1;
// links get neither their end nodes, nor L, ZRam, ZRav; point elements get
// Xlog, Ylog only.
std::string CreateDefaultTagsByNumber(Surface& surface, NetworkState& state, int i_name, bool no_count,
                                      const CreationPlace& place = {});

// The tags of the radius of action on the current ellipse: Xlog, Ylog its
// centre, Xus, Yus that centre on the map and Rayon its radius in map units.
void WriteRadiusTags(Surface& surface, const Calibration& calibration);

}  // namespace pluvane
