// The tags viewer in its three modes.
#include <gtest/gtest.h>

#include "drawing/surface_helpers.h"
#include "network/frm_tags_viewer.h"
#include "placement_fixture.h"

namespace pluvane {
namespace {

class TagsViewerTest : public PlacementTest {
 protected:
  const UiMessage& Last() const { return ui.Messages().back(); }
};

TEST_F(TagsViewerTest, TheListsAreOfferedAsTheyStand) {
  EXPECT_EQ(FamilyEntries().size(), 5u);
  EXPECT_EQ(TypeEntries()[13], " : PLU  (Pluviographe)");
  EXPECT_EQ(TypeEntries()[17], "15 : MRK  (Marquage de sortie)");
}

TEST_F(TagsViewerTest, AScanListsTheTagsOfEachMatchingObject) {
  const int node = Node(1000, 1000);
  surface.SetCurrentObject(node);
  surface.SetObjTag("libell", "Place");
  Symbol("X_BV", 5000, 5000);
  std::string caption;
  std::vector<std::string> shown;
  FrmTagsViewer form(surface, state, ui, "SCAN",
                     [&](const std::string& c, const std::vector<std::string>& lines) {
                       caption = c;
                       shown = lines;
                     });
  form.choice().SetText(1, 2, "99 : NOD  (les noeuds)");
  form.Run("cmdGo");
  EXPECT_EQ(caption, "Visionneuse des étiquettes");
  ASSERT_GE(shown.size(), 4u);
  EXPECT_EQ(shown[0], "Données des iName = 99");
  EXPECT_EQ(shown[1], "*99 Place n° 1");
  EXPECT_EQ(shown.back(), "1 obj ont été traités");
  std::vector<std::string> tag_lines(shown.begin() + 2, shown.end() - 1);
  std::vector<std::string> expected;
  for (const auto& [name, value] : Tags(node)) {
    if (name != "iGroup" && name != "iName" && name != "Xlog" && name != "Ylog")
      expected.push_back(name + " : " + value);
  }
  EXPECT_EQ(tag_lines, expected);
}

TEST_F(TagsViewerTest, ANoMatchAndAnEmptyOptionAreTold) {
  Node(1000, 1000);
  FrmTagsViewer form(surface, state, ui, "SCAN");
  form.Run("cmdGo");
  EXPECT_EQ(Last().text, "La valeur de l'option sélectionnée n'est pas renseignée ?");
  form.choice().SetText(1, 1, " 3 : elements posés sur un noeud");
  form.Run("cmdGo");
  EXPECT_EQ(Last().text, "Ces obj sont introuvables.");
}

TEST_F(TagsViewerTest, LabelsAreWrittenOnTheDrawing) {
  const int a = Node(1000, 1000);
  const int b = Node(3000, 1000);
  const int cac = Link("X_CAC", a, b);
  surface.SetCurrentObject(cac);
  surface.SetObjTag("libell", "Rue basse");
  FrmTagsViewer form(surface, state, ui, "ETIQ");
  form.choice().SetText(1, 2, " 5 : CAC  (Collecteur circulaire)");
  form.Run("cmdGo");
  EXPECT_EQ(Last().text, " ok 1 étiquettes ont été placés.");
  const int text = FindObject(surface, "Id", "ETIQ");
  ASSERT_GT(text, 0);
  surface.SetCurrentObject(text);
  EXPECT_EQ(surface.ObjectKind(), kKindText);
  EXPECT_EQ(surface.TextString(), "Rue basse");
}

TEST_F(TagsViewerTest, SymbolsChangeOnlyOnPointElements) {
  const int a = Node(1000, 1000);
  const int b = Node(3000, 1000);
  Link("X_CAC", a, b);
  const int bv = Symbol("X_BV", 5000, 5000);
  FrmTagsViewer form(surface, state, ui, "APPSYMBOLE");
  form.choice().SetText(1, 1, " 2 : elements binodaux");
  form.Run("cmdGo");
  EXPECT_EQ(Last().text, "Le changement de symbole ne s'applique que sur les elm uninodaux.");
  form.choice().SetText(1, 1, " 1 : elements uninodaux");
  ui.Queue("");  // the file dialog cancelled
  form.Run("cmdGo");
  EXPECT_EQ(Last().title, "Spécifier le metafile du symbole à charger");
  surface.SetCurrentObject(bv);
  EXPECT_EQ(surface.ObjectKind(), kKindPicture);
  ui.Queue("ROND");
  form.Run("cmdGo");
  EXPECT_EQ(Last().text, "1 elm ont été changés");
  surface.SetCurrentObject(bv);
  EXPECT_EQ(surface.ObjectKind(), kKindEllipse);
}

}  // namespace
}  // namespace pluvane
