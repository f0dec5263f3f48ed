// The reaches from the Option menu: the list of reaches, whose chosen row
// draws the reach on the plan, and the creation of a reach by selecting its
// collectors and pressing Enter.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "drawing/surface_helpers.h"
#include "ui/main_window_fixture.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

TEST(ReachMenu, TheListDrawsTheChosenReachOnThePlan) {
  TestApp();
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  QString title;
  std::size_t drawn = 0;
  OnNextForm([&](FormWindow* form) {
    title = form->windowTitle();
    GridTableView* reaches = form->Table(0);
    ASSERT_GE(reaches->model()->rowCount(), 1);
    QTest::mouseClick(reaches->viewport(), Qt::LeftButton, {},
                      reaches->visualRect(reaches->model()->index(0, 0)).center());
    drawn = window.view()->Highlight().size();
    form->reject();
  });
  window.RunMenu("mnuOpt_Bief_Old");
  EXPECT_EQ(title, "Liste des biefs");
  // Bief 1 of the example runs along five collectors: six points.
  EXPECT_EQ(drawn, 6u);
  EXPECT_TRUE(window.view()->Highlight().empty());
  Quit(window);
}

TEST(ReachMenu, NewArmsTheSelectionOfTheCollectors) {
  TestApp();
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  window.RunMenu("mnuOpt_Bief_New");
  EXPECT_EQ(window.application().state().CurrentMode, "ADDBIEF");
  // Enter with nothing selected: the reason, and the mode ends.
  MessageAnswerer answers;
  window.surface().DeselectAll();
  QTest::keyClick(window.view(), Qt::Key_Return);
  ASSERT_EQ(answers.seen().size(), 1u);
  EXPECT_EQ(answers.seen()[0].text, "Sélectionnez au moins un collecteur pour former un bief.");
  EXPECT_EQ(answers.seen()[0].title, "Création d'un nouveau Bief");
  Quit(window);
}

}  // namespace
}  // namespace pluvane
