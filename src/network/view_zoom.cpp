#include "network/view_zoom.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "drawing/object_tags.h"
#include "foundation/numbers.h"
#include "network/catalogue.h"

namespace pluvane {

bool NetworkBounds(const Surface& surface, std::int32_t& left, std::int32_t& top,
                   std::int32_t& right, std::int32_t& bottom) {
  bool any = false;
  const auto element = [](std::string_view i_name) {
    const double kind = Val(i_name);
    return kind > 0 && kind < kINameReach;
  };
  // Through the index of kinds, which the model writers then find built.
  for (const int n : surface.FindAllWhere(kTagIName, element)) {
    const Box& box = surface.ObjectShape(n)->box;
    if (!any) {
      left = box.left, top = box.top, right = box.right, bottom = box.bottom;
      any = true;
    } else {
      left = std::min(left, box.left), top = std::min(top, box.top);
      right = std::max(right, box.right), bottom = std::max(bottom, box.bottom);
    }
  }
  return any;
}

bool ZoomToBounds(Surface& surface, NetworkState& state) {
  const bool redraw = surface.Redraw();
  surface.SetRedraw(false);
  std::int32_t l = 0, t = 0, r = 0, b = 0;
  bool zoomed = false;
  if (NetworkBounds(surface, l, t, r, b)) {
    double margin = 0;
    if (surface.ScrollBars() != 0) {
      const double per_pixel = surface.ViewHeight() / std::max<std::int32_t>(state.ClientHeight, 1);
      margin = 3 * state.ClientHeight * per_pixel;
    }
    // A single point still gets a view around it.
    const double half = std::max(state.SymbolSize, 1.0);
    double left = l - margin, top = t - margin, right = r + margin, bottom = b + margin;
    if (right - left < 2) left -= half, right += half;
    if (bottom - top < 2) top -= half, bottom += half;
    zoomed = ZoomToRect(surface, state, left, top, right, bottom);
  }
  surface.SetRedraw(redraw);
  return zoomed;
}

bool ShowWholeNetwork(Surface& surface, NetworkState& state) {
  std::int32_t l = 0, t = 0, r = 0, b = 0;
  if (!NetworkBounds(surface, l, t, r, b)) return false;
  const double vl = surface.ViewLeft(), vt = surface.ViewTop();
  if (l >= vl && t >= vt && r <= vl + surface.ViewWidth() && b <= vt + surface.ViewHeight()) {
    return false;
  }
  // A margin of 5 % on each side, and a single point still gets a view around it.
  const double half = std::max(state.SymbolSize, 1.0);
  const double margin_x = std::max((r - l) * 0.05, half);
  const double margin_y = std::max((b - t) * 0.05, half);
  const double left = l - margin_x, top = t - margin_y;
  const double width = r - l + 2 * margin_x, height = b - t + 2 * margin_y;
  if (!ZoomToRect(surface, state, left, top, left + width, top + height)) return false;
  // The rectangle fits one way; the view is as long as the client asks the other
  // way, and the network stands in its middle.
  surface.SetViewLeft(left - (surface.ViewWidth() - width) / 2);
  surface.SetViewTop(top - (surface.ViewHeight() - height) / 2);
  surface.Refresh();
  return true;
}

}  // namespace pluvane
