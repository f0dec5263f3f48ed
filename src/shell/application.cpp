#include "shell/application.h"

#include <clocale>
#include <cstdio>
#include <filesystem>

#include "foundation/settings_keys.h"
#include "foundation/errors.h"
#include "foundation/ini_profile.h"
#include "foundation/line_parsing.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/georeferencing.h"
#include "network/persistence.h"
#include "network/view_zoom.h"
#include "shell/configuration.h"
#include "shell/installation.h"

namespace pluvane {

namespace {

const char kTitle[] = "Pluvane";

}  // namespace

Application::Application(Surface& surface, UserInterface& ui, Use use)
    : surface_(surface), ui_(ui), use_(use) {}

bool Application::Load(const std::string& app_path, const std::string& command_line) {
  state_.CommandLine = Trim(command_line);
  std::error_code error;
  start_dir_ = std::filesystem::current_path(error).string();
  state_.AppPath = app_path;
  state_.WorkDir = app_path;
  const Installation installation = LocateInstallation(app_path, use_ == Use::kDesktop);
  state_.DataDir = installation.data_dir;
  state_.IniFile = installation.ini_file;
  const std::string ini = IniFilePath(state_);
  if (!FileExist(ini)) {
    ui_.ShowMessage("Ce fichier de paramétrage est requis !\r\n\r\n" + ini, kTitle,
                    MessageIcon::kExclamation);
    return false;
  }
  // Every number of the program's files uses the point: the process keeps the
  // C number format while it runs, and gives the user's back at the end.
  const char* numeric = std::setlocale(LC_NUMERIC, nullptr);
  state_.SavedNumericLocale = numeric ? numeric : "C";
  state_.SavedDecimal = std::localeconv()->decimal_point;
  std::setlocale(LC_NUMERIC, "C");

  if (!LoadConfiguration(state_, ui_, resources_)) return false;
  // A list bound to no file lives in memory only.
  if (use_ == Use::kDesktop) recent_.SetIniFile(ini);

  surface_.SetCurrentObject(kPage);
  surface_.SetLogicLeft(0);
  surface_.SetLogicTop(0);
  surface_.SetScale(0, 0, state_.LogicWidth, state_.LogicHeight, 4096);
  surface_.SetPageColor(state_.ScreenBackColor);
  surface_.SetBackColor1(state_.ScreenBackColor);
  surface_.SetBackColor2(state_.ScreenBackColor);
  surface_.Refresh();
  DefaultCalibrationFromThirds(state_.calibration, state_.LogicWidth, state_.LogicHeight);
  state_.ElementCounters.fill(0);
  state_.NetworkFile.clear();
  state_.NodeCount = 1;
  ui_.ShowStatus("");
  surface_.SetCurrentObject(kDefaults);
  surface_.SetLinkEndMarker(0, 0);
  surface_.SetLinkEndMarker(1, 0);
  surface_.SetCurrentObject(kPage);
  return true;
}

std::string Application::HalfAsText() {
  char text[32];
  std::snprintf(text, sizeof text, "%g", 1.0 / 2);
  return text;
}

bool Application::DecimalTest(const std::string& half_as_text) {
  // The first character is the one looked at, as it always was.
  const std::string text = Trim(half_as_text);
  if (!text.empty() && text[0] == ',') {
    ui_.ShowMessage("Attention le séparateur décimal de votre système doit être un point",
                    "Nombres décimaux valides", MessageIcon::kExclamation);
    return false;
  }
  return true;
}

Application::Activation Application::FirstActivation() {
  if (activated_) return Activation::kReady;
  activated_ = true;
  if (!DecimalTest(HalfAsText())) return Activation::kEndProcess;
  const std::string ini = IniFilePath(state_);
  if (ProfileBoolean(IniRead(kSectionOthers, kKeyFlashScreen, 10, ini)) && show_about) show_about();

  const double w = state_.LogicWidth, h = state_.LogicHeight;
  ZoomToRect(surface_, state_, w / 4, h / 4, 3 * w / 4, 3 * h / 4);
  state_.ZoomFactor = 1;
  DefaultCalibrationFromCorners(state_.calibration, state_.LogicWidth, state_.LogicHeight);
  NetworkSession s = session();
  ResetNetwork(s);
  surface_.SetBackgroundScale(0.8);
  recent_.Load();
  if (!state_.CommandLine.empty() && CommandLineStart() == -1) {
    ui_.ShowMessage("Fichier MTF inconnu", kTitle, MessageIcon::kExclamation);
    return Activation::kCloseWindow;
  }
  return Activation::kReady;
}

int Application::CommandLineStart() {
  std::vector<std::string> tokens;
  if (SplitLine(ui_, state_.CommandLine, tokens, " ") < 1) return -1;
  // The folder changes below: a relative path is made whole first, against
  // the folder the program was started from.
  const std::string file = AbsolutePath(tokens[0], start_dir_);
  try {
    ChangeDir(DirOf(file));
  } catch (const AppError&) {
    return -1;
  }
  minimised_ = tokens.size() >= 2 && tokens[1] == "0";
  if (show_window) show_window();
  std::string folder, name, base, extension;
  SplitPath(file, folder, name, base, extension);
  if (UCase(extension) != "MTF") return -1;
  NetworkSession s = session();
  OpenNetwork(s, true, file);
  return tokens.size() >= 3 ? ValLong(tokens[2]) : 0;
}

void Application::Unload(int tool_band_position) {
  if (!Trim(state_.NetworkFile).empty() && !closed_by_menu_) {
    if (ui_.AskYesNo("Voulez-vous sauvegarder le réseau en cours ?",
                     "fichier en cours : " + state_.NetworkFile, MessageIcon::kQuestion, true)) {
      NetworkSession s = session();
      SaveNetwork(s, state_.NetworkFile);
    }
  }
  const std::string ini = IniFilePath(state_);
  IniWrite(kSectionParameters, kKeyToolBandPosition, std::to_string(tool_band_position), ini);
  if (!state_.SavedNumericLocale.empty()) {
    std::setlocale(LC_NUMERIC, state_.SavedNumericLocale.c_str());
  }
  recent_.WriteCount();
}

bool Application::QuitCommand() {
  if (surface_.ObjectCount(kPage) >= 2) {
    NetworkSession s = session();
    const int answer = AskSaveCurrent(s, state_.NetworkFile);
    if (answer == kAnswerCancel) return false;
    if (answer == kAnswerYes) SaveNetwork(s, state_.NetworkFile);
  }
  vbFileKill(ui_, state_.WorkDir, "*.tmp");
  vbFileKill(ui_, state_.WorkDir, "Vistrel.mst");
  closed_by_menu_ = true;
  return true;
}

}  // namespace pluvane
