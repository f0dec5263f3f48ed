// The set-up the benchmarks of the editors, exports and checks share: a large
// network placed through the program's own routines (NetworkBuilder), of
// `nodes` nodes (the first argument of the benchmark, else a default).
#pragma once

#include <cstdio>
#include <string>

#include "foundation/numbers.h"
#include "foundation/scripted_ui.h"
#include "shell/app_state.h"
#include "tools/network_builder.h"

struct LargeBench {
  pluvane::ScriptedUi ui;
  pluvane::Surface surface;
  pluvane::AppState state;
  pluvane::LargeNetworkCounts counts;
};

// Builds the network into `bench` and prints what it holds; false (after a
// message) when the build failed.
inline bool BuildLargeBench(LargeBench& bench, int argc, char** argv, int default_nodes = 20000) {
  const int nodes = argc > 1 ? pluvane::ValLong(argv[1]) : default_nodes;
  const std::string symbols = std::string(PLUVANE_SOURCE_DATA) + "/Symboles";
  pluvane::NetworkBuilder builder(bench.surface, bench.state, bench.ui, symbols,
                                  pluvane::LargeNetworkLogicSize(nodes));
  bench.counts = pluvane::BuildLargeNetwork(builder, nodes);
  if (bench.counts.nodes == 0) {
    std::printf("build failed\n");
    return false;
  }
  std::printf("network: %d nodes, %d collectors, %d others\n", bench.counts.nodes,
              bench.counts.collectors, bench.counts.others);
  return true;
}
