// The panels of the main window's status bar: pnlStatus (the status text),
// pnlProgress (a bar from 0 to 100, hidden at 0), sbrXY (the pointer's user
// coordinates) and sbrSCN (the current scenario). Each change is painted at
// once, since long treatments only let events run now and then.
#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>
#include <string>

namespace pluvane {

class StatusPanels {
 public:
  explicit StatusPanels(QStatusBar* bar);

  // pnlStatus.
  void SetStatus(const std::string& text);
  // pnlProgress: 1 to 100 shows the bar at that value, 0 (or a negative
  // value) hides it, anything above 100 is ignored.
  void SetProgress(int value);
  // "sbrXY" or "sbrSCN"; an empty sbrSCN hides its panel. False for another name.
  bool SetPanel(const std::string& panel, const std::string& text);

  QLabel* Status() const { return status_; }
  QProgressBar* Progress() const { return progress_; }
  QLabel* XY() const { return xy_; }
  QLabel* Scenario() const { return scenario_; }

 private:
  QStatusBar* bar_;
  QLabel* status_;
  QProgressBar* progress_;
  QLabel* xy_;
  QLabel* scenario_;
};

}  // namespace pluvane
