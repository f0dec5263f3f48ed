#include "shell/frm_preference.h"

#include "foundation/settings_keys.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "shell/configuration.h"

namespace pluvane {

namespace {

const char* const kLabels[] = {"", "Taille des symboles", "Epaisseur de trait", "Résolution Maxi",
                               "FlashScreen"};

}  // namespace

FrmPreference::FrmPreference(AppState& state, UserInterface& ui, std::function<void()> rescale)
    : state_(state), ui_(ui), rescale_(std::move(rescale)), grid_(1, 4) {
  grid_.SetCaption(Caption());
  grid_.SetColHead(1, "Valeur");
  grid_.SetColWidth(0, 22);
  grid_.SetColWidth(1, 14);
  const std::string ini = IniFilePath(state_);
  const std::string p = kSectionParameters;
  for (int row = 1; row <= 4; ++row) grid_.SetText(0, row, kLabels[row]);
  grid_.SetType(1, kRowSymbolSize, CellType::Float(0, 1e9, 2));
  grid_.SetType(1, kRowLinkThick, CellType::Float(0, 1e9, 2));
  grid_.SetType(1, kRowResolution, CellType::Integer(1000, 2147483647));
  grid_.SetType(1, kRowFlashScreen, CellType::CheckBox());
  grid_.SetText(1, kRowSymbolSize, Trim(ReadProfileValue(p, kKeySymbolSize, 40, ini)));
  grid_.SetText(1, kRowLinkThick, Trim(ReadProfileValue(p, kKeyLinkThick, 40, ini)));
  grid_.SetText(1, kRowResolution, Trim(ReadProfileValue(p, kKeyResolution, 40, ini)));
  grid_.SetText(1, kRowFlashScreen,
                ProfileBoolean(ReadProfileValue(kSectionOthers, kKeyFlashScreen, 10, ini)) ? "1"
                                                                                         : "0");
}

std::vector<FormCommand> FrmPreference::Commands() {
  return {{"cmdOk", "&Ok", [this] { cmdOk(); }},
          {"cmdCancel", "&Annuler", [this] { cmdCancel(); }}};
}

void FrmPreference::cmdOk() {
  // A size or a resolution must be a positive number: anything else would
  // leave the drawing without extent or symbols.
  for (int row : {kRowSymbolSize, kRowLinkThick, kRowResolution}) {
    if (Val(grid_.Text(1, row)) > 0) continue;
    ui_.ShowMessage(std::string("La valeur de '") + kLabels[row] + "' doit être un nombre positif.",
                    Caption(), MessageIcon::kExclamation);
    grid_.SetActiveCell(1, row);
    return;
  }
  const std::string ini = IniFilePath(state_);
  const std::string p = kSectionParameters;
  const std::int32_t resolution = ValLong(grid_.Text(1, kRowResolution));
  WriteProfileValue(p, kKeySymbolSize, Val(grid_.Text(1, kRowSymbolSize)), ini);
  WriteProfileValue(p, kKeyLinkThick, Val(grid_.Text(1, kRowLinkThick)), ini);
  WriteProfileValue(p, kKeyResolution, resolution, ini);
  WriteProfileValue(kSectionOthers, kKeyFlashScreen,
                    ProfileBoolean(grid_.Text(1, kRowFlashScreen)) ? "1" : "0", ini);
  // The new sizes count from now on, so that a refresh redraws with them.
  state_.SymbolSize = Val(grid_.Text(1, kRowSymbolSize));
  state_.LinkThick = Val(grid_.Text(1, kRowLinkThick));
  state_.LogicWidth = resolution;
  state_.LogicHeight = resolution;
  state_.CurrentMode = "MDREFRESH";
  if (rescale_) rescale_();
  Close();
}

}  // namespace pluvane
