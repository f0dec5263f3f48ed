#include "rain/frm_preal_bib.h"

#include <set>

#include "drawing/surface_guards.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/network_tags.h"
#include "rain/frm_plu_ht_crb.h"
#include "rain/rain_records.h"

namespace pluvane {

namespace {

LibrarySetup PrealSetup() {
  LibrarySetup setup;
  setup.kind = kINameRealRain;
  setup.caption = "Pluviométrie en mode interne";
  setup.id_head = "Id. de l'événement pluvieux";
  setup.add_prefix = "Pluie";
  setup.insert_prefix = "Pluie";
  setup.create_on_add = false;
  setup.columns = {{LibraryColumn::kTag, "Désignation de l'événement", "Design", "", 24},
                   {LibraryColumn::kList, "Méthode d'interpolation", "iModePluie",
                    std::string(kThiessen) + "\t" + kWeightedDistance, 20},
                   {LibraryColumn::kTag, "Commentaire", kTagUsId, "", 24},
                   {LibraryColumn::kEdit, "Courbes H(t)", "", "&Editer...", 10}};
  return setup;
}

}  // namespace

FrmPrealBib::FrmPrealBib(EditorContext& context) : RainLibrary(context, PrealSetup()) {
  if (!RecordsOfKind(surface_, kINamePLU).empty()) return;
  ui_.ShowMessage(
      "Vous devez créer au moins un pluviomètre pour pouvoir\rdéfinir ensuite sa pluviométrie "
      "en mode interne.",
      "Pluviométrie en mode interne", MessageIcon::kInformation);
  Close();
}

std::string FrmPrealBib::WorkingFile(const std::string& id) const {
  return JoinPath(state_.WorkDir, Trim(id) + ".tmp");
}

void FrmPrealBib::mnClose() {
  vbFileKill(ui_, state_.WorkDir, "*.tmp");
  Close();
}

bool FrmPrealBib::CheckRows() { return CheckIdentifiers(grid_, ui_, Caption()); }

void FrmPrealBib::BeforeWrite() {
  std::set<std::string> listed;
  for (int row = 1; row <= grid_.MaxRows(); ++row) {
    if (!RowDeleted(row)) listed.insert(IdKey(grid_.Text(1, row)));
  }
  for (int number : RecordsOfKind(surface_, kINameRealRain)) {
    if (listed.count(IdKey(RecordTag(surface_, number, kTagId))) == 0)
      surface_.DeleteObject(number);
  }
}

void FrmPrealBib::WriteRow(int row) {
  RainLibrary::WriteRow(row);
  std::vector<std::string> lines;
  if (!ReadTextLines(WorkingFile(grid_.Text(1, row)), lines)) return;
  int count = 0;
  for (const std::string& line : lines) {
    if (Trim(line).empty()) continue;
    ++count;
    surface_.SetObjTag("Pt" + std::to_string(count), line);
  }
  surface_.SetObjTag("NbPt", count);
}

std::unique_ptr<FormController> FrmPrealBib::MakeEditor(const std::string& id, int number) {
  return std::make_unique<FrmPluHtCrb>(context_, id, number, WorkingFile(id));
}

}  // namespace pluvane
