#include "shell/configuration.h"

#include "foundation/ini_profile.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

bool HasSeparator(const std::string& path) {
  return path.find('\\') != std::string::npos || path.find('/') != std::string::npos;
}

}  // namespace

std::string ReadProfileValue(const std::string& section, const std::string& key,
                             int buffer_size, const std::string& file) {
  return IniRead(section, key, buffer_size, file);
}

bool WriteProfileValue(const std::string& section, const std::string& key,
                       const std::string& value, const std::string& file) {
  return IniWrite(section, key, value, file);
}

bool WriteProfileValue(const std::string& section, const std::string& key, double value,
                       const std::string& file) {
  return IniWrite(section, key, NumToText(value), file);
}

std::string FolderUnderApp(const std::string& app_path, const std::string& value,
                           const std::string& default_name) {
  std::string name = Trim(value);
  if (name.empty()) return JoinPath(app_path, default_name);
  if (HasSeparator(name)) return name;
  return JoinPath(app_path, name);
}

bool ProfileBoolean(const std::string& value) {
  std::string text = Trim(value);
  if (EqualsNoCase(text, "True") || EqualsNoCase(text, "Vrai")) return true;
  return Val(text) != 0;
}

bool LoadConfiguration(AppState& state, UserInterface& ui, ResourceLibrary& resources) {
  const std::string ini = IniFilePath(state);
  const std::string p = kSectionParameters;

  std::string library = Trim(ReadProfileValue(p, kKeyResourceFile, 80, ini));
  if (!HasSeparator(library)) library = JoinPath(DataFolder(state), library);
  resources.Load(ui, library);

  state.SymbolDir =
      FolderUnderApp(DataFolder(state), ReadProfileValue(p, kKeySymbolFolder, 80, ini),
                     "Symboles");
  if (!FolderExist(state.SymbolDir)) {
    ui.ShowMessage(
        std::string("Le nom du répertoire des symboles est mal défini dans le fichier \r\n") +
            kIniFileName,
        "Attention!", MessageIcon::kExclamation);
    return false;
  }

  std::int32_t resolution = ValLong(ReadProfileValue(p, kKeyResolution, 80, ini));
  if (resolution < 1000) resolution = 1000;
  state.LogicWidth = resolution;
  state.LogicHeight = resolution;

  state.ToolBandPosition = ValLong(ReadProfileValue(p, kKeyToolBandPosition, 10, ini));
  if (state.ToolBandPosition == 0) state.ToolBandPosition = 4;

  state.LinkThick = Val(ReadProfileValue(p, kKeyLinkThick, 80, ini));
  if (state.LinkThick == 0) state.LinkThick = 50;
  state.SymbolSize = Val(ReadProfileValue(p, kKeySymbolSize, 80, ini));
  if (state.SymbolSize == 0) state.SymbolSize = 120;

  std::string back = Trim(ReadProfileValue(kSectionOthers, kKeyScreenBackColor, 20, ini));
  state.ScreenBackColor = back.empty() ? 16777215 : ValLong(back);

  state.PointBufferSize = 10000;
  // The zoom factor saved by the last Save As; under 0.00001 it means none.
  state.ZoomFactor = Val(ReadProfileValue(kSectionOthers, kKeyZoomFactor, 20, ini));
  if (state.ZoomFactor < 0.00001) state.ZoomFactor = 1;
  state.CalcMode = 0;
  state.CalcDuree = 120;
  state.CalcDt = 2;
  state.ScaleWithZoom = true;
  state.calibration.XLAMU = 1;
  return true;
}

}  // namespace pluvane
