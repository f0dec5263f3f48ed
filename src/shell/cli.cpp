#include "shell/cli.h"

#include <functional>
#include <map>

#include "foundation/scripted_ui.h"
#include "network/network_summary.h"
#include "network/persistence.h"
#include "network/surface.h"
#include "plot/plot_command.h"
#include "shell/application.h"
#include "simulation/data_recap.h"
#include "simulation/engine_commands.h"
#include "simulation/engine_run.h"
#include "simulation/model_command.h"
#include "simulation/model_names.h"
#include "foundation/text.h"
#include "simulation/model_generation.h"

namespace pluvane {

namespace {

struct Command {
  std::string usage;  // the command's lines of the usage text
  CliCommandRun run;
};

// The value after an option, or empty with `ok` false when it is missing.
bool TakeOption(const std::vector<std::string>& args, std::size_t& i, std::string& value) {
  if (i + 1 >= args.size()) return false;
  value = args[++i];
  return true;
}

int Plot(const std::vector<std::string>& args, const std::string&, std::ostream& out,
         ScriptedUi& ui) {
  std::string script, ctl;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--ctl") {
      if (!TakeOption(args, i, ctl)) return 2;
    } else if (script.empty() && args[i].rfind("-", 0) != 0) {
      script = args[i];
    } else {
      return 2;
    }
  }
  if (script.empty()) return 2;
  if (!CompileScriptPage(ui, script, ctl)) return 1;
  if (!ctl.empty()) out << ctl << "\n";
  return 0;
}

// Opens the network as the program does, with the configuration beside the
// programs, and prints what it holds. A look at a network does not enter it
// in the desktop program's list of recent files.
int Info(const std::vector<std::string>& args, const std::string& app_path, std::ostream& out,
         ScriptedUi& ui) {
  if (args.size() != 1 || args[0].rfind("-", 0) == 0) return 2;
  Surface surface;
  Application application(surface, ui);
  if (!application.Load(app_path, "")) return 1;
  RecentFiles unlisted;
  NetworkSession session{surface, application.state(), ui, unlisted};
  if (!OpenNetwork(session, true, args[0])) return 1;
  out << NetworkInfoText(surface, application.state());
  return 0;
}

// Opens the network as the program does and generates the model of a
// scenario (the network's current one by default). Nothing is saved.
int Generate(const std::vector<std::string>& args, const std::string& app_path, std::ostream& out,
             ScriptedUi& ui) {
  std::string network, scenario;
  bool scenario_given = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--scenario") {
      if (!TakeOption(args, i, scenario)) return 2;
      scenario_given = true;
    } else if (network.empty() && args[i].rfind("-", 0) != 0) {
      network = args[i];
    } else {
      return 2;
    }
  }
  if (network.empty()) return 2;
  Surface surface;
  Application application(surface, ui);
  if (!application.Load(app_path, "")) return 1;
  NetworkSession session = application.session();
  if (!OpenNetwork(session, true, network)) return 1;
  AppState& state = application.state();
  if (!scenario_given) scenario = state.ScenarioName;
  ModelContext context{surface, state, ui};
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

// Opens the network as the program does; the scenario is NAME or else the
// network's current one. Returns 0 when open, else the exit code: 2 when the
// words were wrong, 1 when it cannot open (its message shown).
int OpenForScenario(const std::vector<std::string>& args, const std::string& app_path,
                    Application& application, std::string& scenario, bool& velmar_only) {
  std::string network;
  bool scenario_given = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--scenario") {
      if (!TakeOption(args, i, scenario)) return 2;
      scenario_given = true;
    } else if (args[i] == "--velmar-only") {
      velmar_only = true;
    } else if (network.empty() && args[i].rfind("-", 0) != 0) {
      network = args[i];
    } else {
      return 2;
    }
  }
  if (network.empty()) return 2;
  if (!application.Load(app_path, "")) return 1;
  NetworkSession session = application.session();
  if (!OpenNetwork(session, true, network)) return 1;
  if (!scenario_given) scenario = application.state().ScenarioName;
  return 0;
}

