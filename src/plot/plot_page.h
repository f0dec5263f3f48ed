// The state of one plot page while it is drawn, and its three coordinate
// systems: page centimetres from the page's bottom left, the scale of the
// current frame, and the logical units of the surface the plot is drawn on.
//
// A plot surface counts 1000 logical units to the centimetre (one unit is
// 0.01 mm), y downwards, its logical extent the page itself: an A4 landscape
// page is 29700 by 21000 units. The offsets of the page code
// shift the origin, so that page cm 0 is `left_offset` cm from the surface's
// left edge.
#pragma once

#include <cstdint>
#include <vector>

#include "drawing/surface.h"
#include "plot/ctl_records.h"

namespace pluvane {

// Logical units of a plot surface per page centimetre.
inline constexpr double kPlotUnitsPerCm = 1000;
// The point buffer of a curve holds at most this many points.
inline constexpr std::size_t kMaxPlotPoints = 1000001;

// The line attributes objects are created with.
struct PlotLine {
  int style = 6;
  int width = 1;  // screen pixels; 0 is the thinnest line
  std::int32_t colour = 0;
  std::int32_t fill = 0;
  bool hollow = true;
};

struct PlotPage {
  // Sets the surface's logical extent to the page, in plot units.
  PlotPage(Surface& surface, const CtlPage& page);

  Surface& surface;
  // Page extent, cm.
  double page_left = 0, page_right = 0, page_bottom = 0, page_top = 0;
  // The surface's logical extent.
  std::int32_t device_left = 0, device_top = 0, device_width = 0, device_height = 0;
  // The current frame, cm: `top` is the working top, which a title lowers;
  // `top_read` is the frame's top as the control file gives it.
  double left = 0, right = 0, bottom = 0, top = 0, top_read = 0;
  // The current scale window.
  double x_min = 0, x_max = 0, y_min = 0, y_max = 0;
  PlotLine line;
  // The point buffer of the curve being drawn, device units.
  std::vector<Point> buffer;

  std::int32_t CmToDeviceX(double cm) const;
  std::int32_t CmToDeviceY(double cm) const;
  double DeviceToCmX(double device) const;
  double DeviceToCmY(double device) const;
  // The value is first clamped to the scale window, and the clamped value is
  // written back; then it goes linearly to the frame, then to the device.
  std::int32_t ValueToDeviceX(double& value) const;
  std::int32_t ValueToDeviceY(double& value) const;

  // Stretches the surface in one direction so that one unit of X and one of Y
  // have the same length in the current frame; the frame's longer side keeps
  // its length. What resizing the viewer's window does for a section.
  void MakeScalesEqual();

  // The current frame and window from the records read.
  void SetFrame(const CtlFrame& frame);
  void SetWindow(const CtlScale& scale);
};

}  // namespace pluvane
