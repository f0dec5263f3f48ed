#include "plot/frm_ech_def.h"

#include <filesystem>

#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "plot/auto_scale.h"
#include "plot/plot_dates.h"
#include "plot/script_words.h"

namespace pluvane {

namespace {

constexpr const char* kTitle = "Définition des Echelles";
constexpr int kScaleWords = 15;
constexpr int kGridWords = 6;

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

bool IsDate(const std::string& text) { return text.find('/') != std::string::npos; }

// The cell's number in the script's number form; a date as written.
std::string CellWord(const Grid& grid, int col, int row) {
  const std::string& text = grid.Text(col, row);
  if (col == 1 && row <= 2 && IsDate(text)) return Trim(text);
  return ScriptNumber(grid.Value(col, row));
}

// The word `i` (from 1) of a statement.
const std::string& Word(const std::vector<std::string>& words, int i) {
  static const std::string kEmpty;
  return i >= 1 && i <= static_cast<int>(words.size()) ? words[i - 1] : kEmpty;
}

}  // namespace

FrmEchDef::FrmEchDef(UserInterface& ui, ViewerState& state)
    : Spread1(2, 5), ui_(ui), state_(state) {
  Spread1.SetCaption(Caption());
  Spread1.SetColHead(1, "X");
  Spread1.SetColHead(2, "Y");
  const char* heads[] = {"Min", "Max", "Pas", "Graduation", "Grille"};
  for (int row = 1; row <= 5; ++row) Spread1.SetText(0, row, heads[row - 1]);
  Load(state_.script);
}

std::vector<FormCommand> FrmEchDef::Commands() {
  return {{"Command1", "&Appliquer", [this] { Command1(); }},
          {"Command2", "&Initial", [this] { Command2(); }},
          {"Command3", "A&nnuler", [this] { Command3(); }}};
}

bool FrmEchDef::Load(const std::string& script) {
  std::vector<std::string> lines;
  if (!FileExist(script) || !ReadTextLines(script, lines)) {
    ui_.ShowMessage("fichier non trouvé : " + script, "", MessageIcon::kNone);
    return false;
  }
  scale_words_.clear();
  grid_words_.clear();
  for (const std::string& line : lines) {
    const ScriptKeyword keyword = LineKeyword(line);
    if (keyword == ScriptKeyword::kScale && scale_words_.empty()) {
      scale_words_ = MorvexGetEline(StatementRest(line), kScaleWords);
    } else if (keyword == ScriptKeyword::kGrid && grid_words_.empty()) {
      grid_words_ = MorvexGetEline(StatementRest(line), kGridWords);
    }
  }
  for (int col = 1; col <= 2; ++col) {
    for (int row = 1; row <= 5; ++row) Spread1.SetText(col, row, "0");
  }
  if (!scale_words_.empty()) {
    // Words 2 to 9: X min, X max, Y min, Y max, steps, spacings.
    const int word_of[2][4] = {{2, 3, 6, 8}, {4, 5, 7, 9}};
    for (int col = 1; col <= 2; ++col) {
      for (int row = 1; row <= 4; ++row) {
        Spread1.SetText(col, row, Word(scale_words_, word_of[col - 1][row - 1]));
      }
    }
  }
  if (!grid_words_.empty()) {
    Spread1.SetText(1, 5, Word(grid_words_, 1));
    Spread1.SetText(2, 5, Word(grid_words_, 2));
  }
  return true;
}

bool FrmEchDef::Spread1_LeaveCell(int col, int row) {
  if (row > 2 || col < 1 || col > 2) return true;
  const std::string low = Trim(Spread1.Text(col, 1)), high = Trim(Spread1.Text(col, 2));
  std::string text;
  if (col == 1 && (IsDate(low) || IsDate(high))) {
    std::int32_t a = 0, b = 0;
    DateSerialOf(low, a);
    DateSerialOf(high, b);
    if (a <= b) return true;
    text = "Incohérence entre les dates Xmin et Xmax :\n     Date Xmin = " + low +
           "\n     Date Xmax = " + high;
  } else {
    if (Val(low) <= Val(high)) return true;
    const std::string axis = col == 1 ? "X" : "Y";
    text = "Incohérence entre les valeurs " + axis + "min et " + axis + "max :\n     " + axis +
           "min = " + low + "\n     " + axis + "max = " + high;
  }
  ui_.ShowMessage(text, kTitle, MessageIcon::kNone);
  Spread1.SetActiveCell(col, row);
  return false;
}

void FrmEchDef::Rewrite() {
  std::vector<std::string> lines;
  if (scale_words_.empty() || !ReadTextLines(state_.script, lines)) return;
  std::vector<std::string> w = scale_words_;
  w.resize(kScaleWords);
  // A changed step takes the format that shows its decimals.
  const bool date_scale = IsDate(Spread1.Text(1, 1)) || IsDate(Word(scale_words_, 2));
  if (Val(Spread1.Text(1, 3)) != Val(w[5]) && !date_scale)
    w[13] = FormatOfStep(Spread1.Value(1, 3));
  if (Val(Spread1.Text(2, 3)) != Val(w[6])) w[14] = FormatOfStep(Spread1.Value(2, 3));
  std::string scale = "ECHELLE " + Quoted(w[0]);
  const int cells[8][2] = {{1, 1}, {1, 2}, {2, 1}, {2, 2}, {1, 3}, {2, 3}, {1, 4}, {2, 4}};
  for (const auto& cell : cells) scale += " " + CellWord(Spread1, cell[0], cell[1]);
  scale += " " + Quoted(w[9]) + " " + Quoted(w[10]) + " " + Quoted(w[11]) + " " + w[12] + " " +
           Quoted(w[13]) + " " + Quoted(w[14]);
  std::string grid;
  if (!grid_words_.empty()) {
    grid = "GRILLE " + CellWord(Spread1, 1, 5) + " " + CellWord(Spread1, 2, 5);
    for (int i = 3; i <= kGridWords; ++i) {
      if (!Word(grid_words_, i).empty()) grid += " " + Word(grid_words_, i);
    }
  }
  for (std::string& line : lines) {
    const ScriptKeyword keyword = LineKeyword(line);
    if (keyword == ScriptKeyword::kScale) line = scale;
    if (keyword == ScriptKeyword::kGrid) line = grid;
  }
  const std::string temporary = JoinPath(DirOf(state_.script), "Mst.tmp");
  if (!WriteTextLines(temporary, lines)) return;
  std::error_code ignored;
  std::filesystem::rename(temporary, state_.script, ignored);
}

void FrmEchDef::Command1() {
  state_.action = kViewerApply;
  Rewrite();
  Close();
}

void FrmEchDef::Command2() {
  if (!FileExist(state_.initial_script)) {
    ui_.ShowMessage("Fichier Mst initial " + state_.initial_script + "introuvale.", "",
                    MessageIcon::kNone);
    return;
  }
  Load(state_.initial_script);
  state_.action = kViewerInitial;
  Rewrite();
  Close();
}

void FrmEchDef::Command3() {
  state_.action = kViewerCancel;
  Close();
}

}  // namespace pluvane
