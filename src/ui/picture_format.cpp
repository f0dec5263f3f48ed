#include "ui/picture_format.h"

#include "foundation/text.h"

namespace pluvane {

std::string LastExtension(const std::string& path) {
  const std::size_t slash = path.find_last_of("/\\");
  const std::size_t dot = path.rfind('.');
  if (dot == std::string::npos || (slash != std::string::npos && dot < slash)) return "";
  return LCase(path.substr(dot + 1));
}

PictureFormat PictureFormatOf(const std::string& path) {
  const std::string ext = LastExtension(path);
  if (ext == "svg") return PictureFormat::kSvg;
  if (ext == "wmf" || ext == "emf") return PictureFormat::kMetafile;
  if (ext == "pdf") return PictureFormat::kPdf;
  for (const char* raster : {"png", "bmp", "jpg", "jpeg", "gif", "tif", "tiff"})
    if (ext == raster) return PictureFormat::kRaster;
  return PictureFormat::kUnknown;
}

}  // namespace pluvane
