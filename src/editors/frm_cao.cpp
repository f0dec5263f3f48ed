#include "editors/frm_cao.h"

#include "editors/collector_rows.h"

namespace pluvane {

namespace {

std::vector<TagRow> Rows(Surface& surface) {
  std::vector<TagRow> rows = CollectorRows("Identificateur (16 car maxi)=", SectionRow(surface));
  rows.push_back({"Kmin", "Coef. Strickler du lit mineur (-)=", QuantityCell()});
  rows.push_back({"Largeur", "Largeur du lit majeur (m)=", QuantityCell()});
  rows.push_back({"Kmaj", "Coef. Strickler du lit majeur (-)=", QuantityCell()});
  return rows;
}

}  // namespace

FrmCao::FrmCao(EditorContext& context)
    : TagGridForm(context, "Collecteur ouvert", Rows(context.surface)) {}

void FrmCao::ClickCell(Grid& grid, int col, int row) {
  TagGridForm::ClickCell(grid, col, row);
  if (col == kValueCol && row == kCollectorSectionRow) TellEmptySectionLibrary(context_, Caption());
}

void FrmCao::cmdOk() {
  if (!StoreRows()) return;
  const std::string label = grid().Text(kValueCol, kLabelRow);
  if (label != OldLabel() && !label.empty()) {
    context_.ui.ShowMessage("Ne pas oublier de MajUsIdDansIgroup/option de sortie", "",
                            MessageIcon::kNone);
  }
  Close();
}

}  // namespace pluvane
