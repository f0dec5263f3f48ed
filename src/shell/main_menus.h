// The menus, tool bands and pop-up menus of the main window, as tables: every
// item with its name and caption. The window builds its menus from them; an
// item whose command is not built yet tells so in the status bar.
#pragma once

#include <string_view>
#include <vector>

#include "foundation/menu_item.h"

namespace pluvane {

// The menu bar, in order; each item follows its parent at the next level.
const std::vector<MenuItem>& MainMenus();

struct ToolItem {
  std::string_view band;     // "DisplayManagerBand", "RESO_CREATE"...
  std::string_view key;      // "MDDELETE", "X_NOD"...
  std::string_view tip;      // caption or tip
};

// The tools of the bands, in order.
const std::vector<ToolItem>& ToolBands();

// The items of the pop-up menus myActionPopup and mnuPopUp_txt.
const std::vector<MenuItem>& PopupMenus();

// What a command not built in this version says in the status bar.
inline constexpr const char* kNotAvailable = "Fonction non disponible dans cette version.";

}  // namespace pluvane
