// The .Fld file kept beside an import table: which column of the table holds
// each parameter of the column dialog, one number a line in the order of the
// dialog's rows.
#pragma once

#include <string>
#include <vector>

#include "foundation/user_interface.h"

namespace pluvane {

// The column that no table has: what a 0 or a word in a .Fld stands for.
inline constexpr int kNoColumn = 99;
// The largest column number a .Fld may name; a larger one would size every
// record of the table to it.
inline constexpr int kMaxColumn = 999;

// Reads the columns of a .Fld into columns[0..]: empty lines are skipped, a 0,
// a negative number or a word becomes kNoColumn. Returns the highest column
// number, 0 when the file holds none, or -1 (after a message naming the file
// and the line) when the file cannot be read or names a column above
// kMaxColumn.
int ReadFldFile(UserInterface& ui, const std::string& path, std::vector<int>& columns);

// The column of a parameter (row from 1); kNoColumn when the .Fld stops short.
int FldColumn(const std::vector<int>& columns, int row);

// Writes one number a line, each with a blank before and behind it as the old
// print of numbers did ("-" in place of the blank before a negative number).
bool WriteFldFile(const std::string& path, const std::vector<int>& columns);

}  // namespace pluvane
