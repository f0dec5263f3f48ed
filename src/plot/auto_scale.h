// The automatic scale of a set of curves: limits, tick steps, label spacings
// and label formats from the extents of a curve file, and the step tables the
// script writers share.
#pragma once

#include <string>

#include "foundation/user_interface.h"

namespace pluvane {

struct AutoScale {
  double x_min = 0, x_max = 0, y_min = 0, y_max = 0;
  double x_step = 0, y_step = 0;
  int x_spacing = 0, y_spacing = 0;  // a label every so many ticks
  std::string x_format, y_format;
};

// A tick step and its label spacing.
struct StepChoice {
  double step = 0;
  int spacing = 0;
};

// By the size of X maximum.
StepChoice StepForX(double x_max);
// By Y maximum with its sign.
StepChoice StepForY(double y_max);
// By the range maximum - minimum.
StepChoice StepForRange(double minimum, double maximum);
// The label format that shows the step's decimals.
std::string FormatOfStep(double step);

// The scale of every curve of `file`. A file with no data shows its message
// ("Anomalie dans le fichier de courbes à restituer ") and gives false.
bool ComputeAutoScale(UserInterface& ui, const std::string& file, AutoScale& scale);

}  // namespace pluvane
