#include "ui/surface_painter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <filesystem>
#include <fstream>

#include "foundation/paths.h"
#include "foundation/test_files.h"
#include "qt_test_app.h"

namespace pluvane {
namespace {

// Paints the logical square (0, 0)-(1000, 1000) into 100 x 100 pixels: one
// pixel is 10 logical units.
class PainterTest : public ::testing::Test {
 protected:
  void SetUp() override {
    TestApp();
    surface_.SetCurrentObject(kPage);
    surface_.SetPageColor(kWhite);
    surface_.SetBackColor1(kWhite);
  }

  QImage Paint(const QRectF& view = QRectF(0, 0, 1000, 1000), QSize pixels = QSize(100, 100)) {
    QImage image(pixels, QImage::Format_ARGB32);
    image.fill(Qt::magenta);
    QPainter p(&image);
    painter_.Paint(surface_, p, view, pixels);
    p.end();
    return image;
  }

  // A link across the middle, from (5, 500) to (995, 500); it is current.
  int AddMiddleLink() {
    const int a = surface_.AddObject(2, 0, 495, 10, 505);
    const int b = surface_.AddObject(2, 990, 495, 1000, 505);
    return surface_.AddLink(a, b);
  }

  Surface surface_;
  SurfacePainter painter_;
};

struct Pixel {
  int x;
  int y;
  QColor color;
};

void ExpectColours(const QImage& image, std::initializer_list<Pixel> pixels) {
  for (const Pixel& p : pixels)
    EXPECT_EQ(image.pixelColor(p.x, p.y), p.color) << "at " << p.x << ", " << p.y;
}

TEST(ColorOfBgr, HasRedInTheLowByte) {
  EXPECT_EQ(ColorOfBgr(0x0000FF), QColor(255, 0, 0));
  EXPECT_EQ(ColorOfBgr(0x00FF00), QColor(0, 255, 0));
  EXPECT_EQ(ColorOfBgr(0xFF0000), QColor(0, 0, 255));
  EXPECT_EQ(ColorOfBgr(0x123456), QColor(0x56, 0x34, 0x12));
}

TEST_F(PainterTest, ARedRectangleIsRedWhereItsBoxSays) {
  AddFilledRect(surface_, 200, 300, 600, 700, kRed);
  const QImage image = Paint();
  ExpectColours(image, {
                           {40, 50, QColor(Qt::red)},
                           {21, 31, QColor(Qt::red)},
                           {58, 68, QColor(Qt::red)},
                           {10, 50, QColor(Qt::white)},
                           {40, 20, QColor(Qt::white)},
                           {70, 50, QColor(Qt::white)},
                           {40, 80, QColor(Qt::white)},
                       });
}

TEST_F(PainterTest, TheSurroundOutsideTheLogicalSpaceTakesBackColor1) {
  surface_.SetCurrentObject(kPage);
  surface_.SetBackColor1(kBlue);
  surface_.SetLogicWidth(500);
  const QImage image = Paint();
  EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(80, 20), QColor(Qt::blue));
}

TEST_F(PainterTest, ALinkPassesThroughThePixelsBetweenItsEnds) {
  const int a = AddFilledRect(surface_, 90, 490, 110, 510, kRed);
  const int b = AddFilledRect(surface_, 890, 490, 910, 510, kRed);
  surface_.AddLink(a, b);
  surface_.SetLineColor(kBlue);
  surface_.SetLineWidth(-30);  // three pixels
  const QImage image = Paint();
  for (int x = 15; x <= 85; x += 5) EXPECT_EQ(image.pixelColor(x, 50), QColor(Qt::blue)) << x;
  EXPECT_EQ(image.pixelColor(50, 45), QColor(Qt::white));
}

TEST_F(PainterTest, ADashedLinkLeavesGaps) {
  AddMiddleLink();
  surface_.SetLineColor(kBlue);
  surface_.SetLineWidth(-20);
  surface_.SetLineStyle(2);
  const QImage image = Paint();
  int blue = 0, white = 0;
  for (int x = 10; x < 90; ++x) {
    if (image.pixelColor(x, 50) == QColor(Qt::blue)) ++blue;
    if (image.pixelColor(x, 50) == QColor(Qt::white)) ++white;
  }
  EXPECT_GT(blue, 10);
  EXPECT_GT(white, 10);
}

TEST_F(PainterTest, AHiddenObjectLeavesThePageColour) {
  surface_.SetCurrentObject(kPage);
  surface_.SetPageColor(kGreen);
  AddFilledRect(surface_, 200, 200, 800, 800, kRed);
  surface_.SetObjectVisible(false);
  const QImage image = Paint();
  EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::green));
  EXPECT_EQ(painter_.LastPaintedCount(), 0u);
}

