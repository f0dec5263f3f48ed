#include "editors/frm_edit.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <utility>

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "editors/curve_tags.h"
#include "editors/frm_crbx.h"
#include "editors/leaving_links.h"
#include "editors/section_library.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/catalogue.h"

namespace pluvane {

namespace {

constexpr const char* kCurveFile = "tmp.crb";
constexpr const char* kCurveName = "CrbX";
constexpr const char* kNoSection =
    "Voir 'Option/Sections de collecteur' pour définir la géométrie de la section des "
    "collecteurs paramétriques.";

CellType TypeOfColumn(const SheetColumn& column, const SheetLayout& layout,
                      const std::string& sections) {
  switch (column.cell) {
    case SheetCell::kNumber:
    case SheetCell::kParameter:
      return CellType::Float(column.min, column.max, column.decimals);
    case SheetCell::kSection:
      return CellType::List(sections);
    case SheetCell::kProduction:
      return CellType::List(kEditProductionList);
    case SheetCell::kTransfer:
      return CellType::List(layout.transfer_list);
    case SheetCell::kButton:
      return CellType::Button();
    case SheetCell::kText:
    case SheetCell::kLink:
      break;
  }
  return CellType::Text();
}

// A list cell shows the entry of the number the tag begins with; a text that
// names no entry stays as it is.
void ShowNumberedEntry(Grid& grid, int col, int row, const std::string& tag) {
  const int index = ValInt(tag) - 1;
  const int entries = static_cast<int>(grid.ListEntries(col, row).size());
  if (index >= 0 && index < entries) {
    grid.SetListIndex(col, row, index);
  } else {
    grid.SetText(col, row, tag);
  }
}

}  // namespace

FrmEdit::FrmEdit(EditorContext& context) : context_(context) {
  Surface& surface = context_.surface;
  // One walk of the drawing makes the rows of every sheet.
  std::map<int, std::vector<int>> by_kind;
  for (int n = surface.NextObjectNumber(0); n > 0; n = surface.NextObjectNumber(n)) {
    by_kind[ValInt(TagOfObject(surface, n, kTagIName))].push_back(n);
  }
  const std::string sections = SectionListEntries(surface);
  sheets_.reserve(EditSheets().size());
  for (const SheetLayout& layout : EditSheets()) {
    SheetState& sheet =
        sheets_.emplace_back(SheetState{&layout, std::move(by_kind[layout.i_name]), Grid(1, 0)});
    Grid& grid = sheet.grid;
    grid.SetCaption(kCaption);
    grid.SetMaxCols(static_cast<int>(layout.columns.size()));
    for (int col = 1; col <= grid.MaxCols(); ++col) {
      const SheetColumn& column = layout.columns[static_cast<std::size_t>(col - 1)];
      grid.SetColHead(col, column.head);
      grid.SetColumnType(col, TypeOfColumn(column, layout, sections));
    }
  }
  for (SheetState& sheet : sheets_) {
    if (ColumnOf(sheet, SheetCell::kProduction) == 0) continue;
    SheetState* watched = &sheet;
    sheet.grid.AddListener([this, watched](const GridChange& change) {
      if (filling_ || Closed()) return;
      if (change.kind == GridChange::kActiveCell) {
        ShowParameterHeads(*watched, change.row1);
      } else if (change.kind == GridChange::kCells && change.row1 == change.row2 &&
                 change.col1 == ColumnOf(*watched, SheetCell::kProduction)) {
        SetParameterNotes(*watched, change.row1);
        ShowParameterHeads(*watched, change.row1);
      }
    });
  }
  for (int tab = 0; tab < TabCount(); ++tab) {
    if (TabCaption(tab).empty()) continue;
    ClickTab(tab);
    break;
  }
}

FrmEdit::~FrmEdit() {
  if (!Closed()) ClearHighlight(context_.surface);
}

std::vector<Grid*> FrmEdit::Grids() {
  std::vector<Grid*> grids;
  for (SheetState& sheet : sheets_) grids.push_back(&sheet.grid);
  return grids;
}

std::vector<FormCommand> FrmEdit::Commands() {
  return {{"mnSave", "&Valider", [this] { mnSave(); }, current_ >= 0},
          {"mnPrint", "&Imprimer", [this] { mnPrint(); }, current_ >= 0},
          {"mnuSave2Txt", "&Sauvegarder_tout_en_fichier", [this] { mnuSave2Txt(); }},
          {"mnQuit", "&Quitter", [this] { mnQuit(); }}};
}

std::string FrmEdit::TabCaption(int tab) const {
  if (tab < 0 || tab >= TabCount()) return "";
  const SheetState& sheet = sheets_[static_cast<std::size_t>(tab)];
  return sheet.objects.empty() ? "" : sheet.layout->caption;
}

int FrmEdit::SheetIName(int tab) const {
  return sheets_.at(static_cast<std::size_t>(tab)).layout->i_name;
}

const std::vector<int>& FrmEdit::SheetObjects(int tab) const {
  return sheets_.at(static_cast<std::size_t>(tab)).objects;
}

void FrmEdit::ClickTab(int tab) {
  if (TabCaption(tab).empty()) return;
  ClearHighlight(context_.surface);
  current_ = tab;
  Fill(sheets_[static_cast<std::size_t>(tab)]);
}

FrmEdit::SheetState* FrmEdit::SheetOf(const Grid& grid) {
  for (SheetState& sheet : sheets_) {
    if (&sheet.grid == &grid) return &sheet;
  }
  return nullptr;
}

int FrmEdit::ColumnOf(const SheetState& sheet, SheetCell cell) const {
  const auto& columns = sheet.layout->columns;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].cell == cell) return static_cast<int>(i + 1);
  }
  return 0;
}

