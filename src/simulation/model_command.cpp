#include "simulation/model_command.h"

#include "simulation/model_generation.h"
#include "simulation/model_names.h"
#include "simulation/scenario_check.h"

namespace pluvane {

int RunModelGeneration(ModelContext& context, const std::string& scenario_name) {
  SimulationState& state = context.state;
  if (CheckScenarioNames(context.surface, state, context.ui, scenario_name)) return -1;
  state.ScenarioName = scenario_name;
  SetModelNames(state);
  MakeModelFolder(state);
  return GenerateModel(context, state.ModelName);
}

}  // namespace pluvane
