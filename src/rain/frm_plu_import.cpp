#include "rain/frm_plu_import.h"

#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/network_tags.h"
#include "rain/rain_records.h"

namespace pluvane {

namespace {

std::string FileHead(const std::string& key) {
  if (key == "PPHY") return "Fichier des enregistrements I(t)";
  if (key == "PR") return "Fichier des enregistrements Hcum(t)";
  return "Fichier";
}

int LibraryKind(const std::string& key) {
  if (key == "PR") return kINameExternalGauge;
  if (key == "PPHY") return kINameExternalHyeto;
  return ImportedKind(key);
}

LibrarySetup ImportSetup(const std::string& key) {
  LibrarySetup setup;
  setup.kind = LibraryKind(key);
  setup.caption = PluImportCaption(key);
  setup.id_head = "Désignation de l'événement";
  setup.add_prefix = "xPR_";
  setup.insert_prefix = "Prx_";
  setup.columns = {{LibraryColumn::kTag, "Commentaire", kTagUsId, "", 24},
                   {LibraryColumn::kTag, FileHead(key), "FileSpec", "", 26},
                   {LibraryColumn::kBrowse, "", "", "parcourir...", 10}};
  return setup;
}

}  // namespace

std::string PluImportCaption(const std::string& key) {
  if (key == "CAQ") return "Bibliothèque des pluies de projet externes type Caquot";
  if (key == "PPST") return "Bibliothèque des pluies de projet externes type simple triangle";
  if (key == "PPDT") return "Bibliothèque des pluies de projet externes type double triangles";
  if (key == "PPHY") return "Bibliothèque des hyétogrammes externes";
  if (key == "PR") return "Bibliothèque des pluies réelles externes issues des pluviomètres";
  if (key == "PRAD") return "Bibliothèque des pluies réelles externes issues des données radar";
  return "";
}

FrmPluImport::FrmPluImport(EditorContext& context, const std::string& key)
    : RainLibrary(context, ImportSetup(UCase(Trim(key)))), key_(UCase(Trim(key))) {}

std::vector<FormCommand> FrmPluImport::ExtraCommands() {
  return {{"mnEdit", "&Editer", [this] { mnEdit(); }},
          {"mnImporter", "&Importer", [this] { mnImporter(); }},
          {"mnLoad", "&Charger la liste", [this] { mnLoad(); }}};
}

std::string FrmPluImport::ChooseFile(int /*col*/) {
  return ui_.AskOpenFile("Importer un événnement pluviométrique Hcum(t)",
                         "Fichier Plu|*.Plu|Fichier Txt|*.Txt|Fichier Crb|*.Crb|Fichier *.*|*.*",
                         "Plu", "*.txt;*.plu;*.dat");
}

bool FrmPluImport::RowFile(int row, std::string& path) {
  if (row < 1 || row > grid_.MaxRows()) return false;
  path = Trim(grid_.Text(kColFile, row));
  if (path.empty()) return false;
  if (FileExist(path)) return true;
  ui_.ShowMessage("fichier introuvable:\r" + path, Caption(), MessageIcon::kExclamation);
  return false;
}

void FrmPluImport::mnEdit() {
  std::string path;
  if (RowFile(grid_.ActiveRow(), path)) ui_.EditFile(path);
}

void FrmPluImport::mnImporter() {
  const std::string path = ui_.AskOpenFile("Importer le fichier pluie",
                                           "Fichier Text|*.Txt|Fichier Plu|*.Plu|Tout (*.*)|*.*",
                                           "Txt", "*.Txt;*.plu;*.dat");
  if (path.empty()) return;
  last_ = ImportRainFile(surface_, state_, ui_, key_, path);
}

void FrmPluImport::mnLoad() {
  for (int row = 1; row <= grid_.MaxRows(); ++row) {
    if (RowDeleted(row)) continue;
    std::string path;
    if (!RowFile(row, path)) continue;
    ui_.ShowStatus(FileNameOf(path) + " en cours de chargement...");
    last_ = ImportRainFile(surface_, state_, ui_, key_, path);
  }
}

}  // namespace pluvane
