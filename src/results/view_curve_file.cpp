#include "results/view_curve_file.h"

#include "plot/curve_view.h"
#include "results/frm_selection.h"

namespace pluvane {

bool ViewCurveFile(UserInterface& ui, ViewerState& state, const std::string& file,
                   const std::string& work_dir, const std::string& scenario_folder,
                   const ShowModal& show_chooser, const ShowViewer& show_viewer) {
  CurveViewSession session;
  if (!PrepareCurveView(ui, file, work_dir, session)) return false;
  state.selection_mode = session.mode;
  {
    FrmSelection chooser(ui, session.mode, session.copy, session.list_file);
    if (show_chooser) show_chooser(chooser);
  }
  bool shown = false;
  if (WriteCurveViewScript(ui, session, state.page_title)) {
    state.script = session.script;
    state.action = kViewerInitial;
    if (show_viewer) show_viewer(state);
    shown = true;
  }
  EndCurveView(ui, session, work_dir, scenario_folder);
  return shown;
}

bool mnuUtil_Vistrel(UserInterface& ui, ViewerState& state, const std::string& work_dir,
                     const std::string& scenario_folder, const ShowModal& show_chooser,
                     const ShowViewer& show_viewer) {
  const std::string file = mnuUtil_Vistrel_ChooseFile(ui, state);
  if (file.empty()) return false;
  return ViewCurveFile(ui, state, file, work_dir, scenario_folder, show_chooser, show_viewer);
}

}  // namespace pluvane
