// Fuzzes the reader of .Fld column files: whatever it takes, each column is
// a number from 1 to the largest allowed, the highest is returned, and the
// columns written back read the same.
#include "exchange/fld_file.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "foundation/scripted_ui.h"
#include "fuzz_support.h"

namespace {

using pluvane_fuzz::Check;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string folder = pluvane_fuzz::Folder("fld").string();
  const std::string file = folder + "/in.Fld", again = folder + "/again.Fld";
  pluvane_fuzz::WriteBytes(file, data, size);
  pluvane::ScriptedUi ui;
  std::vector<int> columns;
  const int highest = pluvane::ReadFldFile(ui, file, columns);
  if (highest < 0) {
    Check(columns.empty() && !ui.Empty());
    return 0;
  }
  Check(ui.Empty());
  int top = 0;
  for (int column : columns) {
    Check(column >= 1 && column <= pluvane::kMaxColumn);
    top = std::max(top, column);
  }
  Check(top == highest);
  Check(pluvane::WriteFldFile(again, columns));
  std::vector<int> read;
  Check(pluvane::ReadFldFile(ui, again, read) == highest && read == columns);
  return 0;
}
