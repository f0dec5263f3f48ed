#include "network/persistence.h"

#include <algorithm>
#include <cerrno>
#include <cmath>

#include "drawing/object_tags.h"
#include "foundation/settings_keys.h"
#include "foundation/dialogs.h"
#include "foundation/errors.h"
#include "foundation/fixed_width.h"
#include "foundation/ini_profile.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/hidden_record.h"
#include "network/load_calibration.h"
#include "network/network_parameters.h"
#include "drawing/surface_helpers.h"
#include "network/view_zoom.h"
#include "network/scenario_mode.h"

namespace pluvane {

namespace {

const char kProductTitle[] = "Pluvane";
const char kNetworkFilter[] = "Fichier Mtf|*.mtf";

void ShowCaption(NetworkSession& s) {
  s.ui.ShowPanel("caption", s.state.NetworkFile.empty() ? kProductTitle : s.state.NetworkFile);
}

// Where the open dialog starts: the folder of the most recent file, else the
// examples shipped with the program, else the program's folder.
std::string OpenDialogStart(const NetworkSession& s) {
  if (!s.recent.Captions().empty() && FileExist(s.recent.Captions().front())) {
    return s.recent.Captions().front();
  }
  const std::string examples = JoinPath(DataFolder(s.state), "Exemples");
  if (FolderExist(examples)) return JoinPath(examples, "*.mtf");
  return s.state.AppPath;
}

bool Save(NetworkSession& s, const std::string& path) {
  errno = 0;
  if (s.surface.SaveFile(path, kNativeFormat, 0)) return true;
  const int error = errno;
  s.ui.ShowMessage("Erreur de sauvegarde : " +
                       (error != 0 ? SystemErrorText(error) : "écriture impossible de " + path),
                   kProductTitle, MessageIcon::kCritical);
  return false;
}

// Applies the saved view, or the whole network when nothing stands in it; a
// network without a saved view is never cut at the edge of the present one.
void RestoreView(NetworkSession& s, bool saved, double left, double top) {
  Surface& surface = s.surface;
  if (!saved) {
    // The present zoom stays as long as it shows the whole network.
    ShowWholeNetwork(surface, s.state);
    return;
  }
  surface.SetAutoScale(0);
  surface.SetViewLeft(left);
  surface.SetViewTop(top);
  surface.SetViewWidth(s.state.LogicWidth * s.state.ZoomFactor);
  surface.SetViewHeight(s.state.LogicHeight * s.state.ZoomFactor);
  const int found = surface.SelectInRect(
      ToLong(surface.ViewLeft()), ToLong(surface.ViewTop()),
      ToLong(surface.ViewLeft() + surface.ViewWidth()),
      ToLong(surface.ViewTop() + surface.ViewHeight()), 8192);
  surface.DeselectAll();
  if (found == 0) ZoomToBounds(surface, s.state);
}

}  // namespace

bool IsNetworkPath(const std::string& path) {
  return UCase(path).find(".MTF") != std::string::npos;
}

int AskSaveCurrent(NetworkSession& s, const std::string& path) {
  if (s.surface.ObjectCount(kPage) < 1) return 0;
  const Answer answer = s.ui.AskYesNoCancel(
      "Voulez-vous sauvegarder le réseau en cours ?\r" + (path.empty() ? std::string("?") : path),
      "Sauvegarde", MessageIcon::kQuestion);
  s.ui.ShowStatus("");
  switch (answer) {
    case Answer::kYes: return kAnswerYes;
    case Answer::kNo: return kAnswerNo;
    default: return kAnswerCancel;
  }
}

void ResetNetwork(NetworkSession& s) {
  s.surface.ClearDrawing();
  s.surface.SetBackgroundPicture("");
  s.ui.ShowStatus("");
  s.state.NetworkFile.clear();
  s.state.CurrentMode.clear();
  s.state.ElementCounters.fill(0);
  s.state.CoordinateSystem.clear();
  CreateBlankParamReseau(s.surface, s.state);
  s.state.NodeCount = 1;
  ShowCaption(s);
}

bool CloseNetwork(NetworkSession& s) {
  const int answer = AskSaveCurrent(s, s.state.NetworkFile);
  if (answer == kAnswerCancel) return false;
  if (answer == kAnswerYes && !SaveNetwork(s, s.state.NetworkFile)) return false;
  ResetNetwork(s);
  return true;
}

bool OpenNetwork(NetworkSession& s, bool direct, const std::string& path) {
  std::string file = path;
  if (!direct) {
    file = AskOpenFile(s.ui, "Charger un réseau Pluvane existant", kNetworkFilter, "Mtf",
                       OpenDialogStart(s));
    if (file.empty()) return false;
  }
  if (!IsNetworkPath(file)) {
    s.ui.ShowMessage(file + " n'est pas de type Pluvane !!!", kProductTitle,
                     MessageIcon::kExclamation);
    return false;
  }
  if (FileExist(s.state.NetworkFile)) {
    const int answer = AskSaveCurrent(s, s.state.NetworkFile);
    if (answer == kAnswerCancel) return false;
    if (answer == kAnswerYes) SaveNetwork(s, s.state.NetworkFile);
  }
  // The drawing is replaced only by a file that reads: a bad one leaves it as it was.
  if (!s.surface.LoadFile(file, 0)) {
    s.ui.ShowMessage("Le fichier " + file + " ne peut pas être lu comme un réseau Pluvane.",
                     kProductTitle, MessageIcon::kExclamation);
    return false;
  }
  s.surface.SetBackgroundPicture("");
  s.state.CurrentMode.clear();
  s.state.NetworkFile = file;
  s.state.WorkDir = DirOf(file);
  s.recent.Add(file);

  s.state.ScenarioName.clear();
  s.ui.ShowPanel("sbrSCN", "");
  // Through the index of kinds, which the bounds of the network need next.
  const std::vector<int> current = s.surface.FindAllByTag(kTagIName, kINameCurrentScenario);
  if (!current.empty() && current.front() > 10) {
    s.surface.SetCurrentObject(current.front());
    s.state.ScenarioName = Trim(s.surface.ObjTag(kTagId));
    s.ui.ShowPanel("sbrSCN",
                   s.state.ScenarioName + ScenarioModeText(s.surface, s.state.ScenarioName));
  }
  ShowCaption(s);
  RestoreNetworkParameters(s);
  return true;
}

void RestoreNetworkParameters(NetworkSession& s) {
  Surface& surface = s.surface;
  NetworkState& state = s.state;
  state.NodeCount = CountByName(surface, kINameNode);
  // One walk for all kinds: a walk per kind made opening a large network slow.
  const std::array<int, 100> counters = MaxIdNumbers(surface);
  for (int i = 1; i <= 99; ++i) {
    state.ElementCounters[i] = counters[i];
    s.ui.ShowProgress(i * 100 / 99);
  }
  s.ui.ShowProgress(0);
  state.BackgroundFactor = -1;
  LoadCalibration(surface, state, s.ui);
  ReadParamReseau(surface, state);
  double left = surface.ViewLeft(), top = surface.ViewTop();
  const bool saved_view = ReadZoomFactors(surface, state, left, top);

  // Library records and the parameters stay out of sight.
  const int saved = surface.CurrentObject();
  // Found through the indexes of kinds and Ids rather than by a walk of the drawing.
  std::vector<int> hidden = surface.FindAllWhere(kTagIName, [](std::string_view i_name) {
    const double kind = Val(i_name);
    return kind >= kINameReach && kind <= 999;
  });
  for (int n : surface.FindAllByTag(kTagId, kParamReseau)) hidden.push_back(n);
  std::sort(hidden.begin(), hidden.end());
  hidden.erase(std::unique(hidden.begin(), hidden.end()), hidden.end());
  for (int n : hidden) HideRecord(surface, state, n);
  surface.SetCurrentObject(saved);

  RestoreView(s, saved_view, left, top);
  surface.SetScale(0, 0, state.LogicWidth, state.LogicHeight, 4096);
}

bool SaveNetwork(NetworkSession& s, const std::string& path) {
  WriteParameterRecords(s.surface, s.state);
  s.ui.PumpEvents();
  if (Trim(path).empty()) return SaveNetworkAs(s);
  if (!Save(s, path)) return false;
  s.state.NetworkFile = path;
  if (FileExist(path)) ShowCaption(s);
  return true;
}

bool mnuFile_Save(NetworkSession& s) {
  if (s.state.NetworkFile.empty()) return SaveNetworkAs(s);
  return SaveNetwork(s, s.state.NetworkFile);
}

bool SaveNetworkAs(NetworkSession& s) {
  if (s.surface.ObjectCount(kPage) < 1) return false;
  const std::string file = AskSaveFile(s.ui, "Sauvegarder le dessin en fichier",
                                       "Fichier Mtf|*.mtf|Autre fichier|*.*", "Mtf",
                                       s.state.NetworkFile);
  if (file.empty()) return false;
  s.state.WorkDir = DirOf(file);
  std::string folder, name, base, extension;
  SplitPath(file, folder, name, base, extension);
  const std::string ext = UCase(extension);
  const bool native = ext.empty() || ext == "MTF" || ext == "MDP";
  if (native) {
    if (!Save(s, file)) return false;
  } else if (!s.ui.SaveDrawingPicture(file)) {
    s.ui.ShowMessage("Erreur de sauvegarde : format d'image non reconnu (" + extension + ")",
                     kProductTitle, MessageIcon::kCritical);
    return false;
  }
  s.state.NetworkFile = file;
  ShowCaption(s);
  const std::string ini = IniFilePath(s.state);
  IniWrite(kSectionOthers, kKeyZoomFactor, Trim(FormatFixed(s.state.ZoomFactor, 15, 8)), ini);
  IniWrite(kSectionOthers, kKeyZoomLeft, NumToText(std::round(s.surface.ViewLeft())), ini);
  IniWrite(kSectionOthers, kKeyZoomTop, NumToText(std::round(s.surface.ViewTop())), ini);
  IniWrite(kSectionParameters, kKeyResolution, NumToText(s.state.LogicWidth), ini);
  // The records are made after the file was written: the file holds them as
  // they stood at the previous save, and the next Save writes these.
  WriteParameterRecords(s.surface, s.state);
  return true;
}

bool mnuFile_Load(NetworkSession& s) {
  const std::string file = AskOpenFile(s.ui, "Charger un réseau Pluvane existant", kNetworkFilter,
                                       "Mtf", OpenDialogStart(s));
  if (file.empty()) return false;
  return LoadBesideNetwork(s, file);
}

bool LoadBesideNetwork(NetworkSession& s, const std::string& file) {
  if (s.surface.LoadFile(file, 2)) return true;
  s.ui.ShowMessage("Le fichier " + file + " ne peut pas être lu comme un réseau Pluvane.",
                   kProductTitle, MessageIcon::kExclamation);
  return false;
}

bool mnuRUF(NetworkSession& s, int index) {
  if (index < 1 || index > s.recent.Count()) return false;
  const std::string path = Trim(s.recent.Captions()[index - 1]);
  if (path.empty()) return false;
  s.recent.Add(path);
  if (!FileExist(path)) {
    s.ui.ShowMessage("Fichier introuvable:\r" + path, kProductTitle, MessageIcon::kExclamation);
    return false;
  }
  std::string folder, name, base, extension;
  SplitPath(path, folder, name, base, extension);
  if (UCase(extension) != "MTF") {
    s.ui.ShowMessage(path + " : type de fichier inconnu !", kProductTitle,
                     MessageIcon::kExclamation);
    return false;
  }
  return OpenNetwork(s, true, path);
}

}  // namespace pluvane
