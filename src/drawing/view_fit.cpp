#include "drawing/view_fit.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace pluvane {

double ZoomFactorOfView(const Surface& surface) {
  const double w = surface.LogicWidth() > 0 ? surface.ViewWidth() / surface.LogicWidth() : 1;
  const double h = surface.LogicHeight() > 0 ? surface.ViewHeight() / surface.LogicHeight() : 1;
  return std::max(w, h);
}

bool ZoomToRect(Surface& surface, DrawingSettings& state, double left, double top, double right,
                double bottom) {
  const double dx = std::fabs(right - left), dy = std::fabs(bottom - top);
  if (dx < 2 || dy < 2) return false;
  const double client_w = std::max<std::int32_t>(state.ClientWidth, 1);
  const double client_h = std::max<std::int32_t>(state.ClientHeight, 1);
  // Logical units per pixel that fit the rectangle in both directions.
  const double per_pixel = std::max(dy / client_h, dx / client_w);
  if (state.LogicWidth * per_pixel >= std::numeric_limits<std::int32_t>::max()) return false;
  surface.SetAutoScale(0);
  surface.SetViewLeft(std::min(left, right));
  surface.SetViewTop(std::min(top, bottom));
  surface.SetViewWidth(per_pixel * client_w);
  surface.SetViewHeight(per_pixel * client_h);
  state.ZoomFactor = ZoomFactorOfView(surface);
  surface.Refresh();
  return true;
}

void ZoomToAll(Surface& surface, DrawingSettings& state) {
  ZoomToRect(surface, state, 0, 0, state.LogicWidth, state.LogicHeight);
}

}  // namespace pluvane
