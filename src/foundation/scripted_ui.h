// A UserInterface without a screen: it records every message and question in
// order and answers questions from a queue, falling back to each question's
// default. Tests assert on what it recorded; the command line echoes it.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "foundation/user_interface.h"

namespace pluvane {

struct UiMessage {
  std::string kind;  // "message", "yesno", "yesnocancel", "text", "open", "save", "folder"
  std::string text;
  std::string title;
  MessageIcon icon = MessageIcon::kNone;
};

class ScriptedUi : public UserInterface {
 public:
  // Queued answers, taken in order by the questions: "yes", "no", "cancel",
  // or the text, path or folder to return. An empty queue gives the default.
  void Queue(const std::string& answer) { answers_.push_back(answer); }
  void QueueYes() { Queue("yes"); }
  void QueueNo() { Queue("no"); }
  void QueueCancel() { Queue("cancel"); }

  const std::vector<UiMessage>& Messages() const { return messages_; }
  // Texts only, for compact assertions.
  std::vector<std::string> Texts() const;
  const UiMessage& Last() const;
  bool Empty() const { return messages_.empty(); }
  void Clear();
  const std::vector<std::string>& Statuses() const { return statuses_; }
  const std::vector<int>& Progress() const { return progress_; }
  const std::vector<std::string>& EditedFiles() const { return edited_files_; }
  int PumpCount() const { return pumps_; }
  // The last text shown in each panel ("caption", "sbrSCN"...).
  std::string Panel(const std::string& panel) const;
  const std::vector<std::string>& SavedPictures() const { return saved_pictures_; }

  // Called with "title: text" for each message and question (the command line
  // prints it to standard error).
  std::function<void(const std::string&)> echo;
  // What SaveDrawingPicture answers.
  bool picture_succeeds = true;
  // What CopyDrawingPicture answers; a picture copied sits on the clipboard
  // under the type kPictureType.
  bool clipboard_picture_succeeds = true;
  static constexpr const char* kPictureType = "image/png";
  // The in-memory clipboard: (type, data) pairs, tests may fill it directly.
  std::vector<std::pair<std::string, std::string>> clipboard;
  // What EditFile answers.
  bool edit_file_succeeds = true;
  // What PrintLines answers (empty: printed), and what it was given.
  std::string print_error;
  std::vector<std::vector<std::string>> printed;

  void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) override;
  bool AskYesNo(const std::string& text, const std::string& title, MessageIcon icon,
                bool default_yes) override;
  Answer AskYesNoCancel(const std::string& text, const std::string& title,
                        MessageIcon icon) override;
  std::optional<std::string> AskText(const std::string& prompt, const std::string& title,
                                     const std::string& default_text) override;
  std::string AskOpenFile(const std::string& title, const std::string& filter,
                          const std::string& default_ext,
                          const std::string& initial_name) override;
  std::string AskSaveFile(const std::string& title, const std::string& filter,
                          const std::string& default_ext,
                          const std::string& initial_name) override;
  std::string BrowseFolder(const std::string& initial_folder, const std::string& title) override;
  std::optional<std::int32_t> ChooseColour(std::int32_t initial) override;
  std::optional<FontChoice> ChooseFont(const FontChoice& initial) override;
  void ShowStatus(const std::string& text) override;
  void ShowProgress(int value) override;
  void ShowPanel(const std::string& panel, const std::string& text) override;
  bool SaveDrawingPicture(const std::string& path) override;
  bool EditFile(const std::string& path) override;
  std::string PrintLines(const std::vector<std::string>& lines, double point_size) override;
  void PutClipboardData(const std::string& type, const std::string& data) override;
  std::string ClipboardData(const std::string& type) override;
  bool ClipboardEmpty() override { return clipboard.empty(); }
  bool CopyDrawingPicture() override;
  void PumpEvents() override { ++pumps_; }

 private:
  void Record(const std::string& kind, const std::string& text, const std::string& title,
              MessageIcon icon);
  // Takes the next queued answer, or nullopt when the queue is empty.
  std::optional<std::string> Next();

  std::vector<UiMessage> messages_;
  std::deque<std::string> answers_;
  std::vector<std::string> statuses_;
  std::vector<int> progress_;
  std::vector<std::string> edited_files_;
  std::vector<std::pair<std::string, std::string>> panels_;
  std::vector<std::string> saved_pictures_;
  int pumps_ = 0;
};

}  // namespace pluvane
