// Sections brought in from a file: the text format (.sec), a name line in
// apostrophes followed by a line of heights and a line of widths, and the
// curve format (.crb), a named curve of heights (columns 1-10) and widths
// (11-20). Each reader writes a report, one line per section, and stops at
// the first section whose heights do not rise. mnuOpt_SecImport asks for the
// file and shows the report in the message console.
#pragma once

#include <string>

#include "drawing/surface.h"
#include "foundation/console.h"
#include "foundation/user_interface.h"
#include "network/network_state.h"

namespace pluvane {

// The report's lines. Section `name` is made, or was there already.
std::string ImportedLine(const std::string& name);
std::string ExistingLine(const std::string& name);

// Both return the number of sections handled (those already in the library
// and the one whose heights stopped the import included) and write `report`
// anew. The file's lines are read as they come: a missing file reads as
// empty. `ui` hears of a quote left open in a line of numbers. `complete`,
// when given, tells whether the file was read to its end.
int ImportSecFile(Surface& surface, const NetworkState& state, UserInterface& ui,
                  const std::string& file, const std::string& report, bool* complete = nullptr);
int ImportCrbFile(Surface& surface, const NetworkState& state, const std::string& file,
                  const std::string& report, bool* complete = nullptr);

// The report of the menu: beside the file, its base name and ".msg".
std::string SectionReportPath(const std::string& file);

// The import by the file's extension: "sec" in any case reads the text
// format, anything else the curve format.
int ImportSectionFile(Surface& surface, const NetworkState& state, UserInterface& ui,
                      const std::string& file, const std::string& report, bool* complete = nullptr);

// Option > Importer des sections: the file asked, imported, the report shown
// in the console under "import de section" and then deleted. False when the
// dialog was cancelled.
bool mnuOpt_SecImport(Surface& surface, const NetworkState& state, UserInterface& ui,
                      Console& console);

}  // namespace pluvane
