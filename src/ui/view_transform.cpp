#include "ui/view_transform.h"

#include <algorithm>

namespace pluvane {

ViewTransform ViewTransform::Fit(const QRectF& view, const QSize& pixels) {
  ViewTransform t;
  t.left = view.left();
  t.top = view.top();
  const double w = std::max(1, pixels.width());
  const double h = std::max(1, pixels.height());
  t.per_pixel = std::max(view.width() / w, view.height() / h);
  if (!(t.per_pixel > 0)) t.per_pixel = 1;
  return t;
}

QRectF ViewTransform::ToClient(const Box& box) const {
  return QRectF(ToClient(box.left, box.top), ToClient(box.right, box.bottom));
}

QRectF ViewTransform::Shown(const QSize& pixels) const {
  return QRectF(left, top, pixels.width() * per_pixel, pixels.height() * per_pixel);
}

}  // namespace pluvane
