// Fuzzes the extraction of a rain block from an external rain file: the input
// is the file; the name of its first line's quoted part is looked for under
// both keywords of the external rains, then the whole-copy fallback runs.
#include "simulation/rain_block.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "foundation/scripted_ui.h"
#include "foundation/text.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::filesystem::path folder = pluvane_fuzz::Folder("rain");
  const std::string file = (folder / "in.txt").string();
  const std::string out = (folder / "out.PLU").string();
  std::filesystem::remove(out);
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  {
    std::ofstream stream(file, std::ios::binary);
    stream << bytes;
  }
  int position = 0;
  const std::string name = pluvane::QuotedPart(bytes.substr(0, bytes.find('\n')), position);
  pluvane::ScriptedUi ui;
  const bool found = pluvane::ExtractRainBlock(ui, "PR", file, out, name);
  if (found != std::filesystem::exists(out)) __builtin_trap();
  pluvane::CopyExternalRain(ui, "PPHY", file, out, name);
  if (!std::filesystem::exists(out)) __builtin_trap();
  return 0;
}
