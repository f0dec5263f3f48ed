#include "foundation/dialogs.h"

#include "foundation/paths.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

// A name with a wildcard is a filter the user typed, not a file.
bool IsPlainName(const std::string& name) {
  return !name.empty() && name.find_first_of("*?") == std::string::npos;
}

}  // namespace

std::string AskOpenFile(UserInterface& ui, const std::string& title, const std::string& filter,
                        const std::string& default_ext, const std::string& initial_name) {
  std::string name = Trim(ui.AskOpenFile(title, filter, default_ext, initial_name));
  if (!IsPlainName(name)) return {};
  if (!FileExist(name)) {
    ui.ShowMessage("Le fic sélectionné n'existe pas, recommencer svp...", "", MessageIcon::kNone);
    return {};
  }
  return name;
}

std::string AskSaveFile(UserInterface& ui, const std::string& title, const std::string& filter,
                        const std::string& default_ext, const std::string& initial_name) {
  std::string name = Trim(ui.AskSaveFile(title, filter, default_ext, initial_name));
  return IsPlainName(name) ? name : std::string();
}

std::string BrowseFolder(UserInterface& ui, const std::string& initial_folder,
                         const std::string& title) {
  return Trim(ui.BrowseFolder(initial_folder, title));
}

std::string AskText(UserInterface& ui, const std::string& prompt, const std::string& title,
                    const std::string& default_text) {
  auto answer = ui.AskText(prompt, title, default_text);
  return answer ? Trim(*answer) : std::string();
}

bool AskConfirm(UserInterface& ui, const std::string& message, const std::string& title) {
  return ui.AskYesNo(message, title, MessageIcon::kQuestion);
}

}  // namespace pluvane
