// The drawing of the rain tests: the scenario tests' page and map, and the
// records of the rain library as their forms leave them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "editors/editor_context.h"
#include "foundation/expect_message.h"
#include "network/catalogue.h"
#include "plot/plot_viewer.h"
#include "rain/rain_records.h"
#include "simulation/scenario_fixture.h"

namespace pluvane {

class RainTest : public ScenarioTest {
 protected:
  // The forms opened from a form go to `on_form`, in order; the viewer's
  // openings are counted with the script shown.
  EditorContext Context() {
    return EditorContext{surface_,
                         state_,
                         ui_,
                         [this](FormController& form) {
                           ++forms_opened_;
                           if (on_form_) on_form_(form);
                         },
                         viewer_,
                         [this](ViewerState& viewer) { shown_.push_back(viewer.script); }};
  }
  std::function<void(FormController&)> on_form_;
  int forms_opened_ = 0;
  ViewerState viewer_;
  std::vector<std::string> shown_;

  int AddMontana(const std::string& id, const std::string& ca, const std::string& cb,
                 const std::string& design = "Paris", const std::string& pret = "10") {
    const int n = AddRainRecord(surface_, state_, kINameMontana, id);
    surface_.SetObjTag("Design", design);
    surface_.SetObjTag("Pret", pret);
    surface_.SetObjTag("Ca", ca);
    surface_.SetObjTag("Cb", cb);
    return n;
  }
  int AddStorm(int kind, const std::string& id, const std::string& ref_tag,
               const std::string& montana, const std::string& ca_tag, const std::string& ca,
               const std::string& cb_tag, const std::string& cb) {
    const int n = AddRecord(kind, id);
    surface_.SetObjTag(ref_tag, montana);
    surface_.SetObjTag(ca_tag, ca);
    surface_.SetObjTag(cb_tag, cb);
    return n;
  }
  bool Exists(int number) {
    for (int n = surface_.NextObjectNumber(0); n > 0; n = surface_.NextObjectNumber(n)) {
      if (n == number) return true;
    }
    return false;
  }
  int Count(int kind) { return static_cast<int>(RecordsOfKind(surface_, kind).size()); }
};

}  // namespace pluvane
