// The maintenance commands of the Util and myUtil menus.
#include <gtest/gtest.h>

#include "foundation/text.h"
#include "drawing/surface_helpers.h"
#include "network/bulk_maintenance.h"
#include "network/catalogue.h"
#include "placement_fixture.h"

namespace pluvane {
namespace {

class MaintenanceCommandsTest : public PlacementTest {
 protected:
  void Set(int number, const char* tag, const std::string& value) {
    surface.SetCurrentObject(number);
    surface.SetObjTag(tag, value);
  }
  int Text(double x) {
    const int n = surface.AddObject(kKindText, static_cast<std::int32_t>(x), 0,
                                    static_cast<std::int32_t>(x) + 100, 50);
    surface.SetObjTag("Id", "ETIQ");
    return n;
  }
  void Select(std::initializer_list<int> objects) {
    surface.DeselectAll();
    for (int n : objects) {
      surface.SetCurrentObject(n);
      surface.SetSelected(true);
    }
  }
  const UiMessage& Last() const { return ui.Messages().back(); }
};

TEST_F(MaintenanceCommandsTest, TheTypeIsWhatStandsBeforeTheColon) {
  EXPECT_EQ(TypeOfChoice(" 5 : CAC  (Collecteur circulaire)"), 5);
  EXPECT_EQ(TypeOfChoice("150: Pt   (Point de calage)"), 150);
  EXPECT_EQ(TypeOfChoice("42:"), 42);
  EXPECT_EQ(TypeOfChoice(""), 0);
  EXPECT_EQ(TypeOfChoice(" : PLU  (Pluviographe)"), 0);
  EXPECT_FALSE(TypeOfChoice("?? : rentrez un nombre entier suivi de 2 points"));
}

TEST_F(MaintenanceCommandsTest, WithNoNetworkEachCommandSaysSo) {
  MnuDelTxt(surface, ui);
  EXPECT_EQ(Last().text, "Un réseau doit être chargé.");
  EXPECT_EQ(Last().title, "Suppression de texte");
  mnuMyUtil_IdRegen(surface, ui);
  mnuMyUtil_Tst1(surface, ui);
  mnuMyUtil_Tst2(surface, ui);
  for (const UiMessage& message : ui.Messages()) {
    EXPECT_EQ(message.kind, "message");
    EXPECT_EQ(message.text, "Un réseau doit être chargé.");
  }
  EXPECT_EQ(ui.Messages().size(), 4u);
}

TEST_F(MaintenanceCommandsTest, TextsMustBeSelectedAndOnlyTextsGo) {
  const int node = Node(1000, 1000);
  const int t1 = Text(2000);
  const int t2 = Text(3000);
  Text(4000);
  surface.DeselectAll();
  MnuDelTxt(surface, ui);
  ASSERT_EQ(ui.Messages().size(), 2u);
  EXPECT_EQ(ui.Messages()[0].text, "Les textes à supprimer doivent être sélectionnés !");
  EXPECT_EQ(ui.Messages()[1].text, "recommencez svp...");
  EXPECT_EQ(ui.Messages()[1].title, "Suppression de texte");
  EXPECT_EQ(surface.ObjectCount(kPage), 4);
  Select({node, t1, t2});
  MnuDelTxt(surface, ui);
  EXPECT_EQ(Last().text, " ok 2 textes ont été effacés");
  EXPECT_EQ(surface.ObjectCount(kPage), 2);
  EXPECT_NE(surface.ObjectShape(node), nullptr);
}

TEST_F(MaintenanceCommandsTest, DeletionByIdAndByType) {
  const int a = Node(1000, 1000);
  const int b = Node(1000, 3000);
  Link("X_CAC", a, b);
  Symbol("X_BV", 5000, 5000);
  Symbol("X_BV", 7000, 7000);
  ui.QueueCancel();
  mnuMyUtil_Tst1(surface, ui);
  EXPECT_EQ(Last().text, "Entrez Id  à supprimer");
  EXPECT_EQ(surface.ObjectCount(kPage), 5);
  ui.Queue("Cac_1");
  mnuMyUtil_Tst1(surface, ui);
  EXPECT_EQ(Last().text, "Ok 1 obj ont été traités");
  EXPECT_EQ(surface.ObjectCount(kPage), 4);
  ui.Queue("douze");
  mnuMyUtil_Tst2(surface, ui);
  EXPECT_EQ(surface.ObjectCount(kPage), 4);
  ui.Queue("1");
  mnuMyUtil_Tst2(surface, ui);
  EXPECT_EQ(ui.Messages()[ui.Messages().size() - 2].text,
            "Rentrez la valeur de l'Obj Iname à supprimer.");
  EXPECT_EQ(Last().text, "Ok 2 ont été supprimés.");
  EXPECT_EQ(Last().title, "DelObjByIname");
  EXPECT_EQ(CountByName(surface, kINameBV), 0);
  EXPECT_EQ(surface.ObjectCount(kPage), 2);
}

TEST_F(MaintenanceCommandsTest, IdsAreRegeneratedByRankAndLabelsRepaired) {
  const int n1 = Node(1000, 1000);
  const int n2 = Node(1000, 3000);
  const int bv = Symbol("X_BV", 5000, 5000);
  Set(n1, "Id", "X");
  Set(n2, "Id", "Y");
  Set(n2, "libell", "");
  Set(bv, "libell", "");
  Set(bv, "Libell", "Ancien");
  ui.Queue("99 : NOD  (les noeuds)");
  mnuMyUtil_IdRegen(surface, ui);
  EXPECT_EQ(Last().text, "ok, 2 Id régénérés");
  EXPECT_EQ(TagOfObject(surface, n1, "Id"), "Nod_1");
  EXPECT_EQ(TagOfObject(surface, n2, "Id"), "Nod_2");
  EXPECT_EQ(TagOfObject(surface, n2, "libell"), "Nod_2");
  EXPECT_EQ(TagOfObject(surface, bv, "Libell"), "Ancien");  // another type: untouched
  ui.Queue("");
  mnuMyUtil_IdRegen(surface, ui);
  EXPECT_EQ(Last().text, "ok, 3 Id régénérés");
  EXPECT_EQ(TagOfObject(surface, bv, "libell"), "Ancien");
  EXPECT_EQ(TagOfObject(surface, bv, "Libell"), "");
}

TEST_F(MaintenanceCommandsTest, LabelsTakeTheIdsOnlyOnceConfirmed) {
  const int node = Node(1000, 1000);
  Set(node, "libell", "Place");
  ui.QueueNo();
  mnuUtil_MajObjByIname(surface, ui);
  EXPECT_EQ(Last().text, "Les libellés des elm prendront les valeurs internes des identifiants");
  EXPECT_EQ(Last().title, "Réinitialiser les libellés");
  EXPECT_EQ(TagOfObject(surface, node, "libell"), "Place");
  ui.QueueYes();
  ui.Queue("99");
  mnuUtil_MajObjByIname(surface, ui);
  EXPECT_EQ(Last().text, "ok, 1 libellés régénérés");
  EXPECT_EQ(TagOfObject(surface, node, "libell"), TagOfObject(surface, node, "Id"));
}

TEST_F(MaintenanceCommandsTest, UpperCaseNodeLabelsAreLowered) {
  const int a = Node(1000, 1000);
  const int b = Node(1000, 3000);
  Set(a, "libell", "PLACE DU MARCHÉ");
  Set(b, "libell", "Gare");
  mnuMyUtil_WriteNodsLib2lib(surface, ui);
  EXPECT_EQ(Last().text, "ok, 1 libellés régénérés");
  EXPECT_EQ(TagOfObject(surface, a, "libell"), LCase("PLACE DU MARCHÉ"));
  EXPECT_EQ(TagOfObject(surface, b, "libell"), "Gare");
}

TEST_F(MaintenanceCommandsTest, LinksAndPointsTakeTheIdsOfTheirNodes) {
  const int a = Node(1000, 1000);
  const int b = Node(1000, 3000);
  const int cac = Link("X_CAC", a, b);
  const int outlet = Symbol("X_HYBV", 0, 0, b);
  Set(a, "Id", "Amont");
  Set(b, "Id", "Aval");
  Set(cac, "sNodAm", "");
  Set(outlet, "sNodAm", "");
  mnuMyUtil_WriteIdInNods(surface, ui);
  EXPECT_EQ(Last().text, "2 obj ont été traités");
  EXPECT_EQ(TagOfObject(surface, cac, "sNodAm"), "Amont");
  EXPECT_EQ(TagOfObject(surface, cac, "sNodAv"), "Aval");
  EXPECT_EQ(TagOfObject(surface, outlet, "sNodAm"), "Aval");
}

TEST_F(MaintenanceCommandsTest, RegulatorsNameTheirLinksByIdOrByLabel) {
  const int a = Node(1000, 1000);
  const int b = Node(1000, 3000);
  const int cac = Link("X_CAC", a, b);
  Set(cac, "libell", "Rue haute");
  const int dqq = Symbol("X_DQQ", 0, 0, a);
  Set(dqq, "IdAval", "Cac_1");
  Set(dqq, "IdDer_a", "inconnu");
  mnuMyUtil_WriteLinkLibInGroup3(surface, ui);
  EXPECT_EQ(Last().text, "1 obj ont été traités");
  EXPECT_EQ(TagOfObject(surface, dqq, "IdAval"), "Rue haute");
  EXPECT_EQ(TagOfObject(surface, dqq, "IdDer_a"), "inconnu");
  mnuMyUtil_WriteLinkIdInGroup3(surface, ui);
  EXPECT_EQ(TagOfObject(surface, dqq, "IdAval"), "Cac_1");
}

TEST_F(MaintenanceCommandsTest, NodeLinksAreRecounted) {
  const int a = Node(1000, 1000);
  const int b = Node(1000, 3000);
  Link("X_CAC", a, b);
  Set(a, "iLink", "7");
  mnuMyUtil_Nod_iLinkUpdate(surface, ui);
  EXPECT_EQ(Last().text, "1 obj ont été traités");
  EXPECT_EQ(TagOfObject(surface, a, "iLink"), "1");
}

}  // namespace
}  // namespace pluvane
