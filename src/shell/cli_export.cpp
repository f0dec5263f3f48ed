#include "shell/cli_export.h"

#include <algorithm>
#include <filesystem>
#include <set>

#include "exchange/export_commands.h"
#include "exchange/export_text.h"
#include "foundation/errors.h"
#include "foundation/paths.h"
#include "foundation/scripted_ui.h"
#include "foundation/text.h"
#include "shell/cli_console.h"
#include "shell/cli_network.h"
#include "shell/cli_options.h"

namespace pluvane {

namespace {

// The types named by --types, upper-cased; false when one is not of `types`.
bool ParseTypes(const std::string& text, const std::vector<ExportType>& types,
                std::set<std::string>& named) {
  std::size_t start = 0;
  while (start <= text.size()) {
    const std::size_t comma = text.find(',', start);
    const std::string type =
        UCase(Trim(text.substr(start, comma == std::string::npos ? std::string::npos
                                                                 : comma - start)));
    bool known = false;
    for (const ExportType& t : types) known = known || type == t.type;
    if (!known) return false;
    named.insert(type);
    if (comma == std::string::npos) break;
    start = comma + 1;
  }
  return !named.empty();
}

// A writer's failure was shown through ShowError.
bool ErrorShown(const ScriptedUi& ui) {
  for (const UiMessage& message : ui.Messages()) {
    if (message.title.rfind(std::string(kErrorSource) + " (erreur", 0) == 0) return true;
  }
  return false;
}

int Export(const std::vector<std::string>& args, const std::string& app_path, std::ostream& out,
           ScriptedUi& ui) {
  if (args.empty()) return 2;
  const std::string& what = args[0];
  const bool nodes = what == "nodes";
  if (!nodes && what != "app" && what != "links") return 2;
  const std::vector<ExportType>& types = what == "app" ? ApplicationTypes() : CollectorTypes();
  std::vector<CliOption> options{{{"--dir"}, true, true}};
  if (!nodes) options.push_back({{"--types"}, true, false});
  CliOptions words;
  if (!words.Parse(std::vector<std::string>(args.begin() + 1, args.end()), options, 1, 1)) {
    return 2;
  }
  std::set<std::string> named;
  if (words.Has("--types") && !ParseTypes(words.Value("--types"), types, named)) return 2;
  if (words.Has("--dir") && words.Value("--dir").empty()) return 2;

  CliNetwork network(ui);
  if (!network.Open(app_path, words.Positional()[0])) return 1;
  AppState& state = network.state();
  std::string folder = words.Value("--dir");
  if (folder.empty()) {
    folder = DirOf(state.NetworkFile);
  } else {
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
  }
  if (!FolderExist(folder)) {
    ui.ShowMessage("Le répertoire " + folder + " ne peut pas être créé.", "pluvane-cli",
                   MessageIcon::kExclamation);
    return 1;
  }
  if (nodes) {
    const int count = MnuFi_Export_Txt_Nod(network.surface, state, ui, folder);
    return count < 0 || ErrorShown(ui) ? 1 : 0;
  }
  // The chooser answers the types listed, or every type on offer, in the
  // order of the offer.
  bool chosen = false;
  auto choose = [&](const std::string& source, const std::string& list_file) {
    std::vector<std::string> offered, lines;
    ReadTextLines(source, offered);
    for (const ExportType& type : types) {
      const bool on_offer =
          std::find(offered.begin(), offered.end(), type.offer) != offered.end();
      if (named.empty() ? on_offer : named.count(type.type) != 0) lines.push_back(type.offer);
    }
    if (lines.empty()) {
      ui.ShowMessage("aucune ligne n'a été cochée !!!", "choix d'élément à exporter",
                     MessageIcon::kNone);
      return;
    }
    chosen = WriteTextLines(list_file, lines);
  };
  CliConsole report(out);
  const int count = what == "app"
                        ? MnuFi_Export_Txt_App(network.surface, state, ui, report, choose, folder)
                        : MnuFi_Export_Txt_Can(network.surface, state, ui, report, choose, folder);
  if (!chosen || count < 0) return 1;
  return ErrorShown(ui) ? 1 : 0;
}

}  // namespace

CliCommand ExportCliCommand() {
  return {"export",
          "  export nodes NETWORK.mtf [--dir DIR]\n"
          "  export app NETWORK.mtf [--types BV,HYBV,HY] [--dir DIR]\n"
          "  export links NETWORK.mtf [--types CI,PF,PO] [--dir DIR]\n"
          "                writes the text files of Fichier > Exporter (nodes,\n"
          "                catchments and injections, collectors) into DIR (by\n"
          "                default the network's folder); for app and links, the\n"
          "                types listed (by default every type the network has)\n"
          "                and the report on standard output\n",
          Export};
}

}  // namespace pluvane
