// The commands of the main window that act on the view rather than on the
// network: the zooms, the refresh of symbol sizes, the direction arrows of the
// links, the grid, the scroll bars and the screen colour.
#pragma once

#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "shell/app_state.h"

namespace pluvane {

// Marker positions of a link: its upstream end, and its middle where the
// direction arrow stands.
inline constexpr int kMarkerUpstream = 0;
inline constexpr int kMarkerMiddle = 4;
// The arrow head shape of a marker.
inline constexpr int kMarkerArrow = 5;

// "ZoomM": the view twice as wide and high about its centre.
bool ZoomOut(Surface& surface, AppState& state);

// MDREFRESH: brings every element symbol (pictures with an iName from 1 to 99)
// back to the size the symbol size gives a node, scaling each about its centre
// by the ratio of SymbolSize to the present half size of a node, so that what
// stands on a node keeps covering it. Returns how many symbols changed.
int RefreshSymbolSizes(Surface& surface, const AppState& state);

// MDSHOWLNKARROW: with `on`, every link (iGroup 2) loses its upstream marker
// and gets an arrow head in its middle in its line colour; without, the arrow
// goes. The progress bar follows the walk. Returns how many links were set.
int ShowLinkArrows(Surface& surface, const AppState& state, UserInterface& ui, bool on);

// MDGRID: switches the grid, its step 124 / ZoomFactor (124 below a factor of
// 0.001), and says so in the status line.
void ToggleGrid(Surface& surface, const AppState& state, UserInterface& ui);

// MDASCENS: shows or hides the scroll bars.
void ToggleScrollBars(Surface& surface);

// MDCOBACK: the colour dialog; a colour of at least 1 becomes the page and
// background colours and is kept as `CoBack Ecran` in the configuration.
bool ChooseScreenColour(Surface& surface, AppState& state, UserInterface& ui);

}  // namespace pluvane
