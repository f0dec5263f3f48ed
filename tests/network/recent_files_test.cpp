#include "network/recent_files.h"

#include <gtest/gtest.h>

#include "foundation/ini_profile.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

class RecentFilesTest : public ::testing::Test {
 protected:
  std::string Key(const std::string& key) { return IniRead("Fichiers recents", key, 255, ini_); }
  void Set(const std::string& key, const std::string& value) {
    IniWrite("Fichiers recents", key, value, ini_);
  }
  TempFolder folder_;
  std::string ini_ = folder_.File("pluvane.ini");
};

TEST_F(RecentFilesTest, AMaximumOfZeroIsFour) {
  Set("nbMaxFichiers", "0");
  RecentFiles recent(ini_);
  recent.Load();
  EXPECT_EQ(recent.Max(), 4);
  EXPECT_EQ(recent.Count(), 0);
}

TEST_F(RecentFilesTest, ACountAboveTheMaximumIsCutAndWrittenBack) {
  Set("nbMaxFichiers", "2");
  Set("nbFichiers", "5");
  Set("1", "/a/un.mtf");
  Set("2", "/a/deux.mtf");
  Set("3", "/a/trois.mtf");
  RecentFiles recent(ini_);
  recent.Load();
  EXPECT_EQ(recent.Captions(), (std::vector<std::string>{"/a/un.mtf", "/a/deux.mtf"}));
  EXPECT_EQ(Key("nbFichiers"), "2");
}

TEST_F(RecentFilesTest, ABlankFirstEntryLeavesTheListEmpty) {
  Set("nbMaxFichiers", "4");
  Set("nbFichiers", "2");
  Set("1", "");
  Set("2", "/a/deux.mtf");
  RecentFiles recent(ini_);
  recent.Load();
  EXPECT_EQ(recent.Count(), 0);
}

TEST_F(RecentFilesTest, NewPathsGoFirstAndTheListGrowsToItsMaximum) {
  Set("nbMaxFichiers", "3");
  Set("nbFichiers", "0");
  RecentFiles recent(ini_);
  recent.Load();
  recent.Add("/r/a.mtf");
  recent.Add("/r/b.mtf");
  recent.Add("/r/c.mtf");
  recent.Add("/r/d.mtf");
  EXPECT_EQ(recent.Captions(), (std::vector<std::string>{"/r/d.mtf", "/r/c.mtf", "/r/b.mtf"}));
  EXPECT_EQ(Key("nbFichiers"), "3");
  EXPECT_EQ(Key("1"), "/r/d.mtf");
  EXPECT_EQ(Key("3"), "/r/b.mtf");
  EXPECT_EQ(Key("4"), "");
}

TEST_F(RecentFilesTest, TwoEntriesThatDifferOnlyInCaseCountAsOne) {
  Set("nbMaxFichiers", "4");
  RecentFiles recent(ini_);
  recent.Load();
  recent.Add("/r/Reseau.mtf");
  recent.Add("/r/autre.mtf");
  recent.Add("/R/RESEAU.MTF");
  EXPECT_EQ(recent.Count(), 2);
  EXPECT_EQ(recent.Captions()[0], "/R/RESEAU.MTF");
  EXPECT_EQ(recent.Captions()[1], "/r/autre.mtf");
  // The move is made among the captions only; the file keeps its order.
  EXPECT_EQ(Key("1"), "/r/autre.mtf");
}

TEST_F(RecentFilesTest, TheFirstEntryAgainChangesNothing) {
  Set("nbMaxFichiers", "4");
  RecentFiles recent(ini_);
  recent.Load();
  recent.Add("/r/a.mtf");
  recent.Add("/r/a.mtf");
  EXPECT_EQ(recent.Count(), 1);
  EXPECT_EQ(Key("2"), "");
  recent.WriteCount();
  EXPECT_EQ(Key("nbFichiers"), "1");
}

TEST(RecentFilesInMemory, AListBoundToNoFileWritesNothing) {
  TempFolder folder;
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  RecentFiles recent;
  for (const char* path : {"/r/a.mtf", "/r/b.mtf", "/r/c.mtf", "/r/d.mtf", "/r/e.mtf"}) {
    recent.Add(path);
  }
  recent.Add("/R/C.MTF");
  recent.WriteCount();
  std::filesystem::current_path(before);
  EXPECT_EQ(recent.Captions(),
            (std::vector<std::string>{"/R/C.MTF", "/r/e.mtf", "/r/d.mtf", "/r/b.mtf"}));
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

}  // namespace
}  // namespace pluvane
