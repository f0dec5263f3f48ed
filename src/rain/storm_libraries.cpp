#include "rain/storm_libraries.h"

#include "network/catalogue.h"
#include "network/network_tags.h"
#include "rain/frm_pit_plus.h"
#include "rain/frm_storm_plus.h"
#include "rain/rain_records.h"

namespace pluvane {

namespace {

LibrarySetup StormSetup(int kind) {
  LibrarySetup setup;
  setup.kind = kind;
  switch (kind) {
    case kINameCaquot:
      setup.caption = "Pluie Caquot (CAQ)";
      setup.add_prefix = "CAQ_";
      break;
    case kINameSimpleTriangle:
      setup.caption = "Bibliothèque Pluie Simple Triangle (PST)";
      setup.add_prefix = "PST_";
      break;
    case kINameDoubleTriangle:
      setup.caption = "Bibliothèque Pluie Double Triangle (PDT)";
      setup.add_prefix = "PDT_";
      break;
    default:
      setup.caption = "Bibliothèque le la Pluie Synthétique (PIT)";
      setup.add_prefix = "PIT_";
      break;
  }
  setup.insert_prefix = setup.add_prefix;
  setup.id_head = "Désignation";
  setup.columns = {{LibraryColumn::kTag, "Commentaire", kTagUsId, "", 30},
                   {LibraryColumn::kEdit, "Edition de données", "", "&Editer...", 12}};
  return setup;
}

}  // namespace

FrmStormBib::FrmStormBib(EditorContext& context, int kind)
    : RainLibrary(context, StormSetup(kind)) {}

std::unique_ptr<FormController> FrmStormBib::MakeEditor(const std::string& id, int number) {
  if (kind() == kINameSynthetic) return std::make_unique<FrmPitPlus>(context_, id, number);
  return std::make_unique<FrmStormPlus>(context_, kind(), id, number);
}

}  // namespace pluvane
