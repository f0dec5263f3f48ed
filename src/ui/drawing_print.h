// Printing the drawing (mnuFile_Print): the view as it stands on the screen,
// its aspect kept, fitted into the printable area of the page, without the
// selection's outlines. The printer keeps the page set up by mnuFile_PrtCfg.
#pragma once

#include <QPrinter>
#include <QRectF>
#include <string>

#include "drawing/surface.h"
#include "ui/drawing_picture.h"

namespace pluvane {

// Paints the logical rectangle `view` onto the printer's page. Empty on
// success, else what went wrong.
std::string PrintDrawing(const Surface& surface, const QRectF& view, QPrinter& printer,
                         const PictureFolders& folders);

}  // namespace pluvane
