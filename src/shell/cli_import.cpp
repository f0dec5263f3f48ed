#include "shell/cli_import.h"

#include <filesystem>

#include "exchange/import_commands.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/persistence.h"
#include "shell/cli_network.h"
#include "shell/cli_options.h"

namespace pluvane {

namespace {

std::string KindOfWord(const std::string& word) {
  if (word == "nodes") return "NOD";
  if (word == "bv") return "BV";
  if (word == "ci") return "CI";
  if (word == "pf") return "PF";
  if (word == "po") return "PO";
  return "";
}

std::string Whole(const std::string& path) {
  std::error_code error;
  return AbsolutePath(path, std::filesystem::current_path(error).string());
}

}  // namespace

int ImportTableCommand(const std::vector<std::string>& args, const std::string& app_path,
                       std::ostream& out, ScriptedUi& ui) {
  CliOptions words;
  if (!words.Parse(args, {{{"--fields"}, true, true}, {{"-o", "--output"}, true, true}}, 3, 3,
                   false)) {
    return 2;
  }
  const std::string kind = KindOfWord(words.Positional()[0]);
  if (kind.empty() || words.Value("-o").empty()) return 2;
  const std::string network_file = Whole(words.Positional()[1]);
  const std::string table = Whole(words.Positional()[2]);
  CliNetwork network(ui);
  if (!network.Open(app_path, network_file)) return 1;
  Surface& surface = network.surface;
  AppState& state = network.state();
  if (!CheckImportPreconditions(surface, state, ui, kind)) return 1;
  if (!FileExist(table)) {
    ui.ShowMessage("Fichier " + table + " introuvable.", "pluvane-cli", MessageIcon::kExclamation);
    return 1;
  }
  const bool mif = EqualsNoCase(ExtOf(table), "mif");
  const std::string data_file =
      ImportDataFile(table, mif ? ImportSource::kMif : ImportSource::kText, kind);
  if (!FileExist(data_file)) {
    ui.ShowMessage("Fichier " + data_file +
                       " introuvable : la table MapInfo (.Mid) doit se trouver à côté du fichier "
                       ".Mif.",
                   "pluvane-cli", MessageIcon::kExclamation);
    return 1;
  }
  const std::string fld_file =
      words.Has("--fields") ? words.Value("--fields") : FldFileOf(data_file);
  if (!FileExist(fld_file)) {
    ui.ShowMessage("Fichier des colonnes " + fld_file + " introuvable.", "pluvane-cli",
                   MessageIcon::kExclamation);
    return 1;
  }
  const std::string separator = mif ? "," : " ";
  ImportTarget target{surface, state, ui};
  int count = -1;
  if (kind == "NOD") {
    if (mif) {
      std::string folder, name, base, extension;
      SplitPath(data_file, folder, name, base, extension);
      const std::size_t dot = name.rfind('.');
      const std::string txt =
          JoinPath(folder, (dot == std::string::npos ? name : name.substr(0, dot)) + ".Txt");
      if (imp_GenNod_MidFile2TxtFile(ui, data_file, txt) == 0) return 1;
    }
    ui.Queue("2");
    if (!AskNodeImportCalibration(surface, ui)) return 1;
    count = ImportNodes(target, data_file, fld_file, separator);
  } else if (kind == "BV") {
    count = ImportBV(target, data_file, fld_file, separator);
  } else {
    count = ImportLinks(target, kind, data_file, fld_file, separator);
  }
  if (count < 0) return 1;
  NetworkSession session = network.application.session();
  if (!SaveNetwork(session, words.Value("-o"))) return 1;
  if (!ui.Statuses().empty()) out << ui.Statuses().back() << "\n";
  return 0;
}

}  // namespace pluvane
