// The start and the end of the program as the main window drives them: the
// first load (configuration, extents, calibration), the first activation
// (decimal test, about picture, initial view, recent files, the network of the
// command line), and the two ways out (the window closed, the Quit command).
#pragma once

#include <functional>
#include <string>

#include "foundation/user_interface.h"
#include "network/network_session.h"
#include "network/recent_files.h"
#include "drawing/surface.h"
#include "shell/app_state.h"
#include "shell/resource_library.h"

namespace pluvane {

class Application {
 public:
  enum class Activation { kReady, kEndProcess, kCloseWindow };
  // The desktop program keeps its settings and recent files in the
  // configuration; the command line reads it and leaves it as it is.
  enum class Use { kDesktop, kCommandLine };

  Application(Surface& surface, UserInterface& ui, Use use = Use::kDesktop);

  AppState& state() { return state_; }
  ResourceLibrary& resources() { return resources_; }
  RecentFiles& recent() { return recent_; }
  NetworkSession session() { return {surface_, state_, ui_, recent_}; }

  // The first load of the main window. False when the process must end (the
  // configuration file or the symbols folder is missing).
  bool Load(const std::string& app_path, const std::string& command_line);

  // Runs once, at the first activation of the main window.
  Activation FirstActivation();

  // Opens the network named on the command line: token 1 the file, token 2 a
  // display flag ("0" minimises), token 3 a number. Returns that number (0 when
  // absent), or -1 when the file is not a network. A relative file is taken
  // from the folder the program was started from.
  int CommandLineStart();
  bool StartMinimised() const { return minimised_; }

  // The window is closing: the last question, the settings written back, the
  // user's number format given back.
  void Unload(int tool_band_position);
  // The command Quit. False when the user cancelled and the window stays.
  bool QuitCommand();
  bool ClosedByMenu() const { return closed_by_menu_; }

  // The decimal test on the text of one half in the process's number format:
  // its first character must not be a comma.
  bool DecimalTest(const std::string& half_as_text);
  // One half in the process's number format.
  static std::string HalfAsText();

  // What the window does on request.
  std::function<void()> show_about;   // the about picture, for a moment
  std::function<void()> show_window;  // the main window, before a network opens

 private:
  Surface& surface_;
  UserInterface& ui_;
  AppState state_;
  ResourceLibrary resources_;
  RecentFiles recent_;
  Use use_;
  // The current folder when the program started, against which the paths of
  // its command line are read.
  std::string start_dir_;
  bool activated_ = false;
  bool minimised_ = false;
  bool closed_by_menu_ = false;
};

}  // namespace pluvane
