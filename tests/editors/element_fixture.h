// Test fixture for the element editors on a drawn network (that of
// NetworkEditorTest): a form opened on an element as the main window opens
// it, a list cell driven as the window drives it, and the element's records
// in the generated model files.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "network_editor_fixture.h"
#include "simulation/li2_description.h"
#include "simulation/link_files.h"
#include "simulation/node_file.h"

namespace pluvane {

class ElementEditorTest : public NetworkEditorTest {
 protected:
  // The form of that type on the element, made current first.
  template <typename Form>
  std::unique_ptr<Form> Open(int element) {
    surface.SetCurrentObject(element);
    return std::make_unique<Form>(context);
  }

  // The user picks entry `index` of a list cell: the list drops down, then
  // the choice reaches the cell.
  static void Choose(FormController& form, Grid& grid, int col, int row, int index) {
    form.ListDropDown(grid, col, row);
    grid.SetListIndex(col, row, index);
  }

  // Generates .NOD, .LI1 and .LI2 of the drawing.
  void Generate() {
    ModelContext model = Context();
    GenFicNod(model, ModelFile(".NOD"));
    GenFicLi1(model, ModelFile(".LI1"));
    GenFicLi2(model, ModelFile(".LI2"));
  }
  // Record r (from 1) of .LI2, empty when the file is shorter.
  std::string Li2Record(int r) const {
    const std::string li2 = ReadBytes(ModelFile(".LI2"));
    if (li2.size() < static_cast<std::size_t>(r) * 812) return "";
    return li2.substr(static_cast<std::size_t>(r - 1) * 812, 812);
  }
  // A record of 812 zero bytes with the given singles at their indices.
  static std::string Record(const std::vector<std::pair<int, double>>& values) {
    std::string record(812, '\0');
    for (const auto& [index, value] : values) PutSingle(record, index, value);
    return record;
  }
};

}  // namespace pluvane
