// The two retention basins (frmRs, frmRsp) and the injected hydrograph
// (frmHy): their rows, their tables of points and the checks of Ok.
#include <gtest/gtest.h>

#include "drawing/surface_helpers.h"
#include "editors/editor_forms.h"
#include "editors/frm_hy.h"
#include "editors/frm_rs.h"
#include "editors/frm_rsp.h"
#include "element_fixture.h"
#include "foundation/expect_message.h"
#include "foundation/grid_clipboard.h"
#include "foundation/paths.h"
#include "simulation/record_lists.h"

namespace pluvane {
namespace {

constexpr int kValue = 2;

class Basins : public ElementEditorTest {
 protected:
  Basins() {
    n1 = Node(1000, 1000);
    n2 = Node(3000, 1000);
    n3 = Node(3000, 3000);
    n4 = Node(1000, 3000);
    out1 = Link("X_CAC", n1, n2);
    out2 = Link("X_CAO", n1, n3);
    Set(out2, {{"libell", "Fosse"}});
    Link("X_CAC", n4, n1);  // reaches the node: not offered
  }
  // Fills the table with rows of cells.
  static void Fill(Grid& g, const std::vector<std::vector<std::string>>& rows) {
    g.SetMaxRows(static_cast<int>(rows.size()));
    for (std::size_t r = 0; r < rows.size(); ++r) {
      for (std::size_t c = 0; c < rows[r].size(); ++c) {
        g.SetText(static_cast<int>(c) + 1, static_cast<int>(r) + 1, rows[r][c]);
      }
    }
  }
  // A record of singles where `unused` ranges hold -999.
  static std::string RecordWithGaps(std::vector<std::pair<int, double>> values,
                                    const std::vector<std::pair<int, int>>& unused) {
    for (const auto& [low, high] : unused) {
      for (int i = low; i <= high; ++i) values.emplace_back(i, -999);
    }
    return Record(values);
  }
  std::vector<std::string> Heads(Grid& g) {
    std::vector<std::string> heads;
    for (int col = 1; col <= g.MaxCols(); ++col) heads.push_back(g.ColHead(col));
    return heads;
  }

