// ViewCurveFile: the whole road from a curve file to a shown plot. The file
// is checked and copied into the work folder, the user picks its curves in
// the chooser, the script is written from the choice and shown in the viewer,
// and the work folder is cleaned up. The windows are the caller's: it shows
// the chooser modally and opens the viewer on the script.
#pragma once

#include <functional>
#include <string>

#include "foundation/modal_form.h"
#include "foundation/user_interface.h"
#include "plot/plot_viewer.h"

namespace pluvane {

// The chooser's mode is the file's extension; the script is shown with the
// state's page title. True when a plot was shown.
bool ViewCurveFile(UserInterface& ui, ViewerState& state, const std::string& file,
                   const std::string& work_dir, const std::string& scenario_folder,
                   const ShowModal& show_chooser, const ShowViewer& show_viewer);

// mnuUtil_Vistrel: the curve file asked (the last one offered), then shown.
bool mnuUtil_Vistrel(UserInterface& ui, ViewerState& state, const std::string& work_dir,
                     const std::string& scenario_folder, const ShowModal& show_chooser,
                     const ShowViewer& show_viewer);

}  // namespace pluvane
