// The interaction state machine of the main window's drawing: CurrentMode,
// the pending creation key and the link being drawn decide what a press, a
// move, a release or a key on the surface means. It works on the surface, the
// application state and the user port only; each event returns what the
// window must do (repaint, refresh its menus, set a cursor, show the bubble,
// open a form or a band, draw the rubber line).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "network/reach_creation.h"
#include "foundation/user_interface.h"
#include "network/create_mode.h"
#include "drawing/surface.h"
#include "shell/app_state.h"
#include "shell/shape_drawing.h"

namespace pluvane {

inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;

struct InteractionResult {
  bool repaint = false;
  bool refresh_menus = false;
  int cursor = 0;               // cursor picture number after the event, 0 the arrow
  bool bubble_visible = false;  // Text1, near the pointer
  std::string bubble_text;
  std::string open_form;       // a form to open by name ("frmEdit"), empty if none
  int form_object = 0;         // the object that form is about
  std::string open_band;       // a tool band to show ("RESO_CREATE_BV_C")
  std::string popup;           // a pop-up menu to show ("mnuPopUp_txt")
  std::string window_command;  // a tool the window runs itself ("MDSAVE", "X_PARAM")
  // The logical start of the rubber line of a link being drawn, none when no
  // link is pending.
  std::optional<std::pair<double, double>> rubber_start;
  // The shape being drawn with a drawing tool, none when none is.
  std::optional<RubberShape> rubber_shape;
};

class MainInteraction {
 public:
  MainInteraction(Surface& surface, AppState& state, UserInterface& ui);

  // The main window's caption, the title of the placement messages.
  void SetCaption(std::string caption) { caption_ = std::move(caption); }
  // How the window shows a modal form (the reach number at the end of "ADDBIEF").
  void SetShowModal(ShowModalForm show_modal) { show_modal_ = std::move(show_modal); }
  // Whether the tool bar keeps the creation mode after a node was placed.
  void SetStayArmed(bool stay) { stay_armed_ = stay; }

  const std::string& CurrentMode() const { return state_.CurrentMode; }
  PlacementState& placement() { return placement_; }
  const PlacementState& placement() const { return placement_; }
  // The right-click data access (Ctrl+Shift+Alt+F12), off at start: the window
  // checks its menu item by it.
  bool DataAccess() const { return data_access_; }
  bool LinkArrows() const { return link_arrows_; }
  // The cursor picture number the surface asks for, 0 for the arrow.
  int CursorNumber() const;
  bool BubbleVisible() const { return bubble_visible_; }
  const std::string& BubbleText() const { return bubble_text_; }

  // A click on a tool of the bands: the reset, then the key arms its mode.
  // The pop-up's text rotation arms "MDROTATE" the same way.
  InteractionResult ToolClick(std::string_view key);
  // Arms a creation key from a form (frmCalage's New): "CREATE OBJ" with the
  // key and the point the click will place; an empty key disarms.
  InteractionResult ArmCreationKey(std::string_view key, const std::string& point_id = "");
  // A drawing tool of the menus (mnuSelect...Mode, MnuPlace..., mnuPlaceLink,
  // mnuUtil_PlaceTxt, the shapes of the actions pop-up): the reset, then its
  // edit mode. False for a name that is not a drawing tool.
  std::optional<InteractionResult> DrawingTool(const std::string& menu);
  // Status cleared, bubble hidden and empty, no mode nor key, edit mode 11,
  // cursor 0, selection enabled, SelectionAllowed 23.
  InteractionResult ResetInteraction();

  // The mouse on the drawing: `hit` is the object under the pointer (0 if
  // none), (x, y) the logical position, `shift` 1 Shift, 2 Ctrl, 4 Alt.
  InteractionResult Press(int button, int shift, int hit, double x, double y);
  // The pointer moves over (x, y), above the object `hit`.
  InteractionResult Move(double x, double y, int hit = 0);
  // `drawn_object`: the shape the surface has just drawn, if any.
  InteractionResult Release(int button, int shift, int drawn_object = 0);
  // The same where the button was released, at (x, y).
  InteractionResult ReleaseAt(int button, int shift, double x, double y);
  // A double click on the drawing: ends a polyline, a polygon or a curve.
  InteractionResult DoubleClick(double x, double y);
  // The zoom rectangle drawn in "ZOOMF".
  InteractionResult ZoomRectangle(double left, double top, double right, double bottom);
  // A key on the drawing, with its old code.
  InteractionResult Key(int code, int shift);

  // Whether Move needs the object under the pointer (the bubbles).
  bool WantsHoverHit() const;

 private:
  InteractionResult Finish(InteractionResult result = {}) const;
  void Reset();
  void ArmMode(std::string_view mode);
  InteractionResult RunViewCommand(const std::string& command);
  PlacementContext Context();

  int NodeBeneath(int hit, double x, double y);
  void PressOnMode(int button, int hit, InteractionResult& result);
  void ReleaseOnMode(int button, int shift, int drawn_object, InteractionResult& result);
  void RightRelease(InteractionResult& result);
  void DeleteSelected(InteractionResult& result);
  void MoveSelection(int dx, int dy);
  std::string TagsText(int object);
  // Whether the mouse draws with a drawing tool (no mode, or the texts' rotation).
  bool Drawing() const;
  // Drawing the circle of the radius of action, in the creation mode.
  bool DrawingRayon() const;

  // Link editing is called from these.
  void OnBreakRelease(InteractionResult& result);
  void OnFusionRelease(InteractionResult& result);
  void OnBreakHover(double x, double y, int hit);
  void OnCopy(InteractionResult& result);
  void OnPaste(InteractionResult& result);

  Surface& surface_;
  AppState& state_;
  UserInterface& ui_;
  std::string caption_ = "Pluvane";
  ShowModalForm show_modal_;
  bool stay_armed_ = true;
  PlacementState placement_;
  bool data_access_ = false;
  bool link_arrows_ = false;
  bool bubble_visible_ = false;
  std::string bubble_text_;
  ShapeDrawing drawing_;
  double last_x_ = 0, last_y_ = 0;  // where the pointer was last seen
};

}  // namespace pluvane
