// Between logical units of the drawing and device pixels. The same number of
// logical units per pixel across and down, so that the drawing keeps its
// aspect: a view rectangle is fitted into the pixels from its left and top,
// and the pixels may show more than it on one side.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

#include "drawing/surface_object.h"

namespace pluvane {

struct ViewTransform {
  double left = 0;
  double top = 0;
  double per_pixel = 1;  // logical units per pixel

  // The view rectangle fitted into the pixels.
  static ViewTransform Fit(const QRectF& view, const QSize& pixels);

  double ToLogicX(double x) const { return left + x * per_pixel; }
  double ToLogicY(double y) const { return top + y * per_pixel; }
  double ToClientX(double x) const { return (x - left) / per_pixel; }
  double ToClientY(double y) const { return (y - top) / per_pixel; }
  QPointF ToClient(double x, double y) const { return {ToClientX(x), ToClientY(y)}; }
  QRectF ToClient(const Box& box) const;
  // Logical length to pixels.
  double Pixels(double logical) const { return logical / per_pixel; }
  // The logical rectangle that the pixels show.
  QRectF Shown(const QSize& pixels) const;
};

}  // namespace pluvane
