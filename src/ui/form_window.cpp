#include "ui/form_window.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "foundation/grid_clipboard.h"

namespace pluvane {

FormWindow::FormWindow(FormController& controller, QWidget* parent)
    : QDialog(parent), controller_(controller) {
  setWindowTitle(QString::fromStdString(controller_.Caption()));
  auto* layout = new QVBoxLayout(this);
  for (Grid* grid : controller_.Grids()) {
    auto* table = new QTableView(this);
    auto* model = new GridTableModel(*grid, table);
    table->setModel(model);
    table->setItemDelegate(new GridItemDelegate(model, table));
    table->setSelectionMode(grid->RowSelect() ? QAbstractItemView::SingleSelection
                                              : QAbstractItemView::ExtendedSelection);
    table->setSelectionBehavior(grid->RowSelect() ? QAbstractItemView::SelectRows
                                                  : QAbstractItemView::SelectItems);
    const int char_width = table->fontMetrics().horizontalAdvance('0');
    for (int col = 1; col <= grid->MaxCols(); ++col) {
      table->setColumnWidth(col - 1, static_cast<int>(grid->ColWidth(col) * char_width) + 8);
    }
    table->verticalHeader()->setMinimumWidth(static_cast<int>(grid->ColWidth(0) * char_width));
    // The grid's cursor and the table's current cell follow each other.
    connect(model, &GridTableModel::activeCellChanged, table, [table, model](int col, int row) {
      table->setCurrentIndex(model->index(row - 1, col - 1));
    });
    connect(table->selectionModel(), &QItemSelectionModel::currentChanged, table,
            [grid](const QModelIndex& current) {
              if (current.isValid()) {
                grid->SetActiveCell(GridTableModel::ColOf(current), GridTableModel::RowOf(current));
              }
            });
    // The blocks selected in the table are the grid's selected blocks.
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, table,
            [grid, table] {
              grid->ClearSelection();
              for (const QItemSelectionRange& range : table->selectionModel()->selection()) {
                grid->AddSelection({range.left() + 1, range.top() + 1, range.right() + 1,
                                    range.bottom() + 1});
              }
            });
    layout->addWidget(table);
    tables_.push_back(table);
    models_.push_back(model);
  }
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  for (const FormCommand& command : controller_.Commands()) {
    auto* button = new QPushButton(QString::fromStdString(command.caption), this);
    button->setObjectName(QString::fromStdString(command.name));
    const std::string name = command.name;
    connect(button, &QPushButton::clicked, this, [this, name] { RunCommand(name); });
    buttons->addWidget(button);
    buttons_.emplace_back(command.name, button);
  }
  layout->addLayout(buttons);
  RefreshButtons();
  FitToGrids();
}

QPushButton* FormWindow::Button(const std::string& command) const {
  for (const auto& [name, button] : buttons_) {
    if (name == command) return button;
  }
  return nullptr;
}

void FormWindow::RunCommand(const std::string& command) {
  // An open editor gives its text to the grid before the command reads it.
  for (QTableView* table : tables_) {
    if (QWidget* editor = table->indexWidget(table->currentIndex())) editor->clearFocus();
    table->setFocus();
  }
  controller_.Run(command);
  if (controller_.Closed()) {
    accept();
    return;
  }
  RefreshButtons();
}

void FormWindow::RefreshButtons() {
  for (const FormCommand& command : controller_.Commands()) {
    if (QPushButton* button = Button(command.name)) button->setEnabled(command.enabled);
  }
}

void FormWindow::FitToGrids() {
  int width = 0, height = 0;
  for (QTableView* table : tables_) {
    int w = table->verticalHeader()->sizeHint().width() + 4;
    for (int c = 0; c < table->model()->columnCount(); ++c) w += table->columnWidth(c);
    width = std::max(width, w);
    // A table shows all its rows up to 15, then scrolls.
    const int rows = std::min(table->model()->rowCount(), 15);
    const int h = table->horizontalHeader()->sizeHint().height() +
                  std::max(rows, 1) * table->verticalHeader()->defaultSectionSize() +
                  2 * table->frameWidth();
    table->setMinimumHeight(h);
    if (table->model()->rowCount() <= 15) table->setMaximumHeight(h);
    height += h;
  }
  resize(std::max(width + 24, 320), sizeHint().height());
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  // Ctrl+V pastes the clipboard into the grid that has the focus.
  if (event->matches(QKeySequence::Paste)) {
    for (std::size_t i = 0; i < tables_.size(); ++i) {
      if (!tables_[i]->hasFocus()) continue;
      SSPaste(models_[i]->grid(), QApplication::clipboard()->text().toStdString());
      return;
    }
  }
  QDialog::keyPressEvent(event);
}

}  // namespace pluvane
