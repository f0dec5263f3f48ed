// What the network's file commands work on: the drawing, the application
// state, the person at the screen and the recent-files list.
#pragma once

#include "foundation/user_interface.h"
#include "network/recent_files.h"
#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

struct NetworkSession {
  Surface& surface;
  NetworkState& state;
  UserInterface& ui;
  RecentFiles& recent;
};

}  // namespace pluvane
