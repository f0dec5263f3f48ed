#include "editors/frm_crbx.h"

#include <filesystem>
#include <utility>

#include "editors/grid_plot_view.h"
#include "foundation/fixed_width.h"
#include "foundation/grid_curves.h"
#include "foundation/grid_rows.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "plot/curve_file.h"
#include "plot/grid_plot.h"

namespace pluvane {

namespace {

constexpr const char* kSectionMode = "SEC";

int ColumnsOf(const CrbxParams& params) {
  int columns = 2;
  if (!params.labels[2].empty()) ++columns;
  if (!params.labels[3].empty()) ++columns;
  return columns;
}

}  // namespace

FrmCrbx::FrmCrbx(EditorContext& context, CrbxParams params)
    : context_(context), params_(std::move(params)), grid_(ColumnsOf(params_), 0) {
  grid_.SetCaption(params_.caption);
  for (int col = 1; col <= grid_.MaxCols(); ++col) {
    grid_.SetColHead(col, params_.labels[static_cast<std::size_t>(col - 1)]);
    grid_.SetColumnType(col, CellType::Float(-kLimit, kLimit, kDecimals));
  }
  int count = 0;
  if (grid_.MaxCols() == 2) {
    SSLoadCurve2(grid_, params_.file, params_.curve_name, count);
  } else if (grid_.MaxCols() == 3) {
    SSLoadCurve3(grid_, params_.file, params_.curve_name, count);
  } else {
    SSLoadCurve4(grid_, params_.file, params_.curve_name, count);
  }
  // A new table opens on one empty row, ready for typing.
  if (grid_.MaxRows() == 0) grid_.SetMaxRows(1);
  grid_.SetActiveCell(1, 1);
}

std::vector<FormCommand> FrmCrbx::Commands() {
  return {{"mnVisu", "&Visualiser", [this] { mnVisu(); }},
          {"mnAdd", "&Ajouter", [this] { mnAdd(); }},
          {"mnInsert", "&Insérer", [this] { mnInsert(); }},
          {"mnDelete", "&Supprimer", [this] { mnDelete(); }},
          {"mnSave", "&Enregistrer", [this] { mnSave(); }}};
}

void FrmCrbx::mnVisu() {
  if (params_.mode != kSectionMode) {
    ShowGridPlot(context_, grid_, params_.curve_name, params_.plot_title, params_.mode);
    return;
  }
  // The plot unfolds a section from its heights and widths, in that order;
  // this table holds the widths first.
  Grid section(2, grid_.MaxRows());
  for (int row = 1; row <= grid_.MaxRows(); ++row) {
    section.SetText(1, row, grid_.Text(2, row));
    section.SetText(2, row, grid_.Text(1, row));
  }
  ShowGridPlot(context_, section, params_.curve_name, params_.plot_title, params_.mode);
}

void FrmCrbx::mnAdd() { SSAddRow(grid_); }

void FrmCrbx::mnInsert() {
  // The limit holds for insertion only: Ajouter may go past it.
  if (grid_.MaxRows() >= params_.point_limit) return;
  int row = 0;
  SSInsertRow(grid_, row);
}

void FrmCrbx::mnDelete() { SSDeleteRow(grid_, grid_.ActiveRow()); }

int FrmCrbx::WriteFile() {
  const int kept = SSDataRows(grid_, grid_.MaxRows());
  grid_.SetMaxRows(kept);
  std::vector<std::string> lines{"'" + params_.curve_name + "'"};
  for (int row = 1; row <= kept; ++row) {
    bool filled = false;
    for (int col = 1; col <= grid_.MaxCols(); ++col) filled = filled || !grid_.IsBlank(col, row);
    if (!filled) continue;
    std::string line;
    for (int col = 1; col <= grid_.MaxCols(); ++col) {
      line += FormatFixed(grid_.Value(col, row), 10, kDecimals);
    }
    lines.push_back(line);
  }
  std::error_code ignored;
  std::filesystem::remove(params_.file, ignored);
  WriteTextLines(params_.file, lines);
  return kept;
}

void FrmCrbx::mnSave() {
  if (WriteFile() < 2) {
    context_.ui.ShowMessage("Il faut au moins 2 lignes pour la courbe !", params_.caption,
                            MessageIcon::kNone);
    return;
  }
  std::vector<double> x, y, z, t;
  int count = 0;
  int status = kCurveNotFound;
  ReadCurve(context_.ui, params_.file, params_.curve_name, x, y, z, t, count, status);
  // A section's heights are in the second column; elsewhere the first rises.
  const std::vector<double>& tested = params_.mode == kSectionMode ? y : x;
  for (std::size_t i = 1; i < tested.size(); ++i) {
    if (tested[i] >= tested[i - 1]) continue;
    context_.ui.ShowMessage("Les hauteurs doivent être croissants !", params_.caption,
                            MessageIcon::kNone);
    return;
  }
  Close();
}

}  // namespace pluvane
