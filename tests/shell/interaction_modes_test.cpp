#include "shell/interaction_modes.h"

#include <gtest/gtest.h>

namespace pluvane {
namespace {

TEST(InteractionModes, ToolKeysAreComparedInCapitals) {
  EXPECT_EQ(ToolBindingOf("MdGrid").action, ToolAction::kViewCommand);
  EXPECT_EQ(ToolBindingOf("MdGrid").target, "MDGRID");
  EXPECT_EQ(ToolBindingOf("ZoomT").target, "ZOOMT");
  EXPECT_EQ(ToolBindingOf("mddelete").target, "MDDELETE");
  EXPECT_EQ(ToolBindingOf("x_nod").action, ToolAction::kCreate);
  EXPECT_EQ(ToolBindingOf("x_nod").target, "X_NOD");
}

TEST(InteractionModes, BandsFormsAndWindowTools) {
  EXPECT_EQ(ToolBindingOf("X_BVCOM").action, ToolAction::kOpenBand);
  EXPECT_EQ(ToolBindingOf("X_BVCOM").target, "RESO_CREATE_BV_C");
  EXPECT_EQ(ToolBindingOf("X_BVSIM").target, "RESO_CREATE_BV_S");
  EXPECT_EQ(ToolBindingOf("X_CALAGE").action, ToolAction::kOpenForm);
  EXPECT_EQ(ToolBindingOf("X_CALAGE").target, "frmCalage");
  EXPECT_EQ(ToolBindingOf("MDSAVE").action, ToolAction::kWindow);
  EXPECT_EQ(ToolBindingOf("X_PARAM").action, ToolAction::kWindow);
  EXPECT_EQ(ToolBindingOf("NOTHING").action, ToolAction::kNone);
}

TEST(InteractionModes, CursorsOfTheModes) {
  EXPECT_EQ(ModeEntryOf("MDDELETE")->cursor, 201);
  EXPECT_EQ(ModeEntryOf("MDMOVE")->cursor, 200);
  EXPECT_EQ(ModeEntryOf("MDFUSION")->cursor, 204);
  EXPECT_EQ(ModeEntryOf("MDBREAK")->cursor, 202);
  EXPECT_EQ(ModeEntryOf("MDBREAKPLUS")->cursor, 0);
  EXPECT_EQ(ModeEntryOf("MDEDIT1")->cursor, 203);
  EXPECT_EQ(ModeEntryOf("MDEDITALL")->cursor, 0);
  EXPECT_EQ(ModeEntryOf("CREATE OBJ"), nullptr);
}

}  // namespace
}  // namespace pluvane
