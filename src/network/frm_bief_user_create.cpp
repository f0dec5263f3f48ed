#include "network/frm_bief_user_create.h"

#include "foundation/grid_rows.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/reaches.h"

namespace pluvane {

FrmBiefUserCreate::FrmBiefUserCreate(Surface& surface, NetworkState& state, UserInterface& ui)
    : surface_(surface), state_(state), ui_(ui), grid_(1, 0) {
  grid_.SetCaption(Caption());
  grid_.SetColHead(1, "N° Bief");
  const std::vector<std::string> used = ReachNumbers(surface_);
  used_rows_ = static_cast<int>(used.size());
  grid_.SetMaxRows(used_rows_ + 1);
  for (int row = 1; row <= used_rows_; ++row) {
    grid_.SetText(1, row, used[row - 1]);
    grid_.SetLocked(1, row, true);
  }
  grid_.SetActiveCell(1, used_rows_ + 1);
  state_.PendingReach = 0;
}

std::vector<FormCommand> FrmBiefUserCreate::Commands() {
  return {{"cmdAdd", "&Ajouter", [this] { cmdAdd(); }},
          {"cmdOk", "&Ok", [this] { cmdOk(); }},
          {"cmdAnnul", "&Annuler", [this] { cmdAnnul(); }}};
}

void FrmBiefUserCreate::cmdAdd() { SSAddRow(grid_); }

void FrmBiefUserCreate::cmdOk() {
  std::vector<int> typed;
  for (int row = used_rows_ + 1; row <= grid_.MaxRows(); ++row) {
    if (!grid_.IsBlank(1, row)) typed.push_back(row);
  }
  if (typed.empty()) {
    ui_.ShowMessage(
        "Le bief venant d'être créé n'a reçu aucun numéro ?\r\nVous devez lui affecter un numéro "
        "disponible.",
        Caption(), MessageIcon::kExclamation);
    grid_.SetActiveCell(1, used_rows_ + 1);
    return;
  }
  if (typed.size() > 1) {
    ui_.ShowMessage("Vous avez affecté " + std::to_string(typed.size()) +
                        " numéros au bief ?\r\nUn seul numéro suffit.",
                    Caption(), MessageIcon::kExclamation);
    grid_.SetActiveCell(1, typed[1]);
    return;
  }
  const std::string number = Trim(grid_.Text(1, typed[0]));
  for (int row = 1; row <= used_rows_; ++row) {
    if (Val(grid_.Text(1, row)) == Val(number)) {
      ui_.ShowMessage(number + " existe déjà.", Caption(), MessageIcon::kExclamation);
      grid_.SetActiveCell(1, typed[0]);
      return;
    }
  }
  result_ = number;
  state_.PendingReach = ValLong(number);
  Close();
}

void FrmBiefUserCreate::cmdAnnul() {
  result_ = "ANNUL";
  state_.PendingReach = ValLong(result_);
  Close();
}

}  // namespace pluvane
