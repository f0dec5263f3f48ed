#include "network/frm_info_calage.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/numbers.h"
#include "network/calibration_fixture.h"
#include "drawing/surface_helpers.h"

namespace pluvane {
namespace {

class FrmInfoCalageTest : public ::testing::Test {
 protected:
  void SetUp() override {
    // As the placement leaves it: the symbol, its Id the pending point name.
    point_ = AddVisiblePoint(surface_, 2, {4000, 5000, 0, 0});
    other_ = surface_.AddObject(kKindEllipse, 0, 0, 10, 10);
  }
  Surface surface_;
  ScriptedUi ui_;
  int point_ = 0;
  int other_ = 0;
};

TEST_F(FrmInfoCalageTest, OpensOnThePoint) {
  FrmInfoCalage form(surface_, ui_, point_);
  EXPECT_EQ(form.PointId(), "Pt2");
  EXPECT_EQ(form.grid().MaxCols(), 2);
  EXPECT_EQ(form.grid().MaxRows(), 1);
  EXPECT_EQ(form.grid().Text(0, 1), "Pt2");
  EXPECT_TRUE(form.grid().IsBlank(1, 1));
  EXPECT_EQ(surface_.CurrentObject(), other_);
}

TEST_F(FrmInfoCalageTest, OkRequiresBothCells) {
  FrmInfoCalage form(surface_, ui_, point_);
  form.grid().SetText(1, 1, "651000.5");
  form.Run("cmdOk");
  ExpectLastMessage(ui_, "Renseignez les coordonnées X,Y du point Pt2", "", MessageIcon::kNone);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(form.grid().ActiveCol(), 2);
  surface_.SetCurrentObject(point_);
  EXPECT_EQ(surface_.ObjTag("Xcal"), "0");
  ui_.Clear();
  form.grid().SetText(1, 1, "");
  form.grid().SetText(2, 1, "3");
  form.Run("cmdOk");
  ExpectLastMessage(ui_, "Renseignez les coordonnées X,Y du point Pt2", "", MessageIcon::kNone);
  EXPECT_EQ(form.grid().ActiveCol(), 1);
}

TEST_F(FrmInfoCalageTest, OkWritesTheMapCoordinates) {
  FrmInfoCalage form(surface_, ui_, point_);
  form.grid().SetText(1, 1, "651000.5");
  form.grid().SetText(2, 1, "6862000.25");
  form.Run("cmdOk");
  EXPECT_TRUE(ui_.Empty());
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(surface_.CurrentObject(), other_);
  surface_.SetCurrentObject(point_);
  EXPECT_EQ(Val(surface_.ObjTag("Xcal")), 651000.5);
  EXPECT_EQ(Val(surface_.ObjTag("Ycal")), 6862000.25);
  EXPECT_EQ(surface_.ObjTag("Xlog"), "4000");
}

TEST_F(FrmInfoCalageTest, CancelTakesThePointAway) {
  FrmInfoCalage form(surface_, ui_, point_);
  form.Run("cmdCancel");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(FindCalibrationPoint(surface_, "Pt2"), 0);
  EXPECT_EQ(surface_.ObjectCount(kPage), 1);
}

TEST_F(FrmInfoCalageTest, AMissingRecordWritesNothing) {
  FrmInfoCalage form(surface_, ui_, 999);
  EXPECT_EQ(form.PointId(), "");
  form.grid().SetText(1, 1, "1");
  form.grid().SetText(2, 1, "2");
  form.Run("cmdOk");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(surface_.ObjectCount(kPage), 2);
}

}  // namespace
}  // namespace pluvane
