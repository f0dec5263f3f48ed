// The edition of one calculation scenario: its duration, time step and mode
// in one grid, its rain in another, chosen from the rain list. Empty
// settings get their defaults as soon as the form opens.
#pragma once

#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/modal_form.h"
#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "simulation/simulation_state.h"

namespace pluvane {

class FrmScnSimParamPlus : public FormController {
 public:
  // Rows of Spread1.
  static constexpr int kRowDuree = 1;
  static constexpr int kRowDt = 2;
  static constexpr int kRowMode = 3;
  // Cells of Spread0.
  static constexpr int kColId = 1;
  static constexpr int kColUsId = 2;
  static constexpr int kColKind = 3;
  static constexpr int kColMode = 4;

  // `scenario` is the record's object number, `id` its name. The rain list
  // opens through `show_modal`.
  FrmScnSimParamPlus(Surface& surface, SimulationState& state, UserInterface& ui, int scenario,
                     std::string id, ShowModal show_modal);

  std::string Caption() const override { return "Paramétrage du scénario " + id_; }
  std::vector<Grid*> Grids() override { return {&spread1_, &spread0_}; }
  std::vector<FormCommand> Commands() override;
  // A click on the first cell of the rain opens the rain list.
  void ClickCell(Grid& grid, int col, int row) override;

  Grid& spread1() { return spread1_; }
  Grid& spread0() { return spread0_; }

  // A click on the first cell of Spread0: the rain list opens on the rain
  // shown, and a rain selected there takes the four cells.
  void ClickRain();
  void mnSave();
  void mnClose() { Close(); }

 private:
  std::string Tag(const char* name);
  // The tag, after writing `fallback` into it when it is empty.
  std::string TagOrDefault(const char* name, const char* fallback);

  Surface& surface_;
  SimulationState& state_;
  UserInterface& ui_;
  int scenario_;
  std::string id_;
  ShowModal show_modal_;
  Grid spread1_;
  Grid spread0_;
};

}  // namespace pluvane
