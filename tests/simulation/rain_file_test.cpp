#include "network/catalogue.h"
#include "simulation/rain_file.h"

#include <gtest/gtest.h>

#include "foundation/errors.h"
#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "scenario_fixture.h"
#include "simulation/rain_block.h"

namespace pluvane {
namespace {

std::string Expected(const std::string& name) {
  return ReadBytes(std::string(PLUVANE_TESTS) + "/simulation/expected/rain/" + name);
}

class RainFileTest : public ScenarioTest {
 protected:
  int Generate(const std::string& scenario = "Scn-1") {
    return GenFicPlu(surface_, ui_, state_.calibration, scenario, Scn(), Plu());
  }
  std::string Plu() const { return folder_.File("Scn-1_reseau.PLU"); }
  std::string Scn() const { return folder_.File("Scn-1_reseau.Scn"); }
  std::string PluBytes() const { return ReadBytes(Plu()); }

  // The gauge network: three gauges, the third renamed by an older import,
  // and a table of five rows entered before the third gauge was placed.
  void GaugeNetwork() {
    AddGauge(10000, 20000, 10100, 20100);
    AddGauge(40000, 50000, 40200, 50200);
    const int third = AddGauge(70001, 80000, 70102, 80101);
    surface_.SetCurrentObject(third);
    surface_.SetObjTag("Id", "Pluvio_Nord");
    AddRecord(103, "Pluie1");
    surface_.SetObjTag("Design", "Orage");
    surface_.SetObjTag("iModePluie", "2. Distance pondérée");
    surface_.SetObjTag("NbPt", "5");
    surface_.SetObjTag("Pt1", "Etat pluvio ->\t0\t0");
    surface_.SetObjTag("Pt2", "0\t0\t0");
    surface_.SetObjTag("Pt3", "10\t2.5\t1.2");
    surface_.SetObjTag("Pt4", "20\t7.75\t3");
    surface_.SetObjTag("Pt5", "30\t9\t4.5");
    AddScenario("Scn-1", "Pluie1", 103, "2. Distance pondérée");
  }
  void Radius() { AddRadius(20000, 60000, 30000, 70000); }
};

TEST_F(RainFileTest, ScnFileNamesTheScenario) {
  const int scenario = AddScenario("Scn-1", "CAQ_1", 104);
  surface_.SetCurrentObject(scenario);
  surface_.SetObjTag("Design", "Projet décennal");
  AddRecord(104, "CAQ_1");
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(ReadBytes(Scn()), Expected("scenario.Scn"));
}

TEST_F(RainFileTest, MissingScenarioSaysSoAndWritesNothing) {
  AddScenario("Scn-2", "CAQ_1", 104);
  EXPECT_EQ(Generate("Scn-1"), 0);
  ExpectLastMessage(ui_, "scenario de pluie non trouvé !", "", MessageIcon::kNone);
  EXPECT_FALSE(FileExist(Plu()));
  EXPECT_FALSE(FileExist(Scn()));
}

TEST_F(RainFileTest, ScenarioIsFoundTrimmedInAnyCase) {
  AddScenario(" scn-1 ", "CAQ_1", 104);
  AddRecord(104, "caq_1");
  surface_.SetObjTag("Ca", "5.9");
  surface_.SetObjTag("Cb", "-0.59");
  EXPECT_EQ(Generate("Scn-1"), 1);
  EXPECT_TRUE(ui_.Empty());
  // The head names the rain as the scenario holds it.
  EXPECT_EQ(PluBytes(), "CAQ       'CAQ_1'\r\n      5.90      -.59\r\n");
}

TEST_F(RainFileTest, CaquotBlockHasNoCentreLine) {
  AddScenario("Scn-1", "CAQ_1", 104);
  AddRecord(104, "CAQ_1");
  surface_.SetObjTag("IdMonta", "Mont1");
  surface_.SetObjTag("Ca", "5.9");
  surface_.SetObjTag("Cb", "-0.59");
  Radius();
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), Expected("caquot.PLU"));
}

TEST_F(RainFileTest, EmptyRainNameIsToto) {
  AddScenario("Scn-1", "", 104);
  AddRecord(104, "Toto");
  surface_.SetObjTag("Ca", "12");
  surface_.SetObjTag("Cb", "0.5");
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), Expected("toto.PLU"));
}

