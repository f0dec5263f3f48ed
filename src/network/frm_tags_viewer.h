// frmTagsViewer: the user picks a family or a type of elements, then cmdGo
// walks the matching objects in one of three modes: "SCAN" lists their tags
// in a report, "ETIQ" writes their labels on the drawing, "APPSYMBOLE" draws
// them again with another symbol.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "foundation/user_interface.h"
#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

// The entries of the list of families and of the list of types, as offered.
const std::vector<std::string>& FamilyEntries();
const std::vector<std::string>& TypeEntries();

class FrmTagsViewer : public FormController {
 public:
  // `show_report` shows the report of a scan (a frmTagMessage).
  FrmTagsViewer(Surface& surface, NetworkState& state, UserInterface& ui, std::string mode,
                std::function<void(const std::string&, const std::vector<std::string>&)>
                    show_report = {});

  std::string Caption() const override;
  std::vector<Grid*> Grids() override { return {&choice_}; }
  std::vector<FormCommand> Commands() override;

  // Row 1: the family, row 2: the type (which wins when both are given).
  Grid& choice() { return choice_; }
  void cmdGo();
  // The lines of the last scan.
  const std::vector<std::string>& Report() const { return report_; }

 private:
  void Scan(const std::string& tag, int value, const std::vector<int>& objects);
  void Label(const std::vector<int>& objects);
  void ChangeSymbol(const std::string& tag, int value, const std::vector<int>& objects);

  Surface& surface_;
  UserInterface& ui_;
  std::string mode_;
  std::function<void(const std::string&, const std::vector<std::string>&)> show_report_;
  Grid choice_;
  std::vector<std::string> report_;
};

}  // namespace pluvane
