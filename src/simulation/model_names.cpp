#include "simulation/model_names.h"

#include "foundation/paths.h"

namespace pluvane {

namespace {

std::string NetworkBaseOf(std::string_view network_file) {
  std::string folder, name, base, extension;
  SplitPath(network_file, folder, name, base, extension);
  return base;
}

}  // namespace

std::string ModelNameOf(std::string_view scenario, std::string_view network_file) {
  return std::string(scenario) + "_" + NetworkBaseOf(network_file);
}

void SetModelNames(SimulationState& state) {
  state.NetworkBase = NetworkBaseOf(state.NetworkFile);
  state.ModelFolder = JoinPath(DirOf(state.NetworkFile), state.ScenarioName);
  state.ModelName = ModelNameOf(state.ScenarioName, state.NetworkFile);
}

bool MakeModelFolder(const SimulationState& state) {
  if (!FolderExist(state.ModelFolder)) MakeFolder(state.ModelFolder);
  return FolderExist(state.ModelFolder);
}

std::string ModelFilePath(const SimulationState& state, std::string_view extension) {
  return JoinPath(state.ModelFolder, state.ModelName + std::string(extension));
}

}  // namespace pluvane
