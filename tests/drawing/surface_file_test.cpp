#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "drawing/atomic_file.h"
#include "drawing/surface.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

const std::string kSmall = std::string(PLUVANE_TEST_DATA) + "/small.mtf";

std::string ReadAll(const fs::path& path) {
  std::string bytes;
  ReadWholeFile(path.string(), bytes);
  return bytes;
}

void WriteAll(const fs::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

class SurfaceFile : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() /
              ("pluvane_surface_" + std::to_string(::getpid()) + "_" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override {
    fs::permissions(folder_, fs::perms::all);
    fs::remove_all(folder_);
  }
  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  // Files left in the folder, beside the ones expected.
  int FileCount() const {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(folder_)) count += entry.is_regular_file();
    return count;
  }
  fs::path folder_;
  Surface surface_;
};

TEST_F(SurfaceFile, LoadsObjectsInOrderWithTagsLinksAndStyle) {
  ASSERT_TRUE(surface_.LoadFile(kSmall, 0));
  EXPECT_EQ(surface_.ObjectCount(kPage), 5);
  EXPECT_EQ(surface_.CurrentObject(), kPage);
  const int n1 = surface_.FirstObject();
  EXPECT_EQ(surface_.ObjTag("Id"), "Nod_1");
  EXPECT_EQ(surface_.ObjectPicture(), "NOD.wmf");
  EXPECT_EQ(surface_.ObjLeft(), 4950);
  const int link = surface_.NextObject();
  EXPECT_EQ(surface_.ObjectKind(), kKindLink);
  EXPECT_EQ(surface_.LinkEndObject(0), n1);
  EXPECT_EQ(surface_.LinkEndObject(1), link + 1);
  EXPECT_EQ(surface_.LineColor(), 16711680);
  EXPECT_EQ(surface_.LineWidth(), -50);
  EXPECT_EQ(surface_.LinkEndMarker(1), 5);
  EXPECT_EQ(surface_.LinkMarkerFill(1), 1);
  surface_.NextObject();
  EXPECT_EQ(surface_.NodeLinkCount(), 1);
  surface_.NextObject();
  EXPECT_EQ(surface_.TextString(), "Réseau \"Nord\"");
  EXPECT_TRUE(surface_.TextBold());
  EXPECT_EQ(surface_.TextAlign(), 1);
  surface_.NextObject();
  EXPECT_FALSE(surface_.ObjectVisible());
  EXPECT_EQ(surface_.ObjTag("CalcMode"), "0");
  EXPECT_EQ(surface_.BackgroundPicture(), "plan.png");
  EXPECT_EQ(surface_.BackgroundScale(), 0.8);
  EXPECT_FALSE(surface_.CanUndo());
}

TEST_F(SurfaceFile, SecondSaveIsByteIdenticalAndUnknownMembersStay) {
  ASSERT_TRUE(surface_.LoadFile(kSmall, 0));
  ASSERT_TRUE(surface_.SaveFile(Path("a.mtf"), kNativeFormat, 0));
  Surface again;
  ASSERT_TRUE(again.LoadFile(Path("a.mtf"), 0));
  ASSERT_TRUE(again.SaveFile(Path("b.mtf"), kNativeFormat, 0));
  const std::string first = ReadAll(Path("a.mtf"));
  EXPECT_EQ(first, ReadAll(Path("b.mtf")));
  EXPECT_NE(first.find("\"generator\":{\"name\":\"hand\",\"note\":\"kept as it is\"}"),
            std::string::npos);
  EXPECT_NE(first.find("\"ruler\":true"), std::string::npos);
  EXPECT_NE(first.find("\"comment\":\"Noeud amont été\""), std::string::npos);
  EXPECT_NE(first.find("\"ends\":[0,2]"), std::string::npos);
  EXPECT_EQ(FileCount(), 2);
}

