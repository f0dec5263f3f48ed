// The drawing as a picture file, without a window: SVG, PDF or a bitmap by
// the extension. The old metafile extensions (.wmf, .emf) get SVG content.
// What is drawn is the whole drawing (every visible object, or the logical
// space when there is none), with a margin, at the given width in pixels and
// the height that keeps its aspect.
#pragma once

#include <QImage>
#include <QRectF>
#include <string>

#include "drawing/surface.h"

namespace pluvane {

// The default width of exported pictures.
inline constexpr int kDefaultPictureWidth = 1600;

// The logical rectangle that a picture of the whole drawing shows.
QRectF DrawingExtent(const Surface& surface);

// Where picture names that are not found as they stand are looked for.
struct PictureFolders {
  std::string base_dir;    // the network's folder
  std::string symbol_dir;  // the symbol folder
};

// The whole drawing as an image of that width.
QImage RenderDrawing(const Surface& surface, int width_pixels, const PictureFolders& folders = {});

// False when the extension is not a picture format or the file could not be written.
bool SaveDrawingPicture(const Surface& surface, const std::string& path, int width_pixels,
                        const PictureFolders& folders = {});

// The same for a given logical rectangle (a plot's page, for instance).
QImage RenderArea(const Surface& surface, const QRectF& extent, int width_pixels,
                  const PictureFolders& folders = {});
bool SaveAreaPicture(const Surface& surface, const QRectF& extent, const std::string& path,
                     int width_pixels, const PictureFolders& folders = {});

}  // namespace pluvane
