// ImportBV: the catchment centroids of a table with their hydrologic data.
#include <algorithm>

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

enum BVColumn { kLabel = 1, kX = 2, kY = 3, kArea = 4, kLength = 5, kSlope = 6, kImpervious = 7 };

}  // namespace

int ImportBV(ImportTarget target, const std::string& data_file, const std::string& fld_file,
             const std::string& separator) {
  Surface& surface = target.surface;
  std::vector<int> columns;
  const int highest = ReadFldFile(target.ui, fld_file, columns);
  if (highest < 0) return -1;
  const ImportTable table(target.ui, data_file);
  if (!table.Open()) return -1;
  const std::string picture = ImportSymbol(target.state.SymbolDir, {"BV.wmf", "Nod.wmf"});
  if (picture.empty()) {
    ShowImportSymbolError(target);
    return -1;
  }

  UndoStep step(surface, "Annuler : Importer des BV");
  CursorKeeper keeper(surface);
  const bool redraw = surface.Redraw();
  surface.SetRedraw(false);
  surface.SetCurrentObject(kDefaults);
  surface.SetEditMode(12);
  const double half = 2 * NodeHalfSize(surface, target.state.SymbolSize);
  int made = 0;
  if (surface.LoadFile(picture, 1)) {
    const int existing = surface.ObjectCount(kAllObjects);
    int number = MaxIdNumber(surface, kINameBV);
    const Calibration& map = target.state.calibration;
    std::vector<std::string> fields;
    for (std::size_t i = 0; i < table.Lines().size(); ++i) {
      const std::string& line = table.Lines()[i];
      if (Trim(line).empty()) continue;
      table.Progress(i, existing, 50);
      const int count = SplitRecord(target.ui, line, separator, highest, fields);
      if (count == 0) continue;
      const double x = Val(Field(fields, FldColumn(columns, kX)));
      const double y = Val(Field(fields, FldColumn(columns, kY)));
      const std::int32_t x_log = UserToLogicX(map, x, y), y_log = UserToLogicY(map, x, y);
      const int catchment = PlaceImportedPoint(target, kINameBV, x_log, y_log, half);
      if (catchment == 0) continue;
      ++made;
      const std::string id = "BV_" + std::to_string(++number);
      std::string label = Trim(Field(fields, FldColumn(columns, kLabel)));
      if (label.empty() || label == "-") label = id;
      if (label.find(' ') != std::string::npos) label = ReplaceText(label, " ", "_");
      surface.SetObjTag("Id", id);
      surface.SetObjTag("libell", label);
      surface.SetObjTag("Xus", x);
      surface.SetObjTag("Yus", y);
      surface.SetObjTag("Xlog", x_log);
      surface.SetObjTag("Ylog", y_log);
      for (const auto& [column, tag] : {std::pair{kArea, "S"}, std::pair{kLength, "L"},
                                        std::pair{kSlope, "m"}, std::pair{kImpervious, "ci"}}) {
        const int at = FldColumn(columns, column);
        if (count >= at) surface.SetObjTag(tag, Val(Field(fields, at)));
      }
    }
    target.state.ElementCounters[kINameBV] =
        std::max(target.state.ElementCounters[kINameBV], number);
  } else {
    ShowImportSymbolError(target);
  }
  target.ui.ShowProgress(-1);
  surface.SetRedraw(redraw);
  surface.Refresh();
  target.ui.ShowStatus("ok " + std::to_string(made) + " BV ont été importés.");
  return made;
}

}  // namespace pluvane