TEST_F(PainterTest, ObjectsOutsideTheViewAreNotVisited) {
  AddFilledRect(surface_, 200, 200, 400, 400, kRed);
  AddFilledRect(surface_, 5000, 5000, 5400, 5400, kBlue);
  AddFilledRect(surface_, 1500, 200, 1700, 400, kBlue);
  QImage image = Paint();
  EXPECT_EQ(painter_.LastPaintedCount(), 1u);
  EXPECT_EQ(image.pixelColor(30, 30), QColor(Qt::red));
  // Panned over the others, the first stays out.
  image = Paint(QRectF(1000, 0, 1000, 1000));
  EXPECT_EQ(painter_.LastPaintedCount(), 1u);
  EXPECT_EQ(image.pixelColor(60, 30), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(10, 30), QColor(Qt::white));
}

TEST_F(PainterTest, TheIndexFollowsMovesAndDeletions) {
  const int n = AddFilledRect(surface_, 5000, 5000, 5400, 5400, kRed);
  Paint();
  EXPECT_EQ(painter_.LastPaintedCount(), 0u);
  surface_.SetCurrentObject(n);
  surface_.MoveObject(-4800, -4800);
  QImage image = Paint();
  EXPECT_EQ(painter_.LastPaintedCount(), 1u);
  EXPECT_EQ(image.pixelColor(40, 40), QColor(Qt::red));
  surface_.DeleteObject(n);
  image = Paint();
  EXPECT_EQ(painter_.LastPaintedCount(), 0u);
  EXPECT_EQ(image.pixelColor(40, 40), QColor(Qt::white));
}

TEST_F(PainterTest, ObjectsAreStackedInTheirOrder) {
  const int below = AddFilledRect(surface_, 200, 200, 600, 600, kRed);
  AddFilledRect(surface_, 400, 400, 800, 800, kBlue);
  EXPECT_EQ(Paint().pixelColor(50, 50), QColor(Qt::blue));
  surface_.SetCurrentObject(below);
  surface_.Arrange(3);
  EXPECT_EQ(Paint().pixelColor(50, 50), QColor(Qt::red));
}

TEST_F(PainterTest, AnEllipseIsEmptyInItsCorners) {
  const int n = surface_.AddObject(4, 0, 0, 1000, 1000);
  surface_.SetCurrentObject(n);
  surface_.SetFillStyle(0);
  surface_.SetFillColor(kRed);
  const QImage image = Paint();
  EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(3, 3), QColor(Qt::white));
}

TEST_F(PainterTest, APolygonIsFilledInsideItsVertices) {
  const int n = surface_.AddObject(9, 0, 0, 1000, 1000);
  surface_.SetCurrentObject(n);
  surface_.SetObjectPoints({{0, 0}, {1000, 0}, {0, 1000}});
  surface_.SetFillStyle(0);
  surface_.SetFillColor(kRed);
  const QImage image = Paint();
  EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(80, 80), QColor(Qt::white));
}

TEST_F(PainterTest, AGroupPaintsItsChildren) {
  AddFilledRect(surface_, 100, 100, 300, 300, kRed);
  AddFilledRect(surface_, 700, 700, 900, 900, kBlue);
  surface_.SelectAll();
  surface_.SetCurrentObject(kSelection);
  ASSERT_TRUE(surface_.Arrange(0));
  surface_.DeselectAll();
  ASSERT_EQ(surface_.ObjectCount(kPage), 1);
  const QImage image = Paint();
  ExpectColours(image, {
                           {20, 20, QColor(Qt::red)},
                           {80, 80, QColor(Qt::blue)},
                           {50, 50, QColor(Qt::white)},
                       });
}

