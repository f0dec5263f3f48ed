// Times the GIS exchange on a generated network of 20 000 nodes, 25 000
// collectors and 5 000 dividers (50 000 elements): the export of every layer
// to a GeoPackage, then the import of its nodes and its circular collectors
// into an empty calibrated network, each under 3 s. The number of nodes is
// the first argument (default 20000).
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>

#include "bench/bench_clock.h"
#include "bench_sheet.h"
#include "foundation/console.h"
#include "foundation/numbers.h"
#include "foundation/scripted_ui.h"
#include "gis/gis_export.h"
#include "gis/gis_import.h"
#include "shell/app_state.h"
#include "tools/network_builder.h"

namespace {

class CountingConsole : public pluvane::Console {
 public:
  void Debut(const std::string&) override {}
  void AfficheMessage(const std::string&) override { ++lines; }
  void AfficheJauge(int, const std::string&) override {}
  void EffaceJauge() override {}
  void Fin(bool) override {}
  std::string GetStatus() const override { return {}; }
  void SetStatus(const std::string&) override {}
  void Clear() override {}
  int lines = 0;
};

}  // namespace

int main(int argc, char** argv) {
  const int nodes = argc > 1 ? pluvane::ValLong(argv[1]) : 20000;
  const std::string symbols = std::string(PLUVANE_SOURCE_DATA) + "/Symboles";
  pluvane::ScriptedUi ui;
  pluvane::Surface surface;
  pluvane::AppState state;
  pluvane::NetworkBuilder builder(surface, state, ui, symbols,
                                  pluvane::LargeNetworkLogicSize(nodes));
  const pluvane::LargeNetworkCounts counts = pluvane::BuildLargeNetwork(builder, nodes);
  if (counts.nodes == 0) {
    std::printf("build failed\n");
    return 1;
  }
  std::printf("network: %d nodes, %d collectors, %d others\n", counts.nodes, counts.collectors,
              counts.others);
  const std::filesystem::path folder = BenchFolder("bench_gis");
  const std::string file = (folder / "Large.gpkg").string();
  state.CoordinateSystem = "EPSG:2154";

  auto start = std::chrono::steady_clock::now();
  const int written = pluvane::ExportGisLayers(surface, state, ui, file);
  const double export_ms = Milliseconds(start);
  std::printf("export: %d features in %.0f ms (%.1f MB)%s\n", written, export_ms,
              static_cast<double>(std::filesystem::file_size(file)) / 1e6,
              export_ms < 3000 ? "" : "  ** over 3 s **");

  // Into an empty network with the same calibration.
  pluvane::Surface target;
  pluvane::AppState empty;
  empty.SymbolDir = state.SymbolDir;
  empty.SymbolSize = state.SymbolSize;
  empty.LogicWidth = state.LogicWidth;
  empty.LogicHeight = state.LogicHeight;
  empty.calibration = state.calibration;
  empty.CoordinateSystem = state.CoordinateSystem;
  target.SetScale(0, 0, state.LogicWidth, state.LogicHeight, 4096);
  CountingConsole console;
  pluvane::GisImportRequest request;
  request.file = file;
  request.layer = pluvane::kGisNodes;
  request.kind = pluvane::GisImportKind::kNodes;
  request.tolerance = 0.01;
  start = std::chrono::steady_clock::now();
  const int imported_nodes = pluvane::ImportGisLayer({target, empty, ui}, console, request);
  const double nodes_ms = Milliseconds(start);
  request.layer = pluvane::kGisCollectorsCI;
  request.kind = pluvane::GisImportKind::kCI;
  start = std::chrono::steady_clock::now();
  const int imported_links = pluvane::ImportGisLayer({target, empty, ui}, console, request);
  const double links_ms = Milliseconds(start);
  const double import_ms = nodes_ms + links_ms;
  std::printf("import: %d nodes in %.0f ms, %d collectors in %.0f ms, %.0f ms in all%s\n",
              imported_nodes, nodes_ms, imported_links, links_ms, import_ms,
              import_ms < 3000 ? "" : "  ** over 3 s **");
  std::printf("console lines: %d, messages: %zu\n", console.lines, ui.Messages().size());
  for (const auto& message : ui.Messages()) std::printf("  %s: %s\n", message.title.c_str(), message.text.c_str());
  return export_ms < 3000 && import_ms < 3000 && imported_nodes > 0 ? 0 : 1;
}
