// Plane geometry of shapes: centres, bounds of vertices, moving and resizing
// a shape with its vertices and children, and the tests of hitting a point
// and touching a rectangle.
#pragma once

#include <functional>
#include <vector>

#include "drawing/surface_object.h"

namespace pluvane {

// ((left + right) / 2, (top + bottom) / 2), truncated to logical units.
Point Centre(const Box& box);
// The smallest box holding the points (an empty box for none).
Box BoundsOf(const std::vector<Point>& points);
// The smallest box holding both.
Box Union(const Box& a, const Box& b);
// Applies a mapping of points to the box corners, the vertices and the children.
void TransformShape(Shape& shape, const std::function<Point(Point)>& map);
void TranslateShape(Shape& shape, std::int32_t dx, std::int32_t dy);
// Maps the shape from its box onto another box.
void FitShape(Shape& shape, const Box& box);
// True when the point lies on the shape; lines within `tolerance` of a segment.
bool ShapeHit(const Shape& shape, double x, double y, double tolerance);
// True when the shape touches the rectangle (edges included).
bool ShapeTouches(const Shape& shape, const Box& rect);

}  // namespace pluvane
