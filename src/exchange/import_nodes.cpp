// ImportNodes: the nodes of a table, and the calibration that an uncalibrated
// drawing takes from their extent.
#include <algorithm>
#include <cmath>
#include <limits>

#include "exchange/fld_file.h"
#include "exchange/import_points.h"
#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/georeferencing.h"

namespace pluvane {

namespace {

// The column after the label, X and Y.
constexpr int kZ = 4;

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
    const double x = Val(Field(fields, FldColumn(columns, kPointXColumn)));
    const double y = Val(Field(fields, FldColumn(columns, kPointYColumn)));
    x_min = std::min(x_min, x);
    x_max = std::max(x_max, x);
    y_min = std::min(y_min, y);
    y_max = std::max(y_max, y);
    any = true;
  }
  if (!any) return;
  // Data on one line or one point leave the map as it was.
  CalibrateOnExtent(target.state.calibration, target.state.LogicWidth, target.state.LogicHeight,
                    x_min, y_min, x_max, y_max);
}

}  // namespace

int ImportNodes(ImportTarget target, const std::string& data_file, const std::string& fld_file,
                const std::string& separator) {
  PointImport what{.i_name = kINameNode,
                   .symbols = {"Nod.wmf", "Noeud.wmf"},
                   .undo_caption = "Annuler : Importer des noeuds",
                   .id_prefix = "Nod_",
                   .status_name = "NOD"};
  what.before = [&target](const ImportTable& table, const std::vector<int>& columns, int highest) {
    if (Uncalibrated(target.state.calibration)) CalibrateOnExtent(target, table, columns, highest);
  };
  what.more_tags = [&target](Surface& surface, const std::vector<int>& columns,
                             const std::vector<std::string>& fields, int count) {
    if (count >= FldColumn(columns, kZ)) {
      surface.SetObjTag("Zus", Val(Field(fields, FldColumn(columns, kZ))));
    }
    ++target.state.NodeCount;
  };
  return ImportPointTable(target, data_file, fld_file, separator, what);
}

}  // namespace pluvane
