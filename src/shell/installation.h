// Where the program finds its shipped data and its configuration.
//
// Two layouts are known. Portable (the build folder, a copy on a USB key):
// the programs, pluvane.ini, Symboles/, Curseurs/, Icones/ and Exemples/ stand in one
// folder, and the configuration is written where it stands. Installed (for
// example under /usr): the programs are in bin/ and the data in
// share/pluvane/ beside it; a folder of the system cannot be written, so the
// configuration in use is the user's own copy, under $XDG_CONFIG_HOME/pluvane/
// (~/.config/pluvane/ by default), made from the shipped one at first start.
#pragma once

#include <string>

namespace pluvane {

struct Installation {
  // The folder that holds Symboles/, Curseurs/, Icones/, Exemples/ and the shipped
  // pluvane.ini.
  std::string data_dir;
  // The configuration file in use.
  std::string ini_file;
};

// The data and configuration of the programs that stand in `app_path`.
// With `make_user_copy` false (the command line, which leaves the desktop's
// state alone), a missing user copy is not made: the shipped file is read.
Installation LocateInstallation(const std::string& app_path, bool make_user_copy);

// The folder of the user's configuration files: $XDG_CONFIG_HOME when it is
// an absolute path, else ~/.config; empty when neither can be known.
std::string UserConfigHome();

}  // namespace pluvane
