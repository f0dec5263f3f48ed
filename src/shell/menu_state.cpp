#include "shell/menu_state.h"

#include "foundation/text.h"
#include "drawing/surface_helpers.h"
#include "network/catalogue.h"

namespace pluvane {

namespace {


}  // namespace

MenuStates RefreshMenus(Surface& surface) {
  const bool has_node = CountByName(surface, kINameNode) > 0;
  MenuStates states;
  for (const char* name :
       {"mnuPluie", "mnuOption", "mnuScn", "mnuExploitation", "mnuFile_Export", "mnuUtil"}) {
    states.emplace_back(name, has_node);
  }
  if (!has_node) states.emplace_back("mnuFile_Import", true);
  return states;
}

MenuStates FileMenuState(const Surface& surface, const AppState& state) {
  bool save = true, close = true, do_export = true;
  if (surface.ObjectCount(kPage) < 2) {
    save = false;
    if (surface.BackgroundPicture().empty()) close = false;
    if (Trim(state.NetworkFile).empty()) do_export = false;
  }
  return {{"mnuFile_Save", save},
          {"mnuFile_SaveAs", save},
          {"mnuFile_Close", close},
          {"mnuFile_Export", do_export}};
}

bool NetworkLoaded(const AppState& state, UserInterface& ui) {
  if (!Trim(state.NetworkFile).empty()) return true;
  ui.ShowMessage("Un réseau doit être chargé.", "Pluvane", MessageIcon::kExclamation);
  return false;
}

std::string ScenarioGenerationCaption(const AppState& state) {
  return "Génération du &modèle " + state.ScenarioName;
}

}  // namespace pluvane
