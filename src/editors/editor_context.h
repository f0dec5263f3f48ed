// What an element editor works on: the network's drawing and state, the
// user, and the host's ways to open a further form (the curve editor) and to
// show a plot in the viewer.
#pragma once

#include "drawing/surface.h"
#include "foundation/modal_form.h"
#include "foundation/user_interface.h"
#include "network/network_state.h"
#include "plot/plot_viewer.h"

namespace pluvane {

struct EditorContext {
  Surface& surface;
  NetworkState& state;
  UserInterface& ui;
  ShowModal show_form;
  ViewerState& viewer;
  ShowViewer show_viewer;
};

}  // namespace pluvane