TEST_F(RainFileTest, EmptyRainNameWithoutTotoGivesAnEmptyFile) {
  AddScenario("Scn-1", "", 104);
  AddRecord(104, "CAQ_1");
  EXPECT_EQ(Generate(), 1);
  EXPECT_TRUE(FileExist(Plu()));
  EXPECT_EQ(PluBytes(), "");
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(RainFileTest, DeletedRainGivesAnEmptyFileWithoutMessage) {
  AddScenario("Scn-1", "PST_9", 105);
  AddRecord(105, "PST_1");
  WriteBytes(Plu(), "old contents\r\n");
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), "");
  EXPECT_TRUE(ui_.Empty());
}

TEST_F(RainFileTest, RainOfAnotherKindIsNotTaken) {
  AddScenario("Scn-1", "R1", 105);
  AddRecord(104, "R1");
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), "");
}

TEST_F(RainFileTest, KindOutsideTheTableGivesAnEmptyFile) {
  AddScenario("Scn-1", "Mont1", 102);
  AddRecord(102, "Mont1");
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), "");
}

TEST_F(RainFileTest, SimpleTriangleWithoutRadiusCoversEverything) {
  AddScenario("Scn-1", "PST_1", 105);
  AddRecord(105, "PST_1");
  surface_.SetObjTag("Ca", "4.2");
  surface_.SetObjTag("Cb", "0.65");
  surface_.SetObjTag("Duree", "240");
  surface_.SetObjTag("Timax", "120.5");
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), Expected("simple_triangle.PLU"));
}

TEST_F(RainFileTest, DoubleTriangleIsPlacedByTheRadius) {
  Radius();
  AddScenario("Scn-1", "PDT_1", 106);
  AddRecord(106, "PDT_1");
  surface_.SetObjTag("CaTot", "6.7");
  surface_.SetObjTag("CbTot", "0.55");
  surface_.SetObjTag("CaInt", "3.1");
  surface_.SetObjTag("CbInt", "0.42");
  surface_.SetObjTag("DureeTot", "240");
  surface_.SetObjTag("DureeInt", "30");
  surface_.SetObjTag("Timax", "135");
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), Expected("double_triangle.PLU"));
}

TEST_F(RainFileTest, SyntheticCurveListsItsPoints) {
  Radius();
  AddScenario("Scn-1", "PIT_1", 107);
  AddRecord(107, "PIT_1");
  surface_.SetObjTag("NbPt", 3);
  surface_.SetObjTag("X1", 0.0);
  surface_.SetObjTag("Y1", 0.0);
  surface_.SetObjTag("X2", 15.0);
  surface_.SetObjTag("Y2", 42.5);
  surface_.SetObjTag("X3", 60.0);
  surface_.SetObjTag("Y3", 3.25);
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), Expected("synthetic.PLU"));
}

TEST_F(RainFileTest, OrdinatesLoseTheShift) {
  Radius();
  AddScenario("Scn-1", "PIT_1", 107);
  AddRecord(107, "PIT_1");
  surface_.SetObjTag("NbPt", 1);
  surface_.SetObjTag("X1", 5.0);
  surface_.SetObjTag("Y1", 12.0);
  EXPECT_EQ(GenFicPlu(surface_, ui_, state_.calibration, "Scn-1", Scn(), Plu(), 1000), 1);
  EXPECT_EQ(PluBytes(),
            "PPHY     'PIT_1'\r\n    25000.    34000.    5000.0\r\n    1\r\n"
            "      5.00   -988.00\r\n");
}

TEST_F(RainFileTest, RadarBlockHoldsExactlyTwoPathLines) {
  AddScenario("Scn-1", "x", 108);
  AddRecord(108, "x");
  surface_.SetObjTag("CrbFile", "  /data/radar/cells cut.Crb ");
  surface_.SetObjTag("PrfFile", "/data/radar/mailles.Prf");
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), Expected("radar.PLU"));
}

TEST_F(RainFileTest, GaugeBlockWritesEachGaugeSeries) {
  GaugeNetwork();
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), Expected("gauges.PLU"));
}

TEST_F(RainFileTest, GaugeRecordsWithoutGaugesGiveAnEmptyFile) {
  AddRecord(103, "Pluie1");
  surface_.SetObjTag("NbPt", "2");
  surface_.SetObjTag("Pt1", "Etat pluvio ->");
  surface_.SetObjTag("Pt2", "0");
  AddScenario("Scn-1", "Pluie1", 103, "1. Thiessen");
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), "");
}

