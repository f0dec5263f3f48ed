#include "shell/cli_obj_alpha.h"

#include <cctype>

#include "exchange/obj_alpha_export.h"
#include "foundation/text.h"
#include "shell/cli_network.h"
#include "shell/cli_options.h"

namespace pluvane {

namespace {

// A whole number, as the type box takes it before its ":".
bool IsWholeNumber(const std::string& text) {
  if (text.empty()) return false;
  for (char c : text) {
    if (!std::isdigit(static_cast<unsigned char>(c))) return false;
  }
  return true;
}

}  // namespace

int CopyRecordsCommand(const std::vector<std::string>& args, const std::string& app_path,
                       std::ostream& out, ScriptedUi& ui) {
  CliOptions words;
  if (!words.Parse(args, {{{"--kind"}, true, false}}, 2, 2)) return 2;
  const std::string kind = Trim(words.Value("--kind"));
  if (!IsWholeNumber(kind)) return 2;
  CliNetwork network(ui);
  if (!network.Open(app_path, words.Positional()[0])) return 1;
  const ObjAlphaResult result =
      ExportObjAlpha(network.surface, network.state(), ui, kind + ":", words.Positional()[1]);
  switch (result.outcome) {
    case ObjAlphaResult::kDone:
      out << ui.Statuses().back() << "\n";
      return 0;
    case ObjAlphaResult::kNothing:
      // The form ends here without a word; the command line says why.
      ui.ShowMessage("aucun objet de type " + kind + " à copier", "pluvane-cli",
                     MessageIcon::kExclamation);
      return 1;
    default:
      return 1;
  }
}

}  // namespace pluvane
