// What a calculation adds to the network's state: the names of the model
// derived from the network and the scenario, and the rain chosen in the rain
// list for the scenario's forms. Part of the application's record; the
// simulation's functions take this part.
#pragma once

#include <string>

#include "network/network_state.h"

namespace pluvane {

struct SimulationState : NetworkState {
  // Derived from the network and the scenario for a model generation.
  std::string NetworkBase;
  std::string ModelFolder;
  std::string ModelName;

  // The calculation scenario's forms. The rain chosen in the rain list, as its
  // four texts (Id, UsId, kind, mode), and the state the list leaves behind:
  // "ScnPluieSelected" once a rain was taken, empty otherwise.
  std::string IdPluie;
  std::string UsIdPluie;
  std::string iPluie;
  std::string iModePluie;
  std::string ScnPluieState;
};

}  // namespace pluvane
