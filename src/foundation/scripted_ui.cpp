#include "foundation/scripted_ui.h"

#include <stdexcept>

namespace pluvane {

std::vector<std::string> ScriptedUi::Texts() const {
  std::vector<std::string> texts;
  for (const auto& m : messages_) texts.push_back(m.text);
  return texts;
}

const UiMessage& ScriptedUi::Last() const {
  if (messages_.empty()) throw std::logic_error("ScriptedUi: no message was shown");
  return messages_.back();
}

void ScriptedUi::Clear() {
  messages_.clear();
  statuses_.clear();
  progress_.clear();
  edited_files_.clear();
  panels_.clear();
}

void ScriptedUi::Record(const std::string& kind, const std::string& text,
                        const std::string& title, MessageIcon icon) {
  messages_.push_back({kind, text, title, icon});
  if (echo) echo(title + ": " + text);
}

std::optional<std::string> ScriptedUi::Next() {
  if (answers_.empty()) return std::nullopt;
  std::string a = answers_.front();
  answers_.pop_front();
  return a;
}

void ScriptedUi::ShowMessage(const std::string& text, const std::string& title,
                             MessageIcon icon) {
  Record("message", text, title, icon);
}

bool ScriptedUi::AskYesNo(const std::string& text, const std::string& title, MessageIcon icon,
                          bool default_yes) {
  Record("yesno", text, title, icon);
  auto a = Next();
  return a ? *a == "yes" : default_yes;
}

Answer ScriptedUi::AskYesNoCancel(const std::string& text, const std::string& title,
                                  MessageIcon icon) {
  Record("yesnocancel", text, title, icon);
  auto a = Next();
  if (!a || *a == "yes") return Answer::kYes;
  return *a == "no" ? Answer::kNo : Answer::kCancel;
}

std::optional<std::string> ScriptedUi::AskText(const std::string& prompt,
                                               const std::string& title,
                                               const std::string& default_text) {
  Record("text", prompt, title, MessageIcon::kNone);
  auto a = Next();
  if (!a) return default_text;
  if (*a == "cancel") return std::nullopt;
  return a;
}

std::string ScriptedUi::AskOpenFile(const std::string& title, const std::string&,
                                    const std::string&, const std::string& initial_name) {
  Record("open", initial_name, title, MessageIcon::kNone);
  auto a = Next();
  return a && *a != "cancel" ? *a : std::string();
}

std::string ScriptedUi::AskSaveFile(const std::string& title, const std::string&,
                                    const std::string&, const std::string& initial_name) {
  Record("save", initial_name, title, MessageIcon::kNone);
  auto a = Next();
  return a && *a != "cancel" ? *a : std::string();
}

std::string ScriptedUi::BrowseFolder(const std::string& initial_folder, const std::string& title) {
  Record("folder", initial_folder, title, MessageIcon::kNone);
  auto a = Next();
  return a && *a != "cancel" ? *a : std::string();
}

std::optional<std::int32_t> ScriptedUi::ChooseColour(std::int32_t initial) {
  auto a = Next();
  if (!a) return initial;
  if (*a == "cancel") return std::nullopt;
  return static_cast<std::int32_t>(std::stol(*a));
}

std::optional<FontChoice> ScriptedUi::ChooseFont(const FontChoice& initial) {
  auto a = Next();
  if (a && *a == "cancel") return std::nullopt;
  FontChoice f = initial;
  if (a) f.name = *a;
  return f;
}

void ScriptedUi::ShowStatus(const std::string& text) { statuses_.push_back(text); }

void ScriptedUi::ShowProgress(int value) { progress_.push_back(value); }

void ScriptedUi::ShowPanel(const std::string& panel, const std::string& text) {
  panels_.emplace_back(panel, text);
}

std::string ScriptedUi::Panel(const std::string& panel) const {
  for (auto it = panels_.rbegin(); it != panels_.rend(); ++it) {
    if (it->first == panel) return it->second;
  }
  return {};
}

bool ScriptedUi::SaveDrawingPicture(const std::string& path) {
  saved_pictures_.push_back(path);
  return picture_succeeds;
}

void ScriptedUi::PutClipboardData(const std::string& type, const std::string& data) {
  clipboard = {{type, data}};
}

std::string ScriptedUi::ClipboardData(const std::string& type) {
  for (const auto& [held_type, data] : clipboard) {
    if (held_type == type) return data;
  }
  return "";
}

bool ScriptedUi::CopyDrawingPicture() {
  if (!clipboard_picture_succeeds) return false;
  clipboard = {{kPictureType, "picture"}};
  return true;
}

std::string ScriptedUi::PrintLines(const std::vector<std::string>& lines, double) {
  if (print_error.empty()) printed.push_back(lines);
  return print_error;
}

bool ScriptedUi::EditFile(const std::string& path) {
  edited_files_.push_back(path);
  return edit_file_succeeds;
}

}  // namespace pluvane
