#include "editors/collector_rows.h"

#include <utility>

#include "drawing/surface_helpers.h"
#include "editors/section_library.h"
#include "network/catalogue.h"

namespace pluvane {

namespace {

constexpr double kMax = 99999999.99;

}  // namespace

CellType LevelCell() { return CellType::Float(-kMax, kMax, 2); }
CellType QuantityCell() { return CellType::Float(0, kMax, 2); }

std::vector<TagRow> CollectorRows(const std::string& label_of_identifier, TagRow row4) {
  return {{"libell", label_of_identifier, CellType::Text()},
          {"ZRam", "Cote radier amont (ngf)=", LevelCell()},
          {"ZRav", "Cote radier aval (ngf)=", LevelCell()},
          std::move(row4),
          {"L", "Longueur (m)=", QuantityCell()}};
}

TagRow SectionRow(Surface& surface) {
  return {"IdSect",
          "Id. de la section (16 car maxi)=", CellType::List(SectionListEntries(surface))};
}

void TellEmptySectionLibrary(EditorContext& context, const std::string& caption) {
  if (CountByName(context.surface, kINameSection) > 0) return;
  context.ui.ShowMessage(
      "Voir 'Option/Sections de collecteur' pour définir la géométrie de la section des "
      "collecteurs paramétriques.",
      caption, MessageIcon::kInformation);
}

}  // namespace pluvane