TEST_F(SurfaceFile, SavedDrawingComesBackAsItWas) {
  const int a = surface_.AddObject(kKindPicture, 0, 0, 100, 100);
  surface_.SetObjTag("Id", "Nod_1");
  surface_.SetObjTag("Coef", 0.8);
  const int b = surface_.AddObject(kKindEllipse, 500, 0, 600, 100);
  surface_.SetObjTag("Id", "Nod_2");
  const int link = surface_.AddLink(a, b);
  surface_.SetLinkPoint(2, 300, 400);
  surface_.Arrange(2);
  surface_.AddObject(kKindPolygon, 0, 0, 10, 10);
  surface_.SetObjectPoints({{0, 0}, {10, 0}, {5, 10}});
  surface_.SetObjTag("Texte", "ligne 1\r\nligne 2\t\"x\"\\");
  surface_.SetCurrentObject(kPage);
  surface_.SetLogicWidth(20000);
  ASSERT_TRUE(surface_.SaveFile(Path("n.mtf"), kNativeFormat, 0));

  Surface back;
  ASSERT_TRUE(back.LoadFile(Path("n.mtf"), 0));
  EXPECT_EQ(back.LogicWidth(), 20000);
  EXPECT_EQ(back.ObjectCount(kPage), 4);
  const int na = back.FirstObject();
  EXPECT_EQ(back.ObjTag("Coef"), "0.8");
  const int nb = back.NextObject();
  EXPECT_EQ(back.ObjectKind(), kKindEllipse);
  back.NextObject();
  EXPECT_EQ(back.LinkEndObject(0), na);
  EXPECT_EQ(back.LinkEndObject(1), nb);
  EXPECT_EQ(back.ObjectPoints(), (std::vector<Point>{{50, 50}, {300, 400}, {550, 50}}));
  // Still stacked behind the rest.
  EXPECT_EQ(back.HitTest(50, 50), na);
  back.SetCurrentObject(kPage);
  back.FirstObject();
  back.NextObject();
  back.NextObject();
  back.NextObject();
  EXPECT_EQ(back.ObjectPoints().size(), 3u);
  EXPECT_EQ(back.ObjTag("Texte"), "ligne 1\r\nligne 2\t\"x\"\\");
  (void)link;
}

TEST_F(SurfaceFile, GroupsAreSavedWithTheirChildren) {
  const int a = surface_.AddObject(kKindPicture, 0, 0, 100, 100);
  const int b = surface_.AddObject(kKindPicture, 500, 0, 600, 100);
  surface_.AddLink(a, b);
  surface_.SetObjTag("Id", "Cac_1");
  surface_.SelectAll();
  surface_.SetCurrentObject(kSelection);
  ASSERT_TRUE(surface_.Arrange(0));
  ASSERT_TRUE(surface_.SaveFile(Path("g.mtf"), kNativeFormat, 0));
  Surface back;
  ASSERT_TRUE(back.LoadFile(Path("g.mtf"), 0));
  EXPECT_EQ(back.ObjectCount(kPage), 1);
  back.SelectAll();
  back.SetCurrentObject(kSelection);
  ASSERT_TRUE(back.Arrange(1));
  EXPECT_EQ(back.ObjectCount(kPage), 3);
  EXPECT_GT(back.FindById("Cac_1"), 0);
  back.SetCurrentObject(back.FindById("Cac_1"));
  EXPECT_GT(back.LinkEndObject(1), 0);
}

TEST_F(SurfaceFile, ModeTwoAddsTheFileObjectsAsTheSelection) {
  const int own = surface_.AddObject(kKindRectangle, 0, 0, 10, 10);
  surface_.SetSelected(true);
  surface_.SetObjTag("Id", "Own");
  ASSERT_TRUE(surface_.LoadFile(kSmall, 2));
  EXPECT_EQ(surface_.ObjectCount(kPage), 6);
  EXPECT_EQ(surface_.ObjectCount(kSelection), 5);
  surface_.SetCurrentObject(own);
  EXPECT_FALSE(surface_.Selected());
  const int link = surface_.FindById("Cac_1");
  surface_.SetCurrentObject(link);
  EXPECT_EQ(surface_.LinkEndObject(0), surface_.FindById("Nod_1"));
  EXPECT_EQ(surface_.LinkEndObject(1), surface_.FindById("Nod_2"));
  EXPECT_EQ(surface_.BackgroundPicture(), "");  // the host's page stays
  // The merge is one step.
  surface_.Undo();
  EXPECT_EQ(surface_.ObjectCount(kPage), 1);
}

TEST_F(SurfaceFile, ModeOneMakesTheDefaultsPicture) {
  WriteAll(Path("NOD.svg"), "<svg/>");
  EXPECT_TRUE(surface_.LoadFile(Path("NOD.svg"), 1));
  surface_.SetCurrentObject(kDefaults);
  EXPECT_EQ(surface_.ObjectPicture(), Path("NOD.svg"));
  surface_.AddObject(kKindPicture, 0, 0, 10, 10);
  EXPECT_EQ(surface_.ObjectPicture(), Path("NOD.svg"));
  EXPECT_FALSE(surface_.LoadFile(Path("missing.svg"), 1));
}

