#include "plot/plot_objects.h"

#include <algorithm>

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "drawing/surface_object.h"

namespace pluvane {

namespace {

constexpr int kFillSolid = 0;
constexpr int kFillNone = 1;
// Width of a character, in ems.
constexpr double kCharWidth = 0.6;

// The attributes of the next object on the surface's defaults.
void ApplyLine(PlotPage& page, bool hollow, std::int32_t fill) {
  Surface& s = page.surface;
  s.SetCurrentObject(kDefaults);
  s.SetLineColor(page.line.colour);
  s.SetLineStyle(page.line.style);
  s.SetLineWidth(page.line.width);
  s.SetFillStyle(hollow ? kFillNone : kFillSolid);
  s.SetFillColor(fill);
}

}  // namespace

void SetPlotLine(PlotPage& page, int style, int width, std::int32_t colour) {
  page.line.style = style;
  page.line.width = width;
  page.line.colour = colour;
}

int DrawStroke(PlotPage& page, double x1, double y1, double x2, double y2) {
  return DrawDeviceStroke(page, Point{page.CmToDeviceX(x1), page.CmToDeviceY(y1)},
                          Point{page.CmToDeviceX(x2), page.CmToDeviceY(y2)});
}

int DrawDeviceStroke(PlotPage& page, Point a, Point b) {
  ApplyLine(page, true, page.line.fill);
  const int number = page.surface.AddObject(kKindPolyline, a.x, a.y, b.x, b.y);
  page.surface.SetObjectPoints({a, b});
  return number;
}

int DrawBox(PlotPage& page, double left, double top, double right, double bottom,
            std::int32_t fill) {
  ApplyLine(page, fill == 0, fill);
  return page.surface.AddObject(kKindRectangle, page.CmToDeviceX(left), page.CmToDeviceY(top),
                                page.CmToDeviceX(right), page.CmToDeviceY(bottom));
}

int DrawPolyObject(PlotPage& page, int kind) { return DrawPoints(page, kind, page.buffer); }

int DrawPoints(PlotPage& page, int kind, const std::vector<Point>& points) {
  if (points.empty()) return 0;
  const bool redraw = page.surface.Redraw();
  page.surface.SetRedraw(false);
  ApplyLine(page, page.line.hollow, page.line.fill);
  std::int32_t left = points.front().x, right = left;
  std::int32_t top = points.front().y, bottom = top;
  for (const Point& p : points) {
    left = std::min(left, p.x);
    right = std::max(right, p.x);
    top = std::min(top, p.y);
    bottom = std::max(bottom, p.y);
  }
  const int number = page.surface.AddObject(kind, left, top, right, bottom);
  page.surface.SetObjectPoints(points);
  if (redraw) page.surface.SetRedraw(true);
  return number;
}

int DrawEllipse(PlotPage& page, std::int32_t x1, std::int32_t y1, std::int32_t x2,
                std::int32_t y2) {
  ApplyLine(page, page.line.hollow, page.line.fill);
  return page.surface.AddObject(kKindEllipse, x1, y1, x2, y2);
}

std::int32_t TextHeight(double points) { return RoundLong(PointsToCm(points) * kPlotUnitsPerCm); }

std::int32_t TextWidth(const std::string& text, double points) {
  return RoundLong(static_cast<double>(CharCount(text)) * kCharWidth * TextHeight(points));
}

int DrawText(PlotPage& page, const PlotText& text, std::int32_t x, std::int32_t y) {
  const std::int32_t height = TextHeight(text.points);
  const std::int32_t width = TextWidth(text.text, text.points);
  std::int32_t top = y;
  if (text.vertical == VerticalAlign::kMiddle) top = y - height / 2;
  if (text.vertical == VerticalAlign::kBottom) top = y - height;
  std::int32_t left = x;
  if (text.align == kAlignRight) left = x - width;
  if (text.align == kAlignCentre) left = x - width / 2;
  Surface& s = page.surface;
  const int number = s.AddObject(kKindText, left, top, left + width, top + height);
  s.SetTextString(text.text);
  s.SetTextFontName(text.font);
  s.SetTextSize(-static_cast<double>(height));
  s.SetTextColor(text.colour);
  s.SetTextAngle(text.angle);
  s.SetTextAlign(text.align);
  return number;
}

}  // namespace pluvane
