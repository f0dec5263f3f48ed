// Fuzzes the two readers of section files: the input is read as a text
// (.sec) and as a curve (.crb) section file into an empty library. Whatever
// they made must then export, and that export must import whole into another
// empty library, section for section.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "drawing/surface.h"
#include "editors/section_export.h"
#include "editors/section_import.h"
#include "editors/section_library.h"
#include "foundation/numbers.h"
#include "foundation/scripted_ui.h"
#include "fuzz_support.h"
#include "network/network_state.h"

namespace {

void CheckRoundTrip(pluvane::Surface& surface, const pluvane::NetworkState& state,
                    pluvane::UserInterface& ui, const std::string& folder) {
  const std::string exported = folder + "/export.sec";
  std::vector<std::string> skipped;
  const int written = pluvane::WriteSecFile(surface, exported, skipped);
  if (written < 0) __builtin_trap();
  if (written + skipped.size() != pluvane::SectionIds(surface).size()) __builtin_trap();
  pluvane::Surface again;
  bool complete = false;
  const int read =
      pluvane::ImportSecFile(again, state, ui, exported, folder + "/again.msg", &complete);
  if (!complete || read != written) __builtin_trap();
}

void Import(const std::string& bytes, const std::string& extension, const std::string& folder) {
  const std::string file = folder + "/in." + extension;
  {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream << bytes;
  }
  pluvane::ScriptedUi ui;
  pluvane::NetworkState state;
  state.LogicWidth = 100000;
  state.LogicHeight = 100000;
  pluvane::Surface surface;
  bool complete = false;
  const int count =
      pluvane::ImportSectionFile(surface, state, ui, file, folder + "/in.msg", &complete);
  const std::vector<std::string> ids = pluvane::SectionIds(surface);
  if (count < 0 || ids.size() > static_cast<std::size_t>(count)) __builtin_trap();
  if (!std::filesystem::exists(folder + "/in.msg")) __builtin_trap();
  for (const std::string& id : ids) {
    const int n = pluvane::FindSection(surface, id);
    if (n < 1) __builtin_trap();
    surface.SetCurrentObject(n);
    const int points = pluvane::ValInt(surface.ObjTag("NbPt"));
    if (points < 2) __builtin_trap();
  }
  CheckRoundTrip(surface, state, ui, folder);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string folder = pluvane_fuzz::Folder("section").string();
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  Import(bytes, "sec", folder);
  Import(bytes, "crb", folder);
  return 0;
}
