// The element editors without a table: routing, catchment outlet,
// translator, output marker and downstream boundary condition.
#include <gtest/gtest.h>

#include "editors/editor_forms.h"
#include "editors/frm_clav.h"
#include "editors/frm_hy_bv.h"
#include "editors/frm_mark.h"
#include "editors/frm_rout.h"
#include "editors/frm_trans.h"
#include "element_fixture.h"
#include "foundation/expect_message.h"
#include "foundation/numbers.h"

namespace pluvane {
namespace {

constexpr int kValue = 2;

class SimpleElements : public ElementEditorTest {
 protected:
  SimpleElements() {
    n1 = Node(1000, 1000);
    n2 = Node(3000, 1000);
  }
  // Line r (from 1) of .LI1 after its head.
  std::string Li1Line(int r) const {
    const std::string li1 = ReadBytes(ModelFile(".LI1"));
    std::size_t at = li1.find("\r\n") + 2;
    for (int i = 1; i < r; ++i) at = li1.find("\r\n", at) + 2;
    return li1.substr(at, li1.find("\r\n", at) - at);
  }
  void ExpectLabels(Grid& g, const std::vector<std::string>& labels) {
    ASSERT_EQ(g.MaxRows(), static_cast<int>(labels.size()));
    for (std::size_t i = 0; i < labels.size(); ++i) {
      EXPECT_EQ(g.Text(1, static_cast<int>(i) + 1), labels[i]);
    }
  }

