#include "ui/form_window.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>


namespace pluvane {

namespace {

// A head wider than this many pixels is wrapped on two lines.
constexpr int kWideHead = 150;
// Room around a head's text in its section.
constexpr int kHeadMargin = 16;

// The width a head needs on two lines: its best cut at a blank.
int TwoLineWidth(const QFontMetrics& metrics, const QString& head) {
  int best = metrics.horizontalAdvance(head);
  for (qsizetype i = head.indexOf(' '); i >= 0; i = head.indexOf(' ', i + 1)) {
    best = std::min(best, std::max(metrics.horizontalAdvance(head.left(i)),
                                   metrics.horizontalAdvance(head.mid(i + 1))));
  }
  return best;
}

// Each column as wide as the grid asks, and at least as wide as its contents
// and its head (a long head wraps on two lines). The row heads take the width
// of their own texts; a grid whose row-head column has no width shows none.
void SizeColumns(QTableView* table, const Grid& grid) {
  const int char_width = table->fontMetrics().horizontalAdvance('0');
  QHeaderView* heads = table->horizontalHeader();
  // The head of the current column is drawn in bold: measure them so.
  QFont bold = heads->font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);
  bool wrapped = false;
  for (int col = 1; col <= grid.MaxCols(); ++col) {
    if (grid.ColWidth(col) <= 0) {
      table->setColumnHidden(col - 1, true);
      continue;
    }
    int width = static_cast<int>(grid.ColWidth(col) * char_width) + 8;
    width = std::max(width, static_cast<QAbstractItemView*>(table)->sizeHintForColumn(col - 1));
    const QString text = QString::fromStdString(grid.Text(col, 0));
    const int head = metrics.horizontalAdvance(text) + kHeadMargin;
    if (head > width && head > kWideHead) {
      width = std::max(width, TwoLineWidth(metrics, text) + kHeadMargin);
      wrapped = true;
    } else {
      width = std::max(width, head);
    }
    table->setColumnWidth(col - 1, width);
  }
  if (wrapped) {
    // The header passes its alignment on as text flags: word wrap included.
    heads->setDefaultAlignment(Qt::Alignment::fromInt(Qt::AlignCenter | Qt::TextWordWrap));
    heads->setMinimumHeight(2 * metrics.lineSpacing() + 10);
  }
  if (grid.ColWidth(0) <= 0) table->verticalHeader()->hide();
}

}  // namespace

FormWindow::FormWindow(FormController& controller, QWidget* parent)
    : QDialog(parent), controller_(controller) {
  setWindowTitle(QString::fromStdString(controller_.Caption()));
  auto* layout = new QVBoxLayout(this);
  if (controller_.TabCount() > 0) {
    tabs_ = new QTabBar(this);
    for (int tab = 0; tab < controller_.TabCount(); ++tab) tabs_->addTab({});
    connect(tabs_, &QTabBar::tabBarClicked, this, [this](int tab) {
      controller_.ClickTab(tab);
      AfterEvent();
    });
    layout->addWidget(tabs_);
  }
  for (Grid* grid : controller_.Grids()) {
    auto* table = new GridTableView(*grid, this);
    GridTableModel* model = table->gridModel();
    SizeColumns(table, *grid);
    // Cell events go to the form.
    const int index = static_cast<int>(tables_.size());
    connect(table, &QTableView::clicked, this, [this, index](const QModelIndex& cell) {
      ClickCell(index, GridTableModel::ColOf(cell), GridTableModel::RowOf(cell));
    });
    connect(table, &QTableView::doubleClicked, this, [this, index](const QModelIndex& cell) {
      DoubleClickCell(index, GridTableModel::ColOf(cell), GridTableModel::RowOf(cell));
    });
    connect(table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this, index](const QModelIndex& current, const QModelIndex& previous) {
              if (!previous.isValid() || current == previous) return;
              LeaveCell(index, GridTableModel::ColOf(previous), GridTableModel::RowOf(previous));
            });
    connect(table->gridDelegate(), &GridItemDelegate::listDroppedDown, this,
            [this, index](int col, int row) { ListDropDown(index, col, row); });
    layout->addWidget(table);
    tables_.push_back(table);
    models_.push_back(model);
  }
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  for (const FormCommand& command : controller_.Commands()) {
    auto* button = new QPushButton(QString::fromStdString(command.caption), this);
    button->setObjectName(QString::fromStdString(command.name));
    // Enter belongs to the grid (it goes down a row), never to a button.
    button->setAutoDefault(false);
    const std::string name = command.name;
    connect(button, &QPushButton::clicked, this, [this, name] { RunCommand(name); });
    buttons->addWidget(button);
    buttons_.emplace_back(command.name, button);
  }
  layout->addLayout(buttons);
  RefreshTables();
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
  AfterEvent();
}

