// Writing the network as GIS layers (Fichier > Export > Couches SIG...): one
// GeoPackage, a folder of Shapefiles, one GeoJSON file a layer, or a DXF with a
// layer by kind and the labels as texts, by the extension of the path given.
// The coordinate system of the network goes into every layer.
#pragma once

#include <string>
#include <vector>

#include "drawing/surface.h"
#include "foundation/user_interface.h"
#include "gis/gis_layers.h"
#include "network/network_state.h"

namespace pluvane {

inline constexpr const char* kGisExportTitle = "Export SIG";

enum class GisFormat { kNone, kGeoPackage, kShapefile, kGeoJson, kDxf };

// The format of a path by its extension (case-blind): .gpkg, .shp, .geojson,
// .dxf; kNone for any other.
GisFormat GisFormatOf(const std::string& path);

// The files a GeoJSON export writes: one a layer, the layer's name after the
// stem ("reseau.geojson" gives "reseau_noeuds.geojson"...).
std::string GeoJsonLayerFile(const std::string& path, const std::string& layer);

// Writes the layers to `path` in the coordinate system `crs` (an EPSG code
// or a WKT; none when empty). A file or folder there already is replaced.
// False, after a message naming the file, when it could not be written.
bool WriteGisLayers(const std::vector<GisLayer>& layers, const std::string& path,
                    const std::string& crs, UserInterface& ui);

// The whole export: the layers of the network, with the capacity map's figures
// on the collectors when `sor_file` (the scenario's report) is given and
// exists, written to `path`. Returns the count of features written, -1 when
// refused (the message shown).
int ExportGisLayers(Surface& surface, const NetworkState& state, UserInterface& ui,
                    const std::string& path, const std::string& sor_file = {},
                    const std::string& ini_file = {});

// The report of the network's current scenario where the result menu finds it
// (SCN/SCN_NETWORK.Sor beside the network file); empty without a scenario.
std::string CurrentScenarioReport(const NetworkState& state, const std::string& scenario);

// Fichier > Export > Couches SIG...: the file asked (GeoPackage by default),
// then the export with the figures of the current scenario when it has
// results, and its count on the status line. The count, -1 when cancelled or
// refused.
int MnuFi_Export_Sig(Surface& surface, const NetworkState& state, UserInterface& ui);

}  // namespace pluvane
