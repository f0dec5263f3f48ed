#include "ui/form_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <filesystem>

#include "foundation/ini_profile.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "shell/app_state.h"
#include "shell/configuration.h"
#include "shell/frm_preference.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

TEST(FormWindow, ShowsThePreferencesAndRunsOk) {
  TestApp();
  TempFolder folder;
  AppState state;
  state.AppPath = folder.Path();
  const std::string ini = IniFilePath(state);
  IniWrite("Paramètres", "Taille des symboles", "120", ini);
  IniWrite("Paramètres", "Epaisseur de trait", "50", ini);
  IniWrite("Paramètres", "Résolution Maxi", "100000", ini);
  IniWrite("Autres", "FlashScreen", "0", ini);
  ScriptedUi ui;
  int rescaled = 0;
  FrmPreference form(state, ui, [&] { ++rescaled; });
  FormWindow window(form);
  window.show();
  EXPECT_EQ(window.windowTitle(), "Préférences");
  QAbstractItemModel* model = window.Table(0)->model();
  ASSERT_EQ(model->rowCount(), 4);
  ASSERT_EQ(model->columnCount(), 1);
  EXPECT_EQ(model->headerData(0, Qt::Vertical, Qt::DisplayRole).toString(), "Taille des symboles");
  EXPECT_EQ(model->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "Valeur");
  EXPECT_EQ(model->data(model->index(0, 0), Qt::DisplayRole).toString(), "120.00");
  EXPECT_EQ(form.grid().Text(1, 1), "120");
  EXPECT_EQ(model->data(model->index(3, 0), Qt::CheckStateRole).toInt(), Qt::Unchecked);
  const QImage shot = window.grab().toImage();
  shot.save(QString::fromStdString(SnapshotPath("form_preference.png")));

  // Typed with a comma, kept with a point.
  EXPECT_TRUE(model->setData(model->index(1, 0), "25,5", Qt::EditRole));
  EXPECT_TRUE(model->setData(model->index(3, 0), Qt::Checked, Qt::CheckStateRole));
  EXPECT_EQ(form.grid().Text(1, 2), "25.5");
  window.RunCommand("cmdOk");
  EXPECT_EQ(window.result(), QDialog::Accepted);
  EXPECT_EQ(IniRead("Paramètres", "Epaisseur de trait", 40, ini), "25.5");
  EXPECT_EQ(IniRead("Autres", "FlashScreen", 10, ini), "1");
  EXPECT_EQ(rescaled, 1);
}

TEST(FormWindow, ARefusedCommandLeavesTheWindowOpenOnTheCellAtFault) {
  TestApp();
  TempFolder folder;
  AppState state;
  state.AppPath = folder.Path();
  ScriptedUi ui;
  FrmPreference form(state, ui, nullptr);
  FormWindow window(form);
  window.show();
  window.RunCommand("cmdOk");
  EXPECT_FALSE(form.Closed());
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(window.Table(0)->currentIndex().row(), 0);
  EXPECT_EQ(ui.Last().text, "La valeur de 'Taille des symboles' doit être un nombre positif.");
}

}  // namespace
}  // namespace pluvane
