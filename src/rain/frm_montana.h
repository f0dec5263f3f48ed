// The library of Montana coefficients: one row per entry (kind 102). A rename
// reaches every design storm that refers to the entry; a save pushes the
// coefficients to the first storm of each kind only, as it always did.
#pragma once

#include <string>
#include <vector>

#include "drawing/surface.h"
#include "foundation/form_controller.h"
#include "rain/montana_columns.h"
#include "foundation/user_interface.h"
#include "network/network_state.h"
#include "rain/id_column.h"

namespace pluvane {

class FrmMontana : public FormController {
 public:
  static constexpr int kColId = kMontanaColId;
  static constexpr int kColDesign = kMontanaColDesign;
  static constexpr int kColPret = kMontanaColPret;
  static constexpr int kColCa = kMontanaColCa;
  static constexpr int kColCb = kMontanaColCb;

  FrmMontana(Surface& surface, const NetworkState& state, UserInterface& ui);

  std::string Caption() const override { return "Coefficients régionaux de Montana"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;
  // Leaving an identifier that was changed renames the entry.
  void LeaveCell(Grid& grid, int col, int row) override;

  Grid& grid() { return grid_; }

  void mnAdd();
  void mnIns();
  void mnDel();
  void mnSave();
  void mnQuit() { Close(); }

 private:
  void Rename(const std::string& old_id, const std::string& new_id);
  void PushToFirstStorms(const std::string& id, const std::string& ca, const std::string& cb);

  Surface& surface_;
  const NetworkState& state_;
  UserInterface& ui_;
  Grid grid_;
  IdColumnMemory ids_;
};

}  // namespace pluvane
