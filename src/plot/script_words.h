// The words of a plot script: the keyword of a statement and its accepted
// spellings, the rest of the line, the fixed-count word splitter of the script
// compiler, the compact page code, and the number form with a leading blank in
// which the script writers put their numbers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace pluvane {

enum class ScriptKeyword {
  kOther,
  kBeginPage, // PAGE, PAG
  kEndPage,   // ENDPAGE, ENDPAG, ENDP
  kEnd,       // END
  kFrame,     // CADRE, CAD
  kEndFrame,  // ENDCADRE, ENDCAD, ENDC
  kScale,     // ECHELLE, ECH
  kGrid,      // GRILLE, GRI
  kPlot,      // PLOTXY
  kPlotXyz,   // PLOTXYZ
  kComment,   // COMMENT, COM, COMMENTAIRE
};

// The line trimmed, up to its first blank, in capitals.
std::string PageFirstWord(std::string_view line);
// The statement a first word (in capitals) opens; no other abbreviation exists.
ScriptKeyword KeywordOf(std::string_view first_word);
// The keyword of a script line.
ScriptKeyword LineKeyword(std::string_view line);
// What follows the first word of the trimmed line, left-trimmed.
std::string StatementRest(std::string_view line);

// The `count` words of a statement (the line without its keyword), element i
// at index i - 1: a word in double quotes may hold blanks or be empty; a
// missing word is "0" except the last one, which stays empty; each word is
// trimmed. A missing closing quote ends the scan silently, the words behind it
// staying empty.
std::vector<std::string> MorvexGetEline(std::string_view line, int count);

// The page code of a PAGE statement's rest: every character but blanks and
// double quotes, cut to its first 5 characters.
std::string PageCode(std::string_view rest);

// The number as the script writers put it: the plain number-to-text form with
// a leading blank when it is not negative (" 3", "-0.5").
std::string ScriptNumber(double value);

}  // namespace pluvane
