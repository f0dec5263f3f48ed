#include "ui/surface_painter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace pluvane {

namespace {

// Pixels around the view in which objects are still visited: wide lines,
// markers and texts reach beyond their box.
constexpr double kVisitMargin = 16;
// Above this many objects in view, lines are drawn without antialiasing.
constexpr std::size_t kMostSmoothObjects = 20000;
// Closer grid lines than this many pixels are not drawn.
constexpr double kFinestGrid = 4;
constexpr double kDefaultMarkerPixels = 8;
const QColor kSelectionColor(0, 120, 215);

Qt::PenStyle PenStyleOf(int style) {
  switch (style) {
    case 1:
      return Qt::DotLine;
    case 2:
      return Qt::DashLine;
    case 3:
      return Qt::DashDotLine;
    case 4:
      return Qt::DashDotDotLine;
    case 5:
      return Qt::NoPen;
    default:
      return Qt::SolidLine;
  }
}

// Fill styles as the drawing numbers them: 0 solid, 1 none, then hatches.
QBrush BrushOf(const Shape& shape) {
  const QColor color = ColorOfBgr(shape.fill_color);
  switch (shape.fill_style) {
    case 0:
      return QBrush(color);
    case 2:
      return QBrush(color, Qt::HorPattern);
    case 3:
      return QBrush(color, Qt::VerPattern);
    case 4:
      return QBrush(color, Qt::BDiagPattern);
    case 5:
      return QBrush(color, Qt::FDiagPattern);
    case 6:
      return QBrush(color, Qt::CrossPattern);
    case 7:
      return QBrush(color, Qt::DiagCrossPattern);
    default:
      return Qt::NoBrush;
  }
}

// The angle of a point seen from the centre of a box, in degrees counter-
// clockwise with y growing downwards.
double AngleFromCentre(const QRectF& box, QPointF p) {
  const QPointF c = box.center();
  return std::atan2(c.y() - p.y(), p.x() - c.x()) * 180 / std::numbers::pi;
}

// The point at half the length of a polyline and the direction there.
bool Midway(const QPolygonF& line, QPointF& at, QPointF& direction) {
  double total = 0;
  for (int i = 1; i < line.size(); ++i) total += QLineF(line[i - 1], line[i]).length();
  if (total <= 0) return false;
  double rest = total / 2;
  for (int i = 1; i < line.size(); ++i) {
    const QLineF segment(line[i - 1], line[i]);
    const double length = segment.length();
    if (length <= 0) continue;
    if (rest <= length) {
      at = segment.pointAt(rest / length);
      direction = (line[i] - line[i - 1]) / length;
      return true;
    }
    rest -= length;
  }
  return false;
}

}  // namespace

QColor ColorOfBgr(std::int32_t color) {
  const auto c = static_cast<std::uint32_t>(color);
  return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
}

double SurfacePainter::PixelsOf(double size) const { return size < 0 ? t_.Pixels(-size) : size; }

QPen SurfacePainter::PenOf(const Shape& shape) const {
  QPen pen(ColorOfBgr(shape.line_color));
  // Width 0 is the thinnest line the device has.
  pen.setWidthF(shape.line_width == 0 ? 0 : std::max(PixelsOf(shape.line_width), 0.0));
  pen.setStyle(PenStyleOf(shape.line_style));
  pen.setCapStyle(Qt::FlatCap);
  pen.setJoinStyle(Qt::RoundJoin);
  return pen;
}

void SurfacePainter::Paint(const Surface& surface, QPainter& painter, const QRectF& view,
                           const QSize& pixels) {
  t_ = ViewTransform::Fit(view, pixels);
  page_color_ = surface.PageColor();
  painted_ = 0;
  painter.save();
  painter.setClipRect(QRect(QPoint(0, 0), pixels));
  PaintPage(surface, painter, pixels);
  PaintBackground(surface, painter);
  if (options.show_grid) PaintGrid(surface, painter, pixels);

  index_.Update(surface);
  const QRectF shown = t_.Shown(pixels);
  const double margin = kVisitMargin * t_.per_pixel;
  const std::vector<int> numbers = index_.Query(shown.left() - margin, shown.top() - margin,
                                                shown.right() + margin, shown.bottom() + margin);
  painter.setRenderHint(QPainter::Antialiasing,
                        options.vector_output || numbers.size() <= kMostSmoothObjects);
  painter.setRenderHint(QPainter::TextAntialiasing);
  for (int n : numbers) {
    if (const Shape* shape = surface.ObjectShape(n)) PaintShape(painter, *shape);
    ++painted_;
  }
  if (options.show_selection) {
    for (int n : numbers)
      if (surface.IsSelected(n)) PaintSelection(painter, *surface.ObjectShape(n));
  }
  painter.restore();
}