TEST_F(PainterTest, ASelectedObjectIsOutlined) {
  const int n = surface_.AddObject(2, 300, 300, 700, 700);
  surface_.SetCurrentObject(n);
  surface_.SetLineColor(kWhite);
  QImage image = Paint();
  EXPECT_EQ(image.pixelColor(28, 50), QColor(Qt::white));
  auto outline = [](const QImage& picture) {
    int count = 0;
    for (int x = 0; x < 100; ++x)
      if (picture.pixelColor(x, 28) == QColor(0, 120, 215)) ++count;
    return count;
  };
  EXPECT_EQ(outline(image), 0);
  surface_.SetSelected(true);
  // The outline stands two pixels outside the box.
  EXPECT_GT(outline(Paint()), 15);
  painter_.options.show_selection = false;
  EXPECT_EQ(outline(Paint()), 0);
}

TEST_F(PainterTest, SymbolsSmallerThanAPixelAreDots) {
  for (int i = 0; i < 10; ++i) surface_.AddObject(12, 100 * i + 50, 500, 100 * i + 52, 502);
  const QImage image = Paint();
  for (int i = 0; i < 10; ++i) EXPECT_EQ(image.pixelColor(10 * i + 5, 50), QColor(Qt::black)) << i;
  EXPECT_EQ(image.pixelColor(10, 50), QColor(Qt::white));
}

TEST_F(PainterTest, ASymbolsSvgIsDrawnInItsBox) {
  TempFolder folder;
  const std::string svg = folder.File("red.svg");
  WriteBytes(svg,
             "<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10' "
             "viewBox='0 0 10 10'><rect x='0' y='0' width='10' height='10' "
             "fill='#ff0000'/></svg>");
  const int n = surface_.AddObject(12, 200, 200, 600, 600);
  surface_.SetCurrentObject(n);
  surface_.SetObjectPicture(svg);
  const QImage image = Paint();
  ExpectColours(image, {
                           {40, 40, QColor(Qt::red)},
                           {22, 22, QColor(Qt::red)},
                           {10, 10, QColor(Qt::white)},
                           {70, 40, QColor(Qt::white)},
                       });
}

TEST_F(PainterTest, AMetafileNameIsDrawnFromTheShippedSvg) {
  painter_.SetFolders("", JoinPath(PLUVANE_DATA, "Symboles"));
  const int n = surface_.AddObject(12, 0, 0, 1000, 1000);
  surface_.SetCurrentObject(n);
  surface_.SetObjectPicture("C:\\Pluvane\\Symboles\\NOD.wmf");
  const QImage image = Paint();
  // NOD is a white disc in a black ring.
  EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::white));
  EXPECT_TRUE(Near(image.pixelColor(50, 10), Qt::black))
      << image.pixelColor(50, 10).name().toStdString();
}

TEST_F(PainterTest, AnUnreadablePictureShowsItsBox) {
  const int n = surface_.AddObject(12, 205, 205, 605, 605);
  surface_.SetCurrentObject(n);
  surface_.SetObjectPicture("/nowhere/missing.wmf");
  surface_.SetLineColor(kRed);
  const QImage image = Paint();
  EXPECT_EQ(image.pixelColor(20, 40), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(40, 40), QColor(Qt::white));
}

TEST_F(PainterTest, ATextInLogicalUnitsShowsInItsColour) {
  const int n = surface_.AddObject(10, 100, 300, 900, 700);
  surface_.SetCurrentObject(n);
  surface_.SetTextString("MMMM");
  surface_.SetTextSize(-300);
  surface_.SetTextBold(true);
  surface_.SetTextColor(kRed);
  const QImage image = Paint();
  int red = 0;
  for (int y = 0; y < 100; ++y)
    for (int x = 0; x < 100; ++x)
      if (Near(image.pixelColor(x, y), Qt::red, 60)) {
        ++red;
        EXPECT_GE(y, 28);
        EXPECT_LE(y, 62);
      }
  EXPECT_GT(red, 50);
}

TEST_F(PainterTest, ATextTooSmallForAPixelIsLeftOut) {
  const int n = surface_.AddObject(10, 100, 300, 900, 700);
  surface_.SetCurrentObject(n);
  surface_.SetTextString("MMMM");
  surface_.SetTextSize(-5);
  surface_.SetTextColor(kRed);
  const QImage image = Paint();
  for (int y = 0; y < 100; ++y)
    for (int x = 0; x < 100; ++x) ASSERT_EQ(image.pixelColor(x, y), QColor(Qt::white));
}

