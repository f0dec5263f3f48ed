#include "editors/dqz_branches.h"

#include <array>
#include <filesystem>
#include <vector>

#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "plot/curve_file.h"

namespace pluvane {

namespace {

constexpr std::array<DqzBranch, 4> kBranches{{{2, "TypeAval", "Xav", "Yav", "NbPtAv"},
                                              {4, "TypeDer_a", "Xda", "Yda", "NbPtDa"},
                                              {5, "TypeDer_b", "Xdb", "Ydb", "NbPtDb"},
                                              {6, "TypeDer_c", "Xdc", "Ydc", "NbPtDc"}}};

std::string Field(double value) { return FormatFixed(value, 10, 2); }

}  // namespace

const DqzBranch* DqzBranchOfRow(int row) {
  for (const DqzBranch& branch : kBranches) {
    if (branch.row == row) return &branch;
  }
  return nullptr;
}

bool BranchCurveToFile(Surface& surface, const DqzBranch& branch, const std::string& file) {
  std::vector<std::string> lines{std::string("'") + kDqzCurveName + "'"};
  const int count = ValLong(surface.ObjTag(branch.count_tag));
  for (int i = 1; i <= count; ++i) {
    const std::string n = std::to_string(i);
    lines.push_back(Field(Val(surface.ObjTag(branch.x_prefix + n))) +
                    Field(Val(surface.ObjTag(branch.y_prefix + n))));
  }
  std::error_code ignored;
  std::filesystem::remove(file, ignored);
  return WriteTextLines(file, lines);
}

void FileToBranchCurve(Surface& surface, UserInterface& ui, const DqzBranch& branch,
                       const std::string& file) {
  std::vector<double> x, y;
  int count = 0, status = 0;
  ReadCurve(ui, file, kDqzCurveName, x, y, count, status);
  if (status != kCurveFound) return;
  surface.SetObjTag(branch.count_tag, Trim(std::to_string(count)));
  for (int i = 1; i <= count; ++i) {
    const std::string n = std::to_string(i);
    surface.SetObjTag(branch.x_prefix + n, Field(x[static_cast<std::size_t>(i - 1)]));
    surface.SetObjTag(branch.y_prefix + n, Field(y[static_cast<std::size_t>(i - 1)]));
  }
}

}  // namespace pluvane
