// make_examples: writes the example networks shipped with Pluvane, and large
// generated networks for benchmarks.
//
//   make_examples [--symbols DIR] OUT.mtf            the demonstration network
//   make_examples [--symbols DIR] --large N OUT.mtf  about N nodes, for benchmarks
//
// The shipped example is made with `make_examples data/Exemples/Demo.mtf` from
// the source folder. Symbols come from Symboles/ beside the program by default.
#include <clocale>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "foundation/numbers.h"
#include "foundation/scripted_ui.h"
#include "shell/app_state.h"
#include "tools/network_builder.h"

namespace {

int Usage() {
  std::cerr << "usage: make_examples [--symbols DIR] OUT.mtf\n"
               "       make_examples [--symbols DIR] --large N OUT.mtf\n";
  return 2;
}

std::string ProgramFolder(const char* argv0) {
  std::error_code error;
  std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) self = std::filesystem::absolute(argv0);
  return self.parent_path().string();
}

}  // namespace

int main(int argc, char** argv) {
  std::setlocale(LC_NUMERIC, "C");
  std::vector<std::string> args(argv + 1, argv + argc);
  std::string symbols = (std::filesystem::path(ProgramFolder(argv[0])) / "Symboles").string();
  std::string out;
  int large = 0;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--symbols" && i + 1 < args.size()) {
      symbols = args[++i];
    } else if (args[i] == "--large" && i + 1 < args.size()) {
      large = pluvane::ValLong(args[++i]);
      if (large < 2) return Usage();
    } else if (out.empty() && args[i].rfind("-", 0) != 0) {
      out = args[i];
    } else {
      return Usage();
    }
  }
  if (out.empty()) return Usage();

  pluvane::ScriptedUi ui;
  ui.echo = [](const std::string& line) { std::cerr << line << "\n"; };
  pluvane::Surface surface;
  pluvane::AppState state;
  const std::int32_t size =
      large > 0 ? pluvane::LargeNetworkLogicSize(large) : pluvane::kBuilderLogicSize;
  pluvane::NetworkBuilder builder(surface, state, ui, symbols, size);
  if (large > 0) {
    const pluvane::LargeNetworkCounts counts = pluvane::BuildLargeNetwork(builder, large);
    if (counts.nodes == 0) return 1;
    std::cout << counts.nodes << " noeuds, " << counts.collectors << " collecteurs, "
              << counts.others << " autres éléments\n";
  } else if (!pluvane::BuildDemoNetwork(builder)) {
    return 1;
  }
  if (!builder.Save(out)) return 1;
  std::cout << out << "\n";
  return 0;
}