void FrmEdit::Fill(SheetState& sheet) {
  Surface& surface = context_.surface;
  Grid& grid = sheet.grid;
  const auto& columns = sheet.layout->columns;
  const bool has_links = ColumnOf(sheet, SheetCell::kLink) > 0;
  filling_ = true;
  grid.SetRedraw(false);
  grid.SetMaxRows(0);
  grid.SetMaxRows(static_cast<int>(sheet.objects.size()));
  CursorKeeper keeper(surface);
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    const int object = sheet.objects[static_cast<std::size_t>(row - 1)];
    std::string links;
    if (has_links) {
      const LeavingLinks leaving = LinksLeavingNode(surface, object);
      if (leaving.handles.empty()) {
        context_.ui.ShowMessage(
            "attention " + TagOfObject(surface, object, "libell") + " : pas d'elm aval ?", kCaption,
            MessageIcon::kExclamation);
      }
      links = leaving.List();
    }
    surface.SetCurrentObject(object);
    for (int col = 1; col <= grid.MaxCols(); ++col) {
      const SheetColumn& column = columns[static_cast<std::size_t>(col - 1)];
      switch (column.cell) {
        case SheetCell::kButton:
          grid.SetText(col, row, kButton);
          break;
        case SheetCell::kLink:
          grid.SetType(col, row, CellType::List(links));
          grid.SetText(col, row, surface.ObjTag(column.tag));
          break;
        case SheetCell::kProduction:
        case SheetCell::kTransfer:
          ShowNumberedEntry(grid, col, row, surface.ObjTag(column.tag));
          break;
        default:
          grid.SetText(col, row, surface.ObjTag(column.tag));
          break;
      }
    }
    if (ColumnOf(sheet, SheetCell::kProduction) > 0) SetParameterNotes(sheet, row);
  }
  grid.SetActiveCell(1, 1);
  grid.SetRedraw(true);
  filling_ = false;
  if (ColumnOf(sheet, SheetCell::kProduction) > 0) ShowParameterHeads(sheet, 1);
}

void FrmEdit::ShowParameterHeads(SheetState& sheet, int row) {
  const int production = ColumnOf(sheet, SheetCell::kProduction);
  const int first = ColumnOf(sheet, SheetCell::kParameter);
  if (production == 0 || first == 0 || row < 1 || row > sheet.grid.MaxRows()) return;
  const auto heads = ProductionParameterHeads(ValInt(sheet.grid.Text(production, row)));
  for (int i = 0; i < 3; ++i) sheet.grid.SetColHead(first + i, heads[static_cast<std::size_t>(i)]);
}

