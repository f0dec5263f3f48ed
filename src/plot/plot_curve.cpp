// The curves of a frame: polylines and areas clipped at the scale window,
// symbols at the points, vertical bars.
#include <algorithm>

#include "foundation/errors.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "plot/plot_clip.h"
#include "plot/plot_draw.h"
#include "plot/plot_font_faces.h"
#include "plot/plot_objects.h"

namespace pluvane {

namespace {

constexpr std::int32_t kWhite = 16777215;
// Logical units of one screen pixel (96 to the inch).
constexpr double kUnitsPerPixel = 2.54 / 96 * kPlotUnitsPerCm;

bool IsLineCurve(int kind) { return kind == 1 || kind == 9 || kind == 10 || kind == 11; }

void AddPoint(PlotPage& page, double x, double y) {
  if (page.buffer.size() >= kMaxPlotPoints) {
    throw AppError(9, "L'indice n'appartient pas à la sélection");
  }
  page.buffer.push_back(Point{page.ValueToDeviceX(x), page.ValueToDeviceY(y)});
}

// The clipped polyline of a line curve into the buffer.
void FillBuffer(PlotPage& page, const std::vector<double>& x, const std::vector<double>& y,
                int count, const PlotWindow& window, int& place) {
  bool inside_before = false;
  for (int i = 0; i < count; ++i) {
    place = i + 1;
    const bool inside = window.Inside(x[i], y[i]);
    if (i == 0) {
      if (inside) AddPoint(page, x[i], y[i]);
    } else if (inside && inside_before) {
      AddPoint(page, x[i], y[i]);
    } else if (inside != inside_before) {
      double cx[2], cy[2];
      const int n = ClipSegment(window, x[i - 1], y[i - 1], x[i], y[i], cx, cy);
      for (int k = 0; k < n; ++k) AddPoint(page, cx[k], cy[k]);
    }
    inside_before = inside;
  }
}

void CloseBuffer(PlotPage& page, int kind) {
  std::vector<Point>& buffer = page.buffer;
  const Point first = buffer.front();
  if (kind == 11) {
    const std::int32_t base = page.CmToDeviceY(page.bottom);
    const Point last = buffer.back();
    if (buffer.size() + 3 > kMaxPlotPoints) {
      throw AppError(9, "L'indice n'appartient pas à la sélection");
    }
    buffer.push_back(Point{last.x, base});
    buffer.push_back(Point{first.x, base});
  } else if (buffer.size() + 1 > kMaxPlotPoints) {
    throw AppError(9, "L'indice n'appartient pas à la sélection");
  }
  buffer.push_back(first);
}

}  // namespace

std::string SymbolCharacter(const std::string& symbol) {
  const std::string text = LTrim(symbol);
  return text.empty() ? "*" : CharLeft(text, 1);
}

void SetCurveStyle(PlotPage& page, const CtlPlot& plot) {
  SetPlotLine(page, plot.style, plot.width, plot.colour);
  const double fill_word = Val(plot.fill);
  const std::int32_t solid = fill_word == 0 ? plot.colour : static_cast<std::int32_t>(fill_word);
  const int kind = plot.kind;
  const bool solid_kind = kind == 3 || kind == 5 || kind == 7 || kind == 10 || kind == 11;
  // Word 10 fills the symbols that are hollow by their kind.
  const bool filled_symbol = plot.filled != 0 && (kind == 2 || kind == 4 || kind == 6);
  page.line.hollow = !(solid_kind || filled_symbol || kind == 2);
  page.line.fill = solid_kind || filled_symbol ? solid : kind == 2 ? kWhite : 0;
}

void DrawPointSymbol(PlotPage& page, int kind, std::int32_t x, std::int32_t y, int size,
                     const std::string& symbol) {
  const std::int32_t s = RoundLong((size == 0 ? 4 : size) * kUnitsPerPixel);
  switch (kind) {
    case 2:
    case 3:
      DrawPoints(page, kKindPolygon,
                 {{x - s, y - s}, {x - s, y + s}, {x + s, y + s}, {x + s, y - s}, {x - s, y - s}});
      break;
    case 4:
    case 5:
      DrawEllipse(page, x + s, y + s, x - s, y - s);
      break;
    case 6:
    case 7:
      DrawPoints(page, kKindPolygon,
                 {{x - s, y + s}, {x + s, y + s}, {x, y - RoundLong(1.5 * s)}, {x - s, y + s}});
      break;
    case 8: {
      // The old size was s twips / 20 in points.
      PlotText text{SymbolCharacter(symbol),
                    PlotFontFace(std::string("ARIAL")),
                    (size == 0 ? 4 : size) * 0.75,
                    page.line.colour,
                    0,
                    kAlignCentre,
                    VerticalAlign::kMiddle};
      DrawText(page, text, x, y);
      break;
    }
    default:
      break;
  }
}

void PlotUcm(UserInterface& ui, PlotPage& page, const std::vector<double>& x,
             const std::vector<double>& y, int count, bool bars, const CtlPlot& plot) {
  count = std::min({count, static_cast<int>(x.size()), static_cast<int>(y.size())});
  const PlotWindow window{page.x_min, page.x_max, page.y_min, page.y_max};
  int place = 0;
  try {
    SetCurveStyle(page, plot);
    page.buffer.clear();
    if (!IsLineCurve(plot.kind)) {
      for (int i = 0; i < count; ++i) {
        place = i + 1;
        if (!window.Inside(x[i], y[i])) continue;
        double vx = x[i], vy = y[i];
        DrawPointSymbol(page, plot.kind, page.ValueToDeviceX(vx), page.ValueToDeviceY(vy),
                        plot.symbol_size, plot.symbol);
      }
    } else {
      page.buffer.reserve(
          std::min<std::size_t>(static_cast<std::size_t>(count) + 4, kMaxPlotPoints));
      FillBuffer(page, x, y, count, window, place);
      if (!page.buffer.empty()) {
        if (plot.kind != 1) CloseBuffer(page, plot.kind);
        DrawPolyObject(page, plot.kind == 1 || plot.kind == 9 ? kKindPolyline : kKindPolygon);
      }
    }
    if (bars && !(plot.symbol.find("---") != std::string::npos &&
                  plot.symbol.find('*') != std::string::npos)) {
      double base = page.y_min;
      const std::int32_t base_y = page.ValueToDeviceY(base);
      for (int i = 0; i < count; ++i) {
        place = i + 1;
        if (!window.Inside(x[i], y[i])) continue;
        double vx = x[i], vy = y[i];
        const std::int32_t px = page.ValueToDeviceX(vx);
        DrawDeviceStroke(page, Point{px, page.ValueToDeviceY(vy)}, Point{px, base_y});
      }
    }
  } catch (const AppError& error) {
    ui.ShowMessage("Module PlotUcm, erreur n° " + std::to_string(error.number()) + " : " +
                       error.description() + " ligne:" + std::to_string(place),
                   "Traçage de courbe", MessageIcon::kNone);
  }
  page.buffer.clear();
}

}  // namespace pluvane
