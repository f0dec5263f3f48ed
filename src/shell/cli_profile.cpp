#include "shell/cli_profile.h"

#include <filesystem>

#include "drawing/surface_helpers.h"
#include "foundation/paths.h"
#include "foundation/scripted_ui.h"
#include "network/catalogue.h"
#include "network/reaches.h"
#include "results/frm_prof.h"
#include "results/long_profile.h"
#include "results/result_access.h"
#include "shell/cli_network.h"
#include "shell/cli_options.h"

namespace pluvane {

namespace {

int Profile(const ScriptPictureWriter& draw, const std::vector<std::string>& args,
            const std::string& app_path, std::ostream& out, ScriptedUi& ui) {
  CliOptions words;
  if (!words.Parse(
          args,
          {{{"--reach"}, true, false}, {{"--dir"}, true, true}, {{"-o", "--output"}, true, true}},
          1, 1)) {
    return 2;
  }
  const std::vector<std::string> reaches = words.Values("--reach");
  if (reaches.empty() || (words.Has("-o") && (!draw || words.Value("-o").empty()))) return 2;
  CliNetwork network(ui);
  if (!network.Open(app_path, words.Positional()[0])) return 1;
  Surface& surface = network.surface;
  SimulationState& state = network.state();
  // The menu's own refusal comes first, as the menu gives it.
  if (CountByName(surface, kINameReach) == 0) {
    ui.ShowMessage(
        "Au moins un bief de collecteurs être défini !\r\n"
        "Les Biefs sont créés dans 'Option/Bief de collecteurs/Nouveau'",
        "Contrôle de cohérence", MessageIcon::kExclamation);
    return 1;
  }
  // Only the reaches of the network can be ticked in the form.
  for (const std::string& reach : reaches) {
    if (FindReach(surface, reach) == 0) {
      ui.ShowMessage("Le bief " + reach + " n'existe pas dans le réseau.", "pluvane-cli",
                     MessageIcon::kExclamation);
      return 1;
    }
  }
  std::string folder = words.Value("--dir");
  if (folder.empty()) {
    // The work folder of the results: the network's folder and the scenario.
    mnuExploitation(state);
    folder = state.WorkDir;
  } else {
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
  }
  if (!FolderExist(folder)) {
    ui.ShowMessage("Le répertoire " + folder + " ne peut pas être créé.", "pluvane-cli",
                   MessageIcon::kExclamation);
    return 1;
  }
  const std::string script = WriteLongProfile(surface, ui, folder, reaches);
  if (script.empty()) {
    ui.ShowMessage("Écriture impossible dans " + folder, "pluvane-cli", MessageIcon::kCritical);
    return 1;
  }
  out << JoinPath(folder, kProfileCurveFile) << "\n" << script << "\n";
  if (!words.Has("-o")) return 0;
  return draw(ui, script, words.Value("-o"), out);
}

}  // namespace

CliCommand ProfileCliCommand(ScriptPictureWriter draw) {
  return {
      "profile",
      "  profile NETWORK.mtf --reach ID [--reach ID ...] [--dir DIR]\n"
      "          [-o OUT.svg|pdf|png]\n"
      "                writes the long profile of the reaches, in that order,\n"
      "                as Option > Profil en long does: Prof.crb and Prof.Mst in\n"
      "                DIR (by default the network's folder followed by the\n"
      "                current scenario's name); -o draws its page into a picture\n",
      [draw](const std::vector<std::string>& args, const std::string& app_path, std::ostream& out,
             ScriptedUi& ui) { return Profile(draw, args, app_path, out, ui); }};
}

}  // namespace pluvane
