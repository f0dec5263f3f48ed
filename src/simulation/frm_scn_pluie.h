// The older choice of a rain, kept in the one rain-scenario record of the
// drawing (kind 109, Id "ScnPluie"): a list of every rain of kinds 103 to 108
// and the scenario's title. Its table is saved on the record and shown again
// at the next opening.
#pragma once

#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "simulation/simulation_state.h"

namespace pluvane {

inline constexpr const char* kScnPluieId = "ScnPluie";

// The list entry of the rain record that is current: for kinds 103 and 108
// "kind : Id : Design : iMode", for the design storms the kind, " : ", the Id,
// the kind's text (" : Pluie Caquot : "...) and the Design.
std::string RainChoiceItem(Surface& surface, int kind);

class FrmScnPluie : public FormController {
 public:
  static constexpr int kRows = 2;
  static constexpr int kColChoice = 1;
  static constexpr int kColTitle = 2;
  static constexpr int kColType = 3;

  FrmScnPluie(Surface& surface, SimulationState& state, UserInterface& ui);

  std::string Caption() const override { return "Scénario de pluie"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }

  void cmdOk();
  void cmdAnnul() { Close(); }

 private:
  Surface& surface_;
  SimulationState& state_;
  Grid grid_;
};

}  // namespace pluvane
