// The console keeps repainting while the engine runs: RunAndWait blocks the
// command, not the window. A stand-in Velmar sleeps five seconds; a timer
// adds a line to the console every 200 ms, and the paint events of the
// console that arrive before the engine ends are counted.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QElapsedTimer>
#include <QEvent>
#include <QTimer>
#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "foundation/paths.h"
#include "foundation/test_files.h"
#include "foundation/text.h"
#include "shell/app_state.h"
#include "shell/console_model.h"
#include "simulation/engine_run.h"
#include "ui/console_window.h"
#include "ui/qt_user_interface.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

// Counts the paint events of the watched widgets while `counting` is set.
class PaintCounter : public QObject {
 public:
  bool counting = false;
  int paints = 0;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (counting && event->type() == QEvent::Paint) ++paints;
    return QObject::eventFilter(watched, event);
  }
};

TEST(EngineRunRepaint, TheConsoleRepaintsDuringAFiveSecondEngineRun) {
  TestApp();
  TempFolder app;
  AppState state;
  state.AppPath = app.Path();
  state.ScenarioName = "Decennale";
  state.NetworkBase = "Demo";
  state.ModelName = "Decennale_Demo";
  state.ModelFolder = app.File("Decennale");
  std::filesystem::create_directories(state.ModelFolder);
  const std::string velmar = app.File("Velmar");
  WriteBytes(velmar, "#!/bin/sh\nsleep 5\necho 0 > Velmar.err\n");
  ::chmod(velmar.c_str(), 0755);
  const std::string msg = JoinPath(state.ModelFolder, "Decennale_Demo.msg");
  WriteTextLines(msg, {"<<< Début du traitement >>>"});

  QtUserInterface ui;
  ConsoleModel model(ui, false);
  ConsoleWindow window(model);
  model.Debut("Génération du modèle Decennale");
  QApplication::processEvents();
  ASSERT_TRUE(window.isVisible());

  PaintCounter counter;
  window.installEventFilter(&counter);
  window.List()->viewport()->installEventFilter(&counter);
  int ticks = 0;
  qint64 longest_gap = 0, last_tick = 0;
  QElapsedTimer clock;
  QTimer timer;
  timer.setInterval(200);
  QObject::connect(&timer, &QTimer::timeout, [&] {
    ++ticks;
    longest_gap = std::max(longest_gap, clock.elapsed() - last_tick);
    last_tick = clock.elapsed();
    model.AfficheMessage("calcul en cours... " + std::to_string(ticks));
  });

  counter.counting = true;
  clock.start();
  timer.start();
  EXPECT_TRUE(RunVelmar(state, ui));
  const qint64 ran = clock.elapsed();
  timer.stop();
  counter.counting = false;

  EXPECT_GE(ran, 4900);
  // The timer kept its pace, and the list took its lines and was painted
  // again and again while the engine ran.
  EXPECT_GE(ticks, 15);
  EXPECT_LT(longest_gap, 1000);
  EXPECT_GE(window.List()->count(), ticks);
  EXPECT_GE(counter.paints, 10);
  std::vector<std::string> log;
  ASSERT_TRUE(ReadTextLines(msg, log));
  EXPECT_EQ(log.back(), "");
  EXPECT_EQ(log[log.size() - 2], "Génération réussie (Velmar)");
}

}  // namespace
}  // namespace pluvane
