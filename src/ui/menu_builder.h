// Menus of a window built from a table of items (name, caption, level): an
// item opens a sub-menu when the next item stands one level deeper, the
// others are actions named after their item that run a command by name.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "shell/main_menus.h"

namespace pluvane {

// Adds the table's menus to `bar`; a triggered action calls `run` with its
// item's name. The items named in `empty_menus` are sub-menus even without
// items of their own (filled later). Returns every action (sub-menus
// included) by name.
std::map<std::string, QAction*> BuildMenus(QMenuBar* bar, const std::vector<MenuItem>& items,
                                           const std::function<void(const std::string&)>& run,
                                           const std::vector<std::string>& empty_menus = {});

}  // namespace pluvane