void SurfacePainter::PaintPage(const Surface& surface, QPainter& painter, const QSize& pixels) {
  painter.fillRect(QRect(QPoint(0, 0), pixels), ColorOfBgr(surface.BackColor1()));
  const Box page{surface.LogicLeft(), surface.LogicTop(),
                 surface.LogicLeft() + surface.LogicWidth(),
                 surface.LogicTop() + surface.LogicHeight()};
  painter.fillRect(t_.ToClient(page), ColorOfBgr(surface.PageColor()));
}

// The plan lies from the page origin: in mode 0 at its own aspect over the
// logical width times the scale, in mode 4 stretched over the logical extent
// times the scale.
void SurfacePainter::PaintBackground(const Surface& surface, QPainter& painter) {
  const std::string& name = surface.BackgroundPicture();
  if (name.empty()) return;
  const QSize natural = pictures_.NaturalSize(name);
  if (natural.isEmpty()) return;
  const double scale = surface.BackgroundScale() > 0 ? surface.BackgroundScale() : 1;
  const double width = surface.LogicWidth() * scale;
  const double height = surface.BackgroundMode() == 4 ? surface.LogicHeight() * scale
                                                      : width * natural.height() / natural.width();
  const QRectF target(t_.ToClient(surface.LogicLeft(), surface.LogicTop()),
                      QSizeF(t_.Pixels(width), t_.Pixels(height)));
  painter.save();
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  pictures_.Draw(painter, name, target, false);
  painter.restore();
}

void SurfacePainter::PaintGrid(const Surface& surface, QPainter& painter, const QSize& pixels) {
  if (surface.GridOn() == 0) return;
  const double step_x = surface.GridStepX();
  const double step_y = surface.GridStepY();
  if (step_x <= 0 || step_y <= 0) return;
  if (t_.Pixels(step_x) < kFinestGrid || t_.Pixels(step_y) < kFinestGrid) return;
  const QRectF shown = t_.Shown(pixels);
  const QRectF page(surface.LogicLeft(), surface.LogicTop(), surface.LogicWidth(),
                    surface.LogicHeight());
  const QRectF area = shown.intersected(page);
  if (area.isEmpty()) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QPen(QColor(200, 200, 200), 0));
  const double x0 = page.left() + std::ceil((area.left() - page.left()) / step_x) * step_x;
  for (double x = x0; x <= area.right(); x += step_x) {
    const double px = t_.ToClientX(x);
    painter.drawLine(QPointF(px, t_.ToClientY(area.top())),
                     QPointF(px, t_.ToClientY(area.bottom())));
  }
  const double y0 = page.top() + std::ceil((area.top() - page.top()) / step_y) * step_y;
  for (double y = y0; y <= area.bottom(); y += step_y) {
    const double py = t_.ToClientY(y);
    painter.drawLine(QPointF(t_.ToClientX(area.left()), py),
                     QPointF(t_.ToClientX(area.right()), py));
  }
  painter.restore();
}

