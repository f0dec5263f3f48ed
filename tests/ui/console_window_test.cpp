#include "ui/console_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QTest>

#include "foundation/scripted_ui.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

TEST(ConsoleWindow, ShowsARunWithItsGaugeThenThePaleEnd) {
  TestApp();
  ScriptedUi ui;
  ConsoleModel model(ui, true);
  ConsoleWindow window(model);
  model.Debut("Génération du modèle");
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(window.windowTitle(), "Génération du modèle");
  for (int i = 1; i <= 20; ++i) model.AfficheMessage("Ecriture du fichier " + std::to_string(i));
  model.AfficheJauge(45, "Noeuds");
  QApplication::processEvents();
  EXPECT_TRUE(window.Bar()->isVisible());
  EXPECT_EQ(window.Bar()->value(), 45);
  EXPECT_EQ(window.List()->count(), 20);
  window.grab().toImage().save(QString::fromStdString(SnapshotPath("console_running.png")));
  const QColor base = window.List()->palette().color(QPalette::Base);

  model.Fin(false);
  QApplication::processEvents();
  EXPECT_FALSE(window.Bar()->isVisible());
  EXPECT_EQ(window.List()->count(), 23);
  EXPECT_EQ(window.List()->item(21)->text(), "<<< Traitement terminé >>>");
  EXPECT_EQ(window.List()->palette().color(QPalette::Base), QColor(192, 255, 255));
  EXPECT_NE(base, QColor(192, 255, 255));
  EXPECT_TRUE(window.CloseButton()->isEnabled());
  EXPECT_TRUE(window.PrintButton()->isEnabled());
  window.grab().toImage().save(QString::fromStdString(SnapshotPath("console_finished.png")));

  window.CloseButton()->click();
  EXPECT_EQ(model.GetStatus(), "OK");
  EXPECT_FALSE(window.isVisible());
}

TEST(ConsoleWindow, KeysOfTheList) {
  TestApp();
  ScriptedUi ui;
  ConsoleModel model(ui, false);
  ConsoleWindow window(model);
  model.Debut("Messages");
  model.AfficheMessage("un");
  model.AfficheMessage("deux");
  QTest::keyClick(window.List(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(window.List(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "un\ndeux");
  QTest::keyClick(window.List(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(ui.Last().text, "Coller avec Ctrl+V n'est pas permis");
  ui.QueueYes();
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(model.GetStatus(), "ANNUL");
  EXPECT_EQ(ui.Last().text, "Confirmer l'arrêt du traitement");
}

}  // namespace
}  // namespace pluvane
