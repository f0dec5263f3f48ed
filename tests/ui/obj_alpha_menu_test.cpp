// Util > Importer des objets alpha, from the menu of the window: the form
// shown by the generic form window, its file chosen by a double click, its
// type picked in the box, and the copy into the other network.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>

#include "drawing/surface_helpers.h"
#include "ui/grid_table_view.h"
#include "ui/main_window.h"
#include "ui/main_window_fixture.h"

namespace pluvane {
namespace {

// Answers Yes to the next question box (the file dialog's "replace it?").
void ReplaceOnNextQuestion(std::size_t& asked) {
  QTimer::singleShot(5, [&asked] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box || !box->isVisible()) return ReplaceOnNextQuestion(asked);
    ++asked;
    box->button(QMessageBox::Yes)->click();
  });
}

// A network of two nodes and no library, written to `path`.
void WriteSmallNetwork(const std::string& path) {
  Surface surface;
  for (const char* id : {"Nod_1", "Nod_2"}) {
    surface.AddObject(kKindRectangle, 10, 10, 20, 20);
    surface.SetObjTag("iName", "99");
    surface.SetObjTag("Id", id);
  }
  ASSERT_TRUE(surface.SaveFile(path, kNativeFormat));
}

TEST(ObjAlphaMenu, TheSectionsOfTheNetworkGoIntoTheChosenFile) {
  AppFolder app;
  const std::string dest = app.File("aval.mtf");
  WriteSmallNetwork(dest);
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  Surface& surface = window.surface();
  const int sections = CountByName(surface, 101);
  ASSERT_EQ(sections, 2);
  const int objects = surface.ObjectCount(kPage);

  QString caption, dialog_title, picked;
  QStringList entries;
  bool closed = false;
  std::size_t replaced = 0;
  OnNextForm([&](FormWindow* form) {
    caption = form->windowTitle();
    GridTableView* table = form->Table(0);
    // The file, by a double click on its box; the dialog asks whether to
    // replace the file chosen, which it does.
    AnswerNextFileDialog(dest, dialog_title);
    ReplaceOnNextQuestion(replaced);
    form->DoubleClickCell(0, 1, 2);
    // The type, picked in the list of the box.
    const QModelIndex type = table->model()->index(0, 0);
    table->setFocus();
    table->setCurrentIndex(type);
    table->edit(type);
    auto* combo = form->findChild<QComboBox*>();
    ASSERT_NE(combo, nullptr);
    EXPECT_TRUE(combo->isEditable());
    for (int i = 0; i < combo->count(); ++i) entries << combo->itemText(i);
    combo->setCurrentIndex(0);
    QTest::keyClick(combo, Qt::Key_Return);
    QApplication::processEvents();
    picked = table->model()->data(type).toString();
    form->grab().save(QString::fromStdString(SnapshotPath("frmExportObjAlpha.png")));
    QPushButton* go = form->Button("cmdGo");
    ASSERT_NE(go, nullptr);
    QTest::mouseClick(go, Qt::LeftButton);
    QApplication::processEvents();
    closed = !form->isVisible();
    if (!closed) form->RunCommand("cmdCancel");
  });
  window.RunMenu("mnuUtil_ImportObjAlpha");

  EXPECT_EQ(caption, "Export de données alpha vers un autre Mtf");
  EXPECT_EQ(dialog_title, "Spécifiez le fichier Mtf destination");
  EXPECT_EQ(replaced, 1u);
  ASSERT_GE(entries.size(), 3);
  EXPECT_EQ(entries[0], "101: Section de collecteurs");
  EXPECT_EQ(entries[1], "102: Coefficient de Montana");
  EXPECT_EQ(picked, "101: Section de collecteurs");
  EXPECT_TRUE(closed);
  EXPECT_EQ(window.panels().Status()->text().toStdString(),
            "ok 2 obj de type 101 ont été exportés dans " + dest);
  Surface written;
  ASSERT_TRUE(written.LoadFile(dest, 0));
  EXPECT_EQ(CountByName(written, 101), 2);
  EXPECT_GT(FindObject(written, "Id", "OV150"), 10);
  // The network on screen is as it was.
  EXPECT_EQ(surface.ObjectCount(kPage), objects);
  EXPECT_EQ(CountByName(surface, 101), sections);
  Quit(window);
}

TEST(ObjAlphaMenu, ATypeTypedInTheBoxIsCopiedToo) {
  AppFolder app;
  const std::string dest = app.File("aval.mtf");
  WriteSmallNetwork(dest);
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  std::size_t replaced = 0;
  QString shown, typed;
  OnNextForm([&](FormWindow* form) {
    GridTableView* table = form->Table(0);
    QString title;
    AnswerNextFileDialog(dest, title);
    ReplaceOnNextQuestion(replaced);
    form->DoubleClickCell(0, 1, 2);
    const QModelIndex type = table->model()->index(0, 0);
    shown = table->model()->data(type).toString();
    table->setFocus();
    table->setCurrentIndex(type);
    table->edit(type);
    auto* combo = form->findChild<QComboBox*>();
    ASSERT_NE(combo, nullptr);
    ASSERT_NE(combo->lineEdit(), nullptr);
    combo->lineEdit()->selectAll();
    QTest::keyClicks(combo->lineEdit(), "102:");
    QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
    QApplication::processEvents();
    typed = table->model()->data(type).toString();
    QTest::mouseClick(form->Button("cmdGo"), Qt::LeftButton);
    QApplication::processEvents();
    if (form->isVisible()) form->RunCommand("cmdCancel");
  });
  window.RunMenu("mnuUtil_ImportObjAlpha");
  EXPECT_EQ(shown, "?? : rentrez un nombre entier suivi de 2 points");
  EXPECT_EQ(typed, "102:");
  EXPECT_EQ(window.panels().Status()->text().toStdString(),
            "ok 3 obj de type 102 ont été exportés dans " + dest);
  Surface written;
  ASSERT_TRUE(written.LoadFile(dest, 0));
  EXPECT_EQ(CountByName(written, 102), 3);
  Quit(window);
}

TEST(ObjAlphaMenu, WithoutANetworkItIsRefused) {
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, "", true));
  SeenMessage seen;
  AnswerNextMessage(seen);
  window.RunMenu("mnuUtil_ImportObjAlpha");
  EXPECT_EQ(seen.text, "Un réseau doit être chargé.");
  EXPECT_EQ(seen.title, "Pluvane");
  EXPECT_EQ(seen.icon, QMessageBox::Warning);
  EXPECT_NE(window.panels().Status()->text(), "Fonction non disponible dans cette version.");
  Quit(window);
}

}  // namespace
}  // namespace pluvane
