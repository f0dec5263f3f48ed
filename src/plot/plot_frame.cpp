// Title, legend and outline of a frame, and the free comments of the page.
#include <algorithm>

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "plot/plot_draw.h"
#include "plot/plot_font_faces.h"
#include "plot/plot_objects.h"

namespace pluvane {

namespace {

// Bottom of an object, page cm, as the surface holds it.
double BottomCm(const PlotPage& page, int number) {
  const Shape* shape = page.surface.ObjectShape(number);
  return shape ? page.DeviceToCmY(shape->box.bottom) : page.top;
}

bool IsLineCurve(int kind) { return kind == 1 || kind == 9 || kind == 10 || kind == 11; }

// One legend entry at `x`, its sample's line at `y`; returns the text's bottom.
double DrawLegendEntry(PlotPage& page, const CtlFrame& frame, const CtlPlot& plot, double x,
                       double y, double text_points) {
  SetCurveStyle(page, plot);
  if (IsLineCurve(plot.kind)) {
    DrawStroke(page, x, y, x + kLegendSample, y);
  } else {
    DrawPointSymbol(page, plot.kind, page.CmToDeviceX(x + kLegendSample / 2), page.CmToDeviceY(y),
                    plot.symbol_size, plot.symbol);
  }
  PlotText text{plot.symbol, PlotFontFace(frame.font), text_points, frame.colour, 0,
                kAlignLeft,  VerticalAlign::kMiddle};
  const int number =
      DrawText(page, text, page.CmToDeviceX(x + kLegendSample + 0.1), page.CmToDeviceY(y));
  return BottomCm(page, number);
}

}  // namespace

void DrawFrameTitle(PlotPage& page, const CtlFrame& frame, const std::vector<CtlPlot>& plots,
                    bool no_legend) {
  SetPlotLine(page, frame.style, frame.width, frame.colour);
  const bool titled = !Trim(frame.title).empty();
  double free_height = page.top - 0.2;
  bool placed = false;
  if (titled) {
    PlotText title{frame.title,  PlotFontFace(frame.font), frame.text_size, frame.colour, 0,
                   kAlignCentre, VerticalAlign::kTop};
    const int number = DrawText(page, title, page.CmToDeviceX((page.left + page.right) / 2),
                                page.CmToDeviceY(page.top - 0.2));
    free_height = BottomCm(page, number);
    placed = true;
  }
  if (!no_legend) {
    const double legend_points = frame.text_size / 1.5;
    const double legend_cm = PointsToCm(legend_points);
    double x = page.left + 0.4;
    double line_y = free_height - 0.4;
    double lowest = free_height;
    for (const CtlPlot& plot : plots) {
      if (Trim(plot.symbol).empty()) continue;
      const double width =
          2 * kLegendSample + 0.1 + (static_cast<double>(CharCount(plot.symbol)) + 1) * legend_cm;
      if (x + width > page.right && x > page.left + kLegendSample) {
        x = page.left + kLegendSample;
        line_y -= 0.4;
      }
      lowest = std::min(lowest, DrawLegendEntry(page, frame, plot, x, line_y, legend_points));
      x += width;
      placed = true;
    }
    free_height = lowest;
  }
  SetPlotLine(page, frame.style, frame.width, frame.colour);
  page.top = placed ? free_height - 0.2 : page.top_read;
  if (titled) DrawBox(page, page.left, page.top_read, page.right, page.top, 0);
}

void DrawFrameBox(PlotPage& page, const std::string& outline, int style, int width,
                  std::int32_t colour, std::int32_t fill) {
  SetPlotLine(page, style, width, colour);
  if (outline == "F") {
    DrawBox(page, page.left, page.top, page.right, page.bottom, fill);
  } else if (outline == "O") {
    DrawStroke(page, page.left, page.bottom, page.right, page.bottom);
    DrawStroke(page, page.left, page.bottom, page.left, page.top);
  }
}

void DrawComments(PlotPage& page, const std::vector<CtlComment>& comments) {
  // The alignment words are read but change nothing: a comment starts at its
  // position, which is the base of the text.
  for (const CtlComment& comment : comments) {
    PlotText text{
        comment.text, PlotFontFace(comment.font), comment.size, comment.colour, comment.angle,
        kAlignLeft,   VerticalAlign::kBottom};
    DrawText(page, text, page.CmToDeviceX(comment.x), page.CmToDeviceY(comment.y));
  }
}

}  // namespace pluvane
