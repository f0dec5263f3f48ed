// Fichier > Exporter from the menu of the window: the drawing as a picture
// by the extension chosen, and the text exports through their dialogs, the
// chooser and the message console.
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QImage>
#include <QListWidget>
#include <QTimer>
#include <filesystem>

#include "foundation/test_files.h"
#include "foundation/text.h"
#include "ui/main_window.h"
#include "ui/main_window_fixture.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

TEST(ExportMenu, TheDrawingIsWrittenInTheFormatOfItsExtension) {
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  for (const char* name : {"plan.svg", "plan.pdf", "plan.png", "plan.emf", "plan.wmf"}) {
    const std::string path = app.File(name);
    QString title;
    AnswerNextFileDialog(path, title);
    window.RunMenu("MnuFi_Export_Emf");
    EXPECT_EQ(title, "Exporter le dessin en fichier metafile de Windows");
    const std::string bytes = ReadBytes(path);
    ASSERT_FALSE(bytes.empty()) << name;
    const std::string extension = fs::path(name).extension().string();
    if (extension == ".pdf") {
      EXPECT_EQ(bytes.substr(0, 5), "%PDF-") << name;
    } else if (extension == ".png") {
      EXPECT_EQ(bytes.substr(0, 8), "\x89PNG\r\n\x1a\n") << name;
      QImage picture;
      ASSERT_TRUE(picture.load(QString::fromStdString(path)));
      EXPECT_EQ(picture.width(), 1600);
    } else {
      // SVG, also under the old metafile names.
      EXPECT_NE(bytes.find("<svg"), std::string::npos) << name;
    }
  }
  Quit(window);
}

TEST(ExportMenu, NodesGoToTheFolderChosen) {
  AppFolder app;
  fs::create_directories(app.File("sortie"));
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  QString title;
  AnswerNextFileDialog(app.File("sortie"), title);
  MessageAnswerer answerer;
  window.RunMenu("MnuFi_Export_Txt_Nod");
  EXPECT_EQ(title, "Sélection du répertoire de destination");
  const std::string file = app.File("sortie/Demo_Nod.txt");
  ASSERT_EQ(answerer.seen().size(), 1u);
  EXPECT_EQ(answerer.seen()[0].text.toStdString(),
            "ok, 30 noeuds ont été regénérés dans le fichier \r" + file);
  EXPECT_EQ(answerer.seen()[0].title, "Export de noeuds en fichier");
  std::vector<std::string> lines;
  ASSERT_TRUE(ReadTextLines(file, lines));
  EXPECT_EQ(lines.size(), 30u);
  Quit(window);
}

TEST(ExportMenu, CollectorsChosenInTheChooserAndReportedInTheConsole) {
  AppFolder app;
  fs::create_directories(app.File("sortie"));
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  std::string caption;
  OnNextForm([&](FormWindow* form) {
    caption = form->windowTitle().toStdString();
    form->RunCommand("mnSelection");
    form->RunCommand("mnDessiner");
  });
  QString title;
  // The folder dialog follows the chooser.
  QTimer::singleShot(20, [&] { AnswerNextFileDialog(app.File("sortie"), title); });
  window.RunMenu("MnuFi_Export_Txt_Can");
  EXPECT_EQ(caption, "choix d'élément à exporter");
  EXPECT_EQ(title, "Sélection du répertoire de destination");
  ConsoleWindow* log = window.log_window();
  ASSERT_NE(log, nullptr);
  EXPECT_TRUE(log->isVisible());
  EXPECT_EQ(log->windowTitle(), "Export de canalisation");
  ASSERT_GE(log->List()->count(), 3);
  EXPECT_EQ(log->List()->item(0)->text(), "<<< Export des canalisations du reseau = Demo >>>");
  EXPECT_TRUE(log->List()->item(2)->text().endsWith(QString::fromStdString(
      "\tont été regénérés dans le fichier " + app.File("sortie/Demo_CI.txt"))));
  EXPECT_TRUE(fs::exists(app.File("sortie/Demo_CI.txt")));
  // The report is gone once shown, and so are the chooser's files.
  EXPECT_FALSE(fs::exists(app.File("reseau/ExportApp.msg")));
  EXPECT_FALSE(fs::exists(app.File("reseau/ExportApp_In.tmp")));
  EXPECT_FALSE(fs::exists(app.File("reseau/ExportApp_Sel.tmp")));
  Quit(window);
}

}  // namespace
}  // namespace pluvane
