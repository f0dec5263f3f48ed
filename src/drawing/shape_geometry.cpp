#include "drawing/shape_geometry.h"

#include <algorithm>
#include <cmath>

#include "foundation/numbers.h"

namespace pluvane {

namespace {

// The segments a line-like shape is drawn with: its vertices, or the diagonal
// of its box when it has none.
std::vector<Point> LineVertices(const Shape& shape) {
  if (shape.points.size() >= 2) return shape.points;
  return {Point{shape.box.left, shape.box.top}, Point{shape.box.right, shape.box.bottom}};
}

double SegmentDistance(double x, double y, Point a, Point b) {
  const double dx = static_cast<double>(b.x) - a.x;
  const double dy = static_cast<double>(b.y) - a.y;
  const double length2 = dx * dx + dy * dy;
  double t = length2 > 0 ? ((x - a.x) * dx + (y - a.y) * dy) / length2 : 0;
  t = std::clamp(t, 0.0, 1.0);
  return std::hypot(x - (a.x + t * dx), y - (a.y + t * dy));
}

// Liang-Barsky clipping of the segment against the rectangle.
bool SegmentTouches(Point a, Point b, const Box& r) {
  double t0 = 0;
  double t1 = 1;
  const double dx = static_cast<double>(b.x) - a.x;
  const double dy = static_cast<double>(b.y) - a.y;
  const double p[4] = {-dx, dx, -dy, dy};
  const double q[4] = {static_cast<double>(a.x) - r.left, static_cast<double>(r.right) - a.x,
                       static_cast<double>(a.y) - r.top, static_cast<double>(r.bottom) - a.y};
  for (int i = 0; i < 4; ++i) {
    if (p[i] == 0) {
      if (q[i] < 0) return false;
    } else {
      const double t = q[i] / p[i];
      if (p[i] < 0) {
        t0 = std::max(t0, t);
      } else {
        t1 = std::min(t1, t);
      }
      if (t0 > t1) return false;
    }
  }
  return true;
}

}  // namespace

Point Centre(const Box& box) {
  return Point{static_cast<std::int32_t>((static_cast<std::int64_t>(box.left) + box.right) / 2),
               static_cast<std::int32_t>((static_cast<std::int64_t>(box.top) + box.bottom) / 2)};
}

Box BoundsOf(const std::vector<Point>& points) {
  if (points.empty()) return Box{};
  Box box{points[0].x, points[0].y, points[0].x, points[0].y};
  for (const Point& p : points) {
    box.left = std::min(box.left, p.x);
    box.top = std::min(box.top, p.y);
    box.right = std::max(box.right, p.x);
    box.bottom = std::max(box.bottom, p.y);
  }
  return box;
}

Box Union(const Box& a, const Box& b) {
  return Box{std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
             std::max(a.bottom, b.bottom)};
}

void TransformShape(Shape& shape, const std::function<Point(Point)>& map) {
  const Point a = map(Point{shape.box.left, shape.box.top});
  const Point b = map(Point{shape.box.right, shape.box.bottom});
  shape.box = Box{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
  for (Point& p : shape.points) p = map(p);
  for (SurfaceObject& child : shape.children) TransformShape(child.shape, map);
}

void TranslateShape(Shape& shape, std::int32_t dx, std::int32_t dy) {
  TransformShape(shape, [dx, dy](Point p) {
    return Point{ToLong(static_cast<double>(p.x) + dx), ToLong(static_cast<double>(p.y) + dy)};
  });
}

void FitShape(Shape& shape, const Box& box) {
  const Box from = shape.box;
  auto axis = [](std::int32_t v, std::int32_t lo, std::int32_t hi, std::int32_t new_lo,
                 std::int32_t new_hi) {
    if (hi == lo) return ToLong(static_cast<double>(v) - lo + new_lo);
    const double ratio = (static_cast<double>(v) - lo) / (static_cast<double>(hi) - lo);
    return RoundLong(new_lo + ratio * (static_cast<double>(new_hi) - new_lo));
  };
  TransformShape(shape, [&](Point p) {
    return Point{axis(p.x, from.left, from.right, box.left, box.right),
                 axis(p.y, from.top, from.bottom, box.top, box.bottom)};
  });
  shape.box = box;
}

bool ShapeHit(const Shape& shape, double x, double y, double tolerance) {
  if (IsLineKind(shape.kind)) {
    const double reach = std::max(tolerance, shape.line_width < 0 ? -shape.line_width / 2 : 0.0);
    const std::vector<Point> vertices = LineVertices(shape);
    for (std::size_t i = 1; i < vertices.size(); ++i)
      if (SegmentDistance(x, y, vertices[i - 1], vertices[i]) <= reach) return true;
    return false;
  }
  const Box& b = shape.box;
  if (shape.kind == kKindEllipse) {
    const double rx = (static_cast<double>(b.right) - b.left) / 2 + tolerance;
    const double ry = (static_cast<double>(b.bottom) - b.top) / 2 + tolerance;
    if (rx <= 0 || ry <= 0) return false;
    const double nx = (x - (static_cast<double>(b.left) + b.right) / 2) / rx;
    const double ny = (y - (static_cast<double>(b.top) + b.bottom) / 2) / ry;
    return nx * nx + ny * ny <= 1;
  }
  return x >= b.left - tolerance && x <= b.right + tolerance && y >= b.top - tolerance &&
         y <= b.bottom + tolerance;
}

bool ShapeTouches(const Shape& shape, const Box& rect) {
  if (IsLineKind(shape.kind)) {
    const std::vector<Point> vertices = LineVertices(shape);
    for (std::size_t i = 1; i < vertices.size(); ++i)
      if (SegmentTouches(vertices[i - 1], vertices[i], rect)) return true;
    return false;
  }
  const Box& b = shape.box;
  return b.left <= rect.right && b.right >= rect.left && b.top <= rect.bottom &&
         b.bottom >= rect.top;
}

}  // namespace pluvane
