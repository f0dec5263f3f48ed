// The list of all rains of the network, from which a calculation scenario
// takes its rain: one row per rain record of every kind, the current
// scenario's rain preselected. Select leaves the chosen rain in the
// application state with the state "ScnPluieSelected".
#pragma once

#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "network/catalogue.h"
#include "simulation/simulation_state.h"

namespace pluvane {

// The state the list leaves when a rain was taken.
inline constexpr const char* kScnPluieSelected = "ScnPluieSelected";
// The kinds the list shows, in the order it loads them.
inline constexpr int kRainListKinds[] = {
    kINameRealRain,      kINameCaquot,    kINameSimpleTriangle, kINameDoubleTriangle,
    kINameSynthetic,     kINameRadar,     kINameExternalGauge,  kINameExternalHyeto};

class FrmPluieListe : public FormController {
 public:
  static constexpr int kColId = 1;
  static constexpr int kColUsId = 2;
  static constexpr int kColKind = 3;
  static constexpr int kColMode = 4;
  static constexpr int kColExternal = 5;

  // Opens on the rain of state.IdPluie, UsIdPluie, iPluie, iModePluie, and
  // clears state.ScnPluieState. Two gauges of one libell stop the list at once.
  FrmPluieListe(Surface& surface, SimulationState& state, UserInterface& ui);

  std::string Caption() const override { return "Liste des pluies"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }

  // Takes columns 1 to 4 of the current row as the selected rain.
  void mnuSelect();
  // Import goes through the external rain library; this entry does nothing.
  void mnuImport() {}
  void mnuClose() { Close(); }

 private:
  void Load();
  bool GaugeNamesAreUnique();
  void Preselect();

  Surface& surface_;
  SimulationState& state_;
  UserInterface& ui_;
  Grid grid_;
};

}  // namespace pluvane
