// The mode suffix of the current calculation scenario, as the status bar and
// the menus show it after the scenario's name.
#pragma once

#include <string>

#include "drawing/surface.h"

namespace pluvane {

// " (diag)" when the scenario's calculation mode is 0, " (dim)" otherwise; empty
// when no scenario of that name (iName 111) exists. The mode is the leading
// digit of the scenario's CalcMode text, less 1.
std::string ScenarioModeText(Surface& surface, const std::string& scenario_name);

}  // namespace pluvane
