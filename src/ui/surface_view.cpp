#include "ui/surface_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <climits>
#include <cmath>

#include "drawing/surface_guards.h"

namespace pluvane {

namespace {

// A wheel notch zooms by this factor.
constexpr double kWheelFactor = 1.25;
// A press that moves less than this many pixels is a click, not a drag.
constexpr double kClickPixels = 3;
// Dragged selections show at most this many outlines.
constexpr int kMostGhosts = 500;
const QColor kGestureColor(0, 120, 215);

int ClampToInt(double value) {
  return static_cast<int>(
      std::clamp(value, static_cast<double>(INT_MIN / 2), static_cast<double>(INT_MAX / 2)));
}

}  // namespace

int ButtonCode(Qt::MouseButtons buttons) {
  int code = 0;
  if (buttons & Qt::LeftButton) code |= 1;
  if (buttons & Qt::RightButton) code |= 2;
  if (buttons & Qt::MiddleButton) code |= 4;
  return code;
}

int ShiftCode(Qt::KeyboardModifiers modifiers) {
  int code = 0;
  if (modifiers & Qt::ShiftModifier) code |= 1;
  if (modifiers & Qt::ControlModifier) code |= 2;
  if (modifiers & Qt::AltModifier) code |= 4;
  return code;
}

int KeyCode(int qt_key, Qt::KeyboardModifiers modifiers) {
  if ((modifiers & Qt::KeypadModifier) && qt_key >= Qt::Key_0 && qt_key <= Qt::Key_9)
    return 96 + (qt_key - Qt::Key_0);
  if (qt_key >= Qt::Key_A && qt_key <= Qt::Key_Z) return 'A' + (qt_key - Qt::Key_A);
  if (qt_key >= Qt::Key_0 && qt_key <= Qt::Key_9) return '0' + (qt_key - Qt::Key_0);
  if (qt_key >= Qt::Key_F1 && qt_key <= Qt::Key_F24) return 112 + (qt_key - Qt::Key_F1);
  switch (qt_key) {
    case Qt::Key_Left:
      return 37;
    case Qt::Key_Up:
      return 38;
    case Qt::Key_Right:
      return 39;
    case Qt::Key_Down:
      return 40;
    case Qt::Key_Escape:
      return 27;
    case Qt::Key_Delete:
      return 46;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return 13;
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Tab:
      return 9;
    case Qt::Key_Space:
      return 32;
    case Qt::Key_Insert:
      return 45;
    case Qt::Key_Home:
      return 36;
    case Qt::Key_End:
      return 35;
    case Qt::Key_PageUp:
      return 33;
    case Qt::Key_PageDown:
      return 34;
    case Qt::Key_Shift:
      return 16;
    case Qt::Key_Control:
      return 17;
    case Qt::Key_Alt:
      return 18;
    default:
      return 0;
  }
}

SurfaceView::SurfaceView(Surface& surface, QWidget* parent)
    : QAbstractScrollArea(parent), surface_(surface) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setMouseTracking(true);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  listener_ = surface_.AddListener([this] { OnSurfaceChanged(); });
  SyncScrollBars();
}

SurfaceView::~SurfaceView() { surface_.RemoveListener(listener_); }

ViewTransform SurfaceView::Transform() const {
  return ViewTransform::Fit(
      QRectF(surface_.ViewLeft(), surface_.ViewTop(), surface_.ViewWidth(), surface_.ViewHeight()),
      viewport()->size());
}

int SurfaceView::ClientWidth() const { return viewport()->width(); }
int SurfaceView::ClientHeight() const { return viewport()->height(); }

void SurfaceView::OnSurfaceChanged() {
  SyncScrollBars();
  Invalidate();
  emit SurfaceChanged();
}

void SurfaceView::Invalidate() {
  frame_stale_ = true;
  viewport()->update();
}

int SurfaceView::HitTest(QPointF client) {
  const ViewTransform t = Transform();
  return surface_.HitTest(t.ToLogicX(client.x()), t.ToLogicY(client.y()), kHitPixels * t.per_pixel);
}

void SurfaceView::SetRubberLine(double x, double y) {
  rubber_start_ = QPointF(x, y);
  rubber_box_ = false;
  viewport()->update();
}

void SurfaceView::SetRubberBox(double x, double y) {
  SetRubberLine(x, y);
  rubber_box_ = true;
}

