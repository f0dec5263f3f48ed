// The program's main window: it owns the drawing and the application, drives
// the start (first load, first activation) and the end (Quit, close), and
// shows the network. For now the network is shown as a summary of its
// elements by kind.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <memory>

#include "network/surface.h"
#include "shell/application.h"
#include "ui/qt_user_interface.h"

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
  QtUserInterface& user_interface() { return ui_; }
  // The summary shown in the window.
  QString Summary();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMenus();
  void RefreshSummary();
  void OpenFile();

  Surface surface_;
  QtUserInterface ui_;
  std::unique_ptr<Application> application_;
  QLabel* summary_ = nullptr;
};

}  // namespace pluvane
