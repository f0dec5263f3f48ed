#include "shell/cli_check.h"

#include <optional>

#include "network/consistency_checks.h"
#include "shell/cli_network.h"
#include "shell/cli_options.h"

namespace pluvane {

namespace {

using Check = std::optional<CheckReport> (*)(Surface&, UserInterface&);

struct NamedCheck {
  const char* option;
  Check run;
};

constexpr NamedCheck kChecks[] = {
    {"--forbidden", CheckForbiddenValues},
    {"--doublets", CheckDoublets},
    {"--orphans", CheckOrphans},
};

}  // namespace

int CheckCommand(const std::vector<std::string>& args, const std::string& app_path,
                 std::ostream& out, ScriptedUi& ui) {
  CliOptions words;
  std::vector<CliOption> options;
  for (const NamedCheck& check : kChecks) options.push_back({{check.option}, false, false});
  if (!words.Parse(args, options, 1, 1)) return 2;
  bool any = false;
  for (const NamedCheck& check : kChecks) any = any || words.Has(check.option);
  CliNetwork network(ui);
  if (!network.Open(app_path, words.Positional()[0])) return 1;
  for (const NamedCheck& check : kChecks) {
    if (any && !words.Has(check.option)) continue;
    const std::optional<CheckReport> report = check.run(network.surface, ui);
    if (!report) return 1;
    for (const std::string& line : report->lines) out << line << "\n";
  }
  return 0;
}

}  // namespace pluvane
