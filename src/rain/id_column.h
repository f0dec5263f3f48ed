// What the libraries of rain share about their first column, the records'
// identifiers: the old value of a cell, to follow a rename when the user
// leaves it, and the check of the identifiers before a save.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "foundation/grid.h"
#include "foundation/user_interface.h"

namespace pluvane {

// The texts of a grid's first column as they were last known, row by row.
class IdColumnMemory {
 public:
  // Takes the column as it stands.
  void Reset(const Grid& grid);
  // A row appeared before `row` (its old text is empty), or `row` went.
  void Inserted(int row);
  void Removed(int row);
  // When the cell of `row` differs from what was known, the old text, and the
  // new one is known from now on; nullopt when it did not change.
  std::optional<std::string> Changed(const Grid& grid, int row);

 private:
  std::vector<std::string> ids_;
};

// The check of the identifiers before a library's save: every one filled
// ("Renseignez tous les identificateurs.") and none twice, compared trimmed
// in capitals ("Aucun doublon n'est permis.", exclamation icon). The cursor
// goes to the row at fault. True when they pass.
bool CheckIdentifiers(Grid& grid, UserInterface& ui, const std::string& title);

}  // namespace pluvane
