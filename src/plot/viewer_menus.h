// The menus of the plot viewer window, as a table: every item with its name
// and caption, in the form of the main window's menus.
#pragma once

#include <vector>

#include "foundation/menu_item.h"

namespace pluvane {

// The viewer's menu bar, in order; each item follows its parent at the next level.
const std::vector<MenuItem>& ViewerMenus();

}  // namespace pluvane
