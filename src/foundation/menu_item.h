// One item of a menu table: its name, its caption and its depth. The windows
// build their menu bars from such tables.
#pragma once

#include <string_view>

namespace pluvane {

struct MenuItem {
  std::string_view name;     // "mnuFile_Open"
  std::string_view caption;  // "&Ouvrir..."
  int level;                 // 0 a menu of the bar, 1 its item, 2 an item of a sub-menu...
};

}  // namespace pluvane
