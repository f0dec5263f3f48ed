// Paints a drawing of 50 000 objects, or of the count given as argument
// (symbols on a grid, each linked to its right neighbour) into a 1600 x 1000
// image: the whole view, then a zoomed view of about a hundredth of it, each
// several times.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <chrono>
#include <cstdio>
#include <cmath>
#include <cstdlib>

#include "bench_clock.h"
#include "drawing/surface.h"
#include "ui/surface_painter.h"

namespace {

using Clock = std::chrono::steady_clock;

}  // namespace

int main(int argc, char** argv) {
  if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QGuiApplication app(argc, argv);
  pluvane::Surface surface;
  const std::string symbol = std::string(PLUVANE_BENCH_DATA) + "/Symboles/NOD.svg";
  const int count = argc > 1 ? std::max(2, std::atoi(argv[1])) : 50000;
  // A square of symbols, each but the first of a row linked to its left one.
  const int kSide = static_cast<int>(std::ceil(std::sqrt(count / 2.0)));
  auto start = Clock::now();
  surface.SetRedraw(false);
  surface.BeginStep("bench");
    int objects = 0;
  for (int row = 0; row < kSide; ++row) {
    int left_neighbour = 0;
    for (int col = 0; col < kSide && objects < count; ++col) {
      const int x = 400 * col, y = 400 * row;
      const int n = surface.AddObject(12, x, y, x + 100, y + 100);
      surface.SetObjectPicture(symbol);
      ++objects;
      if (left_neighbour && objects < count) {
        surface.AddLink(left_neighbour, n);
        surface.SetLineColor(0xFF0000);
        surface.SetLineWidth(-20);
        ++objects;
      }
      left_neighbour = n;
    }
  }
  surface.EndStep();
  std::printf("built %d objects in %.0f ms\n", surface.ObjectCount(pluvane::kPage),
              Milliseconds(start));

  pluvane::SurfacePainter painter;
  QImage image(1600, 1000, QImage::Format_ARGB32_Premultiplied);
  auto run = [&](const char* name, const QRectF& view, int times) {
    double best = 1e9, total = 0;
    for (int i = 0; i < times; ++i) {
      const auto t = Clock::now();
      QPainter p(&image);
      painter.Paint(surface, p, view, image.size());
      p.end();
      const double ms = Milliseconds(t);
      best = std::min(best, ms);
      total += ms;
    }
    std::printf("%-28s %7zu objects painted  first+mean %.1f ms  best %.1f ms\n", name,
                painter.LastPaintedCount(), total / times, best);
  };
  start = Clock::now();
  painter.Index(surface);
  std::printf("spatial index built in %.1f ms\n", Milliseconds(start));
  const double extent = 400.0 * kSide;
  run("whole view", QRectF(0, 0, extent, extent * 1000 / 1600), 5);
  run("zoomed view (1/100 area)", QRectF(extent / 3, extent / 3, extent / 10, extent / 16), 20);
  // A pan: the view slides across the drawing, as a drag of the scroll bar does.
  start = Clock::now();
  constexpr int kSteps = 50;
  for (int i = 0; i < kSteps; ++i) {
    QPainter p(&image);
    painter.Paint(surface, p,
                  QRectF(extent / 3 + i * extent / 200, extent / 3, extent / 10, extent / 16),
                  image.size());
  }
  std::printf("%-28s %d frames, %.1f ms a frame\n", "pan of the zoomed view", kSteps,
              Milliseconds(start) / kSteps);
  image.save(PLUVANE_BENCH_OUT "/bench_render.png");
  return 0;
}
