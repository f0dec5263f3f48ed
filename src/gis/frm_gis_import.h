// frmGisImport, "Import de couches SIG": the file, the layer, the kind of
// element it becomes, the fields to read tags from and the tolerance, then
// the import itself (Fichier > Import > Couches SIG...).
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "exchange/kalder_import.h"
#include "foundation/console.h"
#include "foundation/form_controller.h"
#include "gis/gis_import.h"

namespace pluvane {

// Parses "name=FIELD,name=FIELD" (blanks around ignored; empty text: none).
// False on a pair without "=" or with a side empty.
bool ParseGisFields(const std::string& text,
                    std::vector<std::pair<std::string, std::string>>& fields);

class FrmGisImport : public FormController {
 public:
  // The rows of the grid, from 1.
  enum Row { kFile = 1, kLayer, kKind, kFields, kTolerance };
  static constexpr const char* kKinds =
      "Noeuds\tCollecteurs circulaires (CI)\tCollecteurs paramétriques fermés (PF)\t"
      "Collecteurs paramétriques ouverts (PO)";

  FrmGisImport(ImportTarget target, Console& console);

  std::string Caption() const override { return "Import de couches SIG"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;

  Grid& grid() { return grid_; }
  // The count imported by the last Ok, -1 when none was.
  int Imported() const { return imported_; }

  void cmdParcourir();
  void cmdOk();
  void cmdAnnul() { Close(); }

 private:
  ImportTarget target_;
  Console& console_;
  Grid grid_;
  int imported_ = -1;
};

}  // namespace pluvane
