#include "shell/cli_rain.h"

#include "foundation/text.h"
#include "network/persistence.h"
#include "rain/rain_import.h"
#include "shell/cli_network.h"
#include "shell/cli_options.h"

namespace pluvane {

int ImportRainCommand(const std::vector<std::string>& args, const std::string& app_path,
                      std::ostream& out, ScriptedUi& ui) {
  CliOptions words;
  if (!words.Parse(args, {{{"--key"}, true, false}, {{"-o", "--output"}, true, true}}, 2, 2)) {
    return 2;
  }
  const std::string key = UCase(Trim(words.Value("--key")));
  if (ImportedKind(key) == 0 || !words.Has("-o")) return 2;
  CliNetwork network(ui);
  if (!network.Open(app_path, words.Positional()[0])) return 1;
  std::string status;
  const std::size_t statuses = ui.Statuses().size();
  const RainImportResult result =
      ImportRainFile(network.surface, network.state(), ui, key, words.Positional()[1]);
  if (ui.Statuses().size() > statuses) status = ui.Statuses().back();
  NetworkSession session = network.application.session();
  if (!SaveNetwork(session, words.Value("-o"))) return 1;
  if (!status.empty()) out << status << "\n";
  return result.refused ? 1 : 0;
}

}  // namespace pluvane
