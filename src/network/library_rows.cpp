#include "network/library_rows.h"

#include <string>
#include <vector>

#include "drawing/object_tags.h"
#include "foundation/text.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"

namespace pluvane {

void SSMarkRowDeleted(Surface& surface, int i_name, Grid& grid, int row) {
  if (row < 1 || row > grid.MaxRows()) return;
  {
    CursorKeeper keeper(surface);
    if (FindObject2(surface, kTagIName, i_name, kTagId, grid.Text(1, row)) > 10) {
      surface.SetObjTag("okDel", kDeletedMark);
    }
  }
  for (int col = 1; col <= grid.MaxCols(); ++col) grid.SetBackColour(col, row, kButtonFaceColour);
  if (row < grid.MaxRows()) grid.SetActiveCell(grid.ActiveCol(), row + 1);
}

std::vector<std::string> DeleteMarkedRecords(Surface& surface, int i_name) {
  std::vector<std::string> ids;
  CursorKeeper keeper(surface);
  for (int number : FindObjectList(surface, kTagIName, i_name)) {
    surface.SetCurrentObject(number);
    if (surface.ObjTag("okDel") != kDeletedMark) continue;
    ids.push_back(surface.ObjTag(kTagId));
    surface.DeleteObject(number);
  }
  return ids;
}

}  // namespace pluvane
