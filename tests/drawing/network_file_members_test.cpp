#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "drawing/surface.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

class NetworkFileMembers : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() / ("pluvane_members_" + std::to_string(::getpid()));
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }
  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  void Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
  }
  std::string Read(const std::string& name) const {
    std::ifstream in(Path(name), std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
  }
  fs::path folder_;
};

// Members this program does not know come back where they first stood, with
// their last value; ends given before the kind are a link's ends.
TEST_F(NetworkFileMembers, UnknownMembersAreWrittenBackAsTheyCame) {
  Write("in.mtf",
        "{\"format\":\"pluvane-network\",\"version\":1,\"x\":{\"a\":[1,2.5,null]},\"x\":7,\n"
        "\"page\":{\"logicLeft\":0,\"logicTop\":0,\"logicWidth\":100,\"logicHeight\":100,"
        "\"color\":1,\"backColor1\":2,\"backColor2\":3,\"grid\":{\"on\":1,\"stepX\":5,"
        "\"stepY\":5},\"scrollBars\":0,\"zz\":\"\xc3\xa9\"},\n"
        "\"objects\":[\n"
        "{\"kind\":2,\"box\":[0,0,10,10],\"u\":true,\"tags\":[[\"iName\",\"99\"],[\"Id\",\"A\"]],"
        "\"v\":\"w\"},\n"
        "{\"ends\":[0,2],\"kind\":21,\"box\":[0,0,20,20],\"points\":[[5,5],[15,15]],"
        "\"tags\":[[\"Id\",\"L\"]]},\n"
        "{\"kind\":30,\"box\":[0,0,30,30],\"u\":1,\"group\":[{\"kind\":2,\"box\":[1,1,2,2],"
        "\"tags\":[],\"q\":[{}]}],\"tags\":[[\"a\",\"b\"]],\"u\":2}\n"
        "]}\n");
  Surface surface;
  ASSERT_TRUE(surface.LoadFile(Path("in.mtf"), 0));
  ASSERT_TRUE(surface.SaveFile(Path("out.mtf"), kNativeFormat, 0));
  EXPECT_EQ(Read("out.mtf"),
            "{\"format\":\"pluvane-network\",\"version\":1,\n"
            "\"page\":{\"logicLeft\":0,\"logicTop\":0,\"logicWidth\":100,\"logicHeight\":100,"
            "\"color\":1,\"backColor1\":2,\"backColor2\":3,\"grid\":{\"on\":1,\"stepX\":5,"
            "\"stepY\":5},\"scrollBars\":0,\"zz\":\"\xc3\xa9\"},\n"
            "\"x\":7,\n"
            "\"objects\":[\n"
            "{\"kind\":2,\"box\":[0,0,10,10],\"tags\":[[\"iName\",\"99\"],[\"Id\",\"A\"]],"
            "\"u\":true,\"v\":\"w\"},\n"
            "{\"kind\":21,\"ends\":[0,2],\"box\":[0,0,20,20],\"points\":[[5,5],[15,15]],"
            "\"tags\":[[\"Id\",\"L\"]]},\n"
            "{\"kind\":30,\"box\":[0,0,30,30],\"group\":[{\"kind\":2,\"box\":[1,1,2,2],"
            "\"tags\":[],\"q\":[{}]}],\"tags\":[[\"a\",\"b\"]],\"u\":2}\n"
            "]}\n");
}

// A file cut short, or one that is not a regular file, leaves the drawing as it was.
TEST_F(NetworkFileMembers, TruncatedFileOrFolderIsRefused) {
  Write("cut.mtf", "{\"format\":\"pluvane-network\",\"version\":1,\"objects\":[{\"kind\":2,");
  Surface surface;
  surface.AddObject(kKindRectangle, 0, 0, 10, 10);
  EXPECT_FALSE(surface.LoadFile(Path("cut.mtf"), 0));
  EXPECT_FALSE(surface.LoadFile(folder_.string(), 0));
  EXPECT_EQ(surface.ObjectCount(kAllObjects), 1);
}

}  // namespace
}  // namespace pluvane
