#include "simulation/scenario_check.h"

#include "drawing/object_tags.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/network_parameters.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "simulation/model_names.h"

namespace pluvane {

namespace {

constexpr std::size_t kMaxScenarioLength = 16;
constexpr std::size_t kMaxModelNameLength = 24;
constexpr const char kTitle[] = "Contrôle de cohérence";

// The scenario's rain: its IdPluie, trimmed; empty when there is no scenario.
std::string ScenarioRain(Surface& surface, std::string_view scenario_name) {
  const int scenario = FindScenarioObject(surface, scenario_name);
  if (scenario == 0) return {};
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(scenario);
  return Trim(surface.ObjTag("IdPluie"));
}

}  // namespace

int FindScenarioObject(const Surface& surface, std::string_view scenario_name) {
  const std::string wanted = UCase(Trim(scenario_name));
  for (int n : surface.FindAllByTag(kTagIName, kINameScenario)) {
    if (UCase(Trim(surface.TagOf(n, kTagId))) == wanted) return n;
  }
  return 0;
}

bool CheckScenarioNames(Surface& surface, SimulationState& state, UserInterface& ui,
                        const std::string& scenario_name) {
  auto refuse = [&ui](const std::string& text) {
    ui.ShowMessage(text, kTitle, MessageIcon::kInformation);
    return true;
  };
  if (CharCount(scenario_name) > kMaxScenarioLength) {
    return refuse("Le nom du scénario de calcul doit être limité à 16 caractères");
  }
  if (Trim(state.NetworkFile).empty()) {
    return refuse(
        "Votre réseau n'est pas encore sauvegardé\r\n\r\n"
        "Utilisez 'Fichier/Sauvegarder sous...'\r\n"
        "pour le sauvegarder sous un nom désiré.");
  }
  const std::string model_name = ModelNameOf(scenario_name, state.NetworkFile);
  const std::size_t length = CharCount(model_name);
  if (length > kMaxModelNameLength) {
    return refuse(
        "Attention.\r\n\r\n"
        "Le nom du scénario + le caractère de liaison '_' + le nom du réseau\r\n"
        "est limité à 24 caractères.\r\n"
        "Actuellement cette concaténation présente " +
        std::to_string(length) + " caractères.\r\n(" + model_name +
        ")\r\n\r\n"
        "Réduire le nom du scénario ou celui du réseau puis réessayer.");
  }
  if (ScenarioRain(surface, scenario_name).empty()) {
    return refuse(
        "Un scénario de pluie doit être défini\r\n\r\n"
        "Utilisez 'Pluie/Choix d'un scénario...'\r\n"
        "pour définir un scénario de pluie sous un nom désiré.");
  }
  if (Trim(scenario_name).empty()) {
    return refuse("\r\nLe nom du scénario de calcul n'a pas été défini");
  }
  if (surface.FindById(kParamReseau) == 0) CreateBlankParamReseau(surface, state);
  return false;
}

}  // namespace pluvane
