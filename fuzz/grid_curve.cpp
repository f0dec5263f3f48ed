// Feeds arbitrary bytes to the grid's curve loading (as a curve file) and to
// its paste (as clipboard text): neither may crash.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>

#include "foundation/grid.h"
#include "foundation/grid_clipboard.h"
#include "foundation/grid_curves.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string path = "/tmp/fuzz_grid_curve_" + std::to_string(getpid()) + ".crb";
  std::string bytes(reinterpret_cast<const char*>(data), size);
  {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
  }
  pluvane::Grid grid(2, 3);
  int count = 0;
  pluvane::SSLoadCurve2(grid, path, "A", count);
  pluvane::SSLoadCurve4(grid, path, "", count);
  grid.SetActiveCell(1, 1);
  pluvane::SSPaste(grid, bytes);
  grid.AddSelection({2, 1, 9, 9});
  pluvane::SSPaste(grid, bytes);
  return 0;
}