// Generates the model and runs the engine; prints the log and cleans as the
// program does after a run.
int Run(const std::vector<std::string>& args, const std::string& app_path, std::ostream& out,
        ScriptedUi& ui) {
  Surface surface;
  Application application(surface, ui);
  std::string scenario;
  bool velmar_only = false;
  if (const int code = OpenForScenario(args, app_path, application, scenario, velmar_only)) {
    return code;
  }
  ModelContext context{surface, application.state(), ui};
  const ScenarioRun run = RunScenario(context, scenario, !velmar_only);
  if (run.steps < 0) return 1;
  std::vector<std::string> lines;
  ReadTextLines(run.msg_path, lines);
  for (const std::string& line : lines) out << line << "\n";
  const bool ok = run.steps == kModelStepCount && LogReportsSuccess(run.msg_path);
  CleanModelFiles(application.state(), run.msg_path, run.steps);
  return ok ? 0 : 1;
}

// Writes the data recap report of the scenario beside its model and prints its path.
int Recap(const std::vector<std::string>& args, const std::string& app_path, std::ostream& out,
          ScriptedUi& ui) {
  Surface surface;
  Application application(surface, ui);
  std::string scenario;
  bool velmar_only = false;
  if (const int code = OpenForScenario(args, app_path, application, scenario, velmar_only)) {
    return code;
  }
  if (velmar_only) return 2;
  AppState& state = application.state();
  state.ScenarioName = scenario;
  SetModelNames(state);
  MakeModelFolder(state);
  const std::string path = WriteDataRecap(surface, state, ui);
  if (path.empty()) {
    ui.ShowMessage("Scénario ou réseau inconnu : aucun récapitulatif écrit.", "pluvane-cli",
                   MessageIcon::kExclamation);
    return 1;
  }
  out << path << "\n";
  return 0;
}

std::map<std::string, Command>& Commands() {
  static std::map<std::string, Command> commands = {
      {"info",
       {"  info NETWORK.mtf\n"
        "                opens a network and prints, for each type present, its\n"
        "                iName, count and label, then the current scenario and\n"
        "                whether the network is calibrated\n",
        Info}},
      {"generate",
       {"  generate NETWORK.mtf [--scenario NAME]\n"
        "                generates the engine's input files of the scenario (the\n"
        "                network's current one by default) in the model folder\n"
        "                beside the network, whose path is printed\n",
        Generate}},
      {"run",
       {"  run NETWORK.mtf [--scenario NAME] [--velmar-only]\n"
        "                generates the model of the scenario, runs Velmar and Sidrel\n"
        "                (Velmar only with --velmar-only) in the model folder, prints\n"
        "                the run's log and cleans up as the program does\n",
        Run}},
      {"recap",
       {"  recap NETWORK.mtf [--scenario NAME]\n"
        "                writes the data recap report of the scenario beside its\n"
        "                model and prints its path\n",
        Recap}},
      {"plot",
       {"  plot SCRIPT.Mst [--ctl OUT.ctl]\n"
        "                compiles page 1 of a plot script in the script's folder;\n"
        "                --ctl also writes the control file there\n",
        Plot}},
  };
  return commands;
}

}  // namespace

void RegisterCliCommand(const std::string& name, const std::string& usage, CliCommandRun run) {
  Commands()[name] = Command{usage, std::move(run)};
}

std::string CliUsage() {
  std::string usage =
      "usage: pluvane-cli COMMAND [ARGUMENTS]\n"
      "\n"
      "Runs the treatments of Pluvane without a window. Messages go to standard\n"
      "error as 'title: text'; questions take their default answer.\n"
      "\n"
      "Commands:\n";
  for (const auto& [name, command] : Commands()) usage += command.usage;
  usage +=
      "  --help        this text; COMMAND --help, the same\n"
      "\n"
      "Exit status: 0 success, 1 the treatment refused, 2 bad usage.\n";
  return usage;
}

int RunCli(const std::vector<std::string>& args, const std::string& app_path, std::ostream& out,
           std::ostream& err) {
  if (args.empty()) {
    err << CliUsage();
    return 2;
  }
  const std::string& name = args[0];
  if (name == "--help" || name == "-h" || name == "help") {
    out << CliUsage();
    return 0;
  }
  auto found = Commands().find(name);
  if (found == Commands().end()) {
    err << "pluvane-cli: commande inconnue : " << name << "\n" << CliUsage();
    return 2;
  }
  std::vector<std::string> rest(args.begin() + 1, args.end());
  if (!rest.empty() && (rest[0] == "--help" || rest[0] == "-h")) {
    out << "usage: pluvane-cli\n" << found->second.usage;
    return 0;
  }
  ScriptedUi ui;
  ui.echo = [&err](const std::string& line) { err << line << "\n"; };
  const int status = found->second.run(rest, app_path, out, ui);
  if (status == 2) err << "usage: pluvane-cli\n" << found->second.usage;
  return status;
}

}  // namespace pluvane
