#include "ui/grid_table_model.h"

#include <QApplication>
#include <QBrush>
#include <QDoubleValidator>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOptionButton>

#include "foundation/numbers.h"

namespace pluvane {

namespace {

QString Q(const std::string& s) { return QString::fromStdString(s); }

// The numbers of a cell: a point or a comma for the decimals, within the
// cell's range and decimals; an empty cell is allowed.
class NumberValidator : public QDoubleValidator {
 public:
  NumberValidator(const CellType& type, QObject* parent)
      : QDoubleValidator(parent), integer_(type.kind == CellType::kInteger) {
    setLocale(QLocale::c());
    setNotation(QDoubleValidator::StandardNotation);
    const int decimals = type.kind == CellType::kInteger ? 0 : (type.decimals > 0 ? type.decimals : 15);
    if (type.min < type.max) {
      setRange(type.min, type.max, decimals);
    } else {
      setDecimals(decimals);
    }
  }
  State validate(QString& input, int& pos) const override {
    input.replace(',', '.');
    if (input.trimmed().isEmpty()) return Acceptable;
    if (integer_ && input.contains('.')) return Invalid;
    return QDoubleValidator::validate(input, pos);
  }

 private:
  bool integer_;
};

// A number of a float cell is shown with the cell's decimals; any other text as it is.
QString Shown(const Cell& cell) {
  QString text = Q(cell.text);
  if (cell.type.kind != CellType::kFloat || cell.type.decimals <= 0) return text;
  bool number = false;
  const double value = text.trimmed().toDouble(&number);
  return number ? QString::number(value, 'f', cell.type.decimals) : text;
}

}  // namespace

QColor QtColourOf(std::int32_t colour) {
  return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
}

GridTableModel::GridTableModel(Grid& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid) {
  listener_ = grid_.AddListener([this](const GridChange& change) { OnChange(change); });
}

GridTableModel::~GridTableModel() { grid_.RemoveListener(listener_); }

int GridTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : grid_.MaxRows();
}

int GridTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : grid_.MaxCols();
}

QVariant GridTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const int col = ColOf(index), row = RowOf(index);
  const Cell& cell = grid_.At(col, row);
  const bool check = cell.type.kind == CellType::kCheckBox;
  switch (role) {
    case Qt::DisplayRole:
      return check ? QVariant() : QVariant(Shown(cell));
    case Qt::EditRole:
      return Q(cell.text);
    case Qt::CheckStateRole:
      if (!check) return {};
      return Val(cell.text) != 0 ? Qt::Checked : Qt::Unchecked;
    case Qt::BackgroundRole:
      if (cell.back_colour == kDefaultColour) return {};
      return QBrush(QtColourOf(cell.back_colour));
    case Qt::ForegroundRole:
      if (cell.fore_colour == kDefaultColour) return {};
      return QBrush(QtColourOf(cell.fore_colour));
    case Qt::ToolTipRole:
      return cell.note.empty() ? QVariant() : QVariant(Q(cell.note));
    case Qt::TextAlignmentRole:
      if (cell.type.kind == CellType::kInteger || cell.type.kind == CellType::kFloat) {
        return int(Qt::AlignRight | Qt::AlignVCenter);
      }
      return {};
    default:
      return {};
  }
}

bool GridTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid()) return false;
  const int col = ColOf(index), row = RowOf(index);
  if (grid_.Locked(col, row)) return false;
  if (role == Qt::CheckStateRole) {
    grid_.SetText(col, row, value.toInt() == Qt::Checked ? "1" : "0");
    return true;
  }
  if (role != Qt::EditRole) return false;
  QString text = value.toString();
  const CellType& type = grid_.Type(col, row);
  if (type.kind == CellType::kInteger || type.kind == CellType::kFloat) {
    // Numbers keep the point whatever the keyboard gave.
    text.replace(',', '.');
  }
  grid_.SetText(col, row, text.toStdString());
  return true;
}

QVariant GridTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return {};
  if (orientation == Qt::Horizontal) return Q(grid_.Text(section + 1, 0));
  const std::string& head = grid_.Text(0, section + 1);
  return head.empty() ? QVariant(section + 1) : QVariant(Q(head));
}

Qt::ItemFlags GridTableModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
  const int col = ColOf(index), row = RowOf(index);
  if (grid_.Locked(col, row)) return flags;
  if (grid_.Type(col, row).kind == CellType::kCheckBox) return flags | Qt::ItemIsUserCheckable;
  if (grid_.Type(col, row).kind == CellType::kButton) return flags;
  return flags | Qt::ItemIsEditable;
}

