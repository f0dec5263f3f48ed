#include "editors/label_check.h"

#include <gtest/gtest.h>

#include "editor_fixture.h"
#include "foundation/expect_message.h"

namespace pluvane {
namespace {

class LabelCheck : public EditorTest {};

TEST_F(LabelCheck, TheElementCountsOnceWhateverItHoldsNow) {
  const int a = Symbol("X_BV", 1000, 1000);
  const int b = Symbol("X_BV", 2000, 1000);
  Set(b, {{"libell", "Nord"}});
  EXPECT_EQ(LabelCount(surface, 1, a, "Bv_1"), 1);
  EXPECT_EQ(LabelCount(surface, 1, a, "NORD"), 2);
  EXPECT_EQ(LabelCount(surface, 1, b, "nord"), 1);
  EXPECT_EQ(LabelCount(surface, 1, a, "Sud"), 1);
  // Another kind is not counted.
  EXPECT_EQ(LabelCount(surface, 3, a, "Nord"), 1);
}

TEST_F(LabelCheck, ATakenLabelIsToldAndNothingIsWritten) {
  const int a = Symbol("X_BV", 1000, 1000);
  const int b = Symbol("X_BV", 2000, 1000);
  const TagList before = Tags(a);
  surface.SetCurrentObject(b);
  EXPECT_FALSE(CheckLabel(surface, ui, a, "bv_2"));
  ExpectLastMessage(ui, "bv_2 existe déjà.", "Erreur de saisie", MessageIcon::kInformation);
  EXPECT_EQ(Tags(a), before);
  EXPECT_EQ(surface.CurrentObject(), b);
  ui.Clear();
  EXPECT_TRUE(CheckLabel(surface, ui, a, "Libre"));
  EXPECT_TRUE(ui.Empty());
}

}  // namespace
}  // namespace pluvane
