// Feeds arbitrary bytes to the network file reader, replacing a drawing
// (mode 0) and adding to one (mode 2), then saves what was read: nothing may
// crash, and a refused file must leave the drawing as it was.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "drawing/surface.h"

namespace {

std::string TempPath(const char* name) {
  return "/tmp/pluvane_fuzz_" + std::to_string(::getpid()) + "_" + name;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string input = TempPath("in.mtf");
  static const std::string output = TempPath("out.mtf");
  if (FILE* file = std::fopen(input.c_str(), "wb")) {
    std::fwrite(data, 1, size, file);
    std::fclose(file);
  } else {
    return 0;
  }
  pluvane::Surface surface;
  const int host = surface.AddObject(pluvane::kKindPicture, 0, 0, 10, 10);
  surface.SetObjTag("Id", "Host");
  const bool added = surface.LoadFile(input, 2);
  if (!added && surface.ObjectCount(pluvane::kPage) != 1) std::abort();
  if (added) {
    surface.SetCurrentObject(pluvane::kSelection);
    surface.MoveObject(5, 5);
    surface.Arrange(1);
    surface.Undo();
  }
  const bool replaced = surface.LoadFile(input, 0);
  if (replaced != added) std::abort();  // the two modes accept the same files
  if (!replaced && surface.FindById("Host") != host) std::abort();
  if (replaced) {
    surface.SaveFile(output, pluvane::kNativeFormat, 0);
    pluvane::Surface again;
    if (!again.LoadFile(output, 0)) std::abort();  // what we write, we read
    again.PasteClipboard(surface.CopySelection(1));
  }
  return 0;
}
