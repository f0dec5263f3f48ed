// Times the capacity map on a network of 25 000 collectors (the first argument
// changes the count): the network copied, the legend drawn, and a report of
// one line a collector read onto the copy and coloured. Must stay under a second.
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>

#include "bench/bench_clock.h"
#include "drawing/surface.h"
#include "drawing/surface_object.h"
#include "foundation/numbers.h"
#include "foundation/scripted_ui.h"
#include "results/capacity_map.h"

int main(int argc, char** argv) {
  const int collectors = argc > 1 ? pluvane::ValLong(argv[1]) : 25000;
  const std::string folder = PLUVANE_BENCH_OUT;
  const std::string ini = folder + "/capacity_bench.ini";
  pluvane::WriteCapacityScale({{65280, 0}, {65535, 50}, {33023, 80}, {255, 100}}, ini);
  pluvane::Surface network;
  int previous = network.AddObject(pluvane::kKindEllipse, 0, 0, 50, 50);
  std::ofstream sor(folder + "/capacity_bench.Sor", std::ios::binary);
  sor << "  Mode de calcul : Diagnostic\r\n";
  for (int i = 1; i <= collectors; ++i) {
    const int x = (i % 500) * 150, y = (i / 500) * 150;
    const int node = network.AddObject(pluvane::kKindEllipse, x, y, x + 50, y + 50);
    const int link = network.AddLink(previous, node);
    network.SetCurrentObject(link);
    const std::string label = "C" + std::to_string(i);
    network.SetObjTag("iGroup", "2");
    network.SetObjTag("iName", "5");
    network.SetObjTag("libell", label);
    std::string padded = label;
    padded.resize(8, ' ');
    sor << "\"" << padded << "   0.010   " << (i % 150) / 100.0
        << "   120.0   1.000   0.480   118.0   2.5\r\n";
    previous = node;
  }
  sor.close();
  pluvane::ScriptedUi ui;
  pluvane::CapacityMap map(ui);
  const auto start = std::chrono::steady_clock::now();
  const bool complete = map.Load({&network, folder + "/capacity_bench.Sor", folder, ini});
  const double loading = Milliseconds(start);
  std::printf("%d collectors: copy, legend, report read and coloured in %.0f ms%s\n", collectors,
              loading, complete ? "" : " (incomplete)");
  std::printf("messages: %zu\n", ui.Messages().size());
  return complete && loading < 1000 ? 0 : 1;
}
