#include "exchange/fld_file.h"

#include <cstdlib>

#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {

int ReadFldFile(UserInterface& ui, const std::string& path, std::vector<int>& columns) {
  columns.clear();
  std::vector<std::string> lines;
  if (!ReadTextLines(path, lines)) {
    ui.ShowMessage("Fichier des colonnes " + path + " illisible ou introuvable.", "Import",
                   MessageIcon::kExclamation);
    return -1;
  }
  int highest = 0;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string text = Trim(lines[i]);
    if (text.empty()) continue;
    const double value = Val(text);
    if (value > kMaxColumn) {
      ui.ShowMessage("Numéro de colonne " + text + " trop grand (au plus " +
                         std::to_string(kMaxColumn) + ") dans le fichier " + path + ", ligne " +
                         std::to_string(i + 1) + ".",
                     "Import", MessageIcon::kExclamation);
      columns.clear();
      return -1;
    }
    int column = RoundLong(value);
    if (column <= 0) column = kNoColumn;
    columns.push_back(column);
    if (column > highest) highest = column;
  }
  return highest;
}

int FldColumn(const std::vector<int>& columns, int row) {
  if (row < 1 || static_cast<std::size_t>(row) > columns.size()) return kNoColumn;
  return columns[static_cast<std::size_t>(row) - 1];
}

bool WriteFldFile(const std::string& path, const std::vector<int>& columns) {
  std::vector<std::string> lines;
  for (int column : columns) {
    lines.push_back((column < 0 ? "-" : " ") + std::to_string(std::abs(column)) + " ");
  }
  return WriteTextLines(path, lines);
}

}  // namespace pluvane
