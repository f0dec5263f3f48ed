// The walk over a table of points shared by the imports of nodes and of
// catchments: each line placed as a point of the type at its X, Y (map
// coordinates turned logical), named with the next free number, labelled, and
// given the tags of its other columns.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "exchange/import_table.h"

namespace pluvane {

// The columns that every table of points has, by their rank in the .Fld.
inline constexpr int kPointLabelColumn = 1;
inline constexpr int kPointXColumn = 2;
inline constexpr int kPointYColumn = 3;

struct PointImport {
  int i_name = 0;
  std::vector<std::string> symbols;  // the picture: the first of these found
  std::string undo_caption;  // the caption of the import's undo step
  std::string id_prefix;     // "Nod_": the Ids are the prefix and a number
  std::string status_name;   // the name of the points in the closing status
  double half_factor = 1;    // the half-side of a point, in node half-sides
  int pump_every = 30;       // lines between two turns of the event loop
  // Labels go to capitals with their blanks made "_"; with this, a label
  // without a blank is kept as the table has it.
  bool keep_plain_labels = false;
  // Writes the tags of the table's other columns on the new point, which is
  // current; `count` is the number of fields the line held.
  std::function<void(Surface& surface, const std::vector<int>& columns,
                     const std::vector<std::string>& fields, int count)>
      more_tags{};
  // Runs once the table, its columns and the symbol are found, before the
  // first point is placed.
  std::function<void(const ImportTable& table, const std::vector<int>& columns, int highest)>
      before{};
};

// Reads the columns of `fld_file` and the table `data_file`, then places the
// points of every line in one undo step. Returns how many were made, -1 when
// the columns, the table or the symbol could not be had (a message says why).
int ImportPointTable(ImportTarget& target, const std::string& data_file,
                     const std::string& fld_file, const std::string& separator,
                     const PointImport& what);

}  // namespace pluvane
