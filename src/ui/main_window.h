// The program's main window: it owns the drawing and the application, drives
// the start (first load, first activation) and the end (Quit, close), builds
// its menus from the program's menu table and runs their commands. Until the
// drawing view is in, the network shows as a summary of its elements by kind.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "network/surface.h"
#include "shell/application.h"
#include "ui/qt_user_interface.h"

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
  // Runs a menu command by its name, as a click on the item does.
  void RunMenu(const std::string& name);
  // The action of a menu item, by name (nullptr when none).
  QAction* Action(const std::string& name) const;
  QtUserInterface& user_interface() { return ui_; }
  // The summary shown in the window.
  QString Summary();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMenus();
  void BindCommands();
  void RefreshSummary();
  void RefreshRecentFiles();
  void OpenPreferences();

  Surface surface_;
  QtUserInterface ui_;
  std::unique_ptr<Application> application_;
  QLabel* summary_ = nullptr;
  QMenu* recent_menu_ = nullptr;
  std::map<std::string, QAction*> actions_;
  std::map<std::string, std::function<void()>> commands_;
};

}  // namespace pluvane
