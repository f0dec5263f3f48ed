#include "results/capacity_map.h"

#include <gtest/gtest.h>

#include "drawing/surface_helpers.h"
#include "drawing/surface_object.h"
#include "foundation/expect_message.h"
#include "foundation/grid.h"
#include "foundation/ini_profile.h"
#include "foundation/paths.h"
#include "foundation/test_files.h"
#include "foundation/text.h"
#include "results/frm_co_echelle.h"

namespace pluvane {
namespace {

constexpr std::int32_t kGreen = 0x00FF00;
constexpr std::int32_t kYellow = 0x00FFFF;
constexpr std::int32_t kOrange = 0x0080FF;
constexpr std::int32_t kRedish = 0x0000C0;

class Capacity : public ::testing::Test {
 protected:
  void SetUp() override {
    ini = folder.File("pluvane.ini");
    Scale({{kGreen, 0}, {kYellow, 50}, {kOrange, 80}, {kRedish, 100}});
    Node(1000, 1000);
    Node(3000, 1000);
    Node(5000, 1000);
    c1 = Collector("C1", "5", 11, 12);
    c2 = Collector("C2", "5", 12, 13);
    c7 = Collector("CAN7", "7", 11, 13);
    Param(0);
  }
  void Scale(const std::vector<CapacityClass>& classes) { WriteCapacityScale(classes, ini); }
  int Node(int x, int y) {
    const int n = network.AddObject(kKindEllipse, x, y, x + 100, y + 100);
    network.SetCurrentObject(n);
    network.SetObjTag("iGroup", "1");
    network.SetObjTag("iName", "99");
    return n;
  }
  int Collector(const std::string& label, const std::string& i_name, int a, int b) {
    const int link = network.AddLink(a, b);
    network.SetCurrentObject(link);
    network.SetObjTag("iGroup", "2");
    network.SetObjTag("iName", i_name);
    network.SetObjTag("libell", label);
    network.SetLineColor(0x123456);
    return link;
  }
  void Param(int mode) {
    int param = network.FindById("ParamReseau");
    if (param == 0) {
      param = network.AddObject(kKindRectangle, 0, 0, 10, 10);
      network.SetCurrentObject(param);
      network.SetObjTag("Id", "ParamReseau");
      network.SetObjTag("iGroup", "-1");
    }
    network.SetCurrentObject(param);
    network.SetObjTag("CalcMode", mode);
    network.SetObjTag("CalcDuree", 180);
    network.SetObjTag("CalcDt", 3);
  }
  void Sor(const std::string& text) { WriteBytes(folder.File("S_N.Sor"), text); }
  CapacityMapInput Input() {
    return {&network, folder.File("S_N.Sor"), folder.Path(), ini};
  }
  void Open() { map.Load(Input()); }
  std::string Tag(int object, const char* name) { return TagOfObject(map.map(), object, name); }
  std::int32_t Colour(int object) { return map.map().ObjectShape(object)->line_color; }

