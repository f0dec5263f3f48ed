// Placing elements on the drawing: the style of a new link, a point element
// with its symbol picture and default tags, a link element between two
// objects, and the hydrological complex (an outlet on a node, a catchment
// around it and the route between them). Each is one undo step.
#pragma once

#include <cstdint>
#include <string_view>

#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

// The style of the links of a key: line colour, width (negative: logical
// units, LinkThick scaled by the zoom when symbols follow it) and style.
struct LinkStyle {
  std::int32_t color = 0;
  double width = 0;
  int style = 0;
};
LinkStyle LinkStyleOfKey(const NetworkState& state, std::string_view key);

// Sets the defaults of the next objects (line colour, width, style) to the
// style of links of that key. Widths are negative: logical units.
void PrepareLink(Surface& surface, const NetworkState& state, std::string_view key);

// Creates a point element of the key at (x, y), or on `target_node` when one
// is given, and returns its number; 0, after the "Draw_A_Symbol" message,
// when its symbol picture cannot be found or loaded.
int DrawSymbol(Surface& surface, NetworkState& state, UserInterface& ui, double x, double y,
               std::string_view key, int target_node = 0);

// Creates a link element of the key from object1 (upstream) to object2 and
// returns its number; 0 when an object number is under 1.
int DrawLink(Surface& surface, NetworkState& state, std::string_view key, int object1, int object2,
             int marker0, int marker1);

// The import twin, by type number: equal ends are refused (0), the width is
// the one of the link style, tags come from the import path of the catalogue.
int DrawLinkByNumber(Surface& surface, NetworkState& state, int i_name, int object1, int object2);

// The objects a hydrological complex made; 0 for what could not be made.
struct HydrologicalComplex {
  int outlet = 0;
  int catchment = 0;
  int route = 0;
};

// A catchment released on a node or a catchment outlet (iName 3): the outlet
// is made on the node if needed, then a catchment one eighth of a turn further
// round it than the routes already there, 10 symbol sizes away, and the route
// from the catchment to the outlet.
HydrologicalComplex PlaceHydrologicalComplex(Surface& surface, NetworkState& state, UserInterface& ui,
                                             int hit_object);

}  // namespace pluvane
