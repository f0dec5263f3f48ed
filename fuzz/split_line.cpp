// Fuzzes the two line splitters: the first byte chooses the separator's
// length and the count of fixed fields, the separator follows, the rest is the
// line.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "foundation/line_parsing.h"
#include "foundation/scripted_ui.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::size_t separator_size = data[0] % 4;
  const int count = (data[0] >> 2) % 16;
  std::string rest(reinterpret_cast<const char*>(data) + 1, size - 1);
  const std::string separator = rest.substr(0, separator_size);
  const std::string line = rest.substr(std::min(separator_size, rest.size()));

  pluvane::ScriptedUi ui;
  std::vector<std::string> elements = {"stale"};
  const int n = pluvane::SplitLine(ui, line, elements, separator);
  if (n < 0 || static_cast<std::size_t>(n) != elements.size()) __builtin_trap();
  if (n == 0 && !ui.Empty() && ui.Last().text.rfind("Un 2eme guillemet", 0) != 0) __builtin_trap();

  std::vector<std::string> fields(static_cast<std::size_t>(count), "old");
  pluvane::GetEline(ui, line, count, fields);
  if (fields.size() != static_cast<std::size_t>(count)) __builtin_trap();
  return 0;
}
