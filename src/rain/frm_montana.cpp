#include "rain/frm_montana.h"

#include <set>

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/grid_rows.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "rain/montana_columns.h"
#include "rain/rain_records.h"

namespace pluvane {

namespace {

// The reference tags of the design storms, with the coefficients they copy.
struct StormReference {
  int kind;
  const char* ref_tag;
  const char* ca_tag;
  const char* cb_tag;
};
constexpr StormReference kReferences[] = {
    {kINameCaquot, "IdMonta", "Ca", "Cb"},
    {kINameSimpleTriangle, "IdMonta", "Ca", "Cb"},
    {kINameDoubleTriangle, "IdTot", "CaTot", "CbTot"},
    {kINameDoubleTriangle, "IdInt", "CaInt", "CbInt"},
};

}  // namespace

FrmMontana::FrmMontana(Surface& surface, const NetworkState& state, UserInterface& ui)
    : surface_(surface), state_(state), ui_(ui), grid_(kColCb, 0) {
  grid_.SetCaption(Caption());
  MontanaHeads(grid_);
  AppendMontanaEntries(surface_, grid_);
  ids_.Reset(grid_);
}

std::vector<FormCommand> FrmMontana::Commands() {
  return {{"mnAdd", "&Ajouter", [this] { mnAdd(); }},
          {"mnIns", "&Insérer", [this] { mnIns(); }},
          {"mnDel", "&Supprimer", [this] { mnDel(); }},
          {"mnSave", "&Enregistrer", [this] { mnSave(); }},
          {"mnQuit", "&Quitter", [this] { mnQuit(); }}};
}

void FrmMontana::mnAdd() {
  const int row = SSAddRow(grid_);
  ids_.Inserted(row);
  grid_.SetText(kColId, row, Trim("Mont" + std::to_string(row)));
  grid_.SetActiveCell(kColId, row);
}

void FrmMontana::mnIns() {
  int row = 0;
  if (SSInsertRow(grid_, row) == 0) return;
  ids_.Inserted(row);
}

void FrmMontana::mnDel() {
  const int row = grid_.ActiveRow();
  if (row <= 1 || row > grid_.MaxRows()) return;
  const std::string id = grid_.Text(kColId, row);
  const std::string text =
      "attention:\rla suppression des coeff. de Montana " + id +
      " pourrait perturber\rle fonctionnement des pluies de projet utilisant ces coeff.\r"
      "(ex. pluies de caquot, simple et double triangle)\r"
      "N'oubliez pas de remettre également à jour les pluies de projet concernées.";
  if (!ui_.AskYesNo(text, "suppression de coef. de Montana", MessageIcon::kQuestion)) return;
  SSDeleteRow(grid_, row);
  ids_.Removed(row);
  CursorKeeper keeper(surface_);
  const int number = FindObject2(surface_, kTagIName, kINameMontana, kTagId, id);
  if (number > 10) surface_.DeleteObject(number);
}

void FrmMontana::LeaveCell(Grid& grid, int col, int row) {
  if (&grid != &grid_ || col != kColId) return;
  const std::optional<std::string> old_id = ids_.Changed(grid_, row);
  if (!old_id || old_id->empty()) return;
  Rename(*old_id, grid_.Text(kColId, row));
}

void FrmMontana::Rename(const std::string& old_id, const std::string& new_id) {
  CursorKeeper keeper(surface_);
  const int number = FindRainRecord(surface_, kINameMontana, old_id);
  if (number <= 10) return;
  surface_.SetObjTag(kTagId, new_id);
  for (const StormReference& reference : kReferences) {
    RewriteReferences(surface_, reference.kind, reference.ref_tag, old_id, new_id);
  }
}

void FrmMontana::PushToFirstStorms(const std::string& id, const std::string& ca,
                                   const std::string& cb) {
  CursorKeeper keeper(surface_);
  const std::string key = IdKey(id);
  for (const StormReference& reference : kReferences) {
    for (int number : RecordsOfKind(surface_, reference.kind)) {
      surface_.SetCurrentObject(number);
      if (IdKey(surface_.ObjTag(reference.ref_tag)) != key) continue;
      surface_.SetObjTag(reference.ca_tag, ca);
      surface_.SetObjTag(reference.cb_tag, cb);
      break;
    }
  }
}

void FrmMontana::mnSave() {
  if (!CheckIdentifiers(grid_, ui_, Caption())) return;
  std::set<std::string> listed;
  for (int row = 1; row <= grid_.MaxRows(); ++row) listed.insert(IdKey(grid_.Text(kColId, row)));
  CursorKeeper keeper(surface_);
  for (int number : RecordsOfKind(surface_, kINameMontana)) {
    if (listed.count(IdKey(RecordTag(surface_, number, kTagId))) == 0)
      surface_.DeleteObject(number);
  }
  for (int row = 1; row <= grid_.MaxRows(); ++row) {
    const std::string id = Trim(grid_.Text(kColId, row));
    if (FindRainRecord(surface_, kINameMontana, id) == 0) {
      AddRainRecord(surface_, state_, kINameMontana, id);
    }
    surface_.SetObjTag("Design", grid_.Text(kColDesign, row));
    surface_.SetObjTag("Pret", grid_.Text(kColPret, row));
    surface_.SetObjTag("Ca", grid_.Text(kColCa, row));
    surface_.SetObjTag("Cb", grid_.Text(kColCb, row));
    PushToFirstStorms(id, grid_.Text(kColCa, row), grid_.Text(kColCb, row));
  }
  ids_.Reset(grid_);
}

}  // namespace pluvane
