#include "plot/viewer_session.h"

#include <filesystem>

#include "foundation/paths.h"

namespace pluvane {

namespace {

constexpr const char* kTitle = "Vistrel";

void TellMissing(UserInterface& ui, const std::string& path) {
  ui.ShowMessage("Fichier " + path + " introuvable!", kTitle, MessageIcon::kExclamation);
}

}  // namespace

bool StartViewer(UserInterface& ui, ViewerState& state, const std::string& script) {
  if (!FileExist(script)) {
    TellMissing(ui, script);
    return false;
  }
  state.script = script;
  state.action = kViewerInitial;
  state.initial_script = JoinPath(DirOf(script), kInitialScriptName);
  std::error_code ec;
  std::filesystem::copy_file(script, state.initial_script,
                             std::filesystem::copy_options::overwrite_existing, ec);
  // Without its copy the viewer still shows the script; going back then says
  // that the initial script is missing.
  return true;
}

void EndViewer(const ViewerState& state) {
  if (state.initial_script.empty()) return;
  std::error_code ignored;
  std::filesystem::remove(state.initial_script, ignored);
}

std::string VistrelScriptOf(UserInterface& ui, const std::vector<std::string>& args,
                            const std::string& current_dir) {
  if (args.size() != 1 || args[0].empty()) {
    ui.ShowMessage("Donnez le nom du fichier de tracé à afficher.\nUsage : vistrel FICHIER.Mst",
                   kTitle, MessageIcon::kExclamation);
    return "";
  }
  const std::string path = AbsolutePath(args[0], current_dir);
  if (FileExist(path)) return path;
  const std::string found = FindFileNoCase(DirOf(path), FileNameOf(path));
  if (!found.empty()) return found;
  TellMissing(ui, path);
  return "";
}

}  // namespace pluvane
