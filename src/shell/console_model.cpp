#include "shell/console_model.h"

#include "foundation/dates.h"

namespace pluvane {

ConsoleModel::ConsoleModel(UserInterface& ui, bool is_log) : ui_(ui), is_log_(is_log) {}

void ConsoleModel::Notify() {
  if (changed) changed();
}

void ConsoleModel::Debut(const std::string& title) {
  caption_ = title;
  status_.clear();
  visible_ = true;
  running_ = true;
  pale_ = false;
  closing_enabled_ = false;
  cancel_enabled_ = true;
  Notify();
}

void ConsoleModel::Append(const std::string& text) {
  if (lines_.size() >= capacity_) {
    // The list is full: offer a printout, then start again empty.
    if (ui_.AskYesNo("Liste pleine : voulez-vous imprimer ces messages avant de les effacer",
                     caption_, MessageIcon::kQuestion, true)) {
      cmdImprimer();
    }
    Clear();
  }
  lines_.push_back(text);
  const int count = static_cast<int>(lines_.size());
  if (count >= kVisibleLines) top_index_ = count - 15;
}

void ConsoleModel::AfficheMessage(const std::string& text) {
  Append(text);
  Notify();
  ui_.PumpEvents();
}

void ConsoleModel::AfficheJauge(int value, const std::string& text) {
  if (!gauge_visible_) {
    gauge_visible_ = true;
    gauge_value_ = 0;
    gauge_text_.clear();
  }
  if (value >= 0 && value <= 100 && value != gauge_value_) {
    gauge_value_ = value;
    gauge_text_ = text;
  }
  Notify();
}

void ConsoleModel::EffaceJauge() {
  gauge_visible_ = false;
  Notify();
}

void ConsoleModel::Fin(bool close) {
  const bool cancelled = status_ == "ANNUL";
  Append("");
  Append(cancelled ? "<<< Traitement annulé >>>" : "<<< Traitement terminé >>>");
  if (is_log_) Append("");
  gauge_visible_ = false;
  pale_ = true;
  running_ = false;
  cancel_enabled_ = false;
  if (close) {
    visible_ = false;
  } else {
    closing_enabled_ = true;
  }
  Notify();
}

void ConsoleModel::Clear() {
  lines_.clear();
  top_index_ = 0;
  Notify();
}

void ConsoleModel::cmdAnnuler() {
  if (!cancel_enabled_) return;
  if (ui_.AskYesNo("Confirmer l'arrêt du traitement", caption_, MessageIcon::kExclamation,
                   false)) {
    status_ = "ANNUL";
  }
}

void ConsoleModel::cmdOk() {
  status_ = "OK";
  visible_ = false;
  Notify();
}

bool ConsoleModel::cmdImprimer() {
  std::vector<std::string> page;
  page.reserve(lines_.size() + 2);
  page.push_back(caption_ + " - édité le " + FrenchDateTime(Now()));
  page.push_back("");
  page.insert(page.end(), lines_.begin(), lines_.end());
  std::string error = ui_.PrintLines(page, 11);
  if (!error.empty()) {
    ui_.ShowMessage(error, caption_, MessageIcon::kCritical);
    return false;
  }
  return true;
}

void ConsoleModel::PasteRefused() {
  ui_.ShowMessage("Coller avec Ctrl+V n'est pas permis", caption_, MessageIcon::kExclamation);
}

std::string ConsoleModel::CopyText(const std::vector<std::string>& lines) {
  std::string text;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (i > 0) text += '\n';
    text += lines[i];
  }
  return text;
}

}  // namespace pluvane
