#include "shell/interaction_modes.h"

#include <array>

#include "foundation/text.h"
#include "network/catalogue.h"

namespace pluvane {

namespace {

constexpr std::array<ModeEntry, 7> kModes = {{
    {kModeDelete, 201,
     "Sélectionnez un ou plusieurs éléments à supprimer, puis valider avec la touche <Suppr>"},
    {kModeMove, 200,
     "Sélectionnez un ou plusieurs éléments. Faites déplacer la sélection en tirant sur un "
     "noeud. La fusion à un noeud cible est possible."},
    {kModeFusion, 204, "Placer un noeud sur un collecteur"},
    {kModeBreak, 202, "Placer un noeud sur un collecteur"},
    {kModeBreakPlus, 0, ""},
    {kModeEdit1, 203, "Sélectionnez un élément à éditer"},
    {kModeEditAll, 0, ""},
}};

struct FixedTool {
  std::string_view key;
  ToolAction action;
  std::string_view target;
};

constexpr std::array<FixedTool, 19> kFixedTools = {{
    {"MDDELETE", ToolAction::kArmMode, kModeDelete},
    {"MDMOVE", ToolAction::kArmMode, kModeMove},
    {"MDFUSION", ToolAction::kArmMode, kModeFusion},
    {"MDBREAK", ToolAction::kArmMode, kModeBreak},
    {"MDBREAKPLUS", ToolAction::kArmMode, kModeBreakPlus},
    {"MDEDIT1", ToolAction::kArmMode, kModeEdit1},
    {"MDEDITALL", ToolAction::kArmMode, kModeEditAll},
    {"MYMDBUBLE", ToolAction::kArmMode, kModeBubble},
    {"MDROTATE", ToolAction::kArmMode, kModeRotate},
    {"ZOOMT", ToolAction::kViewCommand, kModeZoomAll},
    {"ZOOMF", ToolAction::kViewCommand, kModeZoomWindow},
    {"ZOOM11", ToolAction::kViewCommand, kModeZoomBounds},
    {"ZOOMM", ToolAction::kViewCommand, kModeZoomOut},
    {"MDREFRESH", ToolAction::kViewCommand, kModeRefresh},
    {"MDSHOWLNKARROW", ToolAction::kViewCommand, "MDSHOWLNKARROW"},
    {"MDASCENS", ToolAction::kViewCommand, "MDASCENS"},
    {"MDGRID", ToolAction::kViewCommand, "MDGRID"},
    {"MDCOBACK", ToolAction::kViewCommand, "MDCOBACK"},
    {"MDSAVE", ToolAction::kWindow, "MDSAVE"},
}};

}  // namespace

const ModeEntry* ModeEntryOf(std::string_view mode) {
  for (const ModeEntry& entry : kModes) {
    if (entry.mode == mode) return &entry;
  }
  return nullptr;
}

ToolBinding ToolBindingOf(std::string_view key) {
  const std::string upper = UCase(key);
  for (const FixedTool& tool : kFixedTools) {
    if (tool.key == upper) return {tool.action, std::string(tool.target)};
  }
  if (upper == "X_BVCOM") return {ToolAction::kOpenBand, "RESO_CREATE_BV_C"};
  if (upper == "X_BVSIM") return {ToolAction::kOpenBand, "RESO_CREATE_BV_S"};
  if (upper == "X_CALAGE") return {ToolAction::kOpenForm, "frmCalage"};
  if (upper == "X_PARAM") return {ToolAction::kWindow, upper};
  // The radius of action has no creation pair: its circle is drawn.
  if (upper == "X_RAYON") return {ToolAction::kCreate, upper};
  if (NextCreationPair(upper)) return {ToolAction::kCreate, upper};
  return {};
}

}  // namespace pluvane
