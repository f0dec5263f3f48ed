// An element editor with a table of points beside its rows of values: the
// basins' filling curves and the injected hydrograph. Point i of the table is
// kept in numbered tags (X1, Y1, Z1, T1...) and their count in NbPt. The form
// adds rows, inserts them up to its limit, deletes them and shows the table
// in the plot viewer.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "editors/tag_grid_form.h"

namespace pluvane {

// A column of the table: the letter of its tags, its head, its cells.
struct PointColumn {
  std::string tag;
  std::string head;
  CellType type;
};

// The shared test of a rising column: from row 2 on, each value less the one
// before must be at least 0 (equal values pass). At the first drop `row` gets
// the row before it, the cursor goes to that row of the column, and the
// result is false.
bool CheckColumn(Grid& grid, int col, int& row);

class PointForm : public TagGridForm {
 public:
  // The page title of the table in the plot viewer: the prefix, the
  // element's Id and the suffix.
  struct Plot {
    std::string prefix;
    std::string suffix;
  };

  PointForm(EditorContext& context, std::string caption, std::vector<TagRow> rows,
            std::vector<PointColumn> columns, int limit, Plot plot);

  std::vector<Grid*> Grids() override { return {&grid(), &spread2_}; }
  // cmdOk, cmdAnnul, then the table's commands.
  std::vector<FormCommand> Commands() override;

  Grid& spread2() { return spread2_; }
  int Limit() const { return limit_; }

  // A row at the end, the cursor on it.
  void cmdAddLine();
  // A row before the cursor's, refused silently at the limit.
  void cmdInsLine();
  // Removes the cursor's row; the cursor stays on column 1 of that row.
  void cmdDelLine();
  // The table as curves against column 1, in the plot viewer.
  void cmdVisu();

 protected:
  // A tag of the element, and writing one.
  std::string Tag(std::string_view name) const;
  void SetTag(std::string_view name, std::string_view value);
  // Fills the table with the stored points, the first `count` of them.
  void LoadPoints(int count);
  // The checks every table passes at Ok: at least 2 rows ("Il faut au moins 2
  // lignes dans une courbe !"), then column 1 rising (the message given, a
  // line break, " revoir ligne " and the row before the drop).
  bool TableAccepted(const std::string& falling_message);
  // Empties the point tags 1 to `count`.
  void ClearPoints(int count);
  // Writes NbPt (the table's row count) and the points.
  void StorePoints();
  // A message under the form's caption, with the information icon.
  void Tell(const std::string& text);

  Grid spread2_;

 private:
  std::vector<PointColumn> columns_;
  int limit_;
  Plot plot_;
};

}  // namespace pluvane
