#include "ui/grid_table_view.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>

#include "foundation/grid_clipboard.h"

namespace pluvane {

GridTableView::GridTableView(Grid& grid, QWidget* parent)
    : QTableView(parent),
      model_(new GridTableModel(grid, this)),
      delegate_(new GridItemDelegate(model_, this)) {
  setModel(model_);
  setItemDelegate(delegate_);
  // A double click belongs to the form (it opens a row's edition, a file
  // chooser...): a cell is opened by typing or F2.
  setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
  setSelectionMode(grid.RowSelect() ? QAbstractItemView::SingleSelection
                                    : QAbstractItemView::ExtendedSelection);
  setSelectionBehavior(grid.RowSelect() ? QAbstractItemView::SelectRows
                                        : QAbstractItemView::SelectItems);
  // The grid's cursor and the table's current cell follow each other.
  connect(model_, &GridTableModel::activeCellChanged, this, [this](int col, int row) {
    const QModelIndex cell = model_->index(row - 1, col - 1);
    if (cell != currentIndex()) setCurrentIndex(cell);
  });
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& current) {
            if (current.isValid()) {
              this->grid().SetActiveCell(GridTableModel::ColOf(current),
                                         GridTableModel::RowOf(current));
            }
          });
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { ReportSelection(); });
}

// The blocks selected in the table are the grid's selected blocks; the one
// cell under the cursor is no block, as in a spreadsheet, so that a paste
// there lays the whole copied block from that cell on.
void GridTableView::ReportSelection() {
  Grid& target = grid();
  target.ClearSelection();
  const QItemSelection selection = selectionModel()->selection();
  if (selection.size() == 1 && selection.front().width() == 1 &&
      selection.front().height() == 1) {
    return;
  }
  for (const QItemSelectionRange& range : selection) {
    target.AddSelection({range.left() + 1, range.top() + 1, range.right() + 1, range.bottom() + 1});
  }
}

void GridTableView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    QApplication::clipboard()->setText(QString::fromStdString(SSCopy(grid())));
    return;
  }
  if (event->matches(QKeySequence::Paste)) {
    SSPaste(grid(), QApplication::clipboard()->text().toStdString());
    return;
  }
  if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
      state() != QAbstractItemView::EditingState) {
    MoveDown();
    return;
  }
  QTableView::keyPressEvent(event);
}

// Enter in a cell writes it and goes to the cell below.
void GridTableView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  QTableView::closeEditor(editor, hint);
  if (hint == QAbstractItemDelegate::SubmitModelCache) MoveDown();
}

void GridTableView::MoveDown() {
  const QModelIndex current = currentIndex();
  if (!current.isValid() || current.row() + 1 >= model_->rowCount()) return;
  setCurrentIndex(model_->index(current.row() + 1, current.column()));
}

}  // namespace pluvane
