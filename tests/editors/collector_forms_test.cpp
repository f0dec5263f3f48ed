#include <gtest/gtest.h>

#include "editor_fixture.h"
#include "editors/editor_forms.h"
#include "editors/frm_cac.h"
#include "editors/frm_caf.h"
#include "editors/frm_cao.h"
#include "editors/frm_sect.h"
#include "editors/section_library.h"
#include "foundation/expect_message.h"

namespace pluvane {
namespace {

class CollectorForms : public EditorTest {
 protected:
  // A circular collector as created, made current.
  int Cac(const std::string& label = "Cac_1") {
    const int n = AddObject({{"iName", "5"},
                             {"iGroup", "2"},
                             {"Id", label},
                             {"libell", label},
                             {"ZRam", "0"},
                             {"ZRav", "0"},
                             {"Dn", "1"},
                             {"L", "250.4"},
                             {"K", "60"}});
    surface.SetCurrentObject(n);
    return n;
  }
  int Caf(const std::string& label = "Caf_1") {
    const int n = AddObject({{"iName", "6"},
                             {"iGroup", "2"},
                             {"Id", label},
                             {"libell", label},
                             {"ZRam", "0"},
                             {"ZRav", "0"},
                             {"IdSect", ""}});
    surface.SetCurrentObject(n);
    return n;
  }
  int Cao(const std::string& label = "Cao_1") {
    const int n = AddObject({{"iName", "7"},
                             {"iGroup", "2"},
                             {"Id", label},
                             {"libell", label},
                             {"ZRam", "0"},
                             {"ZRav", "0"},
                             {"IdSect", ""},
                             {"L", "12"},
                             {"Kmin", "50"},
                             {"Largeur", "100"}});
    surface.SetCurrentObject(n);
    return n;
  }
  static std::vector<std::string> Labels(Grid& grid) {
    std::vector<std::string> labels;
    for (int row = 1; row <= grid.MaxRows(); ++row) labels.push_back(grid.Text(1, row));
    return labels;
  }
};

TEST_F(CollectorForms, TheTableOfEditorsHasTheThreeCollectors) {
  Cac();
  auto form = MakeEditorForm("frmCac", context);
  ASSERT_NE(form, nullptr);
  EXPECT_EQ(form->Caption(), "Collecteur circulaire");
  Caf();
  form = MakeEditorForm("frmCaf", context);
  ASSERT_NE(form, nullptr);
  EXPECT_EQ(form->Caption(), "Collecteur fermé");
  Cao();
  form = MakeEditorForm("frmCao", context);
  ASSERT_NE(form, nullptr);
  EXPECT_EQ(form->Caption(), "Collecteur ouvert");
}

TEST_F(CollectorForms, CircularRowsAndCells) {
  Cac();
  FrmCac form(context);
  Grid& grid = form.grid();
  EXPECT_EQ(grid.Caption(), "Collecteur circulaire");
  EXPECT_EQ(
      Labels(grid),
      (std::vector<std::string>{
          "Identificateur (16 car. maxi)=", "Cote radier amont (ngf)=", "Cote radier aval (ngf)=",
          "Diamètre (m)=", "Longueur (m)=", "Coef. Strickler (-)=", "H moyenne sous chaussée (m)=",
          "Surface du réservoir fictif en cas de mise en charge (m2)="}));
  EXPECT_EQ(grid.Text(2, 1), "Cac_1");
  EXPECT_EQ(grid.Text(2, 4), "1.00");
  EXPECT_EQ(grid.Text(2, 5), "250.40");
  EXPECT_EQ(grid.Text(2, 6), "60.00");
  EXPECT_EQ(grid.Text(2, 8), "0.00");
  EXPECT_EQ(grid.Type(2, 1).kind, CellType::kText);
  EXPECT_EQ(grid.Type(2, 2), CellType::Float(-99999999.99, 99999999.99, 2));
  EXPECT_EQ(grid.Type(2, 3), CellType::Float(-99999999.99, 99999999.99, 2));
  for (int row = 4; row <= 8; ++row)
    EXPECT_EQ(grid.Type(2, row), CellType::Float(0, 99999999.99, 2)) << row;
  EXPECT_TRUE(grid.Locked(1, 3));
  EXPECT_EQ(grid.ActiveCol(), 2);
  EXPECT_EQ(grid.ActiveRow(), 2);
}

TEST_F(CollectorForms, ClosedAndOpenRows) {
  AddSection(surface, state, "Ovoide");
  AddSection(surface, state, "Dalot 2x1");
  Caf();
  FrmCaf caf(context);
  EXPECT_EQ(Labels(caf.grid()),
            (std::vector<std::string>{
                "Identificateur (16 car maxi)=", "Cote radier amont (ngf)=",
                "Cote radier aval (ngf)=", "Id. de la section (16 car maxi)=", "Longueur (m)=",
                "Coef. Strickler (-)=", "H moyenne sous chaussée (m)=",
                "Surface du réservoir fictif en cas de mise en charge (m2)="}));
  EXPECT_EQ(caf.grid().Type(2, 4), CellType::List("Ovoide\tDalot 2x1"));
  Cao();
  FrmCao cao(context);
  EXPECT_EQ(
      Labels(cao.grid()),
      (std::vector<std::string>{
          "Identificateur (16 car maxi)=", "Cote radier amont (ngf)=", "Cote radier aval (ngf)=",
          "Id. de la section (16 car maxi)=", "Longueur (m)=", "Coef. Strickler du lit mineur (-)=",
          "Largeur du lit majeur (m)=", "Coef. Strickler du lit majeur (-)="}));
  EXPECT_EQ(cao.grid().Type(2, 4), CellType::List("Ovoide\tDalot 2x1"));
  EXPECT_EQ(cao.grid().Text(2, 6), "50.00");
  EXPECT_EQ(cao.grid().Text(2, 7), "100.00");
  EXPECT_EQ(cao.grid().Type(2, 8), CellType::Float(0, 99999999.99, 2));
}

TEST_F(CollectorForms, OkStoresNumbersAsNumbers) {
  const int n = Cac();
  FrmCac form(context);
  Grid& grid = form.grid();
  grid.SetText(2, 1, "Rue Haute");
  grid.SetText(2, 2, "-1.5");
  grid.SetText(2, 3, "-2.25");
  grid.SetText(2, 4, "0.80");
  grid.SetText(2, 7, "1.50");
  grid.SetText(2, 8, "abc");
  form.Run("cmdOk");
  EXPECT_TRUE(form.Closed());
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(Tag(n, "libell"), "Rue Haute");
  EXPECT_EQ(Tag(n, "ZRam"), "-1.5");
  EXPECT_EQ(Tag(n, "ZRav"), "-2.25");
  EXPECT_EQ(Tag(n, "Dn"), "0.8");
  EXPECT_EQ(Tag(n, "L"), "250.4");
  EXPECT_EQ(Tag(n, "K"), "60");
  EXPECT_EQ(Tag(n, "HD"), "1.5");
  EXPECT_EQ(Tag(n, "SR"), "0");
  EXPECT_EQ(Tag(n, "Id"), "Cac_1");
}

TEST_F(CollectorForms, ADiameterOfNearlyZeroIsRefused) {
  const int n = Cac();
  FrmCac form(context);
  form.grid().SetText(2, 1, "Nouveau");
  form.grid().SetText(2, 4, "0.000009");
  form.grid().SetText(2, 6, "80");
  form.grid().SetActiveCell(2, 1);
  form.Run("cmdOk");
  ExpectLastMessage(ui, "Le diamètre doit être non nul!", "Erreur de saisie",
                    MessageIcon::kInformation);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(form.grid().ActiveRow(), 4);
  EXPECT_EQ(Tag(n, "libell"), "Cac_1");
  EXPECT_EQ(Tag(n, "Dn"), "1");
  EXPECT_EQ(Tag(n, "K"), "60");
  form.grid().SetText(2, 4, "0.00001");
  ui.Clear();
  form.Run("cmdOk");
  EXPECT_TRUE(ui.Empty());
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(Tag(n, "Dn"), "1E-05");
  EXPECT_EQ(Tag(n, "K"), "80");
}

TEST_F(CollectorForms, AClosedCollectorHasNoTestOnItsSection) {
  const int n = Caf();
  FrmCaf form(context);
  form.grid().SetText(2, 4, "");
  form.grid().SetText(2, 5, "0");
  form.Run("cmdOk");
  EXPECT_TRUE(form.Closed());
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(Tag(n, "IdSect"), "");
  EXPECT_EQ(Tag(n, "L"), "0");
}

TEST_F(CollectorForms, ADuplicateLabelIsRefused) {
  Cac("Rue Basse");
  AddObject({{"iName", "6"}, {"libell", "Rue Haute"}});  // another kind
  const int n = Cac("Cac_2");
  FrmCac form(context);
  form.grid().SetText(2, 1, "RUE basse");
  form.grid().SetText(2, 2, "7");
  form.Run("cmdOk");
  ExpectLastMessage(ui, "RUE basse existe déjà.", "Erreur de saisie", MessageIcon::kNone);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(form.grid().Text(2, 1), "Cac_2");
  EXPECT_EQ(form.grid().ActiveRow(), 1);
  EXPECT_EQ(form.grid().ActiveCol(), 2);
  EXPECT_EQ(Tag(n, "libell"), "Cac_2");
  EXPECT_EQ(Tag(n, "ZRam"), "0");
  // The name of an element of another kind is free.
  form.grid().SetText(2, 1, "Rue Haute");
  ui.Clear();
  form.Run("cmdOk");
  EXPECT_TRUE(ui.Empty());
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(Tag(n, "libell"), "Rue Haute");
  EXPECT_EQ(Tag(n, "ZRam"), "7");
}

TEST_F(CollectorForms, KeepingItsOwnLabelIsNoDuplicate) {
  const int n = Caf("Collecteur A");
  FrmCaf form(context);
  form.grid().SetText(2, 1, "collecteur a");
  form.Run("cmdOk");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(Tag(n, "libell"), "collecteur a");
}

TEST_F(CollectorForms, ASectionThatWasDeletedKeepsItsName) {
  AddSection(surface, state, "Ovoide");
  AddSection(surface, state, "Supprimee");
  const int n = Caf();
  SetTag(n, "IdSect", "Supprimee");
  {
    FrmSect library(context);
    library.grid().SetActiveCell(1, 2);
    library.Run("mnuDel");
  }
  ASSERT_EQ(SectionIds(surface), (std::vector<std::string>{"Ovoide"}));
  surface.SetCurrentObject(n);
  FrmCaf form(context);
  EXPECT_EQ(form.grid().Type(2, 4), CellType::List("Ovoide"));
  EXPECT_EQ(form.grid().Text(2, 4), "Supprimee");
  EXPECT_EQ(form.grid().ListIndex(2, 4), -1);
  form.Run("cmdOk");
  EXPECT_EQ(Tag(n, "IdSect"), "Supprimee");
  // A section chosen from the list is stored by its name.
  const int m = Caf("Caf_2");
  FrmCaf other(context);
  other.grid().SetListIndex(2, 4, 0);
  other.Run("cmdOk");
  EXPECT_EQ(Tag(m, "IdSect"), "Ovoide");
}

TEST_F(CollectorForms, DroppingTheListOfAnEmptyLibrarySaysWhereSectionsAreMade) {
  const std::string text =
      "Voir 'Option/Sections de collecteur' pour définir la géométrie de la section des "
      "collecteurs paramétriques.";
  Caf();
  FrmCaf caf(context);
  caf.ClickCell(caf.grid(), 2, 4);
  ExpectLastMessage(ui, text, "Collecteur fermé", MessageIcon::kInformation);
  ui.Clear();
  caf.ClickCell(caf.grid(), 2, 5);
  EXPECT_EQ(ui.Texts().size(), 0u);
  Cao();
  FrmCao cao(context);
  cao.ClickCell(cao.grid(), 2, 4);
  ExpectLastMessage(ui, text, "Collecteur ouvert", MessageIcon::kInformation);
  // With one section, nothing is said.
  AddSection(surface, state, "S1");
  ui.Clear();
  cao.ClickCell(cao.grid(), 2, 4);
  caf.ClickCell(caf.grid(), 2, 4);
  EXPECT_TRUE(ui.Empty());
}

TEST_F(CollectorForms, AClickShowsTheCellInTheStatusLine) {
  Cac();
  FrmCac form(context);
  form.ClickCell(form.grid(), 1, 4);
  form.ClickCell(form.grid(), 2, 6);
  EXPECT_EQ(ui.Statuses(), (std::vector<std::string>{"Diamètre (m)=", "60.00"}));
}

TEST_F(CollectorForms, RenamingAnOpenCollectorReminds) {
  const int n = Cao();
  {
    FrmCao form(context);
    form.Run("cmdOk");  // same name: no reminder
    EXPECT_TRUE(form.Closed());
    EXPECT_TRUE(ui.Empty());
  }
  {
    FrmCao form(context);
    form.grid().SetText(2, 1, "Fosse");
    form.grid().SetText(2, 8, "15");
    form.Run("cmdOk");
    ExpectLastMessage(ui, "Ne pas oublier de MajUsIdDansIgroup/option de sortie", "",
                      MessageIcon::kNone);
    EXPECT_TRUE(form.Closed());
    EXPECT_EQ(Tag(n, "libell"), "Fosse");
    EXPECT_EQ(Tag(n, "Kmaj"), "15");
  }
  ui.Clear();
  {
    FrmCao form(context);
    form.grid().SetText(2, 1, "");
    form.Run("cmdOk");  // an empty name: no reminder
    EXPECT_TRUE(ui.Empty());
    EXPECT_EQ(Tag(n, "libell"), "");
  }
}

TEST_F(CollectorForms, CancelWritesNothing) {
  const int n = Cao();
  FrmCao form(context);
  form.grid().SetText(2, 1, "Autre");
  form.grid().SetText(2, 6, "20");
  form.Run("cmdAnnul");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(Tag(n, "libell"), "Cao_1");
  EXPECT_EQ(Tag(n, "Kmin"), "50");
}

}  // namespace
}  // namespace pluvane
