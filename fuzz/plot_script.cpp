// Fuzzes the plot script compiler: the input is a script, cut into pages and
// compiled in a temporary folder, and the control file is then read back line
// by line as the renderer does.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "foundation/errors.h"
#include "foundation/scripted_ui.h"
#include "foundation/text.h"
#include "fuzz_support.h"
#include "plot/ctl_create.h"
#include "plot/ctl_read.h"
#include "plot/page_split.h"

namespace {

const std::filesystem::path& Folder() {
  static const std::filesystem::path folder = pluvane_fuzz::Folder("plot");
  return folder;
}

void ReadBack(pluvane::UserInterface& ui, const std::string& ctl) {
  std::vector<std::string> lines;
  if (!pluvane::ReadTextLines(ctl, lines) || lines.empty()) return;
  std::size_t at = 0;
  const pluvane::CtlPage page = pluvane::ReadCtlPage(lines[at++]);
  if (page.width <= 0 || page.height <= 0) __builtin_trap();
  pluvane::CtlScale scale;
  for (int f = 0; f < page.frame_count && at < lines.size(); ++f) {
    const pluvane::CtlFrame frame = pluvane::ReadCtlFrame(lines[at++]);
    if (frame.font < 0 || frame.font > 12) __builtin_trap();
    if (at < lines.size()) pluvane::ReadCtlScale(ui, lines[at++], frame.rank, scale);
    if (at < lines.size()) pluvane::ReadCtlGrid(lines[at++]);
    for (int c = 0; c < frame.curve_count && at < lines.size(); ++c) {
      pluvane::ReadCtlPlot(lines[at++]);
    }
  }
  if (at >= lines.size()) return;
  const int comments = pluvane::ReadCtlCount(lines[at++]);
  for (int c = 0; c < comments && at < lines.size(); ++c) pluvane::ReadCtlComment(lines[at++]);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::filesystem::path& folder = Folder();
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::filesystem::remove(entry.path());
  }
  const std::string script = (folder / "s.Mst").string();
  {
    std::ofstream out(script, std::ios::binary);
    out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  }
  pluvane::ScriptedUi ui;
  const std::string ctl = (folder / "P1.ctl").string();
  try {
    int pages = 0;
    pluvane::SplitPages(ui, script, folder.string(), pages);
    if (pages > 0) pluvane::CtlCreate(ui, pluvane::PageFilePath(folder.string(), 1), ctl);
    ReadBack(ui, ctl);
  } catch (const pluvane::AppError&) {
    // The drawing reports these errors in its own box.
  }
  return 0;
}