void FrmEdit::SetParameterNotes(SheetState& sheet, int row) {
  const int production = ColumnOf(sheet, SheetCell::kProduction);
  const int first = ColumnOf(sheet, SheetCell::kParameter);
  const auto heads = ProductionParameterHeads(ValInt(sheet.grid.Text(production, row)));
  for (int i = 0; i < 3; ++i)
    sheet.grid.SetNote(first + i, row, heads[static_cast<std::size_t>(i)]);
}

void FrmEdit::ClickCell(Grid& grid, int col, int row) {
  SheetState* sheet = SheetOf(grid);
  if (!sheet || row < 1 || row > static_cast<int>(sheet->objects.size())) return;
  HighlightObjects(context_.surface, {sheet->objects[static_cast<std::size_t>(row - 1)]});
  context_.ui.ShowStatus(grid.Text(col, row));
}

void FrmEdit::ButtonCell(Grid& grid, int col, int row) {
  SheetState* sheet = SheetOf(grid);
  if (!sheet || row < 1 || row > static_cast<int>(sheet->objects.size())) return;
  if (col != ColumnOf(*sheet, SheetCell::kButton)) return;
  if (sheet->layout->i_name == kINameDQZ) {
    context_.ui.ShowMessage(
        "Ouvrir le détail de la répartition de débits\r\npour éditer le "
        "déversoir " +
            grid.Text(1, row),
        "Déversoir géométrique", MessageIcon::kInformation);
    return;
  }
  if (sheet->layout->curve.columns > 0) EditCurve(*sheet, col, row);
}

void FrmEdit::EditCurve(SheetState& sheet, int col, int row) {
  Surface& surface = context_.surface;
  const SheetCurve& curve = sheet.layout->curve;
  const int object = sheet.objects[static_cast<std::size_t>(row - 1)];
  const std::string file = JoinPath(context_.state.WorkDir, kCurveFile);
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(object);
  if (surface.CurrentObject() != object) return;
  TagsToCurveFile(surface, file, kCurveName, curve.columns);
  CrbxParams params;
  params.file = file;
  params.curve_name = kCurveName;
  params.point_limit = curve.point_limit;
  for (std::size_t i = 0; i < params.labels.size(); ++i) params.labels[i] = curve.labels[i];
  params.caption = curve.title[0] != '\0' ? curve.title : sheet.grid.ColHead(col);
  params.plot_title = curve.title;
  FrmCrbx editor(context_, std::move(params));
  if (context_.show_form) context_.show_form(editor);
  surface.SetCurrentObject(object);
  CurveFileToTags(surface, context_.ui, file, kCurveName, curve.columns);
}

void FrmEdit::ListDropDown(Grid& grid, int col, int /*row*/) {
  SheetState* sheet = SheetOf(grid);
  if (!sheet || col == 0 || col != ColumnOf(*sheet, SheetCell::kSection)) return;
  if (SectionIds(context_.surface).empty()) {
    context_.ui.ShowMessage(kNoSection, kCaption, MessageIcon::kInformation);
  }
}

bool FrmEdit::SaveRow(SheetState& sheet, int row, LabelCounts& labels) {
  Surface& surface = context_.surface;
  Grid& grid = sheet.grid;
  const int object = sheet.objects[static_cast<std::size_t>(row - 1)];
  surface.SetCurrentObject(object);
  if (surface.CurrentObject() != object) return false;
  const std::string old_label = surface.ObjTag("libell");
  const std::string label = grid.Text(1, row);
  if (label != old_label) {
    const int others = labels.Count(label) - (EqualsNoCase(label, old_label) ? 1 : 0);
    if (others >= 1) {
      ShowLabelTaken(context_.ui, label, MessageIcon::kNone);
      grid.SetText(1, row, old_label);
      return true;
    }
    labels.Rename(old_label, label);
  }
  for (int col = 1; col <= grid.MaxCols(); ++col) {
    const char* tag = sheet.layout->columns[static_cast<std::size_t>(col - 1)].tag;
    if (!tag) continue;
    const std::string& value = grid.Text(col, row);
    // Only what changed is written: the undo step holds the edits, not the sheet.
    if (surface.ObjTag(tag) != value) surface.SetObjTag(tag, value);
  }
  return true;
}

