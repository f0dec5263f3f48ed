// What the about window says: the program's name, its version and a short
// description of what it is for. Shown from the "?" menu and, when the
// configuration's FlashScreen asks for it, for a moment at start.
#pragma once

#include <string>

namespace pluvane {

struct AboutText {
  std::string title;        // the window's caption
  std::string name;         // "Pluvane"
  std::string version;      // "Version 0.1"
  std::string description;  // a few lines in French
};

AboutText About();

}  // namespace pluvane
