#include "ui/status_panels.h"

namespace pluvane {

namespace {

QLabel* Panel(QStatusBar* bar, const char* name, int min_width) {
  auto* label = new QLabel(bar);
  label->setObjectName(name);
  label->setMinimumWidth(min_width);
  label->setContentsMargins(6, 0, 6, 0);
  return label;
}

}  // namespace

StatusPanels::StatusPanels(QStatusBar* bar) : bar_(bar) {
  status_ = Panel(bar, "pnlStatus", 200);
  progress_ = new QProgressBar(bar);
  progress_->setObjectName("pnlProgress");
  progress_->setRange(0, 100);
  progress_->setFixedWidth(160);
  progress_->setMaximumHeight(16);
  progress_->setTextVisible(false);
  progress_->hide();
  xy_ = Panel(bar, "sbrXY", 180);
  xy_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  scenario_ = Panel(bar, "sbrSCN", 120);
  scenario_->hide();
  bar->addWidget(status_, 1);
  bar->addWidget(progress_);
  bar->addPermanentWidget(xy_);
  bar->addPermanentWidget(scenario_);
}

void StatusPanels::SetStatus(const std::string& text) {
  status_->setText(QString::fromStdString(text));
  status_->repaint();
}

void StatusPanels::SetProgress(int value) {
  if (value > 100) return;
  if (value <= 0) {
    progress_->hide();
    return;
  }
  progress_->setValue(value);
  progress_->show();
  progress_->repaint();
}

bool StatusPanels::SetPanel(const std::string& panel, const std::string& text) {
  QLabel* label = panel == "sbrXY" ? xy_ : panel == "sbrSCN" ? scenario_ : nullptr;
  if (!label) return false;
  label->setText(QString::fromStdString(text));
  if (label == scenario_) label->setVisible(!text.empty());
  label->repaint();
  return true;
}

}  // namespace pluvane
