// Fuzzes the reader of rain text files behind the external rain import: the
// input is the file, imported under every key into a network holding one
// gauge. The import never counts more rains than the file has blocks of the
// key, and a refused import adds nothing.
#include "rain/rain_text.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "drawing/surface.h"
#include "drawing/surface_helpers.h"
#include "foundation/scripted_ui.h"
#include "foundation/text.h"
#include "fuzz_support.h"
#include "network/network_state.h"
#include "rain/rain_import.h"
#include "rain/rain_records.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace pluvane;
  static const std::filesystem::path folder = pluvane_fuzz::Folder("rain_text");
  const std::string file = (folder / "in.plu").string();
  pluvane_fuzz::WriteBytes(file, data, size);
  std::vector<std::string> lines;
  ReadTextLines(file, lines);
  for (const char* key : {"PR", "CAQ", "PPST", "PPDT", "PPHY", "PRAD"}) {
    Surface surface;
    NetworkState state;
    state.LogicWidth = 100000;
    state.LogicHeight = 100000;
    state.SymbolSize = 120;
    surface.AddObject(12, 100, 100, 200, 200);
    surface.SetObjTag("iName", "12");
    surface.SetObjTag("Id", "Plu_1");
    ScriptedUi ui;
    std::size_t blocks = 0;
    for (const RainTextBlock& block : ReadRainBlocks(ui, lines)) {
      if (block.keyword == key) ++blocks;
    }
    const int kind = ImportedKind(key);
    const RainImportResult result = ImportRainFile(surface, state, ui, key, file);
    const int made = CountByName(surface, kind);
    if (result.imported != made) __builtin_trap();
    if (static_cast<std::size_t>(result.imported) > blocks) __builtin_trap();
    if (result.refused && made != 0) __builtin_trap();
  }
  return 0;
}
