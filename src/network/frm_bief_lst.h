// The list of reaches (mnuOpt_Bief_Old): one row for each reach, its number
// in a cell the user may change, and the collectors of the selected reach in
// a second grid, by label in rank order. Selecting a row highlights the
// reach's line on the drawing in the style of reaches. Delete only marks a
// row; Save renumbers (and deletes the marked); Ok removes the marked reaches.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

// The line drawn over a reach's collectors; no points when nothing is shown.
struct ReachHighlight {
  std::vector<Point> points;
  std::int32_t color = 0;
  double width = 0;  // negative: logical units
  int style = 0;
};

class FrmBiefLst : public FormController {
 public:
  // Background of a row marked for deletion.
  static constexpr std::int32_t kMarkedColour = 14737632;

  FrmBiefLst(Surface& surface, NetworkState& state, UserInterface& ui,
             std::function<void(const ReachHighlight&)> highlight = {});
  ~FrmBiefLst() override;
  FrmBiefLst(const FrmBiefLst&) = delete;
  FrmBiefLst& operator=(const FrmBiefLst&) = delete;

  std::string Caption() const override { return "Liste des biefs"; }
  std::vector<Grid*> Grids() override { return {&reaches_, &collectors_}; }
  std::vector<FormCommand> Commands() override;

  Grid& reaches() { return reaches_; }
  Grid& collectors() { return collectors_; }
  const ReachHighlight& Highlight() const { return highlight_; }

  // Shows the collectors of the reach of the row and highlights its line
  // (the grid calls this when its cursor moves to another row).
  void SelectRow(int row);
  // Marks the cursor's row for deletion: grey, and its number "0".
  void mnDel();
  // Renumbers the reaches from the grid, deleting the marked ones, after
  // checking that no number is given twice; then the form unloads.
  void mnSave();
  // Removes the reaches of the marked rows and closes.
  void cmdOk();

 private:
  void ShowHighlight(ReachHighlight highlight);
  void Unload();

  Surface& surface_;
  NetworkState& state_;
  UserInterface& ui_;
  std::function<void(const ReachHighlight&)> on_highlight_;
  Grid reaches_;
  Grid collectors_;
  std::vector<std::string> numbers_;  // the number of each row's reach, as listed
  ReachHighlight highlight_;
  int shown_row_ = 0;
};

}  // namespace pluvane
