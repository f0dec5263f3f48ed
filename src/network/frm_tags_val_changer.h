// frmTagsValChanger: a tag given a new value on every object of a family, a
// kind or a type that holds the old one; and frmTagEdit1, the list of lines
// "tag : value" of one element, whose selected line may be written back.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/user_interface.h"
#include "drawing/surface.h"

namespace pluvane {

class FrmTagEdit1 : public FormController {
 public:
  // The lines of `object` (0: lines only, nothing to write back).
  FrmTagEdit1(Surface& surface, UserInterface& ui, std::vector<std::string> lines,
              int object = 0);
  // The tags of the element `object`, one a line.
  static std::vector<std::string> LinesOf(Surface& surface, int object);

  std::string Caption() const override { return "Etiquettes"; }
  std::vector<Grid*> Grids() override { return {&lines_, &edit_}; }
  std::vector<FormCommand> Commands() override;
  void ClickCell(Grid& grid, int col, int row) override;

  Grid& lines() { return lines_; }
  // Row 1 the tag, row 2 its value.
  Grid& edit() { return edit_; }
  void SelectLine(int row);
  void cmdSave();

 private:
  Surface& surface_;
  UserInterface& ui_;
  int object_;
  Grid lines_;
  Grid edit_;
  int row_ = 0;
};

class FrmTagsValChanger : public FormController {
 public:
  // `show_report` shows the lines of the changes (a frmTagEdit1).
  FrmTagsValChanger(Surface& surface, UserInterface& ui,
                    std::function<void(const std::vector<std::string>&)> show_report = {});

  std::string Caption() const override { return "Modifier les étiquettes"; }
  std::vector<Grid*> Grids() override { return {&fields_}; }
  std::vector<FormCommand> Commands() override;

  // Rows: 1 the option (iGroup, iType or iName), 2 its value, 3 the tag,
  // 4 the old value, 5 the new one.
  Grid& fields() { return fields_; }
  void cmdGo();
  const std::vector<std::string>& Report() const { return report_; }

 private:
  Surface& surface_;
  UserInterface& ui_;
  std::function<void(const std::vector<std::string>&)> show_report_;
  Grid fields_;
  std::vector<std::string> report_;
};

}  // namespace pluvane
