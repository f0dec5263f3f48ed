// Times the import of 5 000 nodes and of 6 000 collectors (2 000 of each
// kind, in one table imported three times) from text tables into an empty,
// calibrated network.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>

#include "bench_clock.h"
#include "bench_sheet.h"
#include "drawing/surface.h"
#include "exchange/fld_file.h"
#include "exchange/kalder_import.h"
#include "foundation/scripted_ui.h"
#include "foundation/text.h"
#include "network/georeferencing.h"
#include "shell/app_state.h"

int main() {
  using namespace pluvane;
  constexpr int kNodes = 5000;
  constexpr int kPerKind = 2000;
  const std::filesystem::path folder = BenchFolder("bench_import");
  Surface surface;
  AppState state;
  PrepareSheet(surface, state, folder, 100000);
  // Map units of two logical units: a calibrated network, no pass of its own.
  Calibration& c = state.calibration;
  c.logic_x = {0, 0, 0, 100000};
  c.logic_y = {0, 0, 100000, 100000};
  c.user_x = {0, 0, 0, 200000};
  c.user_y = {0, 200000, 0, 0};
  SolveCalibration(c);
  ScriptedUi ui;

  std::vector<std::string> nodes, links;
  for (int i = 1; i <= kNodes; ++i) {
    nodes.push_back("N" + std::to_string(i) + " " + std::to_string(2000 + 30 * (i % 100) * 2) +
                    " " + std::to_string(2000 + 30 * (i / 100) * 2) + " 10");
  }
  static const char* const kKinds[] = {"CI", "PF", "PO"};
  for (int i = 0; i < 3 * kPerKind; ++i) {
    const int from = i % (kNodes - 1) + 1;
    links.push_back("C" + std::to_string(i) + " N" + std::to_string(from) + " N" +
                    std::to_string(from + 1) + " 10 9.5 0.6 100 " + kKinds[i % 3] + " 70 1 2");
  }
  const std::string node_file = (folder / "noeuds.txt").string();
  const std::string link_file = (folder / "coll.txt").string();
  WriteTextLines(node_file, nodes);
  WriteTextLines(link_file, links);
  const std::string node_fld = (folder / "noeuds.Fld").string();
  const std::string link_fld = (folder / "coll.Fld").string();
  WriteFldFile(node_fld, {1, 2, 3, 4});
  WriteFldFile(link_fld, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});

  ImportTarget target{surface, state, ui};
  auto start = std::chrono::steady_clock::now();
  const int made = ImportNodes(target, node_file, node_fld, " ");
  const double nodes_ms = Milliseconds(start);
  std::printf("%d nodes imported: %.0f ms\n", made, nodes_ms);
  std::fflush(stdout);

  start = std::chrono::steady_clock::now();
  int collectors = 0;
  for (const char* kind : kKinds) collectors += ImportLinks(target, kind, link_file, link_fld, " ");
  const double links_ms = Milliseconds(start);
  std::printf("%d collectors imported (3 passes over %zu lines): %.0f ms\n", collectors,
              links.size(), links_ms);
  std::printf("total: %.0f ms (target under 2000 ms)\n", nodes_ms + links_ms);
  return made == kNodes && collectors == 3 * kPerKind ? 0 : 1;
}
