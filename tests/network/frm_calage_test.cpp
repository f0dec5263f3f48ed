#include "network/catalogue.h"
#include "network/frm_calage.h"

#include <gtest/gtest.h>

#include "drawing/add_element.h"
#include "drawing/surface_helpers.h"
#include "foundation/expect_message.h"
#include "foundation/numbers.h"
#include "network/calibration_fixture.h"
#include "network/georeferencing.h"
#include "shell/app_state.h"

namespace pluvane {
namespace {

class FrmCalageTest : public ::testing::Test {
 protected:
  void SetUp() override {
    DefaultCalibrationFromCorners(state_.calibration, 100000, 100000);
    host_.EnableMainWindow = [this](bool on) { enabled_.push_back(on); };
    host_.ArmPlacement = [this](const std::string& key, const std::string& id) {
      armed_.push_back(key + "/" + id);
    };
  }
  // A calibrated network, as LoadCalibration leaves it.
  void Calibrate() {
    AddHiddenPoints(surface_, state_);
    ASSERT_TRUE(ReadCalibrationPoints(surface_, kINameHiddenCalage, state_.calibration));
    ASSERT_TRUE(SolveCalibration(state_.calibration));
  }
  int CountOf(int i_name) { return CountByName(surface_, i_name); }

  Surface surface_;
  AppState state_ = CalibrationState();
  ScriptedUi ui_;
  CalageHost host_;
  std::vector<bool> enabled_;
  std::vector<std::string> armed_;
};

TEST_F(FrmCalageTest, OpeningShowsTheHiddenPointsAndFillsTheGrid) {
  Calibrate();
  FrmCalage form(surface_, state_, ui_, host_);
  EXPECT_EQ(form.Caption(), "Définition des points de calage");
  EXPECT_EQ(enabled_, std::vector<bool>{false});
  EXPECT_EQ(CountOf(kINameCalage), 3);
  EXPECT_EQ(CountOf(kINameHiddenCalage), 0);
  Grid& g = form.grid();
  EXPECT_EQ(g.MaxRows(), 3);
  EXPECT_EQ(g.MaxCols(), 2);
  EXPECT_EQ(g.Text(0, 1), "Pt1");
  EXPECT_EQ(g.Text(0, 3), "Pt3");
  EXPECT_EQ(g.ColHead(1), "X");
  EXPECT_EQ(g.ColHead(2), "Y");
  EXPECT_EQ(g.Text(1, 1), "610000.00");
  EXPECT_EQ(g.Text(2, 1), "190000.00");
  EXPECT_EQ(g.Text(1, 3), "660000.00");
  EXPECT_EQ(g.Text(2, 3), "150000.00");
  EXPECT_FALSE(form.NewEnabled());
  EXPECT_TRUE(form.DelEnabled());
  EXPECT_FALSE(form.Commands()[0].enabled);
  EXPECT_TRUE(form.Commands()[1].enabled);
}

TEST_F(FrmCalageTest, NumbersAreShownWithTheFixedPointFormat) {
  Calibrate();
  state_.calibration.user_x[2] = -1234.567;
  state_.calibration.user_y[2] = 0.004;
  FrmCalage form(surface_, state_, ui_, host_);
  EXPECT_EQ(form.grid().Text(1, 2), "-1234.57");
  EXPECT_EQ(form.grid().Text(2, 2), "0.00");
}

TEST_F(FrmCalageTest, AnUncalibratedNetworkOffersTheFirstRow) {
  FrmCalage form(surface_, state_, ui_, host_);
  EXPECT_EQ(form.grid().DataRowCnt(), 0);
  EXPECT_EQ(form.grid().ActiveRow(), 1);
  EXPECT_TRUE(form.NewEnabled());
  EXPECT_FALSE(form.DelEnabled());
  form.Run("cmdDel");  // the button is off
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(FrmCalageTest, TheFirstEmptyRowIsOffered) {
  AddVisiblePoint(surface_, 1, kMapPoints[1]);
  AddVisiblePoint(surface_, 3, kMapPoints[3]);
  FrmCalage form(surface_, state_, ui_, host_);
  EXPECT_EQ(form.grid().ActiveRow(), 2);
  EXPECT_FALSE(form.grid().IsBlank(1, 1));
  EXPECT_TRUE(form.grid().IsBlank(1, 2));
  EXPECT_TRUE(form.NewEnabled());
  EXPECT_TRUE(form.DelEnabled());
  // Visible points were there: the hidden ones are not shown a second time.
  EXPECT_EQ(CountOf(kINameCalage), 2);
}

TEST_F(FrmCalageTest, NewArmsThePlacementOfThePointOfTheRow) {
  FrmCalage form(surface_, state_, ui_, host_);
  form.grid().SetActiveCell(1, 2);
  form.Run("cmdNew");
  EXPECT_EQ(state_.CurrentMode, "CREATE OBJ");
  EXPECT_EQ(armed_, std::vector<std::string>{"X_CALAGE/Pt2"});
  EXPECT_EQ(form.PendingPoint(), "Pt2");
  ASSERT_FALSE(ui_.Statuses().empty());
  EXPECT_EQ(ui_.Statuses().back(), "clique gauche pour placer le point de calage Pt2");
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(FrmCalageTest, APlacedPointShowsInItsRowAndDisarms) {
  FrmCalage form(surface_, state_, ui_, host_);
  form.Run("cmdNew");
  // What the placement and frmInfoCalage do.
  AddVisiblePoint(surface_, 1, {2000, 3000, 612.5, -7});
  form.PointPlaced("Pt1");
  EXPECT_EQ(form.grid().Text(1, 1), "612.50");
  EXPECT_EQ(form.grid().Text(2, 1), "-7.00");
  EXPECT_EQ(form.PendingPoint(), "");
  EXPECT_EQ(state_.CurrentMode, "");
  ASSERT_EQ(armed_.size(), 2u);
  EXPECT_EQ(armed_.back(), "/");
  EXPECT_TRUE(form.DelEnabled());
  EXPECT_TRUE(form.NewEnabled());
}

TEST_F(FrmCalageTest, ACancelledPlacementLeavesTheRowEmpty) {
  FrmCalage form(surface_, state_, ui_, host_);
  form.Run("cmdNew");
  form.PointPlaced("Pt1");
  EXPECT_TRUE(form.grid().IsBlank(1, 1));
  EXPECT_FALSE(form.DelEnabled());
}

TEST_F(FrmCalageTest, SelectingARowSelectsItsPointAlone) {
  Calibrate();
  const int other = AddElement(surface_, 99, "Nod_1");
  surface_.SetSelected(true);
  FrmCalage form(surface_, state_, ui_, host_);
  form.grid().SetActiveCell(1, 2);
  EXPECT_EQ(surface_.ObjectCount(kSelection), 1);
  const int pt2 = FindCalibrationPoint(surface_, "Pt2");
  surface_.SetCurrentObject(pt2);
  EXPECT_TRUE(surface_.Selected());
  surface_.SetCurrentObject(other);
  EXPECT_FALSE(surface_.Selected());
  form.grid().SetActiveCell(2, 3);
  surface_.SetCurrentObject(pt2);
  EXPECT_FALSE(surface_.Selected());
  EXPECT_EQ(surface_.ObjectCount(kSelection), 1);
}

TEST_F(FrmCalageTest, DeleteRemovesThePointOfTheRowAndClearsTheRow) {
  Calibrate();
  FrmCalage form(surface_, state_, ui_, host_);
  form.grid().SetActiveCell(1, 2);
  form.Run("cmdDel");
  EXPECT_EQ(FindCalibrationPoint(surface_, "Pt2"), 0);
  EXPECT_EQ(CountOf(kINameCalage), 2);
  EXPECT_TRUE(form.grid().IsBlank(1, 2));
  EXPECT_TRUE(form.grid().IsBlank(2, 2));
  EXPECT_FALSE(form.grid().IsBlank(1, 1));
  EXPECT_TRUE(form.NewEnabled());
  EXPECT_TRUE(form.DelEnabled());
}

TEST_F(FrmCalageTest, OkWithAnEmptyCellIsRefused) {
  Calibrate();
  const Calibration before = state_.calibration;
  FrmCalage form(surface_, state_, ui_, host_);
  form.grid().SetText(2, 2, " ");
  form.Run("cmdOk");
  ExpectLastMessage(ui_, "Renseignez toutes les données necessaires",
                    "Définition des points de calage", MessageIcon::kExclamation);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(form.grid().ActiveCol(), 2);
  EXPECT_EQ(form.grid().ActiveRow(), 2);
  EXPECT_EQ(state_.calibration.XORI, before.XORI);
  EXPECT_EQ(CountOf(kINameCalage), 3);
}

TEST_F(FrmCalageTest, OkWithAMissingPointIsRefusedOnItsRow) {
  Calibrate();
  FrmCalage form(surface_, state_, ui_, host_);
  surface_.DeleteObject(FindCalibrationPoint(surface_, "Pt3"));
  form.grid().SetText(1, 1, "1");
  form.Run("cmdOk");
  ExpectLastMessage(ui_,
                    "Pt3 non trouvé dans la base graphique!\r\nCréez le avec le bouton Nouveau.",
                    "", MessageIcon::kNone);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(form.grid().ActiveRow(), 3);
  EXPECT_EQ(form.grid().GetSelection(0), (GridBlock{1, 3, 2, 3}));
  // Nothing was written.
  surface_.SetCurrentObject(FindCalibrationPoint(surface_, "Pt1"));
  EXPECT_EQ(Val(surface_.ObjTag("Xcal")), 610000);
  EXPECT_EQ(state_.calibration.user_x[1], 610000);
}

TEST_F(FrmCalageTest, OkWithAlignedPointsIsRefusedAndThePreviousMapStands) {
  Calibrate();
  const Calibration before = state_.calibration;
  FrmCalage form(surface_, state_, ui_, host_);
  // Pt3 given the map coordinates of a point on the line of Pt1 and Pt2.
  form.grid().SetText(1, 3, "610000");
  form.grid().SetText(2, 3, "170000");
  form.grid().SetText(1, 2, "610000");
  form.Run("cmdOk");
  ExpectLastMessage(ui_, "Les valeurs de calage sont incohérentes !\nRecommencez le calage s.v.p.",
                    "Calage", MessageIcon::kExclamation);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(state_.calibration.XORI, before.XORI);
  EXPECT_EQ(state_.calibration.XLAMU, before.XLAMU);
  EXPECT_EQ(CountOf(kINameCalage), 3);
}

TEST_F(FrmCalageTest, OkSolvesRecomputesAndHidesThePoints) {
  Calibrate();
  const int node = AddElement(surface_, 99, "Nod_1");
  surface_.SetObjectBounds(1950, 2950, 2050, 3050);
  FrmCalage form(surface_, state_, ui_, host_);
  // The whole map moved by 1000 to the east.
  form.grid().SetText(1, 1, "611000");
  form.grid().SetText(1, 2, "611000");
  form.grid().SetText(1, 3, "661000");
  form.grid().SetActiveCell(1, 1);
  form.Run("cmdOk");
  EXPECT_TRUE(ui_.Empty());
  EXPECT_TRUE(form.Closed());
  EXPECT_NEAR(LogicToUserX(state_.calibration, 0, 0), 601000, 1e-6);
  EXPECT_NEAR(LogicToUserY(state_.calibration, 0, 0), 200000, 1e-6);
  surface_.SetCurrentObject(node);
  EXPECT_EQ(surface_.ObjTag("Xlog"), "2000");
  EXPECT_NEAR(Val(surface_.ObjTag("Xus")), 603000, 1e-6);
  EXPECT_NEAR(Val(surface_.ObjTag("Yus")), 197000, 1e-6);
  EXPECT_EQ(CountOf(kINameCalage), 0);
  EXPECT_EQ(CountOf(kINameHiddenCalage), 3);
  const int pt3 = FindObject2(surface_, "Id", "Pt3", "iName", kINameHiddenCalage);
  EXPECT_EQ(Val(surface_.ObjTag("Xcal")), 661000);
  EXPECT_FALSE(surface_.ObjectVisible());
  EXPECT_GT(pt3, 10);
  EXPECT_EQ(surface_.ObjectCount(kSelection), 0);
  EXPECT_EQ(enabled_, (std::vector<bool>{false, true}));
}

TEST_F(FrmCalageTest, AfterTheFormClosesNoVisiblePointStays) {
  Calibrate();
  {
    FrmCalage form(surface_, state_, ui_, host_);
    form.grid().SetActiveCell(1, 1);
    form.Run("cmdCancel");
    EXPECT_TRUE(form.Closed());
    EXPECT_EQ(CountOf(kINameCalage), 0);
    EXPECT_EQ(CountOf(kINameHiddenCalage), 3);
    EXPECT_EQ(surface_.ObjectCount(kSelection), 0);
  }
  EXPECT_EQ(enabled_, (std::vector<bool>{false, true}));
  {
    FrmCalage form(surface_, state_, ui_, host_);
    EXPECT_EQ(CountOf(kINameCalage), 3);
    form.grid().SetActiveCell(1, 3);
    form.Run("cmdDel");
    form.Run("cmdNew");
    EXPECT_EQ(state_.CurrentMode, "CREATE OBJ");
  }
  // Gone without a command: still hidden, and the pending placement disarmed.
  EXPECT_EQ(CountOf(kINameCalage), 0);
  EXPECT_EQ(CountOf(kINameHiddenCalage), 2);
  EXPECT_EQ(state_.CurrentMode, "");
  ASSERT_EQ(armed_.size(), 2u);
  EXPECT_EQ(armed_.back(), "/");
}

TEST_F(FrmCalageTest, TheCommandsOfTheForm) {
  FrmCalage form(surface_, state_, ui_, host_);
  const auto commands = form.Commands();
  ASSERT_EQ(commands.size(), 4u);
  EXPECT_EQ(commands[0].name, "cmdNew");
  EXPECT_EQ(commands[1].name, "cmdDel");
  EXPECT_EQ(commands[2].name, "cmdOk");
  EXPECT_EQ(commands[3].name, "cmdCancel");
}

TEST_F(FrmCalageTest, AFormWithoutHostStillWorks) {
  Calibrate();
  FrmCalage form(surface_, state_, ui_);
  form.grid().SetActiveCell(1, 1);
  form.Run("cmdDel");
  form.Run("cmdNew");
  form.Run("cmdCancel");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(CountOf(kINameHiddenCalage), 2);
}

}  // namespace
}  // namespace pluvane
