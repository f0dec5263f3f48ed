#include "shell/about.h"

#include <gtest/gtest.h>

namespace pluvane {
namespace {

TEST(About, NamesTheProgramItsVersionAndWhatItIsFor) {
  const AboutText about = About();
  EXPECT_EQ(about.title, "A propos de Pluvane");
  EXPECT_EQ(about.name, "Pluvane");
  EXPECT_EQ(about.version, "Version 0.1");
  EXPECT_NE(about.description.find("assainissement pluvial"), std::string::npos);
}

}  // namespace
}  // namespace pluvane
