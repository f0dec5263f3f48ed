// The commands of Fichier > Exporter that write the network to text files
// (nodes, the hydraulic singularities of the catchments and injections,
// collectors), the MapInfo and AutoCAD entries of this version, which name
// their target and write nothing, and ShowFileInLog, which shows a report in
// the message console.
#pragma once

#include <functional>
#include <string>

#include "drawing/surface.h"
#include "foundation/console.h"
#include "foundation/user_interface.h"
#include "network/network_state.h"

namespace pluvane {

inline constexpr const char* kExportFolderTitle = "Sélection du répertoire de destination";
inline constexpr const char* kExportReportFile = "ExportApp.msg";
inline constexpr const char* kExportOfferFile = "ExportApp_In.tmp";
inline constexpr const char* kExportChoiceFile = "ExportApp_Sel.tmp";

// Opens the chooser in its "export" mode on the offered lines of `source`;
// the lines ticked are written to `list_file`, which does not exist when the
// choice was dropped.
using ChooseExportLines =
    std::function<void(const std::string& source, const std::string& list_file)>;

// Copies the file to the console line by line, under `title`, and ends the run.
void ShowFileInLog(Console& console, const std::string& title, const std::string& file);

// Export > Noeuds en texte: the folder asked (unless one is given),
// `<base>_Nod.txt` written there and the count told. Returns the count, -1
// when the dialog was cancelled.
int MnuFi_Export_Txt_Nod(Surface& surface, const NetworkState& state, UserInterface& ui,
                         const std::string& given_folder = {});

// Export > Apports and Export > Canalisations: the types on offer chosen, the
// folder asked (unless one is given), one file per type written and the
// report shown in `log`.
// Returns the count of files' types written, -1 when the choice or the folder
// was dropped.
int MnuFi_Export_Txt_App(Surface& surface, const NetworkState& state, UserInterface& ui,
                         Console& log, const ChooseExportLines& choose,
                         const std::string& given_folder = {});
int MnuFi_Export_Txt_Can(Surface& surface, const NetworkState& state, UserInterface& ui,
                         Console& log, const ChooseExportLines& choose,
                         const std::string& given_folder = {});

// The lines offered by those two commands: one for each type that has at
// least one element, in their order.
std::vector<std::string> ApplicationOffers(Surface& surface);
std::vector<std::string> CollectorOffers(Surface& surface);

// The MapInfo exports: the target's path, after the message "en cours...";
// nothing is written.
std::string MnuFi_Export_Mif_Nod(const NetworkState& state, UserInterface& ui);
std::string MnuFi_Export_Mif_Cana(const NetworkState& state, UserInterface& ui);
// The AutoCAD export: the file asked (".dxf" added to a name without
// extension), then "en cours..."; nothing is written. Empty when cancelled.
std::string MnuFi_Export_Dxf(UserInterface& ui);

}  // namespace pluvane
