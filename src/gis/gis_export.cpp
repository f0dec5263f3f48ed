#include "gis/gis_export.h"

#include <gdal_priv.h>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

#include <filesystem>
#include <memory>

#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "gis/gis_gdal.h"
#include "results/capacity_map.h"

namespace pluvane {

namespace {

namespace fs = std::filesystem;

struct DatasetCloser {
  void operator()(GDALDataset* dataset) const { GDALClose(dataset); }
};
using Dataset = std::unique_ptr<GDALDataset, DatasetCloser>;

std::string Extension(const std::string& path) {
  const std::string name = FileNameOf(path);
  const std::size_t dot = name.rfind('.');
  return dot == std::string::npos ? std::string() : LCase(name.substr(dot + 1));
}

std::string WithoutExtension(const std::string& path) {
  const std::size_t dot = path.rfind('.');
  const std::size_t slash = path.find_last_of("/\\");
  if (dot == std::string::npos || (slash != std::string::npos && dot < slash)) return path;
  return path.substr(0, dot);
}

void Refuse(UserInterface& ui, const std::string& path) {
  std::string text = "Le fichier " + path + " ne peut pas être écrit.";
  const std::string reason = GdalLastError();
  if (!reason.empty()) text += "\r\n" + reason;
  ui.ShowMessage(text, kGisExportTitle, MessageIcon::kExclamation);
}

Dataset Create(const char* driver_name, const std::string& path) {
  GDALDriver* driver = GetGDALDriverManager()->GetDriverByName(driver_name);
  if (!driver) return nullptr;
  return Dataset(driver->Create(path.c_str(), 0, 0, 0, GDT_Unknown, nullptr));
}

// The label of a feature, as DXF draws texts: its first vertex, or the middle
// of its middle segment.
OGRPoint LabelPoint(const GisFeature& feature) {
  const auto& p = feature.points;
  if (p.size() < 2) return p.empty() ? OGRPoint(0, 0) : OGRPoint(p[0].first, p[0].second);
  const std::size_t i = (p.size() - 1) / 2;
  return OGRPoint((p[i].first + p[i + 1].first) / 2, (p[i].second + p[i + 1].second) / 2);
}

void SetGeometry(OGRFeature& target, const GisLayer& layer, const GisFeature& feature) {
  if (layer.geometry == GisGeometry::kPoint) {
    if (feature.points.empty()) return;
    OGRPoint point(feature.points[0].first, feature.points[0].second);
    target.SetGeometry(&point);
  } else {
    OGRLineString line;
    for (const auto& [x, y] : feature.points) line.addPoint(x, y);
    target.SetGeometry(&line);
  }
}

// One layer with its fields and features; false on a failure.
bool WriteLayer(GDALDataset& dataset, const GisLayer& layer, const OGRSpatialReference* srs,
                char** options) {
  OGRLayer* target = dataset.CreateLayer(
      layer.name.c_str(), const_cast<OGRSpatialReference*>(srs),
      layer.geometry == GisGeometry::kPoint ? wkbPoint : wkbLineString, options);
  if (!target) return false;
  for (const GisField& field : layer.fields) {
    OGRFieldDefn definition(field.name.c_str(), field.numeric ? OFTReal : OFTString);
    if (target->CreateField(&definition) != OGRERR_NONE) return false;
  }
  OGRFeatureDefn* definition = target->GetLayerDefn();
  const bool transaction = target->StartTransaction() == OGRERR_NONE;
  for (const GisFeature& feature : layer.features) {
    OGRFeature out(definition);
    for (std::size_t f = 0; f < layer.fields.size(); ++f) {
      const int i = static_cast<int>(f);
      const std::string& value = feature.values[f];
      if (Trim(value).empty()) {
        out.SetFieldNull(i);
      } else if (layer.fields[f].numeric) {
        out.SetField(i, Val(value));
      } else {
        out.SetField(i, value.c_str());
      }
    }
    SetGeometry(out, layer, feature);
    if (target->CreateFeature(&out) != OGRERR_NONE) return false;
  }
  return !transaction || target->CommitTransaction() == OGRERR_NONE;
}

// DXF holds one layer of entities; each feature says its layer by its
// "Layer" field, and its label is a text entity of the same layer.
bool WriteDxf(GDALDataset& dataset, const std::vector<GisLayer>& layers) {
  OGRLayer* target = dataset.CreateLayer("entities", nullptr, wkbUnknown, nullptr);
  if (!target) return false;
  OGRFeatureDefn* definition = target->GetLayerDefn();
  for (const GisLayer& layer : layers) {
    for (const GisFeature& feature : layer.features) {
      OGRFeature shape(definition);
      shape.SetField("Layer", layer.name.c_str());
      SetGeometry(shape, layer, feature);
      if (target->CreateFeature(&shape) != OGRERR_NONE) return false;
      if (feature.text.empty()) continue;
      OGRFeature text(definition);
      text.SetField("Layer", layer.name.c_str());
      OGRPoint at = LabelPoint(feature);
      text.SetGeometry(&at);
      std::string quoted;
      for (char ch : feature.text) {
        if (ch == '"' || ch == '\\') quoted += '\\';
        quoted += ch;
      }
      text.SetStyleString(("LABEL(f:\"Arial\",t:\"" + quoted + "\",s:2g)").c_str());
      if (target->CreateFeature(&text) != OGRERR_NONE) return false;
    }
  }
  return true;
}

}  // namespace

GisFormat GisFormatOf(const std::string& path) {
  const std::string extension = Extension(path);
  if (extension == "gpkg") return GisFormat::kGeoPackage;
  if (extension == "shp") return GisFormat::kShapefile;
  if (extension == "geojson") return GisFormat::kGeoJson;
  if (extension == "dxf") return GisFormat::kDxf;
  return GisFormat::kNone;
}

std::string GeoJsonLayerFile(const std::string& path, const std::string& layer) {
  return WithoutExtension(path) + "_" + layer + ".geojson";
}

bool WriteGisLayers(const std::vector<GisLayer>& layers, const std::string& path,
                    const std::string& crs, UserInterface& ui) {
  StartGdal();
  CPLErrorReset();
  const GisFormat format = GisFormatOf(path);
  OGRSpatialReference srs;
  const OGRSpatialReference* reference = nullptr;
  if (!Trim(crs).empty()) {
    if (srs.SetFromUserInput(crs.c_str()) != OGRERR_NONE) {
      ui.ShowMessage("Le système de coordonnées du réseau (" + crs + ") est inconnu.",
                     kGisExportTitle, MessageIcon::kExclamation);
      return false;
    }
    srs.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    reference = &srs;
  }
  std::error_code ignored;
  switch (format) {
    case GisFormat::kGeoPackage:
    case GisFormat::kDxf: {
      fs::remove(path, ignored);
      Dataset dataset = Create(format == GisFormat::kDxf ? "DXF" : "GPKG", path);
      if (!dataset) break;
      bool written = true;
      if (format == GisFormat::kDxf) {
        written = WriteDxf(*dataset, layers);
      } else {
        for (const GisLayer& layer : layers) {
          written = written && WriteLayer(*dataset, layer, reference, nullptr);
        }
      }
      if (written) return true;
      break;
    }
    case GisFormat::kShapefile: {
      // A folder named as the file, one file a layer in it.
      const std::string folder = WithoutExtension(path);
      for (const GisLayer& layer : layers) {
        for (const char* part : {".shp", ".shx", ".dbf", ".prj", ".cpg"}) {
          fs::remove(JoinPath(folder, layer.name + part), ignored);
        }
      }
      fs::create_directories(folder, ignored);
      Dataset dataset = Create("ESRI Shapefile", folder);
      if (!dataset) break;
      const char* options[] = {"ENCODING=UTF-8", nullptr};
      bool written = true;
      for (const GisLayer& layer : layers) {
        written = written && WriteLayer(*dataset, layer, reference, const_cast<char**>(options));
      }
      if (written) return true;
      break;
    }
    case GisFormat::kGeoJson: {
      bool written = true;
      for (const GisLayer& layer : layers) {
        const std::string file = GeoJsonLayerFile(path, layer.name);
        fs::remove(file, ignored);
        Dataset dataset = Create("GeoJSON", file);
        written = dataset && WriteLayer(*dataset, layer, reference, nullptr);
        if (!written) {
          Refuse(ui, file);
          return false;
        }
      }
      return true;
    }
    case GisFormat::kNone:
      ui.ShowMessage("Le format du fichier " + path +
                         " est inconnu : choisissez .gpkg, .shp, .geojson ou .dxf.",
                     kGisExportTitle, MessageIcon::kExclamation);
      return false;
  }
  Refuse(ui, path);
  return false;
}

int ExportGisLayers(Surface& surface, const NetworkState& state, UserInterface& ui,
                    const std::string& path, const std::string& sor_file,
                    const std::string& ini_file) {
  if (GisFormatOf(path) == GisFormat::kNone) {
    WriteGisLayers({}, path, "", ui);
    return -1;
  }
  std::vector<GisLayer> layers;
  std::unique_ptr<CapacityMap> map;
  if (!sor_file.empty() && FileExist(sor_file)) {
    // The capacity map's copy carries the figures on its collectors.
    map = std::make_unique<CapacityMap>(ui);
    const CapacityMapInput input{&surface, sor_file, DirOf(sor_file), ini_file};
    map->Load(input);
    layers = CollectGisLayers(map->map(), state);
  } else {
    layers = CollectGisLayers(surface, state);
  }
  if (!WriteGisLayers(layers, path, state.CoordinateSystem, ui)) return -1;
  int count = 0;
  for (const GisLayer& layer : layers) count += static_cast<int>(layer.features.size());
  return count;
}

std::string CurrentScenarioReport(const NetworkState& state, const std::string& scenario) {
  if (Trim(scenario).empty() || state.NetworkFile.empty()) return {};
  std::string folder, file_name, base, extension;
  SplitPath(state.NetworkFile, folder, file_name, base, extension);
  return JoinPath(JoinPath(folder, scenario), scenario + "_" + base + ".Sor");
}

int MnuFi_Export_Sig(Surface& surface, const NetworkState& state, UserInterface& ui) {
  std::string folder, file_name, base, extension;
  SplitPath(state.NetworkFile, folder, file_name, base, extension);
  const std::string path = ui.AskSaveFile(
      "Exporter les couches SIG",
      "GeoPackage (*.gpkg)|*.gpkg|Shapefile (*.shp)|*.shp|GeoJSON (*.geojson)|*.geojson|"
      "Autocad (*.dxf)|*.dxf",
      "gpkg", base.empty() ? std::string() : JoinPath(folder, base + ".gpkg"));
  if (Trim(path).empty()) return -1;
  const int count = ExportGisLayers(surface, state, ui, path,
                                    CurrentScenarioReport(state, state.ScenarioName),
                                    IniFilePath(state));
  if (count >= 0) ui.ShowStatus("ok " + std::to_string(count) + " objets exportés.");
  return count;
}

}  // namespace pluvane
