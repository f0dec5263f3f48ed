// The four branches of a level-law divider (frmDqz): the tags of each
// branch's hydraulic type and parameters, and its Q=f(Z) curve carried
// through a curve file for the curve editor.
#pragma once

#include <string>

#include "drawing/surface.h"
#include "foundation/user_interface.h"

namespace pluvane {

struct DqzBranch {
  int row;                // the branch's row in frmDqz's grid
  const char* type_tag;   // the list text of its type, its number first
  const char* x_prefix;   // parameters, or the levels of the curve
  const char* y_prefix;   // discharges of the curve
  const char* count_tag;  // point count of the curve
};

// The branch of a row of frmDqz (2, 4, 5 or 6); nullptr for another row.
const DqzBranch* DqzBranchOfRow(int row);

// The entries of the type list, and the default type of a new branch.
inline constexpr const char* kDqzTypeList = "1. Seuil\t2. Orifice\t3. Strickler\t4. Z = f(Q)";
inline constexpr int kDqzWeir = 1;
inline constexpr int kDqzOrifice = 2;
inline constexpr int kDqzStrickler = 3;
inline constexpr int kDqzCurve = 4;
// The name of a branch's curve in its file.
inline constexpr const char* kDqzCurveName = "CrbX";

// Overwrites `file` with the branch's curve of the current object: the name
// in apostrophes, then one line per point, X and Y each at width 10 with 2
// decimals. False when the file cannot be written.
bool BranchCurveToFile(Surface& surface, const DqzBranch& branch, const std::string& file);
// Reads the curve back into the current object's tags: the point count
// trimmed, each X and Y at width 10 with 2 decimals (its leading blanks kept).
void FileToBranchCurve(Surface& surface, UserInterface& ui, const DqzBranch& branch,
                       const std::string& file);

}  // namespace pluvane
