#include "editors/frm_bv.h"

#include <gtest/gtest.h>

#include "editors/editor_forms.h"
#include "element_fixture.h"
#include "foundation/expect_message.h"

namespace pluvane {
namespace {

constexpr int kValue = 2;

class FrmBVTest : public ElementEditorTest {
 protected:
  FrmBVTest() { bv = Symbol("X_BV", 1000, 4000); }

  // A catchment under production function 3 with its three parameters.
  void Holtan() {
    Set(bv,
        {{"Fpluie", "3. selon Holtan"}, {"Fpluie1", "10"}, {"Fpluie2", "20"}, {"Fpluie3", "30"}});
  }
  void ExpectRow(Grid& g, int row, const std::string& label, const std::string& value) {
    EXPECT_EQ(g.Text(1, row), label) << "row " << row;
    EXPECT_EQ(g.Text(kValue, row), value) << "row " << row;
    EXPECT_FALSE(g.Locked(kValue, row)) << "row " << row;
    EXPECT_EQ(g.BackColour(kValue, row), FrmBV::kWhite) << "row " << row;
    EXPECT_EQ(g.ForeColour(kValue, row), FrmBV::kBlack) << "row " << row;
  }
  void ExpectLocked(FrmBV& form, int row) {
    Grid& g = form.grid();
    EXPECT_TRUE(g.Locked(kValue, row)) << "row " << row;
    EXPECT_EQ(g.BackColour(kValue, row), form.LockedColour()) << "row " << row;
    EXPECT_EQ(g.ForeColour(kValue, row), form.LockedColour()) << "row " << row;
  }

