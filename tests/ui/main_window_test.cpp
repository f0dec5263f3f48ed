#include "ui/main_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QMessageBox>
#include <QProgressBar>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <filesystem>

#include "foundation/ini_profile.h"
#include "foundation/test_files.h"
#include "network/view_zoom.h"
#include "shell/main_menus.h"
#include "ui/background_dialog.h"
#include "ui/test_app.h"
#include "ui/main_window_fixture.h"
#include "ui/pdf_page.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

bool Enabled(MainWindow& window, const char* name) {
  QAction* action = window.Action(name);
  EXPECT_NE(action, nullptr) << name;
  return action && action->isEnabled();
}

TEST(MainWindow, TheDrawingIsTheCentralWidget) {
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, "", true));
  EXPECT_EQ(window.windowTitle(), "Pluvane");
  EXPECT_EQ(window.centralWidget(), window.view());
  EXPECT_EQ(window.view()->objectName(), "MDraw1");
  // Pictures of the drawing go through the main window's writer.
  const std::string picture = app.File("drawing.png");
  EXPECT_TRUE(window.user_interface().SaveDrawingPicture(picture));
  QImage drawn;
  EXPECT_TRUE(drawn.load(QString::fromStdString(picture)));
  EXPECT_EQ(drawn.width(), 1600);
  EXPECT_FALSE(window.user_interface().SaveDrawingPicture(picture + ".dxf"));
  Quit(window);
}

TEST(MainWindow, EveryMenuItemExistsAndTheUnbuiltOnesSaySo) {
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, ""));
  for (const char* name :
       {"mnuFile_Open", "mnuFile_Quit", "mnuScn_ModeleRun", "MnuFi_Import_Mif_Nod",
        "mnuExploit_ResCarto", "mnuMyUtil_Down", "mnuRufList"}) {
    EXPECT_NE(window.Action(name), nullptr) << name;
  }
  EXPECT_EQ(window.Action("mnuFile")->text(), "&Fichier");
  EXPECT_EQ(window.Action("mnuFile_SaveAs")->text(), "S&auvegarder sous...");
  // Every entry of the menus and pop-ups that is no sub-menu has its command.
  std::vector<std::string> unbuilt;
  for (const auto* items : {&MainMenus(), &PopupMenus()}) {
    for (std::size_t i = 0; i < items->size(); ++i) {
      const MenuItem& item = (*items)[i];
      const bool parent = i + 1 < items->size() && (*items)[i + 1].level > item.level;
      // The recent files' sub-menu is filled as files are opened.
      if (item.level == 0 || parent || item.name == "mnuRufList") continue;
      if (!window.HasCommand(std::string(item.name))) unbuilt.emplace_back(item.name);
    }
  }
  EXPECT_EQ(unbuilt, std::vector<std::string>{});
  window.RunMenu("mnuAucunMenu");
  EXPECT_EQ(window.panels().Status()->text(), "Fonction non disponible dans cette version.");
  // A built one does its work: here it asks for a selection first.
  {
    MessageAnswerer answers;
    window.RunMenu("mnuMyUtil_Down");
    ASSERT_EQ(answers.seen().size(), 1u);
    EXPECT_EQ(answers.seen()[0].text.toStdString(), "Les objets doivent être sélectionnés !");
  }
  Quit(window);
}

