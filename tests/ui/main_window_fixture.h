// What the tests of the main window share: a copy of the programs' folder the
// test may change, the first load and activation of a window on it, the
// answer to its modal message boxes, and the quit at the end.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "foundation/test_files.h"
#include "ui/form_window.h"
#include "ui/grid_table_view.h"
#include "ui/main_window.h"
#include "ui/test_app.h"

namespace pluvane {

// A copy of the programs' folder (configuration, symbols, cursors, icons) that the
// test may change, with Demo.mtf in a folder of its own. The Qt application
// stands from then on, so that the test's windows may be made.
class AppFolder {
 public:
  AppFolder() {
    TestApp();
    namespace fs = std::filesystem;
    const fs::path bin(PLUVANE_BIN);
    fs::copy_file(bin / "pluvane.ini", fs::path(folder_.Path()) / "pluvane.ini");
    for (const char* sub : {"Symboles", "Curseurs", "Icones"}) {
      fs::copy(bin / sub, fs::path(folder_.Path()) / sub, fs::copy_options::recursive);
    }
    fs::create_directories(fs::path(folder_.Path()) / "reseau");
    fs::copy_file(bin / "Exemples" / "Demo.mtf", fs::path(Demo()));
  }
  std::string Path() const { return folder_.Path(); }
  std::string Ini() const { return folder_.File("pluvane.ini"); }
  std::string Demo() const {
    return (std::filesystem::path(folder_.Path()) / "reseau" / "Demo.mtf").string();
  }
  std::string File(const std::string& name) const { return folder_.File(name); }

 private:
  TempFolder folder_;
};

struct SeenMessage {
  QString text;
  QString title;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
};

// Answers the next modal message box as soon as it shows (with the button of
// that caption, or plain acceptance), and keeps what it said.
inline void AnswerNextMessage(SeenMessage& seen, const QString& button = {}) {
  QTimer::singleShot(0, [&seen, button] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return AnswerNextMessage(seen, button);
    seen = {box->text(), box->windowTitle(), box->icon()};
    for (QAbstractButton* b : box->buttons()) {
      if (b->text() == button) return b->click();
    }
    box->accept();
  });
}

// Answers the next file or folder dialog with `path` as soon as it shows, and
// keeps its title.
inline void AnswerNextFileDialog(const std::string& path, QString& title) {
  QTimer::singleShot(0, [path, &title] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog) return AnswerNextFileDialog(path, title);
    title = dialog->windowTitle();
    if (dialog->fileMode() == QFileDialog::Directory) {
      dialog->setDirectory(QString::fromStdString(path));
    } else {
      dialog->selectFile(QString::fromStdString(path));
    }
    static_cast<QDialog*>(dialog)->accept();
  });
}

// While it lives, answers every modal message box that shows: with the next
// button caption of `answers` if any is left, else by plain acceptance; and
// keeps what each said, in order.
class MessageAnswerer {
 public:
  explicit MessageAnswerer(std::vector<QString> answers = {}) : answers_(std::move(answers)) {
    timer_.setInterval(5);
    QObject::connect(&timer_, &QTimer::timeout, [this] { Answer(); });
    timer_.start();
  }
  const std::vector<SeenMessage>& seen() const { return seen_; }

 private:
  void Answer() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || !box->isVisible()) return;
    seen_.push_back({box->text(), box->windowTitle(), box->icon()});
    if (next_ < answers_.size()) {
      const QString button = answers_[next_++];
      for (QAbstractButton* b : box->buttons()) {
        if (b->text() == button) return b->click();
      }
    }
    box->accept();
  }

  QTimer timer_;
  std::vector<QString> answers_;
  std::size_t next_ = 0;
  std::vector<SeenMessage> seen_;
};

// Runs `step` on the next window of that class that shows as the modal one
// (other than `after`).
template <typename Window>
void OnNextModal(std::function<void(Window*)> step, QWidget* after = nullptr) {
  QTimer::singleShot(10, [step, after] {
    auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
    if (!window || window == after || !window->isVisible()) return OnNextModal<Window>(step, after);
    step(window);
  });
}

// Runs `step` on the next form window that shows as the modal one (other
// than `after`).
inline void OnNextForm(std::function<void(FormWindow*)> step, QWidget* after = nullptr) {
  OnNextModal<FormWindow>(std::move(step), after);
}

// Types `text` into the cell (col, row) of the form's first grid with the
// keyboard, as a user does: the cell chosen, the keys, Enter.
inline void TypeInto(FormWindow* form, int col, int row, const QString& text) {
  GridTableView* table = form->Table(0);
  table->setFocus();
  table->setCurrentIndex(table->model()->index(row - 1, col - 1));
  for (const QChar c : text) {
    QWidget* focus = form->focusWidget() ? form->focusWidget() : table;
    QTest::keyClicks(focus, QString(c));
  }
  QWidget* focus = form->focusWidget() ? form->focusWidget() : table;
  QTest::keyClick(focus, Qt::Key_Return);
  QApplication::processEvents();
}

// Clicks the form's button of that command.
inline void Click(FormWindow* form, const char* command) {
  QPushButton* button = form->Button(command);
  ASSERT_NE(button, nullptr) << command;
  QTest::mouseClick(button, Qt::LeftButton);
}

// The first load and the first activation of the window on the copy, with
// `command_line` as the program was given it.
inline bool Open(MainWindow& window, const AppFolder& app, const std::string& command_line,
                 bool show = false) {
  TestApp();
  if (!window.Start(app.Path(), command_line)) return false;
  if (show) window.show();
  return window.Activate();
}

// Quits through the menu, without saving a network that is open.
inline void Quit(MainWindow& window) {
  SeenMessage seen;
  const bool asks = window.surface().ObjectCount(kPage) >= 2;
  if (asks) AnswerNextMessage(seen, "&Non");
  EXPECT_TRUE(window.application().QuitCommand());
  if (asks) {
    EXPECT_TRUE(seen.text.startsWith("Voulez-vous sauvegarder le réseau en cours ?"));
  }
  window.close();
}

// A main window of 1280 by 800 pixels on a copy of the programs' folder,
// shown and opened on StartNetwork() (none unless a test says), and quit at
// the end.
class MainWindowTest : public ::testing::Test {
 protected:
  void SetUp() override { Reopen(StartNetwork()); }
  void TearDown() override { Quit(*window_); }
  virtual std::string StartNetwork() const { return ""; }

  // A new window in place of the one standing, opened on `network`.
  void Reopen(const std::string& network) {
    if (window_) window_->close();
    window_ = std::make_unique<MainWindow>();
    window_->resize(1280, 800);
    ASSERT_TRUE(Open(*window_, app_, network, true));
    QApplication::processEvents();
  }

  Surface& surface() { return window_->surface(); }
  SurfaceView* view() { return window_->view(); }

  AppFolder app_;
  std::unique_ptr<MainWindow> window_;
};

}  // namespace pluvane
