#include "foundation/errors.h"

#include <cerrno>

namespace pluvane {

AppError FileError(int errno_code) {
  switch (errno_code) {
    case ENOENT:
      return AppError(53, "Fichier introuvable");
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY:
      return AppError(70, "Permission refusée");
    case ENOTDIR:
      return AppError(76, "Chemin d'accès introuvable");
    default:
      return AppError(75, "Erreur d'accès au chemin/fichier");
  }
}

std::string SystemErrorText(int errno_code) {
  switch (errno_code) {
    case ENOENT:
      return "Le fichier spécifié est introuvable.";
    case EACCES:
    case EPERM:
      return "Accès refusé.";
    case ENOEXEC:
      return "Format de fichier exécutable incorrect.";
    case ENOTDIR:
      return "Le chemin d'accès spécifié est introuvable.";
    case ENOMEM:
    case EAGAIN:
      return "Ressources système insuffisantes.";
    default:
      return "Erreur système " + std::to_string(errno_code) + ".";
  }
}

void ShowError(UserInterface& ui, const AppError* pending, std::string_view context) {
  if (pending == nullptr) return;
  std::string text = pending->description() + "\r" + std::string(context);
  std::string title = pending->source() + " (erreur n°" + std::to_string(pending->number()) +
                      ", L" + std::to_string(pending->line()) + ")";
  ui.ShowMessage(text, title, MessageIcon::kExclamation);
}

}  // namespace pluvane
