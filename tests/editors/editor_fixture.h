// What the editor tests share: a drawing, the network's state with its
// working folder in a fresh temporary folder, the scripted user, the viewer's
// state, and the context the forms are built on. Forms opened through the
// context are handed to `on_form`, which plays the user's part; plots shown
// are counted.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "drawing/surface.h"
#include "drawing/surface_guards.h"
#include "editors/editor_context.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "network/catalogue.h"
#include "network/network_state.h"

namespace pluvane {

class EditorTest : public ::testing::Test {
 protected:
  EditorTest() {
    state.WorkDir = folder.Path();
    state.AppPath = folder.Path();
  }

  // A rectangle with these tags, in order; returns its number. The cursor stays.
  int AddObject(const std::vector<std::pair<std::string, std::string>>& tags) {
    CursorKeeper keeper(surface);
    const int n = surface.AddObject(kKindRectangle, 0, 0, 100, 100);
    for (const auto& [name, value] : tags) surface.SetObjTag(name, value);
    return n;
  }
  std::string Tag(int object, const std::string& name) {
    CursorKeeper keeper(surface);
    surface.SetCurrentObject(object);
    return surface.ObjTag(name);
  }
  void SetTag(int object, const std::string& name, const std::string& value) {
    CursorKeeper keeper(surface);
    surface.SetCurrentObject(object);
    surface.SetObjTag(name, value);
  }

  TempFolder folder;
  Surface surface;
  NetworkState state;
  ScriptedUi ui;
  ViewerState viewer;
  // Plays the part of the user in a form opened by another one.
  std::function<void(FormController&)> on_form;
  int forms_shown = 0;
  std::vector<ViewerState> plots_shown;
  EditorContext context{surface,
                        state,
                        ui,
                        [this](FormController& form) {
                          ++forms_shown;
                          if (on_form) on_form(form);
                        },
                        viewer,
                        [this](ViewerState& shown) { plots_shown.push_back(shown); }};
};

}  // namespace pluvane
