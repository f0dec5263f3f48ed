// The separate viewer program: `vistrel SCRIPT` shows the plot of a script
// named in the current folder (or by a full path) in the viewer window, the
// page files being compiled beside the script.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "foundation/user_interface.h"
#include "plot/plot_viewer.h"
#include "ui/vistrel_window.h"

namespace pluvane {

struct VistrelProgram {
  ViewerState state;
  std::unique_ptr<VistrelWindow> window;
};

// Takes the script of the arguments and loads the viewer on it. 0 when the
// window is ready to show, 1 when the script is missing or refused (its
// message was told through `ui`).
int StartVistrel(UserInterface& ui, const std::vector<std::string>& args,
                 const std::string& current_dir, VistrelProgram& program);

}  // namespace pluvane
