// The grid of every form, used with the keyboard as a spreadsheet.
#include "ui/grid_table_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include "ui/form_window.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

// A form of three columns (a name of at most 5 characters, a number from -10
// to 10 with 2 decimals, a count from 0 to 99) and 20 rows.
class TableForm : public FormController {
 public:
  TableForm() : grid_(3, 20) {
    grid_.SetColHead(1, "Nom");
    grid_.SetColHead(2, "Valeur");
    grid_.SetColHead(3, "Nombre");
    grid_.SetColumnType(1, CellType::Text(5));
    grid_.SetColumnType(2, CellType::Float(-10, 10, 2));
    grid_.SetColumnType(3, CellType::Integer(0, 99));
    for (int col = 1; col <= 3; ++col) grid_.SetColWidth(col, 10);
  }
  std::string Caption() const override { return "Essai de grille"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override {
    return {{"cmdOk", "&Ok", [this] { ++oks; }}};
  }
  Grid& grid() { return grid_; }
  int oks = 0;

 private:
  Grid grid_;
};

struct Typing {
  TableForm form;
  FormWindow window{form};
  GridTableView* table = nullptr;
  bool active = false;

  Typing() {
    window.show();
    window.activateWindow();
    active = QTest::qWaitForWindowActive(&window);
    table = window.Table(0);
    table->setFocus();
    table->setCurrentIndex(table->model()->index(0, 0));
  }
  // The keys go where the focus is in the window: the table, or its open cell.
  QWidget* Focus() { return window.focusWidget() ? window.focusWidget() : table; }
  void Type(const QString& text) {
    for (const QChar c : text) QTest::keyClicks(Focus(), QString(c));
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(Focus(), key, modifiers);
    QApplication::processEvents();
  }
  int Row() const { return table->currentIndex().row() + 1; }
  int Col() const { return table->currentIndex().column() + 1; }
};

TEST(GridTableView, TypingOpensTheCellEnterWritesItAndGoesDown) {
  TestApp();
  Typing t;
  ASSERT_TRUE(t.active);
  t.Type("Ab");
  t.Key(Qt::Key_Return);
  EXPECT_EQ(t.form.grid().Text(1, 1), "Ab");
  EXPECT_EQ(t.Row(), 2);
  EXPECT_EQ(t.Col(), 1);
  EXPECT_EQ(t.form.oks, 0);  // Enter is the grid's, not the button's
  // Enter on a cell that is not open goes down too.
  t.Key(Qt::Key_Return);
  EXPECT_EQ(t.Row(), 3);
}

TEST(GridTableView, TabWritesAndGoesRightArrowsMoveF2Opens) {
  TestApp();
  Typing t;
  ASSERT_TRUE(t.active);
  t.Type("x");
  t.Key(Qt::Key_Tab);
  EXPECT_EQ(t.form.grid().Text(1, 1), "x");
  EXPECT_EQ(t.Col(), 2);
  t.Key(Qt::Key_Down);
  t.Key(Qt::Key_Right);
  EXPECT_EQ(t.Row(), 2);
  EXPECT_EQ(t.Col(), 3);
  t.form.grid().SetText(3, 2, "12");
  t.Key(Qt::Key_F2);
  auto* editor = qobject_cast<QLineEdit*>(t.Focus());
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->text(), "12");
  t.Key(Qt::Key_End);
  t.Type("3");
  t.Key(Qt::Key_Escape);  // Escape gives the old text back
  EXPECT_EQ(t.form.grid().Text(3, 2), "12");
}

