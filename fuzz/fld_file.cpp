// Fuzzes the reader of .Fld column files: whatever it takes, each column is
// a number from 1 to the largest allowed, the highest is returned, and the
// columns written back read the same.
#include "exchange/fld_file.h"

#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "foundation/scripted_ui.h"

namespace {

void Check(bool condition) {
  if (!condition) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string folder = [] {
    auto path =
        std::filesystem::temp_directory_path() / ("pluvane_fuzz_fld_" + std::to_string(::getpid()));
    std::filesystem::create_directories(path);
    return path.string();
  }();
  const std::string file = folder + "/in.Fld", again = folder + "/again.Fld";
  {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  }
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
