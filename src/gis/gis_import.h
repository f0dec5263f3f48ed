// Reading GIS layers into the network (Fichier > Import > Couches SIG...): a
// point layer as nodes, a line layer as collectors of one kind joined to the
// nearest node within a tolerance (missing end nodes made), attributes taken
// as tags by name. The layer is read and checked whole before anything
// changes: a bad layer is refused with a message naming the file, the layer
// and the feature, and the network stays as it was. What is doubtful but
// imported (two nodes within the tolerance, a line of one vertex left out) is
// told in the message console, one line an element.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "exchange/kalder_import.h"
#include "foundation/console.h"
#include "gis/gis_layers.h"

namespace pluvane {

inline constexpr const char* kGisImportTitle = "Import SIG";

enum class GisImportKind { kNodes, kCI, kPF, kPO };

// "nodes", "ci", "pf" or "po" (case-blind); false for any other word.
bool ParseGisImportKind(const std::string& word, GisImportKind& kind);

struct GisImportRequest {
  std::string file;
  std::string layer;  // empty: the file's only layer
  GisImportKind kind = GisImportKind::kNodes;
  // Tag name, then the field it is read from; the other tags are read from
  // the field of their own name.
  std::vector<std::pair<std::string, std::string>> fields;
  double tolerance = 0.5;  // map metres
};

// Reads one layer of a file GDAL opens into plain data, its vertices in the
// coordinate system `crs` (as they are when `crs` or the layer's is none).
// `layer_crs` receives the layer's own system (EPSG:n when it has a code, else
// its WKT). False after a message when the file, the layer, a geometry or the
// coordinate systems will not do.
bool ReadGisLayer(const std::string& file, const std::string& layer_name, GisGeometry geometry,
                  const std::string& crs, GisLayer& layer, std::string& layer_crs,
                  UserInterface& ui);

// The whole import, one undo step. An uncalibrated network is calibrated on
// the layer's extent after the user agrees; a network without coordinate
// system takes the layer's. Returns the count of elements of the kind made,
// -1 when refused or cancelled (the network unchanged).
int ImportGisLayer(ImportTarget target, Console& console, const GisImportRequest& request);

}  // namespace pluvane
