// The Pluie menu on the example: each entry opens its library in a window;
// a storm is edited and drawn from there.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <map>

#include "drawing/surface_helpers.h"
#include "ui/main_window_fixture.h"
#include "ui/test_app.h"
#include "ui/vistrel_window.h"

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

// A synthetic storm typed point by point in its edition form, drawn in the
// viewer, then saved into the library.
TEST(RainMenu, ASyntheticStormIsTypedDrawnAndSaved) {
  TestApp();
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  QString edition_title, viewer_title, new_id;
  OnNextForm([&](FormWindow* library) {
    Click(library, "mnAdd");
    GridTableView* rows = library->Table(0);
    const int last = rows->model()->rowCount() - 1;
    new_id = rows->model()->index(last, 0).data().toString();
    OnNextForm(
        [&](FormWindow* edition) {
          edition_title = edition->windowTitle();
          const char* points[][2] = {{"0", "0"}, {"15", "120"}, {"60", "10"}};
          for (int row = 1; row <= 3; ++row) {
            Click(edition, "mnAdd");
            TypeInto(edition, 1, row, points[row - 1][0]);
            TypeInto(edition, 2, row, points[row - 1][1]);
          }
          OnNextModal<VistrelWindow>([&](VistrelWindow* viewer) {
            viewer_title = viewer->windowTitle();
            viewer->grab().save(QString::fromStdString(SnapshotPath("hyetograph_synthetic.png")));
            viewer->close();
          });
          Click(edition, "mnVisu");
          Click(edition, "mnSave");
          Click(library, "mnSave");
        },
        library);
    // The row's "Editer..." button.
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, {},
                      rows->visualRect(rows->model()->index(last, 2)).center());
  });
  window.RunMenu("mnuPlu_Proj_Synth");
  EXPECT_EQ(edition_title, "Pluie de projet I(t)");
  EXPECT_TRUE(viewer_title.contains("Pluie synthétique")) << viewer_title.toStdString();
  const int storm = FindObject(window.surface(), "Id", new_id.toStdString());
  ASSERT_GT(storm, 0) << new_id.toStdString();
  EXPECT_EQ(TagOfObject(window.surface(), storm, "NbPt"), "3");
  EXPECT_EQ(TagOfObject(window.surface(), storm, "Y2"), "120");
  Quit(window);
}

}  // namespace
}  // namespace pluvane
