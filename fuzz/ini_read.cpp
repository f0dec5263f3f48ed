// Fuzzes the settings reader and writer: the input becomes an .ini file in a
// temporary folder, a few keys are read, one is written and read back.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "foundation/ini_profile.h"
#include "fuzz_support.h"

namespace {

const std::string& IniPath() {
  static const std::string path = [] {
    const auto dir = pluvane_fuzz::Folder("ini");
    return (dir / "pluvane.ini").string();
  }();
  return path;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string& path = IniPath();
  {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  }
  pluvane::IniRead("Paramètres", "RepTravail", 255, path);
  pluvane::IniRead("Autres", "Lanceur", 8, path);
  pluvane::IniRead("Fichiers recents", "Fichier1", 1, path);
  pluvane::IniRead("", "", 255, path);
  if (!pluvane::IniWrite("Autres", "Lanceur", "wine", path)) __builtin_trap();
  if (pluvane::IniRead("AUTRES", "lanceur", 255, path) != "wine") __builtin_trap();
  return 0;
}
