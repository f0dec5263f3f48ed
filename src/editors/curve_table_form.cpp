#include "editors/curve_table_form.h"

#include "foundation/grid_rows.h"

namespace pluvane {

std::vector<FormCommand> CurveTableForm::Commands() {
  return {{"mnAdd", "&Ajouter", [this] { mnAdd(); }},
          {"mnIns", "&Insérer", [this] { mnIns(); }},
          {"mnDel", "&Supprimer", [this] { mnDel(); }},
          {"mnSave", "&Enregistrer", [this] { mnSave(); }},
          {"mnVisu", "&Visualiser", [this] { mnVisu(); }},
          {"mnClose", "&Fermer", [this] { mnClose(); }}};
}

void CurveTableForm::mnAdd() { SSAddRow(grid_); }

void CurveTableForm::mnIns() {
  int row = 0;
  SSInsertRow(grid_, row);
}

void CurveTableForm::mnDel() { SSDeleteRow(grid_, grid_.ActiveRow()); }

}  // namespace pluvane
