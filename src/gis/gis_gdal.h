// What the GIS units share around GDAL, with no GDAL type in sight: starting
// the library once, its last error as text, and the check of a coordinate
// system's name.
#pragma once

#include <string>

namespace pluvane {

// Registers GDAL's drivers once; its errors are kept for our messages instead
// of being printed.
void StartGdal();

// The last error GDAL recorded, without its trailing blanks; empty when none.
std::string GdalLastError();

// True when PROJ knows `crs` (an EPSG code such as "EPSG:2154" or a WKT).
bool IsKnownCoordinateSystem(const std::string& crs);

}  // namespace pluvane
