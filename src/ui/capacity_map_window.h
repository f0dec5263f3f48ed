// The capacity map's window (frmMapCapacite): the map's copy of the network in
// a drawing view, the legend of classes beside it, the tool-tip box that
// follows the mouse over the collectors, and the map's menus. The map itself
// (results/capacity_map.h) does the work; this window shows it.
#pragma once

#include <QDialog>
#include <QRectF>
#include <memory>
#include <string>

#include "drawing/drawing_settings.h"
#include "results/capacity_map.h"

class QLabel;

namespace pluvane {

class SurfaceView;

class CapacityMapWindow : public QDialog {
  Q_OBJECT

 public:
  CapacityMapWindow(UserInterface& ui, const CapacityMapInput& input, QWidget* parent = nullptr);
  ~CapacityMapWindow() override;

  CapacityMap& map() { return map_; }
  SurfaceView* view() const { return view_; }
  QLabel* tip() const { return tip_; }
  // Runs a menu entry by its name, as a click on it does.
  void RunMenu(const std::string& name);
  // The mouse at a logical point: the tool-tip of the collector under it.
  void ShowTipAt(double x, double y);

 private:
  void SaveAs();
  void EditScale();
  void TextFont();
  void TextAngle();
  void Refresh();

  UserInterface& ui_;
  CapacityMapInput input_;
  CapacityMap map_;
  DrawingSettings settings_;
  SurfaceView* view_ = nullptr;
  SurfaceView* legend_view_ = nullptr;
  QLabel* tip_ = nullptr;
};

}  // namespace pluvane
