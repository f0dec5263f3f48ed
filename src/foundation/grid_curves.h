// Curves in and out of the forms' grids: a named curve of a curve file loaded
// into two, three or four columns, and the columns of a grid turned into the
// arrays that the plot viewer draws.
#pragma once

#include <string>
#include <vector>

#include "foundation/grid.h"
#include "foundation/user_interface.h"

namespace pluvane {

// Reads the first curve named `name` (case-blind, blanks around it ignored) of
// the curve file into columns 1 and 2 and returns its point count in `count`:
// X from characters 1-10, Y from 11-20. The number from character 21 on of the
// first point is an offset added to every Y. The grid gets one row per point.
// A missing file or curve leaves the grid alone with a count of 0; the result
// tells whether the curve was found.
bool SSLoadCurve2(Grid& grid, const std::string& file, const std::string& name, int& count);
// The same into three and four columns (characters 21-30 and 31-40), with no offset.
bool SSLoadCurve3(Grid& grid, const std::string& file, const std::string& name, int& count);
bool SSLoadCurve4(Grid& grid, const std::string& file, const std::string& name, int& count);

// The points of a grid for the plot viewer: one X array and one Y array per series.
struct CurveArrays {
  std::vector<double> x;
  std::vector<std::vector<double>> y;
};

// With two selected blocks or more, the first column of the first block gives
// X and every column of the other blocks a series, paired row by row from the
// top of each block (as many points as the shortest block has rows). Otherwise
// column 1 gives X and each further column a series, over the rows before the
// first blank cell of column 1. X must rise as SSCheckRising has it; in mode
// "SEC" it holds the heights of a section. On failure the message is shown,
// the cursor stands on the row before the step at fault, and the arrays are empty.
bool SSToCurveArrays(Grid& grid, const std::string& mode, CurveArrays& arrays, UserInterface& ui);

}  // namespace pluvane
