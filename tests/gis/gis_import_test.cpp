#include "gis/gis_import.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/numbers.h"
#include "gis/gis_fixture.h"

namespace pluvane {
namespace {

class GisImport : public GisTest {};

TEST_F(GisImport, KindsAreReadFromTheirWords) {
  GisImportKind kind = GisImportKind::kNodes;
  EXPECT_TRUE(ParseGisImportKind("PF", kind));
  EXPECT_EQ(kind, GisImportKind::kPF);
  EXPECT_TRUE(ParseGisImportKind("nodes", kind));
  EXPECT_EQ(kind, GisImportKind::kNodes);
  EXPECT_FALSE(ParseGisImportKind("bv", kind));
}

TEST_F(GisImport, PointsBecomeNodesAtTheirMapPlace) {
  const std::string file =
      GeoJson("regards", PointFeature(2000, 18000, "\"libell\":\"R 1\",\"Zus\":12.5") + "," +
                             PointFeature(6000, 18000, "\"libell\":\"R2\",\"Zus\":11,\"Rue\":\"Haute\""));
  EXPECT_EQ(Import(file, GisImportKind::kNodes), 2);
  const std::vector<int> nodes = OfType(99);
  ASSERT_EQ(nodes.size(), 2u);
  EXPECT_EQ(TagOf(nodes[0], "Id"), "Nod_1");
  // Labels stay as the layer writes them, blanks and case.
  EXPECT_EQ(TagOf(nodes[0], "libell"), "R 1");
  EXPECT_EQ(TagOf(nodes[0], "Zus"), "12.5");
  EXPECT_EQ(TagOf(nodes[0], "Xus"), "2000");
  EXPECT_EQ(TagOf(nodes[0], "Yus"), "18000");
  EXPECT_EQ(TagOf(nodes[0], "Xlog"), "1000");
  EXPECT_EQ(TagOf(nodes[0], "Ylog"), "1000");
  EXPECT_EQ(TagOf(nodes[1], "Rue"), "Haute");
  const Box box = BoxOf(nodes[1]);
  EXPECT_EQ((box.left + box.right) / 2, 3000);
  EXPECT_EQ(state.ElementCounters[99], 2);
  EXPECT_EQ(LastStatus(), "ok 2 NOD ont été importés.");
  EXPECT_TRUE(console.lines().empty());
  // One undo step takes the whole import away.
  EXPECT_EQ(surface.UndoLabel(), "Annuler : Importer une couche SIG");
  ASSERT_TRUE(surface.Undo());
  EXPECT_TRUE(OfType(99).empty());
}

TEST_F(GisImport, FieldsAreTakenByTheNamesGiven) {
  const std::string file =
      GeoJson("regards", PointFeature(2000, 18000, "\"NOM\":\"Place\",\"ZTN\":\"40.2\""));
  EXPECT_EQ(Import(file, GisImportKind::kNodes, 1, {{"libell", "NOM"}, {"Zus", "ZTN"}}), 1);
  const int node = OfType(99).front();
  EXPECT_EQ(TagOf(node, "libell"), "Place");
  EXPECT_EQ(TagOf(node, "Zus"), "40.2");
  EXPECT_EQ(TagOf(node, "NOM"), "");
}

TEST_F(GisImport, NodesCloserThanTheToleranceAreReported) {
  const std::string file = GeoJson(
      "regards", PointFeature(2000, 18000, "\"Id\":\"Nod_7\"") + "," +
                     PointFeature(2000.5, 18000, "\"Id\":\"Nod_8\"") + "," +
                     PointFeature(9000, 18000, "\"Id\":\"Nod_9\""));
  EXPECT_EQ(Import(file, GisImportKind::kNodes, 1), 3);
  EXPECT_EQ(console.lines(), std::vector<std::string>{"Nod_8 : à moins de 1 m de Nod_7"});
  EXPECT_EQ(state.ElementCounters[99], 9);
}

TEST_F(GisImport, LinesJoinTheNearestNodesAndMakeTheMissingOnes) {
  const int r1 = Node(1000, 1000), r2 = Node(3000, 1000);
  Set(r1, {{"Xus", "2000"}, {"Yus", "18000"}, {"libell", "R1"}});
  Set(r2, {{"Xus", "6000"}, {"Yus", "18000"}, {"libell", "R2"}});
  const std::string file = GeoJson(
      "ci",
      LineFeature("[2000.4,18000],[4000,17000],[6000,18000]",
                  "\"libell\":\"C1\",\"ZRam\":10,\"ZRav\":9.5,\"Dn\":400,\"L\":\"45\"") +
          "," + LineFeature("[6000,18000],[6000,14000]", "\"Dn\":300") + "," +
          LineFeature("[8000,8000]", "\"Id\":\"Cac_40\""));
  const int before = static_cast<int>(OfType(99).size());
  EXPECT_EQ(Import(file, GisImportKind::kCI, 1), 2);
  const std::vector<int> links = OfType(5);
  ASSERT_EQ(links.size(), 2u);
  EXPECT_EQ(TagOf(links[0], "Id"), "Cac_1");
  EXPECT_EQ(TagOf(links[0], "libell"), "C1");
  EXPECT_EQ(TagOf(links[0], "sNodAm"), TagOf(r1, "Id"));
  EXPECT_EQ(TagOf(links[0], "sNodAv"), TagOf(r2, "Id"));
  EXPECT_EQ(TagOf(links[0], "ZRav"), "9.5");
  EXPECT_EQ(TagOf(links[0], "Dn"), "400");
  EXPECT_EQ(TagOf(links[0], "L"), "45");
  surface.SetCurrentObject(links[0]);
  const std::vector<Point> points = surface.ObjectPoints();
  ASSERT_EQ(points.size(), 3u);
  EXPECT_EQ(points[1], (Point{2000, 1500}));
  // The second line ends where no node stands: one is made there.
  ASSERT_EQ(static_cast<int>(OfType(99).size()), before + 1);
  const int made = OfType(99).back();
  EXPECT_EQ(TagOf(made, "Xus"), "6000");
  EXPECT_EQ(TagOf(made, "Yus"), "14000");
  EXPECT_EQ(TagOf(links[1], "sNodAv"), TagOf(made, "Id"));
  EXPECT_EQ(console.lines(),
            std::vector<std::string>{"Cac_40 : ligne d'un seul sommet, non importée"});
  EXPECT_EQ(LastStatus(), "ok 2 CAC ont été importés.");
}

TEST_F(GisImport, TwoNodesWithinTheToleranceOfAnEndAreReported) {
  const int r1 = Node(1000, 1000), r2 = Node(1001, 1000), r3 = Node(3000, 1000);
  Set(r1, {{"Xus", "2000"}, {"Yus", "18000"}});
  Set(r2, {{"Xus", "2002"}, {"Yus", "18000"}});
  Set(r3, {{"Xus", "6000"}, {"Yus", "18000"}});
  const std::string file = GeoJson("pf", LineFeature("[2001.5,18000],[6000,18000]", ""));
  EXPECT_EQ(Import(file, GisImportKind::kPF, 3), 1);
  const std::string up = TagOf(r2, "Id"), other = TagOf(r1, "Id");
  EXPECT_EQ(console.lines(),
            std::vector<std::string>{"Caf_1 : 2 noeuds à moins de 3 m de l'extrémité amont (" +
                                     up + ", " + other + "), " + up + " est retenu"});
  EXPECT_EQ(TagOf(OfType(6).front(), "sNodAm"), up);
}

TEST_F(GisImport, ALayerInAnotherSystemIsBroughtIntoTheNetworks) {
  state.CoordinateSystem = "EPSG:2154";
  const std::string file = GeoJson("wgs", PointFeature(2.35, 48.85, "\"libell\":\"Paris\""),
                                   "urn:ogc:def:crs:OGC:1.3:CRS84");
  // The calibration must hold the place: 652 301, 6 861 302 in Lambert-93.
  Calibration& c = state.calibration;
  c.user_x = {0, 650000, 650000, 670000};
  c.user_y = {0, 6870000, 6850000, 6850000};
  ASSERT_TRUE(SolveCalibration(c));
  EXPECT_EQ(Import(file, GisImportKind::kNodes), 1);
  const int node = OfType(99).front();
  EXPECT_NEAR(Val(TagOf(node, "Xus")), 652301.56, 0.05);
  EXPECT_NEAR(Val(TagOf(node, "Yus")), 6861302.73, 0.05);
}

TEST_F(GisImport, ANetworkWithoutSystemTakesTheLayers) {
  const std::string file = GeoJson("r", PointFeature(2000, 18000, ""), "EPSG:2154");
  EXPECT_EQ(Import(file, GisImportKind::kNodes), 1);
  EXPECT_EQ(state.CoordinateSystem, "EPSG:2154");
}

TEST_F(GisImport, AnUncalibratedNetworkIsCalibratedOnTheLayerAfterAQuestion) {
  DefaultCalibrationFromCorners(state.calibration, 10000, 10000);
  const std::string file = GeoJson(
      "regards", PointFeature(650000, 6860000, "") + "," + PointFeature(651500, 6861000, ""));
  ui.QueueNo();
  EXPECT_EQ(Import(file, GisImportKind::kNodes), -1);
  ExpectLastMessage(ui, "Le réseau n'est pas calé.\r\nLe caler sur l'emprise de la couche regards ?",
                    "Import SIG", MessageIcon::kQuestion, "yesno");
  EXPECT_TRUE(OfType(99).empty());
  EXPECT_NE(surface.UndoLabel(), "Annuler : Importer une couche SIG");
  ui.QueueYes();
  EXPECT_EQ(Import(file, GisImportKind::kNodes), 2);
  // The extent fills the middle third: its width, the larger, from 1/3 to 2/3.
  const std::vector<int> nodes = OfType(99);
  EXPECT_EQ(TagOf(nodes[0], "Xlog"), "3333");
  EXPECT_EQ(TagOf(nodes[1], "Xlog"), "6667");
  EXPECT_EQ(TagOf(nodes[1], "Ylog"), "3333");
}

// Every bad layer: the message names the file, the layer and the feature, and
// the network stays as it was.
class GisBadInput : public GisTest {
 protected:
  void SetUp() override {
    Set(Node(1000, 1000), {{"Xus", "2000"}, {"Yus", "18000"}});
    objects_ = Count();
    undo_label_ = surface.UndoLabel();
  }
  void ExpectRefused(const std::string& file, GisImportKind kind, const std::string& text,
                     std::vector<std::pair<std::string, std::string>> fields = {},
                     const std::string& layer = "") {
    EXPECT_EQ(Import(file, kind, 1, std::move(fields), layer), -1);
    ExpectLastMessage(ui, text, "Import SIG", MessageIcon::kExclamation);
    EXPECT_EQ(Count(), objects_);
    EXPECT_EQ(surface.UndoLabel(), undo_label_);
    EXPECT_TRUE(console.lines().empty());
  }
  int objects_ = 0;
  std::string undo_label_;
};

TEST_F(GisBadInput, AFileGdalCannotOpen) {
  const std::string file = Table("vrac.geojson", "ceci n'est pas une couche");
  EXPECT_EQ(Import(file, GisImportKind::kNodes), -1);
  EXPECT_EQ(ui.Last().text.rfind("Le fichier " + file + " ne peut pas être lu comme une couche SIG.", 0),
            0u);
  EXPECT_EQ(ui.Last().title, "Import SIG");
  EXPECT_EQ(Count(), objects_);
  const std::string missing = folder.File("absent.gpkg");
  EXPECT_EQ(Import(missing, GisImportKind::kNodes), -1);
  EXPECT_EQ(ui.Last().text.rfind("Le fichier " + missing + " ne peut pas être lu", 0), 0u);
}

TEST_F(GisBadInput, AMissingLayer) {
  const std::string file = GeoJson("regards", PointFeature(1, 1, ""));
  ExpectRefused(file, GisImportKind::kNodes,
                "La couche puits est absente du fichier " + file + ".", {}, "puits");
}

TEST_F(GisBadInput, AnEmptyLayer) {
  const std::string file = GeoJson("regards", "");
  ExpectRefused(file, GisImportKind::kNodes,
                "La couche regards du fichier " + file + " est vide.");
}

TEST_F(GisBadInput, AGeometryOfTheWrongType) {
  const std::string file = GeoJson("regards", PointFeature(1, 1, "") + "," +
                                                  LineFeature("[0,0],[1,1]", ""));
  ExpectRefused(file, GisImportKind::kNodes,
                "Objet 1 de la couche regards du fichier " + file +
                    " : sa géométrie (Line String) n'est pas un point.");
  const std::string points = GeoJson("pts", PointFeature(1, 1, ""));
  ExpectRefused(points, GisImportKind::kCI,
                "La couche pts du fichier " + points + " n'est pas une couche de lignes.");
}

TEST_F(GisBadInput, ANullGeometry) {
  const std::string file = GeoJson(
      "ci", LineFeature("[0,0],[1,1]", "") +
                ",{\"type\":\"Feature\",\"properties\":{\"Dn\":300},\"geometry\":null}");
  ExpectRefused(file, GisImportKind::kCI,
                "Objet 1 de la couche ci du fichier " + file + " : géométrie absente.");
}

TEST_F(GisBadInput, AMultiPartLine) {
  const std::string file = GeoJson(
      "ci", "{\"type\":\"Feature\",\"properties\":{},\"geometry\":{\"type\":\"MultiLineString\","
            "\"coordinates\":[[[0,0],[1,1]],[[5,5],[6,6]]]}}");
  ExpectRefused(file, GisImportKind::kCI,
                "Objet 0 de la couche ci du fichier " + file + " : ligne en plusieurs parties.");
}

TEST_F(GisBadInput, AnAttributeThatIsNoNumber) {
  const std::string file = GeoJson("ci", LineFeature("[0,0],[100,100]", "\"Dn\":\"400\"") + "," +
                                             LineFeature("[0,0],[100,100]", "\"Dn\":\"4OO\""));
  ExpectRefused(file, GisImportKind::kCI,
                "Objet 1 de la couche ci du fichier " + file +
                    " : la valeur « 4OO » du champ Dn n'est pas un nombre.");
}

TEST_F(GisBadInput, AFieldThatIsNotThere) {
  const std::string file = GeoJson("regards", PointFeature(1, 1, "\"a\":1"));
  ExpectRefused(file, GisImportKind::kNodes,
                "Le champ ZTN est absent de la couche regards du fichier " + file + ".",
                {{"Zus", "ZTN"}});
}

TEST_F(GisBadInput, ACoordinateSystemProjDoesNotKnow) {
  state.CoordinateSystem = "EPSG:999999";
  const std::string file = GeoJson("regards", PointFeature(1, 1, ""), "EPSG:2154");
  ExpectRefused(file, GisImportKind::kNodes,
                "Le système de coordonnées du réseau (EPSG:999999) est inconnu.");
}

TEST_F(GisBadInput, ANegativeTolerance) {
  const std::string file = GeoJson("regards", PointFeature(1, 1, ""));
  EXPECT_EQ(Import(file, GisImportKind::kNodes, -2), -1);
  ExpectLastMessage(ui, "La tolérance doit être un nombre positif de mètres.", "Import SIG",
                    MessageIcon::kExclamation);
  EXPECT_EQ(Count(), objects_);
}

}  // namespace
}  // namespace pluvane
