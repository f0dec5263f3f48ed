// Finding an element on the drawing by its Id or its label, at the user's
// request (the keys Ctrl+D and Ctrl+F, the Util menu): the elements found are
// listed, selected, and the view zooms on the first.
#pragma once

#include <string_view>

#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

inline constexpr const char* kLocateTitle = "Localisation d'élément";

// Asks the designation, finds every object whose tag `tag_name` ("Id" or
// "libell") equals it without regard to case, tells what was found, selects it
// and zooms around the first. Returns how many were found.
int LocateElement(Surface& surface, NetworkState& state, UserInterface& ui, std::string_view tag_name);

// Makes the object current and the only one selected, and zooms around it.
void ShowElement(Surface& surface, NetworkState& state, int object);

}  // namespace pluvane
