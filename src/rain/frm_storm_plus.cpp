#include "rain/frm_storm_plus.h"

#include <utility>

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "foundation/grid_checks.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "rain/montana_columns.h"
#include "rain/rain_records.h"

namespace pluvane {

namespace {

struct TriangleRow {
  const char* tag;
  const char* label;
};

std::vector<TriangleRow> TriangleRows(int kind) {
  if (kind == kINameSimpleTriangle) {
    return {{"Duree", "Durée totale de la précipitation (mn)="},
            {"Timax", "Instant du pic pluvieux (mn)="}};
  }
  if (kind == kINameDoubleTriangle) {
    return {{"DureeTot", "Durée totale de l'épisode pluvieux (mn)="},
            {"DureeInt", "Durée de l'épisode intense (mn)="},
            {"Timax", "Instant du pic pluvieux (mn)="}};
  }
  return {};
}

}  // namespace

FrmStormPlus::FrmStormPlus(EditorContext& context, int kind, std::string id, int number)
    : context_(context),
      kind_(kind),
      id_(std::move(id)),
      number_(number),
      montana_{Grid(kColChoose, 1), Grid(kColChoose, 1)},
      triangle_(1, 0),
      library_(kColCb, 0) {
  Surface& surface = context_.surface;
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(number_);
  const bool found = number_ > 10 && surface.CurrentObject() == number_;
  auto tag = [&](const std::string& name) { return found ? surface.ObjTag(name) : std::string(); };

  for (int which = 0; which < MontanaGrids(); ++which) {
    Grid& grid = montana_[which];
    grid.SetCaption(Caption());
    MontanaHeads(grid);
    grid.SetColHead(kColChoose, "");
    grid.SetText(0, 1,
                 kind_ != kINameDoubleTriangle ? "Coef. de Montana"
                 : which == 0                 ? "Coef. de Montana pour l'épisode total"
                                              : "Coef de Montana pour l'épisode intense");
    for (int col = kColId; col <= kColCb; ++col) grid.SetLocked(col, 1, true);
    grid.SetType(kColChoose, 1, CellType::Button());
    grid.SetText(kColChoose, 1, "Choix des coef. de Montana");
    grid.SetNote(kColChoose, 1, "Parcourir les coef. de Montana");
    grid.SetColWidth(kColChoose, 20);
    const std::string s = Suffix(which);
    grid.SetText(kColId, 1, tag(kind_ == kINameDoubleTriangle ? "Id" + s : "IdMonta"));
    grid.SetText(kColDesign, 1, tag("Design" + s));
    grid.SetText(kColPret, 1, tag("Pret" + s));
    grid.SetText(kColCa, 1, tag("Ca" + s));
    grid.SetText(kColCb, 1, tag("Cb" + s));
  }
  const std::vector<TriangleRow> rows = TriangleRows(kind_);
  triangle_.SetCaption(Caption());
  triangle_.SetMaxRows(static_cast<int>(rows.size()));
  triangle_.SetColHead(1, "Valeur");
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const int row = static_cast<int>(i) + 1;
    triangle_.SetText(0, row, rows[i].label);
    triangle_.SetText(1, row, tag(rows[i].tag));
  }

  library_.SetCaption(Caption());
  MontanaHeads(library_);
  for (int col = kColId; col <= kColCb; ++col) library_.SetColumnLocked(col, true);
  library_.SetRowSelect(true);
  AppendMontanaEntries(surface, library_);
  library_.SetVisible(false);
}

std::string FrmStormPlus::Caption() const {
  switch (kind_) {
    case kINameCaquot:
      return "Pluie Caquot " + id_;
    case kINameSimpleTriangle:
      return "Pluie simple triangle " + id_;
    default:
      return "Pluie double triangle " + id_;
  }
}

std::vector<Grid*> FrmStormPlus::Grids() {
  std::vector<Grid*> grids = {&montana_[0]};
  if (MontanaGrids() == 2) grids.push_back(&montana_[1]);
  if (kind_ != kINameCaquot) grids.push_back(&triangle_);
  grids.push_back(&library_);
  return grids;
}

std::vector<FormCommand> FrmStormPlus::Commands() {
  return {{"mnSave", "&Enregistrer", [this] { mnSave(); }},
          {"mnClose", "&Fermer", [this] { mnClose(); }}};
}

std::string FrmStormPlus::Suffix(int which) const {
  if (kind_ != kINameDoubleTriangle) return "";
  return which == 0 ? "Tot" : "Int";
}

void FrmStormPlus::ButtonCell(Grid& grid, int col, int row) {
  if (col != kColChoose || row != 1) return;
  for (int which = 0; which < MontanaGrids(); ++which) {
    if (&grid != &montana_[which]) continue;
    target_ = which;
    library_.SetVisible(true);
  }
}

void FrmStormPlus::DoubleClickCell(Grid& grid, int /*col*/, int row) {
  if (&grid != &library_ || !library_.Visible() || row < 1 || row > library_.MaxRows()) return;
  Grid& target = montana_[target_];
  for (int col = kColId; col <= kColCb; ++col) target.SetText(col, 1, library_.Text(col, row));
  context_.ui.ShowStatus(library_.Text(kColId, row));
  HideLibrary();
}

void FrmStormPlus::mnSave() {
  for (int which = 0; which < MontanaGrids(); ++which) {
    if (!SSCheckAllFilled(montana_[which], context_.ui)) return;
  }
  if (!SSCheckAllFilled(triangle_, context_.ui)) return;

  Surface& surface = context_.surface;
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(number_);
  if (number_ <= 10 || surface.CurrentObject() != number_) {
    number_ = FindRainRecord(surface, kind_, id_);
    if (number_ == 0) number_ = AddRainRecord(surface, context_.state, kind_, id_);
  }
  surface.SetObjTag(kTagIGroup, -1);
  surface.SetObjTag(kTagIName, kind_);
  surface.SetObjTag(kTagId, id_);
  for (int which = 0; which < MontanaGrids(); ++which) {
    const Grid& grid = montana_[which];
    const std::string s = Suffix(which);
    surface.SetObjTag(kind_ == kINameDoubleTriangle ? "Id" + s : "IdMonta",
                      Trim(grid.Text(kColId, 1)));
    surface.SetObjTag("Design" + s, Trim(grid.Text(kColDesign, 1)));
    surface.SetObjTag("Pret" + s, grid.Value(kColPret, 1));
    surface.SetObjTag("Ca" + s, grid.Value(kColCa, 1));
    surface.SetObjTag("Cb" + s, grid.Value(kColCb, 1));
  }
  const std::vector<TriangleRow> rows = TriangleRows(kind_);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    surface.SetObjTag(rows[i].tag, triangle_.Value(1, static_cast<int>(i) + 1));
  }
  Close();
}

}  // namespace pluvane
