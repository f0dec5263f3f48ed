#include "ui/selection_window.h"

#include <QHeaderView>
#include <QTableView>
#include <algorithm>

#include "ui/vistrel_window.h"

namespace pluvane {

SelectionWindow::SelectionWindow(FrmSelection& form, QWidget* parent) : FormWindow(form, parent) {
  QTableView* table = Table(0);
  table->horizontalHeader()->setStretchLastSection(true);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  // Names show on one line, the window widened to hold them.
  table->setWordWrap(false);
  const int narrow = table->columnWidth(0);
  table->resizeColumnToContents(0);
  table->setColumnWidth(0, std::max(narrow, table->columnWidth(0) + 16));
  int needed = table->verticalHeader()->sizeHint().width() + 2 * table->frameWidth() + 24;
  for (int c = 0; c < table->model()->columnCount(); ++c) needed += table->columnWidth(c);
  resize(std::max(width(), needed), height());
}

ShowModal ChooserWindow(QWidget* parent) {
  return [parent](FormController& form) {
    SelectionWindow window(static_cast<FrmSelection&>(form), parent);
    window.exec();
  };
}

ShowViewer ViewerWindow(QWidget* parent, UserInterface& ui, const std::string& work_dir) {
  return [parent, &ui, work_dir](ViewerState& state) {
    OpenVistrel(parent, ui, state, state.script, work_dir);
  };
}

}  // namespace pluvane
