#include "rain/frm_pradar_bib.h"

#include "network/catalogue.h"
#include "network/network_tags.h"
#include "rain/rain_records.h"

namespace pluvane {

namespace {

LibrarySetup RadarSetup() {
  LibrarySetup setup;
  setup.kind = kINameRadar;
  setup.caption = "Bibliothèque des événements pluvieux de source radar";
  setup.id_head = "Désignation de l'événement";
  setup.add_prefix = "Radar_";
  setup.insert_prefix = "Radar_";
  setup.columns = {{LibraryColumn::kTag, "Commentaire", kTagUsId, "", 16},
                   {LibraryColumn::kTag,
                    "Fichier des surfaces actives des sous-BV découpés (*.CRB)", "CrbFile", "", 22},
                   {LibraryColumn::kBrowse, "", "", "parcourir...", 10},
                   {LibraryColumn::kTag, "Fichier des hyétogrammes des mailles radars (*.PRF)",
                    "PrfFile", "", 22},
                   {LibraryColumn::kBrowse, "", "", "parcourir...", 10}};
  return setup;
}

}  // namespace

FrmPradarBib::FrmPradarBib(EditorContext& context) : RainLibrary(context, RadarSetup()) {}

std::string FrmPradarBib::ChooseFile(int col) {
  if (col == kColCrb) {
    return ui_.AskOpenFile("Fichier des surfaces actives des sous-BV découpés",
                           "Fichier Crb|*.Crb|Tout (*.*)|*.*", "Crb", "*.Crb");
  }
  return ui_.AskOpenFile("Fichier des hyétogrammes des mailles radars",
                         "Fichier Prf|*.Prf|Tout (*.*)|*.*", "Prf", "*.Prf");
}

}  // namespace pluvane
