// The one QApplication of the Qt tests (offscreen), and small drawing helpers.
#pragma once

#include <QApplication>
#include <QColor>
#include <QImage>
#include <cstdint>
#include <ostream>

#include "drawing/surface.h"

namespace pluvane {

inline QApplication& TestApp() {
  static int argc = 1;
  static char name[] = "test_ui";
  static char* argv[] = {name, nullptr};
  static QApplication* app = new QApplication(argc, argv);
  return *app;
}

// Drawing colours, red in the low byte.
inline constexpr std::int32_t kRed = 0x0000FF;
inline constexpr std::int32_t kGreen = 0x00FF00;
inline constexpr std::int32_t kBlue = 0xFF0000;
inline constexpr std::int32_t kWhite = 0xFFFFFF;

// A filled rectangle, current when it returns.
inline int AddFilledRect(Surface& surface, int left, int top, int right, int bottom,
                         std::int32_t color) {
  const int n = surface.AddObject(2, left, top, right, bottom);
  surface.SetFillStyle(0);
  surface.SetFillColor(color);
  surface.SetLineColor(color);
  return n;
}

inline bool Near(QColor a, QColor b, int tolerance = 40) {
  return std::abs(a.red() - b.red()) <= tolerance && std::abs(a.green() - b.green()) <= tolerance &&
         std::abs(a.blue() - b.blue()) <= tolerance;
}

}  // namespace pluvane

// Colours in failure messages as #rrggbb.
inline void PrintTo(const QColor& color, std::ostream* os) {
  *os << color.name(QColor::HexArgb).toStdString();
}
