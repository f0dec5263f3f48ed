#include "plot/auto_scale.h"

#include <cmath>

#include "foundation/numbers.h"
#include "plot/curve_file.h"

namespace pluvane {

namespace {

struct StepRow {
  double above;
  double step;
  int spacing;
};

constexpr StepRow kXRows[] = {{80000, 2000, 10}, {50000, 1000, 5}, {20000, 500, 4}, {10000, 500, 2},
                              {8000, 200, 5},    {4000, 100, 5},   {2000, 50, 4},   {800, 50, 2},
                              {300, 10, 5},      {200, 10, 2},     {50, 5, 2},      {20, 1, 1},
                              {5, 0.5, 2},       {1, 0.1, 5},      {0.5, 0.01, 5},  {0.1, 0.01, 1}};

// The rows of the Y table down to "above 20"; the Y table goes on below it,
// the range table has its own tail.
constexpr StepRow kYHighRows[] = {
    {1000000, 5000, 2}, {500000, 4000, 5}, {100000, 2000, 5}, {50000, 1000, 5}, {20000, 1000, 2},
    {8000, 200, 5},     {4000, 100, 5},    {2000, 100, 2},    {800, 50, 2},     {400, 10, 5},
    {200, 10, 2},       {100, 5, 2},       {50, 2, 5},        {30, 1, 5},       {20, 1, 2}};
constexpr StepRow kYLowRows[] = {{10, 0.5, 2},    {1, 0.2, 5},      {0.5, 0.05, 2},
                                 {0.09, 0.02, 5}, {0.01, 0.002, 5}, {0.005, 0.001, 5}};
constexpr StepRow kRangeLowRows[] = {{5, 0.5, 2}, {1, 0.1, 2}, {0.5, 0.01, 5}, {0.09, 0.01, 2}};
// Below the tables, values are looked at from -20 downwards.
constexpr StepRow kNegativeRows[] = {{-20, 1, 2},        {-30, 1, 5},        {-50, 2, 5},
                                     {-100, 5, 2},       {-200, 10, 2},      {-400, 10, 5},
                                     {-800, 50, 2},      {-2000, 100, 2},    {-4000, 100, 5},
                                     {-10000, 200, 5},   {-20000, 1000, 2},  {-50000, 1000, 5},
                                     {-100000, 2000, 5}, {-500000, 4000, 5}, {-1000000, 5000, 2}};

template <std::size_t N>
bool Lookup(const StepRow (&rows)[N], double value, StepChoice& choice) {
  for (const StepRow& row : rows) {
    if (value > row.above) {
      choice = {row.step, row.spacing};
      return true;
    }
  }
  return false;
}

StepChoice Negative(double value) {
  StepChoice choice{0.5, 2};
  Lookup(kNegativeRows, value, choice);
  return choice;
}

// The nearest whole number, ties to the even one.
double Whole(double value) { return std::nearbyint(value); }

// Lowers N from 10 while the step is below N, the step following as range / N.
double ShrinkStep(double step, double range) {
  for (int n = 10; step < n && n != 1;) {
    --n;
    step = range / n;
  }
  return step;
}

}  // namespace

StepChoice StepForX(double x_max) {
  StepChoice choice{0.001, 5};
  Lookup(kXRows, std::fabs(x_max), choice);
  return choice;
}

StepChoice StepForY(double y_max) {
  StepChoice choice;
  if (Lookup(kYHighRows, y_max, choice) || Lookup(kYLowRows, y_max, choice)) return choice;
  return Negative(y_max);
}

StepChoice StepForRange(double minimum, double maximum) {
  const double range = maximum - minimum;
  StepChoice choice;
  if (Lookup(kYHighRows, range, choice) || Lookup(kRangeLowRows, range, choice)) return choice;
  return Negative(range);
}

std::string FormatOfStep(double step) {
  const std::string text = NumToText(step);
  const std::size_t point = text.find('.');
  const std::size_t decimals = point == std::string::npos ? 0 : text.size() - point - 1;
  switch (decimals) {
    case 1:
      return "#######0.0";
    case 2:
      return "######0.00";
    case 3:
      return "#####0.000";
    default:
      return "#########0";
  }
}

bool ComputeAutoScale(UserInterface& ui, const std::string& file, AutoScale& scale) {
  scale = {};
  double& x_min = scale.x_min;
  double& x_max = scale.x_max;
  double& y_min = scale.y_min;
  double& y_max = scale.y_max;
  CurveMinMax(ui, file, x_min, x_max, y_min, y_max);
  if (!(y_max > -999999990)) {
    ui.ShowMessage("Anomalie dans le fichier de courbes à restituer \r" + file,
                   "Controle de cohérence", MessageIcon::kNone);
    return false;
  }
  double x_step = (x_max - x_min) / 10;
  double y_step = (y_max - y_min) / 10;
  // A flat curve is widened around its level.
  if (y_step < 0.02) {
    y_min = Whole(y_min / 2);
    y_max = Whole(y_max * 1.25);
  }
  x_step = ShrinkStep(x_step, x_max - x_min);
  y_step = ShrinkStep(y_step, y_max - y_min);
  if (std::fabs(x_max - x_min) < 0.01) x_max = x_step * 10 + x_min;
  if (std::fabs(y_max - y_min) < 0.01) y_max = y_step * 10 + y_min;
  if (std::fabs(x_max - x_step) < 0.01) x_step = x_max / 10;
  if (std::fabs(y_max - y_step) < 0.01) y_step = y_max / 10;
  y_min = Whole(y_min - y_step);
  y_max = Whole(y_max + y_step);
  if (std::fabs(y_max) < 0.5) y_max = 0.5;

  const StepChoice x_choice = StepForX(x_max);
  scale.x_step = x_choice.step;
  scale.x_spacing = x_choice.spacing;
  scale.x_format = FormatOfStep(scale.x_step);
  const StepChoice y_choice = StepForY(y_max);
  scale.y_step = y_choice.step;
  scale.y_spacing = y_choice.spacing;
  scale.y_format = FormatOfStep(scale.y_step);
  if (std::fabs(y_max - y_min) < 0.001) {
    y_min -= scale.y_step;
    y_max += scale.y_step;
  }
  return true;
}

}  // namespace pluvane
