#include "exchange/column_dialog.h"

#include "exchange/fld_file.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"

namespace pluvane {

ColumnDialog::ColumnDialog(UserInterface& ui, std::string caption, std::vector<std::string> heads,
                           std::vector<std::string> rows, std::string fld_file)
    : ui_(ui),
      caption_(std::move(caption)),
      fld_file_(std::move(fld_file)),
      grid_(2, static_cast<int>(rows.size())) {
  grid_.SetCaption(caption_);
  for (int col = 1; col <= 2 && col <= static_cast<int>(heads.size()); ++col) {
    grid_.SetColHead(col, heads[static_cast<std::size_t>(col) - 1]);
  }
  grid_.SetColumnType(2, CellType::Integer(0, kMaxColumn));
  for (int row = 1; row <= static_cast<int>(rows.size()); ++row) {
    grid_.SetText(1, row, rows[static_cast<std::size_t>(row) - 1]);
  }
  grid_.SetColumnLocked(1, true);
  grid_.SetColumnColours(1, kButtonFaceColour, kDefaultColour);
  if (FileExist(fld_file_)) {
    std::vector<int> columns;
    // A .Fld that cannot be taken shows its message and leaves the rows empty.
    if (ReadFldFile(ui_, fld_file_, columns) >= 0) {
      for (int row = 1; row <= grid_.MaxRows(); ++row) {
        if (static_cast<std::size_t>(row) > columns.size()) break;
        grid_.SetText(2, row, std::to_string(columns[static_cast<std::size_t>(row) - 1]));
      }
    }
  }
  grid_.SetActiveCell(2, 1);
}

std::vector<FormCommand> ColumnDialog::Commands() {
  return {{"cmdOk", "OK", [this] { cmdOk(); }}, {"cmdAnnul", "Annuler", [this] { cmdAnnul(); }}};
}

void ColumnDialog::cmdOk() {
  if (!CheckRows()) return;
  std::vector<int> columns;
  for (int row = 1; row <= grid_.MaxRows(); ++row)
    columns.push_back(RoundLong(grid_.Value(2, row)));
  if (!WriteFldFile(fld_file_, columns)) {
    ui_.ShowMessage("Impossible d'écrire le fichier des colonnes " + fld_file_ + ".", caption_,
                    MessageIcon::kExclamation);
    return;
  }
  row_count_ = grid_.MaxRows();
  Close();
}

void ColumnDialog::cmdAnnul() {
  row_count_ = 0;
  Close();
}

}  // namespace pluvane
