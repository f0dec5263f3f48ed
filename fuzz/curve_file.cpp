// Fuzzes the curve file readers: the input is a curve file; the first curve
// name found in it (or the input's first line) is read, extracted and scaled.
#include "plot/curve_file.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "foundation/scripted_ui.h"
#include "foundation/text.h"
#include "fuzz_support.h"
#include "plot/auto_scale.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::filesystem::path folder = pluvane_fuzz::Folder("curve");
  const std::string file = (folder / "in.crb").string();
  const std::string out = (folder / "out.crb").string();
  std::filesystem::remove(out);
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  {
    std::ofstream stream(file, std::ios::binary);
    stream << bytes;
  }
  int position = 0;
  std::string name = pluvane::QuotedPart(bytes.substr(0, bytes.find('\n')), position);

  pluvane::ScriptedUi ui;
  std::vector<double> x, y, z, t;
  int count = 0, status = 0;
  pluvane::ReadCurve(ui, file, name, x, y, count, status);
  if (count < 0 || x.size() != static_cast<std::size_t>(count) || y.size() != x.size()) {
    __builtin_trap();
  }
  if (status != pluvane::kCurveFound && status != pluvane::kCurveNotFound) __builtin_trap();
  pluvane::ReadCurve(ui, file, name, x, y, z, t, count, status);
  if (t.size() != static_cast<std::size_t>(count)) __builtin_trap();
  double x_min = 0, x_max = 0, y_min = 0, y_max = 0;
  pluvane::CurveMinMax(ui, file, x_min, x_max, y_min, y_max);
  const int result = pluvane::XtCourbe(ui, name, file, out);
  if (result != 0 && result != 2) __builtin_trap();
  pluvane::CurveFormatCheck(ui, file);
  pluvane::AutoScale scale;
  pluvane::ComputeAutoScale(ui, file, scale);
  return 0;
}
