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
    const int node = NodeUnder(context_.surface, Element());
    if (node > 0) links_ = DownstreamCollectors(context_.surface, node);
  }
  std::string list;
  for (int link : links_) {
    labels_.push_back(TagOfObject(context_.surface, link, "libell"));
    if (!list.empty()) list += '\t';
    list += labels_.back();
  }
  for (int row : {kRowAval, kRowSurv}) {
    // The text again, so that the list selects its entry.
    const std::string chosen = grid().Text(kValueCol, row);
    grid().SetType(kValueCol, row, CellType::List(list));
    grid().SetText(kValueCol, row, chosen);
  }
  int count = ValLong(Tag("NbPt"));
  if (count > kPointLimit) {
    Tell("Attention la courbe de remplissage du bassin est limitée à 10 points");
    count = kPointLimit;
  }
  LoadPoints(std::max(count, 0));
}

void BasinForm::ClickCell(Grid& g, int col, int row) {
  PointForm::ClickCell(g, col, row);
  if (&g == &grid() && col == kValueCol && (row == kRowAval || row == kRowSurv)) {
    Highlight(g.Text(col, row));
  }
}

void BasinForm::ListCloseUp(Grid& g, int col, int row) {
  if (&g != &grid() || col != kValueCol) return;
  if (row != kRowAval && row != kRowSurv) return;
  const std::string chosen = g.Text(col, row);
  if (Trim(chosen).empty()) return;
  const int other = row == kRowAval ? kRowSurv : kRowAval;
  if (EqualsNoCase(g.Text(col, other), chosen)) g.SetText(col, other, "");
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
  const double z0 = grid().Value(kValueCol, z0_row_);
  if (z0 < z1 || z0 > zn) {
    Tell(LevelMessage(z1, zn, n));
    grid().SetActiveCell(kValueCol, z0_row_);
    return;
  }
  const int former = ValLong(Tag("NbPt"));
  if (!StoreRows()) return;
  ClearPoints(former);
  StorePoints();
  Close();
}

}  // namespace pluvane
