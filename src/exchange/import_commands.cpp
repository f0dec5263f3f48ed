#include "exchange/import_commands.h"

#include "drawing/surface_helpers.h"
#include "exchange/import_dialogs.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/catalogue.h"

namespace pluvane {

namespace {

constexpr const char* kTextFilter = "fichier txt|*.txt|fichier dat|*.dat|tout|*.*";
constexpr const char* kMifFilter = "fichier mif|*.mif";

bool IsCollector(const std::string& kind) { return kind == "CI" || kind == "PF" || kind == "PO"; }

std::string FileDialogTitle(const std::string& kind, ImportSource source) {
  const bool mif = source == ImportSource::kMif;
  if (kind == "NOD") {
    return mif ? "Charger un fichier Mapinfo Mif contenant des sympboles (points, noeuds, ...)"
               : "Charger un fichier texte contenant des noeuds à importer";
  }
  if (kind == "BV") {
    return mif ? "Charger un fichier Mapinfo Mif contenant les centroïdes des BV"
               : "Charger un fichier texte contenant les centroïdes des BV";
  }
  return mif ? "Charger un fichier Mif des canalisations reliant les noeuds venant d'être importés"
             : "Charger un fichier texte contenant des collecteurs";
}

std::string WorkingStatus(const std::string& kind) {
  if (kind == "NOD") return "Importation des NOD en cours...";
  if (kind == "BV") return "Importation de BV en cours...";
  return "Importation des " + kind;
}

}  // namespace

bool CheckImportPreconditions(Surface& surface, const NetworkState& state, UserInterface& ui,
                              const std::string& kind) {
  if (Trim(state.NetworkFile).empty()) {
    ui.ShowMessage("Un reseau d'accueil déjà calé doit être chargé au préalable !",
                   "Fusion de fichiet Tolmar", MessageIcon::kInformation);
    return false;
  }
  if (kind == "NOD" || CountByName(surface, kINameNode) > 0) return true;
  if (kind == "BV") {
    ui.ShowMessage(
        "La présence de noeuds est obligatoire.\nVous devez d'abord importer les noeuds.\n"
        "Il s'agit des noeuds du même réseau que les BV",
        "Import de BV", MessageIcon::kNone);
  } else {
    ui.ShowMessage(
        "La présence de noeuds est obligatoire.\nVous devez d'abord importer les noeuds.\n"
        "Il s'agit des noeuds portant les mêmes Identifiants que\n"
        "ceux des collecteurs que vous désirez importer.",
        "Import de canalisations", MessageIcon::kNone);
  }
  return false;
}

std::string ImportDataFile(const std::string& chosen, ImportSource source,
                           const std::string& kind) {
  if (source == ImportSource::kText) return chosen;
  std::string folder, name, base, extension;
  SplitPath(chosen, folder, name, base, extension);
  // The base runs to the first point; a name with several keeps all but the last.
  const std::size_t dot = name.rfind('.');
  base = dot == std::string::npos ? name : name.substr(0, dot);
  const std::string mid = base + (IsCollector(kind) ? ".MID" : ".Mid");
  const std::string found = FindFileNoCase(folder.empty() ? "." : folder, mid);
  return found.empty() ? JoinPath(folder, mid) : found;
}

std::string FldFileOf(const std::string& data_file) {
  std::string folder, name, base, extension;
  SplitPath(data_file, folder, name, base, extension);
  const std::size_t dot = name.rfind('.');
  base = dot == std::string::npos ? name : name.substr(0, dot);
  return JoinPath(folder, base + ".Fld");
}

bool AskNodeImportCalibration(Surface& surface, UserInterface& ui) {
  std::string answer = "2";
  if (CountByName(surface, kINameCalage) == 0) {
    const std::optional<std::string> typed = ui.AskText(
        "L' espace de travail n'est pas calé.\nVous pouvez\n"
        "1: importer un fond de plan puis définir le calage.\n"
        "2: ne pas définir le calage, auquel cas les coordonnées\n"
        "    seront relatives.\n",
        "Import des noeuds", "1");
    answer = typed ? Trim(*typed) : "";
  }
  return answer == "2";
}

int RunImportCommand(ImportSession& session, const std::string& kind, ImportSource source) {
  UserInterface& ui = session.ui;
  if (!CheckImportPreconditions(session.surface, session.state, ui, kind)) return -1;
  const bool mif = source == ImportSource::kMif;
  const std::string chosen =
      ui.AskOpenFile(FileDialogTitle(kind, source), mif ? kMifFilter : kTextFilter,
                     mif ? "mif" : "txt", mif ? "*.mif" : "*.txt");
  if (Trim(chosen).empty()) return -1;
  const std::string data_file = ImportDataFile(chosen, source, kind);
  const std::string separator = mif ? "," : " ";
  if (kind == "NOD") {
    if (mif) {
      std::string folder, name, base, extension;
      SplitPath(data_file, folder, name, base, extension);
      const std::size_t dot = name.rfind('.');
      const std::string txt =
          JoinPath(folder, (dot == std::string::npos ? name : name.substr(0, dot)) + ".Txt");
      if (imp_GenNod_MidFile2TxtFile(ui, data_file, txt) == 0) return -1;
    }
    if (!AskNodeImportCalibration(session.surface, ui)) return -1;
  } else if (mif && !FileExist(data_file)) {
    ui.ShowMessage("Fichier " + data_file +
                       " introuvable : la table MapInfo (.Mid) doit se trouver "
                       "à côté du fichier .Mif.",
                   "Import", MessageIcon::kExclamation);
    return -1;
  }
  ui.ShowStatus(WorkingStatus(kind));
  const std::string fld_file = FldFileOf(data_file);
  std::unique_ptr<ColumnDialog> dialog = MakeColumnDialog(kind, ui, fld_file);
  if (session.open_form) session.open_form(*dialog);
  if (dialog->RowCount() == 0) return -1;
  ImportTarget target{session.surface, session.state, ui};
  if (kind == "NOD") return ImportNodes(target, data_file, fld_file, separator);
  if (kind == "BV") return ImportBV(target, data_file, fld_file, separator);
  return ImportLinks(target, kind, data_file, fld_file, separator);
}

void MnuFi_Import_Txt_Nod(ImportSession& s) { RunImportCommand(s, "NOD", ImportSource::kText); }
void MnuFi_Import_Txt_BV(ImportSession& s) { RunImportCommand(s, "BV", ImportSource::kText); }
void MnuFi_Import_Txt_Cana_CI(ImportSession& s) { RunImportCommand(s, "CI", ImportSource::kText); }
void MnuFi_Import_Txt_Cana_PF(ImportSession& s) { RunImportCommand(s, "PF", ImportSource::kText); }
void MnuFi_Import_Txt_Cana_PO(ImportSession& s) { RunImportCommand(s, "PO", ImportSource::kText); }
void MnuFi_Import_Mif_Nod(ImportSession& s) { RunImportCommand(s, "NOD", ImportSource::kMif); }
void MnuFi_Import_Mif_BV(ImportSession& s) { RunImportCommand(s, "BV", ImportSource::kMif); }
void MnuFi_Import_Mif_Cac_CI(ImportSession& s) { RunImportCommand(s, "CI", ImportSource::kMif); }
void MnuFi_Import_Mif_Cac_PF(ImportSession& s) { RunImportCommand(s, "PF", ImportSource::kMif); }
void MnuFi_Import_Mif_Cac_PO(ImportSession& s) { RunImportCommand(s, "PO", ImportSource::kMif); }

}  // namespace pluvane
