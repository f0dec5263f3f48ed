#include "network/catalogue.h"
#include "network/load_calibration.h"

#include <gtest/gtest.h>

#include "drawing/surface_helpers.h"
#include "foundation/expect_message.h"
#include "network/calibration_fixture.h"
#include "network/georeferencing.h"
#include "shell/app_state.h"

namespace pluvane {
namespace {

constexpr const char* kIncoherent =
    "Les valeurs de calage sont incohérentes !\nRecommencez le calage s.v.p.";

void AddParamReseau(Surface& surface, const AppState& state) {
  AddHiddenRecord(surface, state);
  surface.SetObjTag("Id", "ParamReseau");
  surface.SetObjTag("XORI", "1");
  surface.SetObjTag("YORI", "2");
  surface.SetObjTag("XMUCOS", "3");
  surface.SetObjTag("XMUSIN", "4");
  surface.SetObjTag("XLAMU", "5");
  surface.SetObjTag("XLASIN", "6");
  surface.SetObjTag("XLACOS", "7");
}

class LoadCalibrationTest : public ::testing::Test {
 protected:
  Surface surface_;
  AppState state_ = CalibrationState();
  ScriptedUi ui_;
};

TEST_F(LoadCalibrationTest, RecordsArePreferredToTheTagsOfParamReseau) {
  AddParamReseau(surface_, state_);
  AddHiddenPoints(surface_, state_);
  LoadCalibration(surface_, state_, ui_);
  EXPECT_TRUE(ui_.Empty());
  EXPECT_EQ(state_.calibration.user_x[3], 660000);
  EXPECT_EQ(state_.calibration.logic_y[2], 50000);
  EXPECT_NEAR(LogicToUserX(state_.calibration, 1234, 5678), 601234, 1e-6);
  EXPECT_NEAR(LogicToUserY(state_.calibration, 1234, 5678), 194322, 1e-6);
  EXPECT_NE(state_.calibration.XORI, 1);
}

TEST_F(LoadCalibrationTest, WithoutRecordsTheSavedParametersAreTaken) {
  AddParamReseau(surface_, state_);
  LoadCalibration(surface_, state_, ui_);
  const Calibration& c = state_.calibration;
  EXPECT_EQ(c.XORI, 1);
  EXPECT_EQ(c.YORI, 2);
  EXPECT_EQ(c.XMUCOS, 3);
  EXPECT_EQ(c.XMUSIN, 4);
  EXPECT_EQ(c.XLAMU, 5);
  EXPECT_EQ(c.XLASIN, 6);
  EXPECT_EQ(c.XLACOS, 7);
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(LoadCalibrationTest, TwoRecordsAreNotEnoughAndTheParametersAreTaken) {
  AddParamReseau(surface_, state_);
  AddHiddenPoint(surface_, state_, 1, kMapPoints[1]);
  AddHiddenPoint(surface_, state_, 2, kMapPoints[2]);
  LoadCalibration(surface_, state_, ui_);
  EXPECT_EQ(state_.calibration.XORI, 1);
  EXPECT_EQ(state_.calibration.user_x[1], 0);
}

TEST_F(LoadCalibrationTest, ABlankTagKeepsTheValueInMemoryAndNothingIsChecked) {
  AddParamReseau(surface_, state_);
  surface_.SetObjTag("XLACOS", "  ");
  surface_.SetObjTag("XLAMU", "0");
  state_.calibration.XLACOS = 42;
  LoadCalibration(surface_, state_, ui_);
  EXPECT_EQ(state_.calibration.XLACOS, 42);
  EXPECT_EQ(state_.calibration.XLAMU, 0);
  EXPECT_EQ(state_.calibration.XLASIN, 6);
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(LoadCalibrationTest, NoRecordAndNoParamReseauKeepTheMemory) {
  DefaultCalibrationFromCorners(state_.calibration, 100000, 100000);
  const Calibration before = state_.calibration;
  LoadCalibration(surface_, state_, ui_);
  EXPECT_EQ(state_.calibration.XORI, before.XORI);
  EXPECT_EQ(state_.calibration.XLAMU, before.XLAMU);
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(LoadCalibrationTest, AlignedRecordsAreToldAndThePreviousParametersStand) {
  AddHiddenPoint(surface_, state_, 1, {0, 0, 0, 0});
  AddHiddenPoint(surface_, state_, 2, {10, 10, 10, 10});
  AddHiddenPoint(surface_, state_, 3, {20, 20, 20, 20});
  DefaultCalibrationFromCorners(state_.calibration, 100000, 100000);
  const double xori = state_.calibration.XORI, xlamu = state_.calibration.XLAMU;
  LoadCalibration(surface_, state_, ui_);
  ExpectLastMessage(ui_, kIncoherent, "Calage", MessageIcon::kExclamation);
  EXPECT_EQ(ui_.Messages().size(), 1u);
  EXPECT_EQ(state_.calibration.XORI, xori);
  EXPECT_EQ(state_.calibration.XLAMU, xlamu);
}

TEST_F(LoadCalibrationTest, TwoEqualPointsAreIncoherentToo) {
  AddHiddenPoint(surface_, state_, 1, kMapPoints[1]);
  AddHiddenPoint(surface_, state_, 2, kMapPoints[1]);
  AddHiddenPoint(surface_, state_, 3, kMapPoints[3]);
  LoadCalibration(surface_, state_, ui_);
  ExpectLastMessage(ui_, kIncoherent, "Calage", MessageIcon::kExclamation);
}

TEST_F(LoadCalibrationTest, VisibleCalibrationSymbolsArePutOutOfSight) {
  AddVisiblePoint(surface_, 1, kMapPoints[1]);
  AddVisiblePoint(surface_, 2, kMapPoints[2]);
  AddVisiblePoint(surface_, 3, kMapPoints[3]);
  LoadCalibration(surface_, state_, ui_);
  EXPECT_EQ(CountByName(surface_, kINameCalage), 0);
  EXPECT_EQ(CountByName(surface_, kINameHiddenCalage), 3);
  // Those were not the records of the network when it was loaded.
  EXPECT_EQ(state_.calibration.user_x[1], 0);
}

TEST_F(LoadCalibrationTest, TheCursorIsKept) {
  AddParamReseau(surface_, state_);
  AddHiddenPoints(surface_, state_);
  const int element = surface_.AddObject(kKindPicture, 0, 0, 10, 10);
  LoadCalibration(surface_, state_, ui_);
  EXPECT_EQ(surface_.CurrentObject(), element);
}

}  // namespace
}  // namespace pluvane
