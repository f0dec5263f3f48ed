#include "plot/grid_plot.h"

#include <array>
#include <cmath>
#include <filesystem>
#include <vector>

#include "foundation/fixed_width.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "plot/auto_scale.h"
#include "plot/curve_file.h"
#include "plot/script_words.h"

namespace pluvane {

namespace {

// Frame of the script, page cm.
constexpr double kLeft = 2, kRight = 28, kBottom = 2, kTop = 20;
// The limits are rounded to steps of this.
constexpr double kRounding = 2;

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

struct Curve {
  std::string name;
  std::vector<double> x, y;
};

Curve CurveOfColumn(const Grid& grid, int col, const PlotxyRequest& request) {
  Curve curve;
  curve.name = request.curve_word + std::to_string(col);
  std::vector<double> x, y;
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    if (grid.IsBlank(1, row) || grid.IsBlank(col, row)) continue;
    x.push_back(grid.Value(1, row));
    y.push_back(grid.Value(col, row));
  }
  if (request.kind == "Pluvio" && !x.empty()) {
    x.erase(x.begin());
    y.erase(y.begin());
  }
  if (request.kind != "SEC") {
    curve.x = std::move(x);
    curve.y = std::move(y);
    return curve;
  }
  // Heights in X, widths in the column: the left side up, the right side down.
  for (std::size_t i = 0; i < x.size(); ++i) {
    curve.x.push_back(-y[i] / 2);
    curve.y.push_back(x[i]);
  }
  for (std::size_t i = x.size(); i-- > 0;) {
    curve.x.push_back(y[i] / 2);
    curve.y.push_back(x[i]);
  }
  return curve;
}

// The first value above `value` of the run from the whole part of `low` to
// the whole part of `high` plus 1 by steps of 2; `fallback` when none.
double FirstAbove(double value, double low, double high, double fallback) {
  for (double v = std::floor(low); v <= std::floor(high) + 1; v += kRounding) {
    if (v > value) return v;
  }
  return fallback;
}

struct Limits {
  double x_min, x_max, y_min, y_max;
};

Limits RoundedLimits(double x_min, double x_max, double y_min, double y_max) {
  Limits l{x_min, x_max, y_min, y_max};
  l.x_min = FirstAbove(x_min, x_min, x_max, x_min + kRounding) - kRounding;
  l.x_max = FirstAbove(x_max, x_min, x_max, x_max);
  l.y_min = FirstAbove(y_min, y_min, y_max, y_min + kRounding) - kRounding;
  const double above = FirstAbove(y_max, y_min, y_max, y_max - kRounding);
  l.y_max = above + kRounding;
  if (kRounding < l.y_min) l.y_min -= kRounding;
  return l;
}

}  // namespace

std::int32_t QBColor(int index) {
  static constexpr std::array<std::int32_t, 16> kColours = {
      0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
      0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
  return kColours[static_cast<std::size_t>(((index % 16) + 16) % 16)];
}

std::string Plotxy(UserInterface& ui, const Grid& grid, const PlotxyRequest& request) {
  const std::string file = JoinPath(request.work_dir, "xy.crb");
  const int last_col = grid.SingleSeries() ? std::min(2, grid.MaxCols()) : grid.MaxCols();
  std::vector<std::string> lines;
  std::vector<Curve> curves;
  for (int col = 2; col <= last_col; ++col) {
    curves.push_back(CurveOfColumn(grid, col, request));
    const Curve& curve = curves.back();
    lines.push_back("'" + curve.name + "'");
    for (std::size_t i = 0; i < curve.x.size(); ++i) {
      lines.push_back(FormatFixed(curve.x[i], 10, 3) + FormatFixed(curve.y[i], 10, 3));
    }
    if (curve.x.empty()) break;
  }
  std::error_code ignored;
  std::filesystem::remove(file, ignored);
  WriteTextLines(file, lines);
  if (curves.empty() || curves.back().x.size() < 2) return "";

  double x_min = 0, x_max = 0, y_min = 0, y_max = 0;
  CurveMinMax(ui, file, x_min, x_max, y_min, y_max);
  Limits l = RoundedLimits(x_min, x_max, y_min, y_max);
  StepChoice x_step = StepForRange(l.x_min, l.x_max);
  StepChoice y_step = StepForRange(l.y_min, l.y_max);
  if (request.kind == "SAPP") l.y_max = 1;
  if (request.kind == "SEC") {
    l.x_min -= 2 * x_step.step;
    l.x_max += 2 * x_step.step;
    l.y_min -= 2 * y_step.step;
    l.y_max += 2 * y_step.step;
    const double x_range = l.x_max - l.x_min, y_range = l.y_max - l.y_min;
    if (x_range > y_range) {
      l.y_max = l.y_min + x_range;
    } else {
      l.x_max = l.x_min + y_range;
    }
  }

  std::vector<std::string> script;
  script.push_back("PAGE  \"A4\"  \"H\"  " + Quoted(request.page_title));
  script.push_back(" Cadre " + ScriptNumber(kLeft) + " " + ScriptNumber(kRight) + " " +
                   ScriptNumber(kBottom) + " " + ScriptNumber(kTop) + "  " +
                   Quoted(request.page_title) + "  6 1 0 6 0 65535");
  script.push_back("    Echelle \"F\" " + ScriptNumber(l.x_min) + " " + ScriptNumber(l.x_max) +
                   " " + ScriptNumber(l.y_min) + " " + ScriptNumber(l.y_max) + " " +
                   ScriptNumber(x_step.step) + " " + ScriptNumber(y_step.step) + " " +
                   ScriptNumber(x_step.spacing) + " " + ScriptNumber(y_step.spacing) +
                   " \"\"  \"\"  \"V\" 5 " + Quoted(FormatOfStep(x_step.step)) + " " +
                   Quoted(FormatOfStep(y_step.step)));
  script.push_back("    Grille " + ScriptNumber(x_step.spacing) + " " +
                   ScriptNumber(y_step.spacing) + " 2 1 0");
  const std::string& curve_file = file;
  for (std::size_t i = 0; i < curves.size(); ++i) {
    const std::int32_t colour =
        curves.size() == 1 ? 16711680 : QBColor(static_cast<int>(i) + 1 + 7);
    script.push_back("    Plotxy 1 " + Quoted(curve_file) + " " + Quoted(curves[i].name) +
                     " \"\" 0 2 " + ScriptNumber(colour));
  }
  script.push_back(" EndCadre");
  script.push_back("ENDPAGE");
  script.push_back("");
  std::filesystem::remove(request.script, ignored);
  if (!WriteTextLines(request.script, script)) return "";
  return request.script;
}

}  // namespace pluvane
