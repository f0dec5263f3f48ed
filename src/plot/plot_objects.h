// The objects a plot is made of, created on the page's surface with the
// page's current line attributes: strokes (two-point polylines, in the roles
// the old line pictures had), boxes, the polyline or polygon of the point
// buffer, and texts.
//
// Sizes on a plot surface: line widths are screen pixels (0 the thinnest
// line), so that a plot keeps its weight whatever the zoom; text sizes are
// negative logical units, so that texts grow with the page when zoomed. A
// text's box is its unturned extent, estimated from the type size (height one
// em, 0.6 em a character); the view anchors it at the box's top, on the left
// (align 0), the right (1) or the middle (2), and turns it about that anchor.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "plot/plot_page.h"

namespace pluvane {

// Type size in cm of a size in points.
inline double PointsToCm(double points) { return points * 2.54 / 72; }

inline constexpr int kAlignLeft = 0;
inline constexpr int kAlignRight = 1;
inline constexpr int kAlignCentre = 2;
enum class VerticalAlign { kTop, kMiddle, kBottom };

struct PlotText {
  std::string text;
  std::string font;  // installed face
  double points = 8;
  std::int32_t colour = 0;
  double angle = 0;  // degrees, counter-clockwise
  int align = kAlignLeft;
  VerticalAlign vertical = VerticalAlign::kTop;
};

// Line attributes in place for the next objects.
void SetPlotLine(PlotPage& page, int style, int width, std::int32_t colour);

// A straight stroke between two page points, cm, or two device points.
int DrawStroke(PlotPage& page, double x1, double y1, double x2, double y2);
int DrawDeviceStroke(PlotPage& page, Point a, Point b);
// A rectangle between two page corners, cm, filled with `fill` unless 0.
int DrawBox(PlotPage& page, double left, double top, double right, double bottom,
            std::int32_t fill);
// An object of `kind` (polyline or polygon) holding the point buffer, with the
// current attributes. Returns its number, 0 for an empty buffer.
int DrawPolyObject(PlotPage& page, int kind);
// The same with other points.
int DrawPoints(PlotPage& page, int kind, const std::vector<Point>& points);
// An ellipse in device units.
int DrawEllipse(PlotPage& page, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2);
// A text with its reference point at device (x, y).
int DrawText(PlotPage& page, const PlotText& text, std::int32_t x, std::int32_t y);

// The estimated extent of a text in device units.
std::int32_t TextHeight(double points);
std::int32_t TextWidth(const std::string& text, double points);

}  // namespace pluvane
