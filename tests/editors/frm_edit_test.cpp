#include "editors/frm_edit.h"

#include <gtest/gtest.h>

#include "editors/editor_forms.h"
#include "editors/frm_crbx.h"
#include "editors/network_editor_fixture.h"
#include "foundation/expect_message.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"

namespace pluvane {
namespace {

constexpr const char* kCaption = "Editeur général des éléments du réseau";

// Tabs, in their fixed order.
enum Tab { kPlu, kRsp, kRs, kDqz, kDqq, kCao, kCaf, kCac, kHy, kHybv, kRout, kBv, kBvs };

class FrmEditTest : public NetworkEditorTest {
 protected:
  // Three nodes in a row drained by two circular collectors, a catchment
  // and its routing to an outlet on the first node.
  void BuildNetwork() {
    n1 = Node(1000, 1000);
    n2 = Node(3000, 1000);
    n3 = Node(5000, 1000);
    cac1 = Link("X_CAC", n1, n2);
    Set(cac1, {{"ZRam", "10.5"}, {"ZRav", "10"}, {"Dn", "0.8"}});
    cac2 = Link("X_CAC", n2, n3);
    bv = PlaceHydrologicalComplex(surface, state, ui, n1).catchment;
    surface.DeselectAll();
  }

  int n1 = 0, n2 = 0, n3 = 0, cac1 = 0, cac2 = 0, bv = 0;
};

TEST_F(FrmEditTest, AKindWithoutElementsHasABlankTabThatCannotBeEntered) {
  BuildNetwork();
  FrmEdit form(context);
  EXPECT_EQ(form.Caption(), kCaption);
  ASSERT_EQ(form.TabCount(), 13);
  EXPECT_EQ(form.TabCaption(kCao), "");
  EXPECT_EQ(form.TabCaption(kCaf), "");
  EXPECT_EQ(form.TabCaption(kCac), "Collecteurs circulaires");
  EXPECT_EQ(form.TabCaption(kHybv), "Exutoires de BV");
  EXPECT_EQ(form.TabCaption(kBv), "Bassins versants");
  // The first tab with elements opens.
  EXPECT_EQ(form.CurrentTab(), kCac);
  form.Sheet(kCac).SetText(3, 1, "9.75");
  form.ClickTab(kCao);
  EXPECT_EQ(form.CurrentTab(), kCac);
  EXPECT_EQ(form.Sheet(kCac).Text(3, 1), "9.75");
  EXPECT_EQ(form.Sheet(kCao).MaxRows(), 0);
  form.ClickTab(kBv);
  EXPECT_EQ(form.CurrentTab(), kBv);
}

TEST_F(FrmEditTest, EachSheetListsItsKindInDrawingOrder) {
  BuildNetwork();
  FrmEdit form(context);
  EXPECT_EQ(form.SheetIName(kCac), 5);
  EXPECT_EQ(form.SheetObjects(kCac), (std::vector<int>{cac1, cac2}));
  Grid& sheet = form.Sheet(kCac);
  const std::vector<std::string> heads{"Id. (16 car maxi)",
                                       "Z radier amont (ngf)",
                                       "Z radier aval (ngf)",
                                       "Diamètre (m)",
                                       "Longueur (m)",
                                       "Coef. de Strickler (-)",
                                       " Hmoy sous chaussée (m)",
                                       " Surface du réservoir fictif (m2)"};
  ASSERT_EQ(sheet.MaxCols(), 8);
  for (int col = 1; col <= 8; ++col) EXPECT_EQ(sheet.ColHead(col), heads[col - 1]);
  EXPECT_EQ(sheet.MaxRows(), 2);
  EXPECT_EQ(sheet.Text(1, 1), "Cac_1");
  EXPECT_EQ(sheet.Text(2, 1), "10.5");
  EXPECT_EQ(sheet.Text(4, 1), "0.8");
  EXPECT_EQ(sheet.Text(6, 2), "60");
  EXPECT_EQ(sheet.Type(2, 1), CellType::Float(-99999999.99, 99999999.99, 2));
  // A click shows the cell and highlights the row's element.
  form.ClickCell(sheet, 1, 2);
  EXPECT_EQ(ui.Statuses().back(), "Cac_2");
  EXPECT_EQ(Highlighted(), std::vector<int>{cac2});
  form.ClickTab(kBv);
  EXPECT_TRUE(Highlighted().empty());
  form.ClickCell(form.Sheet(kBv), 2, 1);
  EXPECT_EQ(Highlighted(), std::vector<int>{bv});
  form.Run("mnQuit");
  EXPECT_TRUE(form.Closed());
  EXPECT_TRUE(Highlighted().empty());
}

TEST_F(FrmEditTest, TheGeneralEditorIsFoundByItsName) {
  BuildNetwork();
  auto form = MakeEditorForm("frmEdit", context);
  ASSERT_NE(form, nullptr);
  EXPECT_EQ(form->Caption(), kCaption);
  EXPECT_EQ(form->Grids().size(), 13u);
}

TEST_F(FrmEditTest, SaveWritesEveryRowOfTheSheet) {
  BuildNetwork();
  FrmEdit form(context);
  Grid& sheet = form.Sheet(kCac);
  sheet.SetText(1, 1, "Amont");
  sheet.SetText(5, 1, "250.5");
  sheet.SetText(8, 2, "12");
  form.Run("mnSave");
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(TagOf(cac1, "libell"), "Amont");
  EXPECT_EQ(TagOf(cac1, "L"), "250.5");
  EXPECT_EQ(TagOf(cac1, "ZRam"), "10.5");
  EXPECT_EQ(TagOf(cac2, "SR"), "12");
  EXPECT_EQ(ui.Progress(), (std::vector<int>{50, 100, -1}));
  EXPECT_FALSE(form.Closed());
}

TEST_F(FrmEditTest, TwoRowsGivenOneNameGiveOneDuplicateMessage) {
  BuildNetwork();
  FrmEdit form(context);
  Grid& sheet = form.Sheet(kCac);
  sheet.SetText(1, 1, "Collecteur A");
  sheet.SetText(1, 2, "COLLECTEUR a");
  sheet.SetText(2, 2, "8.5");
  const TagList before = Tags(cac2);
  form.Run("mnSave");
  ASSERT_EQ(ui.Messages().size(), 1u);
  ExpectLastMessage(ui, "COLLECTEUR a existe déjà.", "Erreur de saisie", MessageIcon::kNone);
  EXPECT_EQ(sheet.Text(1, 2), "Cac_2");
  EXPECT_EQ(TagOf(cac1, "libell"), "Collecteur A");
  // The refused row keeps all its tags.
  EXPECT_EQ(Tags(cac2), before);
}

TEST_F(FrmEditTest, ANameChangedOnlyInCaseIsNoDuplicate) {
  BuildNetwork();
  FrmEdit form(context);
  form.Sheet(kCac).SetText(1, 1, "CAC_1");
  form.Run("mnSave");
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(TagOf(cac1, "libell"), "CAC_1");
}

TEST_F(FrmEditTest, ARowWhoseElementIsGoneReportsItAndTheLoopGoesOn) {
  BuildNetwork();
  const int cac3 = Link("X_CAC", n1, n3);
  FrmEdit form(context);
  Grid& sheet = form.Sheet(kCac);
  sheet.SetText(7, 3, "1.25");
  surface.DeleteObject(cac2);
  form.Run("mnSave");
  ExpectLastMessage(ui, "erreur pour l'elm Cac_2", kCaption, MessageIcon::kExclamation);
  EXPECT_EQ(TagOf(cac3, "HD"), "1.25");
}

TEST_F(FrmEditTest, AFunctionFourRowWithoutParametersStoresThemEmpty) {
  BuildNetwork();
  Set(bv, {{"Fpluie", "3. selon Holtan"}, {"Fpluie1", "10"}, {"Fpluie2", "20"}, {"Fpluie3", "30"}});
  FrmEdit form(context);
  form.ClickTab(kBv);
  Grid& sheet = form.Sheet(kBv);
  ASSERT_EQ(sheet.MaxCols(), 11);
  EXPECT_EQ(sheet.Text(6, 1), "3. selon Holtan");
  EXPECT_EQ(sheet.Text(10, 1), "1. K Desbordes");
  EXPECT_EQ(sheet.ColHead(7), "Vitesse d'infiltration à saturation fc");
  EXPECT_EQ(sheet.ColHead(9), "Capacité de stockage du sol T");
  EXPECT_EQ(sheet.Note(8, 1), "Vitesse d'infiltration à sec A");
  sheet.SetListIndex(6, 1, 3);
  EXPECT_EQ(sheet.ColHead(7), "Capacité de rétention J(mm)");
  EXPECT_EQ(sheet.ColHead(8), "Durée caractéristique du BV (mn)");
  EXPECT_EQ(sheet.Note(9, 1), "");
  for (int col = 7; col <= 9; ++col) sheet.SetText(col, 1, "");
  form.Run("mnSave");
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(TagOf(bv, "Fpluie"), "4. Socose (SCS)");
  for (const char* tag : {"Fpluie1", "Fpluie2", "Fpluie3"}) EXPECT_EQ(TagOf(bv, tag), "") << tag;
  EXPECT_EQ(TagOf(bv, "Fruissel"), "1. K Desbordes");
}

TEST_F(FrmEditTest, ParameterHeadsFollowTheRowUnderTheCursor) {
  BuildNetwork();
  const int bv3 = Symbol("X_BV", 8000, 8000);
  Set(bv3, {{"Fpluie", "2"}});
  FrmEdit form(context);
  form.ClickTab(kBv);
  Grid& sheet = form.Sheet(kBv);
  EXPECT_EQ(sheet.ColHead(7), "Coef. de ruissellement");
  EXPECT_EQ(sheet.ColHead(8), "");
  sheet.SetActiveCell(7, 2);
  EXPECT_EQ(sheet.Text(6, 2), "2. selon Horner");
  EXPECT_EQ(sheet.ColHead(7), "Coef. de perte initial (alpha)");
  EXPECT_EQ(sheet.ColHead(8), "Coef. de recharge (beta)");
  EXPECT_EQ(sheet.ColHead(9), "");
}

TEST_F(FrmEditTest, TheTwoCatchmentSheetsDifferInTheirLastTransferAndTheDryFlow) {
  BuildNetwork();
  Set(Symbol("X_BVS", 0, 0, n2), {{"Qsec", "0.02"}, {"Fruissel", "5"}});
  FrmEdit form(context);
  form.ClickTab(kBvs);
  Grid& simple = form.Sheet(kBvs);
  ASSERT_EQ(simple.MaxCols(), 12);
  EXPECT_EQ(simple.ColHead(12), "Débit temps sec (m3/s)");
  EXPECT_EQ(simple.Text(12, 1), "0.02");
  EXPECT_EQ(simple.Text(10, 1), "5. K SCS");
  EXPECT_EQ(simple.Type(6, 1), CellType::List("1. CR constant\t2. selon Horner\t3. selon "
                                              "Holtan\t4. Socose (SCS)"));
  form.ClickTab(kBv);
  EXPECT_EQ(
      form.Sheet(kBv).Type(10, 1),
      CellType::List("1. K Desbordes\t2. K Giandotti\t3. K Passini\t4. K imposé\t5. Tc imposé"));
}

TEST_F(FrmEditTest, DividerSheetsListTheLinksOfEachNode) {
  BuildNetwork();
  const int n5 = Node(3000, 3000);
  Link("X_CAC", n2, n5);
  Set(Symbol("X_DQQ", 0, 0, n2), {{"IdAval", "Cac_2"}, {"IdDer_a", "Cac_3"}});
  const int lonely = Symbol("X_DQZ", 0, 0, n3);
  Set(lonely, {{"libell", "Fin"}});
  FrmEdit form(context);
  // The first sheet with elements is the one of the level dividers: a
  // divider with no link leaving its node is told, and the sheet fills all the same.
  EXPECT_EQ(form.CurrentTab(), kDqz);
  ExpectLastMessage(ui, "attention Fin : pas d'elm aval ?", kCaption, MessageIcon::kExclamation);
  EXPECT_EQ(form.Sheet(kDqz).Text(1, 1), "Fin");
  EXPECT_EQ(form.Sheet(kDqz).ColHead(3), "Id. de la 1ère dérivation");
  ui.Clear();
  form.ClickTab(kDqq);
  EXPECT_TRUE(ui.Empty());
  Grid& dqq = form.Sheet(kDqq);
  EXPECT_EQ(dqq.ColHead(3), "Id. de la    1ère dérivation");
  EXPECT_EQ(dqq.ColHead(6), "Courbes de répartition des débits");
  EXPECT_EQ(dqq.Type(2, 1), CellType::List("Cac_2\tCac_3"));
  EXPECT_EQ(dqq.Text(3, 1), "Cac_3");
  EXPECT_EQ(dqq.Text(6, 1), "&ouvrir...");
  EXPECT_EQ(dqq.Type(6, 1), CellType::Button());
  form.ClickCell(dqq, 3, 1);
  EXPECT_EQ(Highlighted(), std::vector<int>{form.SheetObjects(kDqq)[0]});
  form.ClickTab(kDqz);
  ui.Clear();
  form.ButtonCell(form.Sheet(kDqz), 6, 1);
  ExpectLastMessage(ui,
                    "Ouvrir le détail de la répartition de débits\r\npour éditer le déversoir Fin",
                    "Déversoir géométrique", MessageIcon::kInformation);
  EXPECT_TRUE(shown_forms.empty());
}

TEST_F(FrmEditTest, AButtonOpensTheRowsCurveInTheCurveEditor) {
  BuildNetwork();
  const int hy = Symbol("X_HY", 0, 0, n3);
  Set(hy, {{"NbPt", "2"}, {"X1", "0"}, {"Y1", "0"}, {"X2", "30"}, {"Y2", "1.5"}});
  FrmEdit form(context);
  form.ClickTab(kHy);
  EXPECT_EQ(form.Sheet(kHy).ColHead(4), "Courbe Hy");
  on_form = [](FormController& shown) {
    auto& editor = dynamic_cast<FrmCrbx&>(shown);
    EXPECT_EQ(editor.Caption(), "Hydrogramme");
    EXPECT_EQ(editor.params().plot_title, "Hydrogramme");
    EXPECT_EQ(editor.params().point_limit, 100);
    EXPECT_EQ(editor.grid().ColHead(1), "Temps (mn)");
    EXPECT_EQ(editor.grid().ColHead(2), "Debit (m3/s)");
    ASSERT_EQ(editor.grid().MaxRows(), 2);
    EXPECT_EQ(editor.grid().Value(1, 2), 30);
    editor.Run("mnAdd");
    editor.grid().SetText(1, 3, "60");
    editor.grid().SetText(2, 3, "0.5");
    editor.Run("mnSave");
  };
  form.ButtonCell(form.Sheet(kHy), 4, 1);
  ASSERT_EQ(shown_forms.size(), 1u);
  EXPECT_EQ(TagOf(hy, "NbPt"), "3");
  EXPECT_EQ(Val(TagOf(hy, "X3")), 60);
  EXPECT_EQ(Val(TagOf(hy, "Y3")), 0.5);
}

TEST_F(FrmEditTest, TheLawOfADividerOpensWithFourColumns) {
  BuildNetwork();
  const int dqq = Symbol("X_DQQ", 0, 0, n2);
  Set(dqq, {{"NbPt", "2"}, {"X2", "1"}, {"Y2", "0.5"}, {"Z2", "0.25"}, {"T2", "0.125"}});
  FrmEdit form(context);
  form.ClickTab(kDqq);
  on_form = [](FormController& shown) {
    auto& editor = dynamic_cast<FrmCrbx&>(shown);
    EXPECT_EQ(editor.Columns(), 4);
    EXPECT_EQ(editor.grid().ColHead(1), "Débit amont (m3/s)");
    EXPECT_EQ(editor.grid().ColHead(4), "Débit der3 (m3/s)");
    EXPECT_EQ(editor.grid().Text(4, 2), "0.125");
    editor.grid().SetText(4, 2, "0.2");
    editor.Run("mnSave");
  };
  form.ButtonCell(form.Sheet(kDqq), 6, 1);
  EXPECT_EQ(Val(TagOf(dqq, "T2")), 0.2);
  EXPECT_EQ(Val(TagOf(dqq, "Z2")), 0.25);
}

TEST_F(FrmEditTest, ABasinTakesItsOutletsFromTheLinksOfItsNode) {
  BuildNetwork();
  const int n5 = Node(3000, 3000);
  Link("X_CAC", n2, n5);
  const int rs = Symbol("X_RS", 0, 0, n2);
  FrmEdit form(context);
  EXPECT_EQ(form.CurrentTab(), kRs);
  Grid& sheet = form.Sheet(kRs);
  ASSERT_EQ(sheet.MaxCols(), 6);
  EXPECT_EQ(sheet.ColHead(2), "Id. de la restitution aval");
  EXPECT_EQ(sheet.ColHead(6), "Courbe de remplissage S=f(Z)");
  EXPECT_EQ(sheet.Type(3, 1), CellType::List("Cac_2\tCac_3"));
  sheet.SetListIndex(2, 1, 0);
  sheet.SetListIndex(3, 1, 1);
  sheet.SetText(4, 1, "0.35");
  form.Run("mnSave");
  EXPECT_EQ(TagOf(rs, "IdAval"), "Cac_2");
  EXPECT_EQ(TagOf(rs, "IdSurv"), "Cac_3");
  EXPECT_EQ(TagOf(rs, "Qf"), "0.35");
}

TEST_F(FrmEditTest, TheLawsOfABasinOpenWithFourColumnsUnderTheButtonsHead) {
  BuildNetwork();
  Link("X_CAC", n2, Node(3000, 3000));
  const int rsp = Symbol("X_RSP", 0, 0, n2);
  Set(rsp, {{"NbPt", "2"}, {"X2", "1"}, {"Y2", "50"}, {"Z2", "0.1"}, {"T2", "0.2"}});
  FrmEdit form(context);
  ASSERT_EQ(form.CurrentTab(), kRsp);
  EXPECT_EQ(form.Sheet(kRsp).ColHead(5), "Courbes caractériques");
  on_form = [](FormController& shown) {
    auto& editor = dynamic_cast<FrmCrbx&>(shown);
    EXPECT_EQ(editor.Caption(), "Courbes caractériques");
    EXPECT_EQ(editor.Columns(), 4);
    EXPECT_EQ(editor.grid().ColHead(1), "Z retenue (ngf)");
    EXPECT_EQ(editor.grid().ColHead(2), "Surface au miroir (m2)");
    EXPECT_EQ(editor.grid().ColHead(3), "Debit de fuite (m3/s)");
    EXPECT_EQ(editor.grid().ColHead(4), "Debit de surverse (m3/s)");
    editor.grid().SetText(3, 2, "0.15");
    editor.Run("mnSave");
  };
  form.ButtonCell(form.Sheet(kRsp), 5, 1);
  EXPECT_EQ(Val(TagOf(rsp, "Z2")), 0.15);
  EXPECT_EQ(Val(TagOf(rsp, "T2")), 0.2);
  // A click on another column of the row opens nothing.
  form.ButtonCell(form.Sheet(kRsp), 4, 1);
  EXPECT_EQ(shown_forms.size(), 1u);
}

TEST_F(FrmEditTest, ANetworkWithoutElementsHasNoSheetToSave) {
  Node(1000, 1000);
  FrmEdit form(context);
  EXPECT_EQ(form.CurrentTab(), -1);
  for (int tab = 0; tab < form.TabCount(); ++tab) EXPECT_EQ(form.TabCaption(tab), "") << tab;
  for (const FormCommand& command : form.Commands()) {
    if (command.name == "mnSave" || command.name == "mnPrint") {
      EXPECT_FALSE(command.enabled);
    }
  }
  form.Run("mnSave");
  EXPECT_TRUE(ui.Progress().empty());
}

TEST_F(FrmEditTest, TheSectionListWarnsWhenTheLibraryIsEmpty) {
  BuildNetwork();
  Link("X_CAF", n1, n3);
  FrmEdit form(context);
  form.ClickTab(kCaf);
  Grid& sheet = form.Sheet(kCaf);
  EXPECT_EQ(sheet.ColHead(4), " Id.  de la section");
  form.ListDropDown(sheet, 4, 1);
  ExpectLastMessage(ui,
                    "Voir 'Option/Sections de collecteur' pour définir la géométrie de la section "
                    "des collecteurs paramétriques.",
                    kCaption, MessageIcon::kInformation);
  ui.Clear();
  form.ListDropDown(sheet, 2, 1);
  EXPECT_TRUE(ui.Empty());
}

TEST_F(FrmEditTest, SaveToTextWritesEverySheetAndComesBack) {
  BuildNetwork();
  state.NetworkFile = folder.File("reseau.mtf");
  WriteBytes(state.NetworkFile, "{}");
  WriteBytes(folder.File("reseau.Txt"), "ancien");
  FrmEdit form(context);
  form.Sheet(kCac).SetText(1, 2, "Aval non validé");
  form.Run("mnuSave2Txt");
  ExpectLastMessage(ui,
                    "Ok les données sont sauvegardées dans le fichier " + folder.File("reseau.Txt"),
                    "Editeur général/Sauvegade données", MessageIcon::kInformation);
  EXPECT_EQ(form.CurrentTab(), kCac);
  EXPECT_EQ(form.Sheet(kCac).Text(1, 2), "Aval non validé");
  const std::string text = ReadBytes(folder.File("reseau.Txt"));
  EXPECT_EQ(text.find("ancien"), std::string::npos);
  const std::string cac_block =
      "Id. (16 car maxi)\tZ radier amont (ngf)\tZ radier aval (ngf)\tDiam\xE8tre (m)\tLongueur "
      "(m)\tCoef. de Strickler (-)\t Hmoy sous chauss\xE9"
      "e (m)\t Surface du r\xE9servoir fictif "
      "(m2)\rCac_1\t10.5\t10\t0.8\t";
  EXPECT_NE(text.find(cac_block), std::string::npos);
  EXPECT_NE(text.find("\rAval non valid\xE9\t0\t0\t1\t"), std::string::npos);
  EXPECT_NE(text.find("Id. (16 car maxi)\tD\xE9"
                      "bit de temps sec (m3/s)\t"),
            std::string::npos);
  EXPECT_NE(text.find("\rBv_1\t5\t50\t0.005\t0.60\t1. CR constant\t0.50\t\t\t1. K Desbordes\t\r"),
            std::string::npos);
  EXPECT_EQ(text.find("\n"), std::string::npos);
}

TEST_F(FrmEditTest, PrintSendsTheCurrentSheetLinedUp) {
  BuildNetwork();
  FrmEdit form(context);
  form.Run("mnPrint");
  ASSERT_EQ(ui.printed.size(), 1u);
  const auto& page = ui.printed[0];
  ASSERT_EQ(page.size(), 5u);
  EXPECT_EQ(page[0], std::string(kCaption) + " : Collecteurs circulaires");
  EXPECT_EQ(page[3].substr(0, 19), "Cac_1              ");
  EXPECT_EQ(page[2].find("Z radier amont (ngf)"), 19u);
  EXPECT_EQ(page[3].find("10.5"), 19u);
  ui.print_error = "Impression annulée";
  form.Run("mnPrint");
  ExpectLastMessage(ui, "Impression annulée", kCaption, MessageIcon::kCritical);
}

}  // namespace
}  // namespace pluvane
