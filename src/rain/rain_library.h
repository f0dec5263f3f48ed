// One design serves the libraries of rains (Caquot, triangles, I(t), radar,
// recorded events, external rains): a grid of one row per record of a kind,
// the Id in column 1, further columns bound to tags, button columns that
// browse for a file or open the record's edition form. A new row is named by
// a prefix and its number ("_1" behind a double), a deleted row is marked and
// greyed until the save, a renamed record takes its scenarios along.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "drawing/surface.h"
#include "editors/editor_context.h"
#include "foundation/form_controller.h"
#include "foundation/user_interface.h"
#include "network/network_state.h"
#include "rain/id_column.h"

namespace pluvane {

// A column of a library after the Id.
struct LibraryColumn {
  enum Kind { kTag, kList, kBrowse, kEdit };
  Kind kind = kTag;
  std::string head;
  std::string tag;      // kTag, kList: the tag it shows
  std::string caption;  // kBrowse, kEdit: the button's text; kList: the entries, tab-separated
  double width = 12;
};

struct LibrarySetup {
  int kind = 0;
  std::string caption;
  std::string id_head;
  std::string add_prefix;
  std::string insert_prefix;
  std::vector<LibraryColumn> columns;  // columns 2 and on
  // Whether a new row makes its record at once (design storms) or at the save.
  bool create_on_add = true;
};

class RainLibrary : public FormController {
 public:
  RainLibrary(EditorContext& context, LibrarySetup setup);

  std::string Caption() const override { return setup_.caption; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override;
  void ButtonCell(Grid& grid, int col, int row) override;
  void DoubleClickCell(Grid& grid, int col, int row) override;
  void LeaveCell(Grid& grid, int col, int row) override;

  Grid& grid() { return grid_; }
  int kind() const { return setup_.kind; }
  // The grid column of a tag, 0 when none shows it.
  int ColumnOf(const std::string& tag) const;

  void mnAdd();
  void mnIns();
  void mnDel();
  void mnSave();
  virtual void mnClose() { Close(); }
  // Opens the row's record in its edition form.
  void Edit(int row);

 protected:
  // The checks of a save; the default is the grid's filled and doubles checks.
  virtual bool CheckRows();
  // Called by the save once the checks passed and the marked records went.
  virtual void BeforeWrite() {}
  // Writes the row's tags on its record, current.
  virtual void WriteRow(int row);
  // The edition form of the record `number` named `id`; null when the kind has none.
  virtual std::unique_ptr<FormController> MakeEditor(const std::string& /*id*/, int /*number*/) {
    return nullptr;
  }
  // Called when the edit button was pressed, before the form opens.
  virtual void BeforeEdit(const std::string& /*id*/) {}
  // The file chooser of a browse column; the chosen path or empty.
  virtual std::string ChooseFile(int col);
  // Further commands, after the library's own.
  virtual std::vector<FormCommand> ExtraCommands() { return {}; }
  // Fills the grid from the records.
  void Load();
  bool RowDeleted(int row) const;
  void NameNewRow(int row, const std::string& prefix);

  EditorContext& context_;
  Surface& surface_;
  const NetworkState& state_;
  UserInterface& ui_;
  LibrarySetup setup_;
  Grid grid_;
  IdColumnMemory ids_;
};

}  // namespace pluvane
