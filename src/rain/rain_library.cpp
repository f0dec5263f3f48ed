#include "rain/rain_library.h"

#include <utility>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/grid_checks.h"
#include "foundation/grid_rows.h"
#include "foundation/text.h"
#include "network/library_rows.h"
#include "network/network_tags.h"
#include "rain/rain_records.h"

namespace pluvane {

RainLibrary::RainLibrary(EditorContext& context, LibrarySetup setup)
    : context_(context),
      surface_(context.surface),
      state_(context.state),
      ui_(context.ui),
      setup_(std::move(setup)),
      grid_(1 + static_cast<int>(setup_.columns.size()), 0) {
  grid_.SetCaption(setup_.caption);
  grid_.SetColHead(1, setup_.id_head);
  grid_.SetColWidth(1, 16);
  for (std::size_t i = 0; i < setup_.columns.size(); ++i) {
    const int col = static_cast<int>(i) + 2;
    const LibraryColumn& column = setup_.columns[i];
    grid_.SetColHead(col, column.head);
    grid_.SetColWidth(col, column.width);
    if (column.kind == LibraryColumn::kBrowse || column.kind == LibraryColumn::kEdit) {
      grid_.SetColumnType(col, CellType::Button());
    } else if (column.kind == LibraryColumn::kList) {
      grid_.SetColumnType(col, CellType::List(column.caption));
    }
  }
  Load();
}

int RainLibrary::ColumnOf(const std::string& tag) const {
  for (std::size_t i = 0; i < setup_.columns.size(); ++i) {
    const LibraryColumn& column = setup_.columns[i];
    if ((column.kind == LibraryColumn::kTag || column.kind == LibraryColumn::kList) &&
        column.tag == tag) {
      return static_cast<int>(i) + 2;
    }
  }
  return 0;
}

std::vector<FormCommand> RainLibrary::Commands() {
  std::vector<FormCommand> commands = {{"mnAdd", "&Ajouter", [this] { mnAdd(); }},
                                       {"mnIns", "&Insérer", [this] { mnIns(); }},
                                       {"mnDel", "&Supprimer", [this] { mnDel(); }},
                                       {"mnSave", "&Enregistrer", [this] { mnSave(); }}};
  for (FormCommand& command : ExtraCommands()) commands.push_back(std::move(command));
  commands.push_back({"mnClose", "&Fermer", [this] { mnClose(); }});
  return commands;
}

void RainLibrary::Load() {
  CursorKeeper keeper(surface_);
  for (int number : RecordsOfKind(surface_, setup_.kind)) {
    surface_.SetCurrentObject(number);
    const int row = grid_.MaxRows() + 1;
    grid_.SetMaxRows(row);
    grid_.SetText(1, row, surface_.ObjTag(kTagId));
    for (std::size_t i = 0; i < setup_.columns.size(); ++i) {
      const int col = static_cast<int>(i) + 2;
      const LibraryColumn& column = setup_.columns[i];
      switch (column.kind) {
        case LibraryColumn::kTag:
          grid_.SetText(col, row, surface_.ObjTag(column.tag));
          break;
        case LibraryColumn::kList: {
          // The entry whose leading digit is the tag's.
          const std::string value = Trim(surface_.ObjTag(column.tag));
          const std::vector<std::string> entries = grid_.ListEntries(col, row);
          for (std::size_t e = 0; e < entries.size(); ++e) {
            if (!value.empty() && entries[e].substr(0, 1) == value.substr(0, 1)) {
              grid_.SetListIndex(col, row, static_cast<int>(e));
            }
          }
          break;
        }
        default:
          grid_.SetText(col, row, column.caption);
          break;
      }
    }
  }
  ids_.Reset(grid_);
}

bool RainLibrary::RowDeleted(int row) const {
  return grid_.BackColour(1, row) == kButtonFaceColour;
}

void RainLibrary::NameNewRow(int row, const std::string& prefix) {
  for (std::size_t i = 0; i < setup_.columns.size(); ++i) {
    const LibraryColumn& column = setup_.columns[i];
    const int col = static_cast<int>(i) + 2;
    if (column.kind == LibraryColumn::kBrowse || column.kind == LibraryColumn::kEdit) {
      grid_.SetText(col, row, column.caption);
    } else if (column.kind == LibraryColumn::kList) {
      grid_.SetListIndex(col, row, 0);
    }
  }
  std::string name = Trim(prefix + std::to_string(row));
  grid_.SetText(1, row, name);
  // One suffix is tried; a further clash is left to the save's check.
  if (SSFindDuplicate(grid_, 1, ui_) != 0) {
    name += "_1";
    grid_.SetText(1, row, name);
  }
  grid_.SetActiveCell(1, row);
  ids_.Changed(grid_, row);
  if (!setup_.create_on_add) return;
  CursorKeeper keeper(surface_);
  AddRainRecord(surface_, state_, setup_.kind, name);
  surface_.SetObjTag(kTagUsId, grid_.Text(2, row));
}

void RainLibrary::mnAdd() {
  const int row = SSAddRow(grid_);
  ids_.Inserted(row);
  NameNewRow(row, setup_.add_prefix);
}

void RainLibrary::mnIns() {
  int row = 0;
  if (SSInsertRow(grid_, row) == 0) return;
  ids_.Inserted(row);
  NameNewRow(row, setup_.insert_prefix);
}

void RainLibrary::mnDel() { SSMarkRowDeleted(surface_, setup_.kind, grid_, grid_.ActiveRow()); }

void RainLibrary::LeaveCell(Grid& grid, int col, int row) {
  if (&grid != &grid_ || col != 1) return;
  const std::optional<std::string> old_id = ids_.Changed(grid_, row);
  if (!old_id || Trim(*old_id).empty()) return;
  const std::string new_id = grid_.Text(1, row);
  CursorKeeper keeper(surface_);
  if (FindRainRecord(surface_, setup_.kind, *old_id) > 10) surface_.SetObjTag(kTagId, new_id);
  RenameScenarioRain(surface_, *old_id, new_id);
}

void RainLibrary::ButtonCell(Grid& grid, int col, int row) {
  if (&grid != &grid_ || col < 2 || row < 1 || row > grid_.MaxRows()) return;
  const LibraryColumn& column = setup_.columns[static_cast<std::size_t>(col) - 2];
  if (column.kind == LibraryColumn::kEdit) {
    Edit(row);
  } else if (column.kind == LibraryColumn::kBrowse) {
    const std::string path = ChooseFile(col - 1);
    if (!path.empty()) grid_.SetText(col - 1, row, path);
  }
}

void RainLibrary::DoubleClickCell(Grid& grid, int /*col*/, int row) {
  if (&grid != &grid_ || row < 1 || row > grid_.MaxRows()) return;
  Edit(row);
}

std::string RainLibrary::ChooseFile(int col) {
  return ui_.AskOpenFile(grid_.ColHead(col), "Tous (*.*)|*.*", "", "*.*");
}

void RainLibrary::Edit(int row) {
  if (row < 1 || row > grid_.MaxRows() || RowDeleted(row)) return;
  bool editable = false;
  for (const LibraryColumn& column : setup_.columns) {
    editable = editable || column.kind == LibraryColumn::kEdit;
  }
  if (!editable) return;
  const std::string id = Trim(grid_.Text(1, row));
  BeforeEdit(id);
  int number = 0;
  {
    CursorKeeper keeper(surface_);
    number = FindRainRecord(surface_, setup_.kind, id);
    if (number == 0 && setup_.create_on_add) {
      number = AddRainRecord(surface_, state_, setup_.kind, id);
      surface_.SetObjTag(kTagUsId, Trim(grid_.Text(2, row)));
    }
  }
  std::unique_ptr<FormController> editor = MakeEditor(id, number);
  if (editor && !editor->Closed() && context_.show_form) context_.show_form(*editor);
}

bool RainLibrary::CheckRows() {
  if (!SSCheckFilled(grid_, 1, ui_)) return false;
  return SSFindDuplicate(grid_, 1, ui_) == 0;
}

void RainLibrary::WriteRow(int row) {
  surface_.SetObjTag(kTagIGroup, -1);
  surface_.SetObjTag(kTagIName, setup_.kind);
  surface_.SetObjTag(kTagId, Trim(grid_.Text(1, row)));
  for (std::size_t i = 0; i < setup_.columns.size(); ++i) {
    const LibraryColumn& column = setup_.columns[i];
    if (column.kind != LibraryColumn::kTag && column.kind != LibraryColumn::kList) continue;
    surface_.SetObjTag(column.tag, Trim(grid_.Text(static_cast<int>(i) + 2, row)));
  }
}

void RainLibrary::mnSave() {
  if (!CheckRows()) return;
  CursorKeeper keeper(surface_);
  DeleteMarkedRecords(surface_, setup_.kind);
  BeforeWrite();
  for (int row = 1; row <= grid_.MaxRows(); ++row) {
    if (RowDeleted(row)) continue;
    const std::string id = Trim(grid_.Text(1, row));
    if (FindRainRecord(surface_, setup_.kind, id) == 0) {
      AddRainRecord(surface_, state_, setup_.kind, id);
    }
    WriteRow(row);
  }
  mnClose();
}

}  // namespace pluvane
