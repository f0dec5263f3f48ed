#include "results/frm_selection.h"

#include <algorithm>
#include <filesystem>

#include "foundation/line_parsing.h"
#include "foundation/paths.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

void ShowMissing(UserInterface& ui, const std::string& file) {
  ui.ShowMessage(
      "Fichier " + file + " introuvable!\nEnregistrer les données et Quitter le programme!", "",
      MessageIcon::kNone);
}

// One name a line, trimmed, blank lines skipped.
std::vector<std::string> IdentifiersOf(UserInterface& ui, const std::string& file) {
  std::vector<std::string> names, lines;
  if (!FileExist(file) || !ReadTextLines(file, lines)) {
    ShowMissing(ui, file);
    return names;
  }
  for (const std::string& line : lines) {
    if (!Trim(line).empty()) names.push_back(Trim(line));
  }
  return names;
}

}  // namespace

std::vector<std::string> CurveNamesOf(UserInterface& ui, const std::string& file, bool marks_only) {
  std::vector<std::string> names;
  TextReader reader(file);
  if (!FileExist(file) || !reader.IsOpen()) {
    ShowMissing(ui, file);
    return names;
  }
  while (!reader.AtEnd()) {
    int position = 0;
    const std::string name = ReadQuoted(reader, position);
    if (position == 0 || name.empty() || name == "PkFin") continue;
    if (marks_only && name.find("Mark") == std::string::npos) continue;
    names.push_back(name);
  }
  return names;
}

FrmSelection::FrmSelection(UserInterface& ui, std::string mode, std::string source,
                           std::string list_file)
    : Spread1(2, 0),
      ui_(ui),
      mode_(std::move(mode)),
      source_(std::move(source)),
      list_file_(std::move(list_file)) {
  std::error_code ignored;
  std::filesystem::remove(list_file_, ignored);
  std::vector<std::string> names;
  if (mode_ == "identif" || mode_ == "export") {
    caption_ = mode_ == "identif" ? "Choix d'élément à restituer" : "choix d'élément à exporter";
    if (mode_ == "export") draw_caption_ = "&Export";
    Spread1.SetColHead(1, "identifiant");
    names = IdentifiersOf(ui_, source_);
  } else {
    caption_ = "Choix de courbe à visualiser";
    Spread1.SetColHead(1, "Id. courbe");
    names = CurveNamesOf(ui_, source_, mode_ == "crb2");
  }
  if (mode_ == "crb") {
    std::stable_sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
      return UCase(a) < UCase(b);
    });
  }
  Spread1.SetCaption(caption_);
  Fill(names);
}

void FrmSelection::Fill(const std::vector<std::string>& names) {
  Spread1.SetRedraw(false);
  Spread1.SetMaxRows(static_cast<int>(names.size()));
  Spread1.SetColumnType(2, CellType::CheckBox());
  for (std::size_t i = 0; i < names.size(); ++i) {
    const int row = static_cast<int>(i) + 1;
    Spread1.SetText(1, row, names[i]);
    Spread1.SetText(2, row, "0");
  }
  Spread1.SetColumnLocked(1, true);
  Spread1.SetRedraw(true);
}

std::vector<FormCommand> FrmSelection::Commands() {
  return {{"mnDessiner", draw_caption_, [this] { mnDessiner(); }},
          {"mnSelection", "Tout &sélectionner", [this] { mnSelection(); }},
          {"mnDeselect", "Tout &désélectionner", [this] { mnDeselect(); }},
          {"mnClose", "&Fermer", [this] { mnClose(); }}};
}

void FrmSelection::Spread1_Click(int row) {
  if (row < 1 || row > Spread1.MaxRows()) return;
  Spread1.SetText(2, row, Spread1.Text(2, row) == "1" ? "0" : "1");
}

void FrmSelection::TickAll(const char* value) {
  for (int row = 1; row <= Spread1.MaxRows(); ++row) Spread1.SetText(2, row, value);
}

void FrmSelection::mnSelection() { TickAll("1"); }

void FrmSelection::mnDeselect() { TickAll("0"); }

void FrmSelection::mnDessiner() {
  std::vector<std::string> ticked;
  for (int row = 1; row <= Spread1.MaxRows(); ++row) {
    if (Spread1.Text(2, row) == "1") ticked.push_back(Spread1.Text(1, row));
  }
  if (ticked.empty()) {
    ui_.ShowMessage("aucune ligne n'a été cochée !!!", caption_, MessageIcon::kNone);
    return;
  }
  WriteTextLines(list_file_, ticked);
  Close();
}

void FrmSelection::mnClose() { Close(); }

}  // namespace pluvane
