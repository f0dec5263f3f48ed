// The message console of a running treatment and the log window that stays
// open after it: the list of lines, the gauge, the status word that the cancel
// button sets to "ANNUL", the pale list of a finished run. The Qt windows show
// this model and forward their buttons and keys to it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "foundation/user_interface.h"
#include "foundation/console.h"

namespace pluvane {

class ConsoleModel : public Console {
 public:
  // `is_log` makes the log window (logMESSAGE): one more empty line at the end
  // and the closing buttons; otherwise the running console (frmMESSAGE).
  ConsoleModel(UserInterface& ui, bool is_log);

  // The colour of the list of a finished run (red 192, green 255, blue 255).
  static constexpr std::int32_t kPaleColour = 192 + 255 * 256 + 255 * 65536;
  // The list shows 17 lines at most before it scrolls.
  static constexpr int kVisibleLines = 17;

  void Debut(const std::string& title) override;
  void AfficheMessage(const std::string& text) override;
  void AfficheJauge(int value, const std::string& text) override;
  void EffaceJauge() override;
  void Fin(bool close) override;
  std::string GetStatus() const override { return status_; }
  void SetStatus(const std::string& status) override { status_ = status; }
  void Clear() override;

  // Buttons and keys of the windows.
  void cmdAnnuler();
  void cmdOk();
  // Prints the list under its header; false when nothing was printed.
  bool cmdImprimer();
  // Ctrl+V on the list.
  void PasteRefused();
  // The lines joined by line feeds, as Ctrl+C copies them.
  static std::string CopyText(const std::vector<std::string>& lines);

  // How many lines the list holds before it is full; past it the user is
  // offered a printout and the list starts again empty.
  void SetCapacity(std::size_t capacity) { capacity_ = capacity; }

  // What the windows show.
  const std::string& Caption() const { return caption_; }
  const std::vector<std::string>& Lines() const { return lines_; }
  int TopIndex() const { return top_index_; }
  bool GaugeVisible() const { return gauge_visible_; }
  int GaugeValue() const { return gauge_value_; }
  const std::string& GaugeText() const { return gauge_text_; }
  bool Pale() const { return pale_; }
  bool Visible() const { return visible_; }
  bool Running() const { return running_; }
  bool CancelEnabled() const { return cancel_enabled_; }
  bool ClosingButtonsEnabled() const { return closing_enabled_; }
  bool IsLog() const { return is_log_; }

  // Told after every change, so that a window can repaint.
  std::function<void()> changed;

 private:
  void Notify();
  void Append(const std::string& text);

  UserInterface& ui_;
  bool is_log_;
  std::string caption_ = "Messages";
  std::vector<std::string> lines_;
  int top_index_ = 0;
  bool gauge_visible_ = false;
  int gauge_value_ = 0;
  std::string gauge_text_;
  std::string status_;
  bool pale_ = false;
  bool visible_ = false;
  bool running_ = false;
  bool cancel_enabled_ = false;
  bool closing_enabled_ = false;
  std::size_t capacity_ = 100000;
};

}  // namespace pluvane
