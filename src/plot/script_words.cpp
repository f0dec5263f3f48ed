#include "plot/script_words.h"

#include "foundation/line_parsing.h"
#include "foundation/numbers.h"
#include "foundation/scripted_ui.h"
#include "foundation/text.h"

namespace pluvane {

std::string PageFirstWord(std::string_view line) {
  std::string trimmed = Trim(line);
  return UCase(trimmed.substr(0, trimmed.find(' ')));
}

ScriptKeyword KeywordOf(std::string_view w) {
  if (w == "PAGE" || w == "PAG") return ScriptKeyword::kBeginPage;
  if (w == "ENDPAGE" || w == "ENDPAG" || w == "ENDP") return ScriptKeyword::kEndPage;
  if (w == "END") return ScriptKeyword::kEnd;
  if (w == "CADRE" || w == "CAD") return ScriptKeyword::kFrame;
  if (w == "ENDCADRE" || w == "ENDCAD" || w == "ENDC") return ScriptKeyword::kEndFrame;
  if (w == "ECHELLE" || w == "ECH") return ScriptKeyword::kScale;
  if (w == "GRILLE" || w == "GRI") return ScriptKeyword::kGrid;
  if (w == "PLOTXY") return ScriptKeyword::kPlot;
  if (w == "PLOTXYZ") return ScriptKeyword::kPlotXyz;
  if (w == "COMMENT" || w == "COM" || w == "COMMENTAIRE") return ScriptKeyword::kComment;
  return ScriptKeyword::kOther;
}

ScriptKeyword LineKeyword(std::string_view line) { return KeywordOf(PageFirstWord(line)); }

std::string StatementRest(std::string_view line) {
  std::string trimmed = Trim(line);
  std::size_t blank = trimmed.find(' ');
  if (blank == std::string::npos) return {};
  return LTrim(std::string_view(trimmed).substr(blank + 1));
}

std::vector<std::string> MorvexGetEline(std::string_view line, int count) {
  std::vector<std::string> words(static_cast<std::size_t>(count > 0 ? count : 0));
  // The older splitter does the same walk; its complaint about a missing quote
  // is never shown to the user of a plot script, so it goes to a sink.
  ScriptedUi sink;
  GetEline(sink, line, count, words);
  return words;
}

std::string PageCode(std::string_view rest) {
  std::string code;
  for (char c : rest) {
    if (c != ' ' && c != '"') code += c;
  }
  return CharLeft(code, 5);
}

std::string ScriptNumber(double value) {
  std::string text = NumToText(value);
  return text.front() == '-' ? text : " " + text;
}

}  // namespace pluvane