TEST(MainWindow, MenusFollowTheNetworkOfTheCommandLine) {
  TestApp();
  AppFolder app;
  {
    MainWindow empty;
    ASSERT_TRUE(empty.Start(app.Path(), ""));
    ASSERT_TRUE(empty.Activate());
    for (const char* name :
         {"mnuPluie", "mnuOption", "mnuScn", "mnuExploitation", "mnuFile_Export", "mnuUtil"}) {
      EXPECT_FALSE(Enabled(empty, name)) << name;
    }
    EXPECT_TRUE(Enabled(empty, "mnuFile_Import"));
    // The file menu as it opens on an empty drawing.
    emit empty.Menu("mnuFile")->aboutToShow();
    EXPECT_FALSE(Enabled(empty, "mnuFile_Save"));
    EXPECT_FALSE(Enabled(empty, "mnuFile_SaveAs"));
    EXPECT_FALSE(Enabled(empty, "mnuFile_Close"));
    EXPECT_FALSE(Enabled(empty, "mnuFile_Export"));
    Quit(empty);
  }
  MainWindow window;
  ASSERT_TRUE(window.Start(app.Path(), app.Demo()));
  ASSERT_TRUE(window.Activate());
  EXPECT_EQ(window.application().state().NetworkFile, app.Demo());
  EXPECT_EQ(window.windowTitle().toStdString(), app.Demo());
  EXPECT_GT(window.surface().ObjectCount(kPage), 10);
  for (const char* name :
       {"mnuPluie", "mnuOption", "mnuScn", "mnuExploitation", "mnuFile_Export", "mnuUtil"}) {
    EXPECT_TRUE(Enabled(window, name)) << name;
  }
  emit window.Menu("mnuFile")->aboutToShow();
  EXPECT_TRUE(Enabled(window, "mnuFile_Save"));
  EXPECT_TRUE(Enabled(window, "mnuFile_Close"));
  // The scenario menu names the current scenario in its generation item.
  window.application().state().ScenarioName = "Scn-1";
  emit window.Menu("mnuScn")->aboutToShow();
  EXPECT_EQ(window.Action("mnuScn_ModeleGen")->text(), "Génération du &modèle Scn-1");
  Quit(window);
}

TEST(MainWindow, ACommandLineFileThatIsNotANetworkClosesTheWindow) {
  TestApp();
  AppFolder app;
  WriteBytes(app.File("notes.txt"), "x");
  MainWindow window;
  ASSERT_TRUE(window.Start(app.Path(), app.File("notes.txt")));
  SeenMessage seen;
  AnswerNextMessage(seen);
  EXPECT_FALSE(window.Activate());
  EXPECT_EQ(seen.text, "Fichier MTF inconnu");
  EXPECT_EQ(seen.title, "Pluvane");
}

TEST(MainWindow, ANumberOfMinusOneOnTheCommandLineFailsLikeABadFile) {
  TestApp();
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(window.Start(app.Path(), app.Demo() + " 0 -1"));
  SeenMessage seen;
  AnswerNextMessage(seen);
  EXPECT_FALSE(window.Activate());
  EXPECT_EQ(seen.text, "Fichier MTF inconnu");
  // The display flag "0" asked for a minimised window.
  EXPECT_TRUE(window.application().StartMinimised());
}

TEST(MainWindow, ScenarioCommandsWantANetwork) {
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, ""));
  for (const char* name : {"mnuScn_Edit", "mnuScn_Select", "mnuScn_ModeleGen", "mnuScn_ModeleRun",
                           "mnuExploit_RecapData"}) {
    SeenMessage seen;
    AnswerNextMessage(seen);
    window.RunMenu(name);
    EXPECT_EQ(seen.text, "Un réseau doit être chargé.") << name;
    EXPECT_EQ(seen.title, "Pluvane") << name;
    EXPECT_EQ(seen.icon, QMessageBox::Warning) << name;
  }
  Quit(window);
}

TEST(MainWindow, TheModelGenerationEndsWithItsLogInTheConsole) {
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo()));
  const std::string scenario = window.application().state().ScenarioName;
  ASSERT_FALSE(scenario.empty());
  window.RunMenu("mnuScn_ModeleGen");
  ConsoleWindow* log = window.log_window();
  ASSERT_NE(log, nullptr);
  EXPECT_TRUE(log->isVisible());
  EXPECT_EQ(log->windowTitle().toStdString(), "Génération du modèle " + scenario);
  // No engine beside the program: the step is said to have succeeded.
  EXPECT_FALSE(log->List()->findItems("Génération réussie (Velmar)", Qt::MatchExactly).isEmpty());
  log->CloseButton()->click();
  Quit(window);
}

