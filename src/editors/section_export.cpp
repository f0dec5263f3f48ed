#include "editors/section_export.h"

#include <filesystem>

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/lists.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/catalogue.h"

namespace pluvane {

int WriteSecFile(Surface& surface, const std::string& file, std::vector<std::string>& skipped) {
  skipped.clear();
  std::vector<std::string> lines;
  int count = 0;
  CursorKeeper keeper(surface);
  for (int n : FindObjectList(surface, kTagIName, kINameSection)) {
    surface.SetCurrentObject(n);
    const std::string id = surface.ObjTag(kTagId);
    const int points = ValInt(surface.ObjTag("NbPt"));
    std::vector<double> heights;
    std::string heights_line, widths_line;
    for (int i = 1; i <= points; ++i) {
      const std::string index = std::to_string(i);
      // The heights are tested as the import will read them back.
      const std::string height = NumToText(Val(surface.ObjTag("Y" + index)));
      heights.push_back(Val(height));
      if (i > 1) {
        heights_line += ' ';
        widths_line += ' ';
      }
      heights_line += height;
      widths_line += NumToText(Val(surface.ObjTag("X" + index)));
    }
    int fault = 0;
    if (id.find('\'') != std::string::npos || !IsAscending(heights, fault)) {
      skipped.push_back(id);
      continue;
    }
    lines.push_back("'" + id + "'");
    lines.push_back(heights_line);
    lines.push_back(widths_line);
    ++count;
  }
  std::error_code ignored;
  std::filesystem::remove(file, ignored);
  if (!WriteTextLines(file, lines)) return -1;
  return count;
}

std::string ExportReport(int count, const std::vector<std::string>& skipped) {
  std::string text = "ok " + std::to_string(count) +
                     (count >= 2 ? " sections ont été exportées." : " section a été exportée.");
  if (skipped.empty()) return text;
  text +=
      "\r\nSections non exportées (nom avec apostrophe, moins de 2 points ou hauteurs non "
      "croissantes) : ";
  for (std::size_t i = 0; i < skipped.size(); ++i) {
    if (i > 0) text += ", ";
    text += skipped[i];
  }
  return text;
}

bool mnuOpt_SecExport(Surface& surface, const NetworkState& state, UserInterface& ui) {
  std::string initial = "*.sec";
  if (!state.NetworkFile.empty()) {
    std::string folder, name, base, extension;
    SplitPath(state.NetworkFile, folder, name, base, extension);
    if (!base.empty()) initial = base + ".sec";
  }
  const std::string file =
      ui.AskSaveFile(kExportTitle, "Fichier texte sec|*.sec|Autre fichier|*.*", "sec", initial);
  if (file.empty()) return false;
  return ExportSections(surface, ui, file) >= 0;
}

int ExportSections(Surface& surface, UserInterface& ui, const std::string& file) {
  std::vector<std::string> skipped;
  const int count = WriteSecFile(surface, file, skipped);
  if (count < 0) {
    ui.ShowMessage("Impossible d'écrire le fichier " + file, kExportTitle,
                   MessageIcon::kExclamation);
    return -1;
  }
  ui.ShowMessage(ExportReport(count, skipped), kExportTitle, MessageIcon::kInformation);
  return count;
}

}  // namespace pluvane
