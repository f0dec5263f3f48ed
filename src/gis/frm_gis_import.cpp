#include "gis/frm_gis_import.h"

#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

const char* const kKindWords[] = {"nodes", "ci", "pf", "po"};

}  // namespace

bool ParseGisFields(const std::string& text,
                    std::vector<std::pair<std::string, std::string>>& fields) {
  if (Trim(text).empty()) return true;
  std::size_t start = 0;
  while (start <= text.size()) {
    const std::size_t comma = text.find(',', start);
    const std::string pair =
        text.substr(start, comma == std::string::npos ? std::string::npos : comma - start);
    const std::size_t equal = pair.find('=');
    if (equal == std::string::npos) return false;
    const std::string tag = Trim(pair.substr(0, equal)), field = Trim(pair.substr(equal + 1));
    if (tag.empty() || field.empty()) return false;
    fields.emplace_back(tag, field);
    if (comma == std::string::npos) break;
    start = comma + 1;
  }
  return true;
}

FrmGisImport::FrmGisImport(ImportTarget target, Console& console)
    : target_(target), console_(console), grid_(2, 5) {
  grid_.SetColHead(1, "Paramètre");
  grid_.SetColHead(2, "Valeur");
  const char* heads[] = {"Fichier", "Couche", "Type d'élément", "Champs (étiquette=CHAMP,...)",
                         "Tolérance (m)"};
  for (int row = kFile; row <= kTolerance; ++row) {
    grid_.SetText(1, row, heads[row - 1]);
    grid_.SetLocked(1, row, true);
  }
  grid_.SetType(2, kKind, CellType::List(kKinds));
  grid_.SetText(2, kKind, "Noeuds");
  grid_.SetType(2, kTolerance, CellType::Float(0, 1000000, 3));
  grid_.SetText(2, kTolerance, "0.5");
  grid_.SetActiveCell(2, kFile);
}

std::vector<FormCommand> FrmGisImport::Commands() {
  return {{"cmdParcourir", "&Parcourir...", [this] { cmdParcourir(); }},
          {"cmdOk", "&Ok", [this] { cmdOk(); }},
          {"cmdAnnul", "Annuler", [this] { cmdAnnul(); }}};
}

void FrmGisImport::cmdParcourir() {
  const std::string file = target_.ui.AskOpenFile(
      "Couche SIG à importer",
      "Couches SIG (*.gpkg *.shp *.geojson *.json)|*.gpkg;*.shp;*.geojson;*.json|Tous (*.*)|*.*",
      "gpkg", target_.state.WorkDir);
  if (!file.empty()) grid_.SetText(2, kFile, file);
}

void FrmGisImport::cmdOk() {
  GisImportRequest request;
  request.file = Trim(grid_.Text(2, kFile));
  if (request.file.empty()) {
    target_.ui.ShowMessage("Choisissez le fichier de la couche à importer.", kGisImportTitle,
                           MessageIcon::kExclamation);
    grid_.SetActiveCell(2, kFile);
    return;
  }
  request.layer = Trim(grid_.Text(2, kLayer));
  const std::string kind = grid_.Text(2, kKind);
  const std::vector<std::string> kinds = {"Noeuds", "Collecteurs circulaires (CI)",
                                          "Collecteurs paramétriques fermés (PF)",
                                          "Collecteurs paramétriques ouverts (PO)"};
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    if (kind == kinds[i]) ParseGisImportKind(kKindWords[i], request.kind);
  }
  if (!ParseGisFields(grid_.Text(2, kFields), request.fields)) {
    target_.ui.ShowMessage("Écrivez les champs sous la forme étiquette=CHAMP, séparés par des virgules.",
                           kGisImportTitle, MessageIcon::kExclamation);
    grid_.SetActiveCell(2, kFields);
    return;
  }
  const std::string tolerance = Trim(grid_.Text(2, kTolerance));
  if (!IsGisNumber(tolerance) || Val(tolerance) < 0) {
    target_.ui.ShowMessage("La tolérance doit être un nombre positif de mètres.", kGisImportTitle,
                           MessageIcon::kExclamation);
    grid_.SetActiveCell(2, kTolerance);
    return;
  }
  request.tolerance = Val(tolerance);
  console_.Debut(Caption());
  imported_ = ImportGisLayer(target_, console_, request);
  console_.Fin(false);
  if (imported_ >= 0) Close();
}

}  // namespace pluvane
