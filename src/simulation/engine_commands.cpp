#include "simulation/engine_commands.h"

#include <vector>

#include "foundation/text.h"
#include "simulation/engine_run.h"
#include "simulation/model_command.h"
#include "simulation/model_names.h"

namespace pluvane {

namespace {

void RunAndShow(ModelContext& context, Console& console, bool with_sidrel) {
  const ScenarioRun run = RunScenario(context, context.state.ScenarioName, with_sidrel);
  if (run.steps < 0) return;
  ShowModelLog(context.state, console, run.msg_path);
  CleanModelFiles(context.state, run.msg_path, run.steps);
}

}  // namespace

ScenarioRun RunScenario(ModelContext& context, const std::string& scenario_name,
                        bool with_sidrel) {
  ScenarioRun run;
  run.steps = RunModelGeneration(context, scenario_name);
  if (run.steps < 0) return run;
  SimulationState& state = context.state;
  run.msg_path = ModelFilePath(state, ".msg");
  run.velmar_ok = RunVelmar(state, context.ui);
  if (with_sidrel && run.velmar_ok) {
    context.ui.ShowStatus("calcul de routage d'hydrogramme en cours...");
    RunSidrel(state, context.ui);
    context.ui.ShowStatus("");
  }
  return run;
}

void mnuScn_ModeleGen(ModelContext& context, Console& console) {
  RunAndShow(context, console, false);
}

void mnuScn_ModeleRun(ModelContext& context, Console& console) {
  RunAndShow(context, console, true);
}

bool LogReportsSuccess(const std::string& msg_path) {
  std::vector<std::string> lines;
  if (!ReadTextLines(msg_path, lines)) return false;
  for (const std::string& line : lines) {
    if (line.rfind("Erreur détectée dans ", 0) == 0) return false;
  }
  return true;
}

}  // namespace pluvane
