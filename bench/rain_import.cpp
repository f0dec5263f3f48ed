// Times the import of a PR rain file of 50 gauges and 20 000 records each into
// a network that holds the 50 gauges, and the rain file the generation writes
// back from it.
#include "rain/rain_import.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "bench_clock.h"
#include "bench_sheet.h"
#include "drawing/surface.h"
#include "foundation/fixed_width.h"
#include "foundation/scripted_ui.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/default_tags.h"
#include "network/georeferencing.h"
#include "rain/rain_records.h"
#include "shell/app_state.h"
#include "simulation/rain_file.h"

int main() {
  using namespace pluvane;
  constexpr int kGauges = 50;
  constexpr int kRecords = 20000;
  const std::filesystem::path folder = BenchFolder("bench_rain");
  Surface surface;
  AppState state;
  PrepareSheet(surface, state, folder, 100000);
  ScriptedUi ui;

  std::vector<std::string> lines = {"PR     'Orage'", PadLong(kGauges, 5) + PadInt(0, 5)};
  for (int g = 1; g <= kGauges; ++g) {
    surface.AddObject(12, 1000 * g, 1000, 1000 * g + 100, 1100);
    CreateDefaultTags(surface, state, "X_PLU", false);
    lines.push_back("'" + surface.ObjTag("Id") + "' 0");
    lines.push_back(FormatFixed(1000.0 * g, 10, 0) + FormatFixed(99000, 10, 0));
    lines.push_back(PadLong(kRecords, 5));
    for (int i = 0; i < kRecords; ++i) {
      lines.push_back(FormatFixed(i, 10, 2) + FormatFixed(i * 0.01 * g, 10, 2));
    }
    lines.push_back("");
  }
  const std::string file = (folder / "orage.plu").string();
  WriteTextLines(file, lines);

  auto start = std::chrono::steady_clock::now();
  const RainImportResult result = ImportRainFile(surface, state, ui, "PR", file);
  const double import_ms = Milliseconds(start);

  std::printf("PR import, %d gauges x %d records (%zu lines): %.0f ms, %d rain(s)\n", kGauges,
              kRecords, lines.size(), import_ms, result.imported);
  std::fflush(stdout);
  const int scenario = AddRainRecord(surface, state, kINameScenario, "Scn-1");
  surface.SetObjTag("IdPluie", "Orage");
  surface.SetObjTag("iPluie", "103");
  (void)scenario;
  start = std::chrono::steady_clock::now();
  GenFicPlu(surface, ui, state.calibration, "Scn-1", (folder / "t.Scn").string(),
            (folder / "t.PLU").string());
  const double generate_ms = Milliseconds(start);

  std::printf("its .PLU written back: %.0f ms\n", generate_ms);
  return result.imported == 1 ? 0 : 1;
}
