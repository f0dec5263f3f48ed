// The scenario library as the user meets it: opened from the Scénario menu on
// the example, its heads readable, its "Editer..." button cell opening the
// scenario's own form.
#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QImage>
#include <QTest>
#include <QTimer>
#include <functional>
#include <vector>

#include "drawing/surface_helpers.h"
#include "shell/main_keys.h"
#include "ui/form_window.h"
#include "ui/main_window.h"
#include "ui/main_window_fixture.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

TEST(ScenarioForms, TheEditButtonCellOpensTheScenarioForm) {
  TestApp();
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  std::vector<QString> titles;
  OnNextForm([&](FormWindow* library) {
    titles.push_back(library->windowTitle());
    QTableView* table = library->Table(0);
    QAbstractItemModel* model = table->model();
    ASSERT_GE(model->rowCount(), 1);
    // Every head can be read whole, on one line or wrapped on two.
    const QFontMetrics metrics = table->horizontalHeader()->fontMetrics();
    for (int c = 0; c < model->columnCount(); ++c) {
      const QString head = model->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
      EXPECT_GE(2 * table->columnWidth(c), metrics.horizontalAdvance(head)) << head.toStdString();
    }
    // The window holds its whole grid.
    EXPECT_GE(library->width(), table->horizontalHeader()->length());
    library->grab().toImage().save(QString::fromStdString(SnapshotPath("frmScnSimParam.png")));
    const QModelIndex edit = model->index(0, 2);
    OnNextForm(
        [&, library](FormWindow* scenario) {
          titles.push_back(scenario->windowTitle());
          scenario->grab().toImage().save(
              QString::fromStdString(SnapshotPath("frmScnSimParamPlus.png")));
          scenario->reject();
          QTimer::singleShot(0, library, [library] { library->reject(); });
        },
        library);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(edit).center());
  });
  window.RunMenu("mnuScn_Edit");
  ASSERT_EQ(titles.size(), 2u);
  EXPECT_EQ(titles[0], "Scénarii de simulation");
  EXPECT_EQ(titles[1], "Paramétrage du scénario Decennale");
  Quit(window);
}

TEST(ScenarioForms, AFormValidatedIsOneStepOfTheJournal) {
  TestApp();
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  Surface& surface = window.surface();
  const int before = CountByTag(surface, "iName", 111);
  MessageAnswerer answers({"&Non", "&Non"});
  OnNextForm([](FormWindow* library) {
    library->Button("mnAdd")->click();
    library->Button("mnAdd")->click();
    library->Button("mnSave")->click();
  });
  window.RunMenu("mnuScn_Edit");
  ASSERT_EQ(CountByTag(surface, "iName", 111), before + 2);
  window.interaction().Key(90, kCtrlMask);
  EXPECT_EQ(CountByTag(surface, "iName", 111), before);
  window.interaction().Key(89, kCtrlMask);
  EXPECT_EQ(CountByTag(surface, "iName", 111), before + 2);
  Quit(window);
}

}  // namespace
}  // namespace pluvane
