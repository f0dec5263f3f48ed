// What the viewer's window shows and writes: the page in a zoom rectangle or
// whole, and the page saved as a picture. The window gives the size of its
// client area and the writer of pictures; the choices and messages are here.
#pragma once

#include <functional>
#include <string>

#include "foundation/user_interface.h"
#include "drawing/surface.h"

namespace pluvane {

// The surface's mode string that starts a zoom frame, ended on the mouse up.
inline constexpr const char* kZoomFrameMode = "ZOOMF";

// Fits the logical rectangle into a client area of that many pixels. A
// rectangle the zoom cannot show (too small, or a scale out of range) is told
// by "Erreur !" and leaves the view; false then.
bool ViewerZoomRect(UserInterface& ui, Surface& surface, int client_width, int client_height,
                    double left, double top, double right, double bottom);

// The whole page in view.
void ViewerZoomAll(Surface& surface);

// Writes the page into the picture file; false when it could not be written.
using PictureWriter = std::function<bool(const std::string& path)>;

// mnuFi_SaveAs: a save dialog on the picture formats (SVG, PDF, PNG; the old
// metafile names get SVG); a name without extension gets ".svg". Returns the
// file written, empty when cancelled or not written (a message says why).
std::string ViewerSaveAs(UserInterface& ui, const PictureWriter& write,
                         const std::string& initial_folder);

}  // namespace pluvane
