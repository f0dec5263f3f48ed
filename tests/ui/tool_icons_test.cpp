// The pictures of the tools of the main window's bands: every tool has a
// drawn picture (its file in Icones/, or its element's symbol), drawn sharp
// at the screen's pixel ratio, with its French tip; a missing or unreadable
// file falls back to the tool's short text.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <filesystem>
#include <fstream>
#include <set>

#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "shell/main_menus.h"
#include "ui/main_tool_bars.h"
#include "ui/main_window.h"
#include "ui/main_window_fixture.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

QImage Picture(const QIcon& icon, int side = 24, qreal ratio = 1.0,
               QIcon::Mode mode = QIcon::Normal) {
  return icon.pixmap(QSize(side, side), ratio, mode).toImage().convertToFormat(
      QImage::Format_ARGB32);
}

// Every tool of the bands and of their drop-downs, in the order of the table.
std::vector<QAction*> AllTools(MainToolBars& bars) {
  std::vector<QAction*> tools;
  for (const char* band : {"DisplayManagerBand", "RESO_CREATE"}) {
    for (QAction* action : bars.Band(band)->actions()) tools.push_back(action);
  }
  for (const char* key : {"X_BVCOM", "X_BVSIM"}) {
    for (QAction* action : bars.DropDown(key)->actions()) tools.push_back(action);
  }
  return tools;
}

// The number of pixels that are not blank.
int Inked(const QImage& image) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += qAlpha(image.pixel(x, y)) > 0;
  }
  return count;
}

class ToolIcons : public ::testing::Test {
 protected:
  std::string IconDir() const { return JoinPath(app_.Path(), "Icones"); }
  std::string SymbolDir() { return window_.application().state().SymbolDir; }

  AppFolder app_;
  MainWindow window_;
};

TEST_F(ToolIcons, EveryToolOfEveryBandHasADrawnPicture) {
  ASSERT_TRUE(Open(window_, app_, app_.Demo()));
  MainToolBars& bars = *window_.tool_bars();
  const std::vector<QAction*> tools = AllTools(bars);
  ASSERT_EQ(tools.size(), ToolBands().size());
  std::set<std::string> drawn;
  for (std::size_t i = 0; i < tools.size(); ++i) {
    const ToolItem& item = ToolBands()[i];
    const std::string key(item.key);
    QAction* tool = tools[i];
    ASSERT_EQ(tool->objectName().toStdString(), key);
    // The tip stays the French caption, without its access key.
    QString tip = QString::fromUtf8(item.tip.data(), static_cast<int>(item.tip.size()));
    EXPECT_EQ(tool->toolTip(), tip.remove('&')) << key;
    // Its picture file stands: its own drawing, or its element's symbol.
    const std::string file = MainToolBars::IconFileOf(key, IconDir(), SymbolDir());
    ASSERT_FALSE(file.empty()) << key;
    EXPECT_TRUE(fs::exists(file)) << key;
    const bool own = file == JoinPath(IconDir(), UCase(key) + ".svg");
    if (SymbolPathOfKey(SymbolDir(), UCase(key)).empty()) {
      EXPECT_TRUE(own) << key;
    }
    if (own) drawn.insert(UCase(key));
    // And the tool shows it, not the short text.
    const QImage picture = Picture(tool->icon());
    EXPECT_GT(Inked(picture), 40) << key;
    EXPECT_NE(picture, Picture(MainToolBars::FallbackIcon(key))) << key;
  }
  // The tools of the tool box and those without an element are drawn ones.
  for (const char* key : {"MDDELETE", "MDMOVE", "MDFUSION", "MDBREAK", "MDBREAKPLUS", "MDEDIT1",
                          "MDEDITALL", "MDSAVE", "ZOOMT", "ZOOMF", "ZOOM11", "ZOOMM", "MDREFRESH",
                          "MDSHOWLNKARROW", "MDASCENS", "MDGRID", "MDCOBACK", "MYMDBUBLE",
                          "X_CALAGE", "X_PARAM", "X_CAC", "X_CAF", "X_CAO", "X_TR", "X_BVCOM",
                          "X_BVSIM", "X_ROUT"}) {
    EXPECT_TRUE(drawn.count(key)) << key;
  }
  // No two tools look alike.
  for (std::size_t i = 0; i < tools.size(); ++i) {
    for (std::size_t j = i + 1; j < tools.size(); ++j) {
      if (tools[i]->objectName() == tools[j]->objectName()) continue;
      EXPECT_NE(Picture(tools[i]->icon()), Picture(tools[j]->icon()))
          << tools[i]->objectName().toStdString() << " " << tools[j]->objectName().toStdString();
    }
  }
  Quit(window_);
}

