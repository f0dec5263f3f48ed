// Shows a Grid in a QTableView: rows and columns from 1, heads from row 0 and
// column 0, cell colours, notes as tool tips, check boxes, list cells edited
// in a combo box, locked cells read-only. The grid stays the only data; the
// model follows its change notices.
#pragma once

#include <QAbstractTableModel>
#include <QComboBox>
#include <QStyledItemDelegate>

#include "foundation/grid.h"

namespace pluvane {

class GridTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit GridTableModel(Grid& grid, QObject* parent = nullptr);
  ~GridTableModel() override;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  Grid& grid() { return grid_; }
  // Grid cell of a model index (columns and rows from 1).
  static int ColOf(const QModelIndex& index) { return index.column() + 1; }
  static int RowOf(const QModelIndex& index) { return index.row() + 1; }

 signals:
  // The grid's cursor moved: the view follows it.
  void activeCellChanged(int col, int row);

 private:
  void OnChange(const GridChange& change);

  Grid& grid_;
  int listener_ = 0;
};

// The combo box of a list cell, telling when its list drops down and when it
// closes up again (once the choice is made).
class GridComboBox : public QComboBox {
  Q_OBJECT

 public:
  using QComboBox::QComboBox;
  void showPopup() override;
  void hidePopup() override;

 signals:
  void droppedDown();
  void closedUp();
};

// Edits list cells in a combo box of their entries, and draws button cells
// as push buttons (an ampersand of their text marks the mnemonic). The list's
// dropping down is told with the cell (columns and rows from 1); the choice is
// written to the grid as soon as the list closes up.
class GridItemDelegate : public QStyledItemDelegate {
  Q_OBJECT

 signals:
  void listDroppedDown(int col, int row);

 public:
  explicit GridItemDelegate(GridTableModel* model, QObject* parent = nullptr)
      : QStyledItemDelegate(parent), model_(model) {}
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;

 private:
  GridTableModel* model_;
};

// Colours of the grid keep red in the low byte.
QColor QtColourOf(std::int32_t colour);

}  // namespace pluvane
