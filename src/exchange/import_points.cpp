#include "exchange/import_points.h"

#include <algorithm>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "exchange/fld_file.h"
#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/georeferencing.h"
#include "network/network_tags.h"

namespace pluvane {

int ImportPointTable(ImportTarget& target, const std::string& data_file,
                     const std::string& fld_file, const std::string& separator,
                     const PointImport& what) {
  std::vector<int> columns;
  const int highest = ReadFldFile(target.ui, fld_file, columns);
  if (highest < 0) return -1;
  const ImportTable table(target.ui, data_file);
  if (!table.Open()) return -1;
  const std::string picture = ImportSymbol(target.state.SymbolDir, what.symbols);
  if (picture.empty()) {
    ShowImportSymbolError(target);
    return -1;
  }
  if (what.before) what.before(table, columns, highest);

  Surface& surface = target.surface;
  UndoStep step(surface, what.undo_caption);
  CursorKeeper keeper(surface);
  const bool redraw = surface.Redraw();
  surface.SetRedraw(false);
  surface.SetCurrentObject(kDefaults);
  surface.SetEditMode(kEditPicture);
  const double half = what.half_factor * NodeHalfSize(surface, target.state.SymbolSize);
  int made = 0;
  if (surface.LoadFile(picture, 1)) {
    const int existing = surface.ObjectCount(kAllObjects);
    int number = MaxIdNumber(surface, what.i_name);
    const Calibration& map = target.state.calibration;
    std::vector<std::string> fields;
    for (std::size_t i = 0; i < table.Lines().size(); ++i) {
      const std::string& line = table.Lines()[i];
      if (Trim(line).empty()) continue;
      table.Progress(i, existing, what.pump_every);
      const int count = SplitRecord(target.ui, line, separator, highest, fields);
      if (count == 0) continue;
      const double x = Val(Field(fields, FldColumn(columns, kPointXColumn)));
      const double y = Val(Field(fields, FldColumn(columns, kPointYColumn)));
      const std::int32_t x_log = UserToLogicX(map, x, y), y_log = UserToLogicY(map, x, y);
      if (PlaceImportedPoint(target, what.i_name, x_log, y_log, half) == 0) continue;
      ++made;
      const std::string id = what.id_prefix + std::to_string(++number);
      std::string label = Trim(Field(fields, FldColumn(columns, kPointLabelColumn)));
      if (label.empty() || label == "-") label = id;
      surface.SetObjTag(kTagId, id);
      const bool plain = label.find(' ') == std::string::npos;
      surface.SetObjTag("libell",
                        plain && what.keep_plain_labels ? label : ReplaceText(label, " ", "_"));
      surface.SetObjTag(kTagXus, x);
      surface.SetObjTag(kTagYus, y);
      surface.SetObjTag(kTagXlog, x_log);
      surface.SetObjTag(kTagYlog, y_log);
      if (what.more_tags) what.more_tags(surface, columns, fields, count);
    }
    std::int32_t& counter = target.state.ElementCounters[static_cast<std::size_t>(what.i_name)];
    counter = std::max(counter, number);
  } else {
    ShowImportSymbolError(target);
  }
  target.ui.ShowProgress(-1);
  surface.SetRedraw(redraw);
  surface.Refresh();
  target.ui.ShowStatus("ok " + std::to_string(made) + " " + what.status_name +
                       " ont été importés.");
  return made;
}

}  // namespace pluvane
