// The network written to fixed-column text files that other tools read: the
// nodes, the catchments (BV), their outlets (HYBV), the hydrograph injections
// (HY) and the three kinds of collectors (CI, PF, PO). Numbers are right
// aligned by FormatFixed, texts by PadText, with no separator between fields;
// an empty text is written "-". Each line ends with CR LF.
#pragma once

#include <string>
#include <vector>

#include "drawing/surface.h"
#include "foundation/user_interface.h"
#include "network/network_state.h"

namespace pluvane {

// The name under which an object is exported: its libell, else its tag
// Libell, else "-".
std::string ExportName(const Surface& surface, int number);

// The node file: one line per object of `kind` in surface order (name 18 on
// the left, Xus 12.3, Yus 12.3, Zus 12.2). Returns the count of lines; a
// file that cannot be written is reported through ShowError with the context
// "ExportObjData2TxtFile" and gives 0. Progress goes to the main bar.
int ExportObjData2TxtFile(UserInterface& ui, const std::string& file, const Surface& surface,
                          int kind);

// The writers of one type. Each returns its count, 0 when the network has no
// such element (then no file is made), and throws AppError when the file
// cannot be written.
// Catchments (iName 1): their Xus, Yus recomputed from the middle of their box
// and written back first. Outlets (iName 3): name, Qsec, SR.
int ExportBVFile(Surface& surface, const Calibration& calibration, int i_name,
                 const std::string& file);
// Hydrograph injections (iName 4), with their usable points.
int ExportHYFile(const Surface& surface, int i_name, const std::string& file);
// Collectors of iName 5 (CI), 6 (PF) or 7 (PO).
int ExportCanFile(const Surface& surface, int i_name, const std::string& file);

// What a type of the choice lists stands for.
struct ExportType {
  const char* type;   // "BV", "CI"...
  const char* offer;  // the line offered in the chooser
  int i_name;
};
// The types of MnuFi_Export_Txt_App and of MnuFi_Export_Txt_Can, in the
// order they are offered.
const std::vector<ExportType>& ApplicationTypes();
const std::vector<ExportType>& CollectorTypes();

// The types named by the lines of a selection file: the text before the
// first ":", trimmed; lines without ":" are ignored.
std::vector<std::string> SelectedTypes(const std::vector<std::string>& lines);

// ExportApp and ExportCan: one file per type of the selection file into
// `folder` (named base "_" type ".txt"), each followed by its line in the
// report, which is written anew under its heading. Returns the count of
// types written; the main bar shows the fraction done. A writer's failure is
// reported through ShowError with its name and counts 0.
int ExportApp(Surface& surface, const NetworkState& state, UserInterface& ui,
              const std::string& selection_file, const std::string& report_file,
              const std::string& folder);
int ExportCan(Surface& surface, const NetworkState& state, UserInterface& ui,
              const std::string& selection_file, const std::string& report_file,
              const std::string& folder);

}  // namespace pluvane
