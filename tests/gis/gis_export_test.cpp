#include "gis/gis_export.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "foundation/expect_message.h"
#include "gis/gis_fixture.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

class GisExport : public GisTest {
 protected:
  // Two nodes, a circular collector between them through one vertex, a
  // catchment and a weir on the first node.
  void Network() {
    r1_ = Node(1000, 1000);
    r2_ = Node(3000, 1000);
    Set(r1_, {{"libell", "Amont"}, {"Xus", "2000"}, {"Yus", "18000"}, {"Zus", "12.5"}});
    Set(r2_, {{"libell", "Aval"}, {"Xus", "6000"}, {"Yus", "18000"}, {"Zus", "n.c."}});
    link_ = Link("X_CAC", r1_, r2_);
    surface.SetCurrentObject(link_);
    surface.SetLinkPoint(2, 2000, 1500);
    Set(link_, {{"ZRam", "10"}, {"ZRav", "9.5"}, {"Dn", "400"}, {"L", "45"}});
    Set(Symbol("X_BV", 1200, 1500), {{"Id", "Bv_1"}, {"S", "2.5"}, {"ci", "0.4"}});
    Symbol("X_DQQ", 1000, 1000, r1_);
  }
  const GisLayer* Find(const std::vector<GisLayer>& layers, const std::string& name) {
    for (const GisLayer& layer : layers) {
      if (layer.name == name) return &layer;
    }
    return nullptr;
  }
  int r1_ = 0, r2_ = 0, link_ = 0;
};

TEST(GisNumbers, NumbersAreWholeDecimalTexts) {
  EXPECT_TRUE(IsGisNumber("12.5"));
  EXPECT_TRUE(IsGisNumber(" -3 "));
  EXPECT_TRUE(IsGisNumber("1e3"));
  EXPECT_FALSE(IsGisNumber(""));
  EXPECT_FALSE(IsGisNumber("12,5"));
  EXPECT_FALSE(IsGisNumber("nan"));
  EXPECT_FALSE(IsGisNumber("inf"));
  EXPECT_FALSE(IsGisNumber("4OO"));
}

TEST_F(GisExport, TheNetworkGivesALayerByKind) {
  Network();
  const std::vector<GisLayer> layers = CollectGisLayers(surface, state);
  std::vector<std::string> names;
  for (const GisLayer& layer : layers) names.push_back(layer.name);
  EXPECT_EQ(names, (std::vector<std::string>{"noeuds", "bassins_versants", "collecteurs_ci",
                                             "elements_singuliers"}));
  const GisLayer& nodes = *Find(layers, "noeuds");
  ASSERT_EQ(nodes.features.size(), 2u);
  EXPECT_EQ(nodes.features[1].points, (std::vector<std::pair<double, double>>{{6000, 18000}}));
  EXPECT_EQ(nodes.Value(nodes.features[0], "libell"), "Amont");
  // Zus holds a text on one node: the field is text.
  EXPECT_FALSE(nodes.fields[static_cast<std::size_t>(nodes.FieldIndex("Zus"))].numeric);
  EXPECT_TRUE(nodes.fields[static_cast<std::size_t>(nodes.FieldIndex("Xus"))].numeric);
  EXPECT_FALSE(nodes.fields[static_cast<std::size_t>(nodes.FieldIndex("Id"))].numeric);

  const GisLayer& ci = *Find(layers, "collecteurs_ci");
  ASSERT_EQ(ci.features.size(), 1u);
  EXPECT_EQ(ci.geometry, GisGeometry::kLine);
  EXPECT_EQ(ci.features[0].points,
            (std::vector<std::pair<double, double>>{{2000, 18000}, {4000, 17000}, {6000, 18000}}));
  EXPECT_EQ(ci.Value(ci.features[0], "libAm"), "Amont");
  EXPECT_EQ(ci.Value(ci.features[0], "libAv"), "Aval");
  EXPECT_EQ(ci.Value(ci.features[0], "Dn"), "400");
  EXPECT_TRUE(ci.fields[static_cast<std::size_t>(ci.FieldIndex("Dn"))].numeric);

  const GisLayer& bv = *Find(layers, "bassins_versants");
  EXPECT_EQ(bv.Value(bv.features[0], "S"), "2.5");
  // The weir stands on its node.
  const GisLayer& singular = *Find(layers, "elements_singuliers");
  EXPECT_EQ(singular.features[0].points,
            (std::vector<std::pair<double, double>>{{2000, 18000}}));
}

