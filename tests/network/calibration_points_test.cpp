#include "network/calibration_points.h"

#include <gtest/gtest.h>

#include "drawing/surface_helpers.h"
#include "foundation/numbers.h"
#include "network/calibration_fixture.h"
#include "network/catalogue.h"
#include "shell/app_state.h"

namespace pluvane {
namespace {

std::vector<std::pair<std::string, std::string>> Tags(Surface& surface, int number) {
  surface.SetCurrentObject(number);
  std::vector<std::pair<std::string, std::string>> tags;
  for (int i = 0; i < surface.ObjTagCount(); ++i) {
    tags.emplace_back(surface.ObjTagName(i), surface.ObjTagValue(i));
  }
  return tags;
}

TEST(CalibrationPoints, IdsArePt1ToPt3) {
  EXPECT_EQ(CalibrationPointId(1), "Pt1");
  EXPECT_EQ(CalibrationPointId(3), "Pt3");
}

TEST(CalibrationPoints, AHiddenRecordBecomesAVisibleSymbolCentredOnItsPoint) {
  Surface surface;
  AppState state = CalibrationState();
  AddHiddenPoint(surface, state, 2, kMapPoints[2]);
  surface.SetObjTag("Note", "gardée");
  const int other = surface.AddObject(kKindEllipse, 0, 0, 10, 10);
  EXPECT_EQ(ShowCalibrationPoints(surface, state), 1);
  EXPECT_EQ(surface.CurrentObject(), other);
  EXPECT_EQ(CountByName(surface, kINameHiddenCalage), 0);
  const int shown = FindCalibrationPoint(surface, "Pt2");
  ASSERT_GT(shown, 10);
  EXPECT_EQ(surface.CurrentObject(), other);
  surface.SetCurrentObject(shown);
  EXPECT_EQ(surface.ObjectKind(), kKindPicture);
  EXPECT_TRUE(surface.ObjectVisible());
  EXPECT_EQ(surface.ObjectPicture(), std::string(PLUVANE_DATA) + "/Symboles/CAL.svg");
  EXPECT_EQ(surface.ObjLeft(), 9940);
  EXPECT_EQ(surface.ObjTop(), 49940);
  EXPECT_EQ(surface.ObjRight(), 10060);
  EXPECT_EQ(surface.ObjBottom(), 50060);
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"iName", "15"},    {"Id", "Pt2"},      {"Xlog", "10000"}, {"Ylog", "50000"},
      {"Xcal", "610000"}, {"Ycal", "150000"}, {"Note", "gardée"}};
  EXPECT_EQ(Tags(surface, shown), expected);
}

TEST(CalibrationPoints, AVisibleSymbolBecomesAHiddenRecordKeepingItsTags) {
  Surface surface;
  AppState state = CalibrationState();
  const int shown = AddVisiblePoint(surface, 1, kMapPoints[1]);
  const auto before = Tags(surface, shown);
  EXPECT_EQ(HideCalibrationPoints(surface, state), 1);
  EXPECT_EQ(CountByName(surface, kINameCalage), 0);
  const int hidden = FindObject2(surface, "Id", "Pt1", "iName", kINameHiddenCalage);
  ASSERT_GT(hidden, 10);
  EXPECT_EQ(surface.ObjectKind(), kKindRectangle);
  EXPECT_FALSE(surface.ObjectVisible());
  EXPECT_EQ(surface.LineColor(), 12632256);
  EXPECT_EQ(surface.ObjLeft(), 99880);
  EXPECT_EQ(surface.ObjBottom(), 100120);
  auto after = Tags(surface, hidden);
  ASSERT_EQ(after.size(), before.size());
  EXPECT_EQ(after[0], (std::pair<std::string, std::string>{"iName", "150"}));
  for (std::size_t i = 1; i < after.size(); ++i) EXPECT_EQ(after[i], before[i]);
}

TEST(CalibrationPoints, ARoundTripKeepsTheFourTagsAndThePlace) {
  Surface surface;
  AppState state = CalibrationState();
  AddHiddenPoints(surface, state);
  EXPECT_EQ(ShowCalibrationPoints(surface, state), 3);
  EXPECT_EQ(HideCalibrationPoints(surface, state), 3);
  EXPECT_EQ(ShowCalibrationPoints(surface, state), 3);
  for (int i = 1; i <= 3; ++i) {
    const int n = FindCalibrationPoint(surface, CalibrationPointId(i));
    ASSERT_GT(n, 10);
    surface.SetCurrentObject(n);
    EXPECT_EQ(surface.ObjTag("Xlog"), std::to_string(kMapPoints[i].x_log));
    EXPECT_EQ(surface.ObjTag("Ylog"), std::to_string(kMapPoints[i].y_log));
    EXPECT_EQ(Val(surface.ObjTag("Xcal")), kMapPoints[i].x_cal);
    EXPECT_EQ(Val(surface.ObjTag("Ycal")), kMapPoints[i].y_cal);
    EXPECT_EQ(surface.ObjLeft() + 60, kMapPoints[i].x_log);
    EXPECT_EQ(surface.ObjTop() + 60, kMapPoints[i].y_log);
  }
}

TEST(CalibrationPoints, AnOddSymbolSizeKeepsItsWidth) {
  Surface surface;
  AppState state = CalibrationState();
  state.SymbolSize = 75;
  AddHiddenPoint(surface, state, 1, kMapPoints[1]);
  ShowCalibrationPoints(surface, state);
  surface.SetCurrentObject(FindCalibrationPoint(surface, "Pt1"));
  EXPECT_EQ(surface.ObjRight() - surface.ObjLeft(), 75);
  EXPECT_EQ(surface.ObjBottom() - surface.ObjTop(), 75);
}

TEST(CalibrationPoints, PointsAreMadeAfreshFromTheTables) {
  Surface surface;
  AppState state = CalibrationState();
  for (int i = 1; i <= 3; ++i) {
    state.calibration.logic_x[i] = kMapPoints[i].x_log;
    state.calibration.logic_y[i] = kMapPoints[i].y_log;
    state.calibration.user_x[i] = kMapPoints[i].x_cal;
    state.calibration.user_y[i] = kMapPoints[i].y_cal;
  }
  AddCalibrationPoints(surface, state);
  EXPECT_EQ(CountByName(surface, kINameCalage), 3);
  Calibration read;
  EXPECT_TRUE(ReadCalibrationPoints(surface, kINameCalage, read));
  EXPECT_EQ(read.logic_x, state.calibration.logic_x);
  EXPECT_EQ(read.logic_y, state.calibration.logic_y);
  EXPECT_EQ(read.user_x, state.calibration.user_x);
  EXPECT_EQ(read.user_y, state.calibration.user_y);
}

TEST(CalibrationPoints, TablesAreReadOnlyWhenAllThreePointsStand) {
  Surface surface;
  AppState state = CalibrationState();
  AddHiddenPoint(surface, state, 1, kMapPoints[1]);
  AddHiddenPoint(surface, state, 3, kMapPoints[3]);
  Calibration c;
  c.user_x[1] = 7;
  EXPECT_FALSE(ReadCalibrationPoints(surface, kINameHiddenCalage, c));
  EXPECT_EQ(c.user_x[1], 7);
  AddHiddenPoint(surface, state, 2, kMapPoints[2]);
  EXPECT_TRUE(ReadCalibrationPoints(surface, kINameHiddenCalage, c));
  EXPECT_EQ(c.user_x[1], 610000);
  EXPECT_EQ(c.logic_y[2], 50000);
  EXPECT_FALSE(ReadCalibrationPoints(surface, kINameCalage, c));
}

}  // namespace
}  // namespace pluvane
