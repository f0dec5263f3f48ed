#include "editors/basin_form.h"

#include <algorithm>
#include <utility>

#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {

BasinForm::BasinForm(EditorContext& context, std::string caption, std::vector<TagRow> rows,
                     std::vector<PointColumn> columns, Plot plot, int z0_row)
    : PointForm(context, std::move(caption), std::move(rows), std::move(columns), kPointLimit,
                std::move(plot)),
      z0_row_(z0_row) {
  links_ = LinksLeavingNode(context_.surface, Element());
  const std::string list = links_.List();
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
  grid().AddListener([this](const GridChange& change) {
    if (Closed() || change.kind != GridChange::kCells || change.row1 != change.row2) return;
    if (change.col1 > kValueCol || change.col2 < kValueCol) return;
    if (change.row1 == kRowAval || change.row1 == kRowSurv) LinkChosen(change.row1);
  });
}

void BasinForm::ClickCell(Grid& g, int col, int row) {
  PointForm::ClickCell(g, col, row);
  if (&g == &grid() && col == kValueCol && (row == kRowAval || row == kRowSurv)) {
    Highlight(g.Text(col, row));
  }
}

void BasinForm::LinkChosen(int row) {
  const std::string chosen = grid().Text(kValueCol, row);
  if (Trim(chosen).empty()) return;
  const int other = row == kRowAval ? kRowSurv : kRowAval;
  if (EqualsNoCase(grid().Text(kValueCol, other), chosen)) grid().SetText(kValueCol, other, "");
  Highlight(chosen);
}

void BasinForm::Highlight(const std::string& label) {
  const int link = links_.HandleOf(label);
  if (link > 0) HighlightObjects(context_.surface, {link});
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
