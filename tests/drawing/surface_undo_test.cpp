#include <gtest/gtest.h>

#include "drawing/surface.h"

namespace pluvane {
namespace {

class SurfaceUndo : public ::testing::Test {
 protected:
  void SetUp() override {
    surface_.BeginStep("Préparation");
    a_ = surface_.AddObject(kKindPicture, 0, 0, 100, 100);
    surface_.SetObjTag("Id", "Nod_1");
    surface_.SetObjTag("iName", 99);
    b_ = surface_.AddObject(kKindPicture, 1000, 0, 1100, 100);
    surface_.SetObjTag("Id", "Nod_2");
    link_ = surface_.AddLink(a_, b_);
    surface_.SetObjTag("Id", "Cac_1");
    surface_.EndStep();
  }
  Surface surface_;
  int a_ = 0, b_ = 0, link_ = 0;
};

TEST_F(SurfaceUndo, AStepIsUndoneAndRedoneWhole) {
  EXPECT_TRUE(surface_.CanUndo());
  EXPECT_FALSE(surface_.CanRedo());
  EXPECT_EQ(surface_.UndoLabel(), "Préparation");
  EXPECT_TRUE(surface_.Undo());
  EXPECT_EQ(surface_.ObjectCount(kPage), 0);
  EXPECT_EQ(surface_.FindById("Nod_1"), 0);
  EXPECT_FALSE(surface_.CanUndo());
  EXPECT_TRUE(surface_.CanRedo());
  EXPECT_TRUE(surface_.Redo());
  EXPECT_EQ(surface_.ObjectCount(kPage), 3);
  EXPECT_EQ(surface_.FindById("Nod_1"), a_);
  EXPECT_EQ(surface_.FindById("Cac_1"), link_);
  surface_.SetCurrentObject(a_);
  EXPECT_EQ(surface_.NodeLinkCount(), 1);
  EXPECT_EQ(surface_.ObjTag("iName"), "99");
}

TEST_F(SurfaceUndo, ChangesOutsideAStepAreOneStepEach) {
  surface_.SetCurrentObject(a_);
  surface_.SetObjTag("libell", "N1");
  surface_.SetObjTag("libell", "N2");
  surface_.Undo();
  EXPECT_EQ(surface_.ObjTag("libell"), "N1");
  surface_.Undo();
  EXPECT_EQ(surface_.ObjTag("libell"), "");
  EXPECT_EQ(surface_.ObjTagCount(), 2);
  surface_.Redo();
  EXPECT_EQ(surface_.ObjTag("libell"), "N1");
  EXPECT_EQ(surface_.ObjTagName(2), "libell");
}

TEST_F(SurfaceUndo, NestedStepsJoinTheOuterOne) {
  surface_.BeginStep("Outer");
  surface_.SetCurrentObject(a_);
  surface_.SetObjTag("x", "1");
  surface_.BeginStep("Inner");
  surface_.SetObjTag("y", "2");
  surface_.EndStep();
  EXPECT_FALSE(surface_.Undo());  // not while a command runs
  surface_.EndStep();
  EXPECT_EQ(surface_.UndoLabel(), "Outer");
  surface_.Undo();
  EXPECT_EQ(surface_.ObjTag("x"), "");
  EXPECT_EQ(surface_.ObjTag("y"), "");
}

TEST_F(SurfaceUndo, ANewChangeForgetsWhatCouldBeRedone) {
  surface_.SetCurrentObject(a_);
  surface_.SetObjTag("x", "1");
  surface_.Undo();
  EXPECT_TRUE(surface_.CanRedo());
  surface_.SetObjTag("x", "2");
  EXPECT_FALSE(surface_.CanRedo());
}

TEST_F(SurfaceUndo, TagRenamesAndCountsComeBack) {
  surface_.SetCurrentObject(a_);
  surface_.SetObjTagName(0, "OldId");
  EXPECT_EQ(surface_.FindById("Nod_1"), 0);
  surface_.Undo();
  EXPECT_EQ(surface_.ObjTagName(0), "Id");
  EXPECT_EQ(surface_.FindById("Nod_1"), a_);
  surface_.SetObjTagCount(0);
  EXPECT_EQ(surface_.FindById("Nod_1"), 0);
  surface_.Undo();
  EXPECT_EQ(surface_.ObjTagCount(), 2);
  EXPECT_EQ(surface_.FindById("Nod_1"), a_);
  surface_.SetObjTagCount(4);
  surface_.Undo();
  EXPECT_EQ(surface_.ObjTagCount(), 2);
  surface_.SetObjTagValue(1, "98");
  surface_.Undo();
  EXPECT_EQ(surface_.ObjTagValue(1), "99");
  surface_.Redo();
  EXPECT_EQ(surface_.ObjTagValue(1), "98");
}

TEST_F(SurfaceUndo, MovesComeBackWithTheirLinks) {
  surface_.SetCurrentObject(b_);
  surface_.MoveObject(0, 500);
  surface_.Undo();
  EXPECT_EQ(surface_.ObjTop(), 0);
  surface_.SetCurrentObject(link_);
  EXPECT_EQ(surface_.ObjectPoints(), (std::vector<Point>{{50, 50}, {1050, 50}}));
  surface_.Redo();
  surface_.SetCurrentObject(link_);
  EXPECT_EQ(surface_.ObjectPoints().back(), (Point{1050, 550}));
}

TEST_F(SurfaceUndo, DeletionComesBackWithTheSameNumbersAndLinks) {
  surface_.SetCurrentObject(a_);
  surface_.SetSelected(true);
  EXPECT_EQ(surface_.DeleteObject(kSelection), 2);
  surface_.Undo();
  EXPECT_EQ(surface_.ObjectCount(kPage), 3);
  EXPECT_EQ(surface_.ObjectCount(kSelection), 1);
  surface_.SetCurrentObject(a_);
  EXPECT_EQ(surface_.CurrentObject(), a_);
  EXPECT_EQ(surface_.ObjTag("Id"), "Nod_1");
  EXPECT_EQ(surface_.NodeLinkCount(), 1);
  surface_.SetCurrentObject(b_);
  EXPECT_EQ(surface_.NodeLinkCount(), 1);
  surface_.SetCurrentObject(link_);
  EXPECT_EQ(surface_.LinkEndObject(0), a_);
  surface_.Redo();
  EXPECT_EQ(surface_.ObjectCount(kPage), 1);
  surface_.SetCurrentObject(b_);
  EXPECT_EQ(surface_.NodeLinkCount(), 0);
}

TEST_F(SurfaceUndo, StyleDefaultsAndPageComeBack) {
  surface_.SetCurrentObject(link_);
  surface_.SetLineColor(255);
  surface_.SetLinkEndMarker(1, 5);
  surface_.SetCurrentObject(kDefaults);
  surface_.SetLineWidth(-20);
  surface_.SetPageColor(12);
  surface_.SetLogicWidth(20000);
  surface_.SetBackgroundPicture("plan.png");
  for (int i = 0; i < 6; ++i) surface_.Undo();
  EXPECT_EQ(surface_.LineWidth(), 0);
  EXPECT_EQ(surface_.PageColor(), 0xFFFFFF);
  EXPECT_EQ(surface_.LogicWidth(), 100000);
  EXPECT_EQ(surface_.BackgroundPicture(), "");
  surface_.SetCurrentObject(link_);
  EXPECT_EQ(surface_.LineColor(), 0);
  EXPECT_EQ(surface_.LinkEndMarker(1), 0);
  for (int i = 0; i < 6; ++i) surface_.Redo();
  EXPECT_EQ(surface_.LineColor(), 255);
  EXPECT_EQ(surface_.LogicWidth(), 20000);
}

TEST_F(SurfaceUndo, GroupAndUngroupComeBack) {
  surface_.SelectAll();
  surface_.SetCurrentObject(kSelection);
  ASSERT_TRUE(surface_.Arrange(0));
  EXPECT_EQ(surface_.ObjectCount(kPage), 1);
  surface_.Undo();
  EXPECT_EQ(surface_.ObjectCount(kPage), 3);
  EXPECT_EQ(surface_.FindById("Nod_2"), b_);
  surface_.SetCurrentObject(b_);
  EXPECT_EQ(surface_.NodeLinkCount(), 1);
  surface_.Redo();
  EXPECT_EQ(surface_.ObjectCount(kPage), 1);
  EXPECT_EQ(surface_.FindById("Nod_2"), 0);
}

TEST_F(SurfaceUndo, StackingComesBack) {
  surface_.SetCurrentObject(a_);
  const auto before = surface_.ObjectShape(a_)->layer;
  surface_.Arrange(3);
  surface_.Undo();
  EXPECT_EQ(surface_.ObjectShape(a_)->layer, before);
}

TEST_F(SurfaceUndo, ClearDrawingForgetsTheJournal) {
  surface_.ClearDrawing();
  EXPECT_FALSE(surface_.CanUndo());
  EXPECT_FALSE(surface_.CanRedo());
  EXPECT_EQ(surface_.ObjectCount(kPage), 0);
}

TEST_F(SurfaceUndo, SelectionIsNotAStep) {
  surface_.SetCurrentObject(a_);
  surface_.SetObjTag("x", "1");
  surface_.SelectAll();
  surface_.DeselectAll();
  surface_.Undo();
  surface_.SetCurrentObject(a_);
  EXPECT_EQ(surface_.ObjTag("x"), "");
}

TEST(SurfaceUndoBulk, ABulkStepOfManyObjectsUndoesWhole) {
  Surface surface;
  surface.BeginStep("Import");
  for (int i = 0; i < 2000; ++i) {
    surface.AddObject(kKindPicture, i, i, i + 10, i + 10);
    surface.SetObjTag("Id", "Nod_" + std::to_string(i));
  }
  surface.EndStep();
  surface.BeginStep("Maj");
  surface.SetCurrentObject(kAllObjects);
  surface.SetObjTag("Z", "1.5");
  surface.MoveObject(5, 5);
  surface.EndStep();
  surface.Undo();
  EXPECT_EQ(surface.FindById("Nod_7"), 18);
  surface.SetCurrentObject(18);
  EXPECT_EQ(surface.ObjTag("Z"), "");
  EXPECT_EQ(surface.ObjLeft(), 7);
  surface.Undo();
  EXPECT_EQ(surface.ObjectCount(kPage), 0);
  surface.Redo();
  surface.Redo();
  surface.SetCurrentObject(18);
  EXPECT_EQ(surface.ObjTag("Z"), "1.5");
  EXPECT_EQ(surface.ObjLeft(), 12);
}

}  // namespace
}  // namespace pluvane
