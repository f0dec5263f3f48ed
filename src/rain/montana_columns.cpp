#include "rain/montana_columns.h"

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/catalogue.h"
#include "rain/rain_records.h"

namespace pluvane {

void MontanaHeads(Grid& grid) {
  grid.SetColHead(kMontanaColId, "Identif. de Montana");
  grid.SetColHead(kMontanaColDesign, "Désignation de la localisation");
  grid.SetColHead(kMontanaColPret, "Période de retour");
  grid.SetColHead(kMontanaColCa, "Coefficient a");
  grid.SetColHead(kMontanaColCb, "Coefficient b");
  grid.SetColWidth(kMontanaColDesign, 22);
  grid.SetColWidth(kMontanaColId, 13);
}

void AppendMontanaEntries(Surface& surface, Grid& grid) {
  CursorKeeper keeper(surface);
  for (int number : RecordsOfKind(surface, kINameMontana)) {
    surface.SetCurrentObject(number);
    const int row = grid.MaxRows() + 1;
    grid.SetMaxRows(row);
    grid.SetText(kMontanaColId, row, surface.ObjTag(kTagId));
    grid.SetText(kMontanaColDesign, row, surface.ObjTag("Design"));
    grid.SetText(kMontanaColPret, row, surface.ObjTag("Pret"));
    grid.SetText(kMontanaColCa, row, surface.ObjTag("Ca"));
    grid.SetText(kMontanaColCb, row, surface.ObjTag("Cb"));
  }
}

}  // namespace pluvane
