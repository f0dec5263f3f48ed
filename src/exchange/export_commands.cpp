#include "exchange/export_commands.h"

#include <filesystem>

#include "drawing/surface_helpers.h"
#include "exchange/export_text.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/catalogue.h"

namespace pluvane {

namespace {

// What tells the two text exports of several types apart.
struct TypeExport {
  const std::vector<ExportType>& types;
  const char* status;
  const char* title;
  int (*run)(Surface&, const NetworkState&, UserInterface&, const std::string&,
             const std::string&, const std::string&);
};

std::vector<std::string> Offers(Surface& surface, const std::vector<ExportType>& types) {
  std::vector<std::string> offers;
  for (const ExportType& type : types) {
    if (CountByName(surface, type.i_name) > 0) offers.push_back(type.offer);
  }
  return offers;
}

std::string NetworkFolder(const NetworkState& state) {
  std::string folder, name, base, extension;
  SplitPath(state.NetworkFile, folder, name, base, extension);
  return folder;
}

std::string NetworkBaseName(const NetworkState& state) {
  std::string folder, name, base, extension;
  SplitPath(state.NetworkFile, folder, name, base, extension);
  return base;
}

void Remove(const std::string& path) {
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
}

// The folder given, else the one the user picks (empty when cancelled).
std::string TargetFolder(const NetworkState& state, UserInterface& ui, const std::string& given) {
  return given.empty() ? ui.BrowseFolder(NetworkFolder(state), kExportFolderTitle) : given;
}

int ExportTypes(Surface& surface, const NetworkState& state, UserInterface& ui, Console& log,
                const ChooseExportLines& choose, const TypeExport& what,
                const std::string& given_folder) {
  const std::string offer_file = JoinPath(state.WorkDir, kExportOfferFile);
  const std::string choice_file = JoinPath(state.WorkDir, kExportChoiceFile);
  Remove(offer_file);
  WriteTextLines(offer_file, Offers(surface, what.types));
  Remove(choice_file);
  if (choose) choose(offer_file, choice_file);
  if (!FileExist(choice_file)) {
    Remove(offer_file);
    return -1;
  }
  const std::string folder = TargetFolder(state, ui, given_folder);
  if (folder.empty()) {
    Remove(offer_file);
    Remove(choice_file);
    return -1;
  }
  ui.ShowStatus(what.status);
  const std::string report = JoinPath(NetworkFolder(state), kExportReportFile);
  const int count = what.run(surface, state, ui, choice_file, report, folder);
  ShowFileInLog(log, what.title, report);
  ui.ShowStatus("ok " + std::to_string(count) + " fichiers générés.");
  Remove(report);
  Remove(offer_file);
  Remove(choice_file);
  return count;
}

void ShowInProgress(UserInterface& ui) { ui.ShowMessage("en cours...", "", MessageIcon::kNone); }

std::string MifTarget(const NetworkState& state, UserInterface& ui, const char* suffix) {
  std::string target =
      JoinPath(NetworkFolder(state), NetworkBaseName(state) + suffix);
  ShowInProgress(ui);
  return target;
}

}  // namespace

void ShowFileInLog(Console& console, const std::string& title, const std::string& file) {
  console.Debut(title);
  std::vector<std::string> lines;
  ReadTextLines(file, lines);
  for (const std::string& line : lines) console.AfficheMessage(line);
  console.Fin(false);
}

int MnuFi_Export_Txt_Nod(Surface& surface, const NetworkState& state, UserInterface& ui,
                         const std::string& given_folder) {
  const std::string folder = TargetFolder(state, ui, given_folder);
  if (folder.empty()) return -1;
  const std::string file = JoinPath(folder, NetworkBaseName(state) + "_Nod.txt");
  ui.ShowStatus("export des noeuds en cours...");
  const int count = ExportObjData2TxtFile(ui, file, surface, kINameNode);
  ui.ShowMessage("ok, " + std::to_string(count) + " noeuds ont été regénérés dans le fichier \r" +
                     file,
                 "Export de noeuds en fichier", MessageIcon::kNone);
  return count;
}

std::vector<std::string> ApplicationOffers(Surface& surface) {
  return Offers(surface, ApplicationTypes());
}

std::vector<std::string> CollectorOffers(Surface& surface) {
  return Offers(surface, CollectorTypes());
}

int MnuFi_Export_Txt_App(Surface& surface, const NetworkState& state, UserInterface& ui,
                         Console& log, const ChooseExportLines& choose,
                         const std::string& given_folder) {
  return ExportTypes(surface, state, ui, log, choose,
                     {ApplicationTypes(), "export des apports en cours...", "Export de données",
                      ExportApp},
                     given_folder);
}

int MnuFi_Export_Txt_Can(Surface& surface, const NetworkState& state, UserInterface& ui,
                         Console& log, const ChooseExportLines& choose,
                         const std::string& given_folder) {
  return ExportTypes(surface, state, ui, log, choose,
                     {CollectorTypes(), "export des canalisations en cours...",
                      "Export de canalisation", ExportCan},
                     given_folder);
}

std::string MnuFi_Export_Mif_Nod(const NetworkState& state, UserInterface& ui) {
  return MifTarget(state, ui, "_Nod.Mif");
}

std::string MnuFi_Export_Mif_Cana(const NetworkState& state, UserInterface& ui) {
  return MifTarget(state, ui, "_Can.Mif");
}

std::string MnuFi_Export_Dxf(UserInterface& ui) {
  std::string file =
      ui.AskSaveFile("Exporter le dessin en fichier Autocad", "Fichier dxf|*.dxf", "dxf", "*.dxf");
  if (file.empty()) return file;
  if (FileNameOf(file).find('.') == std::string::npos) file += ".dxf";
  ShowInProgress(ui);
  return file;
}

}  // namespace pluvane
