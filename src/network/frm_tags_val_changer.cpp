#include "network/frm_tags_val_changer.h"

#include <utility>

#include "drawing/object_tags.h"
#include "foundation/text.h"
#include "drawing/surface_guards.h"
#include "network/bulk_maintenance.h"

namespace pluvane {

namespace {

constexpr const char* kSeparator = " : ";

}  // namespace

FrmTagEdit1::FrmTagEdit1(Surface& surface, UserInterface& ui, std::vector<std::string> lines,
                         int object)
    : surface_(surface), ui_(ui), object_(object), lines_(1, 0), edit_(1, 2) {
  lines_.SetCaption(Caption());
  lines_.SetColHead(1, "Etiquettes");
  lines_.SetColWidth(1, 60);
  lines_.SetMaxRows(static_cast<int>(lines.size()));
  for (int row = 1; row <= lines_.MaxRows(); ++row) lines_.SetText(1, row, lines[row - 1]);
  lines_.SetColumnLocked(1, true);
  lines_.SetRowSelect(true);
  edit_.SetCaption(Caption());
  edit_.SetColHead(1, "Valeur");
  edit_.SetColWidth(1, 40);
  edit_.SetText(0, 1, "Etiquette");
  edit_.SetText(0, 2, "Valeur");
  edit_.SetLocked(1, 1, true);
}

std::vector<std::string> FrmTagEdit1::LinesOf(Surface& surface, int object) {
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(object);
  std::vector<std::string> lines;
  for (int i = 0; i < surface.ObjTagCount(); ++i) {
    lines.push_back(surface.ObjTagName(i) + kSeparator + surface.ObjTagValue(i));
  }
  return lines;
}

std::vector<FormCommand> FrmTagEdit1::Commands() {
  return {{"cmdSave", "&Enregistrer", [this] { cmdSave(); }, object_ > 0},
          {"cmdOk", "&Fermer", [this] { Close(); }}};
}

void FrmTagEdit1::ClickCell(Grid& grid, int /*col*/, int row) {
  if (&grid == &lines_) SelectLine(row);
}

void FrmTagEdit1::SelectLine(int row) {
  if (row < 1 || row > lines_.MaxRows()) return;
  row_ = row;
  const std::string& line = lines_.Text(1, row);
  std::size_t at = line.find(" = ");
  std::size_t width = 3;
  if (at == std::string::npos) at = line.find(kSeparator);
  if (at == std::string::npos) {
    at = line.size();
    width = 0;
  }
  edit_.SetText(1, 1, Trim(line.substr(0, at)));
  edit_.SetText(1, 2, at + width <= line.size() ? line.substr(at + width) : "");
}

void FrmTagEdit1::cmdSave() {
  const std::string tag = edit_.Text(1, 1);
  if (object_ <= 0 || row_ == 0 || tag.empty()) return;
  if (tag == kTagIName) {
    ui_.ShowMessage("Le type de l'élément (iName) ne peut pas être changé.", Caption(),
                    MessageIcon::kExclamation);
    return;
  }
  CursorKeeper keeper(surface_);
  surface_.SetCurrentObject(object_);
  surface_.SetObjTag(tag, edit_.Text(1, 2));
  lines_.SetText(1, row_, tag + kSeparator + edit_.Text(1, 2));
}

FrmTagsValChanger::FrmTagsValChanger(Surface& surface, UserInterface& ui,
                                     std::function<void(const std::vector<std::string>&)> show)
    : surface_(surface), ui_(ui), show_report_(std::move(show)), fields_(1, 5) {
  fields_.SetCaption(Caption());
  fields_.SetColHead(1, "Valeur");
  fields_.SetColWidth(1, 45);
  const char* heads[] = {"Option", "Valeur de l'option", "Etiquette", "Ancienne valeur",
                         "Nouvelle valeur"};
  for (int row = 1; row <= 5; ++row) fields_.SetText(0, row, heads[row - 1]);
  fields_.SetType(1, 1, CellType::List("iGroup\tiType\tiName"));
  fields_.SetText(1, 1, kTagIName);
}

std::vector<FormCommand> FrmTagsValChanger::Commands() {
  return {{"cmdGo", "&Go", [this] { cmdGo(); }}, {"cmdQuit", "&Quitter", [this] { Close(); }}};
}

void FrmTagsValChanger::cmdGo() {
  report_.clear();
  if (surface_.ObjectCount(kPage) == 0) {
    ui_.ShowMessage(kMaintenanceNoNetwork, Caption(), MessageIcon::kExclamation);
    return;
  }
  const std::string option = Trim(fields_.Text(1, 1));
  const std::optional<int> value = TypeOfChoice(fields_.Text(1, 2));
  if (option.empty() || Trim(fields_.Text(1, 2)).empty() || !value) {
    ui_.ShowMessage("La valeur de l'option sélectionnée n'est pas renseignée ?", Caption(),
                    MessageIcon::kExclamation);
    return;
  }
  const std::string tag = Trim(fields_.Text(1, 3));
  if (tag.empty()) return;
  const std::string old_value = fields_.Text(1, 4);
  const std::string new_value = fields_.Text(1, 5);
  CursorKeeper keeper(surface_);
  std::vector<int> matching;
  for (int n = surface_.FirstObject(); n > 0; n = surface_.NextObject()) {
    if (Trim(surface_.ObjTag(option)) == std::to_string(*value) &&
        surface_.ObjTag(tag) == old_value) {
      matching.push_back(n);
    }
  }
  if (matching.empty()) {
    ui_.ShowMessage("Ces obj sont introuvables.", Caption(), MessageIcon::kInformation);
    return;
  }
  report_.push_back("Données des " + tag + " = " + new_value);
  for (int n : matching) {
    surface_.SetCurrentObject(n);
    surface_.SetObjTag(tag, new_value);
    report_.push_back(surface_.ObjTag(kTagId) + " => " + new_value + " changed");
  }
  report_.push_back(std::to_string(matching.size()) + " obj ont été traités");
  if (show_report_) show_report_(report_);
}

}  // namespace pluvane
