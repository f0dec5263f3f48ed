// The rules of the "CREATE OBJ" mode of the main window, without the mouse:
// what a press and a release on the surface mean for the key being placed.
// The window gives the object under the pointer and the logical position;
// these functions change the drawing, tell the user through the port, and
// return what the window must do next (repaint, refresh its menus, open a
// form, leave the mode).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

// The placement state of the main window.
struct PlacementState {
  std::string CreationKey;  // the key being placed, "X_..."
  int NextIName = 0;        // the next-creation pair of the key
  int NextIGroup = 0;
  int HitObject = 0;   // object under the pointer at the last press, 0 if none
  int TargetNode = 0;  // HitObject when it is a node the element may go on
  int ClickCount = 0;  // presses of the link being drawn: 0, 1 or 2
  int FirstEnd = 0;
  int SecondEnd = 0;
  std::int32_t PointerX = 0;  // logical position of the last press
  std::int32_t PointerY = 0;
  bool CancelRelease = false;      // set at the press to make the release do nothing
  std::string PendingCalagePoint;  // "Pt1" to "Pt3", the calibration point to place
};

// What the window works with during a placement.
struct PlacementContext {
  Surface& surface;
  NetworkState& state;
  UserInterface& ui;
  std::string caption;     // the main window's caption, title of the placement messages
  bool stay_armed = true;  // the tool bar keeps the mode after a node is placed
};

// What the window must do after a press or a release.
struct PlacementResult {
  int created = 0;                // the element or link made, 0 if none
  bool refresh = false;           // repaint the surface
  bool refresh_menus = false;     // RefreshMenus
  bool open_info_calage = false;  // frmInfoCalage for the new calibration point
  bool open_plu_rayon = false;    // frmPluRayon for the radius of action
  bool leave_mode = false;        // ResetInteraction
};

// Arms a key: its next-creation pair, and no pending link.
void ArmCreation(PlacementState& placement, std::string_view key);
// Forgets the link being drawn (Esc).
void CancelPendingLink(PlacementState& placement);

// The press on the surface: `hit` is the object under the pointer (0 if
// none) and (x, y) the logical position.
PlacementResult PressInCreateMode(PlacementContext& context, PlacementState& placement, int hit,
                                  std::int32_t x, std::int32_t y);

// The release after that press (left button). `drawn_object` is the shape the
// surface has just drawn, for X_RAYON's ellipse.
PlacementResult ReleaseInCreateMode(PlacementContext& context, PlacementState& placement,
                                    int drawn_object = 0);

}  // namespace pluvane
