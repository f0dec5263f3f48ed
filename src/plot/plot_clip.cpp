#include "plot/plot_clip.h"

#include <algorithm>

namespace pluvane {

bool PlotWindow::Inside(double x, double y) const {
  return x_min - tolerance <= x && x <= x_max + tolerance && y_min - tolerance <= y &&
         y <= y_max + tolerance;
}

namespace {

// Narrows [t0, t1] to where p + t q stays on the inner side of one bound:
// p + t q <= r.
bool Narrow(double q, double r, double& t0, double& t1) {
  if (q == 0) return r >= 0;
  const double t = r / q;
  if (q < 0) {
    t0 = std::max(t0, t);
  } else {
    t1 = std::min(t1, t);
  }
  return t0 <= t1;
}

}  // namespace

int ClipSegment(const PlotWindow& window, double x1, double y1, double x2, double y2,
                double out_x[2], double out_y[2]) {
  const double tol = window.tolerance;
  const double dx = x2 - x1, dy = y2 - y1;
  double t0 = 0, t1 = 1;
  if (!Narrow(-dx, x1 - (window.x_min - tol), t0, t1) ||
      !Narrow(dx, (window.x_max + tol) - x1, t0, t1) ||
      !Narrow(-dy, y1 - (window.y_min - tol), t0, t1) ||
      !Narrow(dy, (window.y_max + tol) - y1, t0, t1)) {
    return 0;
  }
  int count = 0;
  if (!window.Inside(x1, y1)) {
    out_x[count] = x1 + t0 * dx;
    out_y[count] = y1 + t0 * dy;
    ++count;
  }
  if (window.Inside(x2, y2)) {
    out_x[count] = x2;
    out_y[count] = y2;
  } else {
    out_x[count] = x1 + t1 * dx;
    out_y[count] = y1 + t1 * dy;
  }
  return count + 1;
}

}  // namespace pluvane
