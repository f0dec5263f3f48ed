// Fusing the two collectors at a node into one (the "MDFUSION" mode): the
// upstream collector takes precedence, so the new link has its type, Id,
// label, reach and hydraulic values, with the summed length, the upstream
// level of the first and the downstream level of the second. The node goes,
// and with it what stood on it, after the user agreed.
#pragma once

#include "network/create_mode.h"

namespace pluvane {

// Replaces the link reaching `node` and the collector leaving it by one link,
// and deletes the node. When point or regulating elements stand on the node,
// the user is asked first ("Fusion de collecteurs"); No stops with nothing
// changed. Without both a link in and a link out:
// "LinkBreakMode: attention obj. non cohérents". The downstream collector
// leaves its reach. Returns the new link, 0 when none was made. One undo step.
int FuseAtNode(PlacementContext& context, int node);

// The release of the left button in "MDFUSION" on the object `hit` (0 for
// none): a node with other than 2 links gets "Fusion impossible quand il y a
// plus de 2 liaisons !" ("Fusion de liaisons"); a node with 2 is fused.
// Anything else does nothing.
void ReleaseInFusionMode(PlacementContext& context, int hit);

}  // namespace pluvane
