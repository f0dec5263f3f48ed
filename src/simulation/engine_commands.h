// The two menu commands that run a scenario: mnuScn_ModeleGen (generate the
// model and let Velmar build it) and mnuScn_ModeleRun (the same, then Sidrel
// computes), each ending with the log in the console and Place Nette.
#pragma once

#include <string>

#include "foundation/console.h"
#include "simulation/model_context.h"

namespace pluvane {

struct ScenarioRun {
  int steps = -1;         // the generation's step count; -1 when a check refused
  bool velmar_ok = false;
  std::string msg_path;   // the run's log
};

// Generates the model of `scenario_name` and runs the engine (Sidrel too when
// `with_sidrel`), without showing the log or cleaning.
ScenarioRun RunScenario(ModelContext& context, const std::string& scenario_name, bool with_sidrel);

// The menu commands: the run, then the log in the console, then the clean-up.
void mnuScn_ModeleGen(ModelContext& context, Console& console);
void mnuScn_ModeleRun(ModelContext& context, Console& console);

// True when the log holds no engine failure ("Erreur détectée dans ...").
bool LogReportsSuccess(const std::string& msg_path);

}  // namespace pluvane
