#include "editors/editor_forms.h"

#include <gtest/gtest.h>

#include "foundation/scripted_ui.h"

namespace pluvane {
namespace {

TEST(EditorForms, AnUnknownNameHasNoForm) {
  Surface surface;
  NetworkState state;
  ScriptedUi ui;
  ViewerState viewer;
  EditorContext context{surface, state, ui, {}, viewer, {}};
  EXPECT_EQ(MakeEditorForm("frmInconnu", context), nullptr);
  EXPECT_EQ(MakeEditorForm("", context), nullptr);
}

}  // namespace
}  // namespace pluvane
