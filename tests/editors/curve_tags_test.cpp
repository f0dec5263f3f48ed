#include "editors/curve_tags.h"

#include <gtest/gtest.h>

#include "editor_fixture.h"
#include "editors/section_library.h"

namespace pluvane {
namespace {

class CurveTagsTest : public EditorTest {
 protected:
  std::string File() { return folder.File("tmp.crb"); }
};

TEST_F(CurveTagsTest, TwoColumnsToTheFile) {
  const int n = AddObject({{"NbPt", "3"},
                           {"X1", "100"},
                           {"Y1", "0"},
                           {"X2", "100.5"},
                           {"Y2", "1.25"},
                           {"X3", "-2"},
                           {"Y3", "12345.6789"},
                           {"Z1", "9"}});
  surface.SetCurrentObject(n);
  TagsToCurveFile2(surface, File(), "CrbX");
  EXPECT_EQ(ReadBytes(File()),
            "'CrbX'\r\n   100.000     0.000\r\n   100.500     1.250\r\n    -2.000 12345.679\r\n");
}

TEST_F(CurveTagsTest, ThreeAndFourColumns) {
  const int n = AddObject({{"NbPt", "2"},
                           {"X1", "1"},
                           {"Y1", "2"},
                           {"Z1", "3"},
                           {"T1", "4"},
                           {"X2", "5"},
                           {"Y2", "6"},
                           {"Z2", "7"},
                           {"T2", "8"}});
  surface.SetCurrentObject(n);
  TagsToCurveFile3(surface, File(), "CrbX");
  EXPECT_EQ(ReadBytes(File()),
            "'CrbX'\r\n     1.000     2.000     3.000\r\n     5.000     6.000     7.000\r\n");
  TagsToCurveFile4(surface, File(), "CrbX");
  EXPECT_EQ(ReadBytes(File()),
            "'CrbX'\r\n     1.000     2.000     3.000     4.000\r\n"
            "     5.000     6.000     7.000     8.000\r\n");
}

TEST_F(CurveTagsTest, NoPointGivesTheNameAlone) {
  const int n = AddObject({{"Id", "Dqz_1"}});
  surface.SetCurrentObject(n);
  WriteBytes(File(), "old content\r\n");
  TagsToCurveFile2(surface, File(), "CrbX");
  EXPECT_EQ(ReadBytes(File()), "'CrbX'\r\n");
}

TEST_F(CurveTagsTest, TheFileBackToTheTags) {
  const int n = AddObject({{"NbPt", "1"}, {"X1", "7"}});
  WriteBytes(File(),
             "'CrbX'\r\n     1.000     2.000     3.000     4.000\r\n"
             "     5.500     6.000     7.000     8.000\r\n");
  surface.SetCurrentObject(n);
  EXPECT_EQ(CurveFileToTags4(surface, ui, File(), "crbx"), 2);
  EXPECT_EQ(Tag(n, "NbPt"), "2");
  EXPECT_EQ(Tag(n, "X1"), "1");
  EXPECT_EQ(Tag(n, "Y1"), "2");
  EXPECT_EQ(Tag(n, "Z1"), "3");
  EXPECT_EQ(Tag(n, "T1"), "4");
  EXPECT_EQ(Tag(n, "X2"), "5.5");
  EXPECT_EQ(Tag(n, "T2"), "8");
  // Two columns touch X and Y only, and take no offset from a third.
  const int m = AddObject({{"Z1", "kept"}});
  surface.SetCurrentObject(m);
  EXPECT_EQ(CurveFileToTags2(surface, ui, File(), "CrbX"), 2);
  EXPECT_EQ(Tag(m, "Y1"), "2");
  EXPECT_EQ(Tag(m, "Z1"), "kept");
  surface.SetCurrentObject(m);
  EXPECT_EQ(CurveFileToTags3(surface, ui, File(), "CrbX"), 2);
  EXPECT_EQ(Tag(m, "Z2"), "7");
  EXPECT_EQ(Tag(m, "T2"), "");
  EXPECT_TRUE(ui.Empty());
}

TEST_F(CurveTagsTest, AMissingFileOrCurveLeavesTheTags) {
  const int n = AddObject({{"NbPt", "2"}, {"X1", "1"}});
  surface.SetCurrentObject(n);
  EXPECT_EQ(CurveFileToTags2(surface, ui, File(), "CrbX"), -1);
  WriteBytes(File(), "'Autre'\r\n     1.000     2.000\r\n");
  EXPECT_EQ(CurveFileToTags2(surface, ui, File(), "CrbX"), -1);
  EXPECT_EQ(Tag(n, "NbPt"), "2");
  EXPECT_EQ(Tag(n, "X1"), "1");
  EXPECT_TRUE(ui.Empty());
}

TEST_F(CurveTagsTest, RoundTrip) {
  const int n = AddObject({{"NbPt", "3"},
                           {"X1", "0.5"},
                           {"Y1", "0"},
                           {"X2", "1"},
                           {"Y2", "0.25"},
                           {"X3", "1.5"},
                           {"Y3", "1"}});
  surface.SetCurrentObject(n);
  TagsToCurveFile2(surface, File(), "S");
  const int m = AddObject({});
  surface.SetCurrentObject(m);
  EXPECT_EQ(CurveFileToTags2(surface, ui, File(), "S"), 3);
  for (const char* tag : {"NbPt", "X1", "Y1", "X2", "Y2", "X3", "Y3"})
    EXPECT_EQ(Tag(m, tag), Tag(n, tag)) << tag;
}

TEST_F(CurveTagsTest, TheSectionIsTakenByItsId) {
  const int element = AddObject({{"Id", "OVO"}, {"iName", "5"}, {"NbPt", "2"}, {"X1", "9"}});
  const int section = AddSection(surface, state, "OVO");
  SetTag(section, "NbPt", "2");
  SetTag(section, "X1", "1");
  SetTag(section, "Y1", "0");
  SetTag(section, "X2", "2");
  SetTag(section, "Y2", "1.5");
  surface.SetCurrentObject(element);
  ASSERT_TRUE(SectionToCurveFile(surface, "OVO", File(), "OVO"));
  EXPECT_EQ(surface.CurrentObject(), element);
  EXPECT_EQ(ReadBytes(File()), "'OVO'\r\n     1.000     0.000\r\n     2.000     1.500\r\n");
  EXPECT_FALSE(SectionToCurveFile(surface, "ovo", File(), "OVO"));

  WriteBytes(File(),
             "'OVO'\r\n     3.000     0.000\r\n     4.000     2.000\r\n"
             "     5.000     3.000\r\n");
  EXPECT_EQ(CurveFileToSection(surface, ui, "OVO", File(), "OVO"), 3);
  EXPECT_EQ(surface.CurrentObject(), element);
  EXPECT_EQ(Tag(section, "NbPt"), "3");
  EXPECT_EQ(Tag(section, "X3"), "5");
  EXPECT_EQ(Tag(section, "Y3"), "3");
  EXPECT_EQ(Tag(element, "X1"), "9");
  EXPECT_EQ(CurveFileToSection(surface, ui, "Absente", File(), "OVO"), -1);
}

}  // namespace
}  // namespace pluvane
