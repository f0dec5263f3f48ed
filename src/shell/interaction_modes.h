// The modes of the main window's drawing: the texts CurrentMode takes, the
// cursor picture and status text each tool arms, and what each tool key of
// the bands does (arm a mode, arm a creation key, run a view command, open a
// band or a form, or leave the command to the window).
#pragma once

#include <string>
#include <string_view>

namespace pluvane {

inline constexpr const char* kModeCreate = "CREATE OBJ";
inline constexpr const char* kModeDelete = "MDDELETE";
inline constexpr const char* kModeMove = "MDMOVE";
inline constexpr const char* kModeFusion = "MDFUSION";
inline constexpr const char* kModeBreak = "MDBREAK";
inline constexpr const char* kModeBreakPlus = "MDBREAKPLUS";
inline constexpr const char* kModeEdit1 = "MDEDIT1";
inline constexpr const char* kModeEditAll = "MDEDITALL";
inline constexpr const char* kModeSelected = "MDSELECTED";
inline constexpr const char* kModeZoomWindow = "ZOOMF";
inline constexpr const char* kModeZoomAll = "ZOOMT";
inline constexpr const char* kModeZoomBounds = "ZOOM11";
inline constexpr const char* kModeZoomOut = "ZOOMM";
inline constexpr const char* kModeRefresh = "MDREFRESH";
inline constexpr const char* kModeRotate = "MDROTATE";
inline constexpr const char* kModeBubble = "MYMDBUBLE";

// What SelectionAllowed is given back at each reset.
inline constexpr int kSelectionAllowedAll = 23;

// A mode armed by its tool: its cursor picture (0 the ordinary arrow) and the
// text it shows in the status line (empty: the status stays cleared).
struct ModeEntry {
  std::string_view mode;
  int cursor;
  std::string_view status;
};

// The entry of a mode, nullptr for a mode the table does not arm ("CREATE OBJ"
// takes its cursor from the key).
const ModeEntry* ModeEntryOf(std::string_view mode);

// What a click on a tool does once the interaction was reset.
enum class ToolAction {
  kNone,         // an unknown key: the reset only
  kArmMode,      // `target` is the mode
  kCreate,       // "CREATE OBJ" with the key
  kViewCommand,  // `target` is a view command (ZOOMT, MDGRID...)
  kOpenBand,     // `target` is the band to show
  kOpenForm,     // `target` is the form to open
  kWindow,       // the window runs it (MDSAVE, X_PARAM)
};

struct ToolBinding {
  ToolAction action = ToolAction::kNone;
  std::string target;
};

// The binding of a tool key, compared in capitals.
ToolBinding ToolBindingOf(std::string_view key);

}  // namespace pluvane
