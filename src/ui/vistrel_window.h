// The plot viewer window Vistrel32: a plot script's first page drawn on its
// own surface and shown in a SurfaceView, with the viewer's menus. The user
// zooms (frame or whole page), selects and moves the plot's objects and
// restyles them, places lines, rectangles and texts, edits the scale in the
// scale dialogue (which redraws the script), saves the page as an SVG, PDF or
// PNG picture and prints it. The logic is the core viewer's; this window only
// forwards menus and gestures.
#pragma once

#include <QMainWindow>
#include <QPrinter>
#include <functional>
#include <map>
#include <string>

#include "foundation/modal_form.h"
#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "plot/plot_viewer.h"

namespace pluvane {

class FrmEchDef;
class SurfaceView;

class VistrelWindow : public QMainWindow {
  Q_OBJECT

 public:
  // `state` holds the script (see StartViewer); the page files are compiled
  // in `work_dir`. Messages and questions go through `ui`.
  VistrelWindow(UserInterface& ui, ViewerState& state, std::string work_dir,
                QWidget* parent = nullptr);
  ~VistrelWindow() override;

  // The load of the form: the draw method on the script with the action
  // flag 1, the whole page in view, the page title as the window's title.
  // False when the script was refused (its message was told).
  bool Load();

  Surface& surface() { return surface_; }
  SurfaceView* view() const { return view_; }
  // Runs a menu command by name, as its item does.
  void RunMenu(const std::string& name);
  QAction* Action(const std::string& name) const;

  // The page as a picture, SVG, PDF or PNG by the extension.
  bool SavePicture(const std::string& path) const;
  // Paints the page on the printer's page, its aspect kept.
  bool PrintOn(QPrinter& printer) const;

  // How the scale dialogue is shown; a modal FormWindow unless replaced.
  ShowModal show_scale_form;

 signals:
  void Closed();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BindCommands();
  void Redraw();
  void OpenScaleForm();
  void Print();
  void OnPress(int button, double x, double y);
  void OnRelease(int button, double x, double y);
  void OnZoomRectangle(double left, double top, double right, double bottom);

  UserInterface& ui_;
  ViewerState& state_;
  std::string work_dir_;
  Surface surface_;
  SurfaceView* view_ = nullptr;
  std::map<std::string, QAction*> actions_;
  std::map<std::string, std::function<void()>> commands_;
  // The surface's mode string: "ZOOMF" while a zoom frame is pending.
  std::string mode_;
  bool pressed_ = false;
  double press_x_ = 0, press_y_ = 0;
};

// Shows the scale dialogue modally over `parent`, checking each min/max pair
// as its cell is left (the cursor stays on a reversed pair).
void ShowScaleForm(QWidget* parent, FrmEchDef& form);

// The viewer on `script`, modally: it returns when the window is closed.
// False when the script is missing or refused (its message was told).
bool OpenVistrel(QWidget* parent, UserInterface& ui, ViewerState& state, const std::string& script,
                 const std::string& work_dir);

}  // namespace pluvane
