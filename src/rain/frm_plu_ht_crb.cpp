#include "rain/frm_plu_ht_crb.h"

#include <utility>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/grid_checks.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "editors/grid_plot_view.h"
#include "network/catalogue.h"
#include "rain/rain_records.h"

namespace pluvane {

namespace {

constexpr const char* kStateHead = "Etat pluvio ->";

std::vector<std::string> TabFields(const std::string& line) {
  std::vector<std::string> fields;
  std::size_t start = 0;
  while (true) {
    const std::size_t tab = line.find('\t', start);
    fields.push_back(
        line.substr(start, tab == std::string::npos ? std::string::npos : tab - start));
    if (tab == std::string::npos) return fields;
    start = tab + 1;
  }
}

}  // namespace

std::vector<int> Md_nbPluvio(Surface& surface) { return RecordsOfKind(surface, kINamePLU); }

FrmPluHtCrb::FrmPluHtCrb(EditorContext& context, std::string id, int number,
                         std::string working_file)
    : CurveTableForm(1), context_(context), id_(std::move(id)), working_file_(std::move(working_file)) {
  Surface& surface = context_.surface;
  const std::vector<int> gauges = Md_nbPluvio(surface);
  grid_.SetMaxCols(1 + static_cast<int>(gauges.size()));
  grid_.SetCaption(Caption());
  grid_.SetColHead(1, " Temps (mn)");
  grid_.SetColWidth(1, 14);
  for (std::size_t g = 0; g < gauges.size(); ++g) {
    const int col = static_cast<int>(g) + 2;
    grid_.SetColHead(col, "H(t) du pluvio " + TagOfObject(surface, gauges[g], "libell"));
    grid_.SetColWidth(col, 12);
  }
  std::vector<std::string> lines;
  if (FileExist(working_file_) && ReadTextLines(working_file_, lines)) {
    for (const std::string& line : lines) {
      if (Trim(line).empty()) continue;
      grid_.SetMaxRows(grid_.MaxRows() + 1);
      FillRow(grid_.MaxRows(), line);
    }
  } else if (number > 10) {
    const std::int32_t rows = ValLong(TagOfObject(surface, number, "NbPt"));
    for (std::int32_t i = 1; i <= rows; ++i) {
      grid_.SetMaxRows(static_cast<int>(i));
      FillRow(static_cast<int>(i), TagOfObject(surface, number, "Pt" + std::to_string(i)));
    }
  }
  if (grid_.MaxRows() == 0) grid_.SetMaxRows(1);
  grid_.SetText(1, 1, kStateHead);
  grid_.SetLocked(1, 1, true);
}

void FrmPluHtCrb::FillRow(int row, const std::string& line) {
  const std::vector<std::string> fields = TabFields(line);
  for (std::size_t i = 0; i < fields.size() && static_cast<int>(i) < grid_.MaxCols(); ++i) {
    grid_.SetText(static_cast<int>(i) + 1, row, fields[i]);
  }
}

void FrmPluHtCrb::mnIns() {
  if (grid_.ActiveRow() > 1) CurveTableForm::mnIns();
}

void FrmPluHtCrb::mnDel() {
  if (grid_.ActiveRow() > 1) CurveTableForm::mnDel();
}

void FrmPluHtCrb::mnSave() {
  UserInterface& ui = context_.ui;
  if (grid_.MaxRows() - 1 < 2) {
    ui.ShowMessage("Il faut au moins 2 lignes dans une courbe !", Caption(),
                   MessageIcon::kInformation);
    return;
  }
  for (int row = 3; row <= grid_.MaxRows(); ++row) {
    if (RisesEnough(grid_.Value(1, row - 1), grid_.Value(1, row))) continue;
    grid_.SetActiveCell(1, row - 1);
    ui.ShowMessage(
        "Les temps doivent être croissants !\r\n revoir ligne " + std::to_string(row - 1),
        Caption(), MessageIcon::kExclamation);
    return;
  }
  std::vector<std::string> lines;
  for (int row = 1; row <= grid_.MaxRows(); ++row) {
    std::string line;
    for (int col = 1; col <= grid_.MaxCols(); ++col) {
      if (col > 1) line += '\t';
      line += Trim(grid_.Text(col, row));
    }
    while (!line.empty() && line.back() == '\t') line.pop_back();
    if (!Trim(line).empty()) lines.push_back(line);
  }
  if (!WriteTextLines(working_file_, lines)) {
    ui.ShowMessage("Impossible d'écrire le fichier " + working_file_, Caption(),
                   MessageIcon::kCritical);
    return;
  }
  Close();
}

void FrmPluHtCrb::mnVisu() {
  ShowGridPlot(context_, grid_, "Pluvio", " Courbe Pluvio", "Pluvio");
}

}  // namespace pluvane
