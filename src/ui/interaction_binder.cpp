#include "ui/interaction_binder.h"

#include <QCursor>
#include <QPixmap>

#include "drawing/surface_guards.h"

namespace pluvane {

namespace {

// Where the bubble stands from the pointer, in pixels.
constexpr int kBubbleOffset = 14;

}  // namespace

InteractionBinder::InteractionBinder(SurfaceView& view, MainInteraction& interaction,
                                     CursorPicture cursor_picture, QObject* parent)
    : QObject(parent),
      view_(view),
      interaction_(interaction),
      cursor_picture_(std::move(cursor_picture)) {
  bubble_ = new QLabel(view_.viewport());
  bubble_->setObjectName("Text1");
  bubble_->setAutoFillBackground(true);
  bubble_->setFrameShape(QFrame::Box);
  bubble_->setMargin(3);
  bubble_->setStyleSheet("background: #ffffe1; color: black;");
  bubble_->setAttribute(Qt::WA_TransparentForMouseEvents);
  bubble_->hide();
  connect(&view_, &SurfaceView::MousePressed, this, &InteractionBinder::OnPressed);
  connect(&view_, &SurfaceView::MouseMoved, this, &InteractionBinder::OnMoved);
  connect(&view_, &SurfaceView::MouseReleased, this, &InteractionBinder::OnReleased);
  connect(&view_, &SurfaceView::KeyPressed, this, &InteractionBinder::OnKey);
  connect(&view_, &SurfaceView::ZoomRectangle, this, &InteractionBinder::OnZoomRectangle);
  connect(&view_, &SurfaceView::DoubleClicked, this,
          [this](int, double x, double y) { Apply(interaction_.DoubleClick(x, y)); });
  ApplyCursor(interaction_.CursorNumber());
}

void InteractionBinder::ToolClick(const std::string& key) { Apply(interaction_.ToolClick(key)); }

int InteractionBinder::HitAt(double x, double y) {
  CursorKeeper keep(view_.surface());
  return view_.HitTest(QPointF(view_.LogicToClientX(x), view_.LogicToClientY(y)));
}

void InteractionBinder::OnPressed(int button, int shift, double x, double y) {
  pointer_ = QPointF(view_.LogicToClientX(x), view_.LogicToClientY(y));
  Apply(interaction_.Press(button, shift, HitAt(x, y), x, y));
}

void InteractionBinder::OnMoved(int, int, double x, double y) {
  pointer_ = QPointF(view_.LogicToClientX(x), view_.LogicToClientY(y));
  const int hit = interaction_.WantsHoverHit() ? HitAt(x, y) : 0;
  Apply(interaction_.Move(x, y, hit));
}

void InteractionBinder::OnReleased(int button, int shift, double x, double y) {
  pointer_ = QPointF(view_.LogicToClientX(x), view_.LogicToClientY(y));
  Apply(interaction_.ReleaseAt(button, shift, x, y));
}

void InteractionBinder::OnKey(int key, int shift) { Apply(interaction_.Key(key, shift)); }

void InteractionBinder::OnZoomRectangle(double left, double top, double right, double bottom) {
  Apply(interaction_.ZoomRectangle(left, top, right, bottom));
}

void InteractionBinder::ApplyCursor(int number) {
  if (number == cursor_) return;
  cursor_ = number;
  QWidget* target = view_.viewport();
  const std::string path = number > 0 && cursor_picture_ ? cursor_picture_(number) : "";
  const QPixmap picture = path.empty() ? QPixmap() : QPixmap(QString::fromStdString(path));
  if (picture.isNull()) {
    target->unsetCursor();
    return;
  }
  target->setCursor(QCursor(picture, picture.width() / 2, picture.height() / 2));
}

void InteractionBinder::PlaceBubble() {
  bubble_->adjustSize();
  QPoint at = pointer_.toPoint() + QPoint(kBubbleOffset, kBubbleOffset);
  const QSize area = view_.viewport()->size();
  // Kept inside the drawing: on the other side of the pointer near an edge.
  if (at.x() + bubble_->width() > area.width()) at.rx() -= bubble_->width() + 2 * kBubbleOffset;
  if (at.y() + bubble_->height() > area.height()) at.ry() -= bubble_->height() + 2 * kBubbleOffset;
  bubble_->move(std::max(0, at.x()), std::max(0, at.y()));
}

void InteractionBinder::Apply(const InteractionResult& result) {
  ApplyCursor(result.cursor);
  if (result.bubble_visible) {
    bubble_->setText(QString::fromStdString(result.bubble_text));
    PlaceBubble();
    bubble_->show();
    bubble_->raise();
  } else {
    bubble_->hide();
    bubble_->clear();
  }
  if (result.rubber_shape) {
    std::vector<QPointF> points;
    for (const auto& [x, y] : result.rubber_shape->points) points.emplace_back(x, y);
    view_.SetRubberShape(result.rubber_shape->kind, std::move(points));
  } else if (view_.HasRubberShape()) {
    view_.ClearRubberShape();
  }
  if (result.rubber_start) {
    view_.SetRubberLine(result.rubber_start->first, result.rubber_start->second);
  } else if (view_.HasRubberLine()) {
    view_.ClearRubberLine();
  }
  if (result.repaint) view_.Invalidate();
  if (result.refresh_menus) emit RefreshMenusRequested();
  if (!result.open_band.empty()) emit OpenBandRequested(QString::fromStdString(result.open_band));
  if (!result.popup.empty()) emit PopupRequested(QString::fromStdString(result.popup));
  if (!result.window_command.empty()) {
    emit WindowCommandRequested(QString::fromStdString(result.window_command));
  }
  if (!result.open_form.empty()) {
    emit OpenFormRequested(QString::fromStdString(result.open_form), result.form_object);
  }
  emit Applied();
}

}  // namespace pluvane