TEST_F(RainFileTest, GaugeTableFoundOnlyUnderItsExactIdHasNoSeries) {
  AddGauge(10000, 20000, 10100, 20100);
  AddRecord(103, "pluie1");
  surface_.SetObjTag("iModePluie", "1. Thiessen");
  surface_.SetObjTag("NbPt", "2");
  surface_.SetObjTag("Pt2", "0\t1");
  AddScenario("Scn-1", "PLUIE1", 103);
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), "PR     'PLUIE1'\r\n    1    0\r\n   'Plu_1'\r\n    10050.    79950.\r\n");
}

TEST(RainKeywordTest, KeywordsKeepTheirBlanks) {
  EXPECT_EQ(RainKeyword(103), "PR     ");
  EXPECT_EQ(RainKeyword(104), "CAQ       ");
  EXPECT_EQ(RainKeyword(105), "PPST     ");
  EXPECT_EQ(RainKeyword(106), "PPDT     ");
  EXPECT_EQ(RainKeyword(107), "PPHY     ");
  EXPECT_EQ(RainKeyword(108), "PRAD    ");
  EXPECT_EQ(RainKeyword(127), "PR");
  EXPECT_EQ(RainKeyword(128), "PPHY");
  EXPECT_EQ(RainKeyword(109), "");
}

TEST_F(RainFileTest, CentreOfTheRadiusObject) {
  Radius();
  double x = 0, y = 0, r = 0;
  LocateRainCentre(surface_, state_.calibration, kINameRayon, x, y, r);
  EXPECT_DOUBLE_EQ(x, 25000);
  EXPECT_DOUBLE_EQ(y, 35000);
  EXPECT_DOUBLE_EQ(r, 5000);
}

TEST_F(RainFileTest, CentreWithoutRadiusIsTheMiddleOfThePage) {
  const int radius = AddRadius(20000, 60000, 30000, 70000);
  surface_.DeleteObject(radius);
  double x = 0, y = 0, r = 0;
  LocateRainCentre(surface_, state_.calibration, kINameRayon, x, y, r);
  EXPECT_DOUBLE_EQ(x, 50000);
  EXPECT_DOUBLE_EQ(y, 50000);
  EXPECT_DOUBLE_EQ(r, 9999999.0);
}

// --- External rains ---------------------------------------------------------

class ExternalRainTest : public RainFileTest {
 protected:
  std::string Source(const std::string& bytes, const std::string& name = "pluies.txt") {
    const std::string path = folder_.File(name);
    WriteBytes(path, bytes);
    return path;
  }
  void ExternalRain(int kind, const std::string& id, const std::string& file) {
    AddScenario("Scn-1", id, kind);
    AddRecord(kind, id);
    surface_.SetObjTag("FileSpec", file);
  }
};

constexpr const char* kGaugeFile =
    "PPHY 'Autre'\r\n"
    "    2\r\n"
    "      0.00     10.00\r\n"
    "     30.00      0.00\r\n"
    "PR 'Ev2'\r\n"
    "    1    0\r\n"
    "   'Plu_1'\r\n"
    "    10050.    79950.\r\n"
    "    2\r\n"
    "      0.00      0.00\r\n"
    "     10.00      2.50\r\n"
    "pr 'ev1'\r\n"
    "    1    0\r\n"
    "   'Plu_1'\r\n"
    "    10050.    79950.\r\n"
    "    2\r\n"
    "      0.00      0.00\r\n"
    "     10.00      2.50\r\n";

TEST_F(ExternalRainTest, LastBlockOfTheFileLosesItsLastLine) {
  ExternalRain(127, "Ev1", Source(kGaugeFile));
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), Expected("external_gauges.PLU"));
}

TEST_F(ExternalRainTest, HyetographBlockEndsAtTheNextHead) {
  ExternalRain(128, "H1",
               Source("PR 'H1'\r\n 1 0\r\n"
                      "  PPHY 'H1'  \r\n"
                      "    25000.    35000.    5000.0\r\n"
                      "  2\r\n"
                      "   0.00     10.00\r\n"
                      "  30.00      0.00\r\n"
                      "ppdt 'x'\r\n"
                      "1\r\n2\r\n"));
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), Expected("external_hyetograph.PLU"));
}

TEST_F(ExternalRainTest, FileWithoutTheBlockIsCopiedWhole) {
  const std::string bytes = "PR 'Other'\r\n1\r\nPPHY 'Ev1'\r\n2\r\n3\r\n";
  ExternalRain(127, "Ev1", Source(bytes));
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), bytes);
}

