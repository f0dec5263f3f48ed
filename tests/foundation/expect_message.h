// The one assertion every message test makes: the last thing ScriptedUi
// recorded is a message box (or another kind of box) with exactly this text,
// title and icon.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "foundation/scripted_ui.h"

namespace pluvane {

inline void ExpectLastMessage(const ScriptedUi& ui, const std::string& text,
                              const std::string& title, MessageIcon icon,
                              const std::string& kind = "message") {
  ASSERT_FALSE(ui.Empty());
  EXPECT_EQ(ui.Last().kind, kind);
  EXPECT_EQ(ui.Last().text, text);
  EXPECT_EQ(ui.Last().title, title);
  EXPECT_EQ(ui.Last().icon, icon);
}

}  // namespace pluvane
