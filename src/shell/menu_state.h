// Which menus of the main window are enabled, as plain answers of the drawing
// and the application state: the menus of a network (RefreshMenus, after a
// load, a close or an edit), the file menu as it opens, and the caption of the
// model generation as the scenario menu opens. The window applies them.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "shell/app_state.h"

namespace pluvane {

// Menu names with their enabled state, in the order they were decided.
using MenuStates = std::vector<std::pair<std::string, bool>>;

// The menus that need a network are enabled when the drawing holds a node;
// with none they go off and only the imports stay.
MenuStates RefreshMenus(Surface& surface);

// The file menu on opening: Save, Save As, Close and Export; a drawing of
// fewer than two objects offers no save, no close without a background plan,
// no export without a network file.
MenuStates FileMenuState(const Surface& surface, const AppState& state);

// True when a network is open; otherwise "Un réseau doit être chargé." is
// shown and the command that asked goes no further.
bool NetworkLoaded(const AppState& state, UserInterface& ui);

// "Génération du &modèle " and the scenario's name.
std::string ScenarioGenerationCaption(const AppState& state);

}  // namespace pluvane
