#include "plot/ctl_create.h"

#include <cerrno>
#include <vector>

#include "foundation/errors.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "plot/ctl_fields.h"
#include "plot/script_words.h"

namespace pluvane {

namespace {

using Lines = std::vector<std::string>;
using Words = std::vector<std::string>;

std::int32_t WordInt(const std::string& word) { return RoundLong(Val(word)); }

std::string FrameLine(int rank, int curves, const Words& w) {
  double text_size = Val(w[8]);
  if (text_size < 0.5) text_size = 8;
  return CtlInt(rank, 5) + CtlInt(curves, 5) + CtlFixed(Val(w[0]), 8, 2) +
         CtlFixed(Val(w[1]), 8, 2) + CtlFixed(Val(w[2]), 8, 2) + CtlFixed(Val(w[3]), 8, 2) +
         CtlText(w[4], 80) + CtlInt(WordInt(w[5]), 8) + CtlInt(WordInt(w[6]), 8) +
         CtlInt(WordInt(w[7]), 8) + CtlFixed(text_size, 8, 2) + CtlFixed(Val(w[9]), 8, 2) +
         CtlRight(w[10], 10);
}

// An X limit: a date is written as it stands.
std::string XLimit(const std::string& word) {
  return word.find('/') != std::string::npos ? CtlText(word, 10) : CtlFixed(Val(word), 10, 2);
}

std::string ScaleLine(const Words& w) {
  return XLimit(w[1]) + XLimit(w[2]) + CtlFixed(Val(w[3]), 10, 2) + CtlFixed(Val(w[4]), 10, 2) +
         CtlFixed(Val(w[5]), 8, 3) + CtlFixed(Val(w[6]), 8, 3) + CtlInt(WordInt(w[7]), 5) +
         CtlInt(WordInt(w[8]), 5) + CtlFixed(Val(w[12]), 8, 2) + CtlText(w[9], 40) +
         CtlText(w[10], 40) + CtlText(w[11], 5) + CtlText(w[0], 5) + CtlText(w[13], 10) +
         CtlText(w[14], 10);
}

std::string GridLine(const Words& w) {
  return CtlInt(WordInt(w[0]), 5) + CtlInt(WordInt(w[1]), 5) + CtlInt(WordInt(w[2]), 8) +
         CtlInt(WordInt(w[3]), 8) + CtlInt(WordInt(w[4]), 8) + CtlRight(w[5], 10);
}

std::string PlotLine(const Words& w) {
  // The constant 6 is read back by the renderer and used nowhere.
  return CtlText(w[2], 80) + CtlText(w[1], 256) + CtlInt(WordInt(w[4]), 8) +
         CtlInt(WordInt(w[5]), 8) + CtlInt(WordInt(w[6]), 8) + CtlFixed(6, 8, 2) +
         CtlText(w[3], 40) + CtlInt(WordInt(w[0]), 5) + CtlText(w[7], 8) +
         CtlInt(WordInt(w[8]), 8) + CtlInt(WordInt(w[9]), 8);
}

std::string CommentLine(const Words& w) {
  return CtlText(w[0], 8) + CtlText(w[1], 8) + CtlText(w[2], 8) + CtlText(w[3], 5) +
         CtlText(w[4], 100) + CtlInt(WordInt(w[5]), 8) + CtlInt(WordInt(w[6]), 8) +
         CtlInt(WordInt(w[7]), 8) + CtlText(w[8], 8) + CtlText(w[9], 8);
}

// A PLOTXYZ statement and the lines of its surface, which follow it in the
// page file: the renderer has no reader for them and draws nothing of them.
void SurfaceLines(const std::string& rest, const Lines& page, std::size_t& i, Lines& out) {
  const Words w = MorvexGetEline(rest, 6);
  out.push_back("$$$  " + CtlText(w[4], 15) + CtlText(w[3], 15) + CtlFixed(Val(w[1]), 8, 2) +
                CtlFixed(Val(w[2]), 8, 2) + CtlFixed(Val(w[0]), 8, 2) + CtlInt(WordInt(w[5]), 5));
  std::int32_t count = 0;
  if (i + 1 < page.size()) count = WordInt(Trim(page[++i]));
  out.push_back(CtlInt(count, 5));
  for (std::int32_t k = 0; k < count && i + 1 < page.size(); ++k) {
    const Words v = MorvexGetEline(page[++i], 5);
    out.push_back(CtlText(v[0], 10) + CtlText(v[1], 10) + CtlInt(WordInt(v[2]), 5) +
                  CtlInt(WordInt(v[3]), 5) + CtlInt(WordInt(v[4]), 5));
  }
}

bool EndsPage(ScriptKeyword keyword) {
  return keyword == ScriptKeyword::kEndPage || keyword == ScriptKeyword::kEnd;
}

bool IsCurve(ScriptKeyword keyword) {
  return keyword == ScriptKeyword::kPlot || keyword == ScriptKeyword::kPlotXyz;
}

// What the first pass learns of the page's structure.
struct PageOutline {
  std::string code;
  std::vector<int> curves;          // per frame
  std::vector<std::string> scales;  // per frame, the last ECHELLE's words
  std::vector<std::string> grids;   // per frame, the last GRILLE's words
};

// Pass 1; false when the page holds too many frames.
bool ReadOutline(const Lines& page, PageOutline& outline) {
  for (std::size_t i = 0; i < page.size(); ++i) {
    const ScriptKeyword keyword = LineKeyword(page[i]);
    if (EndsPage(keyword)) break;
    if (keyword == ScriptKeyword::kBeginPage) outline.code = PageCode(StatementRest(page[i]));
    if (keyword != ScriptKeyword::kFrame) continue;
    if (static_cast<int>(outline.curves.size()) == kMaxFrames) return false;
    outline.curves.push_back(0);
    outline.scales.emplace_back();
    outline.grids.emplace_back();
    for (++i; i < page.size(); ++i) {
      const ScriptKeyword inner = LineKeyword(page[i]);
      if (inner == ScriptKeyword::kEndFrame) break;
      if (IsCurve(inner)) ++outline.curves.back();
      if (inner == ScriptKeyword::kScale) outline.scales.back() = StatementRest(page[i]);
      if (inner == ScriptKeyword::kGrid) outline.grids.back() = StatementRest(page[i]);
    }
  }
  return true;
}

// Pass 3: the lines of every frame.
void WriteFrames(const Lines& page, const PageOutline& outline, Lines& out) {
  std::size_t rank = 0;
  for (std::size_t i = 0; i < page.size(); ++i) {
    const ScriptKeyword keyword = LineKeyword(page[i]);
    if (EndsPage(keyword)) break;
    if (keyword != ScriptKeyword::kFrame || rank >= outline.curves.size()) continue;
    out.push_back(FrameLine(static_cast<int>(rank + 1), outline.curves[rank],
                            MorvexGetEline(StatementRest(page[i]), 11)));
    bool scale_written = false;
    for (++i; i < page.size(); ++i) {
      const ScriptKeyword inner = LineKeyword(page[i]);
      if (inner == ScriptKeyword::kEndFrame) break;
      if (!IsCurve(inner)) continue;
      // A frame without a curve gets no scale and no grid line.
      if (!scale_written) {
        out.push_back(ScaleLine(MorvexGetEline(outline.scales[rank], 15)));
        out.push_back(GridLine(MorvexGetEline(outline.grids[rank], 6)));
        scale_written = true;
      }
      if (inner == ScriptKeyword::kPlot) {
        out.push_back(PlotLine(MorvexGetEline(StatementRest(page[i]), 10)));
      } else {
        SurfaceLines(StatementRest(page[i]), page, i, out);
      }
    }
    ++rank;
  }
}

// Pass 4: the comments, wherever they stand in the page.
void WriteComments(const Lines& page, Lines& out) {
  Lines comments;
  for (const std::string& line : page) {
    const ScriptKeyword keyword = LineKeyword(line);
    if (EndsPage(keyword)) break;
    if (keyword != ScriptKeyword::kComment) continue;
    if (static_cast<int>(comments.size()) == kMaxComments) break;
    comments.push_back(CommentLine(MorvexGetEline(StatementRest(line), 10)));
  }
  out.push_back(CtlInt(static_cast<std::int32_t>(comments.size()), 5));
  out.insert(out.end(), comments.begin(), comments.end());
}

void WriteOrThrow(const std::string& path, const Lines& lines) {
  errno = 0;
  if (!WriteTextLines(path, lines)) throw FileError(errno != 0 ? errno : EACCES);
}

// The path of the page file whatever the case of its name.
std::string FindPageFile(const std::string& path) {
  if (FileExist(path)) return path;
  std::string folder = DirOf(path);
  std::string found = FindFileNoCase(folder.empty() ? "." : folder, FileNameOf(path));
  return found.empty() ? path : found;
}

}  // namespace

bool CtlCreate(UserInterface& ui, const std::string& page_file, const std::string& ctl_file) {
  try {
    Lines page;
    if (!ReadTextLines(FindPageFile(page_file), page)) throw FileError(ENOENT);
    PageOutline outline;
    if (!ReadOutline(page, outline)) {
      WriteOrThrow(ctl_file, {});
      ui.ShowMessage("Dépassement de cadre max " + ScriptNumber(kMaxFrames), "",
                     MessageIcon::kNone);
      return false;
    }
    Lines out;
    out.push_back(CtlText(outline.code, 5) +
                  CtlInt(static_cast<std::int32_t>(outline.curves.size()), 5));
    WriteFrames(page, outline, out);
    WriteComments(page, out);
    WriteOrThrow(ctl_file, out);
    return true;
  } catch (const AppError& error) {
    ui.ShowMessage("Module CtlCreate, erreur n° " + std::to_string(error.number()) + " : " +
                       error.description(),
                   "Lecture de donnée", MessageIcon::kNone);
    return false;
  }
}

}  // namespace pluvane