  TempFolder folder;
  ScriptedUi ui;
  std::string ini;
  Surface network;
  CapacityMap map{ui};
  int c1 = 0, c2 = 0, c7 = 0;
};

const char* kDiagnostic =
    "   Résultats de la simulation\r\n"
    "   Mode de calcul : Diagnostic\r\n"
    "\"C1             0.010   0.500   120.0   1.000   0.480   118.0   2.5\r\n"
    "\"C2             0.000   1.000   200.0   1.000   0.990   190.0   0.0\r\n"
    "\"CAN7      0.000   0.200   10.0    0.400   0.190   9.0     7.0\r\n";

TEST(CapacityColour, BoundsFallInTheirClassAndOutsideTakeTheLast) {
  const std::vector<CapacityClass> classes{{1, 10}, {2, 50}, {3, 80}};
  EXPECT_EQ(CoColour(classes, 10), 1);     // on the lower bound
  EXPECT_EQ(CoColour(classes, 49.99), 1);
  EXPECT_EQ(CoColour(classes, 50), 2);
  EXPECT_EQ(CoColour(classes, 80), 3);     // at the last bound
  EXPECT_EQ(CoColour(classes, 500), 3);    // above it
  EXPECT_EQ(CoColour(classes, 5), 3);      // below the first bound
  EXPECT_EQ(CoColour({{7, 0}}, 42), 7);
  EXPECT_EQ(CoColour({}, 42), 0);
}

TEST(CapacityColour, OverlappingClassesTakeTheLast) {
  EXPECT_EQ(CoColour({{1, 0}, {2, 50}, {3, 20}, {4, 90}}, 30), 3);
}

TEST(CapacitySor, ModeLine) {
  EXPECT_TRUE(SorIsDiagnostic({"rien", "\"C1  1 2 3"}));
  EXPECT_TRUE(SorIsDiagnostic({"mode de calcul :  diagnostic  "}));
  EXPECT_FALSE(SorIsDiagnostic({"MODE DE CALCUL : Dimensionnement"}));
  EXPECT_FALSE(SorIsDiagnostic({"Mode de calcul :"}));
  EXPECT_TRUE(SorIsDiagnostic({"Mode de calcul diagnostic ou pas"}));  // no colon
  // Only the first mode line counts.
  EXPECT_FALSE(SorIsDiagnostic({"Mode de calcul: DIM", "Mode de calcul: DIAGNOSTIC"}));
}

TEST(CapacitySor, TableLinesLoseTheirQuote) {
  EXPECT_EQ(SorTableLines({"x", "\"  C1   1 2  ", " \"C2 3", "\""}),
            (std::vector<std::string>{"C1   1 2", ""}));
}

TEST_F(Capacity, DiagnosticMapStoresEveryWordAndColoursByRate) {
  Sor(kDiagnostic);
  const std::string before = network.CopySelection(1);
  Open();
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(map.Caption(), "Synthèse cartographique - Mode diagnostic");
  EXPECT_EQ(map.CalcDuree(), 180);
  EXPECT_EQ(map.CalcDt(), 3);
  EXPECT_EQ(Tag(c1, "Qbase"), "0.01");
  EXPECT_EQ(Tag(c1, "QmaxAm"), "0.5");
  EXPECT_EQ(Tag(c1, "VolAm"), "120");
  EXPECT_EQ(Tag(c1, "Qcapable"), "1");
  EXPECT_EQ(Tag(c1, "QmaxAv"), "0.48");
  EXPECT_EQ(Tag(c1, "VolAv"), "118");
  EXPECT_EQ(Tag(c1, "VolPerte"), "2.5");
  EXPECT_EQ(Tag(c1, "Taux"), "   50.00");
  EXPECT_EQ(Colour(c1), kYellow);
  EXPECT_EQ(Tag(c2, "Taux"), "  100.00");
  EXPECT_EQ(Colour(c2), kRedish);
  // An element of kind 7 keeps no lost volume.
  EXPECT_EQ(Tag(c7, "VolAv"), "9");
  EXPECT_EQ(Tag(c7, "VolPerte"), "");
  EXPECT_EQ(Colour(c7), kYellow);
  // The network on screen is left as it was; the temporary file is gone.
  EXPECT_EQ(network.CopySelection(1), before);
  EXPECT_EQ(TagOfObject(network, c1, "Taux"), "");
  EXPECT_FALSE(FileExist(folder.File("ficSor.tmp")));
  EXPECT_EQ(ui.Progress().back(), -1);
  EXPECT_EQ(ui.Progress()[ui.Progress().size() - 2], 100);
}

TEST_F(Capacity, EveryCollectorStartsGrey) {
  Sor("Mode de calcul : Diagnostic\r\n");
  Open();
  EXPECT_EQ(Colour(c1), kCapacityGrey);
  EXPECT_EQ(Colour(c7), kCapacityGrey);
  EXPECT_EQ(Tag(c1, "Taux"), "");
  EXPECT_TRUE(ui.Empty());
}

TEST_F(Capacity, DiagnosticToolTipGivesEveryLabel) {
  Sor(kDiagnostic);
  Open();
  EXPECT_EQ(map.ToolTip(c1),
            "Désignation = C1\r\n"
            "Taux de remplissage (%) = 50.00\r\n"
            "Débit de base (m3/s) = 0.01\r\n"
            "Débit maximum amont (m3/s) = 0.5\r\n"
            "Vol. de ruissellement amont (m3) = 120\r\n"
            "Débit capable (m3/s) = 1\r\n"
            "Débit maximum aval (m3/s) = 0.48\r\n"
            "Vol. de ruissellement aval (m3) = 118\r\n"
            "Vol de perte/chaussée (m3) = 2.5");
  EXPECT_EQ(map.ToolTip(c7).find("Vol de perte"), std::string::npos);
  EXPECT_EQ(map.ToolTip(11), "");  // a node
  EXPECT_EQ(map.ToolTip(9999), "");
}

TEST_F(Capacity, NegativeRateReadsAsZero) {
  Sor("Mode de calcul : diagnostic\r\n\"C1        0  -0.300  1  1.0  0  0  0\r\n");
  Open();
  EXPECT_EQ(Tag(c1, "Taux"), "    0.00");
  EXPECT_EQ(Colour(c1), kGreen);
}

TEST_F(Capacity, FiveWordsLeaveTheDownstreamVolumeAndLossEmpty) {
  Sor("Mode de calcul : Diagnostic\r\n\"C1             0.0  0.85  10  1.0  0.8\r\n");
  Open();
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(Tag(c1, "QmaxAv"), "0.8");
  EXPECT_EQ(Tag(c1, "VolAv"), "");
  EXPECT_EQ(Tag(c1, "VolPerte"), "");
  EXPECT_EQ(Colour(c1), kOrange);
  const std::string tip = map.ToolTip(c1);
  EXPECT_NE(tip.find("Vol. de ruissellement aval (m3) = \r\n"), std::string::npos);
  EXPECT_EQ(tip.substr(tip.size() - 30), "Vol de perte/chaussée (m3) = ");
}

TEST_F(Capacity, ZeroCapableFlowEndsInTheErrorReport) {
  Sor("Mode de calcul : Diagnostic\r\n\"C1        0 0.5 1 0 0.4\r\n\"C2        0 0.5 1 1 0.4\r\n");
  Open();
  ExpectLastMessage(ui, "Division par zéro\rfrmMapCapacite", "Pluvane (erreur n°11, L0)",
                    MessageIcon::kExclamation);
  EXPECT_EQ(Tag(c2, "Taux"), "");  // reading stopped there
  EXPECT_EQ(Colour(c2), kCapacityGrey);
  EXPECT_FALSE(FileExist(folder.File("ficSor.tmp")));
}

TEST_F(Capacity, NoModeLineReadsAsDiagnostic) {
  Sor("\"C1        0 0.5 1 1 0.4\r\n");
  Open();
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(Colour(c1), kYellow);
}

TEST_F(Capacity, OneClassLegendHasOneBoxAndColoursEverything) {
  Scale({{kOrange, 30}});
  Sor(kDiagnostic);
  Open();
  EXPECT_TRUE(ui.Empty());
  Surface& legend = map.legend();
  std::vector<int> boxes, texts;
  for (int n = legend.FirstObject(); n != 0; n = legend.NextObject())
    (legend.ObjectKind() == kKindRectangle ? boxes : texts).push_back(n);
  ASSERT_EQ(boxes.size(), 1u);
  ASSERT_EQ(texts.size(), 1u);
  legend.SetCurrentObject(boxes[0]);
  EXPECT_EQ(legend.FillColor(), kOrange);
  EXPECT_EQ(legend.ObjLeft(), 0);
  EXPECT_EQ(legend.ObjTop(), 200);
  EXPECT_EQ(legend.ObjRight(), 400);
  legend.SetCurrentObject(texts[0]);
  EXPECT_EQ(legend.TextString(), "30%");
  EXPECT_EQ(legend.TextFontName(), "Arial");
  EXPECT_EQ(legend.TextSize(), -150);
  EXPECT_EQ(Colour(c1), kOrange);
  EXPECT_EQ(Colour(c2), kOrange);
  EXPECT_EQ(Colour(c7), kOrange);
}

TEST_F(Capacity, LegendStacksClassesUpwards) {
  Sor(kDiagnostic);
  Open();
  Surface& legend = map.legend();
  std::vector<std::pair<int, std::string>> texts;
  for (int n = legend.FirstObject(); n != 0; n = legend.NextObject())
    if (legend.ObjectKind() == kKindText) texts.emplace_back(legend.ObjTop(), legend.TextString());
  ASSERT_EQ(texts.size(), 4u);
  EXPECT_EQ(texts[0].second, "0% à 50%");
  EXPECT_EQ(texts[3].second, "100%");
  EXPECT_GT(texts[0].first, texts[3].first);  // class 1 lowest
}

TEST_F(Capacity, ModeDisagreementLeavesTheMapUncoloured) {
  Param(1);
  Sor(kDiagnostic);
  Open();
  EXPECT_EQ(map.Caption(), "Synthèse cartographique - Mode dimensionnement");
  ExpectLastMessage(ui,
                    "Attentention le mode de calcul actuel ne correspond pas aux\r\nrésultats de "
                    "calcul contenus dans le fichier " +
                        folder.File("S_N.Sor") +
                        "\r\n\r\nQuitter la synthèse cartographique puis Relancer l'exécution svp...",
                    "Cartographie de la capacité de remplissage", MessageIcon::kNone);
  EXPECT_EQ(Colour(c1), kCapacityGrey);
  EXPECT_EQ(Tag(c1, "Taux"), "");
}

TEST_F(Capacity, MissingCollectorStopsReadingThere) {
  Sor("Mode de calcul : Diagnostic\r\n\"C1        0 0.5 1 1 0.4\r\n\"ABSENT  0 1 1 1 1\r\n"
      "\"C2        0 0.5 1 1 0.4\r\n");
  const std::string before = network.CopySelection(1);
  Open();
  ExpectLastMessage(ui,
                    "Il y a incohérence de paramétrage du réseau\r\nQuitter puis Relancer "
                    "l'exécution de simulation svp...",
                    "Cartographie de la capacité de remplissage", MessageIcon::kNone);
  EXPECT_EQ(Colour(c1), kYellow);
  EXPECT_EQ(Colour(c2), kCapacityGrey);
  EXPECT_EQ(network.CopySelection(1), before);
}

TEST_F(Capacity, DimensioningMarksTheEnlargedCollectors) {
  Param(1);
  Sor("MODE DE CALCUL : DIMENSIONNEMENT\r\n"
      "\"C1             1.500   300.0   1.000   0.800   OUI   1.000\r\n"
      "\"C2             0.500   100.0   1.000   0.800   NON   0.800\r\n"
      "\"CAN7      1.500   300.0   1.000   0.800   OUI   1.000\r\n");
  Open();
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(Colour(c1), kCapacityRed);
  EXPECT_EQ(Colour(c2), kButtonFaceColour);
  EXPECT_EQ(Tag(c1, "Extens"), "OUI");
  EXPECT_EQ(Tag(c1, "DiamEq"), "0.8");
  EXPECT_EQ(Tag(c1, "NewDiam"), "1");
  EXPECT_EQ(Tag(c1, "Taux"), "  150.00");
  EXPECT_EQ(map.ToolTip(c1),
            "Désignation = C1\r\n"
            "Taux de saturation (%) = 150.00\r\n"
            "Débit maximum amont (m3/s) = 1.5\r\n"
            "Vol. de ruissellement amont (m3) = 300\r\n"
            "Débit capable de référence (m3/s) = 1\r\n"
            "Diamètre du collecteur circulaire équivalent (m) = 0.8\r\n"
            "Extension de la taille du collecteur = OUI\r\n"
            "Nouveau diamètre du coll. circulaire équivalent (m) = 1");
  EXPECT_EQ(map.ToolTip(c2).find("Nouveau"), std::string::npos);
  EXPECT_EQ(map.ToolTip(c7).find("Nouveau"), std::string::npos);
  EXPECT_EQ(Colour(c7), kCapacityRed);
}

TEST_F(Capacity, InconsistentScaleLeavesTheLegendOut) {
  IniWrite("Co Echelle", "Nombre de Co", "6", ini);
  Sor(kDiagnostic);
  Open();
  ExpectLastMessage(ui,
                    "Incoherence de 'Nombre de Co', revoir dans la section [Co Echelle] du fichier " +
                        ini,
                    "", MessageIcon::kNone);
  EXPECT_EQ(map.legend().ObjectCount(kAllObjects), 0);
  EXPECT_EQ(map.classes().size(), 4u);  // cut to what was read
  EXPECT_EQ(Colour(c1), kYellow);
}

TEST_F(Capacity, EmptyScaleIsTrappedWhileDrawingTheLegend) {
  IniWrite("Co Echelle", "Nombre de Co", "0", ini);
  for (int i = 1; i <= 4; ++i) IniWrite("Co Echelle", "Co" + std::to_string(i), "", ini);
  Sor(kDiagnostic);
  Open();
  ASSERT_FALSE(ui.Empty());
  EXPECT_EQ(ui.Messages()[0].text, "DrawCoEch: nb co = 0");
  EXPECT_EQ(map.legend().ObjectCount(kAllObjects), 0);
}

TEST_F(Capacity, BadReportsNeverTouchTheNetwork) {
  const std::string before = network.CopySelection(1);
  const char* reports[] = {
      "",                                                      // nothing at all
      "Mode de calcul : Diagnostic\r\nno table here\r\n",      // no table
      "\"C1\r\n",                                              // label only
      "\"C1        0 0.5\r\n",                                      // truncated
      "\"C1        abc def ghi jkl mno\r\n",                        // not numbers
      "\"C1        0 1e400 1 1 0.4 x\r\n",                          // overflow
      "\"\r\n",                                                // empty line
      "\"C1        0 \"0.5 1 1 0.4\r\n",                            // open quote
      "\"C2        0 0.5 1 1 0.4 1 2 3 4 5 6 7 8 9\r\n",            // extra words
  };
  for (const char* report : reports) {
    Sor(report);
    CapacityMap other(ui);
    other.Load(Input());
    EXPECT_EQ(network.CopySelection(1), before) << report;
    EXPECT_FALSE(FileExist(folder.File("ficSor.tmp")));
  }
  CapacityMap missing(ui);
  CapacityMapInput input = Input();
  input.sor_file = folder.File("none.Sor");
  missing.Load(input);
  EXPECT_EQ(network.CopySelection(1), before);
}

TEST_F(Capacity, NonNumericWordsReadAsZero) {
  Sor("\"C1        x 0.5abc y 2 z\r\n");
  Open();
  EXPECT_EQ(Tag(c1, "Qbase"), "0");
  EXPECT_EQ(Tag(c1, "QmaxAm"), "0.5");
  EXPECT_EQ(Tag(c1, "Taux"), "   25.00");
}

TEST_F(Capacity, GroupingNeedsASelection) {
  Sor(kDiagnostic);
  Open();
  map.Group();
  ExpectLastMessage(ui, "Au moins 2 elm doient être sélectionnés pour se regrouper en un", "",
                    MessageIcon::kNone);
  map.Ungroup();
  ExpectLastMessage(ui, "Un elm doit être sélectionné pour être décomposé en plusieurs elm", "",
                    MessageIcon::kNone);
  ui.Clear();
  map.map().SelectAll();
  map.Group();
  EXPECT_TRUE(ui.Empty());
  int groups = 0;
  for (int n = map.map().FirstObject(); n != 0; n = map.map().NextObject())
    groups += map.map().ObjectKind() == kKindGroup;
  EXPECT_EQ(groups, 1);
}

TEST_F(Capacity, ScaleEditorRoundTrip) {
  Sor(kDiagnostic);
  Open();
  FrmCoEchelle form(ui, map.classes(), ini);
  ASSERT_EQ(form.Spread1.MaxRows(), 4);
  EXPECT_EQ(form.Spread1.BackColour(1, 1), kRedish);  // the highest class on top
  EXPECT_EQ(form.Spread1.Text(2, 1), "100%");
  EXPECT_EQ(form.Spread1.Text(2, 4), "0%");
  ui.Queue(std::to_string(0x112233));
  form.ClickCell(form.Spread1, 1, 3);
  EXPECT_EQ(form.Spread1.BackColour(1, 3), 0x112233);
  form.Spread1.SetText(2, 3, "40%");
  form.Run("cmdOk");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(form.Flag(), "1");
  EXPECT_EQ(IniRead("Co Echelle", "Nombre de Co", 255, ini), "4");
  EXPECT_EQ(IniRead("Co Echelle", "Co1", 255, ini), std::to_string(kGreen) + ",0");
  EXPECT_EQ(IniRead("Co Echelle", "Co2", 255, ini), std::to_string(0x112233) + ",40");
  EXPECT_EQ(IniRead("Co Echelle", "Co4", 255, ini), std::to_string(kRedish) + ",100");
  map.Recolour();
  EXPECT_EQ(Colour(c1), 0x112233);  // 50% now in the second class [40, 80)
}

TEST_F(Capacity, ScaleEditorCancelLeavesTheFile) {
  std::string before;
  ReadTextFile(ini, before);
  FrmCoEchelle form(ui, {{kGreen, 0}, {kRedish, 70}}, ini);
  form.Spread1.SetText(2, 1, "90%");
  form.Run("cmdAnnul");
  EXPECT_EQ(form.Flag(), "0");
  std::string after;
  ReadTextFile(ini, after);
  EXPECT_EQ(after, before);
}

}  // namespace
}  // namespace pluvane
