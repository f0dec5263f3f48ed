// The export of the drawing as a picture (MnuFi_Export_Emf): the save dialog
// of the old metafile export, then the picture written by the extension the
// user gave (SVG, PDF or PNG; the old .emf and .wmf names are kept and get
// SVG content; a name without extension gets ".svg").
#pragma once

#include <string>

#include "foundation/user_interface.h"
#include "shell/app_state.h"

namespace pluvane {

inline constexpr const char* kExportDrawingTitle =
    "Exporter le dessin en fichier metafile de Windows";

// The path written, or empty when the user cancelled or the picture could not
// be written (then with a message).
std::string MnuFi_Export_Emf(const AppState& state, UserInterface& ui);

}  // namespace pluvane
