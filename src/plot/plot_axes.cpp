// Ticks, labels, titles and grid of a frame's two axes.
#include <algorithm>

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "plot/number_pattern.h"
#include "plot/plot_dates.h"
#include "plot/plot_draw.h"
#include "plot/plot_font_faces.h"
#include "plot/plot_objects.h"

namespace pluvane {

namespace {

// A step so small against its range would make a tick of every pixel; such
// a scale gets no more than this many ticks or lines on an axis.
constexpr int kMostTicks = 5000;
constexpr double kTick = kTickLength;

// Box of an object as the surface holds it.
Box BoxOf(const PlotPage& page, int number) {
  const Shape* shape = page.surface.ObjectShape(number);
  return shape ? shape->box : Box{};
}

std::string LabelText(double value, const std::string& format, const CtlScale& scale) {
  if (scale.date_mode) return DayMonthText(scale.origin + RoundLong(value));
  return Trim(FormatByPattern(value, format));
}

// The X ticks and labels; returns the last label drawn, 0 if none.
int DrawXAxis(PlotPage& page, const CtlScale& scale, const PlotText& style, double dx) {
  if (scale.x_step > 1e-6 && dx > 0) {
    double x = page.left;
    for (int i = 0; x < page.right + 0.001 && i < kMostTicks; ++i, x += dx) {
      const bool long_tick = scale.x_spacing > 0 && i % scale.x_spacing == 0;
      const double half = long_tick ? kTick / 2 : kTick / 4;
      DrawStroke(page, x, page.bottom - half, x, page.bottom + half);
    }
  }
  int last = 0;
  if (scale.x_spacing <= 0 || scale.x_step <= 0 || dx <= 0) return last;
  PlotText label = style;
  label.align = kAlignCentre;
  label.angle = scale.date_mode ? 90 : 0;
  const std::int32_t y = page.CmToDeviceY(page.bottom - kTick);
  double x = page.left;
  for (int i = 0; x < page.right + 0.001 && i < kMostTicks; ++i, x += scale.x_spacing * dx) {
    label.text = LabelText(i * scale.x_step * scale.x_spacing + page.x_min, scale.x_format, scale);
    if (scale.date_mode) {
      // Turned a quarter about its top middle, the date reads upwards and
      // ends under its tick.
      const std::int32_t height = TextHeight(label.points);
      last = DrawText(page, label, page.CmToDeviceX(x) - height / 2,
                      y + TextWidth(label.text, label.points) / 2);
    } else {
      last = DrawText(page, label, page.CmToDeviceX(x), y);
    }
  }
  return last;
}

// The Y ticks and labels; returns the last label drawn, 0 if none.
int DrawYAxis(PlotPage& page, const CtlScale& scale, const PlotText& style, double dy) {
  if (scale.y_step > 0 && dy > 0) {
    double y = page.bottom;
    for (int i = 0; y < page.top + 0.001 && i < kMostTicks; ++i, y += dy) {
      const bool long_tick = scale.y_spacing > 0 && i % scale.y_spacing == 0;
      const double half = long_tick ? kTick / 2 : kTick / 4;
      DrawStroke(page, page.left - half, y, page.left + half, y);
    }
  }
  int last = 0;
  if (scale.y_spacing <= 0 || scale.y_step <= 0 || dy <= 0) return last;
  PlotText label = style;
  label.align = kAlignRight;
  label.vertical = VerticalAlign::kMiddle;
  const std::int32_t x = page.CmToDeviceX(page.left - kTick);
  double y = page.bottom;
  for (int i = 0; y < page.top + 0.001 && i < kMostTicks; ++i, y += scale.y_spacing * dy) {
    const double value = i * scale.y_step * scale.y_spacing + page.y_min;
    label.text = Trim(FormatByPattern(value, scale.y_format));
    last = DrawText(page, label, x, page.CmToDeviceY(y));
  }
  return last;
}

void DrawTitles(PlotPage& page, const CtlScale& scale, const PlotText& style, int last_x_label,
                int last_y_label) {
  if (!Trim(scale.x_title).empty()) {
    PlotText title = style;
    title.text = scale.x_title;
    title.align = kAlignRight;
    const double label_y =
        last_x_label ? page.DeviceToCmY(BoxOf(page, last_x_label).top) : page.bottom - kTick;
    DrawText(page, title, page.CmToDeviceX(page.right), page.CmToDeviceY(label_y - 0.6));
  }
  if (Trim(scale.y_title).empty()) return;
  PlotText title = style;
  title.text = scale.y_title;
  title.align = kAlignRight;
  if (scale.y_title_placement == "H") {
    title.vertical = VerticalAlign::kBottom;
    DrawText(page, title, page.CmToDeviceX(page.left - kTick / 2),
             page.CmToDeviceY(page.top + kTick));
    return;
  }
  // Along the axis, reading upwards, its end 2 cm below the frame's top and
  // its band a tick length to the left of the labels.
  title.angle = 90;
  const std::int32_t labels_left =
      last_y_label ? BoxOf(page, last_y_label).left : page.CmToDeviceX(page.left - kTick);
  const std::int32_t tick = page.CmToDeviceX(kTick) - page.CmToDeviceX(0);
  DrawText(page, title, labels_left - tick - TextHeight(title.points),
           page.CmToDeviceY(page.top_read - 2.0));
}

void DrawGrid(PlotPage& page, const CtlGrid& grid, double dx, double dy) {
  if (grid.x_every >= 1 && dx > 0) {
    SetPlotLine(page, grid.style, grid.width, grid.colour);
    const double step = grid.x_every * dx;
    double x = page.left;
    for (int i = 0; x < page.right - step + 0.001 && i < kMostTicks; ++i) {
      x += step;
      DrawStroke(page, x, page.bottom, x, page.top);
    }
  }
  // Without vertical lines the horizontal ones keep the frame's attributes.
  if (grid.y_every >= 1 && dy > 0) {
    const double step = grid.y_every * dy;
    double y = page.bottom;
    for (int i = 0; y < page.top - step + 0.001 && i < kMostTicks; ++i) {
      y += step;
      DrawStroke(page, page.left, y, page.right, y);
    }
  }
}

}  // namespace

void DrawAxes(PlotPage& page, const CtlFrame& frame, const CtlScale& scale, const CtlGrid& grid) {
  const double width = page.right - page.left, height = page.top - page.bottom;
  if (width < 1e-6 || height < 1e-6) return;
  SetPlotLine(page, frame.style, frame.width, frame.colour);
  if (page.y_max - page.y_min < 0.001) page.y_max = page.y_min + scale.y_step;
  const double x_range = page.x_max - page.x_min, y_range = page.y_max - page.y_min;
  const double dx = x_range > 0 ? width * scale.x_step / x_range : 0;
  const double dy = y_range > 0 ? height * scale.y_step / y_range : 0;
  PlotText style{"",           PlotFontFace(frame.font), scale.label_size, frame.colour, 0,
                 kAlignCentre, VerticalAlign::kTop};
  const int last_x = DrawXAxis(page, scale, style, dx);
  const int last_y = DrawYAxis(page, scale, style, dy);
  DrawTitles(page, scale, style, last_x, last_y);
  DrawGrid(page, grid, dx, dy);
  SetPlotLine(page, 6, 1, 0);
}

}  // namespace pluvane
