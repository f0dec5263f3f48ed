#include "network/georeferencing.h"

#include <cmath>

#include "foundation/numbers.h"

namespace pluvane {

namespace {

// Differences of logical coordinates were formed in 32-bit arithmetic; they
// wrap as 32-bit values would.
double Diff32(std::int32_t a, std::int32_t b) {
  return static_cast<double>(static_cast<std::int32_t>(static_cast<std::uint32_t>(a) -
                                                       static_cast<std::uint32_t>(b)));
}

// The logical ordinate with its sign changed, in 32 bits.
std::int32_t Flip(std::int32_t y) {
  return static_cast<std::int32_t>(0u - static_cast<std::uint32_t>(y));
}

void SetPoint(Calibration& c, int i, std::int32_t x_log, std::int32_t y_log, double x_user,
              double y_user) {
  c.logic_x[i] = x_log;
  c.logic_y[i] = y_log;
  c.user_x[i] = x_user;
  c.user_y[i] = y_user;
}

}  // namespace

bool SolveCalibration(Calibration& c) {
  const std::int32_t x1 = c.logic_x[1], x2 = c.logic_x[2], x3 = c.logic_x[3];
  const std::int32_t y1 = Flip(c.logic_y[1]), y2 = Flip(c.logic_y[2]), y3 = Flip(c.logic_y[3]);
  const double A = Diff32(x1, x2), B = Diff32(x1, x3), C = Diff32(y1, y2), D = Diff32(y1, y3);
  const double E = c.user_x[1] - c.user_x[2], F = c.user_x[1] - c.user_x[3];
  const double G = c.user_y[1] - c.user_y[2], H = c.user_y[1] - c.user_y[3];
  const double T = H * E - G * F;
  if (std::fabs(T) < 0.0001) return false;
  c.XMUCOS = (D * E - C * F) / T;
  c.XLASIN = (C * H - D * G) / T;
  c.XLACOS = (A * H - B * G) / T;
  c.XMUSIN = (A * F - B * E) / T;
  c.XLAMU = (D * A - C * B) / T;
  c.XORI = (x1 * c.XMUCOS + y1 * c.XMUSIN) / c.XLAMU - c.user_x[1];
  c.YORI = (-static_cast<double>(x1) * c.XLASIN + y1 * c.XLACOS) / c.XLAMU - c.user_y[1];
  return true;
}

double LogicToUserX(const Calibration& c, double x_log, double y_log) {
  if (c.XLAMU == 0) return 0;
  return x_log * c.XMUCOS / c.XLAMU - c.XORI + (-y_log) * c.XMUSIN / c.XLAMU;
}

double LogicToUserY(const Calibration& c, double x_log, double y_log) {
  if (c.XLAMU == 0) return 0;
  return -c.YORI - x_log * c.XLASIN / c.XLAMU + (-y_log) * c.XLACOS / c.XLAMU;
}

std::int32_t UserToLogicX(const Calibration& c, double x_user, double y_user) {
  if (c.XLAMU == 0 || c.XLACOS == 0) return 0;
  const double u = c.XORI + x_user, v = c.YORI + y_user;
  const double R = c.XLASIN / c.XLACOS, S = c.XMUSIN / c.XLACOS;
  const double P = R * S + c.XMUCOS / c.XLAMU;
  return RoundLong(u / P - (v / P) * S);
}

std::int32_t UserToLogicY(const Calibration& c, double x_user, double y_user) {
  if (c.XLAMU == 0 || c.XLACOS == 0) return 0;
  const double u = c.XORI + x_user, v = c.YORI + y_user;
  const double R = c.XLASIN / c.XLACOS, S = c.XMUSIN / c.XLACOS;
  const double P = R * S + c.XMUCOS / c.XLAMU;
  return -RoundLong((c.XLAMU / c.XLACOS) * v + u * (R / P) - v * (R / P) * S);
}

void DefaultCalibrationFromThirds(Calibration& c, std::int32_t width, std::int32_t height) {
  // Each product is rounded to a 32-bit integer, as the tables hold integers.
  const std::int32_t w3 = RoundLong(width / 3.0), h3 = RoundLong(height / 3.0);
  const std::int32_t w23 = RoundLong(2.0 * width / 3.0), h23 = RoundLong(2.0 * height / 3.0);
  SetPoint(c, 1, w3, h3, w3, h23);
  SetPoint(c, 2, w3, h23, w3, h3);
  SetPoint(c, 3, w23, h23, w23, h3);
  SolveCalibration(c);
}

bool CalibrateOnExtent(Calibration& c, std::int32_t width, std::int32_t height, double x_min,
                       double y_min, double x_max, double y_max) {
  const std::int32_t w3 = RoundLong(width / 3.0), h3 = RoundLong(height / 3.0);
  const std::int32_t w23 = RoundLong(2.0 * width / 3.0), h23 = RoundLong(2.0 * height / 3.0);
  Calibration solved = c;
  SetPoint(solved, 1, w3, h3, x_min, y_max);
  SetPoint(solved, 2, w3, h23, x_min, y_min);
  SetPoint(solved, 3, w23, h23, x_max, y_min);
  if (!SolveCalibration(solved)) return false;
  c = solved;
  return true;
}

void DefaultCalibrationFromCorners(Calibration& c, std::int32_t width, std::int32_t height) {
  SetPoint(c, 1, 0, 0, 0, height);
  SetPoint(c, 2, 0, height, 0, 0);
  SetPoint(c, 3, width, height, width, 0);
  SolveCalibration(c);
}

}  // namespace pluvane
