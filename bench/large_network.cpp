// Times the placement routines on generated networks: building N nodes with
// 1.25 N collectors and 0.25 N dividers through DrawSymbol and DrawLink, then
// saving the file, opening it as the program does and counting what it holds.
// The network size is the first argument (default 2000).
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>

#include "bench_clock.h"
#include "foundation/numbers.h"
#include "foundation/scripted_ui.h"
#include "network/network_summary.h"
#include "network/persistence.h"
#include "shell/app_state.h"
#include "tools/network_builder.h"

int main(int argc, char** argv) {
  const int nodes = argc > 1 ? pluvane::ValLong(argv[1]) : 2000;
  const std::string symbols = std::string(PLUVANE_SOURCE_DATA) + "/Symboles";
  const std::string file =
      (std::filesystem::temp_directory_path() / "pluvane_bench_large.mtf").string();
  pluvane::ScriptedUi ui;
  pluvane::Surface surface;
  pluvane::AppState state;
  auto start = std::chrono::steady_clock::now();
  pluvane::NetworkBuilder builder(surface, state, ui, symbols,
                                  pluvane::LargeNetworkLogicSize(nodes));
  const pluvane::LargeNetworkCounts counts = pluvane::BuildLargeNetwork(builder, nodes);
  if (counts.nodes == 0) {
    std::printf("build failed\n");
    return 1;
  }
  std::printf("build %d nodes, %d collectors, %d others: %.0f ms\n", counts.nodes,
              counts.collectors, counts.others, Milliseconds(start));

  start = std::chrono::steady_clock::now();
  if (!builder.Save(file)) return 1;
  std::printf("save %.1f MB: %.0f ms\n",
              static_cast<double>(std::filesystem::file_size(file)) / 1e6, Milliseconds(start));

  pluvane::Surface reopened;
  pluvane::AppState opened;
  pluvane::RecentFiles recent;
  pluvane::NetworkSession session{reopened, opened, ui, recent};
  start = std::chrono::steady_clock::now();
  if (!pluvane::OpenNetwork(session, true, file)) return 1;
  std::printf("OpenNetwork: %.0f ms\n", Milliseconds(start));

  start = std::chrono::steady_clock::now();
  const auto by_kind = pluvane::CountsByIName(reopened);
  std::printf("CountsByIName (%zu kinds): %.1f ms\n", by_kind.size(), Milliseconds(start));
  std::filesystem::remove(file);
  return 0;
}