TEST_F(SurfaceFile, ModeZeroForgetsTheJournal) {
  surface_.AddObject(kKindRectangle, 0, 0, 10, 10);
  ASSERT_TRUE(surface_.CanUndo());
  ASSERT_TRUE(surface_.LoadFile(kSmall, 0));
  EXPECT_FALSE(surface_.CanUndo());
  EXPECT_FALSE(surface_.Undo());
  EXPECT_EQ(surface_.ObjectCount(kPage), 5);
}

// Each of these files is refused and the drawing stays as it was.
TEST_F(SurfaceFile, MalformedFilesAreRefusedWithoutChange) {
  const std::string good = ReadAll(kSmall);
  const std::vector<std::pair<const char*, std::string>> bad = {
      {"empty", ""},
      {"truncated", good.substr(0, good.size() / 2)},
      {"not json", "MetaDraw binary \x01\x02\x03"},
      {"array root", "[]"},
      {"no format", R"({"version":1,"objects":[]})"},
      {"other format", R"({"format":"other","objects":[]})"},
      {"future version", R"({"format":"pluvane-network","version":2,"objects":[]})"},
      {"no objects", R"({"format":"pluvane-network","version":1})"},
      {"objects not a list", R"({"format":"pluvane-network","objects":{}})"},
      {"object not a record", R"({"format":"pluvane-network","objects":[5]})"},
      {"no kind", R"({"format":"pluvane-network","objects":[{"box":[0,0,1,1],"tags":[]}]})"},
      {"unknown kind",
       R"({"format":"pluvane-network","objects":[{"kind":3,"box":[0,0,1,1],"tags":[]}]})"},
      {"kind as text",
       R"({"format":"pluvane-network","objects":[{"kind":"2","box":[0,0,1,1],"tags":[]}]})"},
      {"no box", R"({"format":"pluvane-network","objects":[{"kind":2,"tags":[]}]})"},
      {"short box",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1],"tags":[]}]})"},
      {"box of reals",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1.5,1],"tags":[]}]})"},
      {"box too large",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,4294967296,1],"tags":[]}]})"},
      {"no tags", R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1,1]}]})"},
      {"tag not a pair",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1,1],"tags":[["a"]]}]})"},
      {"tag value a number",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1,1],"tags":[["a",1]]}]})"},
      {"hidden as text",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1,1],"tags":[],"hidden":"yes"}]})"},
      {"line colour as text",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1,1],"tags":[],"line":{"color":"red"}}]})"},
      {"bad point",
       R"({"format":"pluvane-network","objects":[{"kind":8,"box":[0,0,1,1],"tags":[],"points":[[0]]}]})"},
      {"bad marker place",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1,1],"tags":[],"markers":[{"at":2}]}]})"},
      {"page not a record", R"({"format":"pluvane-network","page":3,"objects":[]})"},
      {"page width as text",
       R"({"format":"pluvane-network","page":{"logicWidth":"1"},"objects":[]})"},
      {"link without ends",
       R"({"format":"pluvane-network","objects":[{"kind":21,"box":[0,0,1,1],"tags":[]}]})"},
      {"link end out of range",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1,1],"tags":[]},{"kind":21,"ends":[0,2],"box":[0,0,1,1],"tags":[]}]})"},
      {"link end negative",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1,1],"tags":[]},{"kind":21,"ends":[-1,0],"box":[0,0,1,1],"tags":[]}]})"},
      {"link on itself",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1,1],"tags":[]},{"kind":21,"ends":[0,1],"box":[0,0,1,1],"tags":[]}]})"},
      {"link to a link",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1,1],"tags":[]},{"kind":2,"box":[0,0,1,1],"tags":[]},{"kind":21,"ends":[0,1],"box":[0,0,1,1],"tags":[]},{"kind":21,"ends":[0,2],"box":[0,0,1,1],"tags":[]}]})"},
      {"tags as text",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1,1],"tags":"a"}]})"},
      {"tag pair of three",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1,1],"tags":[["a","b","c"]]}]})"},
      {"group on a rectangle",
       R"({"format":"pluvane-network","objects":[{"kind":2,"box":[0,0,1,1],"tags":[],"group":[]}]})"},
      {"group child bad",
       R"({"format":"pluvane-network","objects":[{"kind":30,"box":[0,0,1,1],"tags":[],"group":[{"kind":2}]}]})"},
  };
  ASSERT_TRUE(surface_.LoadFile(kSmall, 0));
  const std::string before = surface_.CopySelection(1);
  for (const auto& [name, text] : bad) {
    WriteAll(Path("bad.mtf"), text);
    EXPECT_FALSE(surface_.LoadFile(Path("bad.mtf"), 0)) << name;
    EXPECT_FALSE(surface_.LoadFile(Path("bad.mtf"), 2)) << name;
    EXPECT_EQ(surface_.CopySelection(1), before) << name;
    EXPECT_EQ(surface_.ObjectCount(kPage), 5) << name;
  }
  EXPECT_FALSE(surface_.LoadFile(Path("none.mtf"), 0));
  EXPECT_FALSE(surface_.LoadFile(folder_.string(), 0));
}

