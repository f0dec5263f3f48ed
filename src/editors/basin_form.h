// What the two retention basins share (frmRs, frmRsp): the downstream element
// and the overflow chosen among the links that leave the basin's node, a
// filling curve of at most 10 points, and the initial level, which must lie
// within the curve's levels.
#pragma once

#include <string>

#include "editors/leaving_links.h"
#include "editors/point_form.h"

namespace pluvane {

class BasinForm : public PointForm {
 public:
  static constexpr int kRowAval = 2;
  static constexpr int kRowSurv = 3;
  static constexpr int kPointLimit = 10;

  // A click on the downstream or overflow row highlights its link too.
  void ClickCell(Grid& grid, int col, int row) override;

  void cmdOk() override;

  // The links leaving the basin's node, as the lists offer them.
  const LeavingLinks& Links() const { return links_; }

 protected:
  BasinForm(EditorContext& context, std::string caption, std::vector<TagRow> rows,
            std::vector<PointColumn> columns, Plot plot, int z0_row);
  // The message of an initial level outside the levels Z1 to Zn of n points.
  virtual std::string LevelMessage(double z1, double zn, int n) const = 0;

 private:
  // The same link cannot be both: a link chosen in one row empties the
  // other, and is highlighted.
  void LinkChosen(int row);
  // The link of that label is highlighted on the plan.
  void Highlight(const std::string& label);

  int z0_row_;
  LeavingLinks links_;
};

}  // namespace pluvane
