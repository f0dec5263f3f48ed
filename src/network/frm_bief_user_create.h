// The small form that asks the number of the reach being created: a grid
// "N° Bief" lists the numbers in use, locked, and offers one new row where the
// user types the new number. Ok leaves the number in state.PendingReach;
// Cancel leaves "ANNUL" and no reach is made.
#pragma once

#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

class FrmBiefUserCreate : public FormController {
 public:
  FrmBiefUserCreate(Surface& surface, NetworkState& state, UserInterface& ui);

  std::string Caption() const override { return "Création d'un nouveau Bief"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }
  // How many rows list the numbers in use.
  int UsedRows() const { return used_rows_; }
  // What the form gave: the number typed, "ANNUL" after Cancel, empty while open.
  const std::string& Result() const { return result_; }

  // Adds a row for typing.
  void cmdAdd();
  // One number typed, not already used: it becomes state.PendingReach.
  void cmdOk();
  void cmdAnnul();

 private:
  Surface& surface_;
  NetworkState& state_;
  UserInterface& ui_;
  Grid grid_;
  int used_rows_ = 0;
  std::string result_;
};

}  // namespace pluvane
