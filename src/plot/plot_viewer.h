// The plot viewer's logic apart from its window: the shared state of the
// viewer, its draw method, the commands that restyle the selected objects of
// the plot, the placing modes, and the choice of a curve file to show.
#pragma once

#include <functional>
#include <string>

#include "foundation/user_interface.h"
#include "drawing/surface.h"

namespace pluvane {

// The action flag of the draw method.
inline constexpr int kViewerInitial = 1;
inline constexpr int kViewerApply = 2;
inline constexpr int kViewerCancel = 3;

struct ViewerState {
  std::string script;          // the script shown
  std::string initial_script;  // its first form, to go back to
  int action = kViewerInitial;
  std::string page_title;       // the window's title
  std::string selection_mode;   // the element kind: "SEC", "SAPP"...; also the chooser's mode
  std::string last_curve_file;  // offered by mnuUtil_Vistrel next time
};

// Opens the viewer on the state's script, modally (the host's window).
using ShowViewer = std::function<void(ViewerState& state)>;

// Action 3 does nothing; else the surface is cleared and the script's first
// page drawn, with equal X and Y scales in the "SEC" mode. False when the
// script could not be compiled (its message was told); true otherwise. The
// defaults' pen is then black and thin, for the objects the user places.
bool ViewerDraw(UserInterface& ui, Surface& surface, const ViewerState& state,
                const std::string& work_dir);

// Restyling of the selected objects. Each asks its value (colour or font
// picker, or an input box); a cancelled or empty answer changes nothing.
void mnuOpt_Attrib_Dess_CoLine(UserInterface& ui, Surface& surface);
void mnuOpt_Attrib_Dess_WtLine(UserInterface& ui, Surface& surface);
void mnuOpt_Attrib_Text_Co(UserInterface& ui, Surface& surface);
void mnuOpt_Attrib_Text_Font(UserInterface& ui, Surface& surface);
void mnuOpt_Attrib_Text_Ori(UserInterface& ui, Surface& surface);
// The size is asked in points and kept in logical units, as plot texts are.
void mnuOpt_Attrib_Text_Size(UserInterface& ui, Surface& surface);
// The surface's edit mode for a new line, rectangle or text: the kind to draw.
void mnuOpt_PlacerLigne(Surface& surface);
void mnuOpt_PlacerRect(Surface& surface);
void mnuOpt_PlacerTxt(Surface& surface);

// The file of mnuUtil_Vistrel: the open dialog on the curve files, offering
// the last file chosen. The choice is kept in the state; empty when cancelled.
std::string mnuUtil_Vistrel_ChooseFile(UserInterface& ui, ViewerState& state);

}  // namespace pluvane
