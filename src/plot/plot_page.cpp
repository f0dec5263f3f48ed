#include "plot/plot_page.h"

#include <algorithm>
#include <cmath>

#include "foundation/numbers.h"

namespace pluvane {

namespace {

// The frame position of a value clamped to [low, high], 0 to 1; an empty
// window puts everything at its low side.
double Fraction(double& value, double low, double high) {
  value = std::clamp(value, std::min(low, high), std::max(low, high));
  return high - low != 0 ? (value - low) / (high - low) : 0;
}

}  // namespace

PlotPage::PlotPage(Surface& surface_in, const CtlPage& page) : surface(surface_in) {
  page_left = -page.left_offset;
  page_right = page.width - page.left_offset;
  page_bottom = -page.bottom_offset;
  page_top = page.height - page.bottom_offset;
  device_width = RoundLong(page.width * kPlotUnitsPerCm);
  device_height = RoundLong(page.height * kPlotUnitsPerCm);
  surface.SetScale(device_left, device_top, device_width, device_height, 16384);
}

std::int32_t PlotPage::CmToDeviceX(double cm) const {
  return RoundLong((cm - page_left) / (page_right - page_left) * device_width + device_left);
}

std::int32_t PlotPage::CmToDeviceY(double cm) const {
  return RoundLong(device_height * (page_top - cm) / (page_top - page_bottom) + device_top);
}

double PlotPage::DeviceToCmX(double device) const {
  return (device - device_left) / device_width * (page_right - page_left) + page_left;
}

double PlotPage::DeviceToCmY(double device) const {
  return page_top - (device - device_top) / device_height * (page_top - page_bottom);
}

std::int32_t PlotPage::ValueToDeviceX(double& value) const {
  return CmToDeviceX(left + Fraction(value, x_min, x_max) * (right - left));
}

std::int32_t PlotPage::ValueToDeviceY(double& value) const {
  return CmToDeviceY(bottom + Fraction(value, y_min, y_max) * (top - bottom));
}

void PlotPage::MakeScalesEqual() {
  const double width_cm = right - left, height_cm = top - bottom;
  const double x_range = x_max - x_min, y_range = y_max - y_min;
  if (width_cm <= 0 || height_cm <= 0 || x_range <= 0 || y_range <= 0) return;
  const double x_units = device_width / (page_right - page_left);   // per cm
  const double y_units = device_height / (page_top - page_bottom);  // per cm
  if (width_cm >= height_cm) {
    const double wanted = width_cm * x_units / x_range * y_range / height_cm;
    device_height = RoundLong(wanted * (page_top - page_bottom));
  } else {
    const double wanted = height_cm * y_units / y_range * x_range / width_cm;
    device_width = RoundLong(wanted * (page_right - page_left));
  }
  surface.SetScale(device_left, device_top, device_width, device_height, 16384);
}

void PlotPage::SetFrame(const CtlFrame& frame) {
  left = frame.left;
  right = frame.right;
  bottom = frame.bottom;
  top = frame.top;
  top_read = frame.top;
}

void PlotPage::SetWindow(const CtlScale& scale) {
  x_min = scale.x_min;
  x_max = scale.x_max;
  y_min = scale.y_min;
  y_max = scale.y_max;
}

}  // namespace pluvane
