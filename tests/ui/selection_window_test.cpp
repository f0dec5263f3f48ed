#include "ui/selection_window.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QTest>

#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

TEST(SelectionWindow, ListsTheCurvesAndTicksThemByName) {
  TestApp();
  TempFolder folder;
  ScriptedUi ui;
  WriteBytes(folder.File("run.Deb"),
             "'Cac_1 amont'\r\n     0.000     1.000\r\n'PkFin'\r\n     0.000     1.000\r\n"
             "'Cac_2 aval'\r\n     0.000     1.000\r\n'Nod_12'\r\n     0.000     1.000\r\n");
  FrmSelection form(ui, "Deb", folder.File("run.Deb"), folder.File("IdCrb.Tmp"));
  SelectionWindow window(form);
  window.show();
  QApplication::processEvents();
  EXPECT_EQ(window.windowTitle(), "Choix de courbe à visualiser");
  QAbstractItemModel* model = window.Table(0)->model();
  ASSERT_EQ(model->rowCount(), 3);
  EXPECT_EQ(model->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "Id. courbe");
  EXPECT_EQ(model->data(model->index(1, 0), Qt::DisplayRole).toString(), "Cac_2 aval");
  // A click on a name ticks its row, a second one unticks it.
  const QRect cell = window.Table(0)->visualRect(model->index(1, 0));
  QTest::mouseClick(window.Table(0)->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
  EXPECT_EQ(form.Spread1.Text(2, 2), "1");
  EXPECT_EQ(model->data(model->index(1, 1), Qt::CheckStateRole).toInt(), Qt::Checked);
  window.grab().save(QString::fromStdString(SnapshotPath("frm_selection.png")));
  QTest::mouseClick(window.Table(0)->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
  EXPECT_EQ(form.Spread1.Text(2, 2), "0");
  // Nothing ticked: the form says so and stays.
  window.RunCommand("mnDessiner");
  ExpectLastMessage(ui, "aucune ligne n'a été cochée !!!", "Choix de courbe à visualiser",
                    MessageIcon::kNone);
  EXPECT_TRUE(window.isVisible());
  window.RunCommand("mnSelection");
  window.RunCommand("mnDessiner");
  EXPECT_EQ(window.result(), QDialog::Accepted);
  EXPECT_EQ(ReadBytes(folder.File("IdCrb.Tmp")), "Cac_1 amont\r\nCac_2 aval\r\nNod_12\r\n");
}

}  // namespace
}  // namespace pluvane
