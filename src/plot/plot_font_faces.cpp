#include "plot/plot_font_faces.h"

#include <array>

#include "foundation/text.h"
#include "plot/plot_fonts.h"

namespace pluvane {

namespace {

constexpr const char* kSans = "DejaVu Sans";
constexpr const char* kSerif = "DejaVu Serif";
constexpr const char* kMono = "DejaVu Sans Mono";

// In the order of kPlotFonts.
constexpr std::array<const char*, kPlotFonts.size()> kFaces = {
    kSans, kSerif, kSerif, kMono, kSans, kMono, kSans, kSerif, kSerif, kSans, kMono, kSerif, kSans};

}  // namespace

std::string PlotFontFace(int index) { return kFaces[PlotFontIndex(index)]; }

std::string PlotFontFace(const std::string& name) {
  const std::string wanted = UCase(Trim(name));
  for (std::size_t i = 0; i < kPlotFonts.size(); ++i) {
    if (wanted == kPlotFonts[i]) return kFaces[i];
  }
  return name;
}

}  // namespace pluvane
