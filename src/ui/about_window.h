// The about window: one picture and one text (the program's name, version and
// purpose). Enter and Esc close it. From the "?" menu it is modal; at start,
// when FlashScreen asks for it, it is shown for a moment without blocking.
#pragma once

#include <QDialog>
#include <QLabel>
#include <string>

namespace pluvane {

class AboutWindow : public QDialog {
  Q_OBJECT

 public:
  AboutWindow(const std::string& symbol_dir, QWidget* parent = nullptr);

  QLabel* Picture() const { return picture_; }
  QLabel* Text() const { return text_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QLabel* picture_;
  QLabel* text_;
};

}  // namespace pluvane
