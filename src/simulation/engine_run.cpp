#include "simulation/engine_run.h"

#include <cstdio>
#include <vector>

#include "foundation/settings_keys.h"
#include "foundation/errors.h"
#include "foundation/ini_profile.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/processes.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

std::string Quoted(const std::string& path) {
  return path.find(' ') == std::string::npos ? path : "\"" + path + "\"";
}

std::string MsgPath(const SimulationState& state) {
  return JoinPath(state.ModelFolder, state.ModelName + ".msg");
}

// Deletes a file of the model folder, whatever the case the engine gave its name.
void DeleteInModel(const SimulationState& state, const std::string& name) {
  const std::string found = FindFileNoCase(state.ModelFolder, name);
  if (!found.empty()) std::remove(found.c_str());
}

bool SidrelCmdStands(const SimulationState& state) {
  return !FindFileNoCase(state.ModelFolder, "sidrel.cmd").empty();
}

// Starts an engine program in the model folder, when it is there.
void RunEngine(const SimulationState& state, UserInterface& ui, const std::string& name) {
  try {
    ChangeDir(state.ModelFolder);
  } catch (const AppError& error) {
    ShowError(ui, &error, "Run" + name);
    return;
  }
  const std::string command = EngineCommand(state, name);
  if (!command.empty()) RunAndWait(ui, command, state.ModelFolder);
}

// The .err of an engine, found case-blind in the model folder.
int EngineError(const SimulationState& state, const std::string& name) {
  const std::string err = FindFileNoCase(state.ModelFolder, name + ".err");
  return err.empty() ? 0 : ReadEngineError(err);
}

void AppendEngineLog(const SimulationState& state, const std::string& name) {
  const std::string log = FindFileNoCase(state.ModelFolder, name + ".log");
  if (log.empty()) return;
  try {
    AppendFile(log, MsgPath(state));
  } catch (const AppError&) {
    // An unreadable log leaves the run's log as it is.
  }
}

void DeleteEngineFiles(const SimulationState& state, const std::string& name) {
  DeleteInModel(state, name + ".err");
  DeleteInModel(state, name + ".log");
}

std::vector<std::string> CmdWarning(const SimulationState& state, const char* file) {
  return {std::string("Pluvane a détecté l'existence du fichier '") + file +
              "' dans le répertoire",
          state.ModelFolder, "Veuillez le déplacer dans un autre répertoire.", ""};
}

}  // namespace

std::string EngineCommand(const SimulationState& state, const std::string& name) {
  std::string program = FindFileNoCase(state.AppPath, name);
  if (!program.empty() && FolderExist(program)) program.clear();
  if (program.empty()) program = FindFileNoCase(state.AppPath, name + ".exe");
  if (program.empty()) return {};
  const std::string launcher =
      Trim(IniRead(kSectionOthers, kKeyLauncher, 255, IniFilePath(state)));
  if (EqualsNoCase(CharRight(program, 4), ".exe") && !launcher.empty()) {
    return launcher + " " + Quoted(program);
  }
  return Quoted(program);
}

int ReadEngineError(const std::string& err_path) {
  std::vector<std::string> lines;
  if (!ReadTextLines(err_path, lines)) return 0;
  for (const std::string& line : lines) {
    const std::string text = Trim(line);
    if (!text.empty()) return ValInt(text);
  }
  return 0;
}

bool RunVelmar(const SimulationState& state, UserInterface& ui) {
  bool ok = true;
  const bool cmd_stands = SidrelCmdStands(state);
  for (const char* extension : {".Lim", ".Hys", ".BV"}) DeleteInModel(state, state.ModelName + extension);
  DeleteEngineFiles(state, "Velmar");
  RunEngine(state, ui, "Velmar");
  const int error = EngineError(state, "Velmar");
  std::vector<std::string> lines = {""};
  if (error >= 1) {
    ok = false;
    lines.push_back("Erreur détectée dans Velmar, génération non réussie.");
  } else if (cmd_stands) {
    // The warning names another file than the one found, as it always did.
    for (auto& line : CmdWarning(state, "runoff.cmd")) lines.push_back(line);
  } else {
    lines.push_back("Génération réussie (Velmar)");
  }
  lines.push_back("");
  AppendTextLines(MsgPath(state), lines);
  AppendEngineLog(state, "Velmar");
  return ok;
}

void RunSidrel(const SimulationState& state, UserInterface& ui) {
  const bool cmd_stands = SidrelCmdStands(state);
  DeleteInModel(state, state.ScenarioName + ".Deb");
  DeleteInModel(state, state.ScenarioName + ".Sor");
  DeleteEngineFiles(state, "Sidrel");
  RunEngine(state, ui, "Sidrel");
  const int error = EngineError(state, "Sidrel");
  std::vector<std::string> lines = {""};
  if (error >= 1) {
    lines.push_back("Erreur détectée dans Sidrel, exécution non réussie.");
  } else if (cmd_stands) {
    for (auto& line : CmdWarning(state, "sidrel.cmd")) lines.push_back(line);
  } else {
    lines.insert(lines.end(),
                 {"Exécution réussie (Sidrel).", "", "Les fichier suivants sont générés:", ""});
    for (const char* extension : {".App", ".Hys", ".Deb", ".Lim", ".Sor"}) {
      const std::string result = FindFileNoCase(state.ModelFolder, state.ModelName + extension);
      if (!result.empty()) lines.push_back(result);
    }
  }
  lines.push_back("");
  AppendTextLines(MsgPath(state), lines);
  AppendEngineLog(state, "Sidrel");
}

void ShowModelLog(const SimulationState& state, Console& console, const std::string& msg_path) {
  std::vector<std::string> lines;
  if (!FileExist(msg_path) || !ReadTextLines(msg_path, lines)) return;
  console.Debut("Génération du modèle " + state.ScenarioName);
  for (const std::string& line : lines) console.AfficheMessage(line);
  console.Fin(false);
}

void CleanModelFiles(const SimulationState& state, const std::string& msg_path, int step_count) {
  if (!FileExist(msg_path) || step_count < 1) return;
  const std::string place_nette =
      UCase(Trim(IniRead(kSectionOthers, kKeyCleanRun, 255, IniFilePath(state))));
  if (place_nette != "OUI" && place_nette != "TRUE" && place_nette != "1" && place_nette != "-1") {
    return;
  }
  std::vector<std::string> lines;
  if (!ReadTextLines(msg_path, lines)) return;
  for (int i = 4; i < 4 + step_count && i < static_cast<int>(lines.size()); ++i) {
    const std::string path = Trim(lines[i]);
    std::string folder, name, base, extension;
    SplitPath(path, folder, name, base, extension);
    if (FileExist(path) && UCase(extension) != "APP") std::remove(path.c_str());
  }
  for (const char* extension : {".err", ".log", ".msg"}) {
    const std::string stray = JoinPath(state.ModelFolder, state.ScenarioName + extension);
    if (FileExist(stray)) std::remove(stray.c_str());
  }
  // The literal "*.mst" is tested as a name: the plot scripts stay.
  const std::string scripts = JoinPath(state.ModelFolder, "*.mst");
  if (FileExist(scripts)) std::remove(scripts.c_str());
}

}  // namespace pluvane
