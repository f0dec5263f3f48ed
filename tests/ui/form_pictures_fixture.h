// What the picture tests of the forms share: the main window on the example
// network, and the showing of a form in the generic window, with its heads
// checked readable and its picture kept in build/shots/forms.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QImage>
#include <QScrollBar>
#include <filesystem>
#include <string>

#include "foundation/form_controller.h"
#include "foundation/scripted_ui.h"
#include "ui/form_window.h"
#include "ui/main_window.h"
#include "ui/main_window_fixture.h"

namespace pluvane {

class FormPicturesTest : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(Open(window_, app_, app_.Demo(), true)); }
  void TearDown() override { Quit(window_); }

  Surface& surface() { return window_.surface(); }
  AppState& state() { return window_.application().state(); }

  // Shows the form, checks that the heads of its visible grids can be read
  // (on two lines at the most) and, for a form without tabs when `whole`,
  // that nothing scrolls sideways; keeps its picture.
  void Picture(FormController& form, const std::string& name, bool whole = false) {
    ASSERT_FALSE(form.Closed()) << name;
    FormWindow window(form, &window_);
    window.show();
    QApplication::processEvents();
    for (int t = 0; t < static_cast<int>(form.Grids().size()); ++t) {
      if (!form.Grids()[static_cast<std::size_t>(t)]->Visible()) continue;
      QTableView* table = window.Table(t);
      QFont bold = table->horizontalHeader()->font();
      bold.setBold(true);
      const QFontMetrics metrics(bold);
      for (int c = 0; c < table->model()->columnCount(); ++c) {
        if (table->isColumnHidden(c)) continue;
        const QString head = table->model()->headerData(c, Qt::Horizontal).toString();
        EXPECT_GE(2 * table->columnWidth(c), metrics.horizontalAdvance(head))
            << name << ": " << head.toStdString();
      }
      if (whole && form.TabCount() == 0) {
        EXPECT_EQ(table->horizontalScrollBar()->maximum(), 0) << name;
      }
    }
    EXPECT_EQ(window.windowTitle().toStdString(), form.Caption());
    std::filesystem::create_directories(SnapshotPath("forms"));
    EXPECT_TRUE(window.grab().toImage().save(
        QString::fromStdString(SnapshotPath("forms/" + name + ".png"))));
  }

  AppFolder app_;
  MainWindow window_;
  ScriptedUi ui_;
};

}  // namespace pluvane
