// Times a plot of one curve of 1 000 000 points from its script to the drawn
// surface: cutting and compiling the script, reading the curve file, clipping
// and drawing. The curve file is written first and not timed.
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "bench_clock.h"
#include "foundation/fixed_width.h"
#include "foundation/scripted_ui.h"
#include "drawing/surface.h"
#include "plot/morvex_draw.h"

int main() {
  constexpr int kPoints = 1000000;
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / "pluvane_bench_plot_render";
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  {
    std::ofstream curve(folder / "big.crb", std::ios::binary);
    curve << "'Big'\r\n";
    for (int i = 0; i < kPoints; ++i) {
      // Some points leave the window and come back, to exercise the clipping.
      const double x = i * 0.001;
      const double y = 5 + 5.5 * std::sin(i * 0.0001);
      curve << pluvane::FormatFixed(x, 10, 3) << pluvane::FormatFixed(y, 10, 3) << "\r\n";
    }
    std::ofstream script(folder / "big.Mst", std::ios::binary);
    script << "PAGE  \"A4\"  \"H\"  \"\"\r\n"
              " Cadre  2  28  2  20  \"Un million de points\"  6 1 0 6 0 65535\r\n"
              "    Echelle \"F\"  0  1000  0  10  100  1  2  2 \"x\"  \"y\"  \"V\" 5 "
              "\"#########0\" \"######0.00\"\r\n"
              "    Grille 2 2 2 1 0\r\n"
              "    Plotxy 1 \"big.crb\" \"Big\" \"Big\" 0 1 16711680\r\n"
              " EndCadre\r\n"
              "ENDPAGE\r\n";
  }
  pluvane::ScriptedUi ui;
  const auto start = std::chrono::steady_clock::now();
  pluvane::PlotPicture picture = pluvane::DrawScriptPage(ui, (folder / "big.Mst").string());
  const double elapsed = Milliseconds(start);
  std::size_t most_points = 0;
  int objects = 0;
  for (int n = picture.surface->FirstObject(); n != 0; n = picture.surface->NextObject()) {
    ++objects;
    most_points = std::max(most_points, picture.surface->ObjectShape(n)->points.size());
  }
  std::printf("script to surface, %d points: %.1f ms (%d objects, curve of %zu points, %s)\n",
              kPoints, elapsed, objects, most_points, picture.drawn ? "drawn" : "NOT drawn");
  std::filesystem::remove_all(folder);
  return picture.drawn && elapsed < 1000 ? 0 : 1;
}
