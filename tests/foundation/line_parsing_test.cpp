#include "foundation/line_parsing.h"

#include <gtest/gtest.h>

#include "expect_message.h"
#include "foundation/scripted_ui.h"
#include "test_files.h"

namespace pluvane {
namespace {

using Elements = std::vector<std::string>;

class BeepCountingUi : public ScriptedUi {
 public:
  void Beep() override { ++beeps; }
  int beeps = 0;
};

TEST(SplitLine, EmptyLineGivesNoElementAndAnEmptyArray) {
  ScriptedUi ui;
  Elements e = {"old", "older"};
  EXPECT_EQ(SplitLine(ui, "", e), 0);
  EXPECT_TRUE(e.empty());
  EXPECT_EQ(SplitLine(ui, "    ", e), 0);
  EXPECT_TRUE(e.empty());
  EXPECT_TRUE(ui.Empty());
}

TEST(SplitLine, RunsOfBlanksCountAsOne) {
  ScriptedUi ui;
  Elements e;
  EXPECT_EQ(SplitLine(ui, "a  b", e), 2);
  EXPECT_EQ(e, (Elements{"a", "b"}));
  EXPECT_EQ(SplitLine(ui, "   12.5    Nod_1   7  ", e), 3);
  EXPECT_EQ(e, (Elements{"12.5", "Nod_1", "7"}));
}

TEST(SplitLine, EmptyFieldBetweenTwoSeparatorsIsKept) {
  ScriptedUi ui;
  Elements e;
  EXPECT_EQ(SplitLine(ui, "a;;b", e, ";"), 3);
  EXPECT_EQ(e, (Elements{"a", "", "b"}));
  EXPECT_EQ(SplitLine(ui, ";a", e, ";"), 2);
  EXPECT_EQ(e, (Elements{"", "a"}));
}

TEST(SplitLine, TrailingSeparatorMakesNoEmptyLastElement) {
  ScriptedUi ui;
  Elements e;
  EXPECT_EQ(SplitLine(ui, "a;", e, ";"), 1);
  EXPECT_EQ(e, (Elements{"a"}));
  EXPECT_EQ(SplitLine(ui, "a;b;  ", e, ";"), 2);
  EXPECT_EQ(e, (Elements{"a", "b"}));
}

TEST(SplitLine, ElementsAreTrimmedButTabsStay) {
  ScriptedUi ui;
  Elements e;
  EXPECT_EQ(SplitLine(ui, " a ; b ;c", e, ";"), 3);
  EXPECT_EQ(e, (Elements{"a", "b", "c"}));
  EXPECT_EQ(SplitLine(ui, "a\tb c", e), 2);
  EXPECT_EQ(e, (Elements{"a\tb", "c"}));
}

TEST(SplitLine, EmptySeparatorCountsAsABlank) {
  ScriptedUi ui;
  Elements e;
  EXPECT_EQ(SplitLine(ui, "x  y z", e, ""), 3);
  EXPECT_EQ(e, (Elements{"x", "y", "z"}));
}

TEST(SplitLine, MultiCharacterSeparator) {
  ScriptedUi ui;
  Elements e;
  EXPECT_EQ(SplitLine(ui, "a, b,c, d", e, ", "), 3);
  EXPECT_EQ(e, (Elements{"a", "b,c", "d"}));
}

TEST(SplitLine, QuotedFieldSwallowsTheCharacterBehindItsClosingQuote) {
  ScriptedUi ui;
  Elements e;
  EXPECT_EQ(SplitLine(ui, "\"a b\"c d", e), 2);
  EXPECT_EQ(e, (Elements{"a b", "d"}));
  EXPECT_EQ(SplitLine(ui, "\"a b\" c d", e), 3);
  EXPECT_EQ(e, (Elements{"a b", "c", "d"}));
  // The swallowed character is a whole character, even an accented one.
  EXPECT_EQ(SplitLine(ui, "\"x\"éy", e), 2);
  EXPECT_EQ(e, (Elements{"x", "y"}));
}

TEST(SplitLine, QuotedFieldKeepsSeparatorsAndLosesEndBlanks) {
  ScriptedUi ui;
  Elements e;
  EXPECT_EQ(SplitLine(ui, "\" a;b \";c", e, ";"), 2);
  EXPECT_EQ(e, (Elements{"a;b", "c"}));
  // A blank behind the closing quote is swallowed, then the separator starts
  // an empty field.
  EXPECT_EQ(SplitLine(ui, "\"a\" ;b", e, ";"), 3);
  EXPECT_EQ(e, (Elements{"a", "", "b"}));
}

TEST(SplitLine, QuoteAndClosingQuoteGiveAnEmptyElement) {
  ScriptedUi ui;
  Elements e;
  EXPECT_EQ(SplitLine(ui, "\"\" x", e), 2);
  EXPECT_EQ(e, (Elements{"", "x"}));
  EXPECT_EQ(SplitLine(ui, "a \"\"", e), 2);
  EXPECT_EQ(e, (Elements{"a", ""}));
}

TEST(SplitLine, MissingClosingQuoteShowsItsMessageAndGivesZero) {
  ScriptedUi ui;
  Elements e = {"old"};
  EXPECT_EQ(SplitLine(ui, "a \"b c", e), 0);
  EXPECT_TRUE(e.empty());
  ASSERT_EQ(ui.Messages().size(), 1u);
  ExpectLastMessage(ui, "Un 2eme guillemet manque pour l'element b c", "", MessageIcon::kNone);
}

TEST(GetEline, ShortLineFillsZerosButNeverTheLastElement) {
  ScriptedUi ui;
  Elements e = {"x", "y", "old"};
  GetEline(ui, "7", 3, e);
  EXPECT_EQ(e, (Elements{"7", "0", "old"}));
  EXPECT_TRUE(ui.Empty());
}

TEST(GetEline, FullLineFillsEveryElement) {
  ScriptedUi ui;
  Elements e(4, "old");
  GetEline(ui, "  N1   12.5 \"le nom\" 3 extra", 4, e);
  EXPECT_EQ(e, (Elements{"N1", "12.5", "le nom", "3"}));
}

TEST(GetEline, VectorIsGrownToTheCount) {
  ScriptedUi ui;
  Elements e;
  GetEline(ui, "a b", 3, e);
  EXPECT_EQ(e, (Elements{"a", "b", ""}));
}

TEST(GetEline, TabIsNoSeparator) {
  ScriptedUi ui;
  Elements e(2);
  GetEline(ui, "a\tb c", 2, e);
  EXPECT_EQ(e, (Elements{"a\tb", "c"}));
}

TEST(GetEline, QuotedElementEndsAtItsQuote) {
  ScriptedUi ui;
  Elements e(3);
  GetEline(ui, "\" x y \"z w", 3, e);
  EXPECT_EQ(e, (Elements{"x y", "z", "w"}));
}

TEST(GetEline, MissingQuoteBeepsShowsItsMessageAndKeepsTheRest) {
  BeepCountingUi ui;
  Elements e = {"p", "q", "r"};
  GetEline(ui, "1 \"abc def", 3, e);
  EXPECT_EQ(e, (Elements{"1", "q", "r"}));
  EXPECT_EQ(ui.beeps, 1);
  ASSERT_EQ(ui.Messages().size(), 1u);
  ExpectLastMessage(ui, " Erreur dans GetEline.\r\n Un guillemet manquant dans la ligne abc def",
                    "", MessageIcon::kNone);
}

TEST(ReadQuoted, ReadsEachLineAndItsQuotedPart) {
  TempFolder dir;
  WriteBytes(dir.File("f.txt"), "  'Nom' 12\r\nsans guillemet\n'ouvert");
  TextReader reader(dir.File("f.txt"));
  ASSERT_TRUE(reader.IsOpen());
  int position = -1;
  std::string raw;
  EXPECT_EQ(ReadQuoted(reader, position, &raw), "Nom");
  EXPECT_EQ(position, 1);  // counted in the trimmed line
  EXPECT_EQ(raw, "  'Nom' 12");
  EXPECT_EQ(ReadQuoted(reader, position), "");
  EXPECT_EQ(position, 0);
  EXPECT_EQ(ReadQuoted(reader, position, &raw), "ouvert");
  EXPECT_EQ(position, 1);
  EXPECT_TRUE(reader.AtEnd());
  position = 5;
  EXPECT_EQ(ReadQuoted(reader, position, &raw), "");
  EXPECT_EQ(position, 0);
  EXPECT_EQ(raw, "");
}

TEST(TextReader, MissingFileIsNotOpen) {
  TextReader reader("/nonexistent/pluvane/f.txt");
  EXPECT_FALSE(reader.IsOpen());
  EXPECT_TRUE(reader.AtEnd());
  std::string line;
  EXPECT_FALSE(reader.ReadLine(line));
}

TEST(FindQuotedKey, FindsAKeyCaseBlind) {
  ScriptedUi ui;
  TempFolder dir;
  WriteBytes(dir.File("lib.sec"), "entête\r\n  'Ovoïde T130' 1.3\r\n'Cercle' 1\r\n");
  EXPECT_TRUE(FindQuotedKey(ui, dir.File("lib.sec"), "OVOÏDE t130"));
  EXPECT_TRUE(FindQuotedKey(ui, dir.File("lib.sec"), "cercle"));
  EXPECT_FALSE(FindQuotedKey(ui, dir.File("lib.sec"), "Cadre"));
  EXPECT_FALSE(FindQuotedKey(ui, dir.File("lib.sec"), ""));
  EXPECT_TRUE(ui.Empty());
}

TEST(FindQuotedKey, MissingFileShowsItsMessage) {
  ScriptedUi ui;
  EXPECT_FALSE(FindQuotedKey(ui, "/nonexistent/lib.sec", "x"));
  ASSERT_EQ(ui.Messages().size(), 1u);
  ExpectLastMessage(ui,
                    "Fichier /nonexistent/lib.sec introuvable!\n"
                    "Enregistrer les données et Quitter le programme!",
                    "", MessageIcon::kNone);
}

}  // namespace
}  // namespace pluvane