void SurfaceView::ClearRubberLine() {
  rubber_start_.reset();
  viewport()->update();
}

void SurfaceView::SetRubberShape(int kind, std::vector<QPointF> points) {
  rubber_kind_ = kind;
  rubber_points_ = std::move(points);
  viewport()->update();
}

void SurfaceView::ClearRubberShape() {
  rubber_kind_ = 0;
  rubber_points_.clear();
  viewport()->update();
}

void SurfaceView::ZoomAbout(QPointF client, double factor) {
  if (!(factor > 0)) return;
  const ViewTransform t = Transform();
  const double per_pixel = t.per_pixel * factor;
  // Neither closer than a thousandth of a unit a pixel nor wider than a
  // thousand logical spaces.
  const double widest = std::max<double>(surface_.LogicWidth(), 1) * 1000;
  if (per_pixel < 1e-3 || per_pixel * ClientWidth() > widest) return;
  const double x = t.ToLogicX(client.x()), y = t.ToLogicY(client.y());
  surface_.SetAutoScale(0);
  surface_.SetViewLeft(x - client.x() * per_pixel);
  surface_.SetViewTop(y - client.y() * per_pixel);
  surface_.SetViewWidth(std::max(1, ClientWidth()) * per_pixel);
  surface_.SetViewHeight(std::max(1, ClientHeight()) * per_pixel);
  SyncScrollBars();
  Invalidate();
  emit ViewChanged();
}

void SurfaceView::SyncScrollBars() {
  if (syncing_) return;
  syncing_ = true;
  const Qt::ScrollBarPolicy policy =
      surface_.ScrollBars() == 2 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff;
  setHorizontalScrollBarPolicy(policy);
  setVerticalScrollBarPolicy(policy);
  const ViewTransform t = Transform();
  // The bars run over the logical space, widened to hold the view.
  auto sync = [&](QScrollBar* bar, double logic_start, double logic_size, double view_start,
                  int page) {
    const double start = std::min(logic_start, view_start);
    const double end = std::max(logic_start + logic_size, view_start + page * t.per_pixel);
    const int value = ClampToInt((view_start - start) / t.per_pixel);
    const int maximum = std::max(value, ClampToInt((end - start) / t.per_pixel) - page);
    bar->setRange(0, maximum);
    bar->setPageStep(std::max(1, page));
    bar->setSingleStep(std::max(1, page / 20));
    bar->setValue(value);
  };
  sync(horizontalScrollBar(), surface_.LogicLeft(), surface_.LogicWidth(), surface_.ViewLeft(),
       ClientWidth());
  sync(verticalScrollBar(), surface_.LogicTop(), surface_.LogicHeight(), surface_.ViewTop(),
       ClientHeight());
  syncing_ = false;
}

void SurfaceView::scrollContentsBy(int dx, int dy) {
  if (syncing_) return;
  const double per_pixel = Transform().per_pixel;
  surface_.SetViewLeft(surface_.ViewLeft() - dx * per_pixel);
  surface_.SetViewTop(surface_.ViewTop() - dy * per_pixel);
  Invalidate();
  emit ViewChanged();
}

void SurfaceView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  SyncScrollBars();
  Invalidate();
  emit ClientResized(ClientWidth(), ClientHeight());
}

void SurfaceView::paintEvent(QPaintEvent*) {
  const qreal ratio = devicePixelRatioF();
  const QSize pixels = viewport()->size();
  // While the surface holds its painting, the last frame stands.
  const bool hold = !surface_.Redraw() && !frame_.isNull();
  if (!hold && (frame_stale_ || frame_.size() != pixels * ratio)) {
    frame_ = QImage(pixels * ratio, QImage::Format_ARGB32_Premultiplied);
    frame_.setDevicePixelRatio(ratio);
    QPainter into(&frame_);
    painter_.Paint(surface_, into,
                   QRectF(surface_.ViewLeft(), surface_.ViewTop(), surface_.ViewWidth(),
                          surface_.ViewHeight()),
                   pixels);
    frame_stale_ = false;
  }
  QPainter painter(viewport());
  painter.drawImage(QPointF(0, 0), frame_);
  PaintOverlay(painter);
}

QRectF SurfaceView::GestureRect() const { return QRectF(press_, pointer_).normalized(); }

