#include "network/network_clipboard.h"

#include <string>

#include "network/catalogue.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"

namespace pluvane {

namespace {

constexpr const char* kPasteStep = "Coller";
constexpr const char* kPasteTitle = "Importation de données";
constexpr const char* kPasteQuestion =
    "L'opération d'import d'éléments de réseau via Ctrl+V\r"
    "pourrait introduire des doublons d'élément et\r"
    "provoquerait des instabilités ou incohérences de traitement.\r"
    "\r"
    "Voulez-vous poursuivre ?";
constexpr const char* kNothingCopied = "Aucun Obj n'est copié !";
constexpr const char* kClipboardEmpty = "Le presse-papier est vide !";
constexpr const char* kNotOurFormat = "Le contenu du presse-papier n'est pas au format xpr!";

}  // namespace

bool CopySelectionToClipboard(PlacementContext& context) {
  Surface& surface = context.surface;
  const int count = surface.ObjectCount(kSelection);
  bool copied = false;
  if (count > 0) {
    surface.SetCurrentObject(kSelection);
    const std::string text = surface.CopySelection(0);
    if (!text.empty()) {
      context.ui.PutClipboardData(kClipboardType, text);
      copied = true;
    }
  } else if (surface.ObjectCount(kAllObjects) > 0) {
    copied = context.ui.CopyDrawingPicture();
  }
  if (!copied) context.ui.ShowMessage(kNothingCopied, "", MessageIcon::kNone);
  context.ui.ShowStatus(" ok " + std::to_string(count) +
                        " elm ont été copiés et prêts à être collés...");
  return copied;
}

int PasteFromClipboard(PlacementContext& context) {
  Surface& surface = context.surface;
  if (CountByName(surface, kINameNode) > 0 &&
      !context.ui.AskYesNo(kPasteQuestion, kPasteTitle, MessageIcon::kQuestion, true)) {
    return kPasteDeclined;
  }
  int result = kPasteEmpty;
  if (!context.ui.ClipboardEmpty()) {
    const std::string text = context.ui.ClipboardData(kClipboardType);
    UndoStep step(surface, kPasteStep);
    result = text.empty() ? kPasteForeign : surface.PasteClipboard(text);
  }
  if (result == kPasteEmpty) {
    context.ui.ShowMessage(kClipboardEmpty, "", MessageIcon::kNone);
    return result;
  }
  if (result != kPasteDone) context.ui.ShowMessage(kNotOurFormat, "", MessageIcon::kNone);
  surface.SetEditMode(kEditSelection);
  return result;
}

}  // namespace pluvane
