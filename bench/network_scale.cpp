// Times the network file and the generation on a town-sized network (20 000
// nodes, 25 000 collectors, 2 000 catchments with their routing, outlet,
// divider and downstream limit: 55 002 objects) and on four times that: open,
// save, generate (`pluvane-cli generate` as run in one process: start, open,
// checks, every model file) and resident memory. Each figure is taken in a
// child process of its own, so that one measure does not weigh on the next.
// The networks are built once and kept in the build folder (bench_scale/);
// delete them to build them again. Run it from the build's bin folder, or give
// the application folder (with pluvane.ini and Symboles) as its argument.
#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "bench/bench_clock.h"
#include "bench/scale_network.h"
#include "drawing/surface.h"
#include "shell/cli.h"

namespace {

namespace fs = std::filesystem;

constexpr int kCatchments = 2000;

// Resident memory now, and at its peak, in MB.
double ResidentMb() {
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line))
    if (line.rfind("VmRSS:", 0) == 0) return std::atof(line.c_str() + 6) / 1024.0;
  return 0;
}

double PeakMb() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

bool SameBytes(const fs::path& a, const fs::path& b) {
  std::ifstream fa(a, std::ios::binary), fb(b, std::ios::binary);
  std::stringstream ta, tb;
  ta << fa.rdbuf();
  tb << fb.rdbuf();
  return ta.str() == tb.str();
}

// Processor time of this process so far, in ms: steadier than the clock on a
// shared machine.
double CpuMs() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto ms = [](const timeval& t) {
    return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_usec) / 1e3;
  };
  return ms(usage.ru_utime) + ms(usage.ru_stime);
}

// Child: opens the file, then saves it beside; prints "open save rss objects
// same open-cpu save-cpu".
int MeasureFile(const fs::path& file) {
  pluvane::Surface surface;
  const double before = ResidentMb();
  double cpu = CpuMs();
  auto start = std::chrono::steady_clock::now();
  if (!surface.LoadFile(file.string(), 0)) return 1;
  const double open = Milliseconds(start);
  const double open_cpu = CpuMs() - cpu;
  const double resident = ResidentMb() - before;
  const fs::path copy = file.parent_path() / ("saved_" + file.filename().string());
  cpu = CpuMs();
  start = std::chrono::steady_clock::now();
  if (!surface.SaveFile(copy.string(), pluvane::kNativeFormat)) return 1;
  const double save = Milliseconds(start);
  const double save_cpu = CpuMs() - cpu;
  const bool same = SameBytes(file, copy);
  fs::remove(copy);
  std::printf("%.1f %.1f %.1f %d %d %.1f %.1f\n", open, save, resident,
              surface.ObjectCount(pluvane::kPage), same ? 1 : 0, open_cpu, save_cpu);
  return 0;
}

// Child: the generation as the command line runs it; prints "generate peak cpu".
int MeasureGeneration(const fs::path& file, const fs::path& app) {
  std::ostringstream out, err;
  const double cpu = CpuMs();
  const auto start = std::chrono::steady_clock::now();
  const int status = pluvane::RunCli({"generate", file.string()}, pluvane::CoreCliCommands(),
                                     app.string(), out, err);
  const double ms = Milliseconds(start);
  if (status != 0) {
    std::fprintf(stderr, "%s", err.str().c_str());
    return 1;
  }
  std::printf("%.1f %.1f %.1f\n", ms, PeakMb(), CpuMs() - cpu);
  return 0;
}

// Runs this program on one measure and reads the numbers it prints.
std::vector<double> Child(const std::string& self, const std::string& arguments) {
  std::vector<double> numbers;
  FILE* pipe = popen(("\"" + self + "\" " + arguments).c_str(), "r");
  if (!pipe) return numbers;
  double value = 0;
  while (std::fscanf(pipe, "%lf", &value) == 1) numbers.push_back(value);
  pclose(pipe);
  return numbers;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 3 && std::string(argv[1]) == "--file") return MeasureFile(argv[2]);
  if (argc == 4 && std::string(argv[1]) == "--generate") return MeasureGeneration(argv[2], argv[3]);
  const std::string self = fs::absolute(argv[0]).string();
  const fs::path programs = argc > 1 ? fs::path(argv[1]) : fs::path(self).parent_path();
  const fs::path work = fs::path(PLUVANE_BENCH_OUT) / "bench_scale";
  fs::create_directories(work / "app");
  // An application folder of its own, so that the recent files stay out of the build's.
  fs::copy_file(programs / "pluvane.ini", work / "app" / "pluvane.ini",
                fs::copy_options::overwrite_existing);
  fs::copy(programs / "Symboles", work / "app" / "Symboles",
           fs::copy_options::recursive | fs::copy_options::overwrite_existing);
  std::vector<double> first;
  for (int scale : {1, 4}) {
    const fs::path network = work / ("reseau" + std::to_string(scale) + ".mtf");
    if (!fs::exists(network)) {
      pluvane::Surface surface;
      scale_bench::BuildScaleNetwork(surface, scale, kCatchments);
      if (!surface.SaveFile(network.string(), pluvane::kNativeFormat)) {
        std::printf("cannot write %s\n", network.string().c_str());
        return 1;
      }
    }
    const auto file = Child(self, "--file \"" + network.string() + "\"");
    const auto generation =
        Child(self, "--generate \"" + network.string() + "\" \"" + (work / "app").string() + "\"");
    if (file.size() != 7 || generation.size() != 3) {
      std::printf("%dx: a measure failed\n", scale);
      return 1;
    }
    const std::vector<double> figures = {file[0], file[5],       file[1], file[6],
                                         generation[0], generation[2], file[2], generation[1]};
    if (scale == 1) first = figures;
    std::printf("%dx: %.0f objects, %.1f MB%s\n", scale, file[3],
                static_cast<double>(fs::file_size(network)) / 1e6,
                file[4] == 1 ? "" : "  ** the saved file differs **");
    const char* names[] = {"open",     "  processor time",      "save",
                           "  processor time",      "generate", "  processor time",
                           "resident after open",   "peak of the generation"};
    const char* units[] = {"ms", "ms", "ms", "ms", "ms", "ms", "MB", "MB"};
    for (std::size_t i = 0; i < figures.size(); ++i) {
      std::printf("  %-24s %8.0f %s", names[i], figures[i], units[i]);
      if (scale != 1) std::printf("  (%.2f x 1x)", figures[i] / first[i]);
      if (i == 6) std::printf("  (%.0f bytes per object)", figures[i] * 1048576.0 / file[3]);
      std::printf("\n");
    }
  }
  return 0;
}
