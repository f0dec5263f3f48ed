// The calculation scenario records of the drawing (kind 111) and what the
// program derives from them: the look-up by name, the calculation settings
// taken into the application state, the mode texts, the status panel and the
// caption of the generation menu.
#pragma once

#include <cstdint>
#include <string>

#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "network/catalogue.h"
#include "simulation/simulation_state.h"

namespace pluvane {

// What a scenario's IdPluie holds while no rain was chosen.
inline constexpr const char* kBrowseRain = "Parcourir...";
// The two calculation modes; only the leading digit is read back.
inline constexpr const char* kModeDiagnostic = "1: mode diagnostic ";
inline constexpr const char* kModeDimensioning = "2: mode dimensionnement";
// Defaults of a scenario opened with empty settings (minutes).
inline constexpr const char* kDefaultCalcDuree = "60";
inline constexpr const char* kDefaultCalcDt = "2";

// The two mode texts, tab-separated, for a list cell.
std::string CalcModeList();
// The calculation mode of a CalcMode text: its first character's leading
// number, less 1 (0 diagnostic, 1 dimensioning).
std::int16_t CalcModeValue(const std::string& calc_mode);

// The first record of the kind whose Id equals `id`, both trimmed and compared
// in capitals. It is left current; 0 when none (the cursor is put back).
int FindRecord(Surface& surface, int i_name, const std::string& id);
// The same without the cursor.
int FindRecordIn(const Surface& surface, int i_name, const std::string& id);

// Writes iGroup -1, iName 111, Id and UsId on the current object.
void WriteScenarioHead(Surface& surface, const std::string& id, const std::string& title);
// A new scenario record holding those four tags only; it is left current.
int AddScenarioRecord(Surface& surface, const SimulationState& state, const std::string& id,
                      const std::string& title);

// Takes the scenario record's CalcDuree, CalcDt and CalcMode into the state.
void TakeScenarioSettings(Surface& surface, SimulationState& state, int scenario);

// The name of the scenario followed by " (diag)" or " (dim)", as the status
// panel "sbrSCN" and the generation menu show it.
std::string ScenarioStatusText(Surface& surface, const std::string& scenario_name);
// Shows the current scenario in the status panel "sbrSCN".
void ShowScenarioPanel(Surface& surface, const SimulationState& state, UserInterface& ui);
// The caption of the generation entry of the scenario menu, refreshed each
// time that menu opens.
std::string GenerationMenuCaption(Surface& surface, const SimulationState& state);

}  // namespace pluvane
