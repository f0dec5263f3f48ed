#include "plot/plot_command.h"

#include <filesystem>

#include "foundation/paths.h"
#include "plot/ctl_create.h"
#include "plot/page_split.h"

namespace pluvane {

void ShowMorvexError(UserInterface& ui, const AppError& error, int ctl_line) {
  ui.ShowMessage("Erreur dans Morvex, n° " + std::to_string(error.number()) + " (ligne " +
                     std::to_string(ctl_line) + ") : " + error.description(),
                 "Traçage de courbe", MessageIcon::kNone);
}

bool CompileScriptPage(UserInterface& ui, const std::string& script, const std::string& ctl_copy) {
  std::string work_dir = DirOf(script);
  if (work_dir.empty()) work_dir = ".";
  try {
    int pages = 0;
    if (!SplitPages(ui, script, work_dir, pages)) return false;
    const std::string ctl = JoinPath(work_dir, "P1.ctl");
    if (!CtlCreate(ui, PageFilePath(work_dir, 1), ctl)) return false;
    std::error_code same;
    if (!ctl_copy.empty() && !std::filesystem::equivalent(ctl, ctl_copy, same)) {
      std::error_code ec;
      std::filesystem::copy_file(ctl, ctl_copy, std::filesystem::copy_options::overwrite_existing,
                                 ec);
      if (ec) throw FileError(ec.value());
    }
    return true;
  } catch (const AppError& error) {
    ShowMorvexError(ui, error, 0);
    return false;
  }
}

}  // namespace pluvane