  int n1 = 0, n2 = 0;
};

TEST_F(SimpleElements, TheFormsAreMadeByTheirNamesWithTheirCaptions) {
  const int rout = Link("X_ROUT", n1, n2);
  const int trans = Link("X_TR", n2, n1);
  const int hybv = Symbol("X_HYBV", 0, 0, n1);
  const int mark = Symbol("X_MARK", 0, 0, n1);
  const int clav = Symbol("X_CLAV", 0, 0, n2);
  const std::vector<std::pair<int, std::pair<std::string, std::string>>> forms = {
      {rout, {"frmRout", "Routage hydrologique"}},
      {trans, {"frmTrans", "Translateur d'hydrogramme"}},
      {hybv, {"frmHyBv", "Exutoire de BV"}},
      {mark, {"frmMark", "Marquage de sortie du résultat"}},
      {clav, {"frmClav", "Condition limite aval (CLAV)"}}};
  for (const auto& [element, form] : forms) {
    surface.SetCurrentObject(element);
    auto made = MakeEditorForm(form.first, context);
    ASSERT_NE(made, nullptr) << form.first;
    EXPECT_EQ(made->Caption(), form.second);
    std::vector<std::string> names;
    for (const FormCommand& command : made->Commands()) names.push_back(command.name);
    EXPECT_EQ(names, (std::vector<std::string>{"cmdOk", "cmdAnnul"})) << form.first;
  }
}

TEST_F(SimpleElements, RoutingOpensOnItsCreationValues) {
  const int rout = Link("X_ROUT", n1, n2);
  auto form = Open<FrmRout>(rout);
  Grid& g = form->grid();
  ExpectLabels(g, {"Identificateur (16 car maxi)=", "Section moyenne du collecteur (m2)=",
                   "Longueur de routage (m)=", "Pente moyenne du collecteur (-)="});
  EXPECT_EQ(g.Text(kValue, 1), "Rou_1");
  EXPECT_EQ(g.Text(kValue, 2), "1.00");
  EXPECT_EQ(g.Text(kValue, 3), CellNumber(Val(TagOf(rout, "L")), 2));
  EXPECT_GT(g.Value(kValue, 3), 0);
  EXPECT_EQ(g.Text(kValue, 4), "0.00500");
  EXPECT_EQ(g.Type(kValue, 2), CellType::Float(0, 99999999.99, 2));
  EXPECT_EQ(g.Type(kValue, 4), CellType::Float(-9.99999, 9.99999, 5));
  EXPECT_TRUE(g.Locked(1, 1));
}

TEST_F(SimpleElements, TheEditedRoutingReachesItsLinkRecord) {
  const int rout = Link("X_ROUT", n1, n2);
  auto form = Open<FrmRout>(rout);
  Grid& g = form->grid();
  g.SetText(kValue, 1, "Route 1");
  g.SetText(kValue, 2, "2.5");
  g.SetText(kValue, 3, "140");
  g.SetText(kValue, 4, "0.02");
  form->Run("cmdOk");
  ASSERT_TRUE(form->Closed());
  EXPECT_EQ(TagOf(rout, "libell"), "Route 1");
  Generate();
  EXPECT_EQ(Li2Record(1), Record({{1, 2.5}, {2, 140}, {3, 0.02}}));
  EXPECT_EQ(Li1Line(1).substr(0, 35), "    1             Route 1    2    2");
}

TEST_F(SimpleElements, ALabelTakenByAnElementOfTheSameKindIsRefused) {
  const int first = Link("X_ROUT", n1, n2);
  const int second = Link("X_ROUT", n2, n1);
  const TagList before = Tags(second);
  auto form = Open<FrmRout>(second);
  Grid& g = form->grid();
  g.SetText(kValue, 1, "ROU_1");
  g.SetText(kValue, 2, "9");
  g.SetActiveCell(kValue, 2);
  form->Run("cmdOk");
  ExpectLastMessage(ui, "ROU_1 existe déjà.", "Erreur de saisie", MessageIcon::kNone);
  EXPECT_FALSE(form->Closed());
  EXPECT_EQ(g.Text(kValue, 1), "Rou_2");
  EXPECT_EQ(g.ActiveRow(), 1);
  EXPECT_EQ(Tags(second), before);
  EXPECT_EQ(TagOf(first, "libell"), "Rou_1");
}

TEST_F(SimpleElements, CancelWritesNothing) {
  const int hybv = Symbol("X_HYBV", 0, 0, n1);
  const TagList before = Tags(hybv);
  auto form = Open<FrmHyBv>(hybv);
  form->grid().SetText(kValue, 2, "0.5");
  form->Run("cmdAnnul");
  EXPECT_TRUE(form->Closed());
  EXPECT_EQ(Tags(hybv), before);
}

TEST_F(SimpleElements, TheEditedOutletReachesItsLinkRecord) {
  const int hybv = Symbol("X_HYBV", 0, 0, n1);
  auto form = Open<FrmHyBv>(hybv);
  Grid& g = form->grid();
  ExpectLabels(g, {"Identificateur (16 car maxi)=", "Débit de temps sec (m3/s)",
                   "Surface au miroir équivalente du réseau amont (m2)="});
  EXPECT_EQ(g.Text(kValue, 2), "0.000");
  EXPECT_EQ(g.Type(kValue, 2), CellType::Float(0, 99999.999, 3));
  EXPECT_EQ(g.Type(kValue, 3), CellType::Float(0, 99999999.99, 2));
  g.SetText(kValue, 2, "0.125");
  g.SetText(kValue, 3, "35");
  form->Run("cmdOk");
  ASSERT_TRUE(form->Closed());
  EXPECT_EQ(TagOf(hybv, "Qsec"), "0.125");
  EXPECT_EQ(TagOf(hybv, "SR"), "35");
  Generate();
  EXPECT_EQ(Li2Record(1), Record({{1, 0.125}, {2, 35}}));
}

TEST_F(SimpleElements, ATranslatorGivenATakenNameKeepsItAndWritesTheOldNameToId) {
  const int taken = Link("X_TR", n1, n2);
  Set(taken, {{"libell", "Raccord A"}});
  const int trans = Link("X_TR", n2, n1);
  auto form = Open<FrmTrans>(trans);
  Grid& g = form->grid();
  ExpectLabels(g, {"Identificateur (16 car. maxi)="});
  EXPECT_EQ(g.Text(kValue, 1), "Tr_2");
  Set(trans, {{"libell", "Ancien"}});
  auto renamed = Open<FrmTrans>(trans);
  renamed->grid().SetText(kValue, 1, "raccord a");
  renamed->Run("cmdOk");
  ExpectLastMessage(ui, "raccord a existe déjà.", "Erreur de saisie", MessageIcon::kNone);
  EXPECT_FALSE(renamed->Closed());
  EXPECT_EQ(TagOf(trans, "libell"), "raccord a");
  EXPECT_EQ(TagOf(trans, "Id"), "Ancien");
  EXPECT_EQ(renamed->grid().Text(kValue, 1), "Ancien");
  EXPECT_EQ(renamed->grid().ActiveRow(), 1);
}

TEST_F(SimpleElements, TheEditedTranslatorReachesItsLinkLine) {
  const int trans = Link("X_TR", n1, n2);
  auto form = Open<FrmTrans>(trans);
  form->grid().SetText(kValue, 1, "Raccord Sud");
  form->Run("cmdOk");
  ASSERT_TRUE(form->Closed());
  EXPECT_EQ(TagOf(trans, "Id"), "Tr_1");
  Generate();
  EXPECT_EQ(Li1Line(1),
            "    1         Raccord Sud    2   13         1         2         0         0"
            "         0         0");
  EXPECT_EQ(Li2Record(1), std::string(812, '\0'));
}

TEST_F(SimpleElements, TheExportOfAMarkIsACheckBox) {
  const int mark = Symbol("X_MARK", 0, 0, n1);
  auto form = Open<FrmMark>(mark);
  Grid& g = form->grid();
  ExpectLabels(g, {"Identificateur (16 car. maxi)=", "Export de l'hydrogramme="});
  EXPECT_EQ(g.Type(kValue, 2), CellType::CheckBox());
  EXPECT_EQ(g.Text(kValue, 2), "0");
  g.SetText(kValue, 2, "1");
  form->Run("cmdOk");
  ASSERT_TRUE(form->Closed());
  EXPECT_EQ(TagOf(mark, "Export"), "1");
  Generate();
  EXPECT_EQ(Li1Line(1).substr(25, 10), "    1   12");
  EXPECT_EQ(Li2Record(1), Record({{1, 1}}));
  // Opened again, the box is ticked.
  EXPECT_EQ(Open<FrmMark>(mark)->grid().Text(kValue, 2), "1");
}

TEST_F(SimpleElements, TheEditedBoundaryConditionReachesItsLinkRecord) {
  const int clav = Symbol("X_CLAV", 0, 0, n2);
  Set(clav, {{"Export", "1"}});
  auto form = Open<FrmClav>(clav);
  Grid& g = form->grid();
  ExpectLabels(g, {"Identificateur (16 car. maxi)=", "Export de l'hydrogramme="});
  EXPECT_EQ(g.Text(kValue, 2), "1");
  g.SetText(kValue, 1, "Exutoire");
  g.SetText(kValue, 2, "0");
  form->Run("cmdOk");
  ASSERT_TRUE(form->Closed());
  EXPECT_EQ(TagOf(clav, "libell"), "Exutoire");
  Generate();
  EXPECT_EQ(Li1Line(1).substr(0, 35), "    1            Exutoire    1   14");
  EXPECT_EQ(Li2Record(1), std::string(812, '\0'));
  Set(clav, {{"Export", "1"}});
  Generate();
  EXPECT_EQ(Li2Record(1), Record({{1, 1}}));
}

TEST_F(SimpleElements, AClickShowsTheCellInTheStatusLine) {
  auto form = Open<FrmHyBv>(Symbol("X_HYBV", 0, 0, n1));
  form->ClickCell(form->grid(), 1, 2);
  EXPECT_EQ(ui.Statuses().back(), "Débit de temps sec (m3/s)");
}

}  // namespace
}  // namespace pluvane
