#include "foundation/grid_curves.h"

#include <algorithm>

#include "foundation/grid_checks.h"
#include "foundation/grid_rows.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

constexpr std::size_t kFieldWidth = 10;

// Val of the n-th field (from 0) of a fixed-column data line.
double Field(std::string_view line, std::size_t index) {
  return Val(CharMid(line, index * kFieldWidth + 1, kFieldWidth));
}

// Reads the first curve of that name into `columns` columns of the grid; with
// `offset`, the number from the third field of the first point on is added to
// the second column.
bool LoadCurve(Grid& grid, const std::string& file, const std::string& name, int columns,
               bool offset, int& count) {
  count = 0;
  std::vector<std::string> lines;
  if (!ReadTextLines(file, lines)) return false;
  std::string wanted = Trim(name);
  auto line = lines.begin();
  for (; line != lines.end(); ++line) {
    int position = 0;
    std::string quoted = QuotedPart(*line, position);
    if (position > 0 && EqualsNoCase(quoted, wanted)) break;
  }
  if (line == lines.end()) return false;

  std::vector<std::vector<double>> points;
  double lift = 0;
  for (++line; line != lines.end() && line->find('\'') == std::string::npos; ++line) {
    if (Trim(*line).empty()) continue;
    if (offset && points.empty()) lift = Val(CharMid(*line, 2 * kFieldWidth + 1));
    std::vector<double> point(static_cast<std::size_t>(columns));
    for (int col = 0; col < columns; ++col) point[col] = Field(*line, col);
    point[1] += lift;
    points.push_back(std::move(point));
  }

  if (grid.MaxCols() < columns) grid.SetMaxCols(columns);
  grid.SetMaxRows(static_cast<int>(points.size()));
  for (std::size_t i = 0; i < points.size(); ++i) {
    for (int col = 0; col < columns; ++col) {
      grid.SetText(col + 1, static_cast<int>(i) + 1, NumToText(points[i][col]));
    }
  }
  count = static_cast<int>(points.size());
  return true;
}

// The values of a column over `count` rows from `row`.
std::vector<double> ColumnValues(const Grid& grid, int col, int row, int count) {
  std::vector<double> values;
  values.reserve(static_cast<std::size_t>(std::max(count, 0)));
  for (int i = 0; i < count; ++i) values.push_back(grid.Value(col, row + i));
  return values;
}

}  // namespace

bool SSLoadCurve2(Grid& grid, const std::string& file, const std::string& name, int& count) {
  return LoadCurve(grid, file, name, 2, true, count);
}

bool SSLoadCurve3(Grid& grid, const std::string& file, const std::string& name, int& count) {
  return LoadCurve(grid, file, name, 3, false, count);
}

bool SSLoadCurve4(Grid& grid, const std::string& file, const std::string& name, int& count) {
  return LoadCurve(grid, file, name, 4, false, count);
}

bool SSToCurveArrays(Grid& grid, const std::string& mode, CurveArrays& arrays, UserInterface& ui) {
  arrays = {};
  // The X column and the first row of X, then the blocks of the series.
  int x_col = 1;
  int first_row = 1;
  int count = SSDataRows(grid, grid.MaxRows());
  std::vector<GridBlock> series;
  if (grid.SelectionCount() >= 2) {
    GridBlock x_block = grid.GetSelection(0);
    x_col = x_block.col1;
    first_row = x_block.row1;
    count = x_block.row2 - x_block.row1 + 1;
    for (int i = 1; i < grid.SelectionCount(); ++i) {
      GridBlock block = grid.GetSelection(i);
      count = std::min(count, block.row2 - block.row1 + 1);
      series.push_back(block);
    }
  } else {
    series.push_back({2, 1, grid.MaxCols(), count});
  }

  std::vector<double> x = ColumnValues(grid, x_col, first_row, count);
  for (std::size_t i = 1; i < x.size(); ++i) {
    if (RisesEnough(x[i - 1], x[i])) continue;
    ui.ShowMessage(mode == "SEC" ? "Les hauteurs doivent être croissantes"
                                 : "Les abscisses doivent être croissantes",
                   grid.Caption(), MessageIcon::kExclamation);
    grid.SetActiveCell(x_col, first_row + static_cast<int>(i) - 1);
    return false;
  }
  arrays.x = std::move(x);
  for (const GridBlock& block : series) {
    for (int col = block.col1; col <= block.col2; ++col) {
      arrays.y.push_back(ColumnValues(grid, col, block.row1, count));
    }
  }
  return true;
}

}  // namespace pluvane
