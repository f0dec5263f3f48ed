// The one window that shows any form's logic: its caption, a table for each
// of its grids, a button for each of its commands. A click runs the command;
// clicks, double clicks and leaving a cell go to the form as cell events;
// when the form has unloaded itself, the window closes. A form opens again
// where it was left.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <QTabBar>
#include <QTableView>
#include <map>
#include <string>
#include <vector>

#include "foundation/form_controller.h"
#include "ui/grid_table_view.h"

namespace pluvane {

class FormWindow : public QDialog {
  Q_OBJECT

 public:
  explicit FormWindow(FormController& controller, QWidget* parent = nullptr);

  GridTableView* Table(int index) const { return tables_.at(index); }
  // The tabs of a form whose grids are sheets; null for the others.
  QTabBar* Tabs() const { return tabs_; }
  QPushButton* Button(const std::string& command) const;
  // Runs a command as its button does.
  void RunCommand(const std::string& command);
  // Gives a cell event of table `index` to the form, then follows what the
  // form did (closed, buttons enabled).
  void ClickCell(int index, int col, int row);
  void DoubleClickCell(int index, int col, int row);
  void LeaveCell(int index, int col, int row);
  void ListDropDown(int index, int col, int row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void done(int result) override;

 private:
  void AfterEvent();
  void RefreshButtons();
  void RefreshTables();
  void FitToGrids();
  static std::map<std::string, QPoint>& Positions();

  FormController& controller_;
  QTabBar* tabs_ = nullptr;
  std::vector<GridTableView*> tables_;
  std::vector<GridTableModel*> models_;
  std::vector<std::pair<std::string, QPushButton*>> buttons_;
  bool leaving_ = false;
};

}  // namespace pluvane
