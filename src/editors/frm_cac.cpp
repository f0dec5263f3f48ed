#include "editors/frm_cac.h"

#include "editors/collector_rows.h"

namespace pluvane {

namespace {

std::vector<TagRow> Rows() {
  std::vector<TagRow> rows =
      CollectorRows("Identificateur (16 car. maxi)=", {"Dn", "Diamètre (m)=", QuantityCell()});
  rows.push_back({"K", "Coef. Strickler (-)=", QuantityCell()});
  rows.push_back({"HD", "H moyenne sous chaussée (m)=", QuantityCell()});
  rows.push_back(
      {"SR", "Surface du réservoir fictif en cas de mise en charge (m2)=", QuantityCell()});
  return rows;
}

}  // namespace

FrmCac::FrmCac(EditorContext& context) : TagGridForm(context, "Collecteur circulaire", Rows()) {}

void FrmCac::cmdOk() {
  if (grid().Value(kValueCol, kDiameterRow) < 0.00001) {
    Refuse(kDiameterRow, "Le diamètre doit être non nul!");
    return;
  }
  TagGridForm::cmdOk();
}

}  // namespace pluvane