TEST(MainWindow, StatusPanelsShowAtOnce) {
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, "", true));
  QtUserInterface& ui = window.user_interface();
  StatusPanels& panels = window.panels();
  ui.ShowStatus("Sélectionnez un élément à éditer");
  EXPECT_EQ(panels.Status()->text(), "Sélectionnez un élément à éditer");
  EXPECT_EQ(panels.Status()->objectName(), "pnlStatus");
  ui.ShowPanel("sbrXY", "652310.5, 1843200.25");
  EXPECT_EQ(panels.XY()->text(), "652310.5, 1843200.25");
  ui.ShowPanel("sbrSCN", "Scn-1");
  EXPECT_EQ(panels.Scenario()->text(), "Scn-1");
  EXPECT_TRUE(panels.Scenario()->isVisible());
  ui.ShowPanel("sbrSCN", "");
  EXPECT_FALSE(panels.Scenario()->isVisible());

  QProgressBar* bar = panels.Progress();
  EXPECT_EQ(bar->objectName(), "pnlProgress");
  EXPECT_FALSE(bar->isVisible());
  ui.ShowProgress(40);
  EXPECT_TRUE(bar->isVisible());
  EXPECT_EQ(bar->value(), 40);
  ui.ShowProgress(150);  // out of range: ignored
  EXPECT_EQ(bar->value(), 40);
  EXPECT_TRUE(bar->isVisible());
  ui.ShowProgress(100);
  EXPECT_EQ(bar->value(), 100);
  ui.ShowProgress(0);
  EXPECT_FALSE(bar->isVisible());
  Quit(window);
}

TEST(MainWindow, ToolBandsCarryTheCaptionsAndOpenTheCatchmentBands) {
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo()));
  MainToolBars* bars = window.tool_bars();
  ASSERT_NE(bars, nullptr);
  EXPECT_EQ(bars->Band("DisplayManagerBand")->windowTitle(), "Boîte à Outils");
  EXPECT_EQ(bars->Band("RESO_CREATE")->windowTitle(), "CREATE RESO");
  // Position de la BO = 4: the tool box stands on the left.
  EXPECT_EQ(window.toolBarArea(bars->Band("DisplayManagerBand")), Qt::LeftToolBarArea);
  EXPECT_EQ(bars->Tool("MDDELETE")->toolTip(), "Supprimer");
  EXPECT_EQ(bars->Tool("X_NOD")->toolTip(), "Noeud");
  EXPECT_FALSE(bars->Tool("X_NOD")->icon().isNull());
  EXPECT_FALSE(bars->Tool("ZoomT")->icon().isNull());
  ASSERT_NE(bars->DropDown("X_BVCOM"), nullptr);
  EXPECT_EQ(bars->DropDown("X_BVCOM")->objectName(), "RESO_CREATE_BV_C");
  EXPECT_EQ(bars->DropDown("X_BVCOM")->actions().size(), 3);
  EXPECT_EQ(bars->DropDown("X_BVSIM")->actions().size(), 2);
  EXPECT_EQ(bars->Tool("X_BVCOM")->menu(), bars->DropDown("X_BVCOM"));

  QStringList requested;
  QObject::connect(&window, &MainWindow::ToolRequested,
                   [&requested](const QString& key) { requested << key; });
  bars->Tool("MDMOVE")->trigger();
  bars->DropDown("X_BVCOM")->actions()[0]->trigger();
  EXPECT_EQ(requested, (QStringList{"MDMOVE", "X_BV"}));
  // MDSAVE saves the network here and arms nothing.
  fs::remove(app.Demo());
  bars->Tool("MDSAVE")->trigger();
  EXPECT_TRUE(fs::exists(app.Demo()));
  EXPECT_EQ(requested.size(), 2);
  Quit(window);
  EXPECT_EQ(IniRead("Paramètres", "Position de la BO", 10, app.Ini()), "4");
}

