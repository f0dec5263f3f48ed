#include "editors/grid_plot_view.h"

#include <filesystem>

#include "foundation/paths.h"
#include "plot/grid_plot.h"

namespace pluvane {

bool ShowGridPlot(EditorContext& context, const Grid& grid, const std::string& curve_word,
                  const std::string& title, const std::string& kind) {
  const std::string& folder = context.state.WorkDir;
  PlotxyRequest request{kind, curve_word, folder, JoinPath(folder, "xy.mst"), title};
  const std::string script = Plotxy(context.ui, grid, request);
  if (script.empty()) return false;
  const std::string shown = JoinPath(folder, "Vistrel.Mst");
  std::error_code error;
  std::filesystem::copy_file(script, shown, std::filesystem::copy_options::overwrite_existing,
                             error);
  if (error) return false;
  context.viewer.script = shown;
  context.viewer.initial_script = shown;
  context.viewer.page_title = title;
  context.viewer.selection_mode = kind;
  context.viewer.action = kViewerInitial;
  if (context.show_viewer) context.show_viewer(context.viewer);
  return true;
}

}  // namespace pluvane
