#include "plot/page_split.h"

#include <cerrno>
#include <vector>

#include "foundation/errors.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "plot/script_words.h"

namespace pluvane {

namespace {

struct PageFile {
  std::string path;
  std::vector<std::string> lines;
};

// Writes every page file cut so far, as closing all files does.
void CloseAll(const std::vector<PageFile>& files) {
  for (const PageFile& file : files) {
    if (!WriteTextLines(file.path, file.lines)) throw FileError(errno != 0 ? errno : EACCES);
  }
}

}  // namespace

std::string PageFilePath(const std::string& work_dir, int number) {
  return JoinPath(work_dir, "P" + std::to_string(number) + ".TMP");
}

void KillPageFiles(UserInterface& ui, const std::string& work_dir) {
  // On the old system "?" also matched nothing at the end of a name, so
  // "P??.TMP" took P1.TMP as well as P12.TMP.
  vbFileKill(ui, work_dir, "P?.TMP");
  vbFileKill(ui, work_dir, "P??.TMP");
}

bool SplitPages(UserInterface& ui, const std::string& script, const std::string& work_dir,
                int& pages) {
  pages = 0;
  std::vector<std::string> lines;
  if (!ReadTextLines(script, lines)) throw FileError(ENOENT);

  std::vector<PageFile> files;
  int open = -1;  // index of the page file lines go to, -1 when none is open
  int end_pages = 0, frames = 0, frame_ends = 0;
  auto write = [&](const std::string& line) {
    if (open < 0) {
      CloseAll(files);
      throw AppError(52, "Nom ou numéro de fichier incorrect");
    }
    files[static_cast<std::size_t>(open)].lines.push_back(line);
  };
  for (const std::string& raw : lines) {
    const std::string line = Trim(raw);
    const ScriptKeyword keyword = LineKeyword(line);
    if (keyword == ScriptKeyword::kEnd) break;
    if (keyword == ScriptKeyword::kBeginPage) {
      ++pages;
      files.push_back({PageFilePath(work_dir, pages), {}});
      open = static_cast<int>(files.size()) - 1;
      write(line);
    } else if (keyword == ScriptKeyword::kEndPage) {
      ++end_pages;
      write(line);
      open = -1;
    } else if (!line.empty()) {
      if (keyword == ScriptKeyword::kFrame) ++frames;
      if (keyword == ScriptKeyword::kEndFrame) ++frame_ends;
      write(line);
    }
  }
  CloseAll(files);

  if (pages == 0) {
    ui.ShowMessage(" Pas de mot-cle PAGE/ENDPAGE dans " + script, "", MessageIcon::kNone);
    return false;
  }
  if (pages != end_pages) {
    ui.ShowMessage(" Le couple PAGE/ENDPAGE non coherent dans " + script + "\n il y a " +
                       std::to_string(pages) + " page(s) pour " + std::to_string(end_pages) +
                       " ENDPAGE",
                   "", MessageIcon::kNone);
    KillPageFiles(ui, work_dir);
    return false;
  }
  if (frames != frame_ends) {
    ui.ShowMessage(" Le couple CADRE/ENDCADRE non coherent dans le fichier " + script +
                       "\n il y a " + std::to_string(frames) + " CADRE pour " +
                       std::to_string(frame_ends) + " ENDCADRE",
                   "", MessageIcon::kNone);
    if (pages > 1) KillPageFiles(ui, work_dir);
    return false;
  }
  return true;
}

}  // namespace pluvane
