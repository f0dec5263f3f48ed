// The count of links at each node (tag iLink), rebuilt from the drawing: the
// repair command mnuMyUtil_Nod_iLinkUpdate, also run by the merge of networks.
#pragma once

#include "drawing/surface.h"

namespace pluvane {

// Every node (iName 99) gets iLink 0, then each link element (iGroup 2) adds
// one to the node at each of its ends. Returns how many links were counted.
// The cursor is kept.
int RecountNodeLinks(Surface& surface);

}  // namespace pluvane