void SurfacePainter::PaintShape(QPainter& painter, const Shape& shape) {
  if (shape.hidden) return;
  const QRectF box = t_.ToClient(shape.box).normalized();
  if (shape.kind == kKindGroup) {
    std::vector<const Shape*> children;
    for (const SurfaceObject& child : shape.children) children.push_back(&child.shape);
    std::stable_sort(children.begin(), children.end(),
                     [](const Shape* a, const Shape* b) { return a->layer < b->layer; });
    for (const Shape* child : children) PaintShape(painter, *child);
    return;
  }
  // Level of detail: what would fit in a pixel is a dot.
  if (shape.kind != kKindText && box.width() < 1 && box.height() < 1) {
    painter.fillRect(QRectF(std::floor(box.center().x()), std::floor(box.center().y()), 1, 1),
                     ColorOfBgr(shape.line_color));
    return;
  }
  painter.setPen(PenOf(shape));
  painter.setBrush(BrushOf(shape));
  QPolygonF vertices;
  for (const Point& p : shape.points) vertices << t_.ToClient(p.x, p.y);
  if (vertices.size() < 2 && IsLineKind(shape.kind) && shape.kind != kKindArc)
    vertices = QPolygonF({box.topLeft(), box.bottomRight()});
  switch (shape.kind) {
    case kKindRectangle:
      painter.drawRect(box);
      break;
    case kKindEllipse:
      painter.drawEllipse(box);
      break;
    case kKindArc:
    case kKindPie:
    case kKindChord: {
      // Two points give the start and end rays; without them, a quarter.
      double start = 0, sweep = 90;
      if (vertices.size() >= 2) {
        start = AngleFromCentre(box, vertices[0]);
        sweep = AngleFromCentre(box, vertices[1]) - start;
        if (sweep <= 0) sweep += 360;
      }
      const int a = static_cast<int>(std::lround(start * 16));
      const int s = static_cast<int>(std::lround(sweep * 16));
      if (shape.kind == kKindArc) painter.drawArc(box, a, s);
      if (shape.kind == kKindPie) painter.drawPie(box, a, s);
      if (shape.kind == kKindChord) painter.drawChord(box, a, s);
      break;
    }
    case kKindPolygon:
      painter.drawPolygon(vertices);
      break;
    case kKindBezier:
      if (vertices.size() >= 4 && (vertices.size() - 1) % 3 == 0) {
        QPainterPath path(vertices[0]);
        for (int i = 1; i + 2 < vertices.size(); i += 3)
          path.cubicTo(vertices[i], vertices[i + 1], vertices[i + 2]);
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(path);
      } else {
        painter.drawPolyline(vertices);
      }
      break;
    case kKindLine:
    case kKindPolyline:
      painter.drawPolyline(vertices);
      break;
    case kKindDimension:
      PaintDimension(painter, shape, vertices);
      break;
    case kKindLink:
      painter.drawPolyline(vertices);
      PaintMarkers(painter, shape, vertices);
      break;
    case kKindText:
      PaintText(painter, shape, box);
      break;
    case kKindPicture:
      if (!pictures_.Draw(painter, shape.picture, box, !options.vector_output)) {
        // An unreadable picture still shows where the symbol stands.
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(box);
      }
      break;
    default:
      painter.drawRect(box);
      break;
  }
}

// A dimension line: the line, an arrow head at each end, and its length in
// logical units above its middle, along it.
void SurfacePainter::PaintDimension(QPainter& painter, const Shape& shape,
                                    const QPolygonF& line) {
  painter.drawPolyline(line);
  if (line.size() < 2) return;
  const QPointF a = line.front(), b = line.back();
  const double length = QLineF(a, b).length();
  if (length < 4) return;
  const QPointF along = (b - a) / length;
  const QPointF across(-along.y(), along.x());
  constexpr double kHead = 8;
  painter.save();
  painter.setBrush(ColorOfBgr(shape.line_color));
  painter.drawPolygon(QPolygonF({a, a + along * kHead + across * (kHead / 3),
                                 a + along * kHead - across * (kHead / 3)}));
  painter.drawPolygon(QPolygonF({b, b - along * kHead + across * (kHead / 3),
                                 b - along * kHead - across * (kHead / 3)}));
  double dx = 0, dy = 0;
  if (shape.points.size() >= 2) {
    dx = static_cast<double>(shape.points.back().x) - shape.points.front().x;
    dy = static_cast<double>(shape.points.back().y) - shape.points.front().y;
  }
  const QString label = QString::number(std::lround(std::hypot(dx, dy)));
  double angle = std::atan2(b.y() - a.y(), b.x() - a.x()) * 180 / std::numbers::pi;
  if (angle > 90 || angle < -90) angle += 180;  // never upside down
  painter.translate((a + b) / 2);
  painter.rotate(angle);
  painter.setPen(ColorOfBgr(shape.line_color));
  const QFontMetricsF metrics(painter.font(), painter.device());
  painter.drawText(QPointF(-metrics.horizontalAdvance(label) / 2, -metrics.descent() - 2), label);
  painter.restore();
}