void FrmEdit::mnSave() {
  if (current_ < 0) return;
  SheetState& sheet = sheets_[static_cast<std::size_t>(current_)];
  Surface& surface = context_.surface;
  UserInterface& ui = context_.ui;
  LabelCounts labels(surface, sheet.layout->i_name);
  const int rows = sheet.grid.MaxRows();
  CursorKeeper keeper(surface);
  int shown = -1;
  for (int row = 1; row <= rows; ++row) {
    if (!SaveRow(sheet, row, labels)) {
      ui.ShowMessage("erreur pour l'elm " + sheet.grid.Text(1, row), kCaption,
                     MessageIcon::kExclamation);
    }
    const int percent = row * 100 / rows;
    if (percent != shown) ui.ShowProgress(shown = percent);
  }
  ui.ShowProgress(-1);
}

std::vector<std::string> FrmEdit::SheetLines(int tab) const {
  const SheetState& sheet = sheets_.at(static_cast<std::size_t>(tab));
  const Grid& grid = sheet.grid;
  std::vector<std::string> lines;
  lines.reserve(static_cast<std::size_t>(grid.MaxRows()) + 1);
  for (int row = 0; row <= grid.MaxRows(); ++row) {
    std::string line;
    for (int col = 1; col <= grid.MaxCols(); ++col) {
      if (col > 1) line += '\t';
      const bool button =
          sheet.layout->columns[static_cast<std::size_t>(col - 1)].cell == SheetCell::kButton;
      if (row == 0 || !button) line += grid.Text(col, row);
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

void FrmEdit::mnPrint() {
  if (current_ < 0) return;
  // The columns are lined up for the printer, each as wide as its widest cell.
  const std::vector<std::string> rows = SheetLines(current_);
  std::vector<std::vector<std::string>> cells;
  std::vector<std::size_t> widths;
  for (const std::string& line : rows) {
    std::vector<std::string>& row = cells.emplace_back();
    std::size_t start = 0;
    for (std::size_t tab = line.find('\t');; tab = line.find('\t', start)) {
      row.push_back(line.substr(start, tab == std::string::npos ? std::string::npos : tab - start));
      if (tab == std::string::npos) break;
      start = tab + 1;
    }
    if (widths.size() < row.size()) widths.resize(row.size(), 0);
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], CharCount(row[i]));
  }
  std::vector<std::string> page{std::string(kCaption) + " : " + TabCaption(current_), ""};
  for (const auto& row : cells) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      line += row[i];
      if (i + 1 < row.size()) line += std::string(widths[i] - CharCount(row[i]) + 2, ' ');
    }
    page.push_back(RTrim(line));
  }
  const std::string error = context_.ui.PrintLines(page, 8);
  if (!error.empty()) context_.ui.ShowMessage(error, kCaption, MessageIcon::kCritical);
}

void FrmEdit::mnuSave2Txt() {
  const std::string folder = context_.state.WorkDir;
  const std::string base = BaseOf(context_.state.NetworkFile);
  const std::string target = JoinPath(folder, base + ".Txt");
  const std::string log = JoinPath(folder, base + ".Log");
  std::error_code ignored;
  std::filesystem::remove(target, ignored);
  const int former = current_;
  for (int tab = 0; tab < TabCount(); ++tab) {
    if (TabCaption(tab).empty()) continue;
    if (tab != former) ClickTab(tab);
    std::string block;
    for (const std::string& line : SheetLines(tab)) block += line + '\r';
    std::ofstream out(target, std::ios::binary | std::ios::app);
    out << Utf8ToCp1252(block);
    out.close();
    if (!out)
      AppendTextLines(log,
                      {"Erreur d'écriture de la feuille " + TabCaption(tab) + " dans " + target});
  }
  // Back to the sheet of before, as it stood.
  ClearHighlight(context_.surface);
  current_ = former;
  context_.ui.ShowMessage("Ok les données sont sauvegardées dans le fichier " + target,
                          "Editeur général/Sauvegade données", MessageIcon::kInformation);
}

void FrmEdit::mnQuit() {
  if (Closed()) return;
  Close();
  ClearHighlight(context_.surface);
}

}  // namespace pluvane
