#include "plot/curve_view.h"

#include <filesystem>

#include "foundation/errors.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "plot/curve_file.h"
#include "plot/curve_script.h"

namespace pluvane {

namespace {

void RemoveIfThere(const std::string& path) {
  std::error_code ignored;
  if (FileExist(path)) std::filesystem::remove(path, ignored);
}

bool SameFile(const std::string& a, const std::string& b) {
  std::error_code ec;
  return std::filesystem::equivalent(a, b, ec) && !ec;
}

}  // namespace

bool PrepareCurveView(UserInterface& ui, const std::string& file, const std::string& work_dir,
                      CurveViewSession& session) {
  if (!CurveFormatCheck(ui, file)) {
    ui.ShowMessage("Le format de courbe du fichier n'est pas de type Kalder.\rVoir fichier " + file,
                   "Visu de courbe Kalder", MessageIcon::kNone);
    return false;
  }
  std::string folder, name, base, extension;
  SplitPath(file, folder, name, base, extension);
  session.file = file;
  session.mode = extension;
  session.copy = JoinPath(work_dir, name);
  session.list_file = JoinPath(work_dir, "IdCrb.Tmp");
  session.script = JoinPath(work_dir, extension + ".Mst");
  if (!SameFile(file, session.copy)) {
    std::error_code ec;
    std::filesystem::copy_file(file, session.copy,
                               std::filesystem::copy_options::overwrite_existing, ec);
    if (ec) {
      AppError error = FileError(ec.value());
      ShowError(ui, &error, "ViewCurveFile");
      return false;
    }
  }
  return true;
}

bool WriteCurveViewScript(UserInterface& ui, const CurveViewSession& session,
                          const std::string& page_title) {
  if (!FileExist(session.list_file)) return false;
  WriteCurveScript(ui, session.list_file, session.script, session.copy, session.mode, page_title);
  return FileExist(session.script);
}

void EndCurveView(UserInterface& ui, const CurveViewSession& session, const std::string& work_dir,
                  const std::string& scenario_folder) {
  RemoveIfThere(session.list_file);
  RemoveIfThere(session.script);
  vbFileKill(ui, work_dir, "*.tmp");
  if (!EqualsNoCase(DirOf(session.file), scenario_folder) &&
      !SameFile(session.file, session.copy)) {
    RemoveIfThere(session.copy);
  }
}

}  // namespace pluvane
