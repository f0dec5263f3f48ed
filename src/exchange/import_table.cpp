#include "exchange/import_table.h"

#include "drawing/symbol_file.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/default_tags.h"

namespace pluvane {

ImportTable::ImportTable(UserInterface& ui, const std::string& path) : ui_(ui) {
  open_ = ReadTextLines(path, lines_);
  if (!open_) {
    ui_.ShowMessage("Impossible de lire le fichier " + path + ".", "Import",
                    MessageIcon::kExclamation);
  }
}

void ImportTable::Progress(std::size_t index, int existing, int pump_every) const {
  const double total = static_cast<double>(lines_.size()) + existing;
  const double done = static_cast<double>(index + 1) + existing;
  ui_.ShowProgress(total > 0 ? RoundLong(100 * done / total) : 100);
  if (pump_every > 0 && (index + 1) % static_cast<std::size_t>(pump_every) == 0) ui_.PumpEvents();
}

int SplitRecord(UserInterface& ui, std::string_view line, const std::string& separator, int highest,
                std::vector<std::string>& fields) {
  const int count = SplitLine(ui, line, fields, separator);
  if (count == 0) return 0;
  if (fields.size() < static_cast<std::size_t>(highest)) fields.resize(highest);
  return count;
}

const std::string& Field(const std::vector<std::string>& fields, int column) {
  static const std::string kEmpty;
  if (column < 1 || static_cast<std::size_t>(column) > fields.size()) return kEmpty;
  return fields[static_cast<std::size_t>(column) - 1];
}

std::string ImportSymbol(const std::string& symbol_dir, const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    std::string found = FindSymbolFile(symbol_dir, name);
    if (!found.empty()) return found;
  }
  return "";
}

int PlaceImportedPoint(ImportTarget& target, int i_name, std::int32_t x, std::int32_t y,
                       double half) {
  Surface& surface = target.surface;
  surface.SetSelectionEnabled(false);
  const int number = surface.AddObjectAtDefaults(kKindPicture);
  if (number == 0) return 0;
  surface.SetCurrentObject(number);
  CreationPlace place;
  place.position = Point{x, y};
  CreateDefaultTagsByNumber(surface, target.state, i_name, false, place);
  surface.SetCurrentObject(number);
  surface.SetObjectBounds(RoundLong(x - half), RoundLong(y - half), RoundLong(x + half),
                          RoundLong(y + half));
  return number;
}

void ShowImportSymbolError(ImportTarget& target) {
  target.ui.ShowMessage(std::string("Erreur Draw_A_Symbol\r\n") +
                            "le répertoire des symboles peut être" +
                            " mal défini dans le fichier " + IniFilePath(target.state),
                        "", MessageIcon::kNone);
}

}  // namespace pluvane
