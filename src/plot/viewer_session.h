// The script the viewer works on: taking it (the copy kept so that the scale
// dialogue can go back to it), letting it go, and finding the script that the
// separate viewer program is given on its command line.
#pragma once

#include <string>
#include <vector>

#include "foundation/user_interface.h"
#include "plot/plot_viewer.h"

namespace pluvane {

// The copy of the script as it was first shown, beside it. A .tmp name, so
// that the work folder's cleaning takes it if the viewer could not.
inline constexpr const char* kInitialScriptName = "MstInitial.tmp";

// Takes `script` as the viewer's script with the action flag 1, and copies it
// to the initial script. False, with its message, when the file is missing.
bool StartViewer(UserInterface& ui, ViewerState& state, const std::string& script);

// Removes the initial copy once the viewer closes.
void EndViewer(const ViewerState& state);

// The script named by the separate viewer's one argument: a relative name is
// taken in `current_dir`, and found there whatever the case of its letters.
// Empty, with its message, when the argument is missing or the file is not
// there.
std::string VistrelScriptOf(UserInterface& ui, const std::vector<std::string>& args,
                            const std::string& current_dir);

}  // namespace pluvane
