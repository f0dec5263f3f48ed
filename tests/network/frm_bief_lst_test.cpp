#include "network/frm_bief_lst.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "network/catalogue.h"
#include "network/reach_fixture.h"
#include "drawing/surface_helpers.h"

namespace pluvane {
namespace {

class FrmBiefLstTest : public ReachTest {
 protected:
  FrmBiefLstTest() {
    ab_ = Collector(0, 1);
    bc_ = Collector(1, 2);
    cd_ = Collector(2, 3, "X_CAF");
    MakeReach(1, {ab_, bc_});
    MakeReach(2, {cd_});
  }
  std::unique_ptr<FrmBiefLst> Open() {
    return std::make_unique<FrmBiefLst>(surface, state, ui, [this](const ReachHighlight& h) {
      highlights_.push_back(h);
    });
  }

  int ab_ = 0, bc_ = 0, cd_ = 0;
  std::vector<ReachHighlight> highlights_;
};

TEST_F(FrmBiefLstTest, OneRowForEachReachAndTheCollectorsOfTheFirst) {
  auto form = Open();
  EXPECT_EQ(form->Caption(), "Liste des biefs");
  Grid& g = form->reaches();
  ASSERT_EQ(g.MaxRows(), 2);
  EXPECT_EQ(g.Text(0, 1), "bief 1");
  EXPECT_EQ(g.Text(1, 1), "1");
  EXPECT_EQ(g.Text(0, 2), "bief 2");
  Grid& c = form->collectors();
  ASSERT_EQ(c.MaxRows(), 2);
  EXPECT_EQ(c.Text(1, 1), "Cac_1");
  EXPECT_EQ(c.Text(1, 2), "Cac_2");
}

TEST_F(FrmBiefLstTest, SelectingARowHighlightsTheReachInTheStyleOfReaches) {
  surface.SetCurrentObject(cd_);
  surface.SetObjTag("libell", "Aval");
  auto form = Open();
  form->reaches().SetActiveCell(1, 2);
  ASSERT_EQ(form->collectors().MaxRows(), 1);
  EXPECT_EQ(form->collectors().Text(1, 1), "Aval");
  const ReachHighlight& h = form->Highlight();
  surface.SetCurrentObject(cd_);
  EXPECT_EQ(h.points, surface.ObjectPoints());
  EXPECT_EQ(h.color, 0);
  EXPECT_EQ(h.width, -6);  // twice LinkThick, in logical units
  EXPECT_EQ(h.style, 0);
  EXPECT_EQ(highlights_.size(), 2u);
}

TEST_F(FrmBiefLstTest, ChainedCollectorsMakeOneLine) {
  auto form = Open();
  const std::vector<Point>& points = form->Highlight().points;
  ASSERT_EQ(points.size(), 3u);
  surface.SetCurrentObject(ab_);
  EXPECT_EQ(points[0], surface.ObjectPoints().front());
  surface.SetCurrentObject(bc_);
  EXPECT_EQ(points[2], surface.ObjectPoints().back());
}

TEST_F(FrmBiefLstTest, DeleteOnlyMarksTheRow) {
  auto form = Open();
  form->reaches().SetActiveCell(1, 1);
  form->Run("mnDel");
  EXPECT_EQ(form->reaches().Text(1, 1), "0");
  EXPECT_EQ(form->reaches().BackColour(1, 1), 14737632);
  EXPECT_GT(FindReach(surface, "1"), 10);
  EXPECT_FALSE(form->Closed());
}

TEST_F(FrmBiefLstTest, OkRemovesTheMarkedReachesAndTheirTags) {
  auto form = Open();
  form->reaches().SetActiveCell(1, 1);
  form->Run("mnDel");
  form->Run("cmdOk");
  EXPECT_TRUE(form->Closed());
  EXPECT_EQ(FindReach(surface, "1"), 0);
  EXPECT_GT(FindReach(surface, "2"), 10);
  EXPECT_EQ(TagOf(ab_, "iBief"), "0");
  EXPECT_EQ(TagOf(bc_, "iBief"), "0");
  EXPECT_EQ(TagOf(cd_, "iBief"), "2");
  EXPECT_TRUE(form->Highlight().points.empty());
  EXPECT_TRUE(highlights_.back().points.empty());
}

TEST_F(FrmBiefLstTest, SaveRefusesANumberGivenTwice) {
  auto form = Open();
  form->reaches().SetText(1, 2, "1");
  form->Run("mnSave");
  ExpectLastMessage(ui, "1 existe déjà.", "Liste des biefs", MessageIcon::kExclamation);
  EXPECT_FALSE(form->Closed());
  EXPECT_GT(FindReach(surface, "2"), 10);
  EXPECT_EQ(TagOf(cd_, "iBief"), "2");
}

TEST_F(FrmBiefLstTest, SaveRenumbersAndDeletesTheMarked) {
  auto form = Open();
  form->reaches().SetText(1, 2, "7");
  form->reaches().SetActiveCell(1, 1);
  form->Run("mnDel");
  form->Run("mnSave");
  EXPECT_TRUE(form->Closed());
  EXPECT_EQ(FindReach(surface, "1"), 0);
  EXPECT_EQ(FindReach(surface, "2"), 0);
  const int seven = FindReach(surface, "7");
  ASSERT_GT(seven, 10);
  EXPECT_EQ(TagOf(seven, "libell"), "Bief7");
  EXPECT_EQ(TagOf(cd_, "iBief"), "7");
  EXPECT_EQ(TagOf(ab_, "iBief"), "0");
}

TEST_F(FrmBiefLstTest, SaveCanSwapTwoNumbers) {
  auto form = Open();
  form->reaches().SetText(1, 1, "2");
  form->reaches().SetText(1, 2, "1");
  form->Run("mnSave");
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(TagOf(ab_, "iBief"), "2");
  EXPECT_EQ(TagOf(cd_, "iBief"), "1");
  EXPECT_EQ(Listed(FindReach(surface, "1")), std::vector<std::string>{"Caf_1"});
}

TEST_F(FrmBiefLstTest, AnEmptyListOpensEmpty) {
  for (int reach : ReachRecords(surface)) surface.DeleteObject(reach);
  auto form = Open();
  EXPECT_EQ(form->reaches().MaxRows(), 0);
  EXPECT_EQ(form->collectors().MaxRows(), 0);
  form->Run("mnDel");
  form->Run("cmdOk");
  EXPECT_TRUE(form->Closed());
}

}  // namespace
}  // namespace pluvane
