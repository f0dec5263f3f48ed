// ImportNodes: the nodes of a table, and the calibration that an uncalibrated
// drawing takes from their extent.
#include <algorithm>
#include <cmath>
#include <limits>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "exchange/fld_file.h"
#include "exchange/import_table.h"
#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/georeferencing.h"

namespace pluvane {

namespace {

enum NodeColumn { kLabel = 1, kX = 2, kY = 3, kZ = 4 };

// A drawing whose map is its own logical space, or no map at all.
bool Uncalibrated(const Calibration& c) {
  if (c.XLAMU == 0) return true;
  const double scale = std::hypot(c.XMUCOS, c.XMUSIN) / std::fabs(c.XLAMU);
  return std::fabs(scale - 1) < 0.000001;
}

// The pass over the table that maps the extent of its X and Y to the middle
// third of the sheet. Each line is cut into four blank-separated fields,
// whatever the separator of the import, as it always was.
void CalibrateOnExtent(ImportTarget& target, const ImportTable& table,
                       const std::vector<int>& columns, int highest) {
  double x_min = std::numeric_limits<double>::max(), y_min = x_min;
  double x_max = std::numeric_limits<double>::lowest(), y_max = x_max;
  std::vector<std::string> fields(static_cast<std::size_t>(std::max(highest, 4)));
  bool any = false;
  for (const std::string& line : table.Lines()) {
    if (Trim(line).empty()) continue;
    GetEline(target.ui, line, 4, fields);
    const double x = Val(Field(fields, FldColumn(columns, kX)));
    const double y = Val(Field(fields, FldColumn(columns, kY)));
    x_min = std::min(x_min, x);
    x_max = std::max(x_max, x);
    y_min = std::min(y_min, y);
    y_max = std::max(y_max, y);
    any = true;
  }
  if (!any) return;
  Calibration c = target.state.calibration;
  const std::int32_t w = target.state.LogicWidth, h = target.state.LogicHeight;
  const std::int32_t w3 = RoundLong(w / 3.0), h3 = RoundLong(h / 3.0);
  const std::int32_t w23 = RoundLong(2.0 * w / 3.0), h23 = RoundLong(2.0 * h / 3.0);
  const auto set = [&c](int i, std::int32_t lx, std::int32_t ly, double ux, double uy) {
    c.logic_x[i] = lx;
    c.logic_y[i] = ly;
    c.user_x[i] = ux;
    c.user_y[i] = uy;
  };
  set(1, w3, h3, x_min, y_max);
  set(2, w3, h23, x_min, y_min);
  set(3, w23, h23, x_max, y_min);
  // Data on one line or one point leave the map as it was.
  if (SolveCalibration(c)) target.state.calibration = c;
}

}  // namespace

int ImportNodes(ImportTarget target, const std::string& data_file, const std::string& fld_file,
                const std::string& separator) {
  Surface& surface = target.surface;
  std::vector<int> columns;
  const int highest = ReadFldFile(target.ui, fld_file, columns);
  if (highest < 0) return -1;
  const ImportTable table(target.ui, data_file);
  if (!table.Open()) return -1;
  const std::string picture = ImportSymbol(target.state.SymbolDir, {"Nod.wmf", "Noeud.wmf"});
  if (picture.empty()) {
    ShowImportSymbolError(target);
    return -1;
  }
  if (Uncalibrated(target.state.calibration)) CalibrateOnExtent(target, table, columns, highest);

  UndoStep step(surface, "Annuler : Importer des noeuds");
  CursorKeeper keeper(surface);
  const bool redraw = surface.Redraw();
  surface.SetRedraw(false);
  surface.SetCurrentObject(kDefaults);
  surface.SetEditMode(12);
  const double half = NodeHalfSize(surface, target.state.SymbolSize);
  int made = 0;
  if (surface.LoadFile(picture, 1)) {
    const int existing = surface.ObjectCount(kAllObjects);
    int number = MaxIdNumber(surface, kINameNode);
    const Calibration& map = target.state.calibration;
    std::vector<std::string> fields;
    for (std::size_t i = 0; i < table.Lines().size(); ++i) {
      const std::string& line = table.Lines()[i];
      if (Trim(line).empty()) continue;
      table.Progress(i, existing, 30);
      const int count = SplitRecord(target.ui, line, separator, highest, fields);
      if (count == 0) continue;
      const double x = Val(Field(fields, FldColumn(columns, kX)));
      const double y = Val(Field(fields, FldColumn(columns, kY)));
      const std::int32_t x_log = UserToLogicX(map, x, y), y_log = UserToLogicY(map, x, y);
      const int node = PlaceImportedPoint(target, kINameNode, x_log, y_log, half);
      if (node == 0) continue;
      ++made;
      const std::string id = "Nod_" + std::to_string(++number);
      std::string label = Trim(Field(fields, FldColumn(columns, kLabel)));
      if (label.empty() || label == "-") label = id;
      surface.SetObjTag("Id", id);
      surface.SetObjTag("libell", ReplaceText(label, " ", "_"));
      surface.SetObjTag("Xus", x);
      surface.SetObjTag("Yus", y);
      surface.SetObjTag("Xlog", x_log);
      surface.SetObjTag("Ylog", y_log);
      if (count >= FldColumn(columns, kZ)) {
        surface.SetObjTag("Zus", Val(Field(fields, FldColumn(columns, kZ))));
      }
      ++target.state.NodeCount;
    }
    target.state.ElementCounters[kINameNode] =
        std::max(target.state.ElementCounters[kINameNode], number);
  } else {
    ShowImportSymbolError(target);
  }
  target.ui.ShowProgress(-1);
  surface.SetRedraw(redraw);
  surface.Refresh();
  target.ui.ShowStatus("ok " + std::to_string(made) + " NOD ont été importés.");
  return made;
}

}  // namespace pluvane
