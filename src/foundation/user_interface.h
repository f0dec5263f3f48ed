// The port through which every treatment and form talks to the person at the
// screen: messages, questions, file and folder choices, status line, progress.
// The desktop program answers with real dialogs; ScriptedUi answers tests and
// the command line from a queue and records everything that was said.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace pluvane {

// The icon of a message box, as the old message boxes had them.
enum class MessageIcon { kNone, kCritical, kQuestion, kExclamation, kInformation };

enum class Answer { kYes, kNo, kCancel };

struct FontChoice {
  std::string name;
  double size = 10;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike = false;
  std::int32_t color = 0;
};

class UserInterface {
 public:
  virtual ~UserInterface() = default;

  // A modal message with only an OK button.
  virtual void ShowMessage(const std::string& text, const std::string& title,
                           MessageIcon icon) = 0;
  // A yes/no box; `default_yes` false makes No the default button.
  virtual bool AskYesNo(const std::string& text, const std::string& title,
                        MessageIcon icon = MessageIcon::kQuestion, bool default_yes = true) = 0;
  virtual Answer AskYesNoCancel(const std::string& text, const std::string& title,
                                MessageIcon icon = MessageIcon::kQuestion) = 0;
  // An input box: the text typed, or nullopt when the user cancelled.
  virtual std::optional<std::string> AskText(const std::string& prompt, const std::string& title,
                                             const std::string& default_text) = 0;
  // File dialogs: the chosen path, or empty when cancelled. `filter` keeps the
  // old "Label (*.ext)|*.ext" form.
  virtual std::string AskOpenFile(const std::string& title, const std::string& filter,
                                  const std::string& default_ext,
                                  const std::string& initial_name) = 0;
  virtual std::string AskSaveFile(const std::string& title, const std::string& filter,
                                  const std::string& default_ext,
                                  const std::string& initial_name) = 0;
  virtual std::string BrowseFolder(const std::string& initial_folder,
                                   const std::string& title) = 0;
  // Colours are 24-bit with blue in the high byte (red + 256 green + 65536 blue).
  virtual std::optional<std::int32_t> ChooseColour(std::int32_t initial) = 0;
  virtual std::optional<FontChoice> ChooseFont(const FontChoice& initial) = 0;

  // Status line text and the progress bar of the main window (value 0 to 100,
  // a negative value hides the bar).
  virtual void ShowStatus(const std::string& text) = 0;
  virtual void ShowProgress(int value) = 0;
  // Other texts of the main window: "caption" (the window title), "sbrXY" and
  // "sbrSCN" (status panels). An empty "sbrSCN" hides that panel.
  virtual void ShowPanel(const std::string& panel, const std::string& text) = 0;
  // Writes the drawing as a picture (SVG, PDF or PNG by the extension); false
  // when it could not be written or no picture writer exists here.
  virtual bool SaveDrawingPicture(const std::string& path) = 0;

  // Opens a text file for reading in a plain text editor and returns at once.
  // False when no editor could be started.
  virtual bool EditFile(const std::string& path) = 0;

  // Prints lines of text, one printer line each, in the given type size, after
  // the print dialog. Returns an empty text on success, else the description of
  // what went wrong (the dialog cancelled included).
  virtual std::string PrintLines(const std::vector<std::string>& lines, double point_size) = 0;

  // The system clipboard. PutClipboardData replaces its content by data of one
  // type (a MIME type); ClipboardData gives the data of a type, empty when the
  // clipboard holds none; ClipboardEmpty is true when it holds nothing at all.
  // CopyDrawingPicture puts a picture of the whole drawing on it, false when
  // none could be made. Without a clipboard nothing is kept.
  virtual void PutClipboardData(const std::string& /*type*/, const std::string& /*data*/) {}
  virtual std::string ClipboardData(const std::string& /*type*/) { return ""; }
  virtual bool ClipboardEmpty() { return true; }
  virtual bool CopyDrawingPicture() { return false; }

  // Lets pending events run during a long treatment (repaint, cancel button).
  virtual void PumpEvents() {}
  virtual void Beep() {}
};

}  // namespace pluvane