TEST_F(GisExport, AGeoPackageReadsBackWithItsSystem) {
  Network();
  state.CoordinateSystem = "EPSG:2154";
  const std::string file = folder.File("reseau.gpkg");
  EXPECT_EQ(ExportGisLayers(surface, state, ui, file), 5);
  EXPECT_TRUE(ui.Empty());
  GisLayer layer;
  std::string crs;
  ASSERT_TRUE(ReadGisLayer(file, "collecteurs_ci", GisGeometry::kLine, "EPSG:2154", layer, crs, ui));
  EXPECT_EQ(crs, "EPSG:2154");
  ASSERT_EQ(layer.features.size(), 1u);
  EXPECT_EQ(layer.Value(layer.features[0], "ZRav"), "9.5");
  EXPECT_EQ(layer.Value(layer.features[0], "libAv"), "Aval");
  EXPECT_EQ(layer.features[0].points.size(), 3u);
  ASSERT_TRUE(ReadGisLayer(file, "noeuds", GisGeometry::kPoint, "", layer, crs, ui));
  EXPECT_EQ(layer.Value(layer.features[1], "Zus"), "n.c.");
}

TEST_F(GisExport, ShapefilesGoToAFolderAndGeoJsonToAFileALayer) {
  Network();
  const std::string shp = folder.File("reseau.shp");
  EXPECT_EQ(ExportGisLayers(surface, state, ui, shp), 5);
  for (const char* name : {"noeuds", "bassins_versants", "collecteurs_ci", "elements_singuliers"}) {
    EXPECT_TRUE(fs::exists(folder.File(std::string("reseau/") + name + ".shp"))) << name;
    EXPECT_TRUE(fs::exists(folder.File(std::string("reseau/") + name + ".dbf"))) << name;
  }
  const std::string json = folder.File("reseau.geojson");
  EXPECT_EQ(ExportGisLayers(surface, state, ui, json), 5);
  EXPECT_EQ(GeoJsonLayerFile(json, "noeuds"), folder.File("reseau_noeuds.geojson"));
  GisLayer layer;
  std::string crs;
  ASSERT_TRUE(ReadGisLayer(GeoJsonLayerFile(json, "collecteurs_ci"), "", GisGeometry::kLine, "",
                           layer, crs, ui));
  EXPECT_EQ(layer.Value(layer.features[0], "Dn"), "400");
  ASSERT_TRUE(ReadGisLayer(folder.File("reseau"), "noeuds", GisGeometry::kPoint, "", layer, crs, ui));
  EXPECT_EQ(layer.Value(layer.features[0], "libell"), "Amont");
  EXPECT_TRUE(ui.Empty());
}

TEST_F(GisExport, DxfHoldsTheShapesAndTheLabelsByLayer) {
  Network();
  const std::string dxf = folder.File("reseau.dxf");
  EXPECT_EQ(ExportGisLayers(surface, state, ui, dxf), 5);
  const std::string text = ReadBytes(dxf);
  EXPECT_NE(text.find("collecteurs_ci"), std::string::npos);
  EXPECT_NE(text.find("Amont"), std::string::npos);
  EXPECT_NE(text.find("TEXT"), std::string::npos);
}

TEST_F(GisExport, AnUnknownExtensionIsRefused) {
  Network();
  const std::string file = folder.File("reseau.kml");
  EXPECT_EQ(ExportGisLayers(surface, state, ui, file), -1);
  ExpectLastMessage(ui,
                    "Le format du fichier " + file +
                        " est inconnu : choisissez .gpkg, .shp, .geojson ou .dxf.",
                    "Export SIG", MessageIcon::kExclamation);
  EXPECT_FALSE(fs::exists(file));
}

TEST_F(GisExport, AnUnknownSystemIsRefused) {
  Network();
  state.CoordinateSystem = "EPSG:999999";
  const std::string file = folder.File("reseau.gpkg");
  EXPECT_EQ(ExportGisLayers(surface, state, ui, file), -1);
  ExpectLastMessage(ui, "Le système de coordonnées du réseau (EPSG:999999) est inconnu.",
                    "Export SIG", MessageIcon::kExclamation);
}

TEST_F(GisExport, AFolderThatCannotBeWrittenIsTold) {
  Network();
  const std::string file = folder.File("absent/dessous/reseau.gpkg");
  EXPECT_EQ(ExportGisLayers(surface, state, ui, file), -1);
  EXPECT_EQ(ui.Last().text.rfind("Le fichier " + file + " ne peut pas être écrit.", 0), 0u);
  EXPECT_EQ(ui.Last().title, "Export SIG");
}

}  // namespace
}  // namespace pluvane