void SurfaceView::SetHighlight(std::vector<QPointF> points, std::int32_t color, double width,
                               int style) {
  highlight_ = std::move(points);
  highlight_width_ = width;
  highlight_pen_ = QPen(QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF), 1,
                        style == 1 ? Qt::DashLine : style == 2 ? Qt::DotLine : Qt::SolidLine);
  viewport()->update();
}

void SurfaceView::PaintOverlay(QPainter& painter) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  if (gesture_ == Gesture::kBand || gesture_ == Gesture::kZoom) {
    painter.setPen(QPen(kGestureColor, 0, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(GestureRect());
  } else if (gesture_ == Gesture::kDrag) {
    const ViewTransform t = Transform();
    const QPointF offset = pointer_ - press_;
    painter.setPen(QPen(kGestureColor, 0, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    int shown = 0;
    for (int n = surface_.NextObjectNumber(0); n > 0 && shown < kMostGhosts;
         n = surface_.NextObjectNumber(n)) {
      if (!surface_.IsSelected(n)) continue;
      painter.drawRect(t.ToClient(surface_.ObjectShape(n)->box).normalized().translated(offset));
      ++shown;
    }
  }
  if (highlight_.size() >= 2) {
    const ViewTransform t = Transform();
    QPen pen = highlight_pen_;
    // A width in logical units follows the zoom.
    pen.setWidthF(highlight_width_ < 0 ? -highlight_width_ / t.per_pixel : highlight_width_);
    painter.setPen(pen);
    QPolygonF line;
    for (const QPointF& p : highlight_) line << t.ToClient(p.x(), p.y());
    painter.drawPolyline(line);
  }
  if (rubber_kind_ != 0 && !rubber_points_.empty()) PaintRubberShape(painter);
  if (rubber_start_) {
    const ViewTransform t = Transform();
    painter.setPen(QPen(Qt::black, 0, Qt::DashLine));
    const QPointF start = t.ToClient(rubber_start_->x(), rubber_start_->y());
    if (rubber_box_) {
      painter.setBrush(Qt::NoBrush);
      painter.drawRect(QRectF(start, pointer_).normalized());
    } else {
      painter.drawLine(start, pointer_);
    }
  }
}

// The shape being drawn, dashed, from its points to the pointer: dragged
// shapes in the box of the press and the pointer, the others through their
// vertices.
void SurfaceView::PaintRubberShape(QPainter& painter) {
  const ViewTransform t = Transform();
  painter.save();
  painter.setPen(QPen(Qt::black, 0, Qt::DashLine));
  painter.setBrush(Qt::NoBrush);
  QPolygonF line;
  for (const QPointF& p : rubber_points_) line << t.ToClient(p.x(), p.y());
  line << pointer_;
  const QRectF box = QRectF(line.front(), pointer_).normalized();
  switch (rubber_kind_) {
    case kKindRectangle:
      painter.drawRect(box);
      break;
    case kKindEllipse:
      painter.drawEllipse(box);
      break;
    case kKindArc:
    case kKindPie:
    case kKindChord: {
      const auto angle = [&box](QPointF p) {
        return std::atan2(box.center().y() - p.y(), p.x() - box.center().x()) * 180 / M_PI;
      };
      const double start = angle(line.front());
      double sweep = angle(QPointF(pointer_.x(), line.front().y())) - start;
      if (sweep <= 0) sweep += 360;
      const int a = static_cast<int>(std::lround(start * 16));
      const int s = static_cast<int>(std::lround(sweep * 16));
      if (rubber_kind_ == kKindArc) painter.drawArc(box, a, s);
      if (rubber_kind_ == kKindPie) painter.drawPie(box, a, s);
      if (rubber_kind_ == kKindChord) painter.drawChord(box, a, s);
      break;
    }
    case kKindPolygon:
      painter.drawPolygon(line);
      break;
    default:
      painter.drawPolyline(line);
      break;
  }
  painter.restore();
}

void SurfaceView::StartGesture(QMouseEvent* event) {
  gesture_ = Gesture::kNone;
  if (event->button() != Qt::LeftButton) return;
  if (surface_.EditMode() == kEditZoomWindow) {
    gesture_ = Gesture::kZoom;
    return;
  }
  if (surface_.EditMode() != kEditSelection || !surface_.SelectionEnabled()) return;
  bool selected_now = false;
  {
    CursorKeeper keep(surface_);
    const int hit = HitTest(event->position());
    if (hit == 0) {
      gesture_ = Gesture::kBand;
      return;
    }
    if (!surface_.IsSelected(hit)) {
      const bool add = event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
      if (!add) surface_.DeselectAll();
      surface_.SetCurrentObject(hit);
      surface_.SetSelected(true);
      selected_now = true;
    }
  }
  if (surface_.SelectionAllowed() & kAllowDrag) gesture_ = Gesture::kDrag;
  if (selected_now) {
    Invalidate();
    emit SelectionFinished(surface_.ObjectCount(kSelection));
  }
}

void SurfaceView::EndGesture() {
  const Gesture gesture = gesture_;
  gesture_ = Gesture::kNone;
  const ViewTransform t = Transform();
  const QRectF rect = GestureRect();
  const bool click = rect.width() < kClickPixels && rect.height() < kClickPixels;
  if (gesture == Gesture::kBand) {
    {
      CursorKeeper keep(surface_);
      if (click) {
        surface_.DeselectAll();
      } else {
        surface_.SelectInRect(ClampToInt(std::floor(t.ToLogicX(rect.left()))),
                              ClampToInt(std::floor(t.ToLogicY(rect.top()))),
                              ClampToInt(std::ceil(t.ToLogicX(rect.right()))),
                              ClampToInt(std::ceil(t.ToLogicY(rect.bottom()))));
      }
    }
    Invalidate();
    emit SelectionFinished(surface_.ObjectCount(kSelection));
  } else if (gesture == Gesture::kDrag && !click) {
    const QPointF offset = pointer_ - press_;
    const int dx = static_cast<int>(std::lround(offset.x() * t.per_pixel));
    const int dy = static_cast<int>(std::lround(offset.y() * t.per_pixel));
    if (dx != 0 || dy != 0) {
      {
        CursorKeeper keep(surface_);
        surface_.SetCurrentObject(kSelection);
        surface_.MoveObject(dx, dy);
      }
      Invalidate();
      emit MoveFinished(dx, dy);
    }
  } else if (gesture == Gesture::kZoom && !click) {
    emit ZoomRectangle(t.ToLogicX(rect.left()), t.ToLogicY(rect.top()), t.ToLogicX(rect.right()),
                       t.ToLogicY(rect.bottom()));
  }
  viewport()->update();
}

void SurfaceView::mousePressEvent(QMouseEvent* event) {
  press_ = pointer_ = event->position();
  StartGesture(event);
  viewport()->update();
  emit MousePressed(ButtonCode(event->button()), ShiftCode(event->modifiers()),
                    ClientToLogicX(press_.x()), ClientToLogicY(press_.y()));
}

void SurfaceView::mouseMoveEvent(QMouseEvent* event) {
  pointer_ = event->position();
  if (gesture_ != Gesture::kNone || rubber_start_ || rubber_kind_ != 0) viewport()->update();
  emit MouseMoved(ButtonCode(event->buttons()), ShiftCode(event->modifiers()),
                  ClientToLogicX(pointer_.x()), ClientToLogicY(pointer_.y()));
}

void SurfaceView::mouseReleaseEvent(QMouseEvent* event) {
  pointer_ = event->position();
  if (event->button() == Qt::LeftButton) EndGesture();
  emit MouseReleased(ButtonCode(event->button()), ShiftCode(event->modifiers()),
                     ClientToLogicX(pointer_.x()), ClientToLogicY(pointer_.y()));
}

void SurfaceView::mouseDoubleClickEvent(QMouseEvent* event) {
  const QPointF at = event->position();
  int hit = 0;
  {
    CursorKeeper keep(surface_);
    hit = HitTest(at);
  }
  emit DoubleClicked(hit, ClientToLogicX(at.x()), ClientToLogicY(at.y()));
}

void SurfaceView::wheelEvent(QWheelEvent* event) {
  const double notches = event->angleDelta().y() / 120.0;
  if (notches == 0) return;
  ZoomAbout(event->position(), std::pow(kWheelFactor, -notches));
  event->accept();
}

void SurfaceView::keyPressEvent(QKeyEvent* event) {
  // Arrows and the rest go to the main window, not to the scroll bars.
  emit KeyPressed(KeyCode(event->key(), event->modifiers()), ShiftCode(event->modifiers()));
  event->accept();
}

}  // namespace pluvane
