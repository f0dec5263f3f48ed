#include "editors/frm_sect.h"

#include <filesystem>

#include "drawing/surface_guards.h"
#include "editors/curve_tags.h"
#include "editors/frm_crbx.h"
#include "editors/section_library.h"
#include "foundation/grid_clipboard.h"
#include "foundation/grid_rows.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"

namespace pluvane {

FrmSect::FrmSect(EditorContext& context) : context_(context), grid_(kCurveCol, 0) {
  grid_.SetCaption(Caption());
  grid_.SetColHead(kIdCol, "Id. de la section");
  grid_.SetColHead(kCurveCol, "Courbe hauteur/largeur");
  grid_.SetColumnType(kIdCol, CellType::Text());
  grid_.SetColumnType(kCurveCol, CellType::Button());
  const std::vector<std::string> ids = SectionIds(context_.surface);
  grid_.SetMaxRows(static_cast<int>(ids.size()));
  for (std::size_t i = 0; i < ids.size(); ++i)
    grid_.SetText(kIdCol, static_cast<int>(i) + 1, ids[i]);
  ShowButtons();
  // A paste over the buttons leaves them as they were.
  grid_.AddListener([this](const GridChange& change) {
    if (change.kind == GridChange::kCells && change.col2 >= kCurveCol) ShowButtons();
  });
  grid_.SetActiveCell(kIdCol, 1);
}

std::vector<FormCommand> FrmSect::Commands() {
  return {{"mnuAdd", "&Ajouter", [this] { mnuAdd(); }},
          {"mnuIns", "&Insérer", [this] { mnuIns(); }},
          {"mnuDel", "&Supprimer", [this] { mnuDel(); }},
          {"mnuSave", "&Enregistrer", [this] { mnuSave(); }},
          {"mnuQuit", "&Fermer", [this] { mnuQuit(); }}};
}

void FrmSect::ShowButton(int row) {
  if (grid_.Text(kCurveCol, row) != kButtonText) grid_.SetText(kCurveCol, row, kButtonText);
}

void FrmSect::ShowButtons() {
  if (showing_buttons_) return;
  showing_buttons_ = true;
  for (int row = 1; row <= grid_.MaxRows(); ++row) ShowButton(row);
  showing_buttons_ = false;
}

void FrmSect::mnuAdd() {
  SSAddRow(grid_);
  ShowButtons();
}

void FrmSect::mnuIns() {
  // An empty library has no row to insert before: the row comes at the end.
  if (grid_.MaxRows() < 1) {
    mnuAdd();
    return;
  }
  int row = 0;
  SSInsertRow(grid_, row);
  grid_.SetActiveCell(kIdCol, row);
  ShowButtons();
}

void FrmSect::mnuDel() {
  const int row = grid_.ActiveRow();
  if (row < 1 || row > grid_.MaxRows()) return;
  const std::string id = Trim(grid_.Text(kIdCol, row));
  SSDeleteRow(grid_, row);
  // The section goes from the drawing now: closing without saving keeps it gone.
  const int section = FindSection(context_.surface, id);
  if (section > 0) {
    CursorKeeper keeper(context_.surface);
    context_.surface.DeleteObject(section);
  }
}

void FrmSect::mnuSave() {
  for (int row = 1; row <= grid_.MaxRows(); ++row) {
    const std::string id = Trim(grid_.Text(kIdCol, row));
    if (id.empty() || FindSection(context_.surface, id) > 0) continue;
    AddSection(context_.surface, context_.state, id);
  }
}

void FrmSect::Paste(const std::string& clipboard_text) { SSPaste(grid_, clipboard_text); }

void FrmSect::ButtonCell(Grid& grid, int col, int row) {
  if (&grid == &grid_ && col == kCurveCol) OpenCurve(row);
}

void FrmSect::OpenCurve(int row) {
  if (row < 1 || row > grid_.MaxRows()) return;
  const std::string id = Trim(grid_.Text(kIdCol, row));
  if (id.empty()) return;
  Surface& surface = context_.surface;
  int section = FindSection(surface, id);
  if (section < 1) section = AddSection(surface, context_.state, id);

  CrbxParams params;
  params.file = JoinPath(context_.state.WorkDir, kCurveFile);
  params.curve_name = kCurveName;
  params.point_limit = kPointLimit;
  params.labels = {"Largeur du miroir (m)", "Hauteur au radier (m)", "", ""};
  params.caption = "Section paramétrique";
  params.plot_title = "Section paramétrique";
  params.mode = kMode;
  int points = 0;
  {
    CursorKeeper keeper(surface);
    surface.SetCurrentObject(section);
    points = ValInt(surface.ObjTag("NbPt"));
  }
  if (points > 1) {
    SectionToCurveFile(surface, id, params.file, params.curve_name);
  } else {
    // A section without its outline opens on an empty table, whatever an
    // earlier editor left in the file.
    std::error_code ignored;
    std::filesystem::remove(params.file, ignored);
  }
  {
    FrmCrbx editor(context_, params);
    if (context_.show_form) context_.show_form(editor);
  }
  CurveFileToSection(surface, context_.ui, id, params.file, params.curve_name);
}

}  // namespace pluvane