  int n1 = 0, n2 = 0, n3 = 0, n4 = 0, out1 = 0, out2 = 0;
};

TEST_F(Basins, TheFormsAreMadeByTheirNamesWithTheirCommands) {
  const std::vector<std::pair<int, std::pair<std::string, std::string>>> forms = {
      {Symbol("X_RS", 0, 0, n1), {"frmRs", "Bassin à Qf et Qs constants"}},
      {Symbol("X_RSP", 0, 0, n2), {"frmRsp", "Bassin à Qf et Qs paramétriques"}},
      {Symbol("X_HY", 0, 0, n3), {"frmHy", "Injection d'Hydrogramme"}}};
  for (const auto& [element, form] : forms) {
    surface.SetCurrentObject(element);
    auto made = MakeEditorForm(form.first, context);
    ASSERT_NE(made, nullptr) << form.first;
    EXPECT_EQ(made->Caption(), form.second);
    EXPECT_EQ(made->Grids().size(), 2u);
    std::vector<std::string> commands;
    for (const FormCommand& command : made->Commands()) {
      commands.push_back(command.name + " " + command.caption);
    }
    EXPECT_EQ(commands, (std::vector<std::string>{
                            "cmdOk &Ok", "cmdAnnul &Annuler", "cmdAddLine &Ajouter une ligne",
                            "cmdInsLine &Insérer une ligne", "cmdDelLine &Supprimer une ligne",
                            "cmdVisu &Visu"}));
  }
}

TEST_F(Basins, ABasinOffersTheLinksLeavingItsNode) {
  const int rs = Symbol("X_RS", 0, 0, n1);
  Set(rs, {{"IdAval", "Fosse"}});
  auto form = Open<FrmRs>(rs);
  Grid& g = form->grid();
  ASSERT_EQ(g.MaxRows(), 5);
  EXPECT_EQ(g.Text(1, 1), "Identificateur (16 car maxi)=");
  EXPECT_EQ(g.Text(1, 2), "Id. de la restitution aval=");
  EXPECT_EQ(g.Text(1, 3), "Id. du surverse=");
  EXPECT_EQ(g.Text(1, 4), "Débit de fuite (m3/s)=");
  EXPECT_EQ(g.Text(1, 5), "Z initiale dans le bassin entre Z1 et Z10 (ngf)=");
  EXPECT_EQ(g.Type(kValue, 4), CellType::Float(0, 99999.999, 3));
  EXPECT_EQ(g.Type(kValue, 5), CellType::Float(-99999999.99, 99999999.99, 2));
  EXPECT_EQ(g.Type(kValue, 2), CellType::List("Cac_1\tFosse"));
  EXPECT_EQ(g.Type(kValue, 3), CellType::List("Cac_1\tFosse"));
  EXPECT_EQ(g.ListIndex(kValue, 2), 1);
  EXPECT_EQ(g.Text(kValue, 3), "");
  EXPECT_EQ(Heads(form->spread2()),
            (std::vector<std::string>{"Z retenue (ngf)", "Surface au miroir (m2)"}));
  EXPECT_EQ(form->spread2().Type(1, 0).kind, CellType::kText);
  form->cmdAddLine();
  EXPECT_EQ(form->spread2().Type(1, 1), CellType::Float(-9999999999.99, 9999999999.99, 2));
  EXPECT_EQ(form->spread2().Type(2, 1), CellType::Float(-999999999999.99, 999999999999.99, 2));
}

TEST_F(Basins, ClickingALinkRowHighlightsTheLink) {
  const int rs = Symbol("X_RS", 0, 0, n1);
  Set(rs, {{"IdAval", "Fosse"}});
  auto form = Open<FrmRs>(rs);
  form->ClickCell(form->grid(), kValue, 2);
  EXPECT_EQ(ui.Statuses().back(), "Fosse");
  EXPECT_EQ(SelectedObjects(surface), std::vector<int>{out2});
  EXPECT_EQ(surface.CurrentObject(), rs);
}

TEST_F(Basins, ChoosingTheSameLinkInBothRowsEmptiesTheOther) {
  const int rs = Symbol("X_RSP", 0, 0, n1);
  auto form = Open<FrmRsp>(rs);
  Grid& g = form->grid();
  Choose(*form, g, kValue, 2, 0);
  Choose(*form, g, kValue, 3, 1);
  EXPECT_EQ(g.Text(kValue, 2), "Cac_1");
  EXPECT_EQ(g.Text(kValue, 3), "Fosse");
  Choose(*form, g, kValue, 2, 1);
  EXPECT_EQ(g.Text(kValue, 2), "Fosse");
  EXPECT_EQ(g.Text(kValue, 3), "");
  EXPECT_EQ(SelectedObjects(surface), std::vector<int>{out2});
}

TEST_F(Basins, ElevenStoredPointsWarnOnceAndShowTen) {
  const int rs = Symbol("X_RS", 0, 0, n1);
  TagList points = {{"NbPt", "11"}};
  for (int i = 1; i <= 11; ++i) {
    points.emplace_back("X" + std::to_string(i), std::to_string(100 + i));
    points.emplace_back("Y" + std::to_string(i), std::to_string(10 * i));
  }
  Set(rs, points);
  auto form = Open<FrmRs>(rs);
  ASSERT_EQ(ui.Messages().size(), 1u);
  ExpectLastMessage(ui, "Attention la courbe de remplissage du bassin est limitée à 10 points",
                    "Bassin à Qf et Qs constants", MessageIcon::kInformation);
  Grid& t = form->spread2();
  ASSERT_EQ(t.MaxRows(), 10);
  EXPECT_EQ(t.Text(1, 10), "110");
  EXPECT_EQ(t.Text(2, 10), "100");
  // Ok keeps the ten: the eleventh is lost.
  form->grid().SetText(kValue, 5, "105");
  form->Run("cmdOk");
  ASSERT_TRUE(form->Closed());
  EXPECT_EQ(TagOf(rs, "NbPt"), "10");
  EXPECT_EQ(TagOf(rs, "X11"), "");
  EXPECT_EQ(TagOf(rs, "Y11"), "");
  EXPECT_EQ(ui.Messages().size(), 1u);
}

TEST_F(Basins, AParametricBasinIsLimitedToTenPointsToo) {
  const int rsp = Symbol("X_RSP", 0, 0, n1);
  Set(rsp, {{"NbPt", "12"}, {"X10", "10"}, {"T10", "0.5"}, {"X11", "11"}});
  auto form = Open<FrmRsp>(rsp);
  ASSERT_EQ(ui.Messages().size(), 1u);
  ExpectLastMessage(ui, "Attention la courbe de remplissage du bassin est limitée à 10 points",
                    "Bassin à Qf et Qs paramétriques", MessageIcon::kInformation);
  ASSERT_EQ(form->spread2().MaxRows(), 10);
  EXPECT_EQ(form->spread2().Text(1, 10), "10");
  EXPECT_EQ(form->spread2().Text(4, 10), "0.5");
}

TEST_F(Basins, EqualLevelsPassAndTheInitialLevelMayBeEitherEnd) {
  const int rs = Symbol("X_RS", 0, 0, n1);
  auto form = Open<FrmRs>(rs);
  Fill(form->spread2(), {{"100", "10"}, {"100", "20"}, {"102.5", "40"}});
  form->grid().SetText(kValue, 5, "100");
  form->Run("cmdOk");
  EXPECT_TRUE(form->Closed());
  EXPECT_TRUE(ui.Empty());
  auto again = Open<FrmRs>(rs);
  again->grid().SetText(kValue, 5, "102.5");
  again->Run("cmdOk");
  EXPECT_TRUE(again->Closed());
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(TagOf(rs, "Z0"), "102.5");
}

TEST_F(Basins, OneRowIsRefusedInAllThreeFormsEvenWithTheRightLevel) {
  const int rs = Symbol("X_RS", 0, 0, n1);
  const int rsp = Symbol("X_RSP", 0, 0, n2);
  const int hy = Symbol("X_HY", 0, 0, n3);
  const TagList rs_before = Tags(rs), rsp_before = Tags(rsp), hy_before = Tags(hy);
  auto a = Open<FrmRs>(rs);
  Fill(a->spread2(), {{"100", "10"}});
  a->grid().SetText(kValue, 5, "100");
  a->Run("cmdOk");
  ExpectLastMessage(ui, "Il faut au moins 2 lignes dans une courbe !",
                    "Bassin à Qf et Qs constants", MessageIcon::kInformation);
  EXPECT_FALSE(a->Closed());
  auto b = Open<FrmRsp>(rsp);
  Fill(b->spread2(), {{"100", "10", "0.1", "0"}});
  b->grid().SetText(kValue, 4, "100");
  b->Run("cmdOk");
  ExpectLastMessage(ui, "Il faut au moins 2 lignes dans une courbe !",
                    "Bassin à Qf et Qs paramétriques", MessageIcon::kInformation);
  EXPECT_FALSE(b->Closed());
  auto c = Open<FrmHy>(hy);
  Fill(c->spread2(), {{"0", "1"}});
  c->Run("cmdOk");
  ExpectLastMessage(ui, "Il faut au moins 2 lignes dans une courbe !", "Injection d'Hydrogramme",
                    MessageIcon::kInformation);
  EXPECT_FALSE(c->Closed());
  EXPECT_EQ(Tags(rs), rs_before);
  EXPECT_EQ(Tags(rsp), rsp_before);
  EXPECT_EQ(Tags(hy), hy_before);
}

TEST_F(Basins, FallingLevelsAreRefusedWithTheRowBeforeTheDrop) {
  const int rs = Symbol("X_RS", 0, 0, n1);
  const TagList before = Tags(rs);
  auto form = Open<FrmRs>(rs);
  form->grid().SetText(kValue, 1, "Bassin 1");
  Fill(form->spread2(), {{"100", "10"}, {"101", "20"}, {"100.5", "30"}});
  form->spread2().SetActiveCell(2, 1);
  form->Run("cmdOk");
  ExpectLastMessage(ui,
                    "Les cotes doivent être rentrées dans l'ordre croissant des valeurs !\r\n"
                    " revoir ligne 2",
                    "Bassin à Qf et Qs constants", MessageIcon::kInformation);
  EXPECT_EQ(form->spread2().ActiveCol(), 1);
  EXPECT_EQ(form->spread2().ActiveRow(), 2);
  EXPECT_EQ(Tags(rs), before);
}

TEST_F(Basins, AnInitialLevelOutsideTheCurveIsRefusedWithItsLimits) {
  const int rs = Symbol("X_RS", 0, 0, n1);
  const TagList before = Tags(rs);
  auto form = Open<FrmRs>(rs);
  Fill(form->spread2(), {{"100", "10"}, {"101", "20"}, {"102.5", "30"}});
  form->grid().SetText(kValue, 5, "99.99");
  form->Run("cmdOk");
  ExpectLastMessage(ui,
                    "La cote retenue initiale doit être rentrée entre Z1 et Z3\r\n"
                    " càd (    100.00 et    102.50).",
                    "Bassin à Qf et Qs constants", MessageIcon::kInformation);
  EXPECT_EQ(form->grid().ActiveRow(), 5);
  EXPECT_EQ(form->grid().ActiveCol(), kValue);
  EXPECT_EQ(Tags(rs), before);

  const int rsp = Symbol("X_RSP", 0, 0, n2);
  auto param = Open<FrmRsp>(rsp);
  Fill(param->spread2(), {{"100", "10", "0", "0"}, {"102.5", "30", "1", "0"}});
  param->grid().SetText(kValue, 4, "103");
  param->Run("cmdOk");
  ExpectLastMessage(ui,
                    "La cote retenue initiale doit être rentrée\r\n"
                    "entre Z1 et Z2 càd (100 et 102.5).",
                    "Bassin à Qf et Qs paramétriques", MessageIcon::kInformation);
  EXPECT_EQ(param->grid().ActiveRow(), 4);
  EXPECT_FALSE(param->Closed());
}

TEST_F(Basins, ALabelTakenByAnotherBasinIsRefusedAfterTheTableChecks) {
  const int first = Symbol("X_RSP", 0, 0, n2);
  Set(first, {{"libell", "Etang"}});
  const int rsp = Symbol("X_RSP", 0, 0, n1);
  const TagList before = Tags(rsp);
  auto form = Open<FrmRsp>(rsp);
  form->grid().SetText(kValue, 1, "ETANG");
  Fill(form->spread2(), {{"1", "10", "0", "0"}, {"2", "30", "1", "0"}});
  form->grid().SetText(kValue, 4, "1.5");
  form->Run("cmdOk");
  ExpectLastMessage(ui, "ETANG existe déjà.", "Erreur de saisie", MessageIcon::kNone);
  EXPECT_EQ(form->grid().Text(kValue, 1), "Rsp_2");
  EXPECT_EQ(form->grid().ActiveRow(), 1);
  EXPECT_FALSE(form->Closed());
  EXPECT_EQ(Tags(rsp), before);
}

TEST_F(Basins, RowsAreAddedInsertedUpToTheLimitAndDeleted) {
  auto form = Open<FrmRs>(Symbol("X_RS", 0, 0, n1));
  Grid& t = form->spread2();
  EXPECT_EQ(t.MaxRows(), 0);
  // Insert needs a row to stand before.
  form->Run("cmdInsLine");
  EXPECT_EQ(t.MaxRows(), 0);
  for (int i = 1; i <= 10; ++i) form->Run("cmdAddLine");
  EXPECT_EQ(t.MaxRows(), 10);
  EXPECT_EQ(t.ActiveRow(), 10);
  t.SetText(1, 4, "quatre");
  t.SetActiveCell(2, 3);
  form->Run("cmdInsLine");
  EXPECT_EQ(t.MaxRows(), 10);
  // Add has no limit.
  form->Run("cmdAddLine");
  EXPECT_EQ(t.MaxRows(), 11);
  t.SetActiveCell(2, 3);
  form->Run("cmdDelLine");
  EXPECT_EQ(t.MaxRows(), 10);
  EXPECT_EQ(t.Text(1, 3), "quatre");
  EXPECT_EQ(t.ActiveRow(), 3);
  EXPECT_EQ(t.ActiveCol(), 1);
  form->Run("cmdDelLine");
  form->Run("cmdDelLine");
  t.SetActiveCell(2, 8);
  form->Run("cmdInsLine");
  EXPECT_EQ(t.MaxRows(), 9);
  EXPECT_EQ(t.ActiveRow(), 8);
  EXPECT_EQ(t.Text(1, 8), "");
}

TEST_F(Basins, OkClearsTheFormerPointsAndCountsAnEmptyLastRow) {
  const int rs = Symbol("X_RS", 0, 0, n1);
  Set(rs, {{"NbPt", "4"},
           {"X1", "1"},
           {"Y1", "1"},
           {"X2", "2"},
           {"Y2", "2"},
           {"X3", "3"},
           {"Y3", "3"},
           {"X4", "4"},
           {"Y4", "4"}});
  auto form = Open<FrmRs>(rs);
  Grid& t = form->spread2();
  ASSERT_EQ(t.MaxRows(), 4);
  form->grid().SetText(kValue, 5, "1");
  t.SetActiveCell(1, 4);
  form->Run("cmdDelLine");
  form->Run("cmdDelLine");
  form->Run("cmdAddLine");
  // An empty last row is a point, at 0: the levels fall.
  form->Run("cmdOk");
  EXPECT_EQ(ui.Last().text,
            "Les cotes doivent être rentrées dans l'ordre croissant des valeurs !\r\n"
            " revoir ligne 2");
  t.SetText(1, 3, "5");
  t.SetText(2, 3, "9");
  form->Run("cmdOk");
  ASSERT_TRUE(form->Closed());
  EXPECT_EQ(TagOf(rs, "NbPt"), "3");
  EXPECT_EQ(TagOf(rs, "X3"), "5");
  EXPECT_EQ(TagOf(rs, "Y3"), "9");
  EXPECT_EQ(TagOf(rs, "X4"), "");
  EXPECT_EQ(TagOf(rs, "Y4"), "");
}

TEST_F(Basins, TheEditedConstantBasinReachesItsLinkRecord) {
  const int rs = Symbol("X_RS", 0, 0, n1);
  auto form = Open<FrmRs>(rs);
  Grid& g = form->grid();
  g.SetText(kValue, 1, "Bassin Nord");
  Choose(*form, g, kValue, 2, 0);
  Choose(*form, g, kValue, 3, 1);
  g.SetText(kValue, 4, "0.3");
  g.SetText(kValue, 5, "101.5");
  Fill(form->spread2(), {{"100", "50"}, {"101", "80"}, {"103", "200"}});
  form->Run("cmdOk");
  ASSERT_TRUE(form->Closed());
  EXPECT_EQ(TagOf(rs, "IdAval"), "Cac_1");
  EXPECT_EQ(TagOf(rs, "IdSurv"), "Fosse");
  Generate();
  // Ranks: the three collectors, then the basin, which sends to ranks 1 and 2.
  const std::string li1 = ReadBytes(ModelFile(".LI1"));
  EXPECT_NE(li1.find("    4         Bassin Nord    3   10         1         0         1"
                     "         2         0         0\r\n"),
            std::string::npos)
      << li1;
  EXPECT_EQ(Li2Record(4),
            RecordWithGaps(
                {{1, 0.3}, {2, 101.5}, {3, 100}, {4, 101}, {5, 103}, {13, 50}, {14, 80}, {15, 200}},
                {{6, 12}, {16, 22}}));
}

TEST_F(Basins, TheEditedParametricBasinReachesItsLinkRecord) {
  const int rsp = Symbol("X_RSP", 0, 0, n1);
  auto form = Open<FrmRsp>(rsp);
  ASSERT_EQ(form->grid().MaxRows(), 4);
  EXPECT_EQ(form->grid().Text(1, 2), "Id. de la restitution aval (16 car maxi)=");
  EXPECT_EQ(form->grid().Text(1, 3), "Id. du surverse (16 car maxi)=");
  EXPECT_EQ(form->grid().Text(1, 4), "Z initiale dans le bassin entre Z1 et Z10 (ngf)=");
  EXPECT_EQ(Heads(form->spread2()),
            (std::vector<std::string>{"Cote retenue (ngf)", "Surface au miroir (m2)",
                                      "Débit de fuite (m3/s)", "Débit de surverse (m3/s)"}));
  form->cmdAddLine();
  EXPECT_EQ(form->spread2().Type(2, 1), CellType::Float(0, 999999999999.99, 2));
  EXPECT_EQ(form->spread2().Type(4, 1), CellType::Float(-9999999999.999, 9999999999.999, 3));
  Grid& g = form->grid();
  Choose(*form, g, kValue, 2, 1);
  g.SetText(kValue, 4, "12");
  Fill(form->spread2(),
       {{"10", "100", "0.05", "0"}, {"12", "150", "0.1", "0"}, {"14", "400", "0.2", "1.5"}});
  form->Run("cmdOk");
  ASSERT_TRUE(form->Closed());
  EXPECT_EQ(TagOf(rsp, "IdAval"), "Fosse");
  EXPECT_EQ(TagOf(rsp, "IdSurv"), "");
  EXPECT_EQ(TagOf(rsp, "T3"), "1.5");
  Generate();
  EXPECT_EQ(Li2Record(4), RecordWithGaps({{1, 12},
                                          {2, 10},
                                          {3, 12},
                                          {4, 14},
                                          {12, 100},
                                          {13, 150},
                                          {14, 400},
                                          {22, 0.05},
                                          {23, 0.1},
                                          {24, 0.2},
                                          {32, 0},
                                          {33, 0},
                                          {34, 1.5}},
                                         {{5, 11}, {15, 21}, {25, 31}, {35, 41}}));
}

TEST_F(Basins, VisuShowsTheCurveInTheViewer) {
  const int rs = Symbol("X_RS", 0, 0, n1);
  auto form = Open<FrmRs>(rs);
  Fill(form->spread2(), {{"100", "10"}, {"102", "30"}});
  form->Run("cmdVisu");
  ASSERT_EQ(viewer_scripts.size(), 1u);
  EXPECT_EQ(viewer.page_title, "Bassin à Qf et Qs constants : Rs_1");
  EXPECT_EQ(viewer_scripts[0], JoinPath(folder.Path(), "Vistrel.Mst"));
  EXPECT_EQ(viewer.action, kViewerInitial);
  EXPECT_EQ(ReadBytes(folder.File("xy.crb")),
            "'Crb2'\r\n   100.000    10.000\r\n   102.000    30.000\r\n");
  EXPECT_EQ(ReadBytes(folder.File("Vistrel.Mst")), ReadBytes(folder.File("xy.mst")));
  // The script is written in Windows-1252, where "à" is one byte.
  EXPECT_NE(ReadBytes(folder.File("Vistrel.Mst"))
                .find("PAGE  \"A4\"  \"H\"  \"Bassin \xE0 Qf et Qs constants : Rs_1\""),
            std::string::npos);
  // Visu writes no tag.
  EXPECT_EQ(TagOf(rs, "NbPt"), "0");
}

TEST_F(Basins, VisuOfAParametricBasinDrawsItsThreeCurves) {
  auto form = Open<FrmRsp>(Symbol("X_RSP", 0, 0, n1));
  Fill(form->spread2(), {{"10", "100", "0.05", "0"}, {"12", "150", "0.1", "1"}});
  form->Run("cmdVisu");
  ASSERT_EQ(viewer_scripts.size(), 1u);
  EXPECT_EQ(viewer.page_title, "Bassin à Qf et Qs paramétriques : Rsp_1");
  const std::string crb = ReadBytes(folder.File("xy.crb"));
  EXPECT_NE(crb.find("'Crb2'"), std::string::npos);
  EXPECT_NE(crb.find("'Crb3'"), std::string::npos);
  EXPECT_NE(crb.find("'Crb4'"), std::string::npos);
}

TEST_F(Basins, VisuOfOnePointShowsNothing) {
  auto form = Open<FrmHy>(Symbol("X_HY", 0, 0, n1));
  Fill(form->spread2(), {{"0", "1"}});
  form->Run("cmdVisu");
  EXPECT_TRUE(viewer_scripts.empty());
}

class Hydrograph : public Basins {};

TEST_F(Hydrograph, OpensOnItsRowsAndPoints) {
  const int hy = Symbol("X_HY", 0, 0, n2);
  Set(hy, {{"NbPt", "2"}, {"X1", "0"}, {"Y1", "0.5"}, {"X2", "30"}, {"Y2", "1.25"}});
  auto form = Open<FrmHy>(hy);
  Grid& g = form->grid();
  ASSERT_EQ(g.MaxRows(), 3);
  EXPECT_EQ(g.Text(1, 1), "Identificateur (16 car maxi)=");
  EXPECT_EQ(g.Text(1, 2), "Débit de temps sec (m3/s)=");
  EXPECT_EQ(g.Text(1, 3), "Surface au miroir équivalente du réseau amont (m2)=");
  EXPECT_EQ(g.Type(kValue, 2), CellType::Float(0, 99999999.999, 3));
  EXPECT_EQ(g.Type(kValue, 3), CellType::Float(0, 99999999.99, 2));
  Grid& t = form->spread2();
  EXPECT_EQ(Heads(t), (std::vector<std::string>{"Temps (mn)", "Débit (m3/s)"}));
  ASSERT_EQ(t.MaxRows(), 2);
  EXPECT_EQ(t.Text(2, 2), "1.25");
  EXPECT_EQ(t.Type(1, 1), CellType::Float(-99999999.99, 99999999.99, 2));
  EXPECT_EQ(t.Type(2, 1), CellType::Float(-9999999999.999, 9999999999.999, 3));
  EXPECT_TRUE(ui.Empty());
}

TEST_F(Hydrograph, TimesMustRise) {
  const int hy = Symbol("X_HY", 0, 0, n2);
  const TagList before = Tags(hy);
  auto form = Open<FrmHy>(hy);
  Fill(form->spread2(), {{"10", "1"}, {"5", "2"}, {"20", "3"}});
  form->Run("cmdOk");
  ExpectLastMessage(ui, "Les temps doivent être croissants !\r\n revoir ligne 1",
                    "Injection d'Hydrogramme", MessageIcon::kInformation);
  EXPECT_EQ(form->spread2().ActiveRow(), 1);
  EXPECT_EQ(Tags(hy), before);
}

TEST_F(Hydrograph, InsertStopsAtAHundredPoints) {
  auto form = Open<FrmHy>(Symbol("X_HY", 0, 0, n2));
  for (int i = 0; i < 99; ++i) form->Run("cmdAddLine");
  form->spread2().SetActiveCell(1, 5);
  form->Run("cmdInsLine");
  EXPECT_EQ(form->spread2().MaxRows(), 100);
  form->Run("cmdInsLine");
  EXPECT_EQ(form->spread2().MaxRows(), 100);
}

TEST_F(Hydrograph, PastedRowsFillTheTable) {
  auto form = Open<FrmHy>(Symbol("X_HY", 0, 0, n2));
  form->cmdAddLine();
  form->cmdAddLine();
  form->spread2().SetActiveCell(1, 1);
  SSPaste(form->spread2(), "0\t0.5\r\n15\t2\r\n");
  EXPECT_EQ(form->spread2().Text(1, 2), "15");
  EXPECT_EQ(form->spread2().Text(2, 2), "2");
}

TEST_F(Hydrograph, VisuTitlesTheCurveByItsId) {
  auto form = Open<FrmHy>(Symbol("X_HY", 0, 0, n2));
  Fill(form->spread2(), {{"0", "0"}, {"30", "1.5"}});
  form->Run("cmdVisu");
  ASSERT_EQ(viewer_scripts.size(), 1u);
  EXPECT_EQ(viewer.page_title, "Hy_1 hydrogramme d'apport ");
  EXPECT_EQ(viewer_scripts[0], JoinPath(folder.Path(), "Vistrel.Mst"));
}

TEST_F(Hydrograph, TheEditedHydrographReachesItsRecordAndTheInflowFile) {
  const int hy = Symbol("X_HY", 0, 0, n2);
  auto form = Open<FrmHy>(hy);
  Grid& g = form->grid();
  g.SetText(kValue, 1, "Rejet");
  g.SetText(kValue, 2, "0.05");
  g.SetText(kValue, 3, "2");
  Fill(form->spread2(), {{"0", "0"}, {"30", "1.5"}, {"60", "0.25"}});
  form->Run("cmdOk");
  ASSERT_TRUE(form->Closed());
  Generate();
  EXPECT_EQ(Li2Record(4), RecordWithGaps({{1, 3},
                                          {2, 0},
                                          {3, 30},
                                          {4, 60},
                                          {102, 0},
                                          {103, 1.5},
                                          {104, 0.25},
                                          {202, 0.05},
                                          {203, 2}},
                                         {{5, 101}, {105, 201}}));
  ModelContext model = Context();
  GenFicApp(model, ModelFile(".APP"));
  EXPECT_EQ(ReadBytes(ModelFile(".APP")),
            "'Rejet'\r\n"
            "        0.        0.      0.05\r\n"
            "       30.        2.\r\n"
            "       60.        0.\r\n");
}

}  // namespace
}  // namespace pluvane
