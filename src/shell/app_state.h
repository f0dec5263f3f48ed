// The one process-wide record of the program, made of the parts that each
// layer owns (the drawing's settings, the network's state, the calculation's
// names) and of what only the shell knows: the command line, the user's
// number format and the tool band's place. Written only from the main
// window's thread; each function takes the narrowest part it needs.
#pragma once

#include <cstdint>
#include <string>

#include "simulation/simulation_state.h"

namespace pluvane {

struct AppState : SimulationState {
  std::string CommandLine;  // trimmed
  // The decimal mark of the user's locale found at start, given back at exit.
  std::string SavedDecimal;
  // The locale name of LC_NUMERIC found at start.
  std::string SavedNumericLocale;
  // Docking area of the tool band, as read from the configuration.
  std::int32_t ToolBandPosition = 4;
};

}  // namespace pluvane
