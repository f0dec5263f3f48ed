#include "gis/gis_gdal.h"

#include <cpl_error.h>
#include <gdal_priv.h>
#include <ogr_spatialref.h>

#include <mutex>

#include "foundation/text.h"

namespace pluvane {

void StartGdal() {
  static std::once_flag once;
  std::call_once(once, [] {
    GDALAllRegister();
    CPLSetErrorHandler(CPLQuietErrorHandler);
  });
}

std::string GdalLastError() {
  const char* message = CPLGetLastErrorMsg();
  return message ? Trim(message) : std::string();
}

bool IsKnownCoordinateSystem(const std::string& crs) {
  StartGdal();
  OGRSpatialReference reference;
  return reference.SetFromUserInput(crs.c_str()) == OGRERR_NONE;
}

}  // namespace pluvane
