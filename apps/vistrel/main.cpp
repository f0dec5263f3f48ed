// vistrel: our own plot viewer, started with one argument, the plot script
// to show. It ends with 0 once its window is closed, with 1 when the script
// is missing or cannot be drawn (a message box says why).
#include <QApplication>
#include <QDir>
#include <clocale>
#include <string>
#include <vector>

#include "plot/viewer_session.h"
#include "ui/qt_user_interface.h"
#include "ui/vistrel_program.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  // Numbers in scripts and curve files use the point whatever the locale.
  std::setlocale(LC_NUMERIC, "C");
  pluvane::QtUserInterface ui;
  std::vector<std::string> args;
  for (const QString& arg : app.arguments().mid(1)) args.push_back(arg.toStdString());
  pluvane::VistrelProgram program;
  const int refused = pluvane::StartVistrel(ui, args, QDir::currentPath().toStdString(), program);
  if (refused != 0) return refused;
  ui.SetOwner(program.window.get());
  program.window->show();
  const int code = app.exec();
  pluvane::EndViewer(program.state);
  return code;
}
