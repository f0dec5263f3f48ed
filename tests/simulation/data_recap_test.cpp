#include "simulation/data_recap.h"

#include <gtest/gtest.h>

#include "foundation/test_files.h"
#include "foundation/text.h"
#include "network/hidden_record.h"
#include "network/placement_fixture.h"

namespace pluvane {
namespace {

class DataRecapTest : public PlacementTest {
 protected:
  DataRecapTest() {
    state.ScenarioName = "Crue10";
    state.NetworkBase = "Quartier";
    state.ModelFolder = folder.Path();
  }
  void Set(int object, const char* tag, const std::string& value) {
    surface.SetCurrentObject(object);
    surface.SetObjTag(tag, value);
  }
  // A scenario of that rain, and the rain record itself.
  int Scenario(int rain_kind, const std::string& rain_id) {
    const int scenario = AddHiddenRecord(surface, state);
    surface.SetObjTag("iName", 111);
    surface.SetObjTag("Id", "Crue10");
    surface.SetObjTag("iPluie", rain_kind);
    surface.SetObjTag("IdPluie", rain_id);
    surface.SetObjTag("UsIdPluie", "Radar du 12 mai");
    return scenario;
  }
  std::vector<std::string> Report() {
    const std::string path = WriteDataRecap(surface, state, ui);
    EXPECT_EQ(path, folder.File("Crue10_Quartier.Txt"));
    std::vector<std::string> lines;
    ReadTextLines(path, lines);
    return lines;
  }
  static bool Has(const std::vector<std::string>& lines, const std::string& line) {
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  }
  TempFolder folder;
};

// A small network: two nodes, a circular collector between them, a catchment
// on the upstream node with a Caquot rain and a radius of action.
TEST_F(DataRecapTest, AReportWrittenLabelByLabel) {
  const int n1 = Node(1000, 1000);
  const int n2 = Node(3000, 1000);
  const int cac = Link("X_CAC", n1, n2);
  Set(cac, "ZRam", "101.5");
  Set(cac, "ZRav", "100.25");
  Set(cac, "Dn", "0.8");
  Set(cac, "L", "200.0");
  const int bv = Symbol("X_BVS", 1000, 1000, n1);
  Set(bv, "libell", "Bassin nord");
  Set(bv, "S", "2.5");
  Set(bv, "Fpluie", "2. selon Horner");
  Set(bv, "Fpluie1", "0.5");
  Set(bv, "Fpluie2", "0.25");
  Set(bv, "K", "12");
  Scenario(104, "Caquot10");
  AddHiddenRecord(surface, state);
  surface.SetObjTag("iName", 104);
  surface.SetObjTag("Id", "Caquot10");
  surface.SetObjTag("Design", "Décennale");
  surface.SetObjTag("Pret", "10");
  surface.SetObjTag("Ca", "5.9");
  surface.SetObjTag("Cb", "-0.59");
  EXPECT_EQ(Report(),
            (std::vector<std::string>{
                "",
                "Réseau : Quartier",
                "Scénario : Crue10",
                "Pluie Caquot Décennale (Caquot10)",
                "Période de retour      = 10",
                "Coef a et b de Montana = 5.9, -0.59",
                "",
                "BASSINS VERSANTS : 1",
                "",
                "\t* Id. bassin versant ..................... = Bassin nord (Bvs_1)",
                "\t  Superficie (ha)                          = 2.5",
                "\t  Longueur de cheminnement (m)             = 50",
                "\t  Pente moyenne (m/m)                      = 0.005",
                "\t  Coef d'imperméabilisation (-)            = 0.6",
                "\t  Fonction de production de la pluie nette = 2. selon Horner",
                "\t  Coef de perte initiale (alpha) = 0.5",
                "\t  Coef de recharge        (beta) = 0.25",
                "\t  Fonction de transformation pluis/débit = 1. k (Desbordes)",
                "\t  Temps de réponse du BV (mn) = 12",
                "",
                "",
                "COLLECTEURS CIRCULAIRES : 1",
                "",
                "\t* Id. collecteur ...... = Cac_1 (Cac_1)",
                "\t  Cote radier amont (m) = 101.5",
                "\t  Cote radier aval  (m) = 100.25",
                "\t  Diamètre          (m) = 0.8",
                "\t  Longueur          (m) = 200",
                "\t  Coef Strickler    (-) = 60",
                "\t  Hauteur moyenne sous chaussée (m) = 0",
                "\t  Surface au miroir équivalente     = 0",
                "\t           du réseau amont (m2)",
                "",
            }));
}

TEST_F(DataRecapTest, ASectionWithoutElementsHasNoTitle) {
  const int n1 = Node(1000, 1000);
  const int n2 = Node(3000, 1000);
  Link("X_CAC", n1, n2);
  Link("X_CAC", n2, n1);
  const std::vector<std::string> lines = Report();
  EXPECT_TRUE(Has(lines, "COLLECTEURS CIRCULAIRES : 2"));
  for (const auto& line : lines) EXPECT_EQ(line.find("COLLECTEURS OUVERTS"), std::string::npos);
}

TEST_F(DataRecapTest, WithoutRainTheReportSaysSoAndGoesOn) {
  const int n1 = Node(1000, 1000);
  Symbol("X_CLAV", 1000, 1000, n1);
  const std::vector<std::string> lines = Report();
  EXPECT_EQ(lines[3], "Scénario de pluie non renseigné.");
  EXPECT_TRUE(Has(lines, "EXTREMITES AVAL DE RESEAU : 1"));
  EXPECT_TRUE(Has(lines, "\t* Cla_1"));
}

TEST_F(DataRecapTest, ARadarRainShowsItsLineAndNoPlace) {
  Scenario(108, "R1");
  const std::vector<std::string> lines = Report();
  EXPECT_EQ(lines[3], "Pluie Radar Radar du 12 mai");
  for (const auto& line : lines) EXPECT_EQ(line.find("Rayon"), std::string::npos);
}

TEST_F(DataRecapTest, ADesignStormTellsItsPlace) {
  Scenario(105, "Tri");
  AddHiddenRecord(surface, state);
  surface.SetObjTag("iName", 105);
  surface.SetObjTag("Id", "Tri");
  surface.SetObjTag("Duree", "240");
  std::vector<std::string> lines = Report();
  EXPECT_TRUE(Has(lines, "Durée de la précipitation (mn) = 240"));
  EXPECT_TRUE(Has(lines, "Rayon d'action non renseigné"));
  const int radius = surface.AddObject(kKindEllipse, 0, 0, 100, 100);
  Set(radius, "Id", "Rayon");
  Set(radius, "iName", "17");
  Set(radius, "Xus", "651000.5");
  Set(radius, "Yus", "6862000");
  Set(radius, "Rayon", "1500");
  lines = Report();
  EXPECT_TRUE(Has(lines, "X,Y de l'épicentre = 651000.5, 6862000"));
  EXPECT_TRUE(Has(lines, "Rayon d'action (m) = 1500"));
}

TEST_F(DataRecapTest, TheRainIsFoundWhateverTheCaseAndBlanksOfItsName) {
  Scenario(104, " caquot10 ");
  AddHiddenRecord(surface, state);
  surface.SetObjTag("iName", 104);
  surface.SetObjTag("Id", "Caquot10");
  surface.SetObjTag("Design", "Décennale");
  const std::vector<std::string> lines = Report();
  EXPECT_EQ(lines[3], "Pluie Caquot Décennale (Caquot10)");
}

TEST_F(DataRecapTest, EachReachEndsWithAnEmptyLine) {
  for (const char* reach : {"1", "2"}) {
    AddHiddenRecord(surface, state);
    surface.SetObjTag("iName", 100);
    surface.SetObjTag("Id", reach);
    surface.SetObjTag("NbColl", "1");
    surface.SetObjTag("IdColl1", std::string("Cac_") + reach);
  }
  const std::vector<std::string> lines = Report();
  const std::vector<std::string> tail(lines.end() - 8, lines.end());
  EXPECT_EQ(tail, (std::vector<std::string>{"BIEFS DE COLLECTEUR : 2", "", "\t* Bief 1",
                                            "\t  Cac_1", "", "\t* Bief 2", "\t  Cac_2", ""}));
  // The file itself ends with the empty line after the last reach.
  EXPECT_TRUE(ReadBytes(folder.File("Crue10_Quartier.Txt")).ends_with("\t  Cac_2\r\n\r\n"));
}

TEST_F(DataRecapTest, NoScenarioMeansNoReport) {
  state.ScenarioName.clear();
  EXPECT_EQ(WriteDataRecap(surface, state, ui), "");
}

TEST_F(DataRecapTest, TheCommandOpensTheReport) {
  mnuExploit_RecapData(surface, state, ui);
  EXPECT_EQ(ui.EditedFiles(), (std::vector<std::string>{folder.File("Crue10_Quartier.Txt")}));
}

}  // namespace
}  // namespace pluvane