void FormWindow::ClickCell(int index, int col, int row) {
  Grid& grid = models_.at(index)->grid();
  if (grid.Type(col, row).kind != CellType::kButton) {
    controller_.ClickCell(grid, col, row);
  } else if (!grid.Locked(col, row)) {
    controller_.ButtonCell(grid, col, row);
  }
  AfterEvent();
}

void FormWindow::DoubleClickCell(int index, int col, int row) {
  controller_.DoubleClickCell(models_.at(index)->grid(), col, row);
  AfterEvent();
}

void FormWindow::LeaveCell(int index, int col, int row) {
  // The form may put the cursor back on the cell it refuses: that move is no
  // second leave.
  if (leaving_) return;
  leaving_ = true;
  controller_.LeaveCell(models_.at(index)->grid(), col, row);
  leaving_ = false;
  AfterEvent();
}

void FormWindow::ListDropDown(int index, int col, int row) {
  controller_.ListDropDown(models_.at(index)->grid(), col, row);
  AfterEvent();
}

void FormWindow::AfterEvent() {
  if (controller_.Closed()) {
    accept();
    return;
  }
  RefreshTables();
  RefreshButtons();
}

// The tables show as their grids ask; under tabs, the current one alone.
void FormWindow::RefreshTables() {
  if (tabs_ == nullptr) {
    for (GridTableView* table : tables_) table->setVisible(table->grid().Visible());
    return;
  }
  const QSignalBlocker quiet(tabs_);
  for (int tab = 0; tab < tabs_->count(); ++tab) {
    const std::string caption = controller_.TabCaption(tab);
    tabs_->setTabText(tab, QString::fromStdString(caption));
    tabs_->setTabEnabled(tab, !caption.empty());
  }
  const int current = controller_.CurrentTab();
  if (current >= 0 && current < tabs_->count()) tabs_->setCurrentIndex(current);
  for (std::size_t i = 0; i < tables_.size(); ++i) {
    tables_[i]->setVisible(static_cast<int>(i) == current);
  }
}

void FormWindow::RefreshButtons() {
  for (const FormCommand& command : controller_.Commands()) {
    if (QPushButton* button = Button(command.name)) button->setEnabled(command.enabled);
  }
}

void FormWindow::FitToGrids() {
  // Within the screen; the window may be resized by hand past that.
  const QSize screen = this->screen() ? this->screen()->availableGeometry().size() * 0.9
                                      : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  std::vector<int> widths;
  int width = 0;  // the widest table
  for (QTableView* table : tables_) {
    int w = table->verticalHeader()->sizeHint().width() + 2 * table->frameWidth() + 4;
    for (int c = 0; c < table->model()->columnCount(); ++c) w += table->columnWidth(c);
    widths.push_back(w);
    width = std::max(width, w);
  }
  const int window_width = std::min(std::max(width + 24, 320), screen.width());
  int height = 0;  // the tallest table
  for (std::size_t i = 0; i < tables_.size(); ++i) {
    QTableView* table = tables_[i];
    // A table shows all its rows up to 15, then scrolls; sheets under tabs,
    // filled as they are chosen, have the room of 15 rows. A table wider than
    // the window keeps room for its scroll bar.
    const int rows = tabs_ != nullptr ? 15 : std::min(table->model()->rowCount(), 15);
    const QHeaderView* heads = table->horizontalHeader();
    int h = std::max(heads->sizeHint().height(), heads->minimumHeight()) +
            std::max(rows, 1) * table->verticalHeader()->defaultSectionSize() +
            2 * table->frameWidth();
    if (widths[i] > window_width - 24) h += table->horizontalScrollBar()->sizeHint().height();
    table->setMinimumHeight(h);
    if (table->model()->rowCount() <= 15) table->setMaximumHeight(h);
    height = std::max(height, h);
  }
  // Sheets under tabs all take the room of the tallest, shown one at a time.
  if (tabs_ != nullptr) {
    for (QTableView* table : tables_) {
      table->setMinimumHeight(height);
      table->setMaximumHeight(QWIDGETSIZE_MAX);
    }
  }
  resize(QSize(window_width, sizeHint().height()).boundedTo(screen));
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && controller_.Escape()) {
    AfterEvent();
    return;
  }
  QDialog::keyPressEvent(event);
}

// Each form opens where it was last left, for the program's run.
std::map<std::string, QPoint>& FormWindow::Positions() {
  static std::map<std::string, QPoint> positions;
  return positions;
}

void FormWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  auto found = Positions().find(controller_.Caption());
  if (found != Positions().end()) move(found->second);
}

void FormWindow::done(int result) {
  Positions()[controller_.Caption()] = pos();
  QDialog::done(result);
}

}  // namespace pluvane
