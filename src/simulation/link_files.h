// The link files. .LI1: the text topology of every hydraulic element (name,
// group, kind, upstream and downstream node, the elements it feeds). .LI2:
// the binary record of each element's data, 812 bytes at the same rank. Both
// need the node numbering of .NOD and the catchment numbers that GenFicNod
// left in sNodAm.
#pragma once

#include <string>

#include "simulation/model_context.h"

namespace pluvane {

// Size of one record of .LI2.
inline constexpr int kLi2RecordSize = 812;

// Each returns N, the count of elements written. A failure is reported
// through ShowError with the writer's name as context, and gives 0.
int GenFicLi1(ModelContext& context, const std::string& path);
int GenFicLi2(ModelContext& context, const std::string& path);

}  // namespace pluvane
