#include "shell/cli_capacity.h"

#include "foundation/paths.h"
#include "foundation/scripted_ui.h"
#include "foundation/text.h"
#include "network/persistence.h"
#include "results/capacity_map.h"
#include "shell/cli_network.h"
#include "shell/cli_options.h"

#include <utility>

namespace pluvane {

namespace {

constexpr const char* kTitle = "Pluvane";

}  // namespace

int CapacityCommand(const std::vector<std::string>& args, const std::string& app_path,
                    std::ostream& out, ScriptedUi& ui, const CapacityPictureWriter& writer) {
  CliOptions words;
  if (!words.Parse(args,
                   {{{"-o", "--output"}, true, true}, {{"--scenario"}, true, false},
                    {{"--sor"}, true, true}},
                   1, 1))
    return 2;
  const std::string& network = words.Positional()[0];
  const std::string output = words.Value("-o");
  if (output.empty()) return 2;
  const std::string name = FileNameOf(output);
  const std::size_t dot = name.rfind('.');
  const std::string extension = dot == std::string::npos ? "" : LCase(name.substr(dot + 1));
  const bool as_network = extension == "mtf";
  if (!as_network && extension != "svg" && extension != "pdf" && extension != "png") return 2;
  if (!as_network && !writer) return 2;
  if (!IsNetworkPath(network)) {
    ui.ShowMessage(network + " n'est pas de type Pluvane !!!", kTitle, MessageIcon::kExclamation);
    return 1;
  }
  CliNetwork program(ui);
  if (!program.Open(app_path, network)) return 1;
  AppState& state = program.state();
  if (words.Has("--scenario")) state.ScenarioName = words.Value("--scenario");
  // The scenario's results, named as the result menu names them.
  std::string folder, file_name, base, file_extension;
  SplitPath(network, folder, file_name, base, file_extension);
  const std::string work_dir = JoinPath(folder, state.ScenarioName);
  std::string sor = words.Value("--sor");
  if (sor.empty()) sor = JoinPath(work_dir, state.ScenarioName + "_" + base + ".Sor");
  if (!FileExist(sor)) {
    const std::string missing = words.Has("--sor") ? sor : state.ScenarioName + "_" + base + ".Sor";
    ui.ShowMessage("Le fichier " + missing + "  est introuvable ou\r\nn'a pas encore été généré dans\r\n" +
                       (words.Has("--sor") ? DirOf(sor) : work_dir),
                   "", MessageIcon::kNone);
    return 1;
  }
  CapacityMap map(ui);
  const CapacityMapInput input{&program.surface, sor,
                               FolderExist(work_dir) ? work_dir : DirOf(sor),
                               IniFilePath(state)};
  if (!map.Load(input)) return 1;
  const bool written = as_network ? map.map().SaveFile(output, kNativeFormat)
                                  : writer(map.map(), map.legend(), output, folder, state.SymbolDir);
  if (!written) {
    ui.ShowMessage("Erreur de sauvegarde : écriture impossible de " + output, kTitle,
                   MessageIcon::kCritical);
    return 1;
  }
  out << output << "\n";
  return 0;
}

CliCommand CapacityCliCommand(CapacityPictureWriter writer) {
  return {"capacity",
          "  capacity NETWORK.mtf [--scenario NAME] [--sor FILE] -o OUT.mtf|svg|pdf|png\n"
          "                builds the capacity map of the scenario (its .Sor, or\n"
          "                FILE) with the classes of pluvane.ini, and writes the\n"
          "                map's network, or draws it with its legend\n",
          [writer = std::move(writer)](const std::vector<std::string>& args,
                                       const std::string& app_path, std::ostream& out,
                                       ScriptedUi& ui) {
            return CapacityCommand(args, app_path, out, ui, writer);
          }};
}

}  // namespace pluvane
