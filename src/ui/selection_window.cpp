#include "ui/selection_window.h"

#include <QHeaderView>
#include <QTableView>

#include "ui/vistrel_window.h"

namespace pluvane {

SelectionWindow::SelectionWindow(FrmSelection& form, QWidget* parent) : FormWindow(form, parent) {
  QTableView* table = Table(0);
  table->horizontalHeader()->setStretchLastSection(true);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  connect(table, &QTableView::clicked, this, [&form](const QModelIndex& index) {
    // The check box swaps itself; the name's cell swaps it through the form.
    if (index.isValid() && index.column() == 0) form.Spread1_Click(index.row() + 1);
  });
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
