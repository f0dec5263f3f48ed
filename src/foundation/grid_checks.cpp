#include "foundation/grid_checks.h"

#include <string>
#include <unordered_map>

#include "foundation/text.h"

namespace pluvane {

namespace {

constexpr double kMinimumRise = 0.0001;
constexpr double kRiseTolerance = 1e-9;

// Messages about a cell put the cursor on it, unless the grid is hidden.
void MoveCursorIfShown(Grid& grid, int col, int row) {
  if (grid.Visible()) grid.SetActiveCell(col, row);
}

}  // namespace

int SSFindDuplicate(Grid& grid, int col, UserInterface& ui) {
  // For each text, its first row and the row where it comes again.
  struct Rows {
    int first = 0;
    int second = 0;
  };
  std::unordered_map<std::string, Rows> seen;
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    Rows& rows = seen[UCase(Trim(grid.Text(col, row)))];
    if (rows.first == 0) {
      rows.first = row;
    } else if (rows.second == 0) {
      rows.second = row;
    }
  }
  Rows pair;
  for (const auto& entry : seen) {
    const Rows& rows = entry.second;
    if (rows.second > 0 && (pair.first == 0 || rows.first < pair.first)) pair = rows;
  }
  if (pair.second == 0) return 0;
  ui.ShowMessage("Attention à la colonne '" + grid.ColHead(col) + "'\rdoublon entre les lignes " +
                     std::to_string(pair.first) + " et " + std::to_string(pair.second),
                 "Contrôle de doublon", MessageIcon::kExclamation);
  grid.SetActiveCell(col, pair.first);
  return pair.second;
}

bool SSCheckFilled(Grid& grid, int col, UserInterface& ui) {
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    if (!grid.IsBlank(col, row)) continue;
    ui.ShowMessage("Donnée non renseignée dans la colonne '" + grid.ColHead(col) +
                       "'\r à la ligne " + std::to_string(row),
                   grid.Caption(), MessageIcon::kExclamation);
    MoveCursorIfShown(grid, col, row);
    return false;
  }
  return true;
}

bool SSCheckNoBlank(Grid& grid, int col, UserInterface& ui) {
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    if (Trim(grid.Text(col, row)).find(' ') == std::string::npos) continue;
    ui.ShowMessage("Attention Pas de blanc dans \rla colonne '" + grid.ColHead(col) + "' ligne " +
                       std::to_string(row),
                   "Contrôle de valeur interdite", MessageIcon::kExclamation);
    grid.SetActiveCell(col, row);
    return true;
  }
  return false;
}

bool SSCheckAllFilled(Grid& grid, UserInterface& ui) {
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    for (int col = 1; col <= grid.MaxCols(); ++col) {
      if (!grid.IsBlank(col, row)) continue;
      ui.ShowMessage("Renseignez toutes les données necessaires", grid.Caption(),
                     MessageIcon::kExclamation);
      MoveCursorIfShown(grid, col, row);
      return false;
    }
  }
  return true;
}

bool RisesEnough(double from, double to) { return to - from >= kMinimumRise - kRiseTolerance; }

bool SSCheckRising(Grid& grid, int col, int& row) {
  for (int i = 2; i <= grid.MaxRows(); ++i) {
    if (RisesEnough(grid.Value(col, i - 1), grid.Value(col, i))) continue;
    row = i - 1;
    grid.SetActiveCell(col, row);
    return false;
  }
  return true;
}

int SSFindValue(std::string_view text, int col, const Grid& grid) {
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    if (EqualsNoCase(grid.Text(col, row), text)) return row;
  }
  return 0;
}

}  // namespace pluvane
