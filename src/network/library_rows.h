// The rows of a library grid stand for hidden records of the drawing (rain
// libraries, scenarios). Deleting a row only marks its record; the library's
// save removes what is marked.
#pragma once

#include <string>
#include <vector>

#include "foundation/grid.h"
#include "drawing/surface.h"

namespace pluvane {

// The mark a record carries while its row waits for the save.
inline constexpr const char* kDeletedMark = "$";

// When `row` is a row of the grid: the record of kind `i_name` whose Id is the
// row's first cell gets okDel "$" (if it stands), the row turns to the button
// face and the cursor moves to the next row, if there is one.
void SSMarkRowDeleted(Surface& surface, int i_name, Grid& grid, int row);

// Deletes every record of the kind marked okDel "$" and returns their Ids.
std::vector<std::string> DeleteMarkedRecords(Surface& surface, int i_name);

}  // namespace pluvane
