#include "network/georeferencing.h"

#include <gtest/gtest.h>

#include <cmath>

namespace pluvane {
namespace {

Calibration WithPoints(std::array<std::int32_t, 3> xl, std::array<std::int32_t, 3> yl,
                       std::array<double, 3> xu, std::array<double, 3> yu) {
  Calibration c;
  for (int i = 1; i <= 3; ++i) {
    c.logic_x[i] = xl[i - 1];
    c.logic_y[i] = yl[i - 1];
    c.user_x[i] = xu[i - 1];
    c.user_y[i] = yu[i - 1];
  }
  return c;
}

TEST(Georeferencing, CollinearPointsFailAndLeaveTheParameters) {
  Calibration c = WithPoints({0, 10, 20}, {0, 10, 20}, {0, 10, 20}, {0, 10, 20});
  c.XORI = 7;
  c.XLAMU = 3;
  EXPECT_FALSE(SolveCalibration(c));
  EXPECT_EQ(c.XORI, 7);
  EXPECT_EQ(c.XLAMU, 3);
}

TEST(Georeferencing, DeterminantThreshold) {
  // T = H*E - G*F with E = 1, F = 0, G = 0, H = the height of the third point.
  Calibration small = WithPoints({0, 10, 0}, {0, 0, 10}, {0, -1, 0}, {0, 0, -0.00009});
  EXPECT_FALSE(SolveCalibration(small));
  Calibration enough = WithPoints({0, 10, 0}, {0, 0, 10}, {0, -1, 0}, {0, 0, -0.0001});
  EXPECT_TRUE(SolveCalibration(enough));
}

TEST(Georeferencing, CornersGiveTheUprightMap) {
  Calibration c;
  DefaultCalibrationFromCorners(c, 100000, 100000);
  EXPECT_NEAR(LogicToUserX(c, 1234, 5678), 1234, 1e-9);
  EXPECT_NEAR(LogicToUserY(c, 1234, 5678), 100000 - 5678, 1e-9);
  EXPECT_EQ(UserToLogicX(c, 1234, 94322), 1234);
  EXPECT_EQ(UserToLogicY(c, 1234, 94322), 5678);
}

TEST(Georeferencing, ThirdsGiveTheSameUprightMap) {
  Calibration c;
  DefaultCalibrationFromThirds(c, 90000, 90000);
  EXPECT_EQ(c.logic_x[1], 30000);
  EXPECT_EQ(c.user_y[1], 60000);
  EXPECT_NEAR(LogicToUserX(c, 100, 200), 100, 1e-9);
  EXPECT_NEAR(LogicToUserY(c, 100, 200), 89800, 1e-9);
}

TEST(Georeferencing, ZeroDivisorsGiveZero) {
  Calibration c;
  DefaultCalibrationFromCorners(c, 1000, 1000);
  c.XLACOS = 0;
  EXPECT_EQ(UserToLogicX(c, 10, 10), 0);
  EXPECT_EQ(UserToLogicY(c, 10, 10), 0);
  EXPECT_NE(LogicToUserX(c, 10, 10), 0);
  c.XLAMU = 0;
  EXPECT_EQ(LogicToUserX(c, 10, 10), 0);
  EXPECT_EQ(LogicToUserY(c, 10, 10), 0);
}

TEST(Georeferencing, RotatedMapRoundTripsWithinOneUnit) {
  // A plan turned by 30 degrees in Lambert-93 magnitudes, its scale chosen so that
  // XLACOS equals XLAMU, the case where the inverse map is exact.
  const double a = 3.14159265358979 / 6, s = 1 / std::cos(a), x0 = 651000, y0 = 6862000;
  auto to_user = [&](double xl, double yl, double& X, double& Y) {
    X = x0 + s * (xl * std::cos(a) + yl * std::sin(a));
    Y = y0 + s * (xl * std::sin(a) - yl * std::cos(a));
  };
  std::array<std::int32_t, 3> xl{1000, 50000, 20000}, yl{2000, 10000, 60000};
  std::array<double, 3> xu{}, yu{};
  for (int i = 0; i < 3; ++i) to_user(xl[i], yl[i], xu[i], yu[i]);
  Calibration c = WithPoints(xl, yl, xu, yu);
  ASSERT_TRUE(SolveCalibration(c));
  EXPECT_NE(c.XMUSIN, 0);
  EXPECT_NE(c.XLASIN, 0);
  EXPECT_NEAR(c.XLACOS, c.XLAMU, 1e-9 * std::fabs(c.XLAMU));
  for (auto [x, y] : {std::pair{30000, 40000}, std::pair{77777, 12345}}) {
    double X, Y;
    to_user(x, y, X, Y);
    EXPECT_NEAR(LogicToUserX(c, x, y), X, 1e-6);
    EXPECT_NEAR(LogicToUserY(c, x, y), Y, 1e-6);
    EXPECT_NEAR(UserToLogicX(c, X, Y), x, 1);
    EXPECT_NEAR(UserToLogicY(c, X, Y), y, 1);
  }
}

TEST(Georeferencing, ShearedInverseDriftsAsItAlwaysDid) {
  // Scale 0.1 and a rotation: XLACOS differs from XLAMU and the inverse is not exact.
  const double a = 3.14159265358979 / 6, s = 0.1;
  std::array<std::int32_t, 3> xl{1000, 50000, 20000}, yl{2000, 10000, 60000};
  std::array<double, 3> xu{}, yu{};
  for (int i = 0; i < 3; ++i) {
    xu[i] = s * (xl[i] * std::cos(a) + yl[i] * std::sin(a));
    yu[i] = s * (xl[i] * std::sin(a) - yl[i] * std::cos(a));
  }
  Calibration c = WithPoints(xl, yl, xu, yu);
  ASSERT_TRUE(SolveCalibration(c));
  const double X = LogicToUserX(c, 30000, 40000), Y = LogicToUserY(c, 30000, 40000);
  EXPECT_GT(std::abs(UserToLogicX(c, X, Y) - 30000), 1000);
}

TEST(Georeferencing, AnExtentFillsTheMiddleThirdOfTheSheet) {
  Calibration c;
  ASSERT_TRUE(CalibrateOnExtent(c, 90000, 60000, 1000, 2000, 1600, 2300));
  EXPECT_EQ(c.logic_x[1], 30000);
  EXPECT_EQ(c.logic_y[1], 20000);
  EXPECT_EQ(c.logic_x[3], 60000);
  EXPECT_EQ(c.logic_y[3], 40000);
  // The top left corner of the extent at the first third, the bottom right at the second.
  EXPECT_NEAR(LogicToUserX(c, 30000, 20000), 1000, 1e-6);
  EXPECT_NEAR(LogicToUserY(c, 30000, 20000), 2300, 1e-6);
  EXPECT_NEAR(LogicToUserX(c, 60000, 40000), 1600, 1e-6);
  EXPECT_NEAR(LogicToUserY(c, 60000, 40000), 2000, 1e-6);
}

TEST(Georeferencing, AnExtentOnOneLineLeavesTheCalibration) {
  Calibration c;
  c.XORI = 7;
  c.logic_x[1] = 5;
  EXPECT_FALSE(CalibrateOnExtent(c, 90000, 60000, 1000, 2000, 1600, 2000));
  EXPECT_EQ(c.XORI, 7);
  EXPECT_EQ(c.logic_x[1], 5);
}

}  // namespace
}  // namespace pluvane
