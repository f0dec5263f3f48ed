#include "shell/cli.h"

#include <algorithm>
#include <filesystem>
#include <random>

#include "foundation/scripted_ui.h"
#include "foundation/text.h"
#include "network/network_summary.h"
#include "network/persistence.h"
#include "drawing/surface.h"
#include "editors/section_export.h"
#include "editors/section_import.h"
#include "foundation/paths.h"
#include "shell/application.h"
#include "shell/cli_check.h"
#include "shell/cli_export.h"
#include "shell/cli_gis.h"
#include "shell/cli_network.h"
#include "shell/cli_obj_alpha.h"
#include "shell/cli_options.h"
#include "shell/cli_import.h"
#include "shell/cli_rain.h"
#include "simulation/data_recap.h"
#include "simulation/engine_commands.h"
#include "simulation/engine_run.h"
#include "simulation/model_command.h"
#include "simulation/model_generation.h"
#include "simulation/model_names.h"

namespace pluvane {

namespace {

// Prints what a network holds.
int Info(const std::vector<std::string>& args, const std::string& app_path, std::ostream& out,
         ScriptedUi& ui) {
  CliOptions words;
  if (!words.Parse(args, {}, 1, 1)) return 2;
  CliNetwork network(ui);
  if (!network.Open(app_path, words.Positional()[0])) return 1;
  out << NetworkInfoText(network.surface, network.state());
  return 0;
}

// The words of a command on a scenario, NETWORK.mtf [--scenario NAME] and
// `more` options, and its network opened. The scenario is NAME, else the
// network's current one. 0 when open, else the exit status: 2 for bad words,
// 1 when the network was refused.
int OpenScenario(const std::vector<std::string>& args, std::vector<CliOption> more,
                 const std::string& app_path, CliOptions& words, CliNetwork& network,
                 std::string& scenario) {
  more.push_back({{"--scenario"}, true, false});
  if (!words.Parse(args, more, 1, 1)) return 2;
  if (!network.Open(app_path, words.Positional()[0])) return 1;
  scenario = words.Has("--scenario") ? words.Value("--scenario") : network.state().ScenarioName;
  return 0;
}

// Generates the model of a scenario (the network's current one by default).
// Nothing is saved.
int Generate(const std::vector<std::string>& args, const std::string& app_path, std::ostream& out,
             ScriptedUi& ui) {
  CliOptions words;
  CliNetwork network(ui);
  std::string scenario;
  if (const int code = OpenScenario(args, {}, app_path, words, network, scenario)) return code;
  AppState& state = network.state();
  ModelContext context{network.surface, state, ui};
  const int steps = RunModelGeneration(context, scenario);
  if (steps != kModelStepCount) {
    // The driver stops silently on a run-time error; say where it stopped.
    if (steps > 0) {
      ui.ShowMessage("génération interrompue à l'étape " + std::to_string(steps) + " sur " +
                         std::to_string(kModelStepCount),
                     "pluvane-cli", MessageIcon::kExclamation);
    }
    return 1;
  }
  out << state.ModelFolder << "\n";
  return 0;
}

// Generates the model and runs the engine; prints the log and cleans as the
// program does after a run.
int Run(const std::vector<std::string>& args, const std::string& app_path, std::ostream& out,
        ScriptedUi& ui) {
  CliOptions words;
  CliNetwork network(ui);
  std::string scenario;
  const CliOption velmar_only{{"--velmar-only"}, false, false};
  if (const int code = OpenScenario(args, {velmar_only}, app_path, words, network, scenario)) {
    return code;
  }
  AppState& state = network.state();
  ModelContext context{network.surface, state, ui};
  const ScenarioRun run = RunScenario(context, scenario, !words.Has("--velmar-only"));
  if (run.steps < 0) return 1;
  std::vector<std::string> lines;
  ReadTextLines(run.msg_path, lines);
  for (const std::string& line : lines) out << line << "\n";
  const bool ok = run.steps == kModelStepCount && LogReportsSuccess(run.msg_path);
  CleanModelFiles(state, run.msg_path, run.steps);
  return ok ? 0 : 1;
}

// Writes the data recap report of the scenario beside its model and prints its path.
int Recap(const std::vector<std::string>& args, const std::string& app_path, std::ostream& out,
          ScriptedUi& ui) {
  CliOptions words;
  CliNetwork network(ui);
  std::string scenario;
  if (const int code = OpenScenario(args, {}, app_path, words, network, scenario)) return code;
  AppState& state = network.state();
  state.ScenarioName = scenario;
  SetModelNames(state);
  MakeModelFolder(state);
  const std::string path = WriteDataRecap(network.surface, state, ui);
  if (path.empty()) {
    ui.ShowMessage("Scénario ou réseau inconnu : aucun récapitulatif écrit.", "pluvane-cli",
                   MessageIcon::kExclamation);
    return 1;
  }
  out << path << "\n";
  return 0;
}

// The output option of the section commands.
const CliOption kOutput{{"-o", "--output"}, true, true};

// A report file of its own in the temporary folder, so that the import
// writes nothing beside the user's file.
std::string TemporaryReport() {
  std::random_device random;
  const std::filesystem::path folder = std::filesystem::temp_directory_path();
  return (folder / ("pluvane_sections_" + std::to_string(random()) + ".msg")).string();
}

// Imports sections into a network as Option > Importer des sections does,
// prints the report and writes the network to the output file.
int ImportSections(const std::vector<std::string>& args, const std::string& app_path,
                   std::ostream& out, ScriptedUi& ui) {
  CliOptions words;
  if (!words.Parse(args, {kOutput}, 2, 2) || words.Value("-o").empty()) return 2;
  const std::string& file = words.Positional()[1];
  CliNetwork network(ui);
  if (!network.Open(app_path, words.Positional()[0])) return 1;
  if (!FileExist(file)) {
    ui.ShowMessage("Fichier " + file + " introuvable!", "pluvane-cli", MessageIcon::kExclamation);
    return 1;
  }
  const std::string report = TemporaryReport();
  bool complete = false;
  ImportSectionFile(network.surface, network.state(), ui, file, report, &complete);
  std::vector<std::string> lines;
  ReadTextLines(report, lines);
  std::error_code ignored;
  std::filesystem::remove(report, ignored);
  for (const std::string& line : lines) out << line << "\n";
  NetworkSession session = network.application.session();
  if (!SaveNetwork(session, words.Value("-o"))) return 1;
  return complete ? 0 : 1;
}

// Writes the section library of a network to a text file that the import reads.
int ExportSectionsCommand(const std::vector<std::string>& args, const std::string& app_path,
                          std::ostream& out, ScriptedUi& ui) {
  CliOptions words;
  if (!words.Parse(args, {kOutput}, 1, 1) || words.Value("-o").empty()) return 2;
  CliNetwork network(ui);
  if (!network.Open(app_path, words.Positional()[0])) return 1;
  if (ExportSections(network.surface, ui, words.Value("-o")) < 0) return 1;
  out << words.Value("-o") << "\n";
  return 0;
}

}  // namespace

std::vector<CliCommand> CoreCliCommands() {
  return {
      {"info",
       "  info NETWORK.mtf\n"
       "                opens a network and prints, for each type present, its\n"
       "                iName, count and label, then the current scenario and\n"
       "                whether the network is calibrated\n",
       Info},
      {"generate",
       "  generate NETWORK.mtf [--scenario NAME]\n"
       "                generates the engine's input files of the scenario (the\n"
       "                network's current one by default) in the model folder\n"
       "                beside the network, whose path is printed\n",
       Generate},
      {"run",
       "  run NETWORK.mtf [--scenario NAME] [--velmar-only]\n"
       "                generates the model of the scenario, runs Velmar and Sidrel\n"
       "                (Velmar only with --velmar-only) in the model folder, prints\n"
       "                the run's log and cleans up as the program does\n",
       Run},
      {"recap",
       "  recap NETWORK.mtf [--scenario NAME]\n"
       "                writes the data recap report of the scenario beside its\n"
       "                model and prints its path\n",
       Recap},
      {"import-sections",
       "  import-sections NETWORK.mtf FILE.sec|FILE.crb -o OUT.mtf\n"
       "                imports the sections of a text (.sec) or curve file into the\n"
       "                network's library, prints the report and writes the network\n"
       "                to OUT.mtf\n",
       ImportSections},
      {"export-sections",
       "  export-sections NETWORK.mtf -o FILE.sec\n"
       "                writes the network's section library to a text file that\n"
       "                import-sections reads back, and prints its path\n",
       ExportSectionsCommand},
      {"import-rain",
       "  import-rain NETWORK.mtf FILE --key PR|PPHY|CAQ|PPST|PPDT|PRAD -o OUT.mtf\n"
       "                imports the rain blocks of that key from the rain text\n"
       "                FILE into the network as the external rain library does,\n"
       "                and writes the network to OUT.mtf (also when the import\n"
       "                was refused); prints the count imported\n",
       ImportRainCommand},
      {"copy-records",
       "  copy-records SOURCE.mtf DEST.mtf --kind N\n"
       "                copies every library record of iName N (101 sections, 102\n"
       "                Montana, 103 to 108 rains, 111 scenarios...) of SOURCE into\n"
       "                the existing network DEST, overwriting those of the same Id,\n"
       "                and prints the count\n",
       CopyRecordsCommand},
      ExportCliCommand(),
      GisExportCliCommand(),
      GisImportCliCommand(),
      {"check",
       "  check NETWORK.mtf [--forbidden] [--doublets] [--orphans]\n"
       "                runs the consistency checks named (all three, in that\n"
       "                order, when none is) and prints the lines of their\n"
       "                reports, closing counts included\n",
       CheckCommand},
      {"import",
       "  import nodes|bv|ci|pf|po NETWORK.mtf TABLE [--fields FILE.Fld] -o OUT.mtf\n"
       "                imports the nodes, catchments or collectors of a text table\n"
       "                (TABLE.Mif: the MapInfo .Mid beside it) as File > Importer\n"
       "                does, the columns from FILE.Fld (default: the .Fld beside\n"
       "                the table), writes the network to OUT.mtf and prints the\n"
       "                count imported\n",
       ImportTableCommand},
  };
}

std::string CliUsage(const std::vector<CliCommand>& commands) {
  std::vector<const CliCommand*> sorted;
  for (const CliCommand& command : commands) sorted.push_back(&command);
  std::sort(sorted.begin(), sorted.end(),
            [](const CliCommand* a, const CliCommand* b) { return a->name < b->name; });
  std::string usage =
      "usage: pluvane-cli COMMAND [ARGUMENTS]\n"
      "\n"
      "Runs the treatments of Pluvane without a window. Messages go to standard\n"
      "error as 'title: text'; questions take their default answer.\n"
      "\n"
      "Commands:\n";
  for (const CliCommand* command : sorted) usage += command->usage;
  usage +=
      "  --help        this text; COMMAND --help, the same\n"
      "\n"
      "Exit status: 0 success, 1 the treatment refused, 2 bad usage.\n";
  return usage;
}

int RunCli(const std::vector<std::string>& args, const std::vector<CliCommand>& commands,
           const std::string& app_path, std::ostream& out, std::ostream& err) {
  if (args.empty()) {
    err << CliUsage(commands);
    return 2;
  }
  const std::string& name = args[0];
  if (name == "--help" || name == "-h" || name == "help") {
    out << CliUsage(commands);
    return 0;
  }
  const auto found = std::find_if(commands.begin(), commands.end(),
                                  [&name](const CliCommand& command) { return command.name == name; });
  if (found == commands.end()) {
    err << "pluvane-cli: commande inconnue : " << name << "\n" << CliUsage(commands);
    return 2;
  }
  std::vector<std::string> rest(args.begin() + 1, args.end());
  if (!rest.empty() && (rest[0] == "--help" || rest[0] == "-h")) {
    out << "usage: pluvane-cli\n" << found->usage;
    return 0;
  }
  ScriptedUi ui;
  ui.echo = [&err](const std::string& line) { err << line << "\n"; };
  const int status = found->run(rest, app_path, out, ui);
  if (status == 2) err << "usage: pluvane-cli\n" << found->usage;
  return status;
}

}  // namespace pluvane
