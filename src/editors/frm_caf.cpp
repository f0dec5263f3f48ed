#include "editors/frm_caf.h"

#include "editors/collector_rows.h"

namespace pluvane {

namespace {

std::vector<TagRow> Rows(Surface& surface) {
  std::vector<TagRow> rows = CollectorRows("Identificateur (16 car maxi)=", SectionRow(surface));
  rows.push_back({"K", "Coef. Strickler (-)=", QuantityCell()});
  rows.push_back({"HD", "H moyenne sous chaussée (m)=", QuantityCell()});
  rows.push_back(
      {"SR", "Surface du réservoir fictif en cas de mise en charge (m2)=", QuantityCell()});
  return rows;
}

}  // namespace

FrmCaf::FrmCaf(EditorContext& context)
    : TagGridForm(context, "Collecteur fermé", Rows(context.surface)) {}

void FrmCaf::ClickCell(Grid& grid, int col, int row) {
  TagGridForm::ClickCell(grid, col, row);
  if (col == kValueCol && row == kCollectorSectionRow) TellEmptySectionLibrary(context_, Caption());
}

}  // namespace pluvane
