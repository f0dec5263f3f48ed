#include "network/frm_calage.h"

#include <utility>

#include "drawing/object_tags.h"
#include "foundation/fixed_width.h"
#include "foundation/grid_checks.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/calibration_points.h"
#include "drawing/surface_guards.h"
#include "network/catalogue.h"
#include "network/load_calibration.h"
#include "network/map_coordinates.h"
#include "drawing/surface_helpers.h"

namespace pluvane {

namespace {

constexpr const char* kCreateMode = "CREATE OBJ";
constexpr const char* kCalageKey = "X_CALAGE";

std::string Coordinate(double value) {
  return Trim(FormatFixed(value, FrmCalage::kWidth, FrmCalage::kDecimals));
}

}  // namespace

FrmCalage::FrmCalage(Surface& surface, NetworkState& state, UserInterface& ui, CalageHost host)
    : surface_(surface),
      state_(state),
      ui_(ui),
      host_(std::move(host)),
      grid_(2, kCalibrationPointCount) {
  if (host_.EnableMainWindow) host_.EnableMainWindow(false);
  if (CountByName(surface_, kINameCalage) == 0) ShowCalibrationPoints(surface_, state_);
  grid_.SetCaption(Caption());
  grid_.SetColHead(1, "X");
  grid_.SetColHead(2, "Y");
  grid_.SetColumnType(1, CellType::Float(0, 0, kDecimals));
  grid_.SetColumnType(2, CellType::Float(0, 0, kDecimals));
  for (int row = 1; row <= kCalibrationPointCount; ++row) {
    grid_.SetText(0, row, CalibrationPointId(row));
    // Only the points that stand on the drawing show their coordinates: the
    // tables of a network never calibrated hold the default map, which the
    // user did not enter and Ok could not find.
    if (FindCalibrationPoint(surface_, CalibrationPointId(row)) > 0) {
      grid_.SetText(1, row, Coordinate(state_.calibration.user_x[row]));
      grid_.SetText(2, row, Coordinate(state_.calibration.user_y[row]));
    }
  }
  UpdateButtons();
  OfferFirstEmptyRow();
  grid_.AddListener([this](const GridChange& change) {
    if (change.kind == GridChange::kActiveCell && !Closed()) SelectRow(change.row1);
  });
}

FrmCalage::~FrmCalage() { Unload(); }

std::vector<FormCommand> FrmCalage::Commands() {
  return {{"cmdNew", "&Nouveau", [this] { cmdNew(); }, new_enabled_},
          {"cmdDel", "&Supprimer", [this] { cmdDel(); }, del_enabled_},
          {"cmdOk", "&Ok", [this] { cmdOk(); }},
          {"cmdCancel", "&Fermer", [this] { cmdCancel(); }}};
}

void FrmCalage::cmdNew() {
  const int row = grid_.ActiveRow();
  if (row < 1 || row > kCalibrationPointCount) return;
  pending_ = CalibrationPointId(row);
  state_.CurrentMode = kCreateMode;
  if (host_.ArmPlacement) host_.ArmPlacement(kCalageKey, pending_);
  ui_.ShowStatus("clique gauche pour placer le point de calage " + pending_);
}

void FrmCalage::cmdDel() {
  const int row = grid_.ActiveRow();
  if (row < 1 || row > kCalibrationPointCount) return;
  for (int n = FindCalibrationPoint(surface_, CalibrationPointId(row)); n > 0;
       n = FindCalibrationPoint(surface_, CalibrationPointId(row))) {
    CursorKeeper keeper(surface_);
    surface_.DeleteObject(n);
  }
  grid_.SetText(1, row, "");
  grid_.SetText(2, row, "");
  UpdateButtons();
}

void FrmCalage::cmdOk() {
  if (!SSCheckAllFilled(grid_, ui_)) return;
  int points[kCalibrationPointCount + 1] = {};
  for (int row = 1; row <= kCalibrationPointCount; ++row) {
    points[row] = FindCalibrationPoint(surface_, CalibrationPointId(row));
    if (points[row] > 0) continue;
    ui_.ShowMessage(CalibrationPointId(row) +
                        " non trouvé dans la base graphique!\r\nCréez le avec le bouton Nouveau.",
                    "", MessageIcon::kNone);
    grid_.ClearSelection();
    grid_.AddSelection({1, row, 2, row});
    grid_.SetActiveCell(1, row);
    return;
  }
  {
    CursorKeeper keeper(surface_);
    for (int row = 1; row <= kCalibrationPointCount; ++row) {
      surface_.SetCurrentObject(points[row]);
      surface_.SetObjTag(kTagIName, kINameCalage);
      surface_.SetObjTag(kTagId, CalibrationPointId(row));
      surface_.SetObjTag("Xcal", grid_.Value(1, row));
      surface_.SetObjTag("Ycal", grid_.Value(2, row));
      ReadCalibrationPoint(surface_, points[row], state_.calibration, row);
    }
  }
  if (!SolveCalibrationOrWarn(state_.calibration, ui_)) return;
  RecomputeUserCoordinates(surface_, state_);
  Unload();
}

void FrmCalage::SelectRow(int row) {
  CursorKeeper keeper(surface_);
  surface_.DeselectAll();
  if (row < 1 || row > kCalibrationPointCount) return;
  const int point = FindCalibrationPoint(surface_, CalibrationPointId(row));
  if (point < 1) return;
  surface_.SetCurrentObject(point);
  surface_.SetSelected(true);
}

void FrmCalage::PointPlaced(const std::string& point_id) {
  Disarm();
  for (int row = 1; row <= kCalibrationPointCount; ++row) {
    if (CalibrationPointId(row) == point_id) ShowRow(row);
  }
  UpdateButtons();
}

void FrmCalage::ShowRow(int row) {
  const int point = FindCalibrationPoint(surface_, CalibrationPointId(row));
  std::string x, y;
  if (point > 0) {
    CursorKeeper keeper(surface_);
    surface_.SetCurrentObject(point);
    x = Coordinate(Val(surface_.ObjTag("Xcal")));
    y = Coordinate(Val(surface_.ObjTag("Ycal")));
  }
  grid_.SetText(1, row, x);
  grid_.SetText(2, row, y);
}

void FrmCalage::UpdateButtons() {
  int standing = 0;
  for (int row = 1; row <= kCalibrationPointCount; ++row) {
    if (!grid_.IsBlank(1, row) || !grid_.IsBlank(2, row)) ++standing;
  }
  new_enabled_ = standing < kCalibrationPointCount;
  del_enabled_ = standing > 0;
}

void FrmCalage::OfferFirstEmptyRow() {
  for (int row = 1; row <= kCalibrationPointCount; ++row) {
    if (grid_.IsBlank(1, row) && grid_.IsBlank(2, row)) {
      grid_.SetActiveCell(1, row);
      return;
    }
  }
}

void FrmCalage::Disarm() {
  if (pending_.empty()) return;
  pending_.clear();
  if (state_.CurrentMode == kCreateMode) state_.CurrentMode.clear();
  if (host_.ArmPlacement) host_.ArmPlacement("", "");
  ui_.ShowStatus("");
}

void FrmCalage::Unload() {
  if (Closed()) return;
  Close();
  Disarm();
  surface_.DeselectAll();
  if (host_.EnableMainWindow) host_.EnableMainWindow(true);
  HideCalibrationPoints(surface_, state_);
}

}  // namespace pluvane
