// A network opened for a command of pluvane-cli as the desktop program opens
// it, with the configuration that the program reads. The command line leaves
// that configuration as it is: the network does not enter the desktop's list
// of recent files, and no setting is written.
#pragma once

#include <string>

#include "foundation/scripted_ui.h"
#include "drawing/surface.h"
#include "shell/app_state.h"
#include "shell/application.h"

namespace pluvane {

class CliNetwork {
 public:
  explicit CliNetwork(ScriptedUi& ui)
      : application(surface, ui, Application::Use::kCommandLine), ui_(ui) {}

  // Starts as the program does (the configuration beside the programs in
  // `app_path`, or the user's) and opens `path`. False when either was
  // refused; the message has been shown.
  bool Open(const std::string& app_path, const std::string& path);
  // Starts without opening a network.
  bool Start(const std::string& app_path) { return application.Load(app_path, ""); }
  // Starts as Open does and reads `path` as a drawing alone, for its pictures
  // (the network's settings are not taken). False when either was refused;
  // the message, under `title`, has been shown.
  bool OpenDrawing(const std::string& app_path, const std::string& path,
                   const std::string& title);

  AppState& state() { return application.state(); }

  Surface surface;
  Application application;

 private:
  ScriptedUi& ui_;
};

}  // namespace pluvane
