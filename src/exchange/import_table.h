// What the importers share: the table read whole, its records split as the
// import's separator says and padded to the highest column of the .Fld, the
// progress of the loop, and the symbol that new points are drawn with.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "exchange/kalder_import.h"
#include "foundation/line_parsing.h"

namespace pluvane {

// The lines of a table and the walk over them with the progress bar.
class ImportTable {
 public:
  // Reads the file; Open() is false, after a message naming it, when it cannot.
  ImportTable(UserInterface& ui, const std::string& path);
  bool Open() const { return open_; }
  const std::vector<std::string>& Lines() const { return lines_; }

  // Shows the progress of line `index` (from 0) of the table, the elements
  // already on the drawing counted on both sides, and lets events run every
  // `pump_every` lines.
  void Progress(std::size_t index, int existing, int pump_every) const;

 private:
  UserInterface& ui_;
  std::vector<std::string> lines_;
  bool open_ = false;
};

// Splits a line into its fields and pads the record with empty fields up to
// `highest`. Returns the number of fields the line held, 0 for a line that
// could not be split (a quote left open).
int SplitRecord(UserInterface& ui, std::string_view line, const std::string& separator, int highest,
                std::vector<std::string>& fields);

// The field of a column (from 1); empty outside the record.
const std::string& Field(const std::vector<std::string>& fields, int column);

// The picture file of imported points: the first of the names found in the
// symbols folder, empty when none is.
std::string ImportSymbol(const std::string& symbol_dir, const std::vector<std::string>& names);

// A point element of the type at the logical position, drawn with the
// picture (armed beforehand) as a square of half-side `half`; its default
// tags are those of imports. 0 when it could not be made.
int PlaceImportedPoint(ImportTarget& target, int i_name, std::int32_t x, std::int32_t y,
                       double half);

// The message of a symbol that cannot be found, as placement shows it.
void ShowImportSymbolError(ImportTarget& target);

}  // namespace pluvane
