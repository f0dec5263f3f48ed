// Ties a SurfaceView to the main window's interaction machine: the view's
// presses, moves, releases, keys and zoom rectangles go to MainInteraction,
// and what it answers is carried out on the widget: the cursor picture (hot
// spot in its middle), the information bubble near the pointer, the rubber
// line of a link being drawn, the repaint. What belongs to the window (its
// menus, forms, bands, pop-ups and own tools) is passed on as signals.
#pragma once

#include <QLabel>
#include <QObject>
#include <QPointF>
#include <QString>
#include <functional>
#include <string>

#include "shell/main_interaction.h"
#include "ui/surface_view.h"

namespace pluvane {

class InteractionBinder : public QObject {
  Q_OBJECT

 public:
  // The file of a cursor picture by its number, empty when there is none.
  using CursorPicture = std::function<std::string(int number)>;

  InteractionBinder(SurfaceView& view, MainInteraction& interaction, CursorPicture cursor_picture,
                    QObject* parent = nullptr);

  // A tool of the bands was clicked.
  void ToolClick(const std::string& key);
  // Carries out what the interaction answered.
  void Apply(const InteractionResult& result);

  // The bubble (Text1).
  QLabel* bubble() const { return bubble_; }

 signals:
  void RefreshMenusRequested();
  void OpenFormRequested(const QString& form, int object);
  void OpenBandRequested(const QString& band);
  void PopupRequested(const QString& popup);
  void WindowCommandRequested(const QString& key);
  // After each answer of the machine was carried out: the mode may have changed.
  void Applied();

 private:
  void OnPressed(int button, int shift, double x, double y);
  void OnMoved(int button, int shift, double x, double y);
  void OnReleased(int button, int shift, double x, double y);
  void OnKey(int key, int shift);
  void OnZoomRectangle(double left, double top, double right, double bottom);
  // The object under a logical point, the cursor of the surface kept.
  int HitAt(double x, double y);
  void ApplyCursor(int number);
  void PlaceBubble();

  SurfaceView& view_;
  MainInteraction& interaction_;
  CursorPicture cursor_picture_;
  QLabel* bubble_ = nullptr;
  QPointF pointer_;  // client position of the pointer
  int cursor_ = -1;  // the cursor number shown, -1 before the first
};

}  // namespace pluvane