TEST_F(SurfaceFile, TagListsInsideUnknownMembersAreKeptAsTheyCame) {
  WriteAll(
      Path("x.mtf"),
      R"({"format":"pluvane-network","version":1,"objects":[{"kind":2,"box":[0,0,1,1],)"
      R"("tags":[["Id","A"]],"note":{"tags":[["a","b"]]}}],"meta":{"objects":[{"tags":[]}]}})");
  ASSERT_TRUE(surface_.LoadFile(Path("x.mtf"), 0));
  ASSERT_TRUE(surface_.SaveFile(Path("y.mtf"), kNativeFormat, 0));
  const std::string saved = ReadAll(Path("y.mtf"));
  EXPECT_NE(saved.find(R"("note":{"tags":[["a","b"]]})"), std::string::npos);
  EXPECT_NE(saved.find(R"("meta":{"objects":[{"tags":[]}]})"), std::string::npos);
  EXPECT_NE(saved.find(R"("tags":[["Id","A"]])"), std::string::npos);
}

TEST_F(SurfaceFile, MembersAreReadInAnyOrder) {
  // A link whose ends come before its kind; a rectangle with "ends", which a
  // rectangle does not know and keeps as it came.
  WriteAll(Path("x.mtf"),
           R"({"objects":[{"box":[0,0,1,1],"tags":[["Id","A"]],"kind":2},)"
           R"({"tags":[["Id","B"]],"ends":[7,8],"box":[5,5,6,6],"kind":2},)"
           R"({"ends":[0,1],"points":[[0,0],[5,5]],"box":[0,0,5,5],"tags":[],"kind":21}],)"
           R"("page":{"logicWidth":5000,"ruler":1},"version":1,"format":"pluvane-network"})");
  ASSERT_TRUE(surface_.LoadFile(Path("x.mtf"), 0));
  EXPECT_EQ(surface_.LogicWidth(), 5000);
  const int b = surface_.FindById("B");
  const int link = surface_.NextObjectNumber(b);
  surface_.SetCurrentObject(link);
  EXPECT_EQ(surface_.ObjectKind(), kKindLink);
  EXPECT_EQ(surface_.LinkEndObject(0), surface_.FindById("A"));
  EXPECT_EQ(surface_.LinkEndObject(1), b);
  ASSERT_TRUE(surface_.SaveFile(Path("y.mtf"), kNativeFormat, 0));
  const std::string saved = ReadAll(Path("y.mtf"));
  EXPECT_NE(saved.find(R"("tags":[["Id","B"]],"ends":[7,8]})"), std::string::npos);
  EXPECT_NE(saved.find(R"({"kind":21,"ends":[0,1],)"), std::string::npos);
  EXPECT_NE(saved.find(R"("ruler":1})"), std::string::npos);
}