TEST(GridTableView, NumbersKeepTheirRangeAndDecimalsTextsTheirLength) {
  TestApp();
  Typing t;
  ASSERT_TRUE(t.active);
  t.Type("abcdefgh");
  t.Key(Qt::Key_Return);
  EXPECT_EQ(t.form.grid().Text(1, 1), "abcde");

  t.table->setCurrentIndex(t.table->model()->index(0, 1));
  t.Type("2,5");
  t.Key(Qt::Key_Return);
  EXPECT_EQ(t.form.grid().Text(2, 1), "2.5");
  EXPECT_EQ(t.table->model()->index(0, 1).data().toString(), "2.50");
  // Out of range: the cell is not written.
  t.Type("25");
  t.Key(Qt::Key_Return);
  t.Key(Qt::Key_Escape);
  EXPECT_EQ(t.form.grid().Text(2, 2), "");

  t.table->setCurrentIndex(t.table->model()->index(0, 2));
  t.Type("7.5");  // no decimals in a count: the point is refused
  t.Key(Qt::Key_Return);
  EXPECT_EQ(t.form.grid().Text(3, 1), "75");
}

TEST(GridTableView, ABlockFromASpreadsheetIsPastedAndCopiedBack) {
  TestApp();
  Typing t;
  ASSERT_TRUE(t.active);
  QString block;
  for (int row = 1; row <= 20; ++row) {
    block += QString("n%1\t%2\t%3\r\n").arg(row).arg(row / 4.0).arg(row * 2);
  }
  QApplication::clipboard()->setText(block);
  t.Key(Qt::Key_V, Qt::ControlModifier);
  Grid& grid = t.form.grid();
  EXPECT_EQ(grid.Text(1, 1), "n1");
  EXPECT_EQ(grid.Text(2, 3), "0.75");
  EXPECT_EQ(grid.Text(2, 4), "1");
  EXPECT_EQ(grid.Text(3, 20), "40");
  EXPECT_EQ(grid.Text(1, 20), "n20");

  // Ctrl+C of a selected block gives it back, tab- and line-separated.
  QItemSelection selection(t.table->model()->index(1, 0), t.table->model()->index(2, 2));
  t.table->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  t.Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "n2\t0.5\t4\r\nn3\t0.75\t6\r\n");
}

// A form with one list cell that notes when its list drops down.
class ListForm : public FormController {
 public:
  ListForm() : grid_(1, 1) {
    grid_.SetType(1, 1, CellType::List("Horton\tSCS\tCoefficient"));
    grid_.SetText(1, 1, "Horton");
  }
  std::string Caption() const override { return "Essai de liste"; }
  std::vector<Grid*> Grids() override { return {&grid_}; }
  std::vector<FormCommand> Commands() override { return {}; }
  void ListDropDown(Grid& grid, int col, int row) override {
    events.push_back("ouverte sur " + grid.Text(col, row));
  }
  std::vector<std::string> events;

 private:
  Grid grid_;
};

TEST(GridTableView, AListTellsTheFormWhenItDropsDownAndWritesTheChoiceAsItClosesUp) {
  TestApp();
  ListForm form;
  FormWindow window(form);
  window.show();
  GridTableView* table = window.Table(0);
  table->edit(table->model()->index(0, 0));
  auto* combo = table->findChild<GridComboBox*>();
  ASSERT_NE(combo, nullptr);
  EXPECT_EQ(combo->count(), 3);
  combo->showPopup();
  combo->setCurrentIndex(1);
  combo->hidePopup();
  QApplication::processEvents();
  EXPECT_EQ(form.events, (std::vector<std::string>{"ouverte sur Horton"}));
  EXPECT_EQ(form.Grids()[0]->Text(1, 1), "SCS");
  EXPECT_EQ(form.Grids()[0]->ListIndex(1, 1), 1);
}

TEST(GridTableView, AFormOpensAgainWhereItWasLeft) {
  TestApp();
  TableForm form;
  {
    FormWindow window(form);
    window.show();
    window.move(123, 87);
    QApplication::processEvents();
    window.RunCommand("cmdOk");
    window.accept();
  }
  FormWindow again(form);
  again.show();
  QApplication::processEvents();
  EXPECT_EQ(again.pos(), QPoint(123, 87));
}

}  // namespace
}  // namespace pluvane
