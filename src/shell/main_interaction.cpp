#include "shell/main_interaction.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "network/deletion.h"
#include "network/element_editing.h"
#include "network/georeferencing.h"
#include "network/link_breaking.h"
#include "network/link_fusion.h"
#include "network/locate_element.h"
#include "network/move_rules.h"
#include "network/network_summary.h"
#include "network/network_clipboard.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"
#include "network/topology.h"
#include "network/view_zoom.h"
#include "shell/interaction_modes.h"
#include "shell/main_keys.h"
#include "shell/view_commands.h"

namespace pluvane {

namespace {

// MousePointerKind of a cursor taken from the picture library (MouseIcon).
constexpr int kCustomPointer = 99;
constexpr std::string_view kRayonKey = "X_RAYON";
// Arrow steps of the selection, in logical units.
constexpr int kArrowStep = 10;
constexpr int kArrowStepShift = 100;

bool IsBinodalKey(std::string_view key) {
  const auto pair = NextCreationPair(key);
  return pair && pair->i_group == kGroupLink;
}

// Keys of elements that stand on a node only.
bool IsUninodalKey(std::string_view key) {
  const auto pair = NextCreationPair(key);
  if (!pair || (pair->i_group != kGroupPoint && pair->i_group != kGroupRegulator)) return false;
  const int i_name = INameOfKey(key);
  return i_name != kINameBV && i_name != kINamePLU && i_name != kINameCalage;
}

// The user coordinate as the status bar shows it: two decimals at most.
std::string Coordinate(double value) { return NumToText(std::round(value * 100) / 100); }

}  // namespace

MainInteraction::MainInteraction(Surface& surface, AppState& state, UserInterface& ui)
    : surface_(surface), state_(state), ui_(ui), drawing_(surface, state, ui) {}

int MainInteraction::CursorNumber() const {
  return surface_.MousePointerKind() == kCustomPointer ? surface_.MouseIcon() : 0;
}

bool MainInteraction::WantsHoverHit() const {
  return state_.CurrentMode == kModeBubble || state_.CurrentMode == kModeBreak;
}

PlacementContext MainInteraction::Context() {
  return PlacementContext{surface_, state_, ui_, caption_, stay_armed_};
}

InteractionResult MainInteraction::Finish(InteractionResult result) const {
  result.cursor = CursorNumber();
  result.bubble_visible = bubble_visible_;
  result.bubble_text = bubble_text_;
  if (state_.CurrentMode == kModeCreate && placement_.ClickCount == 1 && placement_.FirstEnd > 0 &&
      IsBinodalKey(placement_.CreationKey) &&
      surface_.ObjectShape(placement_.FirstEnd) != nullptr) {
    result.rubber_start = ObjectCentre(surface_, placement_.FirstEnd);
  }
  if (Drawing()) result.rubber_shape = drawing_.Rubber();
  return result;
}

void MainInteraction::Reset() {
  ui_.ShowStatus("");
  bubble_visible_ = false;
  bubble_text_.clear();
  state_.CurrentMode.clear();
  placement_.CreationKey.clear();
  placement_.PendingCalagePoint.clear();
  CancelPendingLink(placement_);
  placement_.CancelRelease = false;
  drawing_.Cancel();
  surface_.SetEditMode(kEditSelection);
  surface_.SetMousePointerKind(0);
  surface_.SetMouseIcon(0);
  surface_.SetSelectionEnabled(true);
  surface_.SetSelectionAllowed(kSelectionAllowedAll);
}

InteractionResult MainInteraction::ResetInteraction() {
  Reset();
  InteractionResult result;
  result.repaint = true;
  return Finish(result);
}

void MainInteraction::ArmMode(std::string_view mode) {
  state_.CurrentMode = std::string(mode);
  if (mode == kModeRotate) {
    surface_.SetEditMode(kEditRotation);
    drawing_.SetTextsOnly(true);
  }
  const ModeEntry* entry = ModeEntryOf(mode);
  if (entry == nullptr) return;
  if (entry->cursor > 0) {
    surface_.SetMousePointerKind(kCustomPointer);
    surface_.SetMouseIcon(entry->cursor);
  }
  if (!entry->status.empty()) ui_.ShowStatus(std::string(entry->status));
}

InteractionResult MainInteraction::ToolClick(std::string_view key) {
  Reset();
  const ToolBinding binding = ToolBindingOf(key);
  InteractionResult result;
  switch (binding.action) {
    case ToolAction::kNone:
      break;
    case ToolAction::kArmMode:
      if (binding.target == kModeEditAll) {
        if (surface_.ObjectCount(kPage) == 0) break;
        result.open_form = "frmEdit";
      }
      ArmMode(binding.target);
      break;
    case ToolAction::kCreate:
      return ArmCreationKey(binding.target);
    case ToolAction::kViewCommand:
      return RunViewCommand(binding.target);
    case ToolAction::kOpenBand:
      result.open_band = binding.target;
      break;
    case ToolAction::kOpenForm:
      result.open_form = binding.target;
      break;
    case ToolAction::kWindow:
      result.window_command = binding.target;
      break;
  }
  return Finish(result);
}

InteractionResult MainInteraction::ArmCreationKey(std::string_view key,
                                                  const std::string& point_id) {
  if (key.empty()) return ResetInteraction();
  state_.CurrentMode = kModeCreate;
  ArmCreation(placement_, key);
  placement_.PendingCalagePoint = point_id;
  if (key == kRayonKey) {
    surface_.SetEditMode(kEditEllipse);
    ui_.ShowStatus(
        "Rayon d'action : tirez du coin au coin opposé en tenant la touche Maj pour tracer un "
        "cercle.");
  }
  const int cursor = CursorNumberOfKey(key);
  if (cursor > 0) {
    surface_.SetMousePointerKind(kCustomPointer);
    surface_.SetMouseIcon(cursor);
  }
  return Finish();
}

InteractionResult MainInteraction::RunViewCommand(const std::string& command) {
  InteractionResult result;
  result.repaint = true;
  if (command == kModeZoomWindow) {
    state_.CurrentMode = kModeZoomWindow;
    surface_.SetAutoScale(0);
    surface_.SetEditMode(kEditZoomWindow);
    return Finish(result);
  }
  if (command == kModeZoomAll) {
    state_.CurrentMode = kModeZoomAll;
    ZoomToAll(surface_, state_);
    return Finish(result);
  }
  if (command == kModeZoomBounds) {
    state_.CurrentMode = kModeZoomBounds;
    ZoomToBounds(surface_, state_);
  } else if (command == kModeZoomOut) {
    state_.CurrentMode = kModeZoomOut;
    ZoomOut(surface_, state_);
  } else if (command == kModeRefresh) {
    state_.CurrentMode = kModeRefresh;
    RefreshSymbolSizes(surface_, state_);
  } else if (command == "MDSHOWLNKARROW") {
    link_arrows_ = !link_arrows_;
    ShowLinkArrows(surface_, state_, ui_, link_arrows_);
  } else if (command == "MDGRID") {
    ToggleGrid(surface_, state_, ui_);
    return Finish(result);
  } else if (command == "MDASCENS") {
    ToggleScrollBars(surface_);
  } else if (command == "MDCOBACK") {
    ChooseScreenColour(surface_, state_, ui_);
  }
  Reset();
  return Finish(result);
}

// --- Mouse ---

InteractionResult MainInteraction::Press(int button, int shift, int hit, double x, double y) {
  (void)shift;
  InteractionResult result;
  placement_.HitObject = NodeBeneath(hit > 0 ? hit : 0, x, y);
  placement_.PointerX = RoundLong(x);
  placement_.PointerY = RoundLong(y);
  last_x_ = x;
  last_y_ = y;
  placement_.CancelRelease = false;
  placement_.TargetNode = 0;
  if (placement_.HitObject && IsNode(surface_, placement_.HitObject)) {
    placement_.TargetNode = placement_.HitObject;
  }
  if (Drawing()) {
    if (drawing_.Press(button, placement_.HitObject, x, y)) result.refresh_menus = true;
    result.repaint = true;
    return Finish(result);
  }
  PressOnMode(button, placement_.HitObject, result);
  return Finish(result);
}

int MainInteraction::NodeBeneath(int hit, double x, double y) {
  // An element standing on a node covers it: an element that only goes on a
  // node, dropped there, goes to the node beneath, which is what the user sees.
  if (hit == 0 || state_.CurrentMode != kModeCreate || !IsUninodalKey(placement_.CreationKey) ||
      IsNode(surface_, hit)) {
    return hit;
  }
  CursorKeeper keep(surface_);
  const int node = NodeUnder(surface_, hit);
  if (node <= 0 || node == hit) return hit;
  const Box box = surface_.ObjectShape(node)->box;
  const bool inside = x >= box.left && x <= box.right && y >= box.top && y <= box.bottom;
  return inside ? node : hit;
}

void MainInteraction::PressOnMode(int button, int hit, InteractionResult& result) {
  const std::string& mode = state_.CurrentMode;
  if (mode == kModeCreate) {
    // A creation runs on the left button only; another button leaves it be.
    if (button != kLeftButton) {
      placement_.CancelRelease = true;
      return;
    }
    PlacementContext context = Context();
    const PlacementResult placed =
        PressInCreateMode(context, placement_, hit, placement_.PointerX, placement_.PointerY);
    result.repaint = true;
    result.refresh_menus = placed.refresh_menus;
  } else if (mode == kModeMove) {
    if (hit == 0) return;
    CursorKeeper keep(surface_);
    surface_.SetCurrentObject(hit);
    const int group = ValInt(surface_.ObjTag(kTagIGroup));
    if (group != kGroupNode && group != kGroupPoint && group != kGroupRegulator) return;
    // A node and what stands on it go together.
    std::int32_t left, top, right, bottom;
    surface_.GetObjectBounds(left, top, right, bottom);
    surface_.SelectInRect(left, top, right, bottom);
    result.repaint = true;
  } else if (mode == kModeFusion || mode == kModeBreak || mode == kModeBreakPlus ||
             mode == kModeEdit1) {
    if (hit == 0) placement_.CancelRelease = true;
  } else if (mode == kModeEditAll) {
    if (hit == 0) return;
    result.open_form = "frmEdit";
    result.form_object = hit;
  }
}

InteractionResult MainInteraction::Move(double x, double y, int hit) {
  last_x_ = x;
  last_y_ = y;
  const Calibration& c = state_.calibration;
  ui_.ShowPanel("sbrXY",
                Coordinate(LogicToUserX(c, x, y)) + ", " + Coordinate(LogicToUserY(c, x, y)));
  if (state_.CurrentMode == kModeBreak) {
    OnBreakHover(x, y, hit);
  } else if (state_.CurrentMode == kModeBubble) {
    bubble_visible_ = hit > 0;
    bubble_text_ = hit > 0 ? TagsText(hit) : "";
  }
  return Finish();
}

std::string MainInteraction::TagsText(int object) {
  CursorKeeper keep(surface_);
  surface_.SetCurrentObject(object);
  std::string text;
  for (int i = 0; i < surface_.ObjTagCount(); ++i) {
    const std::string name = surface_.ObjTagName(i);
    if (name == kTagIName || name == kTagIGroup) continue;
    if (!text.empty()) text += "\n";
    text += name + " : " + surface_.ObjTagValue(i);
  }
  return text;
}

InteractionResult MainInteraction::Release(int button, int shift, int drawn_object) {
  InteractionResult result;
  state_.ZoomFactor = ZoomFactorOfView(surface_);
  const std::string mode = state_.CurrentMode;
  if (button == kRightButton && mode != kReachMode && surface_.ObjectCount(kSelection) > 0) {
    RightRelease(result);
  }
  // With no mode, the right button offers the drawing's actions, unless the
  // texts' pop-up or the element's data answered it.
  if (button == kRightButton && mode.empty() && result.popup.empty() &&
      !(data_access_ && surface_.ObjectCount(kSelection) == 1)) {
    result.popup = "myActionPopup";
  }
  if (Drawing()) {
    const bool rayon = DrawingRayon();
    // The circle and its tags, or the refused ellipse, are one step.
    std::optional<UndoStep> step;
    if (rayon) step.emplace(surface_, "Annuler : Rayon d'action");
    drawing_.SetSquare(rayon && (shift & 1));
    if (drawing_.Release(button, last_x_, last_y_)) {
      result.refresh_menus = true;
      if (rayon) ReleaseOnMode(button, shift, drawing_.LastPlaced(), result);
    }
  } else if (mode != kModeZoomWindow && !placement_.CancelRelease) {
    ReleaseOnMode(button, shift, drawn_object, result);
  }
  if (mode.empty() && button == kLeftButton && placement_.HitObject > 0) {
    CursorKeeper keep(surface_);
    surface_.SetCurrentObject(placement_.HitObject);
    if (surface_.CurrentObject() == placement_.HitObject) ui_.ShowStatus(surface_.ObjTag("libell"));
  }
  surface_.Refresh();
  result.repaint = true;
  return Finish(result);
}

InteractionResult MainInteraction::ReleaseAt(int button, int shift, double x, double y) {
  last_x_ = x;
  last_y_ = y;
  return Release(button, shift);
}

InteractionResult MainInteraction::DoubleClick(double x, double y) {
  last_x_ = x;
  last_y_ = y;
  InteractionResult result;
  if (Drawing() && drawing_.DoubleClick()) {
    result.repaint = true;
    result.refresh_menus = true;
  }
  return Finish(result);
}

bool MainInteraction::Drawing() const {
  const std::string& mode = state_.CurrentMode;
  return (mode.empty() || mode == kModeRotate || DrawingRayon()) &&
         IsDrawingEditMode(surface_.EditMode());
}

bool MainInteraction::DrawingRayon() const {
  return state_.CurrentMode == kModeCreate && placement_.CreationKey == kRayonKey;
}

std::optional<InteractionResult> MainInteraction::DrawingTool(const std::string& menu) {
  const std::optional<int> edit_mode = DrawingEditModeOf(menu);
  if (!edit_mode) return std::nullopt;
  Reset();
  surface_.SetEditMode(*edit_mode);
  drawing_.SetTextsOnly(false);
  if (menu == "mnuSelectEditMode") surface_.SetSelectionAllowed(-1);
  if (*edit_mode == kEditView) surface_.SetSelectionEnabled(false);
  const std::string status = DrawingToolStatus(*edit_mode);
  if (!status.empty()) ui_.ShowStatus(status);
  InteractionResult result;
  result.repaint = true;
  return Finish(result);
}

void MainInteraction::RightRelease(InteractionResult& result) {
  const std::vector<int> selected = SelectedObjects(surface_);
  bool only_texts = true;
  for (int n : selected) {
    if (surface_.ObjectShape(n)->kind != kKindText) only_texts = false;
  }
  if (only_texts) {
    result.popup = "mnuPopUp_txt";
    return;
  }
  if (!data_access_ || selected.size() != 1) return;
  CursorKeeper keep(surface_);
  surface_.SetCurrentObject(selected.front());
  if (surface_.ObjTagCount() == 0) return;
  std::string label = surface_.ObjTag(kTagUsId);
  if (label.empty()) label = surface_.ObjTag("libell");
  std::string data;
  for (int i = 0; i < surface_.ObjTagCount(); ++i) {
    const std::string name = surface_.ObjTagName(i);
    if (name == kTagIName || name == kTagIGroup) continue;
    data += " ; " + name + " = " + surface_.ObjTagValue(i);
  }
  ui_.ShowStatus("elm sélectionné : " + label + data);
}

void MainInteraction::ReleaseOnMode(int button, int shift, int drawn_object,
                                    InteractionResult& result) {
  const std::string mode = state_.CurrentMode;
  if (mode == kModeCreate) {
    if (button != kLeftButton) return;
    PlacementContext context = Context();
    const PlacementResult placed = ReleaseInCreateMode(context, placement_, drawn_object);
    result.refresh_menus = result.refresh_menus || placed.refresh_menus;
    if (placed.open_info_calage) result.open_form = "frmInfoCalage";
    if (placed.open_plu_rayon) result.open_form = "frmPluRayon";
    result.form_object = placed.created;
    if (placed.leave_mode) Reset();
  } else if (mode == kModeMove) {
    if (button != kLeftButton) return;
    FinishMove(surface_, state_, (shift & kCtrlMask) != 0);
  } else if (mode == kModeFusion) {
    OnFusionRelease(result);
  } else if (mode == kModeBreak) {
    if (button == kLeftButton) OnBreakRelease(result);
  } else if (mode == kModeEdit1) {
    const std::string form = EditSelectedElement(surface_, ui_);
    if (form.empty()) return;
    result.open_form = form;
    result.form_object = surface_.CurrentObject();
  } else if (mode == kReachMode) {
    if (button != kLeftButton || placement_.HitObject == 0) return;
    if (surface_.IsSelected(placement_.HitObject)) {
      ReachClickInfo(surface_, ui_, placement_.HitObject);
    }
  }
}

InteractionResult MainInteraction::ZoomRectangle(double left, double top, double right,
                                                 double bottom) {
  InteractionResult result;
  if (state_.CurrentMode != kModeZoomWindow) return Finish(result);
  ZoomToRect(surface_, state_, std::min(left, right), std::min(top, bottom), std::max(left, right),
             std::max(top, bottom));
  Reset();
  result.repaint = true;
  return Finish(result);
}

// --- Keys ---

void MainInteraction::MoveSelection(int dx, int dy) {
  if (surface_.ObjectCount(kSelection) == 0) return;
  CursorKeeper keep(surface_);
  UndoStep step(surface_, "Déplacer");
  surface_.SetCurrentObject(kSelection);
  surface_.MoveObject(dx, dy);
  // The moved elements note their new place as after a move with the mouse,
  // and on a calibrated network their map place and lengths too; the
  // selection stays for the next key.
  const std::vector<int> selected = SelectedObjects(surface_);
  FinishMove(surface_, state_, IsCalibrated(surface_));
  for (int number : selected) {
    surface_.SetCurrentObject(number);
    surface_.SetSelected(true);
  }
}

void MainInteraction::DeleteSelected(InteractionResult& result) {
  DeleteSelection(surface_, state_);
  surface_.Refresh();
  result.repaint = true;
  result.refresh_menus = true;
}

InteractionResult MainInteraction::Key(int code, int shift) {
  InteractionResult result;
  const std::string mode = state_.CurrentMode;
  const int step = (shift & kShiftMask) ? kArrowStepShift : kArrowStep;
  switch (MainKeyOf(code, shift)) {
    case MainKey::kNone:
      return Finish(result);
    case MainKey::kLeft:
      MoveSelection(-step, 0);
      break;
    case MainKey::kUp:
      MoveSelection(0, -step);
      break;
    case MainKey::kRight:
      MoveSelection(step, 0);
      break;
    case MainKey::kDown:
      MoveSelection(0, step);
      break;
    case MainKey::kEscape:
      Reset();
      result.refresh_menus = true;
      break;
    case MainKey::kDelete:
      if (mode == kReachMode) break;
      if (mode != kModeDelete) {
        state_.CurrentMode = kModeDelete;
        surface_.SetMousePointerKind(kCustomPointer);
        surface_.SetMouseIcon(ModeEntryOf(kModeDelete)->cursor);
      }
      DeleteSelected(result);
      break;
    case MainKey::kEnter:
      if (Drawing() && drawing_.Pending()) {
        if (drawing_.Enter()) result.refresh_menus = true;
      } else if (mode == kReachMode) {
        EndReachCreation(surface_, state_, ui_, show_modal_);
        Reset();
        result.refresh_menus = true;
      } else if (mode == kModeDelete) {
        DeleteSelected(result);
      }
      break;
    case MainKey::kZoomAll:
      return RunViewCommand(kModeZoomAll);
    case MainKey::kZoomWindow:
      return RunViewCommand(kModeZoomWindow);
    case MainKey::kZoomBounds:
      return RunViewCommand(kModeZoomBounds);
    case MainKey::kRefresh:
      return RunViewCommand(kModeRefresh);
    case MainKey::kCopy:
      OnCopy(result);
      break;
    case MainKey::kPaste:
      OnPaste(result);
      break;
    case MainKey::kUndo:
      surface_.Undo();
      result.refresh_menus = true;
      break;
    case MainKey::kRedo:
      surface_.Redo();
      result.refresh_menus = true;
      break;
    case MainKey::kSelectAll:
      surface_.SelectAll();
      break;
    case MainKey::kGroup:
      if (surface_.ObjectCount(kSelection) <= 1) surface_.SelectAll();
      surface_.Arrange(0);
      break;
    case MainKey::kUngroup:
      if (surface_.ObjectCount(kSelection) > 0) surface_.Arrange(1);
      break;
    case MainKey::kLocateId:
      LocateElement(surface_, state_, ui_, kTagId);
      break;
    case MainKey::kLocateLabel:
      LocateElement(surface_, state_, ui_, "libell");
      break;
    case MainKey::kDataAccess:
      data_access_ = !data_access_;
      ui_.ShowStatus(data_access_ ? "Clic droit pour accéder aux données = Oui"
                                  : "Clic droit pour accéder aux données = Non");
      result.refresh_menus = true;
      break;
  }
  surface_.Refresh();
  result.repaint = true;
  return Finish(result);
}

// --- Link editing ---

void MainInteraction::OnBreakRelease(InteractionResult& result) {
  PlacementContext context = Context();
  ReleaseInBreakMode(context, placement_.HitObject, placement_.PointerX, placement_.PointerY);
  ui_.PumpEvents();
  bubble_visible_ = false;
  bubble_text_.clear();
  surface_.DeselectAll();
  result.repaint = true;
  result.refresh_menus = true;
}

void MainInteraction::OnFusionRelease(InteractionResult& result) {
  PlacementContext context = Context();
  ReleaseInFusionMode(context, placement_.HitObject);
  result.repaint = true;
  result.refresh_menus = true;
}

// Over a collector the bubble tells where along it the node would go.
void MainInteraction::OnBreakHover(double x, double y, int hit) {
  const std::string text = hit > 0 ? BreakBubbleText(surface_, hit, x, y) : "";
  bubble_visible_ = !text.empty();
  bubble_text_ = text;
}

void MainInteraction::OnCopy(InteractionResult& result) {
  PlacementContext context = Context();
  CopySelectionToClipboard(context);
  (void)result;
}

void MainInteraction::OnPaste(InteractionResult& result) {
  PlacementContext context = Context();
  if (PasteFromClipboard(context) != kPasteDeclined) surface_.SetEditMode(kEditSelection);
  result.repaint = true;
  result.refresh_menus = true;
}

}  // namespace pluvane
