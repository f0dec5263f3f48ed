#include "foundation/form_placement.h"

#include <gtest/gtest.h>

namespace pluvane {
namespace {

TEST(CentreForm, HalfTheRoomOnEachSide) {
  EXPECT_EQ(CentreForm({1920, 1080}, {400, 300}), (ScreenPoint{760, 390}));
  EXPECT_EQ(CentreForm({101, 51}, {50, 20}), (ScreenPoint{25, 15}));
  EXPECT_EQ(CentreForm({800, 600}, {1000, 601}), (ScreenPoint{-100, -1}));
}

TEST(PlaceNearCursor, TopLeftCornerAtTheCursor) {
  EXPECT_EQ(PlaceNearCursor({100, 50}, {200, 100}, {800, 600}), (ScreenPoint{100, 50}));
  EXPECT_EQ(PlaceNearCursor({600, 500}, {200, 100}, {800, 600}), (ScreenPoint{600, 500}));
}

TEST(PlaceNearCursor, NegativeCoordinatesBecomeZero) {
  EXPECT_EQ(PlaceNearCursor({-5, -7}, {200, 100}, {800, 600}), (ScreenPoint{0, 0}));
}

TEST(PlaceNearCursor, PassingTheOwnerMovesBackByOnePointOneForm) {
  EXPECT_EQ(PlaceNearCursor({700, 50}, {200, 100}, {800, 600}), (ScreenPoint{580, 50}));
  EXPECT_EQ(PlaceNearCursor({10, 550}, {200, 100}, {800, 600}), (ScreenPoint{10, 490}));
  EXPECT_EQ(PlaceNearCursor({700, 550}, {205, 105}, {800, 600}), (ScreenPoint{575, 485}));
}

TEST(PlaceNearCursor, FormLargerThanItsOwnerStaysAtZero) {
  EXPECT_EQ(PlaceNearCursor({300, 300}, {1000, 700}, {800, 600}), (ScreenPoint{0, 0}));
}

}  // namespace
}  // namespace pluvane
