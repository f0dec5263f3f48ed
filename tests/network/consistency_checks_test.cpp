// The three checks of the Exploitation menu and their clickable report.
#include <gtest/gtest.h>

#include <algorithm>

#include "drawing/surface_helpers.h"
#include "network/catalogue.h"
#include "network/consistency_checks.h"
#include "network/frm_tag_message.h"
#include "placement_fixture.h"

namespace pluvane {
namespace {

using Lines = std::vector<std::string>;

class ChecksTest : public PlacementTest {
 protected:
  void Set(int number, const char* tag, const std::string& value) {
    surface.SetCurrentObject(number);
    surface.SetObjTag(tag, value);
  }
  // A section record of the library with `points` points.
  int Section(const char* id, int points) {
    const int n = surface.AddObject(kKindRectangle, 0, 0, 1, 1);
    surface.SetObjTag("Id", id);
    surface.SetObjTag("iName", kINameSection);
    surface.SetObjTag("iGroup", -1);
    surface.SetObjTag("NbPt", points);
    return n;
  }
  // Two nodes joined by a collector of the key.
  int Collector(const char* key, double x) {
    return Link(key, Node(x, 1000), Node(x, 3000));
  }
};

TEST_F(ChecksTest, WithNoNetworkEachCheckSaysSoAndGivesNothing) {
  EXPECT_FALSE(CheckForbiddenValues(surface, ui));
  EXPECT_FALSE(CheckDoublets(surface, ui));
  EXPECT_FALSE(CheckOrphans(surface, ui));
  ASSERT_EQ(ui.Messages().size(), 3u);
  EXPECT_EQ(ui.Messages()[0].text, "un reseau doit être chargé !");
  EXPECT_EQ(ui.Messages()[0].title, "Recherche de valeur interdite");
  EXPECT_EQ(ui.Messages()[1].title, "Recherche de doublon");
  EXPECT_EQ(ui.Messages()[2].title, "Recherche d'élément orphelin");
}

TEST_F(ChecksTest, ASectionWithoutPointsIsUndefinedNotUnknown) {
  Section("S_vide", 0);
  Section("S_ok", 3);
  const int empty = Collector("X_CAO", 1000);
  const int good = Collector("X_CAF", 2000);
  const int unknown = Collector("X_CAF", 3000);
  const int blank = Collector("X_CAO", 4000);
  Set(empty, "IdSect", "S_vide");
  Set(good, "IdSect", "S_ok");
  Set(unknown, "IdSect", "S_absente");
  Set(blank, "IdSect", "");
  const auto report = CheckForbiddenValues(surface, ui);
  ASSERT_TRUE(report);
  EXPECT_EQ(report->title, "Recherche de valeur interdite");
  EXPECT_EQ(report->lines, (Lines{"Id : Cao_1 : section non définie (S_vide)",
                                  "Id : Caf_2 : section inconnue", "Id : Cao_2 : section inconnue",
                                  "14 éléments ont été scannés", " éléments trouvés : 3"}));
}

TEST_F(ChecksTest, ZeroSlopesAndDiametersAndEveryRouteAreForbidden) {
  const int cac = Collector("X_CAC", 1000);
  const int sound = Collector("X_CAC", 2000);
  const int bv = Symbol("X_BV", 5000, 5000);
  const int route = Link("X_ROUT", bv, Node(6000, 6000));
  Set(cac, "Dn", "0");
  Set(sound, "Dn", "0.8");
  Set(bv, "m", "0");
  const auto report = CheckForbiddenValues(surface, ui);
  ASSERT_TRUE(report);
  EXPECT_EQ(report->lines, (Lines{"Id : Cac_1 : diametre nul", "Id : Bv_1 : pente nulle",
                                  "Id : Rou_1 : diametre nul", "9 éléments ont été scannés",
                                  " éléments trouvés : 3"}));
  (void)route;
}

TEST_F(ChecksTest, APastedCopyIsADoubletOnIdAndOnLabel) {
  Collector("X_CAC", 1000);
  const int first = Symbol("X_BV", 5000, 5000);
  Set(first, "libell", "Bassin nord");
  Symbol("X_BV", 7000, 7000);
  surface.DeselectAll();
  surface.SetCurrentObject(first);
  surface.SetSelected(true);
  ASSERT_EQ(surface.PasteClipboard(surface.CopySelection(0)), 1);
  const auto report = CheckDoublets(surface, ui);
  ASSERT_TRUE(report);
  EXPECT_EQ(report->lines, (Lines{"Id : Bv_1 : 2 doublons", "Id : Bassin nord : 2 doublons",
                                  "6 éléments ont été scannés", " doublons trouvés : 2"}));
}

TEST_F(ChecksTest, NodesWithoutLinksAndFreeCatchmentsAreOrphans) {
  const int alone = Node(500, 500);
  const int a = Node(1000, 1000);
  const int b = Node(1000, 3000);
  Link("X_CAC", a, b);
  Set(a, "iLink", "0");  // stale, but the node has a link
  Set(b, "iLink", "0");
  const int free_bv = Symbol("X_BV", 5000, 5000);
  const int routed_bv = Symbol("X_BV", 7000, 7000);
  Link("X_ROUT", routed_bv, Node(7000, 8000));
  const int outlet = Symbol("X_HYBV", 0, 0, a);
  const int lost = Symbol("X_HYBV", 9000, 9000);
  Set(lost, "sNodAm", "Nod_404");
  const auto report = CheckOrphans(surface, ui);
  ASSERT_TRUE(report);
  EXPECT_EQ(report->lines,
            (Lines{"Id : " + TagOfObject(surface, alone, "Id"),
                   "Id : " + TagOfObject(surface, free_bv, "Id"),
                   "Id : " + TagOfObject(surface, lost, "Id"), "10 éléments ont été scannés",
                   " éléments trouvés : 3"}));
  (void)outlet;
}

TEST_F(ChecksTest, AnElementAwayFromItsNodeIsAnOrphan) {
  const int node = Node(1000, 1000);
  Node(4000, 4000);
  const int rs = Symbol("X_RS", 4000, 4000);
  Set(rs, "sNodAm", TagOfObject(surface, node, "Id"));
  const auto report = CheckOrphans(surface, ui);
  ASSERT_TRUE(report);
  EXPECT_NE(std::find(report->lines.begin(), report->lines.end(), "Id : Rs_1"),
            report->lines.end());
}

TEST_F(ChecksTest, ChecksChangeNothing) {
  Collector("X_CAC", 1000);
  Symbol("X_BV", 5000, 5000);
  const std::vector<TagList> before = {Tags(1), Tags(2), Tags(3), Tags(4)};
  CheckForbiddenValues(surface, ui);
  CheckDoublets(surface, ui);
  CheckOrphans(surface, ui);
  EXPECT_EQ((std::vector<TagList>{Tags(1), Tags(2), Tags(3), Tags(4)}), before);
  EXPECT_EQ(surface.ObjectCount(kPage), 4);
}

TEST_F(ChecksTest, AClickOnALineLocatesItsElement) {
  const int cac = Collector("X_CAC", 1000);
  Set(cac, "Dn", "0");
  const auto report = CheckForbiddenValues(surface, ui);
  ASSERT_TRUE(report);
  FrmTagMessage form(surface, state, ui, report->title, report->lines);
  EXPECT_EQ(form.Caption(), "Recherche de valeur interdite");
  ASSERT_EQ(form.lines().MaxRows(), 3);
  surface.DeselectAll();
  surface.SetCurrentObject(1);
  form.ClickCell(form.lines(), 1, 1);
  EXPECT_EQ(surface.CurrentObject(), cac);
  EXPECT_EQ(SelectedObjects(surface), std::vector<int>{cac});
  // A closing line names nothing: the selection stays.
  form.ClickCell(form.lines(), 1, 2);
  EXPECT_EQ(SelectedObjects(surface), std::vector<int>{cac});
}

TEST_F(ChecksTest, ALineNamingALabelLocatesByLabelWhateverTheCase) {
  const int node = Node(1000, 1000);
  Set(node, "libell", "Église");
  FrmTagMessage form(surface, state, ui, "t", {"Id : Église : 2 doublons"});
  EXPECT_EQ(form.LocateRow(1), node);
  EXPECT_EQ(DesignationOfLine("iName : 0 Id : Txt_1"), "Txt_1");
  EXPECT_EQ(DesignationOfLine("12 éléments ont été scannés"), "");
}

}  // namespace
}  // namespace pluvane
