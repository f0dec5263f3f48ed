// The kind of picture a file name stands for, by its last extension
// (case-blind): what the picture cache reads and what the drawing export writes.
#pragma once

#include <string>

namespace pluvane {

enum class PictureFormat {
  kUnknown,
  kSvg,       // .svg
  kMetafile,  // .wmf, .emf: the old metafiles, written here as SVG content
  kPdf,       // .pdf
  kRaster,    // .png, .bmp, .jpg, .jpeg, .gif, .tif, .tiff
};

PictureFormat PictureFormatOf(const std::string& path);

// The extension behind the last "." of the file name, in lower case; empty if none.
std::string LastExtension(const std::string& path);

}  // namespace pluvane
