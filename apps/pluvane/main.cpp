// The desktop program: pluvane [NETWORK.mtf [0] [n]].
#include <QApplication>
#include <QTimer>
#include <string>

#include "ui/main_window.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  std::string command_line;
  for (int i = 1; i < argc; ++i) {
    std::string arg = argv[i];
    if (!command_line.empty()) command_line += ' ';
    command_line += arg.find(' ') != std::string::npos ? "\"" + arg + "\"" : arg;
  }
  pluvane::MainWindow window;
  if (!window.Start(QCoreApplication::applicationDirPath().toStdString(), command_line)) return 1;
  window.show();
  if (!window.Activate()) return 1;
  return app.exec();
}
