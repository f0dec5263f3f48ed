#include "network/reach_creation.h"

#include <gtest/gtest.h>

#include "network/frm_bief_user_create.h"
#include "foundation/expect_message.h"
#include "network/catalogue.h"
#include "network/reach_fixture.h"
#include "drawing/surface_helpers.h"

namespace pluvane {
namespace {

class ReachCreationTest : public ReachTest {
 protected:
  // The user types `number` in the new row and presses Ok.
  ShowModalForm Typing(const std::string& number) {
    return [this, number](FormController& form) {
      ++forms_shown_;
      auto& create = dynamic_cast<FrmBiefUserCreate&>(form);
      create.grid().SetText(1, create.UsedRows() + 1, number);
      create.Run("cmdOk");
    };
  }
  int End(const std::string& number) {
    return EndReachCreation(surface, state, ui, Typing(number));
  }
  int ReachCount() { return CountByName(surface, kINameReach); }

  int forms_shown_ = 0;
};

TEST_F(ReachCreationTest, TheCommandArmsTheModeWithItsText) {
  PlacementState placement;
  mnuOpt_Bief_New(state, placement, ui);
  EXPECT_EQ(state.CurrentMode, "ADDBIEF");
  EXPECT_EQ(placement.CreationKey, "X_BIEF");
  EXPECT_EQ(placement.NextIName, 100);
  ASSERT_FALSE(ui.Statuses().empty());
  EXPECT_EQ(ui.Statuses().back(),
            "Sélectionnez les collecteurs constitutifs du bief à créer (touche Entée pour finir).");
}

TEST_F(ReachCreationTest, AClickOnACollectorTellsItsLabelAndReach) {
  const int ab = Collector(0, 1);
  EXPECT_EQ(ReachClickInfo(surface, ui, ab), "Cac_1 : bief ?");
  EXPECT_EQ(ui.Statuses().back(), "Cac_1 : bief ?");
  surface.SetCurrentObject(ab);
  surface.SetObjTag("iBief", 12);
  EXPECT_EQ(ReachClickInfo(surface, ui, ab), "Cac_1 : bief 12");
  EXPECT_EQ(ReachClickInfo(surface, ui, nodes_[0]), "");
  EXPECT_EQ(ReachClickInfo(surface, ui, 0), "");
}

TEST_F(ReachCreationTest, EnterWithNothingSelectedSaysSo) {
  state.CurrentMode = "ADDBIEF";
  EXPECT_EQ(End("1"), 0);
  ExpectLastMessage(ui, "Sélectionnez au moins un collecteur pour former un bief.",
                    "Création d'un nouveau Bief", MessageIcon::kExclamation);
  EXPECT_EQ(forms_shown_, 0);
  EXPECT_EQ(state.CurrentMode, "");
}

TEST_F(ReachCreationTest, ThreeCollectorsSelectedInAnyOrderMakeAnOrderedReach) {
  const int ab = Collector(0, 1), bc = Collector(1, 2), cd = Collector(2, 3);
  Select({cd, ab, bc});
  const int reach = End("3");
  ASSERT_GT(reach, 10);
  EXPECT_EQ(Listed(reach), (std::vector<std::string>{"Cac_1", "Cac_2", "Cac_3"}));
  EXPECT_EQ(TagOf(reach, "libell"), "Bief3");
  for (int c : {ab, bc, cd}) EXPECT_EQ(TagOf(c, "iBief"), "3");
  EXPECT_EQ(ui.Statuses().back(), "ok création du bief 3 composé de 3 collecteurs.");
  EXPECT_EQ(state.PendingReach, 0);
  EXPECT_EQ(surface.ObjectCount(kSelection), 0);
  EXPECT_EQ(surface.UndoLabel(), "Création d'un bief");
}

TEST_F(ReachCreationTest, AForkGivesTheMessageAndNoReach) {
  const int ab = Collector(0, 1), ac = Collector(0, 2);
  Select({ab, ac});
  EXPECT_EQ(End("1"), 0);
  ExpectLastMessage(ui, "Les collecteurs sélectionnés ne sont pas ordonnable!",
                    "Création d'un nouveau Bief", MessageIcon::kExclamation);
  EXPECT_EQ(ReachCount(), 0);
  EXPECT_EQ(TagOf(ab, "iBief"), "0");
}

TEST_F(ReachCreationTest, ASingleCollectorMakesAReachOfOne) {
  const int bc = Collector(1, 2, "X_CAO");
  Select({bc});
  const int reach = End("8");
  ASSERT_GT(reach, 10);
  EXPECT_EQ(TagOf(reach, "NbColl"), "1");
  EXPECT_EQ(TagOf(reach, "InameColl1"), "7");
  EXPECT_EQ(ui.Statuses().back(), "ok création du bief 8 composé de 1 collecteurs.");
}

TEST_F(ReachCreationTest, ANodeInTheSelectionIsIgnored) {
  const int ab = Collector(0, 1), bc = Collector(1, 2);
  Select({nodes_[1], bc, ab, nodes_[3]});
  const int reach = End("2");
  ASSERT_GT(reach, 10);
  EXPECT_EQ(Listed(reach), (std::vector<std::string>{"Cac_1", "Cac_2"}));
  EXPECT_EQ(TagOf(nodes_[1], "iBief"), "");
}

TEST_F(ReachCreationTest, OnlyNodesSelectedIsLikeNothingSelected) {
  Select({nodes_[0], nodes_[1]});
  EXPECT_EQ(End("2"), 0);
  EXPECT_EQ(ui.Last().text, "Sélectionnez au moins un collecteur pour former un bief.");
  EXPECT_EQ(forms_shown_, 0);
}

TEST_F(ReachCreationTest, ACollectorInAReachCanJoinAnother) {
  const int ab = Collector(0, 1), bc = Collector(1, 2);
  Select({ab, bc});
  const int first = End("1");
  Select({bc});
  const int second = End("2");
  ASSERT_GT(second, 10);
  EXPECT_EQ(TagOf(bc, "iBief"), "2");
  EXPECT_EQ(TagOf(ab, "iBief"), "1");
  EXPECT_EQ(Listed(first), (std::vector<std::string>{"Cac_1", "Cac_2"}));
  EXPECT_EQ(Listed(second), std::vector<std::string>{"Cac_2"});
}

TEST_F(ReachCreationTest, CancellingTheNumberMakesNoReach) {
  const int ab = Collector(0, 1);
  Select({ab});
  const int made = EndReachCreation(surface, state, ui, [](FormController& form) {
    form.Run("cmdAnnul");
  });
  EXPECT_EQ(made, 0);
  EXPECT_EQ(ReachCount(), 0);
  EXPECT_EQ(state.PendingReach, 0);
  EXPECT_TRUE(ui.Empty());
}

TEST_F(ReachCreationTest, AFormLeftOpenCountsAsCancelled) {
  const int ab = Collector(0, 1);
  Select({ab});
  EXPECT_EQ(EndReachCreation(surface, state, ui, [](FormController&) {}), 0);
  EXPECT_EQ(ReachCount(), 0);
}

TEST_F(ReachCreationTest, OneUndoTakesTheWholeReachBack) {
  const int ab = Collector(0, 1), bc = Collector(1, 2);
  Select({ab, bc});
  ASSERT_GT(End("4"), 10);
  ASSERT_TRUE(surface.Undo());
  EXPECT_EQ(ReachCount(), 0);
  EXPECT_EQ(TagOf(ab, "iBief"), "0");
  EXPECT_EQ(TagOf(bc, "iBief"), "0");
}

}  // namespace
}  // namespace pluvane
