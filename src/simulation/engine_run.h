// Running the engine on a generated model: Velmar builds the engine's model,
// Sidrel computes the hydrographs. Each is started in the model folder and
// waited for; its .err tells the outcome and its .log joins the run's log
// (ModelName.msg), which the console shows at the end. Place Nette may then
// remove the generated inputs.
#pragma once

#include <string>

#include "foundation/user_interface.h"
#include "simulation/simulation_state.h"
#include "foundation/console.h"

namespace pluvane {

// The command line that starts an engine program of the application folder:
// `name` or `name.exe` in any case; a .exe goes through the launcher of the
// setting `Lanceur` (section Autres) when one is set. Empty when the program
// is not there.
std::string EngineCommand(const SimulationState& state, const std::string& name);

// Runs Velmar on the model and writes its outcome to the log. False when its
// .err reported a failure.
bool RunVelmar(const SimulationState& state, UserInterface& ui);
// Runs Sidrel and writes its outcome and the result files to the log.
void RunSidrel(const SimulationState& state, UserInterface& ui);

// Shows the log file in the console, titled "Génération du modèle " and the
// scenario's name.
void ShowModelLog(const SimulationState& state, Console& console, const std::string& msg_path);

// With Place Nette on, deletes the generated inputs listed in the log (all
// but the .APP), and the stray files of the scenario's name.
void CleanModelFiles(const SimulationState& state, const std::string& msg_path, int step_count);

// The first item of an engine's .err as a 16-bit integer, 0 when the file is
// absent or empty.
int ReadEngineError(const std::string& err_path);

}  // namespace pluvane