void GridTableModel::OnChange(const GridChange& change) {
  switch (change.kind) {
    case GridChange::kCells: {
      const int last_row = std::max(0, grid_.MaxRows() - 1);
      const int last_col = std::max(0, grid_.MaxCols() - 1);
      const int r1 = std::clamp(change.row1 - 1, 0, last_row);
      const int r2 = std::clamp(change.row2 - 1, 0, last_row);
      const int c1 = std::clamp(change.col1 - 1, 0, last_col);
      const int c2 = std::clamp(change.col2 - 1, 0, last_col);
      emit dataChanged(index(r1, c1), index(r2, c2));
      if (change.row1 == 0 || change.col1 == 0) {
        emit headerDataChanged(Qt::Horizontal, 0, last_col);
        emit headerDataChanged(Qt::Vertical, 0, last_row);
      }
      break;
    }
    case GridChange::kRowsInserting:
      beginInsertRows({}, change.row1 - 1, change.row2 - 1);
      break;
    case GridChange::kRowsInserted:
      endInsertRows();
      break;
    case GridChange::kRowsRemoving:
      beginRemoveRows({}, change.row1 - 1, change.row2 - 1);
      break;
    case GridChange::kRowsRemoved:
      endRemoveRows();
      break;
    case GridChange::kColsInserting:
      beginInsertColumns({}, change.col1 - 1, change.col2 - 1);
      break;
    case GridChange::kColsInserted:
      endInsertColumns();
      break;
    case GridChange::kColsRemoving:
      beginRemoveColumns({}, change.col1 - 1, change.col2 - 1);
      break;
    case GridChange::kColsRemoved:
      endRemoveColumns();
      break;
    case GridChange::kActiveCell:
      emit activeCellChanged(change.col1, change.row1);
      break;
    case GridChange::kSelectionChanged:
    case GridChange::kLayout:
      emit headerDataChanged(Qt::Horizontal, 0, std::max(0, grid_.MaxCols() - 1));
      break;
  }
}

namespace {

bool IsButton(const Grid& grid, const QModelIndex& index) {
  return grid.Type(GridTableModel::ColOf(index), GridTableModel::RowOf(index)).kind ==
         CellType::kButton;
}

QStyleOptionButton ButtonOption(const Grid& grid, const QStyleOptionViewItem& option,
                                const QModelIndex& index) {
  const int col = GridTableModel::ColOf(index), row = GridTableModel::RowOf(index);
  QStyleOptionButton button;
  button.initFrom(option.widget);
  button.rect = option.rect.adjusted(1, 1, -1, -1);
  button.text = Q(grid.Text(col, row));
  button.state = QStyle::State_Raised;
  if (!grid.Locked(col, row)) button.state |= QStyle::State_Enabled;
  return button;
}

}  // namespace

void GridComboBox::showPopup() {
  emit droppedDown();
  QComboBox::showPopup();
}

// The choice of the list reaches the combo box after the list has closed.
void GridComboBox::hidePopup() {
  QComboBox::hidePopup();
  QMetaObject::invokeMethod(this, [this] { emit closedUp(); }, Qt::QueuedConnection);
}

void GridItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  if (!IsButton(model_->grid(), index)) return QStyledItemDelegate::paint(painter, option, index);
  const QStyleOptionButton button = ButtonOption(model_->grid(), option, index);
  QStyle* style = option.widget ? option.widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_PushButton, &button, painter, option.widget);
}

QSize GridItemDelegate::sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  if (!IsButton(model_->grid(), index)) return QStyledItemDelegate::sizeHint(option, index);
  const QStyleOptionButton button = ButtonOption(model_->grid(), option, index);
  QStyle* style = option.widget ? option.widget->style() : QApplication::style();
  const QSize text = option.fontMetrics.size(Qt::TextShowMnemonic, button.text);
  return style->sizeFromContents(QStyle::CT_PushButton, &button, text, option.widget);
}

QWidget* GridItemDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const {
  const Grid& grid = model_->grid();
  const int col = GridTableModel::ColOf(index), row = GridTableModel::RowOf(index);
  const CellType& type = grid.Type(col, row);
  if (type.kind == CellType::kList) {
    auto* combo = new GridComboBox(parent);
    for (const auto& entry : grid.ListEntries(col, row)) combo->addItem(Q(entry));
    combo->setEditable(type.typed);
    auto* self = const_cast<GridItemDelegate*>(this);
    connect(combo, &GridComboBox::droppedDown, self,
            [self, col, row] { emit self->listDroppedDown(col, row); });
    // An editor already closed (Return in a box that takes typed text) has nothing to give.
    connect(combo, &GridComboBox::closedUp, self, [self, combo] {
      if (combo->isVisible()) emit self->commitData(combo);
    });
    return combo;
  }
  QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
  auto* line = qobject_cast<QLineEdit*>(editor);
  if (line == nullptr) return editor;
  // The keyboard keeps to what the cell takes: an out-of-range number is not written.
  if (type.kind == CellType::kInteger || type.kind == CellType::kFloat) {
    line->setValidator(new NumberValidator(type, line));
  } else if (type.kind == CellType::kText && type.max_length > 0) {
    line->setMaxLength(type.max_length);
  }
  return editor;
}

void GridItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  if (auto* combo = qobject_cast<QComboBox*>(editor)) {
    const int col = GridTableModel::ColOf(index), row = GridTableModel::RowOf(index);
    combo->setCurrentIndex(model_->grid().ListIndex(col, row));
    // A box that takes typed text shows the cell's text, in the list or not.
    if (combo->isEditable()) combo->setEditText(Q(model_->grid().Text(col, row)));
    return;
  }
  QStyledItemDelegate::setEditorData(editor, index);
}

void GridItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const {
  if (auto* combo = qobject_cast<QComboBox*>(editor)) {
    const int col = GridTableModel::ColOf(index), row = GridTableModel::RowOf(index);
    if (combo->isEditable()) {
      model_->grid().SetText(col, row, combo->currentText().toStdString());
    } else {
      model_->grid().SetListIndex(col, row, combo->currentIndex());
    }
    return;
  }
  QStyledItemDelegate::setModelData(editor, model, index);
}

}  // namespace pluvane
