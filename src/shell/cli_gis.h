// `pluvane-cli gis-export` and `gis-import`: the network's GIS layers written
// to a GeoPackage, Shapefiles, GeoJSON or DXF, and a point or line layer read
// into a network, as Fichier > Export / Import > Couches SIG... do.
#pragma once

#include "shell/cli.h"

namespace pluvane {

// `gis-export NETWORK.mtf -o OUT.gpkg|.shp|.geojson|.dxf [--scenario NAME]`.
CliCommand GisExportCliCommand();
// `gis-import NETWORK.mtf LAYERFILE --layer NAME --as nodes|ci|pf|po
// [--fields name=FIELD,...] [--tolerance METRES] -o OUT.mtf`.
CliCommand GisImportCliCommand();

}  // namespace pluvane
