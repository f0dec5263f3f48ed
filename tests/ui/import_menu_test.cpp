// Fichier > Importer > Fichier texte > Noeuds, from the menu of the window: the
// file dialog, the question of the calibration, the column dialog as the user
// sees it (its picture kept), and the nodes placed in one step of the journal.
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QInputDialog>
#include <QPushButton>
#include <QTimer>
#include <filesystem>

#include "drawing/surface_helpers.h"
#include "foundation/test_files.h"
#include "shell/main_keys.h"
#include "ui/main_window.h"
#include "ui/main_window_fixture.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

void AnswerNextInput(const QString& answer, QString& title, QString& label) {
  QTimer::singleShot(5, [answer, &title, &label] {
    auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
    if (!box) return AnswerNextInput(answer, title, label);
    title = box->windowTitle();
    label = box->labelText();
    box->setTextValue(answer);
    box->accept();
  });
}

TEST(ImportMenu, NodesFromATextTable) {
  TestApp();
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  Surface& surface = window.surface();
  ASSERT_EQ(CountByTag(surface, "iName", 99), 30);
  const std::string table = app.File("reseau/regards.txt");
  WriteBytes(table, "\"Regard A\" 1000 2000 12.5\r\nRB 1500 2500 12\r\nRC 1800 2100 11.5\r\n");
  WriteBytes(app.File("reseau/regards.Fld"), " 1 \r\n 2 \r\n 3 \r\n 4 \r\n");

  QString file_title, input_title, input_label, form_title;
  AnswerNextFileDialog(table, file_title);
  AnswerNextInput("2", input_title, input_label);
  OnNextForm([&form_title](FormWindow* form) {
    form_title = form->windowTitle();
    QApplication::processEvents();
    fs::create_directories(SnapshotPath("forms"));
    EXPECT_TRUE(form->grab().toImage().save(
        QString::fromStdString(SnapshotPath("forms/import_columns.png"))));
    for (QPushButton* button : form->findChildren<QPushButton*>()) {
      if (button->text() == "OK") return button->click();
    }
    ADD_FAILURE() << "no OK button";
    form->reject();
  });
  window.RunMenu("MnuFi_Import_Txt_Nod");
  EXPECT_EQ(file_title, "Charger un fichier texte contenant des noeuds à importer");
  EXPECT_EQ(input_title, "Import des noeuds");
  EXPECT_TRUE(input_label.startsWith("L' espace de travail n'est pas calé."))
      << input_label.toStdString();
  EXPECT_EQ(form_title, "Import des noeuds");
  EXPECT_EQ(CountByTag(surface, "iName", 99), 33);
  EXPECT_GT(FindObject(surface, "libell", "REGARD_A"), 10);
  // One step of the journal takes the whole import back.
  window.interaction().Key(90, kCtrlMask);
  EXPECT_EQ(CountByTag(surface, "iName", 99), 30);
  Quit(window);
}

}  // namespace
}  // namespace pluvane
