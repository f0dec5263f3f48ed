#include "shell/resource_library.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "foundation/scripted_ui.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

class ResourceLibraryTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() / "pluvane_resources_test" / "Curseurs";
    fs::remove_all(folder_.parent_path());
    fs::create_directories(folder_);
    std::ofstream(folder_ / "111.svg") << "<svg/>";
    std::ofstream(folder_ / "7.txt", std::ios::binary) << "Noeud \xE9\r\n";
  }
  void TearDown() override { fs::remove_all(folder_.parent_path()); }
  fs::path folder_;
  ScriptedUi ui_;
};

TEST_F(ResourceLibraryTest, AMissingLibraryIsReportedByName) {
  ResourceLibrary library;
  EXPECT_FALSE(library.Load(ui_, (folder_.parent_path() / "Absent").string()));
  ASSERT_EQ(ui_.Messages().size(), 1u);
  EXPECT_EQ(ui_.Last().text, "Error in loading DLL: Absent");
  EXPECT_FALSE(library.Loaded());
  EXPECT_EQ(library.FindPicture(111), "");
}

TEST_F(ResourceLibraryTest, PicturesStringsAndCustomResourcesByNumber) {
  ResourceLibrary library;
  ASSERT_TRUE(library.Load(ui_, folder_.string()));
  EXPECT_EQ(library.PicturePath(ui_, 111), (folder_ / "111.svg").string());
  EXPECT_EQ(library.String(ui_, 7), "Noeud é");
  EXPECT_TRUE(ui_.Empty());
  EXPECT_EQ(library.PicturePath(ui_, 5), "");
  EXPECT_EQ(library.String(ui_, 8), "");
  EXPECT_EQ(library.CustomPath(ui_, 9), "");
  EXPECT_EQ(ui_.Texts(), (std::vector<std::string>{
                             "Picture resource with identifier 5 not found.",
                             "String resource with identifier 8 not found.",
                             "Custom resource with identifier 9 not found."}));
  EXPECT_EQ(library.ResPath("NOD"), "RES://Curseurs/NOD");
}

}  // namespace
}  // namespace pluvane
