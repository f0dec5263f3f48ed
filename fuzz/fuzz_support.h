// What the fuzz targets share: a check that stops the run, a folder of their
// own under the temporary folder, and the checks of a network they built.
#pragma once

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "drawing/surface.h"
#include "drawing/surface_helpers.h"

namespace pluvane_fuzz {

inline void Check(bool condition) {
  if (!condition) __builtin_trap();
}

// A folder for this process's files, made once per name.
inline std::filesystem::path Folder(const std::string& name) {
  const auto path = std::filesystem::temp_directory_path() /
                    ("pluvane_fuzz_" + name + "_" + std::to_string(::getpid()));
  std::filesystem::create_directories(path);
  return path;
}

// The symbols shipped with the sources.
inline std::string SymbolFolder() {
  return (std::filesystem::path(__FILE__).parent_path().parent_path() / "data" / "Symboles")
      .string();
}

inline void WriteBytes(const std::string& file, const std::uint8_t* data, std::size_t size) {
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
}

// Every link of the kind joins two different objects whose Ids are the
// link's upstream and downstream node names.
inline void CheckLinkEnds(pluvane::Surface& surface, const std::string& i_name) {
  for (int n : pluvane::FindObjectList(surface, "iName", i_name)) {
    surface.SetCurrentObject(n);
    const std::string up = surface.ObjTag("sNodAm"), down = surface.ObjTag("sNodAv");
    const int end0 = surface.LinkEndObject(0), end1 = surface.LinkEndObject(1);
    Check(end0 != end1);
    surface.SetCurrentObject(end0);
    Check(surface.ObjTag("Id") == up);
    surface.SetCurrentObject(end1);
    Check(surface.ObjTag("Id") == down);
  }
}

}  // namespace pluvane_fuzz
