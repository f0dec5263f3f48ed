// A network session over a fresh drawing, a state sized as the shipped
// configuration makes it, a scripted user and a recent-files list in a
// temporary pluvane.ini.
#pragma once

#include <gtest/gtest.h>

#include "drawing/surface.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "network/network_session.h"
#include "shell/app_state.h"

namespace pluvane {

class SessionTest : public ::testing::Test {
 protected:
  SessionTest() {
    state_.AppPath = folder_.Path();
    state_.WorkDir = folder_.Path();
    state_.LogicWidth = 100000;
    state_.LogicHeight = 100000;
    state_.SymbolSize = 120;
    state_.LinkThick = 50;
    state_.ScreenBackColor = 16777215;
    state_.calibration.XLAMU = 1;
    surface_.SetScale(0, 0, state_.LogicWidth, state_.LogicHeight, 16384);
    recent_.SetIniFile(folder_.File("pluvane.ini"));
  }
  NetworkSession Session() { return {surface_, state_, ui_, recent_}; }

  TempFolder folder_;
  Surface surface_;
  AppState state_;
  ScriptedUi ui_;
  RecentFiles recent_;
};

}  // namespace pluvane
