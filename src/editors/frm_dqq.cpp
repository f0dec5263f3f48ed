#include "editors/frm_dqq.h"

#include <algorithm>
#include <string>

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "editors/element_label.h"
#include "editors/grid_plot_view.h"
#include "foundation/grid_checks.h"
#include "foundation/grid_rows.h"
#include "foundation/numbers.h"

namespace pluvane {

namespace {

constexpr std::array<const char*, 4> kPointTags{"X", "Y", "Z", "T"};
constexpr double kLimit = 9999999999.999;

// The derived sum may reach Qamont: a hair is allowed for the binary
// rounding of decimal sums, so 0.1 + 0.2 equals 0.3 here as it does on paper.
bool SumWithin(double sum, double upstream) {
  return sum <= upstream + 1e-9 * std::max(1.0, std::abs(upstream));
}

std::string RowText(int row) { return "\r\n revoir ligne " + std::to_string(row); }

}  // namespace

FrmDqq::FrmDqq(EditorContext& context) : DividerForm(context, kCaption, 2), spread2_(4, 0) {
  spread2_.SetCaption(kCaption);
  const char* heads[] = {"Qamont (m3/s)", "Qd1  (m3/s)", "Qd2 (m3/s)", "Qd3 (m3/s)"};
  for (int col = 1; col <= 4; ++col) {
    spread2_.SetColHead(col, heads[col - 1]);
    spread2_.SetColumnType(col, CellType::Float(-kLimit, kLimit, 3));
  }
  Surface& surface = context_.surface;
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(element());
  const int points = std::max(0, ValLong(surface.ObjTag("NbPt")));
  spread2_.SetMaxRows(points);
  for (int row = 1; row <= points; ++row) {
    for (int col = 1; col <= 4; ++col) {
      spread2_.SetText(col, row, surface.ObjTag(kPointTags[col - 1] + std::to_string(row)));
    }
  }
}

std::vector<FormCommand> FrmDqq::Commands() {
  return {{"cmdOk", "&Ok", [this] { cmdOk(); }},
          {"cmdAnnul", "&Annuler", [this] { cmdAnnul(); }},
          {"cmdAddLine", "&Ajouter une ligne", [this] { cmdAddLine(); }},
          {"cmdInsLine", "&Insérer une ligne", [this] { cmdInsLine(); }},
          {"cmdDelLine", "&Supprimer une ligne", [this] { cmdDelLine(); }},
          {"cmdVisu", "&Visu", [this] { cmdVisu(); }}};
}

int FrmDqq::LawRows() const { return SSDataRows(spread2_, spread2_.MaxRows()); }

bool FrmDqq::CheckLaw() {
  UserInterface& ui = context_.ui;
  const int rows = LawRows();
  if (rows < 2) {
    ui.ShowMessage("Il faut au moins 2 lignes pour la loi de dérivation !", kCaption,
                   MessageIcon::kInformation);
    return false;
  }
  for (int row = 2; row <= rows; ++row) {
    if (spread2_.Value(1, row) - spread2_.Value(1, row - 1) >= 0) continue;
    spread2_.SetActiveCell(1, row - 1);
    ui.ShowMessage("Les Qamont doivent être croissants !" + RowText(row - 1), kCaption,
                   MessageIcon::kInformation);
    return false;
  }
  for (int row = 1; row <= rows; ++row) {
    const double sum = spread2_.Value(2, row) + spread2_.Value(3, row) + spread2_.Value(4, row);
    if (SumWithin(sum, spread2_.Value(1, row))) continue;
    spread2_.SetActiveCell(1, row);
    ui.ShowMessage("La somme des Q derivés doit être <= Q amont !" + RowText(row), kCaption,
                   MessageIcon::kInformation);
    return false;
  }
  return true;
}

void FrmDqq::cmdOk() {
  if (!CheckBranchesFilled(kColValue) || !CheckLaw() || LabelRefused()) return;
  StoreBranches();
  Surface& surface = context_.surface;
  {
    CursorKeeper keeper(surface);
    surface.SetCurrentObject(element());
    const int former = ValLong(surface.ObjTag("NbPt"));
    for (int i = 1; i <= former; ++i) {
      for (const char* tag : kPointTags) surface.SetObjTag(tag + std::to_string(i), "");
    }
    const int rows = LawRows();
    surface.SetObjTag("NbPt", rows);
    for (int row = 1; row <= rows; ++row) {
      for (int col = 1; col <= 4; ++col) {
        surface.SetObjTag(kPointTags[col - 1] + std::to_string(row), spread2_.Text(col, row));
      }
    }
  }
  Unload();
}

void FrmDqq::cmdAddLine() { SSAddRow(spread2_); }

void FrmDqq::cmdInsLine() {
  if (spread2_.MaxRows() >= kMaxPoints) return;
  int row = 0;
  SSInsertRow(spread2_, row);
}

void FrmDqq::cmdDelLine() { SSDeleteRow(spread2_, spread2_.ActiveRow()); }

void FrmDqq::cmdVisu() {
  const int rows = LawRows();
  for (int row = 2; row <= rows; ++row) {
    if (RisesEnough(spread2_.Value(1, row - 1), spread2_.Value(1, row))) continue;
    spread2_.SetActiveCell(1, row - 1);
    context_.ui.ShowMessage("Vous devez rentrer des valeurs croissantes de Qam", kInputErrorTitle,
                            MessageIcon::kInformation);
    return;
  }
  const std::string id = TagOfObject(context_.surface, element(), kTagId);
  ShowGridPlot(context_, spread2_, "Qd", "Dérivation en fonction de Qam : " + id);
}

}  // namespace pluvane