TEST_F(SurfaceFile, EachEndKnowsItsLinksInOrderAfterLoading) {
  // Two nodes, three links between them, one of them a loop on A, and a
  // fourth node with none.
  WriteAll(Path("x.mtf"),
           R"({"format":"pluvane-network","version":1,"objects":[)"
           R"({"kind":2,"box":[0,0,1,1],"tags":[["Id","A"]]},)"
           R"({"kind":21,"ends":[0,2],"box":[0,0,5,5],"tags":[]},)"
           R"({"kind":2,"box":[5,5,6,6],"tags":[["Id","B"]]},)"
           R"({"kind":21,"ends":[2,0],"box":[0,0,5,5],"tags":[]},)"
           R"({"kind":21,"ends":[0,0],"box":[0,0,1,1],"tags":[]},)"
           R"({"kind":2,"box":[9,9,10,10],"tags":[["Id","C"]]}]})");
  ASSERT_TRUE(surface_.LoadFile(Path("x.mtf"), 0));
  const int a = surface_.FindById("A");
  const int b = surface_.FindById("B");
  EXPECT_EQ(surface_.LinksOf(a), (std::vector<int>{a + 1, a + 3, a + 4}));
  EXPECT_EQ(surface_.LinksOf(b), (std::vector<int>{a + 1, a + 3}));
  EXPECT_TRUE(surface_.LinksOf(surface_.FindById("C")).empty());
  // Pasted again, the copies are bound among themselves only.
  const std::string copy = surface_.CopySelection(1);
  ASSERT_EQ(surface_.PasteClipboard(copy), 1);
  EXPECT_EQ(surface_.ObjectCount(kPage), 12);
  const int a2 = a + 6;
  EXPECT_EQ(surface_.LinksOf(a2), (std::vector<int>{a2 + 1, a2 + 3, a2 + 4}));
  EXPECT_EQ(surface_.LinksOf(a), (std::vector<int>{a + 1, a + 3, a + 4}));
  // Undoing the paste unbinds them.
  ASSERT_TRUE(surface_.CanUndo());
  surface_.Undo();
  EXPECT_EQ(surface_.ObjectCount(kPage), 6);
  EXPECT_EQ(surface_.LinksOf(b), (std::vector<int>{a + 1, a + 3}));
}

TEST_F(SurfaceFile, KnownMembersOfTheWrongFormAreRefused) {
  const std::string head = R"({"format":"pluvane-network","objects":[)";
  for (const std::string object :
       {R"({"kind":2,"box":[0,0,1],"tags":[]})", R"({"kind":2,"box":[0,0,1,1],"tags":[["a"]]})",
        R"({"kind":2,"box":[0,0,1,1],"tags":[],"group":[]})",
        R"({"kind":2,"box":[0,0,1,1],"tags":[],"points":[[1,2,3]]})",
        R"({"kind":2,"box":[0,0,1,1],"tags":[],"hidden":1})",
        R"({"kind":2,"box":[0,0,1,1],"tags":[],"line":{"width":"x"}})",
        R"({"box":[0,0,1,1],"tags":[]})"}) {
    WriteAll(Path("x.mtf"), head + object + "]}");
    EXPECT_FALSE(surface_.LoadFile(Path("x.mtf"), 0)) << object;
  }
  // The last of two object lists counts, and it is none.
  WriteAll(Path("x.mtf"), head + R"(],"objects":1})");
  EXPECT_FALSE(surface_.LoadFile(Path("x.mtf"), 0));
}

TEST_F(SurfaceFile, DeeplyNestedTextIsRefusedWithoutCrash) {
  WriteAll(Path("deep.mtf"), std::string(100000, '[') + std::string(100000, ']'));
  EXPECT_FALSE(surface_.LoadFile(Path("deep.mtf"), 0));
  std::string groups = R"({"format":"pluvane-network","objects":[)";
  for (int i = 0; i < 100; ++i) groups += R"({"kind":30,"box":[0,0,1,1],"tags":[],"group":[)";
  for (int i = 0; i < 100; ++i) groups += "]}";
  groups += "]}";
  WriteAll(Path("groups.mtf"), groups);
  EXPECT_FALSE(surface_.LoadFile(Path("groups.mtf"), 0));
}

TEST_F(SurfaceFile, OtherFormatsAreLeftToTheView) {
  surface_.AddObject(kKindRectangle, 0, 0, 10, 10);
  EXPECT_FALSE(surface_.SaveFile(Path("n.wmf"), 2, 0));
  EXPECT_EQ(surface_.FileFormat(), 2);
  EXPECT_FALSE(fs::exists(Path("n.wmf")));
}

