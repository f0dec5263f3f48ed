#include "plot/morvex_draw.h"

#include <cerrno>
#include <vector>

#include "foundation/errors.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "plot/ctl_create.h"
#include "plot/ctl_read.h"
#include "plot/curve_file.h"
#include "plot/page_split.h"
#include "plot/plot_command.h"
#include "plot/plot_draw.h"
#include "plot/plot_page.h"

namespace pluvane {

namespace {

constexpr int kHourglass = 11;

// The control file read one line at a time, its line number kept for the
// error report.
class CtlLines {
 public:
  explicit CtlLines(std::vector<std::string> lines) : lines_(std::move(lines)) {}
  bool AtEnd() const { return next_ >= lines_.size(); }
  // The next line; past the end an empty one, as reading on would give.
  const std::string& Next() {
    static const std::string kEmpty;
    if (AtEnd()) {
      ++next_;
      return kEmpty;
    }
    return lines_[next_++];
  }
  int LineNumber() const { return static_cast<int>(next_); }

 private:
  std::vector<std::string> lines_;
  std::size_t next_ = 0;
};

// The curve file of a curve line: in the script's folder when it names none,
// found there whatever the case of its name.
std::string CurvePath(const std::string& file, const std::string& script_dir) {
  if (!DirOf(file).empty()) return file;
  const std::string found = FindFileNoCase(script_dir, file);
  return found.empty() ? JoinPath(script_dir, file) : found;
}

void DrawCurves(UserInterface& ui, PlotPage& page, const std::vector<CtlPlot>& plots,
                const std::string& script_dir) {
  std::vector<double> x, y;
  const int total = static_cast<int>(plots.size());
  for (int i = 0; i < total; ++i) {
    ui.ShowProgress((total - i) * 100 / total);
    const CtlPlot& plot = plots[static_cast<std::size_t>(i)];
    const std::string path = CurvePath(plot.file, script_dir);
    if (!FileExist(path)) {
      ui.ShowMessage(" Fichier " + path + " introuvable.", "", MessageIcon::kNone);
      continue;
    }
    std::string name = plot.name;
    const std::size_t star = name.find('*');
    const bool bars = star != std::string::npos;
    if (bars) name = name.substr(star + 1);
    int count = 0, status = kCurveNotFound;
    ReadCurve(ui, path, name, x, y, count, status);
    if (status == kCurveFound) PlotUcm(ui, page, x, y, count, bars, plot);
  }
}

void DrawFrames(UserInterface& ui, CtlLines& ctl, PlotPage& page, int frame_count, bool no_legend,
                bool equal_scales, const std::string& script_dir) {
  CtlScale scale;
  for (int f = 0; f < frame_count && !ctl.AtEnd(); ++f) {
    const CtlFrame frame = ReadCtlFrame(ctl.Next());
    page.SetFrame(frame);
    ReadCtlScale(ui, ctl.Next(), frame.rank, scale);
    page.SetWindow(scale);
    const CtlGrid grid = ReadCtlGrid(ctl.Next());
    std::vector<CtlPlot> plots;
    for (int c = 0; c < frame.curve_count && !ctl.AtEnd(); ++c) {
      ui.ShowProgress((c + 1) * 100 / frame.curve_count);
      plots.push_back(ReadCtlPlot(ctl.Next()));
    }
    if (equal_scales && f == 0) page.MakeScalesEqual();
    DrawFrameTitle(page, frame, plots, no_legend);
    DrawFrameBox(page, scale.outline, frame.style, frame.width, frame.colour, grid.fill);
    DrawAxes(page, frame, scale, grid);
    DrawCurves(ui, page, plots, script_dir);
  }
}

// One undo step for the whole page, closed whatever happens.
class StepGuard {
 public:
  explicit StepGuard(Surface& surface) : surface_(surface) { surface_.BeginStep("Tracé"); }
  ~StepGuard() { surface_.EndStep(); }
  StepGuard(const StepGuard&) = delete;
  StepGuard& operator=(const StepGuard&) = delete;

 private:
  Surface& surface_;
};

// MorvexDraw; false when page 1 could not be compiled.
bool DrawFirstPage(UserInterface& ui, bool no_legend, Surface& surface, const std::string& script,
                   const std::string& work_dir, bool equal_scales) {
  const int pointer = surface.MousePointerKind();
  surface.SetMousePointerKind(kHourglass);
  const bool redraw = surface.Redraw();
  surface.SetRedraw(false);
  std::string script_dir = DirOf(script);
  if (script_dir.empty()) script_dir = ".";
  bool compiled = false;
  int line = 0;
  try {
    int pages = 0;
    const std::string ctl_file = JoinPath(work_dir, "P1.ctl");
    compiled = SplitPages(ui, script, work_dir, pages) &&
               CtlCreate(ui, PageFilePath(work_dir, 1), ctl_file);
    if (compiled) {
      std::vector<std::string> lines;
      if (!ReadTextLines(ctl_file, lines)) throw FileError(ENOENT);
      CtlLines ctl(std::move(lines));
      try {
        const CtlPage page_line = ReadCtlPage(ctl.Next());
        PlotPage page(surface, page_line);
        StepGuard step(surface);
        DrawFrames(ui, ctl, page, page_line.frame_count, no_legend, equal_scales, script_dir);
        const int comment_count = ctl.AtEnd() ? 0 : ReadCtlCount(ctl.Next());
        std::vector<CtlComment> comments;
        for (int i = 0; i < comment_count && !ctl.AtEnd(); ++i) {
          comments.push_back(ReadCtlComment(ctl.Next()));
        }
        DrawComments(page, comments);
      } catch (const AppError&) {
        line = ctl.LineNumber();
        throw;
      }
    }
  } catch (const AppError& error) {
    ShowMorvexError(ui, error, line);
  }
  ui.ShowProgress(-1);
  surface.SetCurrentObject(kPage);
  surface.SetMousePointerKind(pointer);
  surface.SetRedraw(redraw);
  surface.Refresh();
  return compiled;
}

}  // namespace

int MorvexDraw(UserInterface& ui, bool no_legend, Surface& surface, const std::string& script,
               const std::string& work_dir, bool equal_scales) {
  DrawFirstPage(ui, no_legend, surface, script, work_dir, equal_scales);
  return 0;
}

bool DrawScriptOn(UserInterface& ui, bool no_legend, Surface& surface, const std::string& script,
                  const std::string& work_dir, bool equal_scales) {
  return DrawFirstPage(ui, no_legend, surface, script, work_dir, equal_scales);
}

PlotPicture DrawScriptPage(UserInterface& ui, const std::string& script,
                           const std::string& work_dir) {
  PlotPicture picture;
  picture.surface = std::make_unique<Surface>();
  std::string folder = work_dir.empty() ? DirOf(script) : work_dir;
  if (folder.empty()) folder = ".";
  picture.drawn = DrawFirstPage(ui, false, *picture.surface, script, folder, false);
  picture.width = picture.surface->LogicWidth();
  picture.height = picture.surface->LogicHeight();
  return picture;
}

}  // namespace pluvane
