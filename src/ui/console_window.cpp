#include "ui/console_window.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "ui/grid_table_model.h"

namespace pluvane {

ConsoleWindow::ConsoleWindow(ConsoleModel& model, QWidget* parent)
    : QDialog(parent), model_(model) {
  setObjectName(model_.IsLog() ? "logMESSAGE" : "frmMESSAGE");
  setModal(false);
  auto* layout = new QVBoxLayout(this);
  list_ = new QListWidget(this);
  list_->setObjectName("lstMessage");
  list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list_->setUniformItemSizes(true);
  list_->installEventFilter(this);
  layout->addWidget(list_);
  bar_ = new QProgressBar(this);
  bar_->setObjectName("prbAvancement");
  bar_->setRange(0, 100);
  label_ = new QLabel(this);
  label_->setObjectName("lblAvancement");
  layout->addWidget(bar_);
  layout->addWidget(label_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  if (model_.IsLog()) {
    print_ = new QPushButton("&Imprimer", this);
    print_->setObjectName("cmdImprimer");
    close_ = new QPushButton("&Fermer", this);
    close_->setObjectName("cmdOk");
    connect(print_, &QPushButton::clicked, this, [this] { model_.cmdImprimer(); });
    connect(close_, &QPushButton::clicked, this, [this] { model_.cmdOk(); });
    buttons->addWidget(print_);
    buttons->addWidget(close_);
  } else {
    cancel_ = new QPushButton("Annuler (Esc)", this);
    cancel_->setObjectName("cmdAnnuler");
    connect(cancel_, &QPushButton::clicked, this, [this] { model_.cmdAnnuler(); });
    buttons->addWidget(cancel_);
  }
  layout->addLayout(buttons);
  model_.changed = [this] { Refresh(); };
  resize(560, 380);
  Refresh();
}

void ConsoleWindow::Refresh() {
  setWindowTitle(QString::fromStdString(model_.Caption()));
  const auto& lines = model_.Lines();
  if (static_cast<int>(lines.size()) < shown_lines_) {
    list_->clear();
    shown_lines_ = 0;
  }
  for (std::size_t i = shown_lines_; i < lines.size(); ++i) {
    list_->addItem(QString::fromStdString(lines[i]));
  }
  shown_lines_ = static_cast<int>(lines.size());
  if (model_.TopIndex() > 0 && list_->count() > 0) list_->scrollToBottom();
  bar_->setVisible(model_.GaugeVisible());
  label_->setVisible(model_.GaugeVisible());
  bar_->setValue(model_.GaugeValue());
  label_->setText(QString::fromStdString(model_.GaugeText()));
  QPalette palette = list_->palette();
  palette.setColor(QPalette::Base, model_.Pale() ? QtColourOf(ConsoleModel::kPaleColour)
                                                 : QApplication::palette().color(QPalette::Base));
  list_->setPalette(palette);
  if (cancel_) cancel_->setEnabled(model_.CancelEnabled());
  if (print_) print_->setEnabled(model_.ClosingButtonsEnabled());
  if (close_) {
    close_->setEnabled(model_.ClosingButtonsEnabled());
    if (model_.ClosingButtonsEnabled()) close_->setFocus();
  }
  if (model_.Visible() && !isVisible()) show();
  if (!model_.Visible() && isVisible()) hide();
}

void ConsoleWindow::CopySelection() {
  std::vector<std::string> lines;
  for (int i = 0; i < list_->count(); ++i) {
    if (list_->item(i)->isSelected()) lines.push_back(list_->item(i)->text().toStdString());
  }
  QApplication::clipboard()->setText(QString::fromStdString(ConsoleModel::CopyText(lines)));
}

bool ConsoleWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == list_ && event->type() == QEvent::KeyPress) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->matches(QKeySequence::SelectAll)) {
      list_->selectAll();
      return true;
    }
    if (key->matches(QKeySequence::Copy)) {
      CopySelection();
      return true;
    }
    if (key->matches(QKeySequence::Paste)) {
      model_.PasteRefused();
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

void ConsoleWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    // Esc cancels a running treatment; it never just closes the console.
    if (!model_.IsLog()) model_.cmdAnnuler();
    return;
  }
  QDialog::keyPressEvent(event);
}

}  // namespace pluvane
