#include "plot/script_words.h"

#include <gtest/gtest.h>

namespace pluvane {
namespace {

using Words = std::vector<std::string>;

TEST(MorvexGetEline, QuotedWordsKeepBlanksAndMayBeEmpty) {
  EXPECT_EQ(MorvexGetEline("  1 \"a b\"  \"\" x  ", 4), (Words{"1", "a b", "", "x"}));
}

TEST(MorvexGetEline, MissingWordsAreZeroButTheLastStaysEmpty) {
  EXPECT_EQ(MorvexGetEline("7", 3), (Words{"7", "0", ""}));
  EXPECT_EQ(MorvexGetEline("", 2), (Words{"0", ""}));
}

TEST(MorvexGetEline, MissingClosingQuoteStopsSilently) {
  EXPECT_EQ(MorvexGetEline("1 2 \"open 3 4", 5), (Words{"1", "2", "", "", ""}));
}

TEST(MorvexGetEline, SevenWordPlotxyLeavesWordTenEmpty) {
  Words w = MorvexGetEline("1 \"file\" \"curve\" \"\" 0 2 16711680", 10);
  EXPECT_EQ(w[7], "0");
  EXPECT_EQ(w[8], "0");
  EXPECT_EQ(w[9], "");
}

TEST(PageFirstWord, TrimsCutsAndCapitalises) {
  EXPECT_EQ(PageFirstWord("   Echelle \"F\" 0"), "ECHELLE");
  EXPECT_EQ(PageFirstWord(" EndCadre"), "ENDCADRE");
  EXPECT_EQ(PageFirstWord(""), "");
}

TEST(KeywordOf, AcceptsTheListedSpellingsOnly) {
  EXPECT_EQ(LineKeyword("cad 1 2"), ScriptKeyword::kFrame);
  EXPECT_EQ(LineKeyword("Cad 1 2"), ScriptKeyword::kFrame);
  EXPECT_EQ(LineKeyword("ca 1 2"), ScriptKeyword::kOther);
  EXPECT_EQ(LineKeyword("CADR 1"), ScriptKeyword::kOther);
  EXPECT_EQ(KeywordOf("PAG"), ScriptKeyword::kBeginPage);
  EXPECT_EQ(KeywordOf("PA"), ScriptKeyword::kOther);
  EXPECT_EQ(KeywordOf("ENDP"), ScriptKeyword::kEndPage);
  EXPECT_EQ(KeywordOf("ENDPAG"), ScriptKeyword::kEndPage);
  EXPECT_EQ(KeywordOf("END"), ScriptKeyword::kEnd);
  EXPECT_EQ(KeywordOf("ENDC"), ScriptKeyword::kEndFrame);
  EXPECT_EQ(KeywordOf("ENDCAD"), ScriptKeyword::kEndFrame);
  EXPECT_EQ(KeywordOf("ECH"), ScriptKeyword::kScale);
  EXPECT_EQ(KeywordOf("ECHEL"), ScriptKeyword::kOther);
  EXPECT_EQ(KeywordOf("GRI"), ScriptKeyword::kGrid);
  EXPECT_EQ(KeywordOf("PLOTXY"), ScriptKeyword::kPlot);
  EXPECT_EQ(KeywordOf("PLOT"), ScriptKeyword::kOther);
  EXPECT_EQ(KeywordOf("PLOTXYZ"), ScriptKeyword::kPlotXyz);
  EXPECT_EQ(KeywordOf("COM"), ScriptKeyword::kComment);
  EXPECT_EQ(KeywordOf("COMMENTAIRE"), ScriptKeyword::kComment);
  EXPECT_EQ(KeywordOf("COMMENTS"), ScriptKeyword::kOther);
}

TEST(StatementRest, IsTheRestLeftTrimmed) {
  EXPECT_EQ(StatementRest("  Cadre    2 3 "), "2 3");
  EXPECT_EQ(StatementRest("ENDPAGE"), "");
}

TEST(PageCode, DropsBlanksAndQuotesAndKeepsFiveCharacters) {
  EXPECT_EQ(PageCode("\"A3\" \"V\""), "A3V");
  EXPECT_EQ(PageCode("\"A3\" \"V\" \"x\""), "A3Vx");
  EXPECT_EQ(PageCode(" \"A4\"  \"H\"  \"Hydro\""), "A4HHy");
}

TEST(ScriptNumber, HasALeadingBlankWhenNotNegative) {
  EXPECT_EQ(ScriptNumber(3), " 3");
  EXPECT_EQ(ScriptNumber(0), " 0");
  EXPECT_EQ(ScriptNumber(0.5), " 0.5");
  EXPECT_EQ(ScriptNumber(-2.5), "-2.5");
}

}  // namespace
}  // namespace pluvane
