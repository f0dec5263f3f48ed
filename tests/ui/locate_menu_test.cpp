// Util > Localiser, from the menu of the window on the example.
#include <gtest/gtest.h>

#include <QApplication>
#include <QInputDialog>
#include <QTimer>

#include "drawing/surface_helpers.h"
#include "ui/main_window.h"
#include "ui/main_window_fixture.h"

namespace pluvane {
namespace {

// Types `text` into the next input box as soon as it shows, and keeps its prompt.
void AnswerNextInput(const QString& text, QString& prompt) {
  QTimer::singleShot(0, [text, &prompt] {
    auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
    if (!box) return AnswerNextInput(text, prompt);
    prompt = box->labelText();
    box->setTextValue(text);
    box->accept();
  });
}

TEST(LocateMenu, ByLabelAndByIdTheElementIsSelected) {
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  Surface& surface = window.surface();
  const int church = FindObject(surface, "libell", "Église");
  ASSERT_GT(church, 10);

  QString prompt;
  SeenMessage seen;
  AnswerNextInput("église", prompt);
  AnswerNextMessage(seen);
  window.RunMenu("mnuUtil_LocObjByUsId");
  EXPECT_EQ(prompt, "Rentrer la désignation de l'élément à localiser.");
  EXPECT_EQ(seen.title, "Localisation d'élément");
  EXPECT_EQ(seen.text, "1 élément trouvé:\nÉglise type NOD");
  EXPECT_EQ(SelectedObjects(surface), std::vector<int>{church});

  AnswerNextInput("Cac_1", prompt);
  AnswerNextMessage(seen);
  window.RunMenu("mnuUtil_LocObjById");
  EXPECT_EQ(seen.text.left(18), "1 élément trouvé:\n");
  EXPECT_EQ(SelectedObjects(surface), std::vector<int>{FindObject(surface, "Id", "Cac_1")});
  Quit(window);
}

}  // namespace
}  // namespace pluvane
