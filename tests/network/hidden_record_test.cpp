#include "network/hidden_record.h"

#include "shell/app_state.h"

#include <gtest/gtest.h>

namespace pluvane {
namespace {

AppState State() {
  AppState state;
  state.LogicWidth = 100000;
  state.LogicHeight = 80000;
  state.SymbolSize = 120;
  state.ScreenBackColor = 12632256;
  return state;
}

TEST(HiddenRecord, ARecordSitsAroundTheFarCornerOutOfSight) {
  Surface surface;
  AppState state = State();
  const int record = AddHiddenRecord(surface, state);
  EXPECT_GT(record, 10);
  EXPECT_EQ(surface.CurrentObject(), record);
  EXPECT_EQ(surface.ObjectKind(), kKindRectangle);
  EXPECT_EQ(surface.ObjLeft(), 99880);
  EXPECT_EQ(surface.ObjTop(), 79880);
  EXPECT_EQ(surface.ObjRight(), 100120);
  EXPECT_EQ(surface.ObjBottom(), 80120);
  EXPECT_EQ(surface.LineColor(), 12632256);
  EXPECT_FALSE(surface.ObjectVisible());
  EXPECT_EQ(surface.HitTest(100000, 80000), 0);
}

TEST(HiddenRecord, HidingMovesTheCentreToTheCornerAndKeepsTheCursor) {
  Surface surface;
  AppState state = State();
  const int shown = surface.AddObject(kKindRectangle, 100, 200, 300, 400);
  const int other = surface.AddObject(kKindEllipse, 0, 0, 10, 10);
  HideRecord(surface, state, shown);
  EXPECT_EQ(surface.CurrentObject(), other);
  surface.SetCurrentObject(shown);
  EXPECT_EQ(surface.ObjLeft(), 99900);
  EXPECT_EQ(surface.ObjTop(), 79900);
  EXPECT_EQ(surface.ObjRight(), 100100);
  EXPECT_EQ(surface.FillColor(), 12632256);
  EXPECT_FALSE(surface.ObjectVisible());
}

}  // namespace
}  // namespace pluvane
