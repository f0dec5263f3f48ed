// The result menu of a calculation (mnuExploitation). The engine leaves its
// results in the scenario's folder W (the network's folder and the scenario's
// name), each named S_N (the scenario and the network's base) with its
// extension. Opening the menu makes W the work folder and enables each entry
// by its file; the entries show flows, inflows and levels as curves, and the
// catchment and network results in the text editor.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "foundation/modal_form.h"
#include "foundation/user_interface.h"
#include "plot/plot_viewer.h"
#include "results/view_curve_file.h"
#include "simulation/simulation_state.h"

namespace pluvane {

// Entry names with their enabled state, in the menu's order.
using ResultMenuStates = std::vector<std::pair<std::string, bool>>;

// The path of a result of the current scenario: W, S_N and the extension
// (".Deb", ".Sor"...), from the state as the menu's opening left it.
std::string ResultPath(const SimulationState& state, const std::string& extension);

// The menu opens: W is made when missing (not for a scenario without a name)
// and becomes the work folder, the network's base is noted, and each entry is
// enabled when its file stands. Without an open network every entry is off.
ResultMenuStates mnuExploitation(SimulationState& state);

// The windows a curve entry shows: the curve chooser, then the viewer.
struct ResultViews {
  ViewerState& viewer;
  ShowModal show_chooser;
  ShowViewer show_viewer;
};

// The entries. Each does nothing unless the scenario's or the network's name
// is known.
// S_N.Deb copied into crb.Deb of W and shown as "Hydrogramme de routage".
void mnuExploit_ResDeb(const SimulationState& state, UserInterface& ui, ResultViews& views);
// S_N.App and S_N.Hys joined in crb.Hys of W, shown as "Hydrogramme d'apport",
// then crb.Hys removed.
void mnuExploit_ResHys(const SimulationState& state, UserInterface& ui, ResultViews& views);
// S_N.Lim shown as " Sortie de courbe LIM".
void mnuExploit_ResLim(const SimulationState& state, UserInterface& ui, ResultViews& views);
// S_N.BV and S_N.Sor in the text editor, or the message that they are missing.
void mnuExploit_ResBV(const SimulationState& state, UserInterface& ui);
void mnuExploit_ResReso(const SimulationState& state, UserInterface& ui);

}  // namespace pluvane
