// The Pluie menu on the example: each entry opens its library in a window,
// which closes again with Escape.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <map>

#include "ui/main_window_fixture.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

TEST(RainMenu, EveryEntryOpensItsForm) {
  TestApp();
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  MessageAnswerer answers;
  std::map<std::string, QString> titles;
  for (const char* entry :
       {"mnuPlu_Proj_Montana", "mnuPlu_Proj_Caquot", "mnuPlu_Proj_1Tri", "mnuPlu_Proj_2Tri",
        "mnuPlu_Proj_Synth", "mnuPlu_Real_Pluvio", "mnuPlu_Real_Hyeto", "mnuPlu_Real_PlvExt",
        "mnuPlu_Real_Radar", "mnuPlu_Lst"}) {
    window.panels().SetStatus("");
    OnNextForm([&, entry](FormWindow* form) {
      titles[entry] = form->windowTitle();
      form->reject();
    });
    window.RunMenu(entry);
    QApplication::processEvents();
    EXPECT_NE(window.panels().Status()->text(), "Fonction non disponible dans cette version.")
        << entry;
  }
  for (const auto& [entry, title] : titles) EXPECT_FALSE(title.isEmpty()) << entry;
  EXPECT_EQ(titles.size(), 10u);
  for (const SeenMessage& seen : answers.seen()) {
    ADD_FAILURE() << seen.title.toStdString() << ": " << seen.text.toStdString();
  }
  Quit(window);
}

}  // namespace
}  // namespace pluvane
