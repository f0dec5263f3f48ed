// The windows of the message console: frmMESSAGE while a treatment runs (a
// cancel button, Esc), logMESSAGE for reading a log afterwards (print and
// close). Both show a ConsoleModel: its lines, its gauge, the pale list of a
// finished run.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

#include "shell/console_model.h"

namespace pluvane {

class ConsoleWindow : public QDialog {
  Q_OBJECT

 public:
  ConsoleWindow(ConsoleModel& model, QWidget* parent = nullptr);

  QListWidget* List() const { return list_; }
  QProgressBar* Bar() const { return bar_; }
  QPushButton* CancelButton() const { return cancel_; }
  QPushButton* PrintButton() const { return print_; }
  QPushButton* CloseButton() const { return close_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Refresh();
  void CopySelection();

  ConsoleModel& model_;
  QListWidget* list_;
  QProgressBar* bar_;
  QLabel* label_;
  QPushButton* cancel_ = nullptr;
  QPushButton* print_ = nullptr;
  QPushButton* close_ = nullptr;
  int shown_lines_ = 0;
};

}  // namespace pluvane