TEST_F(ExternalRainTest, SourceNamedAsTheDestinationStaysEmpty) {
  const std::string elsewhere = folder_.Path() + "/autre";
  ASSERT_TRUE(MakeFolder(elsewhere));
  const std::string source = elsewhere + "/SCN-1_RESEAU.plu";
  WriteBytes(source, "PR 'Other'\r\n1\r\n2\r\n");
  ExternalRain(127, "Ev1", source);
  EXPECT_EQ(Generate(), 1);
  EXPECT_TRUE(FileExist(Plu()));
  EXPECT_EQ(PluBytes(), "");
}

TEST_F(ExternalRainTest, SourceThatIsTheDestinationItself) {
  WriteBytes(Plu(), "PR 'Ev1'\r\n1\r\n2\r\n");
  ExternalRain(127, "Ev1", Plu());
  EXPECT_EQ(Generate(), 1);
  EXPECT_EQ(PluBytes(), "");
}

TEST_F(ExternalRainTest, MissingSourceIsARunTimeError) {
  ExternalRain(127, "Ev1", folder_.File("absent.txt"));
  EXPECT_THROW(Generate(), AppError);
  EXPECT_EQ(PluBytes(), "");
}

TEST_F(ExternalRainTest, NameIsMatchedInAnyCaseButNeverWithABlank) {
  const std::string source = Source("PR 'My rain'\r\n1\r\n2\r\nPR 'EV1'\r\n3\r\n4\r\n");
  const std::string out = folder_.File("out.PLU");
  EXPECT_FALSE(ExtractRainBlock(ui_, "PR", source, out, "My rain"));
  EXPECT_FALSE(FileExist(out));
  EXPECT_TRUE(ExtractRainBlock(ui_, "pr", source, out, "ev1"));
  EXPECT_EQ(ReadBytes(out), "PR 'EV1'\r\n3\r\n");
}

TEST_F(ExternalRainTest, KeywordMustBeTheWholeFirstField) {
  const std::string source = Source("PRAD 'Ev1'\r\n1\r\n2\r\n");
  EXPECT_FALSE(ExtractRainBlock(ui_, "PR", source, folder_.File("out.PLU"), "Ev1"));
}

TEST_F(ExternalRainTest, LaterBlockOfTheSameNameReplacesTheFirst) {
  const std::string source = Source("PR 'Ev1'\r\n1\r\n2\r\nPPHY 'h'\r\n5\r\nPR 'Ev1'\r\n6\r\n");
  const std::string out = folder_.File("out.PLU");
  EXPECT_TRUE(ExtractRainBlock(ui_, "PR", source, out, "Ev1"));
  EXPECT_EQ(ReadBytes(out), "PR 'Ev1'\r\n");
}

TEST_F(ExternalRainTest, LaterBlockOfTheSameNameLeavesItsHeadLineAlone) {
  const std::string source =
      Source("PR 'Ev1'\r\n1\r\n2\r\nPPHY 'h'\r\n5\r\nPR 'Ev1'\r\n6\r\n7\r\n8\r\nPR 'x'\r\n");
  const std::string out = folder_.File("out.PLU");
  EXPECT_TRUE(ExtractRainBlock(ui_, "PR", source, out, "Ev1"));
  EXPECT_EQ(ReadBytes(out), "PR 'Ev1'\r\n");
}

TEST_F(ExternalRainTest, HeadThatEndsAFoundBlockIsNeverTested) {
  const std::string source = Source("PR 'Ev1'\r\n1\r\nPR 'Ev1'\r\n2\r\n3\r\n");
  const std::string out = folder_.File("out.PLU");
  EXPECT_TRUE(ExtractRainBlock(ui_, "PR", source, out, "Ev1"));
  EXPECT_EQ(ReadBytes(out), "PR 'Ev1'\r\n1\r\n");
}

TEST_F(ExternalRainTest, HeadOnTheLastLineIsWrittenAlone) {
  const std::string source = Source("x\r\nPR 'Ev1'");
  const std::string out = folder_.File("out.PLU");
  EXPECT_TRUE(ExtractRainBlock(ui_, "PR", source, out, "Ev1"));
  EXPECT_EQ(ReadBytes(out), "PR 'Ev1'\r\n");
}

TEST_F(ExternalRainTest, UnclosedDoubleQuoteIsNoMatch) {
  const std::string source = Source("PR \"Ev1\r\n1\r\n2\r\n");
  EXPECT_FALSE(ExtractRainBlock(ui_, "PR", source, folder_.File("out.PLU"), "Ev1"));
  EXPECT_FALSE(ui_.Empty());
}

}  // namespace
}  // namespace pluvane
