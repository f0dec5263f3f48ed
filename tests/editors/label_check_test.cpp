#include "editors/label_check.h"

#include <gtest/gtest.h>

#include "element_fixture.h"
#include "foundation/expect_message.h"

namespace pluvane {
namespace {

class LabelCheck : public ElementEditorTest {};

TEST_F(LabelCheck, LabelsAreCountedWithinTheirKindWhateverTheirCase) {
  Symbol("X_BV", 1000, 1000);
  const int b = Symbol("X_BV", 2000, 1000);
  Set(b, {{"libell", "Nord"}});
  Set(Symbol("X_HYBV", 0, 0, Node(3000, 3000)), {{"libell", "Nord"}});
  EXPECT_EQ(LabelCount(surface, 1, "NORD"), 1);
  EXPECT_EQ(LabelCount(surface, 1, "bv_1"), 1);
  EXPECT_EQ(LabelCount(surface, 1, "Sud"), 0);
  EXPECT_EQ(LabelCount(surface, 3, "nord"), 1);
}

TEST_F(LabelCheck, ATakenLabelIsToldAndTheOldOneGoesBack) {
  const int a = Symbol("X_BV", 1000, 1000);
  Symbol("X_BV", 2000, 1000);
  surface.SetCurrentObject(a);
  EXPECT_FALSE(WriteUniqueLabel(surface, ui, "bv_2", "Bv_1"));
  ExpectLastMessage(ui, "bv_2 existe déjà.", "Erreur de saisie", MessageIcon::kNone);
  EXPECT_EQ(TagOf(a, "libell"), "Bv_1");
  ui.Clear();
  EXPECT_TRUE(WriteUniqueLabel(surface, ui, "Libre", "Bv_1"));
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(TagOf(a, "libell"), "Libre");
}

}  // namespace
}  // namespace pluvane
