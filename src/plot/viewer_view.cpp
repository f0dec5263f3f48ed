#include "plot/viewer_view.h"

#include <filesystem>

#include "foundation/dialogs.h"
#include "foundation/paths.h"
#include "drawing/view_fit.h"

namespace pluvane {

bool ViewerZoomRect(UserInterface& ui, Surface& surface, int client_width, int client_height,
                    double left, double top, double right, double bottom) {
  // The network's zoom, on the page's extent and the viewer's own client area.
  DrawingSettings view;
  view.ClientWidth = client_width;
  view.ClientHeight = client_height;
  view.LogicWidth = surface.LogicWidth();
  view.LogicHeight = surface.LogicHeight();
  if (ZoomToRect(surface, view, left, top, right, bottom)) return true;
  ui.ShowMessage("Erreur !", "", MessageIcon::kNone);
  return false;
}

void ViewerZoomAll(Surface& surface) {
  surface.SetAutoScale(0);
  surface.SetViewLeft(surface.LogicLeft());
  surface.SetViewTop(surface.LogicTop());
  surface.SetViewWidth(surface.LogicWidth());
  surface.SetViewHeight(surface.LogicHeight());
  surface.Refresh();
}

std::string ViewerSaveAs(UserInterface& ui, const PictureWriter& write,
                         const std::string& initial_folder) {
  std::string file = AskSaveFile(ui, "Enregistrer le tracé sous",
                                 "Fichier Svg|*.svg|Fichier Pdf|*.pdf|Fichier Png|*.png", "svg",
                                 JoinPath(initial_folder, "*.svg"));
  if (file.empty()) return "";
  if (std::filesystem::path(file).extension().empty()) file += ".svg";
  if (!write || !write(file)) {
    ui.ShowMessage("Erreur de sauvegarde : le tracé n'a pas pu être écrit dans " + file +
                       "\n(formats reconnus : svg, pdf, png)",
                   "Vistrel", MessageIcon::kCritical);
    return "";
  }
  return file;
}

}  // namespace pluvane
