// The widget that shows a drawing: the surface's view rectangle, its aspect
// kept, with scroll bars when the surface asks for them. It converts client
// pixels to logical units and back, repaints when the surface says it
// changed, and carries out the gestures that belong to the drawing itself:
// clicking and rubber-band selection, dragging the selection, the zoom
// rectangle, the rubber line of a link being drawn, the wheel zoom. It knows
// nothing of the network: the main window gets every press, move, release,
// double-click and key, with logical positions and the old button and shift
// codes, and runs its modes from them.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>
#include <QPoint>
#include <QPointF>
#include <optional>
#include <vector>

#include "drawing/surface.h"
#include "ui/surface_painter.h"
#include "ui/view_transform.h"

namespace pluvane {

// Bit of SelectionAllowed that lets the mouse drag the selection.
inline constexpr int kAllowDrag = 16;
// How near, in pixels, a click must fall on an object to hit it.
inline constexpr double kHitPixels = 3;

// Mouse buttons as the old events numbered them: 1 left, 2 right, 4 middle.
int ButtonCode(Qt::MouseButtons buttons);
// Shift state: 1 Shift, 2 Ctrl, 4 Alt.
int ShiftCode(Qt::KeyboardModifiers modifiers);
// Key codes as the old events gave them: letters as capitals, digits, F1 = 112,
// arrows 37 to 40, Esc 27, Del 46, Enter 13, the numeric pad's digits 96 to 105.
// 0 for a key without a code.
int KeyCode(int qt_key, Qt::KeyboardModifiers modifiers);

class SurfaceView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  // The view listens to the surface's changes until it goes.
  explicit SurfaceView(Surface& surface, QWidget* parent = nullptr);
  ~SurfaceView() override;

  Surface& surface() { return surface_; }
  SurfacePainter& painter() { return painter_; }

  // The mapping of the client area as it stands.
  ViewTransform Transform() const;
  double ClientToLogicX(double x) const { return Transform().ToLogicX(x); }
  double ClientToLogicY(double y) const { return Transform().ToLogicY(y); }
  double LogicToClientX(double x) const { return Transform().ToClientX(x); }
  double LogicToClientY(double y) const { return Transform().ToClientY(y); }
  int ClientWidth() const;
  int ClientHeight() const;

  // Surface::HitTest at a client point, with a tolerance of a few pixels. The
  // object hit becomes current; 0 if none.
  int HitTest(QPointF client);

  // The line drawn from a logical point to the pointer while a link is placed.
  void SetRubberLine(double x, double y);
  // The same as a rectangle from the logical point to the pointer.
  void SetRubberBox(double x, double y);
  void ClearRubberLine();
  bool HasRubberLine() const { return rubber_start_.has_value(); }
  // A shape being drawn, of an object kind, through logical points, the
  // pointer being its last point.
  void SetRubberShape(int kind, std::vector<QPointF> points);
  void ClearRubberShape();
  bool HasRubberShape() const { return rubber_kind_ != 0; }
  int RubberShapeKind() const { return rubber_kind_; }
  const std::vector<QPointF>& RubberShapePoints() const { return rubber_points_; }

  // A line drawn over the drawing through logical points (a reach chosen in
  // its list), in its colour (blue in the high byte), pen width (negative:
  // logical units) and style; an empty list of points takes it away.
  void SetHighlight(std::vector<QPointF> points, std::int32_t color, double width, int style);
  const std::vector<QPointF>& Highlight() const { return highlight_; }

  // Zooms by `factor` (below 1 closer) keeping the logical point under the
  // client point where it is.
  void ZoomAbout(QPointF client, double factor);
  // Shows or hides the scroll bars by the surface's ScrollBars and sets their ranges.
  void SyncScrollBars();
  // Repaints the drawing (the cached frame is stale).
  void Invalidate();

 signals:
  void MousePressed(int button, int shift, double x, double y);
  void MouseMoved(int button, int shift, double x, double y);
  void MouseReleased(int button, int shift, double x, double y);
  void DoubleClicked(int object, double x, double y);
  void KeyPressed(int key, int shift);
  // After a click or a band changed the selection; the count selected.
  void SelectionFinished(int count);
  // After the selection was dragged and moved by a logical offset.
  void MoveFinished(int dx, int dy);
  // The zoom rectangle drawn in edit mode 24, in logical units.
  void ZoomRectangle(double left, double top, double right, double bottom);
  // The view rectangle changed (wheel or scroll bars).
  void ViewChanged();
  void ClientResized(int width, int height);
  // The surface called Refresh.
  void SurfaceChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  enum class Gesture { kNone, kBand, kDrag, kZoom };
  void OnSurfaceChanged();
  void StartGesture(QMouseEvent* event);
  void EndGesture();
  void PaintOverlay(QPainter& painter);
  void PaintRubberShape(QPainter& painter);
  QRectF GestureRect() const;

  Surface& surface_;
  int listener_ = 0;  // our id among the surface's listeners
  SurfacePainter painter_;
  QImage frame_;  // the drawing as last painted
  bool frame_stale_ = true;
  bool syncing_ = false;
  Gesture gesture_ = Gesture::kNone;
  QPointF press_;
  QPointF pointer_;
  std::optional<QPointF> rubber_start_;  // logical
  std::vector<QPointF> highlight_;       // logical
  QPen highlight_pen_;
  double highlight_width_ = 0;
  bool rubber_box_ = false;
  int rubber_kind_ = 0;
  std::vector<QPointF> rubber_points_;  // logical
};

}  // namespace pluvane
