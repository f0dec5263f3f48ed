#include "ui/capacity_map_window.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLabel>

#include "drawing/surface_helpers.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "ui/surface_view.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

std::string Row(const std::string& label, const std::string& words) {
  std::string padded = label;
  padded.resize(8, ' ');
  return "\"" + padded + "  " + words + "\r\n";
}

// The example network and a report of all its collectors, in either mode.
class CapacityWindow : public ::testing::Test {
 protected:
  void SetUp() override {
    TestApp();
    ASSERT_TRUE(network.LoadFile(std::string(PLUVANE_DATA) + "/Exemples/Demo.mtf", 0));
    ini = folder.File("pluvane.ini");
    std::filesystem::copy_file(std::string(PLUVANE_DATA) + "/pluvane.ini", ini);
  }
  void Report(int mode) {
    const int param = network.FindById("ParamReseau");
    network.SetCurrentObject(param);
    network.SetObjTag("CalcMode", mode);
    std::string text = mode == 0 ? "  Mode de calcul : Diagnostic\r\n"
                                 : "  Mode de calcul : Dimensionnement\r\n";
    int i = 0;
    for (int n : FindObjectList(network, "iGroup", TagMatch("2"))) {
      const std::string label = TagOfObject(network, n, "libell");
      const double upstream = 0.2 + 0.13 * (i++ % 11);
      if (mode == 0)
        text += Row(label, "0.01 " + std::to_string(upstream) + " 120 1.0 0.9 110 1.5");
      else
        text += Row(label, std::to_string(upstream) + " 120 1.0 0.8 " +
                               (upstream > 1 ? "OUI 1.0" : "NON 0.8"));
    }
    WriteBytes(folder.File("S_N.Sor"), text);
  }
  CapacityMapInput Input() { return {&network, folder.File("S_N.Sor"), folder.Path(), ini}; }
  // A collector's centre, as the mouse would point at it.
  void Point(CapacityMapWindow& window, const std::string& label) {
    const int n = FindObject(window.map().map(), "libell", TagMatch(label));
    const auto [x, y] = ObjectCentre(window.map().map(), n);
    window.ShowTipAt(x, y);
  }

  TempFolder folder;
  Surface network;
  std::string ini;
  ScriptedUi ui;
};

TEST_F(CapacityWindow, DiagnosticMapWithLegendAndToolTip) {
  Report(0);
  const std::string before = network.CopySelection(1);
  CapacityMapWindow window(ui, Input());
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(window.windowTitle().toStdString(), "Synthèse cartographique - Mode diagnostic");
  for (const char* name :
       {"mnuFiQuit", "mnuSaveAs", "mnuAff_Refresh", "mnuAff_ZoomCentre", "mnuAff_ZoomFen",
        "mnuAff_ZoomTout", "mnuOpt_AttribTxt_Font", "mnuOpt_AttribTxt_Taille", "mnuOpt_CoEch",
        "mnuOpt_Group", "mnuOpt_Ungroup", "mnuOpt_inFo", "mnuOpt_PlaceTxt"})
    EXPECT_NE(window.findChild<QAction*>(name), nullptr) << name;
  window.show();
  QApplication::processEvents();
  Point(window, "Cac_3");
  EXPECT_TRUE(window.tip()->isVisible());
  EXPECT_TRUE(window.tip()->text().startsWith("Désignation = Cac_3\nTaux de remplissage (%) = "));
  QApplication::processEvents();
  window.grab().toImage().save(QString::fromStdString(SnapshotPath("capacity_map_diagnostic.png")));
  window.RunMenu("mnuOpt_Group");
  EXPECT_EQ(ui.Last().text, "Au moins 2 elm doient être sélectionnés pour se regrouper en un");
  EXPECT_EQ(network.CopySelection(1), before);
}

TEST_F(CapacityWindow, DimensioningMapAndItsPicture) {
  Report(1);
  CapacityMapWindow window(ui, Input());
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(window.windowTitle().toStdString(), "Synthèse cartographique - Mode dimensionnement");
  window.show();
  QApplication::processEvents();
  Point(window, "Cac_1");
  EXPECT_TRUE(window.tip()->text().contains("Extension de la taille du collecteur = OUI"));
  EXPECT_TRUE(window.tip()->text().contains("Nouveau diamètre du coll. circulaire équivalent (m) = 1"));
  QApplication::processEvents();
  window.grab().toImage().save(
      QString::fromStdString(SnapshotPath("capacity_map_dimensioning.png")));
  const std::string svg = folder.File("carte.svg");
  ui.Queue(svg);
  window.RunMenu("mnuSaveAs");
  EXPECT_EQ(ui.Messages()[0].kind, "save");
  EXPECT_EQ(ui.Messages()[0].title, "Exporter le dessin en fichier metafile de Windows");
  EXPECT_NE(ReadBytes(svg).find("<svg"), std::string::npos);
}

}  // namespace
}  // namespace pluvane
