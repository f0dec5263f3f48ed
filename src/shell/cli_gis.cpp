#include "shell/cli_gis.h"

#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/scripted_ui.h"
#include "foundation/text.h"
#include "gis/gis_export.h"
#include "gis/frm_gis_import.h"
#include "gis/gis_import.h"
#include "network/persistence.h"
#include "shell/cli_console.h"
#include "shell/cli_network.h"
#include "shell/cli_options.h"

namespace pluvane {

namespace {

int GisExport(const std::vector<std::string>& args, const std::string& app_path,
              std::ostream& out, ScriptedUi& ui) {
  CliOptions words;
  if (!words.Parse(args, {{{"-o", "--output"}, true, true}, {{"--scenario"}, true, false}}, 1, 1)) {
    return 2;
  }
  const std::string output = words.Value("-o");
  if (output.empty() || GisFormatOf(output) == GisFormat::kNone) return 2;
  CliNetwork network(ui);
  if (!network.Open(app_path, words.Positional()[0])) return 1;
  AppState& state = network.state();
  const std::string scenario =
      words.Has("--scenario") ? words.Value("--scenario") : state.ScenarioName;
  const std::string sor = CurrentScenarioReport(state, scenario);
  const int count =
      ExportGisLayers(network.surface, state, ui, output, sor, IniFilePath(state));
  if (count < 0) return 1;
  out << count << " objets écrits dans " << output << "\n";
  return 0;
}

int GisImport(const std::vector<std::string>& args, const std::string& app_path,
              std::ostream& out, ScriptedUi& ui) {
  CliOptions words;
  if (!words.Parse(args,
                   {{{"--layer"}, true, false},
                    {{"--as"}, true, false},
                    {{"--fields"}, true, false},
                    {{"--tolerance"}, true, false},
                    {{"-o", "--output"}, true, true}},
                   2, 2)) {
    return 2;
  }
  GisImportRequest request;
  if (!ParseGisImportKind(words.Value("--as"), request.kind)) return 2;
  if (words.Value("-o").empty() || !words.Has("--layer")) return 2;
  request.layer = words.Value("--layer");
  request.file = words.Positional()[1];
  if (words.Has("--fields") && !ParseGisFields(words.Value("--fields"), request.fields)) return 2;
  if (words.Has("--tolerance")) {
    const std::string tolerance = words.Value("--tolerance");
    if (!IsGisNumber(tolerance)) return 2;
    request.tolerance = Val(tolerance);
  }
  CliNetwork network(ui);
  if (!network.Open(app_path, words.Positional()[0])) return 1;
  CliConsole console(out);
  const int count =
      ImportGisLayer({network.surface, network.state(), ui}, console, request);
  if (count < 0) return 1;
  NetworkSession session = network.application.session();
  if (!SaveNetwork(session, words.Value("-o"))) return 1;
  out << count << "\n";
  return 0;
}

}  // namespace

CliCommand GisExportCliCommand() {
  return {"gis-export",
          "  gis-export NETWORK.mtf -o OUT.gpkg|.shp|.geojson|.dxf [--scenario NAME]\n"
          "                writes the network as GIS layers (nodes, catchments,\n"
          "                collectors by kind, singular elements), in its coordinate\n"
          "                system, with the capacity figures of the scenario when it\n"
          "                has results; the format follows the extension\n",
          GisExport};
}

CliCommand GisImportCliCommand() {
  return {"gis-import",
          "  gis-import NETWORK.mtf LAYERFILE --layer NAME --as nodes|ci|pf|po\n"
          "             [--fields name=FIELD,...] [--tolerance METRES] -o OUT.mtf\n"
          "                imports a point layer as nodes or a line layer as\n"
          "                collectors, joined to the nodes within the tolerance\n"
          "                (0.5 m by default), prints the doubtful elements and the\n"
          "                count, and writes the network to OUT.mtf\n",
          GisImport};
}

}  // namespace pluvane
