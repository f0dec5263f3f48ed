// The network as GIS layers, in plain data: what the exports write and what an
// import reads back, before and after GDAL. A layer is a name, a geometry (points
// or lines), its attribute fields and its features; a feature is its vertices
// in map coordinates and one text value per field (empty for none).
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

enum class GisGeometry { kPoint, kLine };

struct GisField {
  std::string name;
  bool numeric = false;  // every value that is not empty reads as a number
};

struct GisFeature {
  std::vector<std::pair<double, double>> points;  // map X, Y
  std::vector<std::string> values;                // one a field, in field order
  std::string text;                               // the label drawn beside it (DXF)
  std::int64_t fid = 0;                           // its number in the file read
};

struct GisLayer {
  std::string name;
  GisGeometry geometry = GisGeometry::kPoint;
  std::vector<GisField> fields;
  std::vector<GisFeature> features;

  // The position of a field by name (case-blind), -1 when there is none.
  int FieldIndex(const std::string& field) const;
  // The value of a feature's field, empty when the layer has no such field.
  std::string Value(const GisFeature& feature, const std::string& field) const;
};

// The names of the layers, in the order they are written.
inline constexpr const char* kGisNodes = "noeuds";
inline constexpr const char* kGisCatchments = "bassins_versants";
inline constexpr const char* kGisCollectorsCI = "collecteurs_ci";
inline constexpr const char* kGisCollectorsPF = "collecteurs_pf";
inline constexpr const char* kGisCollectorsPO = "collecteurs_po";
inline constexpr const char* kGisSingular = "elements_singuliers";

// True when the whole text (blanks around it aside) is a decimal number.
bool IsGisNumber(const std::string& text);

// The layers of a network: nodes, catchments (at their centroid), the three
// kinds of collectors (through their vertices, with the labels of both nodes
// as libAm and libAv) and the singular elements (on their node). Every tag is
// a field; a field is numeric when every value given parses as a number.
// Layers without a feature are left out. Positions are the map coordinates:
// Xus, Yus where the element keeps them, else its logical place mapped by the
// calibration.
std::vector<GisLayer> CollectGisLayers(Surface& surface, const NetworkState& state);

}  // namespace pluvane
