// Test fixture for the editors that work on a drawn network: the model
// fixture's drawing and folder (the working folder too), with the placement
// of nodes, links and elements and the generation of the model files, and an
// editor context whose further forms are run by a script of the test and
// whose plots are recorded.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "editors/editor_context.h"
#include "simulation/model_fixture.h"

namespace pluvane {

class NetworkEditorTest : public ModelTest {
 protected:
  NetworkEditorTest() { state.WorkDir = folder.Path(); }

  // The objects selected on the drawing, in creation order.
  std::vector<int> Highlighted() {
    std::vector<int> selected;
    for (int n = surface.NextObjectNumber(0); n > 0; n = surface.NextObjectNumber(n)) {
      if (surface.IsSelected(n)) selected.push_back(n);
    }
    return selected;
  }

  ViewerState viewer;
  std::function<void(FormController&)> on_form;
  std::vector<std::string> shown_forms;
  std::vector<std::string> viewer_scripts;
  // The context the main window gives a form: further forms are handed to
  // `on_form`, which plays the user's part in them.
  EditorContext context{surface,
                        state,
                        ui,
                        [this](FormController& form) {
                          shown_forms.push_back(form.Caption());
                          if (on_form) on_form(form);
                        },
                        viewer,
                        [this](ViewerState& shown) { viewer_scripts.push_back(shown.script); }};
};

}  // namespace pluvane
