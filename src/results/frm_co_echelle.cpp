#include "results/frm_co_echelle.h"

#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {

FrmCoEchelle::FrmCoEchelle(UserInterface& ui, std::vector<CapacityClass> classes,
                           std::string ini_file)
    : Spread1(2, static_cast<int>(classes.size())),
      ui_(ui),
      classes_(std::move(classes)),
      ini_file_(std::move(ini_file)) {
  Spread1.SetColHead(1, "Couleur");
  Spread1.SetColHead(2, "%");
  const int n = static_cast<int>(classes_.size());
  for (int row = 1; row <= n; ++row) {
    const CapacityClass& item = classes_[static_cast<std::size_t>(n - row)];
    Spread1.SetBackColour(1, row, item.colour);
    Spread1.SetLocked(1, row, true);
    Spread1.SetText(2, row, std::to_string(item.percent) + "%");
  }
}

std::vector<FormCommand> FrmCoEchelle::Commands() {
  return {{"cmdOk", "&Ok", [this] { cmdOk(); }}, {"cmdAnnul", "&Annuler", [this] { cmdAnnul(); }}};
}

void FrmCoEchelle::ClickCell(Grid& grid, int col, int row) {
  if (&grid != &Spread1 || col != 1 || row < 1 || row > Spread1.MaxRows()) return;
  if (const auto colour = ui_.ChooseColour(Spread1.BackColour(1, row)))
    Spread1.SetBackColour(1, row, *colour);
}

void FrmCoEchelle::cmdOk() {
  std::vector<CapacityClass> classes;
  for (int row = Spread1.MaxRows(); row >= 1; --row) {
    CapacityClass item;
    item.colour = Spread1.BackColour(1, row);
    const std::string text = Spread1.Text(2, row);
    item.percent = static_cast<int>(Val(text.substr(0, text.find('%'))));
    classes.push_back(item);
  }
  classes_ = classes;
  WriteCapacityScale(classes_, ini_file_);
  flag_ = "1";
  Close();
}

void FrmCoEchelle::cmdAnnul() {
  flag_ = "0";
  Close();
}

}  // namespace pluvane
