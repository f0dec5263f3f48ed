// frmTagMessage: the lines of a check or a scan, one a row, with the buttons
// of the message console. A click on a line "Id : ..." locates the element it
// names (by Id, else by label): it becomes current, the only one selected,
// and the view zooms on it.
#pragma once

#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

class FrmTagMessage : public FormController {
 public:
  FrmTagMessage(Surface& surface, NetworkState& state, UserInterface& ui, std::string caption,
                const std::vector<std::string>& lines);

  std::string Caption() const override { return caption_; }
  std::vector<Grid*> Grids() override { return {&lines_}; }
  std::vector<FormCommand> Commands() override;
  void ClickCell(Grid& grid, int col, int row) override;

  Grid& lines() { return lines_; }
  // Locates the element named by the line of that row; its number, 0 if none.
  int LocateRow(int row);

 private:
  Surface& surface_;
  NetworkState& state_;
  UserInterface& ui_;
  std::string caption_;
  Grid lines_;
};

// The designation that a report line names: what follows "Id : ", up to the
// next " : " or blank-separated "Id"; empty when the line names none.
std::string DesignationOfLine(const std::string& line);

}  // namespace pluvane
