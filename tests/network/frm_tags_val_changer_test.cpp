// Changing a tag on many objects, and the editor of one element's tags.
#include <gtest/gtest.h>

#include "drawing/surface_helpers.h"
#include "network/frm_tags_val_changer.h"
#include "placement_fixture.h"

namespace pluvane {
namespace {

class TagsValChangerTest : public PlacementTest {
 protected:
  const UiMessage& Last() const { return ui.Messages().back(); }
  void Set(int number, const char* tag, const std::string& value) {
    surface.SetCurrentObject(number);
    surface.SetObjTag(tag, value);
  }
};

TEST_F(TagsValChangerTest, EveryMatchingObjectTakesTheNewValue) {
  const int a = Node(1000, 1000);
  const int b = Node(1000, 3000);
  const int c = Node(1000, 5000);
  Set(a, "Zrad", "12");
  Set(b, "Zrad", "12");
  Set(c, "Zrad", "13");
  std::vector<std::string> shown;
  FrmTagsValChanger form(surface, ui, [&](const std::vector<std::string>& lines) { shown = lines; });
  form.fields().SetText(1, 2, "99");
  form.fields().SetText(1, 3, "Zrad");
  form.fields().SetText(1, 4, "12");
  form.fields().SetText(1, 5, "14.5");
  form.Run("cmdGo");
  EXPECT_EQ(shown, (std::vector<std::string>{"Données des Zrad = 14.5", "Nod_1 => 14.5 changed",
                                             "Nod_2 => 14.5 changed", "2 obj ont été traités"}));
  EXPECT_EQ(TagOfObject(surface, a, "Zrad"), "14.5");
  EXPECT_EQ(TagOfObject(surface, c, "Zrad"), "13");
}

TEST_F(TagsValChangerTest, AnEmptyOptionOrNoMatchChangesNothing) {
  const int a = Node(1000, 1000);
  Set(a, "Zrad", "12");
  FrmTagsValChanger form(surface, ui);
  form.fields().SetText(1, 3, "Zrad");
  form.fields().SetText(1, 4, "12");
  form.fields().SetText(1, 5, "0");
  form.Run("cmdGo");
  EXPECT_EQ(Last().text, "La valeur de l'option sélectionnée n'est pas renseignée ?");
  form.fields().SetText(1, 2, "5");
  form.Run("cmdGo");
  EXPECT_EQ(Last().text, "Ces obj sont introuvables.");
  EXPECT_EQ(TagOfObject(surface, a, "Zrad"), "12");
}

TEST_F(TagsValChangerTest, ALineOfAnElementIsWrittenBackButNotItsType) {
  const int node = Node(1000, 1000);
  FrmTagEdit1 form(surface, ui, FrmTagEdit1::LinesOf(surface, node), node);
  int libell_row = 0;
  int iname_row = 0;
  for (int row = 1; row <= form.lines().MaxRows(); ++row) {
    if (form.lines().Text(1, row).starts_with("libell : ")) libell_row = row;
    if (form.lines().Text(1, row).starts_with("iName : ")) iname_row = row;
  }
  ASSERT_GT(libell_row, 0);
  form.ClickCell(form.lines(), 1, libell_row);
  EXPECT_EQ(form.edit().Text(1, 1), "libell");
  form.edit().SetText(1, 2, "Carrefour");
  form.Run("cmdSave");
  EXPECT_EQ(TagOfObject(surface, node, "libell"), "Carrefour");
  EXPECT_EQ(form.lines().Text(1, libell_row), "libell : Carrefour");
  ASSERT_GT(iname_row, 0);
  form.ClickCell(form.lines(), 1, iname_row);
  form.edit().SetText(1, 2, "5");
  form.Run("cmdSave");
  EXPECT_EQ(TagOfObject(surface, node, "iName"), "99");
  EXPECT_EQ(Last().text, "Le type de l'élément (iName) ne peut pas être changé.");
}

}  // namespace
}  // namespace pluvane
