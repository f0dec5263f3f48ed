#include "rain/id_column.h"

#include <set>

#include "rain/rain_records.h"

namespace pluvane {

void IdColumnMemory::Reset(const Grid& grid) {
  ids_.clear();
  for (int row = 1; row <= grid.MaxRows(); ++row) ids_.push_back(grid.Text(1, row));
}

void IdColumnMemory::Inserted(int row) {
  if (row < 1) return;
  if (static_cast<std::size_t>(row) > ids_.size() + 1)
    ids_.resize(static_cast<std::size_t>(row) - 1);
  ids_.insert(ids_.begin() + (row - 1), std::string());
}

void IdColumnMemory::Removed(int row) {
  if (row < 1 || static_cast<std::size_t>(row) > ids_.size()) return;
  ids_.erase(ids_.begin() + (row - 1));
}

std::optional<std::string> IdColumnMemory::Changed(const Grid& grid, int row) {
  if (row < 1 || row > grid.MaxRows()) return std::nullopt;
  if (static_cast<std::size_t>(row) > ids_.size()) ids_.resize(static_cast<std::size_t>(row));
  std::string& known = ids_[static_cast<std::size_t>(row) - 1];
  const std::string& now = grid.Text(1, row);
  if (known == now) return std::nullopt;
  std::string old = known;
  known = now;
  return old;
}

bool CheckIdentifiers(Grid& grid, UserInterface& ui, const std::string& title) {
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    if (!IdKey(grid.Text(1, row)).empty()) continue;
    ui.ShowMessage("Renseignez tous les identificateurs.", title, MessageIcon::kNone);
    grid.SetActiveCell(1, row);
    return false;
  }
  std::set<std::string> seen;
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    if (seen.insert(IdKey(grid.Text(1, row))).second) continue;
    ui.ShowMessage("Aucun doublon n'est permis.", title, MessageIcon::kExclamation);
    grid.SetActiveCell(1, row);
    return false;
  }
  return true;
}

}  // namespace pluvane
