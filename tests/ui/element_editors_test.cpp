// The element editors as the user meets them on the example: the tool
// "Editeur élémentaire" clicked, then the element on the drawing; the form
// shows its data, takes what is typed with the keyboard, writes it on Ok, and
// Ctrl+Z gives the former values back. The general editor takes a block
// pasted from a spreadsheet.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QTest>
#include <memory>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/numbers.h"
#include "ui/main_window_fixture.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

class ElementEditors : public MainWindowTest {
 protected:
  std::string StartNetwork() const override { return app_.Demo(); }

  int Element(const std::string& id) { return FindObject(surface(), "Id", id); }
  std::string Tag(const std::string& id, const char* name) {
    CursorKeeper keep(surface());
    surface().SetCurrentObject(Element(id));
    return surface().ObjTag(name);
  }
  // The tool, then a click on the element's centre.
  void EditOnTheDrawing(const std::string& id) {
    window_->ToolClicked("MDEDIT1");
    const auto [x, y] = ObjectCentre(surface(), Element(id));
    SurfaceView* view = window_->view();
    const QPoint at(static_cast<int>(std::lround(view->LogicToClientX(x))),
                    static_cast<int>(std::lround(view->LogicToClientY(y))));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, at);
  }
  void Undo() { QTest::keyClick(window_->view(), Qt::Key_Z, Qt::ControlModifier); }

  // Opens the element's editor from the drawing, types the value into the
  // cell, validates with Ok, and returns the form's caption.
  QString EditAndValidate(const std::string& id, int col, int row, const QString& value,
                          const std::string& picture) {
    QString caption;
    OnNextForm([&](FormWindow* form) {
      caption = form->windowTitle();
      form->grab().toImage().save(QString::fromStdString(SnapshotPath(picture)));
      TypeInto(form, col, row, value);
      Click(form, "cmdOk");
    });
    EditOnTheDrawing(id);
    return caption;
  }
};

TEST_F(ElementEditors, ACircularCollectorTypedValidatedAndUndone) {
  const std::string before = Tag("Cac_1", "Dn");
  EXPECT_EQ(EditAndValidate("Cac_1", 2, 4, "0.75", "frmCac_typed.png"), "Collecteur circulaire");
  EXPECT_EQ(Tag("Cac_1", "Dn"), "0.75");
  Undo();
  EXPECT_EQ(Tag("Cac_1", "Dn"), before);
}

TEST_F(ElementEditors, AClosedCollectorKeepsItsSectionAndTakesItsSlope) {
  EXPECT_EQ(EditAndValidate("Caf_1", 2, 2, "45,5", "frmCaf_typed.png"), "Collecteur fermé");
  EXPECT_EQ(Tag("Caf_1", "ZRam"), "45.5");
  EXPECT_EQ(Tag("Caf_1", "IdSect"), "OV150");
}

TEST_F(ElementEditors, ACatchmentTakesItsSurface) {
  EditAndValidate("Bv_1", 2, 2, "7.25", "frmBV_typed.png");
  EXPECT_EQ(Tag("Bv_1", "S"), "7.25");
}

TEST_F(ElementEditors, ARefusedDiameterLeavesTheCollectorAsItWas) {
  const std::string before = Tag("Cac_2", "Dn");
  MessageAnswerer answers;
  QString caption;
  OnNextForm([&](FormWindow* form) {
    TypeInto(form, 2, 4, "0");
    Click(form, "cmdOk");
    EXPECT_TRUE(form->isVisible());
    Click(form, "cmdAnnul");
  });
  EditOnTheDrawing("Cac_2");
  ASSERT_FALSE(answers.seen().empty());
  EXPECT_EQ(answers.seen().front().text, "Le diamètre doit être non nul!");
  EXPECT_EQ(answers.seen().front().title, "Erreur de saisie");
  EXPECT_EQ(Tag("Cac_2", "Dn"), before);
}

TEST_F(ElementEditors, TheGeneralEditorTakesABlockPastedFromASpreadsheet) {
  QString block;
  for (int row = 1; row <= 20; ++row) {
    block += QString("%1\t%2\t0.%3\r\n").arg(60 - row).arg(59 - row).arg(row + 10);
  }
  QApplication::clipboard()->setText(block);
  MessageAnswerer answers;
  std::vector<QString> tabs;
  OnNextForm([&](FormWindow* form) {
    ASSERT_NE(form->Tabs(), nullptr);
    for (int tab = 0; tab < form->Tabs()->count(); ++tab)
      tabs.push_back(form->Tabs()->tabText(tab));
    // The sheet of the circular collectors, its first height chosen.
    const int cac = static_cast<int>(
        std::find(tabs.begin(), tabs.end(), "Collecteurs circulaires") - tabs.begin());
    QTest::mouseClick(form->Tabs(), Qt::LeftButton, Qt::NoModifier,
                      form->Tabs()->tabRect(cac).center());
    GridTableView* table = form->Table(cac);
    ASSERT_TRUE(table->isVisible());
    table->setFocus();
    table->setCurrentIndex(table->model()->index(0, 1));
    QTest::keyClick(table, Qt::Key_V, Qt::ControlModifier);
    form->grab().toImage().save(QString::fromStdString(SnapshotPath("frmEdit_pasted.png")));
    Click(form, "mnSave");
    Click(form, "mnQuit");
  });
  // The tool opens the general editor at once.
  window_->ToolClicked("MDEDITALL");
  ASSERT_FALSE(tabs.empty());
  for (const SeenMessage& seen : answers.seen()) ADD_FAILURE() << seen.text.toStdString();
  EXPECT_EQ(Tag("Cac_1", "ZRam"), "59");
  EXPECT_EQ(Tag("Cac_1", "ZRav"), "58");
  EXPECT_EQ(Tag("Cac_1", "Dn"), "0.11");
  EXPECT_EQ(Tag("Cac_20", "ZRam"), "40");
  EXPECT_EQ(Val(Tag("Cac_20", "Dn")), 0.3);
}

}  // namespace
}  // namespace pluvane
