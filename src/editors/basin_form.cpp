#include "editors/basin_form.h"

#include <algorithm>
#include <utility>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/topology.h"

namespace pluvane {

BasinForm::BasinForm(EditorContext& context, std::string caption, std::vector<TagRow> rows,
                     std::vector<PointColumn> columns, Plot plot, int z0_row)
    : PointForm(context, std::move(caption), std::move(rows), std::move(columns), kPointLimit,
                std::move(plot)),
      z0_row_(z0_row) {
  {
    CursorKeeper keeper(context_.surface);
    const int node = NodeUnder(context_.surface, element_);
    if (node > 0) links_ = DownstreamCollectors(context_.surface, node);
  }
  std::string list;
  for (int link : links_) {
    labels_.push_back(TagOfObject(context_.surface, link, "libell"));
    if (!list.empty()) list += '\t';
    list += labels_.back();
  }
  spread1_.SetType(kValueCol, kRowAval, CellType::List(list));
  spread1_.SetType(kValueCol, kRowSurv, CellType::List(list));
  LoadRows();
  int count = ValLong(Tag("NbPt"));
  if (count > kPointLimit) {
    Tell("Attention la courbe de remplissage du bassin est limitée à 10 points");
    count = kPointLimit;
  }
  LoadPoints(std::max(count, 0));
}

void BasinForm::ClickCell(Grid& grid, int col, int row) {
  PointForm::ClickCell(grid, col, row);
  if (&grid == &spread1_ && col == kValueCol && (row == kRowAval || row == kRowSurv)) {
    Highlight(grid.Text(col, row));
  }
}

void BasinForm::ListCloseUp(Grid& grid, int col, int row) {
  if (&grid != &spread1_ || col != kValueCol) return;
  if (row != kRowAval && row != kRowSurv) return;
  const std::string chosen = grid.Text(col, row);
  if (Trim(chosen).empty()) return;
  const int other = row == kRowAval ? kRowSurv : kRowAval;
  if (EqualsNoCase(grid.Text(col, other), chosen)) grid.SetText(col, other, "");
  Highlight(chosen);
}

void BasinForm::Highlight(const std::string& label) {
  for (std::size_t i = 0; i < labels_.size(); ++i) {
    if (labels_[i] != label) continue;
    CursorKeeper keeper(context_.surface);
    context_.surface.DeselectAll();
    context_.surface.SetCurrentObject(links_[i]);
    context_.surface.SetSelected(true);
    return;
  }
}

void BasinForm::cmdOk() {
  if (!TableAccepted("Les cotes doivent être rentrées dans l'ordre croissant des valeurs !")) {
    return;
  }
  const int n = spread2_.MaxRows();
  const double z1 = spread2_.Value(1, 1), zn = spread2_.Value(1, n);
  const double z0 = spread1_.Value(kValueCol, z0_row_);
  if (z0 < z1 || z0 > zn) {
    Tell(LevelMessage(z1, zn, n));
    spread1_.SetActiveCell(kValueCol, z0_row_);
    return;
  }
  if (!LabelAccepted()) return;
  StoreRows(1, static_cast<int>(rows_.size()));
  ClearPoints(ValLong(Tag("NbPt")));
  StorePoints();
  Close();
}

}  // namespace pluvane
