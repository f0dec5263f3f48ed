// Test fixture of the GIS exchange: the imports' drawing calibrated at two
// metres a logical unit (X = 2 Xlog, Y = 20000 - 2 Ylog), a console that keeps
// its lines, and GeoJSON layers written by hand.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "exchange/import_fixture.h"
#include "exchange/recording_console.h"
#include "gis/gis_import.h"
#include "network/georeferencing.h"

namespace pluvane {

class GisTest : public ImportTest {
 protected:
  GisTest() {
    Calibration& c = state.calibration;
    c.logic_x = {0, 0, 0, 10000};
    c.logic_y = {0, 0, 10000, 10000};
    c.user_x = {0, 0, 0, 20000};
    c.user_y = {0, 20000, 0, 0};
    EXPECT_TRUE(SolveCalibration(c));
  }

  // A GeoJSON file of the features given (each a JSON object text).
  std::string GeoJson(const std::string& name, const std::string& features,
                      const std::string& crs = "") {
    std::string text = "{\"type\":\"FeatureCollection\",\"name\":\"" + name + "\",";
    if (!crs.empty()) {
      text += "\"crs\":{\"type\":\"name\",\"properties\":{\"name\":\"" + crs + "\"}},";
    }
    text += "\"features\":[" + features + "]}";
    return Table(name + ".geojson", text);
  }
  static std::string PointFeature(double x, double y, const std::string& properties) {
    return "{\"type\":\"Feature\",\"properties\":{" + properties +
           "},\"geometry\":{\"type\":\"Point\",\"coordinates\":[" + Num(x) + "," + Num(y) + "]}}";
  }
  static std::string LineFeature(const std::string& coordinates, const std::string& properties) {
    return "{\"type\":\"Feature\",\"properties\":{" + properties +
           "},\"geometry\":{\"type\":\"LineString\",\"coordinates\":[" + coordinates + "]}}";
  }
  static std::string Num(double v) {
    std::string text = std::to_string(v);
    while (!text.empty() && text.back() == '0') text.pop_back();
    if (!text.empty() && text.back() == '.') text.pop_back();
    return text;
  }

  int Import(const std::string& file, GisImportKind kind, double tolerance = 1,
             std::vector<std::pair<std::string, std::string>> fields = {},
             const std::string& layer = "") {
    GisImportRequest request;
    request.file = file;
    request.layer = layer;
    request.kind = kind;
    request.fields = std::move(fields);
    request.tolerance = tolerance;
    return ImportGisLayer(Target(), console, request);
  }

  int Count() const { return surface.ObjectCount(kAllObjects); }

  RecordingConsole console;
};

}  // namespace pluvane
