#include "rain/frm_pit_plus.h"

#include <utility>

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "foundation/grid_checks.h"
#include "foundation/numbers.h"
#include "editors/grid_plot_view.h"
#include "network/catalogue.h"
#include "rain/rain_records.h"

namespace pluvane {

FrmPitPlus::FrmPitPlus(EditorContext& context, std::string id, int number)
    : CurveTableForm(2), context_(context), id_(std::move(id)), number_(number) {
  grid_.SetCaption(Caption());
  grid_.SetColHead(1, "Temps (mn)");
  grid_.SetColHead(2, "Intensité (mm/h)");
  grid_.SetColWidth(2, 14);
  Surface& surface = context_.surface;
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(number_);
  if (number_ <= 10 || surface.CurrentObject() != number_) return;
  const std::int32_t points = ValLong(surface.ObjTag("NbPt"));
  grid_.SetMaxRows(points > 0 ? points : 0);
  for (int i = 1; i <= grid_.MaxRows(); ++i) {
    grid_.SetText(1, i, surface.ObjTag("X" + std::to_string(i)));
    grid_.SetText(2, i, surface.ObjTag("Y" + std::to_string(i)));
  }
}

void FrmPitPlus::mnSave() {
  UserInterface& ui = context_.ui;
  if (grid_.MaxRows() < 2) {
    ui.ShowMessage("Il faut au moins 2 lignes dans une courbe !", Caption(),
                   MessageIcon::kInformation);
    return;
  }
  if (!SSCheckAllFilled(grid_, ui)) return;
  int row = 0;
  if (!SSCheckRising(grid_, 1, row)) {
    ui.ShowMessage("Les temps doivent être croissants !\r\n revoir ligne " + std::to_string(row),
                   Caption(), MessageIcon::kExclamation);
    return;
  }
  Surface& surface = context_.surface;
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(number_);
  if (number_ <= 10 || surface.CurrentObject() != number_) {
    number_ = FindRainRecord(surface, kINameSynthetic, id_);
    if (number_ == 0) number_ = AddRainRecord(surface, context_.state, kINameSynthetic, id_);
  }
  surface.SetObjTag(kTagIGroup, -1);
  surface.SetObjTag(kTagIName, kINameSynthetic);
  surface.SetObjTag(kTagId, id_);
  surface.SetObjTag("NbPt", grid_.MaxRows());
  for (int i = 1; i <= grid_.MaxRows(); ++i) {
    surface.SetObjTag("X" + std::to_string(i), grid_.Value(1, i));
    surface.SetObjTag("Y" + std::to_string(i), grid_.Value(2, i));
  }
  Close();
}

void FrmPitPlus::mnVisu() {
  ShowGridPlot(context_, grid_, "PluieIt", " Pluie synthétique PluieIt", "PluieIt");
}

}  // namespace pluvane
