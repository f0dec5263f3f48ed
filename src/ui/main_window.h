// The program's main window: it owns the drawing and the application, drives
// the start (first load, first activation) and the end (Quit, close), shows
// the drawing in its SurfaceView, builds its menus and tool bands from the
// program's tables, keeps the menus' enabled state, and runs the commands of
// the menus by name. Tool clicks all pass through ToolClicked; those that arm
// an interaction mode are handed on through ToolRequested to the interaction
// modes, bound to the view.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QPrinter>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "network/frm_calage.h"
#include "foundation/form_controller.h"
#include "drawing/surface.h"
#include "exchange/export_commands.h"
#include "shell/application.h"
#include "plot/plot_viewer.h"
#include "shell/console_model.h"
#include "shell/main_interaction.h"
#include "shell/menu_state.h"
#include "ui/about_window.h"
#include "ui/console_window.h"
#include "ui/drawing_picture.h"
#include "results/result_access.h"
#include "ui/interaction_binder.h"
#include "ui/main_tool_bars.h"
#include "ui/qt_user_interface.h"
#include "ui/status_panels.h"
#include "ui/surface_view.h"

class QMenu;

namespace pluvane {

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow();
  ~MainWindow() override;

  // The first load; false when the program must end at once.
  bool Start(const std::string& app_path, const std::string& command_line);
  // The first activation; false when the window must close.
  bool Activate();

  Surface& surface() { return surface_; }
  Application& application() { return *application_; }
  SurfaceView* view() { return view_; }
  StatusPanels& panels() { return *panels_; }
  // The tool bands; null before Start.
  MainToolBars* tool_bars() { return tool_bars_.get(); }
  // Runs a menu command by its name, as a click on the item does.
  // Whether a menu entry has its command (the others say they are not available).
  bool HasCommand(const std::string& name) const { return commands_.count(name) != 0; }
  void RunMenu(const std::string& name);
  // The action of a menu item, by name (nullptr when none).
  QAction* Action(const std::string& name) const;
  // The menu of a menu item that opens one (nullptr when none).
  QMenu* Menu(const std::string& name) const;
  QtUserInterface& user_interface() { return ui_; }
  // The interaction modes of the drawing, and their binding to the view.
  MainInteraction& interaction() { return *interaction_; }
  InteractionBinder& binder() { return *binder_; }

  // A click on a tool of the bands. MDSAVE saves here; every other key is
  // handed on through ToolRequested to the interaction modes.
  void ToolClicked(const std::string& key);
  // Applies RefreshMenus to the menus.
  void RefreshMenuState();
  // The about window: modal from the menu, for a moment at start.
  void ShowAbout(bool modal);
  QPointer<AboutWindow> about_window() const { return about_; }
  // The log window of the last scenario run, if any.
  ConsoleWindow* log_window() const { return log_window_.get(); }

  // What the printer and page set-up dialogs are; tests replace them.
  std::function<bool(QPrinter&)> ask_print;
  std::function<bool(QPrinter&)> ask_page_setup;
  QPrinter& printer() { return printer_; }

 signals:
  void ToolRequested(const QString& key);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMenus();
  void BindCommands();
  void AfterCommand();
  void ApplyMenus(const MenuStates& states);
  void RefreshRecentFiles();
  // A curve entry of the result menu, with the chooser and the viewer windows.
  void ShowResult(void (*entry)(const SimulationState&, UserInterface&, ResultViews&));
  void OpenPreferences();
  void OpenForm(FormController& form);
  void ImportBackground();
  void PrintDrawing();
  void RunScenarioCommand(bool with_sidrel);
  Console& NewConsole();
  ChooseExportLines ExportChooser();
  void RecapData();
  PictureFolders Folders() const;
  // The interaction modes: built with the window, their requests answered
  // by the window (main_window_modes.cpp).
  void ConnectInteraction();
  // The drawing tools, attributes and pop-ups (main_window_drawing.cpp).
  void BindDrawingCommands();
  void OpenNamedForm(const std::string& form, int object);
  void OpenCalage();
  void RunWindowCommand(const std::string& key);
  void ShowPopup(const std::string& popup);
  void OpenVistrel();
  // The tool of the armed mode (or creation key) stands pressed in its band.
  void ShowArmedTool();

  Surface surface_;
  QtUserInterface ui_;
  std::unique_ptr<Application> application_;
  SurfaceView* view_ = nullptr;
  std::unique_ptr<StatusPanels> panels_;
  std::unique_ptr<MainToolBars> tool_bars_;
  QMenu* recent_menu_ = nullptr;
  std::map<std::string, QAction*> actions_;
  std::map<std::string, std::function<void()>> commands_;
  QPointer<AboutWindow> about_;
  std::unique_ptr<ConsoleModel> log_model_;
  std::unique_ptr<ConsoleWindow> log_window_;
  QPrinter printer_;
  bool menus_pending_ = false;
  std::unique_ptr<MainInteraction> interaction_;
  InteractionBinder* binder_ = nullptr;
  std::unique_ptr<FrmCalage> calage_;
  ViewerState viewer_state_;
};

}  // namespace pluvane
