// The library of calculation scenarios: one row per scenario record (kind
// 111) with its name and title, and a button that opens its edition. New
// rows create their record at once; a new scenario may take over the
// settings of the scenario that was current.
#pragma once

#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/modal_form.h"
#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "simulation/simulation_state.h"

namespace pluvane {

class FrmScnSimParam : public FormController {
 public:
  static constexpr int kColId = 1;
  static constexpr int kColUsId = 2;
  static constexpr int kColEdit = 3;

  FrmScnSimParam(Surface& surface, SimulationState& state, UserInterface& ui, ShowModal show_modal);

  std::string Caption() const override { return "Scénarii de simulation"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;
  // The "&Editer..." button of a row opens that scenario's edition.
  void ButtonCell(Grid& grid, int col, int row) override;

  Grid& grid() { return grid_; }
  // The Ids of the records the last save deleted.
  const std::vector<std::string>& DeletedIds() const { return deleted_; }

  void mnAdd();
  void mnIns();
  void mnDel();
  void mnSave();
  void mnClose() { Close(); }
  // The user left the first cell of the row after changing it from `old_id`.
  void RenameRow(int row, const std::string& old_id);
  // The button "&Editer..." of the row.
  void EditRow(int row);

 private:
  // Names the row "Scn-" and its number ("-1" behind a double) and creates
  // its record; returns the record.
  int NameNewRow(int row);
  void CopySettings(const std::string& from_id, int to);

  Surface& surface_;
  SimulationState& state_;
  UserInterface& ui_;
  ShowModal show_modal_;
  Grid grid_;
  std::vector<std::string> deleted_;
};

}  // namespace pluvane
