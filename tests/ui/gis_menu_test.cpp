// Fichier > Export > Couches SIG... and Fichier > Import > Couches SIG...,
// from the menu of the window: the example written as a GeoPackage, and a
// point layer read through the import's form, one step of the journal.
#include <gtest/gtest.h>

#include <QFileDialog>
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

void AnswerNextSaveDialog(const std::string& path, QString& title) {
  QTimer::singleShot(0, [path, &title] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog) return AnswerNextSaveDialog(path, title);
    title = dialog->windowTitle();
    dialog->selectFile(QString::fromStdString(path));
    static_cast<QDialog*>(dialog)->accept();
  });
}

TEST(GisMenu, TheExampleIsWrittenAsAGeoPackage) {
  TestApp();
  AppFolder app;
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  const std::string file = app.File("couches.gpkg");
  QString title;
  AnswerNextSaveDialog(file, title);
  window.RunMenu("MnuFi_Export_Sig");
  EXPECT_EQ(title, "Exporter les couches SIG");
  EXPECT_TRUE(fs::exists(file));
  Quit(window);
}

TEST(GisMenu, APointLayerComesInThroughTheForm) {
  TestApp();
  AppFolder app;
  const std::string layer = app.File("regards.geojson");
  WriteBytes(layer,
             "{\"type\":\"FeatureCollection\",\"name\":\"regards\",\"crs\":{\"type\":\"name\","
             "\"properties\":{\"name\":\"urn:ogc:def:crs:EPSG::2154\"}},\"features\":["
             "{\"type\":\"Feature\",\"properties\":{\"libell\":\"Regard neuf\",\"Zus\":50},"
             "\"geometry\":{\"type\":\"Point\",\"coordinates\":[650525,6862075]}}]}");
  MainWindow window;
  ASSERT_TRUE(Open(window, app, app.Demo(), true));
  Surface& surface = window.surface();
  ASSERT_EQ(CountByTag(surface, "iName", 99), 30);
  QString caption;
  OnNextForm([&](FormWindow* form) {
    caption = form->windowTitle();
    TypeInto(form, 2, 1, QString::fromStdString(layer));
    TypeInto(form, 2, 5, "2");
    Click(form, "cmdOk");
  });
  window.RunMenu("MnuFi_Import_Sig");
  EXPECT_EQ(caption, "Import de couches SIG");
  EXPECT_EQ(CountByTag(surface, "iName", 99), 31);
  const int node = FindObject(surface, "libell", "Regard neuf");
  ASSERT_GT(node, 10);
  EXPECT_EQ(surface.ObjTag("Zus"), "50");
  EXPECT_EQ(surface.ObjTag("Xus"), "650525");
  EXPECT_EQ(window.application().state().CoordinateSystem, "EPSG:2154");
  // One step of the journal takes the import back.
  window.interaction().Key(90, kCtrlMask);
  EXPECT_EQ(CountByTag(surface, "iName", 99), 30);
  Quit(window);
}

}  // namespace
}  // namespace pluvane
