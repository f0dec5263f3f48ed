// Exploitation > Recherche...: a check of the example from the menu, and a
// click on a line of its report that locates the element on the drawing.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QInputDialog>
#include <QTest>
#include <QTimer>
#include <functional>

#include "drawing/surface_helpers.h"
#include "ui/main_window_fixture.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

TEST(CheckMenu, ALineOfTheReportLocatesItsElement) {
  TestApp();
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  Surface& surface = window.surface();
  QString title;
  QString first;
  QString last;
  std::vector<int> selected;
  int current = 0;
  OnNextForm([&](FormWindow* form) {
    title = form->windowTitle();
    // The report as the user sees it, kept for the documentation.
    EXPECT_TRUE(form->grab().toImage().save(QString::fromStdString(SnapshotPath("check_report.png"))));
    GridTableView* lines = form->Table(0);
    const int rows = lines->model()->rowCount();
    ASSERT_GE(rows, 3);
    first = lines->model()->index(0, 0).data().toString();
    last = lines->model()->index(rows - 1, 0).data().toString();
    surface.DeselectAll();
    QTest::mouseClick(lines->viewport(), Qt::LeftButton, {},
                      lines->visualRect(lines->model()->index(0, 0)).center());
    selected = SelectedObjects(surface);
    current = surface.CurrentObject();
    form->reject();
  });
  window.RunMenu("mnuExploit_Coherence_D0");
  EXPECT_EQ(title, "Recherche de valeur interdite");
  // Every route of the example goes through the diameter test.
  ASSERT_TRUE(first.startsWith("Id : Rou_")) << first.toStdString();
  EXPECT_TRUE(last.startsWith(" éléments trouvés : ")) << last.toStdString();
  const std::string id = first.mid(5, first.indexOf(" : ", 5) - 5).toStdString();
  const int route = FindObject(surface, "Id", id);
  ASSERT_GT(route, 0);
  EXPECT_EQ(selected, std::vector<int>{route});
  EXPECT_EQ(current, route);
  Quit(window);
}


TEST(CheckMenu, ARegenerationOfTheLabelsIsUndoneInOneStep) {
  TestApp();
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  Surface& surface = window.surface();
  const int church = FindObject(surface, "libell", "Église");
  ASSERT_GT(church, 0);
  const std::string id = TagOfObject(surface, church, "Id");
  {
    // The confirmation, then the type (nodes), then the report.
    MessageAnswerer answers({"&Oui"});
    std::function<void()> type_in = [&type_in] {
      auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
      if (!box) return QTimer::singleShot(5, type_in);
      box->setTextValue("99");
      box->accept();
    };
    QTimer::singleShot(5, type_in);
    window.RunMenu("mnuUtil_MajObjByIname");
    ASSERT_EQ(answers.seen().size(), 2u);
    EXPECT_EQ(answers.seen()[0].text,
              "Les libellés des elm prendront les valeurs internes des identifiants");
    EXPECT_TRUE(answers.seen()[1].text.startsWith("ok, "));
    EXPECT_TRUE(answers.seen()[1].text.endsWith(" libellés régénérés"));
  }
  EXPECT_EQ(TagOfObject(surface, church, "libell"), id);
  QTest::keyClick(window.view(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(TagOfObject(surface, church, "libell"), "Église");
  Quit(window);
}

}  // namespace
}  // namespace pluvane
