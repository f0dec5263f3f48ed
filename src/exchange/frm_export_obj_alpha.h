// The form "Export de données alpha vers un autre Mtf": the kind of library
// records to copy, picked in a list (or typed as a number and ":"), and the
// network file they go into, typed or chosen by a double click. Go copies
// them (exchange/obj_alpha_export.h) and closes the form; a refusal leaves
// it open.
#pragma once

#include <string>
#include <vector>

#include "drawing/surface.h"
#include "foundation/form_controller.h"
#include "foundation/user_interface.h"
#include "network/network_state.h"

namespace pluvane {

// The command that opens the form is refused when the drawing has fewer than
// two nodes: "Un réseau doit être chargé.". True when the form may open.
bool ObjAlphaNetworkLoaded(Surface& surface, UserInterface& ui);

class FrmExportObjAlpha : public FormController {
 public:
  // Rows of the grid.
  static constexpr int kRowType = 1;  // cboTags
  static constexpr int kRowFile = 2;  // txtFicMtf

  FrmExportObjAlpha(Surface& surface, const NetworkState& state, UserInterface& ui);

  std::string Caption() const override { return "Export de données alpha vers un autre Mtf"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;
  void DoubleClickCell(Grid& grid, int col, int row) override;

  Grid& grid() { return grid_; }
  void cmdGo();
  void cmdCancel() { Close(); }

 private:
  Surface& surface_;
  const NetworkState& state_;
  UserInterface& ui_;
  Grid grid_;
};

}  // namespace pluvane