// Sizes of texts: negative in logical units, so that they follow the zoom,
// positive in points. Align 0 left, 1 right, 2 centred, from the box's top;
// the angle turns the text counter-clockwise about that anchor.
void SurfacePainter::PaintText(QPainter& painter, const Shape& shape, const QRectF& box) {
  const TextFormat& text = shape.text;
  if (text.string.empty()) return;
  QFont font(text.font.empty() ? QString("Arial") : QString::fromStdString(text.font));
  if (text.size < 0) {
    const double pixels = t_.Pixels(-text.size);
    if (pixels < 1) return;
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(std::min(pixels, 4000.0)))));
  } else {
    font.setPointSizeF(text.size > 0 ? text.size : 10);
  }
  font.setBold(text.bold);
  font.setItalic(text.italic);
  font.setUnderline(text.underline);
  font.setStrikeOut(text.strike);
  const QString string = QString::fromStdString(text.string);
  painter.save();
  painter.setFont(font);
  const QFontMetricsF metrics(font, painter.device());
  const QRectF extent = metrics.boundingRect(QRectF(0, 0, 1e6, 1e6), Qt::AlignLeft, string);
  QPointF anchor = box.topLeft();
  int flags = Qt::AlignLeft;
  double x = 0;
  if (text.align == 1) {
    anchor = box.topRight(), flags = Qt::AlignRight, x = -extent.width();
  } else if (text.align == 2) {
    anchor = QPointF(box.center().x(), box.top()), flags = Qt::AlignHCenter,
    x = -extent.width() / 2;
  }
  painter.translate(anchor);
  if (text.angle != 0) painter.rotate(-text.angle);
  const QRectF area(x, 0, extent.width(), extent.height());
  if (text.fill_back) {
    painter.fillRect(
        area, shape.fill_style == 1 ? ColorOfBgr(page_color_) : ColorOfBgr(shape.fill_color));
  }
  painter.setPen(ColorOfBgr(text.color));
  painter.drawText(area, flags, string);
  painter.restore();
}

// Marker 0 at the first end, 1 at the last, the third at half the length;
// shape 5 is an arrow head pointing downstream (outwards at the ends), any
// other shape a disc. Sizes: width across, height along, negative in logical
// units, 0 a few pixels. The head is filled with the marker's fill colour, or
// its colour when the fill is black.
void SurfacePainter::PaintMarkers(QPainter& painter, const Shape& shape, const QPolygonF& line) {
  if (line.size() < 2) return;
  for (int slot = 0; slot < 3; ++slot) {
    const Marker& marker = shape.markers[slot];
    if (marker.shape == 0) continue;
    QPointF at, direction;
    if (slot == 0) {
      at = line.front();
      const QLineF s(line[1], line[0]);
      if (s.length() <= 0) continue;
      direction = (line[0] - line[1]) / s.length();
    } else if (slot == 1) {
      at = line.back();
      const QLineF s(line[line.size() - 2], line.back());
      if (s.length() <= 0) continue;
      direction = (line.back() - line[line.size() - 2]) / s.length();
    } else if (!Midway(line, at, direction)) {
      continue;
    }
    double across = marker.width != 0 ? PixelsOf(marker.width) : kDefaultMarkerPixels;
    double along = marker.height != 0 ? PixelsOf(marker.height) : across;
    across = std::abs(across), along = std::abs(along);
    if (across < 0.5 && along < 0.5) continue;
    painter.setPen(QPen(ColorOfBgr(marker.color), 0));
    painter.setBrush(ColorOfBgr(marker.fill != 0 ? marker.fill : marker.color));
    if (marker.shape == 5) {
      // The middle arrow stands centred on its point.
      const QPointF tip = slot == 2 ? at + direction * (along / 2) : at;
      const QPointF base = tip - direction * along;
      const QPointF normal(-direction.y(), direction.x());
      painter.drawPolygon(
          QPolygonF({tip, base + normal * (across / 2), base - normal * (across / 2)}));
    } else {
      painter.drawEllipse(at, across / 2, across / 2);
    }
  }
}

void SurfacePainter::PaintSelection(QPainter& painter, const Shape& shape) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  QPen pen(kSelectionColor, 0, Qt::DashLine);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  const QRectF box = t_.ToClient(shape.box).normalized().adjusted(-2, -2, 2, 2);
  constexpr double kHandle = 5;
  std::vector<QPointF> handles;
  if (shape.kind == kKindLink && shape.points.size() >= 2) {
    for (const Point& p : shape.points) handles.push_back(t_.ToClient(p.x, p.y));
  } else {
    painter.drawRect(box);
    handles = {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()};
  }
  painter.setPen(QPen(kSelectionColor, 0));
  painter.setBrush(Qt::white);
  for (const QPointF& h : handles)
    painter.drawRect(QRectF(h.x() - kHandle / 2, h.y() - kHandle / 2, kHandle, kHandle));
  painter.restore();
}

}  // namespace pluvane