TEST_F(PainterTest, ATextWithItsBackFilledHidesWhatLiesBehind) {
  AddFilledRect(surface_, 0, 0, 1000, 1000, kBlue);
  const int n = surface_.AddObject(10, 100, 300, 900, 700);
  surface_.SetCurrentObject(n);
  surface_.SetTextString("....");
  surface_.SetTextSize(-300);
  surface_.SetTextFillBack(true);
  surface_.SetFillStyle(0);
  surface_.SetFillColor(kGreen);
  const QImage image = Paint();
  EXPECT_EQ(image.pixelColor(12, 33), QColor(Qt::green));
  EXPECT_EQ(image.pixelColor(50, 90), QColor(Qt::blue));
}

TEST_F(PainterTest, AnArrowHeadMarksTheMiddleOfALink) {
  AddMiddleLink();
  surface_.SetLineColor(kBlue);
  surface_.SetLinkEndMarker(4, 5);
  surface_.SetLinkMarkerWidth(4, -200);
  surface_.SetLinkMarkerHeight(4, -200);
  surface_.SetLinkMarkerColor(4, kRed);
  const QImage image = Paint();
  // Across the line, the head is 20 pixels wide at its base (x 40) and
  // narrows to its tip (x 60), pointing downstream.
  ExpectColours(image, {
                           {44, 44, QColor(Qt::red)},
                           {44, 55, QColor(Qt::red)},
                           {55, 50, QColor(Qt::red)},
                           {58, 42, QColor(Qt::white)},
                           {37, 42, QColor(Qt::white)},
                       });
}

TEST_F(PainterTest, AnArrowHeadAtTheDownstreamEndPointsOutwards) {
  AddMiddleLink();
  surface_.SetLinkEndMarker(1, 5);
  surface_.SetLinkMarkerWidth(1, 20);  // pixels
  surface_.SetLinkMarkerHeight(1, 20);
  surface_.SetLinkMarkerColor(1, kRed);
  const QImage image = Paint();
  ExpectColours(image, {
                           {82, 42, QColor(Qt::red)},
                           {98, 50, QColor(Qt::red)},
                           {98, 42, QColor(Qt::white)},
                       });
}

TEST_F(PainterTest, TheGridShowsOnlyWhenOnAndWideEnough) {
  surface_.SetCurrentObject(kPage);
  surface_.SetGridStepX(100);
  surface_.SetGridStepY(100);
  EXPECT_EQ(Paint().pixelColor(10, 5), QColor(Qt::white));
  surface_.SetGridOn(2);
  QImage image = Paint();
  ExpectColours(image, {
                           {10, 5, QColor(200, 200, 200)},
                           {5, 10, QColor(200, 200, 200)},
                           {15, 15, QColor(Qt::white)},
                       });
  surface_.SetGridStepX(20);  // two pixels: too fine
  EXPECT_EQ(Paint().pixelColor(10, 5), QColor(Qt::white));
}

TEST_F(PainterTest, TheBackgroundPictureStretchesOverTheLogicalSpaceInMode4) {
  TempFolder folder;
  const std::string png = folder.File("plan.png");
  QImage plan(4, 2, QImage::Format_RGB32);
  plan.fill(Qt::green);
  ASSERT_TRUE(plan.save(QString::fromStdString(png)));
  surface_.SetCurrentObject(kPage);
  surface_.SetLogicWidth(1000);
  surface_.SetLogicHeight(1000);
  surface_.SetBackgroundPicture(png);
  surface_.SetBackgroundMode(4);
  surface_.SetBackgroundScale(0.5);
  QImage image = Paint();
  ExpectColours(image, {
                           {2, 2, QColor(Qt::green)},
                           {48, 48, QColor(Qt::green)},
                           {52, 48, QColor(Qt::white)},
                           {48, 52, QColor(Qt::white)},
                       });
  // Mode 0 keeps the picture's aspect from the page origin: half as high as wide.
  surface_.SetBackgroundMode(0);
  image = Paint();
  EXPECT_EQ(image.pixelColor(48, 23), QColor(Qt::green));
  EXPECT_EQ(image.pixelColor(48, 27), QColor(Qt::white));
}

TEST_F(PainterTest, TheViewKeepsItsAspect) {
  AddFilledRect(surface_, 0, 0, 1000, 1000, kRed);
  // A view twice as wide as high into a square: the width decides the scale.
  const QImage image = Paint(QRectF(0, 0, 2000, 1000));
  ExpectColours(image, {
                           {48, 48, QColor(Qt::red)},
                           {52, 48, QColor(Qt::white)},
                           {48, 52, QColor(Qt::white)},
                       });
}

}  // namespace
}  // namespace pluvane
