// The importers of tables digitised elsewhere: nodes, catchment centroids and
// collectors, from a blank-separated text table or the comma-separated .Mid of
// a MapInfo pair, the columns taken from a .Fld. Each one places the elements
// by their map coordinates or between the nodes they name, says how many it
// made on the status line, and is one undo step. Bad lines are skipped
// without a word; a non-number reads as 0.
#pragma once

#include <string>

#include "drawing/surface.h"
#include "foundation/user_interface.h"
#include "network/network_state.h"

namespace pluvane {

// What an import works on.
struct ImportTarget {
  Surface& surface;
  NetworkState& state;
  UserInterface& ui;
};

// Each returns the count of its kind, or -1 when the import was refused (the
// table or the .Fld could not be read, or the symbol is missing); a refused
// import changed nothing.

// Nodes (iName 99, Id Nod_n). When the map is the drawing's own (scale 1), a
// first pass over the table sets the calibration so that the data's extent
// falls in the middle third of the sheet.
int ImportNodes(ImportTarget target, const std::string& data_file, const std::string& fld_file,
                const std::string& separator);

// Catchment centroids (iName 1, Id BV_n), with their area, length, slope and
// imperviousness.
int ImportBV(ImportTarget target, const std::string& data_file, const std::string& fld_file,
             const std::string& separator);

// Collectors of the type "CI", "PF" or "PO" between nodes named by label; the
// count is that of the lines of the type, made or not.
int ImportLinks(ImportTarget target, const std::string& type, const std::string& data_file,
                const std::string& fld_file, const std::string& separator);

// Writes the .Txt twin of a nodes' .Mid: field 1 in quotes, each following
// one up to the 15th behind five blanks, fields 6 and 11 with their blanks
// made "_" and in quotes. Returns the number of records, 0 on a failure
// (reported with "erreur dans imp_GenNod_MidFile2TxtFile").
int imp_GenNod_MidFile2TxtFile(UserInterface& ui, const std::string& mid_file,
                               const std::string& txt_file);

}  // namespace pluvane
