#include "network/map_coordinates.h"

#include <gtest/gtest.h>

#include <cmath>

#include "drawing/add_element.h"
#include "foundation/numbers.h"
#include "network/calibration_fixture.h"
#include "network/georeferencing.h"
#include "shell/app_state.h"

namespace pluvane {
namespace {

Calibration MapOfTheFixture() {
  Calibration c;
  for (int i = 1; i <= 3; ++i) {
    c.logic_x[i] = kMapPoints[i].x_log;
    c.logic_y[i] = kMapPoints[i].y_log;
    c.user_x[i] = kMapPoints[i].x_cal;
    c.user_y[i] = kMapPoints[i].y_cal;
  }
  EXPECT_TRUE(SolveCalibration(c));
  return c;
}

// A node symbol centred on (x, y), 100 wide, with its coordinate tags.
int AddNode(Surface& surface, const std::string& id, std::int32_t x, std::int32_t y, double x_us,
            double y_us) {
  const int n = AddElement(surface, 99, id);
  surface.SetObjectBounds(x - 50, y - 50, x + 50, y + 50);
  surface.SetObjTag("iGroup", 99);
  surface.SetObjTag("Xlog", x);
  surface.SetObjTag("Ylog", y);
  surface.SetObjTag("Xus", x_us);
  surface.SetObjTag("Yus", y_us);
  return n;
}

TEST(RecomputeUserCoordinates, OnlyElementsWithAPlaceOfTheirOwnAreCounted) {
  Surface surface;
  AppState state = CalibrationState();
  state.calibration = MapOfTheFixture();
  for (int i_name : {99, 12, 21, 1, 5, 8, 150}) AddElement(surface, i_name, "E");
  surface.AddObject(kKindRectangle, 0, 0, 10, 10);
  const int last = surface.CurrentObject();
  EXPECT_EQ(RecomputeUserCoordinates(surface, state), 4);
  EXPECT_EQ(surface.CurrentObject(), last);
  EXPECT_TRUE(surface.Redraw());
  int with_tags = 0;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    if (!surface.ObjTag("Xus").empty()) ++with_tags;
  }
  EXPECT_EQ(with_tags, 4);
}

TEST(RecomputeUserCoordinates, TheCentreIsWrittenThenReadBackAsIntegers) {
  Surface surface;
  AppState state = CalibrationState();
  state.calibration = MapOfTheFixture();
  const int bv = AddElement(surface, 1, "Bv_1", "", 101);  // centre (50.5, 50.5)
  surface.SetObjectBounds(1000, 2001, 1101, 2102);         // centre (1050.5, 2051.5)
  RecomputeUserCoordinates(surface, state);
  surface.SetCurrentObject(bv);
  EXPECT_EQ(surface.ObjTag("Xlog"), "1050.5");
  EXPECT_EQ(surface.ObjTag("Ylog"), "2051.5");
  // Read back half to even: 1050 and 2052.
  EXPECT_NEAR(Val(surface.ObjTag("Xus")), 601050, 1e-6);
  EXPECT_NEAR(Val(surface.ObjTag("Yus")), 197948, 1e-6);
}

TEST(SnapNodeToMap, TheNodeMovesAndWhatStandsOnItFollows) {
  Surface surface;
  const Calibration c = MapOfTheFixture();
  const int node = AddNode(surface, "Nod_1", 1000, 1000, 605000, 195000);
  const int other = AddNode(surface, "Nod_2", 9000, 1000, 0, 0);
  const int link = surface.AddLink(node, other);
  const int outlet = AddElement(surface, 14, "Cla_1");
  surface.SetObjectBounds(950, 950, 1050, 1050);
  surface.SetObjTag("iGroup", 1);
  surface.SetObjTag("sNodAm", "Nod_1");
  // Names the node but stands elsewhere: not on it.
  const int astray = AddElement(surface, 14, "Cla_2");
  surface.SetObjectBounds(3000, 3000, 3100, 3100);
  surface.SetObjTag("iGroup", 1);
  surface.SetObjTag("sNodAm", "Nod_1");
  surface.SetCurrentObject(other);
  surface.SetSelected(true);
  surface.SetCurrentObject(astray);

  EXPECT_TRUE(SnapNodeToMap(surface, c, node));
  EXPECT_EQ(surface.CurrentObject(), astray);
  EXPECT_EQ(surface.ObjectCount(kSelection), 1);
  EXPECT_EQ(surface.ObjLeft(), 3000);
  surface.SetCurrentObject(node);
  EXPECT_EQ(surface.ObjTag("Xlog"), "5000");
  EXPECT_EQ(surface.ObjTag("Ylog"), "5000");
  EXPECT_EQ(surface.ObjLeft(), 4950);
  EXPECT_EQ(surface.ObjTop(), 4950);
  surface.SetCurrentObject(outlet);
  EXPECT_EQ(surface.ObjLeft(), 4950);
  EXPECT_EQ(surface.ObjBottom(), 5050);
  surface.SetCurrentObject(link);
  ASSERT_FALSE(surface.ObjectPoints().empty());
  EXPECT_EQ(surface.ObjectPoints().front(), (Point{5000, 5000}));
}

TEST(SnapNodeToMap, ANodeInPlaceStays) {
  Surface surface;
  const Calibration c = MapOfTheFixture();
  const int node = AddNode(surface, "Nod_1", 5000, 5000, 605000, 195000);
  EXPECT_FALSE(SnapNodeToMap(surface, c, node));
  surface.SetCurrentObject(node);
  EXPECT_EQ(surface.ObjLeft(), 4950);
}

TEST(SnapNodeToMap, StaleTagsAreRewrittenEvenWhenTheSymbolIsInPlace) {
  Surface surface;
  const Calibration c = MapOfTheFixture();
  const int node = AddNode(surface, "Nod_1", 5000, 5000, 605000, 195000);
  surface.SetObjTag("Xlog", 4000);
  EXPECT_TRUE(SnapNodeToMap(surface, c, node));
  surface.SetCurrentObject(node);
  EXPECT_EQ(surface.ObjTag("Xlog"), "5000");
  EXPECT_EQ(surface.ObjLeft(), 4950);
}

TEST(SnapNodeToMap, ANodeWithoutCoordinatesIsLeftAlone) {
  Surface surface;
  const Calibration c = MapOfTheFixture();
  const int node = AddNode(surface, "Nod_1", 3000, 3000, 0.0000009, 0);
  surface.SetObjTag("Xlog", 0.5);
  surface.SetObjTag("Ylog", 0);
  EXPECT_FALSE(SnapNodeToMap(surface, c, node));
  surface.SetCurrentObject(node);
  EXPECT_EQ(surface.ObjLeft(), 2950);
  // Map coordinates of a millionth are coordinates.
  surface.SetObjTag("Xus", 0.000001);
  EXPECT_TRUE(SnapNodeToMap(surface, c, node));
}

TEST(SnapNodeToMap, AnImportedNodeShowsBackItsMapPositionOnARotatedMap) {
  // A plan turned by 30 degrees, its scale making XLACOS equal to XLAMU.
  const double a = 3.14159265358979 / 6, s = 1 / std::cos(a), x0 = 651000, y0 = 6862000;
  Calibration c;
  const std::int32_t xl[] = {0, 1000, 50000, 20000}, yl[] = {0, 2000, 10000, 60000};
  for (int i = 1; i <= 3; ++i) {
    c.logic_x[i] = xl[i];
    c.logic_y[i] = yl[i];
    c.user_x[i] = x0 + s * (xl[i] * std::cos(a) + yl[i] * std::sin(a));
    c.user_y[i] = y0 + s * (xl[i] * std::sin(a) - yl[i] * std::cos(a));
  }
  ASSERT_TRUE(SolveCalibration(c));
  ASSERT_NE(c.XMUSIN, 0);
  ASSERT_NE(c.XLASIN, 0);
  Surface surface;
  AppState state = CalibrationState();
  state.calibration = c;
  const double X = 670123.45, Y = 6851234.56;
  const int node = AddNode(surface, "Nod_1", 100, 100, X, Y);
  EXPECT_TRUE(SnapNodeToMap(surface, c, node));
  RecomputeUserCoordinates(surface, state);
  surface.SetCurrentObject(node);
  EXPECT_LE(std::hypot(Val(surface.ObjTag("Xus")) - X, Val(surface.ObjTag("Yus")) - Y), s);
}

TEST(SnapNodeToMap, NoObjectNoMove) {
  Surface surface;
  EXPECT_FALSE(SnapNodeToMap(surface, MapOfTheFixture(), 42));
  EXPECT_FALSE(SnapNodeToMap(surface, MapOfTheFixture(), 2));
}

}  // namespace
}  // namespace pluvane
