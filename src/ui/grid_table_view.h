// The table of one grid, edited as a spreadsheet: typing opens the cell, F2
// too; Enter writes it and goes down, Tab writes it and goes right, Escape
// gives the old text back; Ctrl+C copies the selected block and Ctrl+V pastes
// a block from a spreadsheet. Numbers are kept within their range and shown
// with their decimals, texts within their length; lists drop down, boxes are
// ticked. The grid's cursor and selected blocks follow the table's.
#pragma once

#include <QTableView>

#include "ui/grid_table_model.h"

namespace pluvane {

class GridTableView : public QTableView {
  Q_OBJECT

 public:
  explicit GridTableView(Grid& grid, QWidget* parent = nullptr);

  Grid& grid() { return model_->grid(); }
  GridTableModel* gridModel() const { return model_; }
  GridItemDelegate* gridDelegate() const { return delegate_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

 private:
  void MoveDown();
  void ReportSelection();

  GridTableModel* model_;
  GridItemDelegate* delegate_;
};

}  // namespace pluvane
