// The choice of the current calculation scenario among the scenario records.
// Ok makes it current: the application state takes its name and settings,
// the status panel shows it, and the drawing keeps it in its current-scenario
// record for the next opening.
#pragma once

#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "simulation/simulation_state.h"

namespace pluvane {

class FrmScnSimParamSelect : public FormController {
 public:
  FrmScnSimParamSelect(Surface& surface, SimulationState& state, UserInterface& ui);

  std::string Caption() const override { return "Choix d'un scenario de simulation"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }

  void cmdOk();
  void cmdAnnul() { Close(); }

 private:
  void WriteCurrentScenarioRecord(const std::string& id, const std::string& title);

  Surface& surface_;
  SimulationState& state_;
  UserInterface& ui_;
  Grid grid_;
};

}  // namespace pluvane
