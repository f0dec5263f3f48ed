// The run-time error of a routine that traps its errors: a small exception
// that carries what the old error object held (number, description, source,
// line), and ShowError, the one box that reports it to the user.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "foundation/user_interface.h"

namespace pluvane {

// The program's name, the source of the errors it raises itself.
inline constexpr const char* kErrorSource = "Pluvane";

class AppError : public std::runtime_error {
 public:
  AppError(int number, const std::string& description, std::string source = kErrorSource,
           int line = 0)
      : std::runtime_error(description),
        number_(number),
        description_(description),
        source_(std::move(source)),
        line_(line) {}

  int number() const { return number_; }
  const std::string& description() const { return description_; }
  const std::string& source() const { return source_; }
  // Source line of the failure, 0 when unknown.
  int line() const { return line_; }

 private:
  int number_;
  std::string description_;
  std::string source_;
  int line_;
};

// The error a failed file operation raises, from the system's error code:
// 53 "Fichier introuvable", 70 "Permission refusée", 76 "Chemin d'accès
// introuvable", else 75 "Erreur d'accès au chemin/fichier".
AppError FileError(int errno_code);

// A French description of a system error code, for the messages that show the
// code itself.
std::string SystemErrorText(int errno_code);

// Reports a pending error: the description, a CR and the context in an
// exclamation box titled "<source> (erreur n°<number>, L<line>)". With no
// pending error (null) nothing is shown.
void ShowError(UserInterface& ui, const AppError* pending, std::string_view context);

}  // namespace pluvane
