#include "foundation/text.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace pluvane {
namespace {

std::string ReadBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

TEST(Text, TrimRemovesBlanksOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\ta\t"), "\ta\t");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(LTrim("  a "), "a ");
  EXPECT_EQ(RTrim("  a "), "  a");
}

TEST(Text, CaseOfAccentedLetters) {
  EXPECT_EQ(UCase("Noeud é à œ ÿ"), "NOEUD É À Œ Ÿ");
  EXPECT_EQ(LCase("ÉCOLE Œ"), "école œ");
  EXPECT_TRUE(EqualsNoCase("Répertoire", "RÉPERTOIRE"));
  EXPECT_TRUE(EqualsNoCase("abc", "ABC"));
  EXPECT_FALSE(EqualsNoCase("abc", "abd"));
  EXPECT_FALSE(EqualsNoCase("é", "e"));
}

TEST(Text, WidthsCountCharacters) {
  EXPECT_EQ(CharCount("Noeud é"), 7u);
  EXPECT_EQ(CharLeft("éèà", 2), "éè");
  EXPECT_EQ(CharRight("éèà", 1), "à");
  EXPECT_EQ(CharMid("aéb", 2, 1), "é");
  EXPECT_EQ(CharMid("aéb", 2), "éb");
  EXPECT_EQ(CharMid("ab", 5), "");
  EXPECT_EQ(CharFind("aébé", "é", 3), 4u);
  EXPECT_EQ(CharFind("abc", "x"), 0u);
}

TEST(Text, Windows1252RoundTrip) {
  EXPECT_EQ(Utf8ToCp1252("Noeud é"), std::string("Noeud \xE9"));
  EXPECT_EQ(Utf8ToCp1252("€ œ"), std::string("\x80 \x9C"));
  EXPECT_EQ(Utf8ToCp1252("∑"), "?");
  EXPECT_EQ(Cp1252ToUtf8("\xE9\x80"), "é€");
  EXPECT_EQ(DecodeText("déjà"), "déjà");
  EXPECT_EQ(DecodeText("d\xE9j\xE0"), "déjà");
}

TEST(Text, FilesAreWrittenInWindows1252WithCrLfAndReadEitherWay) {
  auto path = (std::filesystem::temp_directory_path() / "pluvane_text_test.txt").string();
  ASSERT_TRUE(WriteTextLines(path, {"Noeud é", "", "fin"}));
  EXPECT_EQ(ReadBytes(path), std::string("Noeud \xE9\r\n\r\nfin\r\n"));
  std::vector<std::string> lines;
  ASSERT_TRUE(ReadTextLines(path, lines));
  EXPECT_EQ(lines, (std::vector<std::string>{"Noeud é", "", "fin"}));
  std::ofstream(path, std::ios::binary) << "un\nd\xC3\xA9ux\r\ntrois";
  ASSERT_TRUE(ReadTextLines(path, lines));
  EXPECT_EQ(lines, (std::vector<std::string>{"un", "déux", "trois"}));
  std::remove(path.c_str());
  EXPECT_FALSE(ReadTextLines(path, lines));
}

TEST(Text, QuotedPart) {
  int position = -1;
  EXPECT_EQ(QuotedPart("  'Courbe 1 ' reste", position), "Courbe 1");
  EXPECT_EQ(position, 3);
  EXPECT_EQ(QuotedPart("x 'ouvert", position), "ouvert");
  EXPECT_EQ(position, 3);
  EXPECT_EQ(QuotedPart("sans apostrophe", position), "");
  EXPECT_EQ(position, 0);
}

}  // namespace
}  // namespace pluvane
