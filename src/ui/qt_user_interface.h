// The desktop answer to UserInterface: real message boxes, file, colour and
// font dialogs, the main window's status line and progress bar.
#pragma once

#include <QImage>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "foundation/user_interface.h"

namespace pluvane {

class QtUserInterface : public UserInterface {
 public:
  explicit QtUserInterface(QWidget* owner = nullptr) : owner_(owner) {}
  void SetOwner(QWidget* owner) { owner_ = owner; }

  // Where ShowStatus and ShowProgress go; the main window sets them.
  std::function<void(const std::string&)> status_sink;
  std::function<void(int)> progress_sink;
  std::function<void(const std::string&, const std::string&)> panel_sink;
  std::function<bool(const std::string&)> picture_writer;
  // The picture of the whole drawing that CopyDrawingPicture puts on the clipboard.
  std::function<QImage()> drawing_renderer;

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
  bool ClipboardEmpty() override;
  bool CopyDrawingPicture() override;
  void PumpEvents() override;
  void Beep() override;

 private:
  QPointer<QWidget> owner_;
};

// "Label (*.a;*.b)|*.a;*.b|..." as the old dialogs took it, to Qt's
// "Label (*.a *.b);;..." form.
QString QtFilterOf(const std::string& filter);

}  // namespace pluvane
