// Times a model generation as `pluvane-cli generate` runs it (start, open the
// network, checks, every model file) on networks of 20 000 nodes, 25 000
// collectors and 5 000 other elements, then twice and four times that size.
// Run it from the build's bin folder, or give the application folder (with
// pluvane.ini and Symboles) as its argument.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>

#include "bench/scale_network.h"
#include "bench_clock.h"
#include "drawing/surface.h"
#include "shell/cli.h"

namespace {

namespace fs = std::filesystem;
using pluvane::Surface;

}  // namespace

int main(int argc, char** argv) {
  const fs::path programs = argc > 1 ? fs::path(argv[1]) : fs::absolute(argv[0]).parent_path();
  const fs::path work = fs::temp_directory_path() / "pluvane_bench_generation";
  fs::remove_all(work);
  fs::create_directories(work / "app");
  // An application folder of its own, so that the recent files stay out of the build's.
  fs::copy_file(programs / "pluvane.ini", work / "app" / "pluvane.ini");
  fs::copy(programs / "Symboles", work / "app" / "Symboles", fs::copy_options::recursive);
  double first = 0;
  for (int scale : {1, 2, 4}) {
    const std::string network = (work / ("reseau" + std::to_string(scale) + ".mtf")).string();
    {
      Surface surface;
      scale_bench::BuildScaleNetwork(surface, scale);
      surface.SaveFile(network, pluvane::kNativeFormat);
    }
    std::ostringstream out, err;
    const auto start = std::chrono::steady_clock::now();
    const int status = pluvane::RunCli({"generate", network}, pluvane::CoreCliCommands(),
                                        (work / "app").string(), out, err);
    const double ms = Milliseconds(start);
    if (scale == 1) first = ms;
    std::printf("%dx (%d nodes, %d collectors, %d others): generate %s in %.0f ms (%.2f x 1x)\n",
                scale, 20000 * scale, 25000 * scale, 5000 * scale, status == 0 ? "ok" : "FAILED",
                ms, ms / first);
    if (status != 0) std::printf("%s", err.str().c_str());
  }
  // PLUVANE_BENCH_KEEP keeps the networks for a closer look (perf, pluvane-cli).
  if (!std::getenv("PLUVANE_BENCH_KEEP")) fs::remove_all(work);
  return 0;
}
