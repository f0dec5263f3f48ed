#include "results/result_access.h"

#include <filesystem>
#include <system_error>

#include "foundation/errors.h"
#include "foundation/paths.h"
#include "foundation/processes.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

// Each entry and the result that enables it.
const std::pair<const char*, const char*> kEntries[] = {
    {"mnuExploit_ResHys", ".Hys"}, {"mnuExploit_ResDeb", ".Deb"},
    {"mnuExploit_ResLim", ".Lim"}, {"mnuExploit_ResBV", ".BV"},
    {"mnuExploit_ResReso", ".Sor"}, {"mnuExploit_ResCarto", ".Sor"},
};

// The test of the old program: one of the two names known is enough.
bool NamesKnown(const SimulationState& state) {
  return !state.ScenarioName.empty() || !state.NetworkBase.empty();
}

void Remove(const std::string& path) {
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
}

void ShowCurves(const SimulationState& state, UserInterface& ui, ResultViews& views,
                const std::string& file, const std::string& title) {
  views.viewer.page_title = title;
  ViewCurveFile(ui, views.viewer, file, state.WorkDir, state.WorkDir, views.show_chooser,
                views.show_viewer);
}

void EditResult(const SimulationState& state, UserInterface& ui, const std::string& extension) {
  if (!NamesKnown(state)) return;
  const std::string path = ResultPath(state, extension);
  if (!FileExist(path)) {
    ui.ShowMessage("Le fichier " + state.ScenarioName + "_" + state.NetworkBase + extension +
                       "  est introuvable ou\r\nn'a pas encore été généré dans\r\n" +
                       state.WorkDir,
                   "", MessageIcon::kNone);
    return;
  }
  EditFile(ui, path, state.AppPath);
}

}  // namespace

std::string ResultPath(const SimulationState& state, const std::string& extension) {
  return JoinPath(state.WorkDir, state.ScenarioName + "_" + state.NetworkBase + extension);
}

ResultMenuStates mnuExploitation(SimulationState& state) {
  ResultMenuStates states;
  const bool open = !Trim(state.NetworkFile).empty();
  if (open) {
    std::string folder, name, base, extension;
    SplitPath(state.NetworkFile, folder, name, base, extension);
    const std::string scenario_folder = JoinPath(folder, state.ScenarioName);
    if (!state.ScenarioName.empty() && !FolderExist(scenario_folder)) MakeFolder(scenario_folder);
    state.WorkDir = scenario_folder;
    state.NetworkBase = base;
  }
  for (const auto& [entry, result] : kEntries) {
    states.emplace_back(entry, open && !state.ScenarioName.empty() &&
                                   FileExist(ResultPath(state, result)));
  }
  return states;
}

void mnuExploit_ResDeb(const SimulationState& state, UserInterface& ui, ResultViews& views) {
  if (!NamesKnown(state)) return;
  const std::string copy = JoinPath(state.WorkDir, "crb.Deb");
  Remove(copy);
  std::error_code ignored;
  std::filesystem::copy_file(ResultPath(state, ".Deb"), copy, ignored);
  ShowCurves(state, ui, views, copy, "Hydrogramme de routage");
}

void mnuExploit_ResHys(const SimulationState& state, UserInterface& ui, ResultViews& views) {
  if (!NamesKnown(state)) return;
  const std::string joined = JoinPath(state.WorkDir, "crb.Hys");
  Remove(joined);
  try {
    std::error_code ignored;
    std::filesystem::copy_file(ResultPath(state, ".App"), joined, ignored);
    AppendFile(ResultPath(state, ".Hys"), joined);
  } catch (const AppError& error) {
    ShowError(ui, &error, "mnuExploit_ResHys");
  }
  ShowCurves(state, ui, views, joined, "Hydrogramme d'apport");
  Remove(joined);
}

void mnuExploit_ResLim(const SimulationState& state, UserInterface& ui, ResultViews& views) {
  if (!NamesKnown(state)) return;
  ShowCurves(state, ui, views, ResultPath(state, ".Lim"), " Sortie de courbe LIM");
}

void mnuExploit_ResBV(const SimulationState& state, UserInterface& ui) { EditResult(state, ui, ".BV"); }

void mnuExploit_ResReso(const SimulationState& state, UserInterface& ui) {
  EditResult(state, ui, ".Sor");
}

}  // namespace pluvane