TEST_F(SurfaceFile, SaveReplacesTheOldFileThroughARename) {
  WriteAll(Path("n.mtf"), "old");
  surface_.AddObject(kKindRectangle, 0, 0, 10, 10);
  ASSERT_TRUE(surface_.SaveFile(Path("n.mtf"), kNativeFormat, 0));
  EXPECT_NE(ReadAll(Path("n.mtf")), "old");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(SurfaceFile, FailedWriteKeepsTheOldFile) {
  WriteAll(Path("n.mtf"), "old network");
  for (int i = 0; i < 2000; ++i) {
    surface_.AddObject(kKindRectangle, 0, 0, 10, 10);
    surface_.SetObjTag("Id", "Nod_" + std::to_string(i));
  }
  // A file size limit makes the write itself fail, whoever runs the test.
  struct rlimit old_limit {};
  getrlimit(RLIMIT_FSIZE, &old_limit);
  auto* old_handler = signal(SIGXFSZ, SIG_IGN);
  struct rlimit small = old_limit;
  small.rlim_cur = 4096;
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const bool saved = surface_.SaveFile(Path("n.mtf"), kNativeFormat, 0);
  setrlimit(RLIMIT_FSIZE, &old_limit);
  signal(SIGXFSZ, old_handler);
  EXPECT_FALSE(saved);
  EXPECT_EQ(ReadAll(Path("n.mtf")), "old network");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(SurfaceFile, ReadOnlyFolderKeepsTheOldFile) {
  WriteAll(Path("n.mtf"), "old network");
  fs::permissions(folder_, fs::perms::owner_read | fs::perms::owner_exec);
  const std::string probe = Path("probe");
  if (std::ofstream(probe).good()) {
    fs::permissions(folder_, fs::perms::all);
    GTEST_SKIP() << "this user writes in read-only folders";
  }
  surface_.AddObject(kKindRectangle, 0, 0, 10, 10);
  EXPECT_FALSE(surface_.SaveFile(Path("n.mtf"), kNativeFormat, 0));
  EXPECT_EQ(ReadAll(Path("n.mtf")), "old network");
}

TEST_F(SurfaceFile, SaveIntoAMissingFolderFails) {
  surface_.AddObject(kKindRectangle, 0, 0, 10, 10);
  EXPECT_FALSE(surface_.SaveFile(Path("no/such/n.mtf"), kNativeFormat, 0));
  EXPECT_FALSE(surface_.SaveFile("", kNativeFormat, 0));
}

TEST_F(SurfaceFile, SaveOverAFolderFailsAndLeavesNoTemporaryFile) {
  fs::create_directory(Path("n.mtf"));
  surface_.AddObject(kKindRectangle, 0, 0, 10, 10);
  EXPECT_FALSE(surface_.SaveFile(Path("n.mtf"), kNativeFormat, 0));
  EXPECT_TRUE(fs::is_directory(Path("n.mtf")));
  EXPECT_EQ(FileCount(), 0);
}

TEST_F(SurfaceFile, CopyAndPasteCarryTheSelectedObjects) {
  ASSERT_TRUE(surface_.LoadFile(kSmall, 0));
  Surface other;
  EXPECT_EQ(other.PasteClipboard(""), 0);
  EXPECT_EQ(other.PasteClipboard("  \n"), 0);
  EXPECT_EQ(other.PasteClipboard("du texte"), 2);
  EXPECT_EQ(other.PasteClipboard(R"([{"kind":2}])"), 2);
  EXPECT_EQ(other.ObjectCount(kPage), 0);
  // Only one end selected: the link stays behind.
  surface_.SetCurrentObject(surface_.FindById("Nod_1"));
  surface_.SetSelected(true);
  surface_.SetCurrentObject(surface_.FindById("Cac_1"));
  surface_.SetSelected(true);
  EXPECT_EQ(other.PasteClipboard(surface_.CopySelection(0)), 1);
  EXPECT_EQ(other.ObjectCount(kPage), 1);
  EXPECT_EQ(other.ObjectCount(kSelection), 1);
  // Both ends: it goes along, bound to the pasted ends.
  surface_.SetCurrentObject(surface_.FindById("Nod_2"));
  surface_.SetSelected(true);
  const std::string clip = surface_.CopySelection(0);
  EXPECT_EQ(clip.front(), '[');
  EXPECT_EQ(other.PasteClipboard(clip), 1);
  EXPECT_EQ(other.ObjectCount(kPage), 4);
  EXPECT_EQ(other.ObjectCount(kSelection), 3);
  other.SetCurrentObject(kSelection);
  other.FirstSelected();
  const int first = other.CurrentObject();
  other.NextSelected();
  EXPECT_EQ(other.ObjTag("Id"), "Cac_1");
  EXPECT_EQ(other.LinkEndObject(0), first);
  // Pasted Ids stay as they were: doublets are the checker's business.
  EXPECT_EQ(other.FindById("Nod_1"), 11);
  // All objects with mode 1.
  Surface third;
  EXPECT_EQ(third.PasteClipboard(surface_.CopySelection(1)), 1);
  EXPECT_EQ(third.ObjectCount(kPage), 5);
}

}  // namespace
}  // namespace pluvane
