// The calibration form: the map coordinates of the three calibration points.
// While it is open the points are visible symbols; New arms the placement of
// a point on the drawing, Ok solves the map from the points and recomputes
// the map coordinates of the network, and closing hides the points again.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

// What the form asks of the main window.
struct CalageHost {
  // False while the form is open: the menus and tool bands of the main window
  // are out of reach, the drawing still takes the click that places a point.
  std::function<void(bool enabled)> EnableMainWindow;
  // Arms the creation key (X_CALAGE) and the name the next point placed will
  // take; both empty disarm it.
  std::function<void(const std::string& key, const std::string& point_id)> ArmPlacement;
};

class FrmCalage : public FormController {
 public:
  static constexpr int kDecimals = 2;
  static constexpr int kWidth = 16;

  FrmCalage(Surface& surface, NetworkState& state, UserInterface& ui, CalageHost host = {});
  // A form that goes without a command still hides its points.
  ~FrmCalage() override;
  FrmCalage(const FrmCalage&) = delete;
  FrmCalage& operator=(const FrmCalage&) = delete;

  std::string Caption() const override { return "Définition des points de calage"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }
  bool NewEnabled() const { return new_enabled_; }
  bool DelEnabled() const { return del_enabled_; }
  // The point waiting for its click on the drawing, empty if none.
  const std::string& PendingPoint() const { return pending_; }

  void cmdNew();
  void cmdDel();
  void cmdOk();
  // Closes without solving.
  void cmdCancel() { Unload(); }
  // The point of the row becomes the only selection of the drawing (the grid
  // calls this when its cursor moves).
  void SelectRow(int row);
  // Told once frmInfoCalage has closed on the point placed (or deleted it on
  // Cancel): its row shows what stands, and the placement is disarmed.
  void PointPlaced(const std::string& point_id);

 private:
  void ShowRow(int row);
  void UpdateButtons();
  void OfferFirstEmptyRow();
  void Disarm();
  void Unload();

  Surface& surface_;
  NetworkState& state_;
  UserInterface& ui_;
  CalageHost host_;
  Grid grid_;
  std::string pending_;
  bool new_enabled_ = true;
  bool del_enabled_ = false;
};

}  // namespace pluvane