TEST_F(ToolIcons, PicturesAreDrawnAtTheScreensPixelRatio) {
  ASSERT_TRUE(Open(window_, app_, app_.Demo()));
  for (const char* key : {"ZoomT", "MDDELETE", "X_NOD", "X_CAC"}) {
    const QIcon icon = window_.tool_bars()->Tool(key)->icon();
    const QPixmap sharp = icon.pixmap(QSize(24, 24), 2.0);
    EXPECT_EQ(sharp.size(), QSize(48, 48)) << key;
    EXPECT_EQ(sharp.devicePixelRatio(), 2.0) << key;
    // Drawn anew at 48 pixels, not the 24-pixel picture made larger.
    const QImage large = sharp.toImage().convertToFormat(QImage::Format_ARGB32);
    const QImage blown = Picture(icon).scaled(48, 48, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    EXPECT_NE(large, blown) << key;
    EXPECT_GT(Inked(large), 2 * Inked(Picture(icon))) << key;
    // A disabled tool is greyed.
    EXPECT_NE(Picture(icon, 24, 1.0, QIcon::Disabled), Picture(icon)) << key;
  }
  Quit(window_);
}

TEST_F(ToolIcons, AMissingOrUnreadableFileFallsBackToTheShortText) {
  fs::remove(JoinPath(IconDir(), "MDDELETE.svg"));
  std::ofstream(JoinPath(IconDir(), "ZOOMT.svg")) << "pas une image";
  fs::remove(JoinPath(IconDir(), "X_CAC.svg"));
  ASSERT_TRUE(Open(window_, app_, app_.Demo()));
  MainToolBars& bars = *window_.tool_bars();
  for (const char* key : {"MDDELETE", "ZoomT", "X_CAC"}) {
    EXPECT_EQ(Picture(bars.Tool(key)->icon()), Picture(MainToolBars::FallbackIcon(key))) << key;
  }
  EXPECT_EQ(bars.Tool("MDDELETE")->toolTip(), "Supprimer");
  // The others keep their pictures.
  EXPECT_NE(Picture(bars.Tool("MDMOVE")->icon()), Picture(MainToolBars::FallbackIcon("MDMOVE")));
  EXPECT_NE(Picture(bars.Tool("X_NOD")->icon()), Picture(MainToolBars::FallbackIcon("X_NOD")));
  // Without the icon folder at all, the element tools still show their symbols.
  EXPECT_EQ(MainToolBars::IconFileOf("X_NOD", "", SymbolDir()),
            SymbolPathOfKey(SymbolDir(), "X_NOD"));
  EXPECT_TRUE(MainToolBars::IconFileOf("MDMOVE", "", SymbolDir()).empty());
  Quit(window_);
}

// The bands of the main window on the example with a tool pressed from its
// band, as a user sees them; and every tool at its size and at twice it, to
// look at their drawing.
TEST_F(ToolIcons, PictureOfTheToolBands) {
  window_.resize(1280, 800);
  ASSERT_TRUE(Open(window_, app_, app_.Demo(), true));
  QApplication::processEvents();
  MainToolBars& bars = *window_.tool_bars();
  QToolBar* box = bars.Band("DisplayManagerBand");
  auto* move = qobject_cast<QToolButton*>(box->widgetForAction(bars.Tool("MDMOVE")));
  ASSERT_NE(move, nullptr);
  QTest::mouseClick(move, Qt::LeftButton);
  QApplication::processEvents();
  EXPECT_TRUE(bars.Tool("MDMOVE")->isChecked());
  EXPECT_EQ(window_.application().state().CurrentMode, "MDMOVE");
  const QImage shot = window_.grab().toImage();
  ASSERT_FALSE(shot.isNull());
  EXPECT_TRUE(shot.save(QString::fromStdString(SnapshotPath("tool_bands.png"))));

  // Every tool at 24 pixels, then at twice that, the ratio of a HiDPI screen.
  const std::vector<QAction*> tools = AllTools(bars);
  const int columns = 14;
  const int rows = static_cast<int>((tools.size() + columns - 1) / columns);
  QImage sheet(columns * 64, rows * 96, QImage::Format_ARGB32);
  sheet.fill(Qt::white);
  {
    QPainter painter(&sheet);
    for (std::size_t i = 0; i < tools.size(); ++i) {
      const int x = static_cast<int>(i % columns) * 64, y = static_cast<int>(i / columns) * 96;
      painter.drawPixmap(x + 20, y + 4, tools[i]->icon().pixmap(QSize(24, 24), 1.0));
      QPixmap large = tools[i]->icon().pixmap(QSize(24, 24), 2.0);
      large.setDevicePixelRatio(1.0);
      painter.drawPixmap(x + 8, y + 34, large);
      QFont font = painter.font();
      font.setPixelSize(8);
      painter.setFont(font);
      painter.setPen(Qt::darkGray);
      painter.drawText(QRect(x, y + 82, 64, 12), Qt::AlignCenter, tools[i]->objectName());
    }
  }
  EXPECT_TRUE(sheet.save(QString::fromStdString(SnapshotPath("tool_icons.png"))));
  Quit(window_);
}

}  // namespace
}  // namespace pluvane
