// Test fixture of the imports: the placement fixture's drawing (map X = Xlog,
// Y = 10000 - Ylog), a network file name so that imports are allowed, a
// folder for the tables, and column dialogs answered from the test.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "drawing/surface_helpers.h"
#include "exchange/column_dialog.h"
#include "exchange/fld_file.h"
#include "exchange/import_commands.h"
#include "foundation/paths.h"
#include "foundation/test_files.h"
#include "foundation/text.h"
#include "network/placement_fixture.h"

namespace pluvane {

class ImportTest : public PlacementTest {
 protected:
  ImportTest() { state.NetworkFile = folder.File("reseau.mtf"); }

  std::string Table(const std::string& name, const std::string& text) {
    const std::string path = folder.File(name);
    WriteBytes(path, text);
    return path;
  }
  std::string Fld(const std::string& name, const std::vector<int>& columns) {
    const std::string path = folder.File(name);
    EXPECT_TRUE(WriteFldFile(path, columns));
    return path;
  }
  ImportTarget Target() { return {surface, state, ui}; }
  void Set(int number, const TagList& tags) {
    const int saved = surface.CurrentObject();
    surface.SetCurrentObject(number);
    for (const auto& [name, value] : tags) surface.SetObjTag(name, value);
    surface.SetCurrentObject(saved);
  }

  // A session whose column dialogs take `columns` (none: the dialog's own
  // rows as shown) and OK, or Annuler when `cancel`.
  ImportSession Session(std::vector<int> columns = {}, bool cancel = false) {
    return {surface, state, ui, [this, columns, cancel](FormController& form) {
              dialogs.push_back(form.Caption());
              auto& dialog = dynamic_cast<ColumnDialog&>(form);
              for (std::size_t i = 0; i < columns.size(); ++i) {
                dialog.grid().SetText(2, static_cast<int>(i) + 1, std::to_string(columns[i]));
              }
              shown.clear();
              for (int row = 1; row <= dialog.grid().MaxRows(); ++row) {
                shown.push_back(dialog.grid().Text(2, row));
              }
              form.Run(cancel ? "cmdAnnul" : "cmdOk");
            }};
  }

  // The objects of a type, in creation order.
  std::vector<int> OfType(int i_name) {
    return FindObjectList(surface, "iName", std::to_string(i_name));
  }
  int ByLabel(int i_name, const std::string& label) {
    for (int n : OfType(i_name)) {
      if (TagOf(n, "libell") == label) return n;
    }
    return 0;
  }
  std::string LastStatus() const { return ui.Statuses().empty() ? "" : ui.Statuses().back(); }

  TempFolder folder;
  std::vector<std::string> dialogs;
  std::vector<std::string> shown;
};

}  // namespace pluvane
