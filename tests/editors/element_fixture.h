// Test fixture for the element editors: the model fixture's drawing and
// folders, an editor context whose host records the forms and plots it was
// asked to show, and helpers to open a form on an element, to drive its list
// cells as the window does and to read the element's records of a model.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "editors/editor_context.h"
#include "simulation/li2_description.h"
#include "simulation/link_files.h"
#include "simulation/model_fixture.h"
#include "simulation/node_file.h"

namespace pluvane {

class ElementEditorTest : public ModelTest {
 protected:
  ElementEditorTest() { state.WorkDir = folder.Path(); }

  // The form of that type on the element, as the main window opens it.
  template <typename Form>
  std::unique_ptr<Form> Open(int element) {
    surface.SetCurrentObject(element);
    return std::make_unique<Form>(editor);
  }

  // The user picks entry `index` of a list cell: the list drops down, the
  // choice is made, the list closes.
  static void Choose(FormController& form, Grid& grid, int col, int row, int index) {
    form.ListDropDown(grid, col, row);
    grid.SetListIndex(col, row, index);
    form.ListCloseUp(grid, col, row);
  }

  // Generates .NOD, .LI1 and .LI2 of the drawing.
  void Generate() {
    ModelContext context = Context();
    GenFicNod(context, ModelFile(".NOD"));
    GenFicLi1(context, ModelFile(".LI1"));
    GenFicLi2(context, ModelFile(".LI2"));
  }
  // Record r (from 1) of .LI2.
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

  ViewerState viewer;
  // The scripts the viewer was asked to show, and the forms opened.
  std::vector<ViewerState> viewed;
  std::vector<std::string> forms_shown;
  EditorContext editor{surface,
                       state,
                       ui,
                       [this](FormController& form) { forms_shown.push_back(form.Caption()); },
                       viewer,
                       [this](ViewerState& shown) { viewed.push_back(shown); }};
};

}  // namespace pluvane
