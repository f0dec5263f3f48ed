// Cutting a curve's segment by the scale window of its frame.
#pragma once

namespace pluvane {

struct PlotWindow {
  double x_min = 0, x_max = 0, y_min = 0, y_max = 0;
  double tolerance = 1e-6;
  // Inside, the tolerance given on every side.
  bool Inside(double x, double y) const;
};

// The points to add to a curve for the segment (x1, y1) to (x2, y2) of which
// one end is inside the window: leaving, the crossing (1); entering, the
// crossing and the inner end (2). Crossings come by linear interpolation.
// Both ends inside gives the second end (1); 0 when nothing of the segment is
// inside.
int ClipSegment(const PlotWindow& window, double x1, double y1, double x2, double y2,
                double out_x[2], double out_y[2]);

}  // namespace pluvane