  int bv = 0;
};

TEST_F(FrmBVTest, OpensOnTheDefaultsOfANewCatchment) {
  auto form = Open<FrmBV>(bv);
  EXPECT_EQ(form->Caption(), "BV du complexe hydrologique");
  Grid& g = form->grid();
  ASSERT_EQ(g.MaxRows(), 11);
  EXPECT_EQ(g.Text(1, 1), "Identificateur (16 car. maxi) =");
  EXPECT_EQ(g.Text(kValue, 1), "Bv_1");
  EXPECT_EQ(g.Text(1, 2), "Surface (ha)=");
  EXPECT_EQ(g.Text(kValue, 2), "5.00");
  EXPECT_EQ(g.Type(kValue, 2), CellType::Float(0, 9999999999.99, 2));
  EXPECT_EQ(g.Text(1, 3), "Longueur de cheminement (m)=");
  EXPECT_EQ(g.Text(kValue, 3), "50.00");
  EXPECT_EQ(g.Text(1, 4), "Pente moyenne (-)=");
  EXPECT_EQ(g.Text(kValue, 4), "0.00500");
  EXPECT_EQ(g.Type(kValue, 4), CellType::Float(-99.99999, 99.99999, 5));
  EXPECT_EQ(g.Text(1, 5), "Coef. imperméabilisation (-)=");
  EXPECT_EQ(g.Text(kValue, 5), "0.60");
  EXPECT_EQ(g.Type(kValue, 5), CellType::Float(0, 1, 2));
  EXPECT_EQ(g.Text(1, 6), "Fonction de production de la pluie nette");
  EXPECT_EQ(g.ListEntries(kValue, 6),
            (std::vector<std::string>{"1. CR constant (Coef. de Ruissellement)", "2. selon Horner",
                                      "3. selon Holtan", "4. Selon SCS"}));
  EXPECT_EQ(g.ListIndex(kValue, 6), 0);
  ExpectRow(g, 7, "Coef de ruissellement =", "0.500");
  EXPECT_EQ(g.Type(kValue, 7), CellType::Float(-999.999, 999.999, 3));
  EXPECT_EQ(g.Type(kValue, 9), CellType::Float(0, 99999999.999, 3));
  ExpectLocked(*form, 8);
  ExpectLocked(*form, 9);
  EXPECT_EQ(g.Text(1, 10), "Fonction de production du ruissellement ");
  EXPECT_EQ(g.ListEntries(kValue, 10),
            (std::vector<std::string>{
                "1. k (Desbordes) + réservoir linéaire", "2. k (Giandotti) + réservoir linéaire",
                "3. k (Passini) + réservoir linéaire", "4. k (imposé) + réservoir linéaire",
                "5. Tc (imposé) + hydrogramme unitaire type Socose"}));
  EXPECT_EQ(g.ListIndex(kValue, 10), 0);
  EXPECT_EQ(g.Text(1, 11), "Temps de réponse du BV (mn)=");
  EXPECT_EQ(g.Type(kValue, 11), CellType::Float(-99999.99, 99999.99, 2));
  ExpectLocked(*form, 11);
  // Locked cells take the grey of row 11's label, which is not white.
  EXPECT_EQ(form->LockedColour(), g.BackColour(1, 11));
  EXPECT_NE(form->LockedColour(), FrmBV::kWhite);
  EXPECT_TRUE(g.Locked(1, 2));
  EXPECT_EQ(g.ActiveCol(), kValue);
  EXPECT_EQ(g.ActiveRow(), 2);
}

TEST_F(FrmBVTest, TheFormIsMadeByItsName) {
  surface.SetCurrentObject(bv);
  auto form = MakeEditorForm("frmBV", context);
  ASSERT_NE(form, nullptr);
  EXPECT_EQ(form->Caption(), "BV du complexe hydrologique");
}

TEST_F(FrmBVTest, ASurfaceBelowTheSmallestIsRefusedAndNoTagChanges) {
  const TagList before = Tags(bv);
  auto form = Open<FrmBV>(bv);
  Grid& g = form->grid();
  g.SetText(kValue, 1, "Nouveau nom");
  g.SetText(kValue, 2, "0.000009");
  g.SetText(kValue, 7, "0.9");
  g.SetActiveCell(kValue, 7);
  form->Run("cmdOk");
  ExpectLastMessage(ui, "La surface du BV doit être non nulle!", "Erreur de saisie",
                    MessageIcon::kInformation);
  EXPECT_FALSE(form->Closed());
  EXPECT_EQ(g.ActiveRow(), 2);
  EXPECT_EQ(Tags(bv), before);

  g.SetText(kValue, 2, "0.00001");
  form->Run("cmdOk");
  EXPECT_TRUE(form->Closed());
  // Numbers are stored as numbers.
  EXPECT_EQ(TagOf(bv, "S"), "1E-05");
  EXPECT_EQ(TagOf(bv, "libell"), "Nouveau nom");
  EXPECT_EQ(TagOf(bv, "Fpluie1"), "0.9");
}

TEST_F(FrmBVTest, LengthAndSlopeMustBeGivenInThatOrder) {
  auto form = Open<FrmBV>(bv);
  Grid& g = form->grid();
  g.SetText(kValue, 3, "0");
  g.SetText(kValue, 4, "-0.01");
  form->Run("cmdOk");
  ExpectLastMessage(ui, "La longueur du BV doit être non nulle!", "Erreur de saisie",
                    MessageIcon::kInformation);
  EXPECT_EQ(g.ActiveRow(), 3);
  g.SetText(kValue, 3, "abc");
  form->Run("cmdOk");
  EXPECT_EQ(ui.Last().text, "La longueur du BV doit être non nulle!");
  g.SetText(kValue, 3, "120");
  form->Run("cmdOk");
  // A negative slope, which the cell takes, is refused here.
  ExpectLastMessage(ui, "La pente du BV doit être non nulle!", "Erreur de saisie",
                    MessageIcon::kInformation);
  EXPECT_EQ(g.ActiveRow(), 4);
  EXPECT_FALSE(form->Closed());
  EXPECT_EQ(TagOf(bv, "L"), "50");
  EXPECT_EQ(TagOf(bv, "m"), "0.005");
}

TEST_F(FrmBVTest, SavingUnderFunctionTwoAfterThreeEmptiesTheThirdParameterButKeepsItsMemory) {
  Holtan();
  auto form = Open<FrmBV>(bv);
  Grid& g = form->grid();
  EXPECT_EQ(g.ListIndex(kValue, 6), 2);
  ExpectRow(g, 7, "Infiltration à saturation fc(mm/h) =", "10.000");
  ExpectRow(g, 8, "Infiltration à sec A(mm/h) =", "20.000");
  ExpectRow(g, 9, "Stockage potentiel du sol T(mm) =", "30.000");
  Choose(*form, g, kValue, 6, 1);
  ExpectRow(g, 7, "Coef de perte initiale (alpha) =", "");
  ExpectRow(g, 8, "Coef de recharge (beta) =", "");
  ExpectLocked(*form, 9);
  EXPECT_EQ(g.Text(kValue, 9), "");
  g.SetText(kValue, 7, "0.5");
  g.SetText(kValue, 8, "0.2");
  form->Run("cmdOk");
  ASSERT_TRUE(form->Closed());
  EXPECT_EQ(TagOf(bv, "Fpluie"), "2. selon Horner");
  EXPECT_EQ(TagOf(bv, "Fpluie1"), "0.5");
  EXPECT_EQ(TagOf(bv, "Fpluie2"), "0.2");
  EXPECT_EQ(TagOf(bv, "Fpluie3"), "");
  EXPECT_EQ(TagOf(bv, "fp_fc"), "10");
  EXPECT_EQ(TagOf(bv, "fp_A"), "20");
  EXPECT_EQ(TagOf(bv, "fp_T"), "30");
  // Ok itself remembers nothing.
  EXPECT_EQ(TagOf(bv, "fp_Alpha"), "");
  EXPECT_EQ(TagOf(bv, "fp_Beta"), "");
}

TEST_F(FrmBVTest, FunctionOneClearsTheSecondAndThirdParameters) {
  Holtan();
  auto form = Open<FrmBV>(bv);
  Grid& g = form->grid();
  Choose(*form, g, kValue, 6, 0);
  ExpectRow(g, 7, "Coef de ruissellement =", "");
  ExpectLocked(*form, 8);
  ExpectLocked(*form, 9);
  g.SetText(kValue, 7, "0.7");
  form->Run("cmdOk");
  EXPECT_EQ(TagOf(bv, "Fpluie"), "1. CR constant (Coef. de Ruissellement)");
  EXPECT_EQ(TagOf(bv, "Fpluie1"), "0.7");
  EXPECT_EQ(TagOf(bv, "Fpluie2"), "");
  EXPECT_EQ(TagOf(bv, "Fpluie3"), "");
}

TEST_F(FrmBVTest, FunctionFourKeepsWhatItsRowsHeld) {
  auto form = Open<FrmBV>(bv);
  Grid& g = form->grid();
  Choose(*form, g, kValue, 6, 3);
  ExpectRow(g, 7, "Capacité d'interception J(mm) =", "");
  ExpectRow(g, 8, "Temps de ressuyage du sol (jours) =", "");
  ExpectLocked(*form, 9);
  g.SetText(kValue, 7, "5");
  g.SetText(kValue, 8, "2");
  form->Run("cmdOk");
  EXPECT_EQ(TagOf(bv, "Fpluie"), "4. Selon SCS");
  EXPECT_EQ(TagOf(bv, "Fpluie1"), "5");
  EXPECT_EQ(TagOf(bv, "Fpluie2"), "2");
  EXPECT_EQ(TagOf(bv, "Fpluie3"), "");
  // The remembered coefficient of function 1 was saved by the drop-down.
  EXPECT_EQ(TagOf(bv, "fp_Cr"), "0.5");
}

TEST_F(FrmBVTest, FlippingBackAndForthFindsEachFunctionsParametersAgain) {
  Holtan();
  auto form = Open<FrmBV>(bv);
  Grid& g = form->grid();
  Choose(*form, g, kValue, 6, 0);
  g.SetText(kValue, 7, "0.8");
  Choose(*form, g, kValue, 6, 3);
  g.SetText(kValue, 7, "4");
  g.SetText(kValue, 8, "3");
  Choose(*form, g, kValue, 6, 2);
  EXPECT_EQ(g.Text(kValue, 7), "10.000");
  EXPECT_EQ(g.Text(kValue, 8), "20.000");
  EXPECT_EQ(g.Text(kValue, 9), "30.000");
  Choose(*form, g, kValue, 6, 0);
  EXPECT_EQ(g.Text(kValue, 7), "0.800");
  Choose(*form, g, kValue, 6, 3);
  EXPECT_EQ(g.Text(kValue, 7), "4.000");
  EXPECT_EQ(g.Text(kValue, 8), "3.000");
  Choose(*form, g, kValue, 6, 2);
  EXPECT_EQ(g.Text(kValue, 9), "30.000");
}

TEST_F(FrmBVTest, ParametersComeBackOnlyIfTheListDroppedDownWhileTheirFunctionWasShown) {
  Holtan();
  auto form = Open<FrmBV>(bv);
  Grid& g = form->grid();
  // Chosen without the list dropping down (the keyboard): nothing is saved.
  g.SetListIndex(kValue, 6, 0);
  EXPECT_EQ(g.Text(1, 7), "Coef de ruissellement =");
  Choose(*form, g, kValue, 6, 2);
  EXPECT_EQ(g.Text(kValue, 7), "");
  EXPECT_EQ(g.Text(kValue, 8), "");
  EXPECT_EQ(g.Text(kValue, 9), "");
  EXPECT_EQ(TagOf(bv, "fp_fc"), "");

  // Again, the list dropped down while function 3 was shown.
  auto again = Open<FrmBV>(bv);
  Grid& h = again->grid();
  Choose(*again, h, kValue, 6, 0);
  Choose(*again, h, kValue, 6, 2);
  EXPECT_EQ(h.Text(kValue, 7), "10.000");
  EXPECT_EQ(h.Text(kValue, 8), "20.000");
  EXPECT_EQ(h.Text(kValue, 9), "30.000");
}

TEST_F(FrmBVTest, AnEmptyListCellDoesNothing) {
  Set(bv, {{"Fpluie", ""}, {"Fpluie1", "3"}, {"fp_Cr", "0.4"}});
  auto form = Open<FrmBV>(bv);
  Grid& g = form->grid();
  EXPECT_EQ(g.ListIndex(kValue, 6), -1);
  // No function: rows 7 to 9 are cleared and open, row 7 still shows Fpluie1.
  EXPECT_EQ(g.Text(1, 7), "");
  EXPECT_EQ(g.Text(kValue, 7), "3.000");
  EXPECT_FALSE(g.Locked(kValue, 9));
  form->ListDropDown(g, kValue, 6);
  g.SetListIndex(kValue, 6, -1);
  EXPECT_EQ(g.Text(kValue, 7), "3.000");
  EXPECT_EQ(TagOf(bv, "fp_Cr"), "0.4");
}

TEST_F(FrmBVTest, AnImportedBareDigitOpensOnItsFunction) {
  Set(bv,
      {{"Fpluie", "2"}, {"Fpluie1", "0.3"}, {"Fpluie2", "0.1"}, {"Fruissel", "5"}, {"K", "25"}});
  auto form = Open<FrmBV>(bv);
  Grid& g = form->grid();
  EXPECT_EQ(g.ListIndex(kValue, 6), 1);
  EXPECT_EQ(g.Text(kValue, 6), "2. selon Horner");
  ExpectRow(g, 7, "Coef de perte initiale (alpha) =", "0.300");
  ExpectRow(g, 8, "Coef de recharge (beta) =", "0.100");
  ExpectLocked(*form, 9);
  EXPECT_EQ(g.ListIndex(kValue, 10), 4);
  ExpectRow(g, 11, "Temps de concentration Tc(mn) =", "25.00");
}

TEST_F(FrmBVTest, TheDefaultSpellingIsFunctionOneAndSavedAsTheListEntry) {
  auto form = Open<FrmBV>(bv);
  form->Run("cmdOk");
  EXPECT_EQ(TagOf(bv, "Fpluie"), "1. CR constant (Coef. de Ruissellement)");
  EXPECT_EQ(TagOf(bv, "Fruissel"), "1. k (Desbordes) + réservoir linéaire");
  EXPECT_EQ(TagOf(bv, "K"), "");
}

TEST_F(FrmBVTest, ImposedTimesAreRememberedPerTransferFunction) {
  Set(bv, {{"Fruissel", "4. k (imposé) + réservoir linéaire"}, {"K", "12"}});
  auto form = Open<FrmBV>(bv);
  Grid& g = form->grid();
  ExpectRow(g, 11, "Temps de réponse K(mn) =", "12.00");
  Choose(*form, g, kValue, 10, 4);
  EXPECT_EQ(TagOf(bv, "fr_K"), "12");
  ExpectRow(g, 11, "Temps de concentration Tc(mn) =", "");
  g.SetText(kValue, 11, "40");
  Choose(*form, g, kValue, 10, 0);
  EXPECT_EQ(TagOf(bv, "fr_Tc"), "40");
  EXPECT_EQ(g.Text(1, 11), "");
  EXPECT_EQ(g.Text(kValue, 11), "");
  ExpectLocked(*form, 11);
  Choose(*form, g, kValue, 10, 3);
  ExpectRow(g, 11, "Temps de réponse K(mn) =", "12.00");
  Choose(*form, g, kValue, 10, 4);
  ExpectRow(g, 11, "Temps de concentration Tc(mn) =", "40.00");
  form->Run("cmdOk");
  EXPECT_EQ(TagOf(bv, "Fruissel"), "5. Tc (imposé) + hydrogramme unitaire type Socose");
  EXPECT_EQ(TagOf(bv, "K"), "40");
}

TEST_F(FrmBVTest, ALockedTimeKeepsTheElementsValue) {
  Set(bv, {{"K", "7"}});
  auto form = Open<FrmBV>(bv);
  EXPECT_EQ(form->grid().Text(kValue, 11), "7.00");
  form->Run("cmdOk");
  EXPECT_EQ(TagOf(bv, "K"), "7");
}

TEST_F(FrmBVTest, CancelWritesNothingButWhatADropDownSaved) {
  Holtan();
  const TagList before = Tags(bv);
  auto form = Open<FrmBV>(bv);
  Grid& g = form->grid();
  g.SetText(kValue, 2, "99");
  Choose(*form, g, kValue, 6, 0);
  form->Run("cmdAnnul");
  EXPECT_TRUE(form->Closed());
  EXPECT_EQ(TagOf(bv, "S"), "5");
  EXPECT_EQ(TagOf(bv, "Fpluie"), "3. selon Holtan");
  EXPECT_EQ(TagOf(bv, "fp_T"), "30");
  TagList without_memory;
  for (const auto& tag : Tags(bv)) {
    if (tag.first.rfind("fp_", 0) != 0) without_memory.push_back(tag);
  }
  EXPECT_EQ(without_memory, before);
}

TEST_F(FrmBVTest, ALabelTakenByAnotherCatchmentIsRefusedWhateverItsCase) {
  const int other = Symbol("X_BV", 3000, 4000);
  Set(other, {{"libell", "BV Nord"}});
  const TagList before = Tags(bv);
  auto form = Open<FrmBV>(bv);
  Grid& g = form->grid();
  g.SetText(kValue, 1, "bv nord");
  g.SetText(kValue, 2, "8");
  g.SetActiveCell(kValue, 2);
  form->Run("cmdOk");
  ExpectLastMessage(ui, "bv nord existe déjà.", "Erreur de saisie", MessageIcon::kNone);
  EXPECT_FALSE(form->Closed());
  EXPECT_EQ(g.Text(kValue, 1), "Bv_1");
  EXPECT_EQ(g.ActiveRow(), 1);
  EXPECT_EQ(g.ActiveCol(), kValue);
  EXPECT_EQ(Tags(bv), before);
  // Its own label, even in other capitals, is no duplicate.
  g.SetText(kValue, 1, "BV_1");
  form->Run("cmdOk");
  EXPECT_TRUE(form->Closed());
  EXPECT_EQ(TagOf(bv, "libell"), "BV_1");
  EXPECT_EQ(TagOf(bv, "S"), "8");
}

TEST_F(FrmBVTest, TheNameOfASewerLinkIsFreeForACatchment) {
  Set(Link("X_CAC", Node(1000, 1000), Node(2000, 1000)), {{"libell", "Rue Haute"}});
  auto form = Open<FrmBV>(bv);
  form->grid().SetText(kValue, 1, "Rue Haute");
  form->Run("cmdOk");
  EXPECT_TRUE(form->Closed());
  EXPECT_EQ(TagOf(bv, "libell"), "Rue Haute");
}

TEST_F(FrmBVTest, AClickShowsTheCellInTheStatusLine) {
  auto form = Open<FrmBV>(bv);
  form->ClickCell(form->grid(), 1, 3);
  form->ClickCell(form->grid(), kValue, 3);
  ASSERT_GE(ui.Statuses().size(), 2u);
  EXPECT_EQ(ui.Statuses()[ui.Statuses().size() - 2], "Longueur de cheminement (m)=");
  EXPECT_EQ(ui.Statuses().back(), "50.00");
}

TEST_F(FrmBVTest, TheEditedCatchmentReachesItsNodeLineAndItsLinkRecord) {
  auto form = Open<FrmBV>(bv);
  Grid& g = form->grid();
  g.SetText(kValue, 1, "BV Amont");
  g.SetText(kValue, 2, "12.5");
  g.SetText(kValue, 3, "320");
  g.SetText(kValue, 4, "0.012");
  g.SetText(kValue, 5, "0.45");
  Choose(*form, g, kValue, 6, 2);
  g.SetText(kValue, 7, "5.5");
  g.SetText(kValue, 8, "60");
  g.SetText(kValue, 9, "25");
  Choose(*form, g, kValue, 10, 3);
  g.SetText(kValue, 11, "18");
  form->Run("cmdOk");
  ASSERT_TRUE(form->Closed());
  Generate();
  // No node: the catchment is line 1 of .NOD's records, at its centre (1000, 6000).
  EXPECT_EQ(ReadBytes(ModelFile(".NOD")),
            "         0         1\r\n"
            "         1         0     1000.     6000.            BV Amont\r\n");
  EXPECT_EQ(Li2Record(1), Record({{1, 12.5},
                                  {2, 320},
                                  {3, 0.012},
                                  {4, 0.45},
                                  {5, 3},
                                  {6, 5.5},
                                  {7, 60},
                                  {8, 25},
                                  {9, 4},
                                  {10, 18}}));
}

}  // namespace
}  // namespace pluvane
