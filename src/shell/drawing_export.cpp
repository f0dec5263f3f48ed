#include "shell/drawing_export.h"

#include "foundation/paths.h"

namespace pluvane {

namespace {

constexpr const char* kFilter =
    "Fichier Svg|*.svg|Fichier Pdf|*.pdf|Fichier Png|*.png|Fichier Emf|*.emf|Fichier Wmf|*.wmf";

}  // namespace

std::string MnuFi_Export_Emf(const AppState& state, UserInterface& ui) {
  std::string initial;
  if (!state.NetworkFile.empty()) {
    std::string folder, name, base, extension;
    SplitPath(state.NetworkFile, folder, name, base, extension);
    initial = JoinPath(folder, base + ".svg");
  }
  std::string path = ui.AskSaveFile(kExportDrawingTitle, kFilter, "svg", initial);
  if (path.empty()) return {};
  // A name without extension gets the default one, whatever dialog gave it.
  if (FileNameOf(path).find('.') == std::string::npos) path += ".svg";
  if (!ui.SaveDrawingPicture(path)) {
    ui.ShowMessage("Le dessin n'a pas pu être écrit dans le fichier :\r\n" + path,
                   kExportDrawingTitle, MessageIcon::kExclamation);
    return {};
  }
  ui.ShowStatus("Dessin exporté : " + path);
  return path;
}

}  // namespace pluvane
