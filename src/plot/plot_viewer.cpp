#include "plot/plot_viewer.h"

#include <optional>

#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "drawing/surface_guards.h"
#include "plot/morvex_draw.h"
#include "plot/plot_font_faces.h"
#include "plot/plot_objects.h"

namespace pluvane {

namespace {

// A number typed in an input box; nullopt when cancelled or blank.
std::optional<double> AskNumber(UserInterface& ui, const std::string& prompt,
                                const std::string& title) {
  const std::optional<std::string> answer = ui.AskText(prompt, title, "");
  if (!answer || Trim(*answer).empty()) return std::nullopt;
  return Val(*answer);
}

// Applies `change` to the selected objects, the cursor kept.
template <typename Change>
void ToSelection(Surface& surface, Change change) {
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(kSelection);
  change();
}

}  // namespace

bool ViewerDraw(UserInterface& ui, Surface& surface, const ViewerState& state,
                const std::string& work_dir) {
  if (state.action == kViewerCancel) return true;
  surface.ClearDrawing();
  surface.SetRedraw(false);
  const bool drawn =
      DrawScriptOn(ui, false, surface, state.script, work_dir, state.selection_mode == "SEC");
  // The page leaves its last curve's pen in the defaults; what the user
  // places afterwards starts black and thin.
  {
    CursorKeeper keeper(surface);
    surface.SetCurrentObject(kDefaults);
    surface.SetLineColor(0);
    surface.SetLineWidth(0);
    surface.SetLineStyle(0);
  }
  surface.SetRedraw(true);
  surface.Refresh();
  return drawn;
}

void mnuOpt_Attrib_Dess_CoLine(UserInterface& ui, Surface& surface) {
  const std::optional<std::int32_t> colour = ui.ChooseColour(0);
  if (!colour) return;
  ToSelection(surface, [&] {
    surface.SetLineColor(*colour);
    surface.SetCurrentObject(kDefaults);
    surface.SetLineColor(*colour);
  });
}

void mnuOpt_Attrib_Dess_WtLine(UserInterface& ui, Surface& surface) {
  const auto width =
      AskNumber(ui, "Entrez la taille désirée (en nombre réel positif (ex 0,1,2,4,...).",
                "Epaisseur du trait de ligne");
  if (!width) return;
  ToSelection(surface, [&] { surface.SetLineWidth(*width); });
}

void mnuOpt_Attrib_Text_Co(UserInterface& ui, Surface& surface) {
  const std::optional<std::int32_t> colour = ui.ChooseColour(0);
  if (!colour) return;
  ToSelection(surface, [&] { surface.SetTextColor(*colour); });
}

void mnuOpt_Attrib_Text_Font(UserInterface& ui, Surface& surface) {
  FontChoice initial;
  initial.name = PlotFontFace(0);
  initial.size = 8;
  const std::optional<FontChoice> font = ui.ChooseFont(initial);
  if (!font) return;
  ToSelection(surface, [&] {
    surface.SetTextFontName(font->name);
    surface.SetTextSize(-static_cast<double>(TextHeight(font->size)));
    surface.SetTextBold(font->bold);
    surface.SetTextItalic(font->italic);
  });
}

void mnuOpt_Attrib_Text_Ori(UserInterface& ui, Surface& surface) {
  const auto angle = AskNumber(ui, "Entrez l'angle à appliquer en degré",
                               "Définition de l'angle d'orientation des textes");
  if (!angle) return;
  ToSelection(surface, [&] { surface.SetTextAngle(*angle); });
}

void mnuOpt_Attrib_Text_Size(UserInterface& ui, Surface& surface) {
  const auto size = AskNumber(
      ui, "Entrez la taille désirée (en nombre réel positif (ex 4,6,8,...).", "Taille du texte");
  if (!size) return;
  ToSelection(surface, [&] { surface.SetTextSize(-static_cast<double>(TextHeight(*size))); });
}

void mnuOpt_PlacerLigne(Surface& surface) { surface.SetEditMode(kEditLine); }
void mnuOpt_PlacerRect(Surface& surface) { surface.SetEditMode(kEditRectangle); }
void mnuOpt_PlacerTxt(Surface& surface) { surface.SetEditMode(kEditText); }

std::string mnuUtil_Vistrel_ChooseFile(UserInterface& ui, ViewerState& state) {
  const std::string initial = state.last_curve_file.empty() ? "*.deb" : state.last_curve_file;
  std::string folder, name, base, extension = "deb";
  if (!state.last_curve_file.empty())
    SplitPath(state.last_curve_file, folder, name, base, extension);
  const std::string file = ui.AskOpenFile(
      "Charger un fichier crb d'Kalder",
      "fichier deb|*.deb|fichier hys|*.hys|fichier app|*.app|fichier lim|*.lim|fichier "
      "hye|*.hye|fichier crb|*.crb|fichier txt|*.txt",
      extension, initial);
  if (!file.empty()) state.last_curve_file = file;
  return file;
}

}  // namespace pluvane