TEST(MainWindow, ABackgroundPlanOfAnotherFormatIsRefused) {
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, ""));
  WriteBytes(app.File("plan.dxf"), "0\nSECTION\n");
  QImage plan(64, 48, QImage::Format_RGB32);
  plan.fill(Qt::darkGreen);
  ASSERT_TRUE(plan.save(QString::fromStdString(app.File("plan.jpg"))));
  WriteBytes(app.File("plan.emf"), "not a picture Qt reads");

  FrmImpfileDlg form(window.surface(), window.application().state(), window.user_interface());
  BackgroundDialog dialog(form, app.Path());
  dialog.Types()->setCurrentText("*.*");
  EXPECT_EQ(dialog.Placings()->itemText(1), "2. Centrage au milieu");
  ASSERT_TRUE(dialog.SelectFile("plan.dxf"));
  SeenMessage seen;
  AnswerNextMessage(seen);
  EXPECT_FALSE(dialog.cmdOk());
  EXPECT_EQ(seen.text, "Format non supporté comme fond de plan !");

  ASSERT_TRUE(dialog.SelectFile("plan.emf"));
  AnswerNextMessage(seen);
  EXPECT_FALSE(dialog.cmdOk());
  EXPECT_EQ(seen.text, "erreur dans pFileImportExt");

  dialog.Types()->setCurrentText("*.jpg");
  EXPECT_EQ(dialog.Files()->count(), 1);
  ASSERT_TRUE(dialog.SelectFile("plan.jpg"));
  dialog.Placings()->setCurrentIndex(1);
  EXPECT_TRUE(dialog.cmdOk());
  EXPECT_EQ(window.surface().BackgroundPicture(), app.File("plan.jpg"));
  EXPECT_EQ(window.surface().BackgroundMode(), 4);
  EXPECT_EQ(window.panels().Status()->text().toStdString(),
            "Image de fond d'ecran : " + app.File("plan.jpg"));
  Quit(window);
}

TEST(MainWindow, TheAboutWindowNamesTheProgramAndClosesOnEnter) {
  AppFolder app;
  IniWrite("Autres", "FlashScreen", "1", app.Ini());
  MainWindow window;
  ASSERT_TRUE(Open(window, app, ""));
  // FlashScreen shows it for a moment at start.
  QPointer<AboutWindow> about = window.about_window();
  ASSERT_FALSE(about.isNull());
  EXPECT_TRUE(about->isVisible());
  EXPECT_TRUE(about->Text()->text().contains("Pluvane"));
  EXPECT_TRUE(about->Text()->text().contains("Version 0.1"));
  EXPECT_FALSE(about->Picture()->pixmap().isNull());
  QTest::keyClick(about.data(), Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_TRUE(about.isNull() || !about->isVisible());

  // From the menu it waits for the user.
  QTimer::singleShot(0, [&window] {
    ASSERT_FALSE(window.about_window().isNull());
    window.about_window()->grab().save(QString::fromStdString(SnapshotPath("about.png")));
    QTest::keyClick(window.about_window().data(), Qt::Key_Escape);
  });
  window.RunMenu("mnuAbout");
  Quit(window);
}

TEST(MainWindow, PrintsTheViewOnThePrinter) {
  RequirePdfTools();
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo()));
  const std::string pdf = app.File("print.pdf");
  window.ask_print = [&pdf](QPrinter& printer) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(pdf));
    return true;
  };
  window.RunMenu("mnuFile_Print");
  ASSERT_TRUE(fs::exists(pdf));
  EXPECT_EQ(PdfPageCount(pdf), 1);
  const QImage page = PdfPage(pdf, 50);
  ASSERT_FALSE(page.isNull());
  page.save(QString::fromStdString(SnapshotPath("printed_view.png")));
  // The page draws the example's network: its circular collectors in blue,
  // its closed ones in red, its open ones in cyan, the routings in black, on
  // white paper. (The drawing carries no text to read back.)
  EXPECT_GT(PixelsNear(page, QColor(0, 0, 255)), 500);
  EXPECT_GT(PixelsNear(page, QColor(255, 0, 0)), 100);
  EXPECT_GT(PixelsNear(page, QColor(0, 255, 255)), 100);
  EXPECT_GT(PixelsNear(page, QColor(0, 0, 0)), 20);
  EXPECT_GT(PixelsNear(page, QColor(255, 255, 255)), page.width() * page.height() / 2);
  Quit(window);
}

}  // namespace
}  // namespace pluvane
