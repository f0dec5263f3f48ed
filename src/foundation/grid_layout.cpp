#include "foundation/grid_layout.h"

#include <algorithm>

namespace pluvane {

namespace {

constexpr double kScreenMargin = 800;
constexpr double kMinimumGridHeight = 1500;
constexpr double kFormMargin = 500;

}  // namespace

FormSize SSFitForm(const Grid& grid, int rows_shown, const FormSize& form, double screen_height) {
  if (grid.MaxRows() < 1) return form;
  double height = (rows_shown + 2) * grid.RowHeight(1) + 1.5 * grid.RowHeight(0);
  if (height > screen_height) height = screen_height - kScreenMargin;
  height = std::max(height, kMinimumGridHeight);
  FormSize fit = form;
  fit.grid_height = height;
  fit.height = form.height - form.grid_height + height;
  return fit;
}

FormSize SSFitWidth(const Grid& grid, const FormSize& form) {
  FormSize fit = form;
  if (grid.MaxRows() < 1) {
    fit.grid_width = form.width - kFormMargin;
  } else {
    fit.grid_width = 0;
    for (int col = 0; col <= grid.MaxCols(); ++col) fit.grid_width += grid.ColWidthTwips(col);
  }
  fit.width = fit.grid_width + kFormMargin;
  return fit;
}

void SSSetStyle(Grid& grid) {
  grid.SetRowSelect(true);
  grid.SetSelectionColours(kDarkBlue, kYellow);
  FontChoice font = grid.Font();
  font.name = "Arial";
  font.size = 11;
  grid.SetFont(font);
}

}  // namespace pluvane
