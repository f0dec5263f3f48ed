#include "ui/drawing_picture.h"

#include <gtest/gtest.h>

#include <QImage>
#include <filesystem>

#include "foundation/paths.h"
#include "foundation/test_files.h"
#include "qt_test_app.h"
#include "ui/picture_format.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

class DrawingPictureTest : public ::testing::Test {
 protected:
  void SetUp() override {
    TestApp();
    AddFilledRect(surface_, 0, 0, 1000, 500, kRed);
    AddFilledRect(surface_, 1000, 500, 2000, 1000, kBlue);
  }
  Surface surface_;
  TempFolder folder_;
};

TEST(PictureFormat, GoesByTheLastExtensionWhateverItsCase) {
  EXPECT_EQ(PictureFormatOf("a/b.SVG"), PictureFormat::kSvg);
  EXPECT_EQ(PictureFormatOf("plan.v2.pdf"), PictureFormat::kPdf);
  EXPECT_EQ(PictureFormatOf("x.Emf"), PictureFormat::kMetafile);
  EXPECT_EQ(PictureFormatOf("x.wmf"), PictureFormat::kMetafile);
  EXPECT_EQ(PictureFormatOf("x.png"), PictureFormat::kRaster);
  EXPECT_EQ(PictureFormatOf("x.JPG"), PictureFormat::kRaster);
  EXPECT_EQ(PictureFormatOf("x.bmp"), PictureFormat::kRaster);
  EXPECT_EQ(PictureFormatOf("x.dxf"), PictureFormat::kUnknown);
  EXPECT_EQ(PictureFormatOf("dir.svg/name"), PictureFormat::kUnknown);
  EXPECT_EQ(LastExtension("C:\\a.b\\c"), "");
}

TEST_F(DrawingPictureTest, TheExtentIsTheDrawingWithAMargin) {
  const QRectF extent = DrawingExtent(surface_);
  EXPECT_DOUBLE_EQ(extent.left(), -40);
  EXPECT_DOUBLE_EQ(extent.top(), -40);
  EXPECT_DOUBLE_EQ(extent.right(), 2040);
  EXPECT_DOUBLE_EQ(extent.bottom(), 1040);
}

TEST_F(DrawingPictureTest, AnEmptyDrawingShowsItsLogicalSpace) {
  Surface empty;
  const QRectF extent = DrawingExtent(empty);
  EXPECT_DOUBLE_EQ(extent.width(), 100000 * 1.04);
}

TEST_F(DrawingPictureTest, ThePngIsTheWholeDrawingAtItsWidth) {
  const std::string path = folder_.File("drawing.png");
  ASSERT_TRUE(SaveDrawingPicture(surface_, path, 520));
  QImage image;
  ASSERT_TRUE(image.load(QString::fromStdString(path)));
  EXPECT_EQ(image.width(), 520);
  EXPECT_EQ(image.height(), 270);  // 1080 / 2080 of the width
  // 4 logical units a pixel, from -40.
  EXPECT_EQ(image.pixelColor(100, 60), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(400, 200), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(400, 60), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(3, 3), QColor(Qt::white));
}

TEST_F(DrawingPictureTest, TheSelectionIsNotExported) {
  surface_.SelectAll();
  const QImage image = RenderDrawing(surface_, 520);
  EXPECT_EQ(image.pixelColor(8, 8), QColor(Qt::white));
}

TEST_F(DrawingPictureTest, SvgBmpAndJpgAreWritten) {
  const std::string svg = folder_.File("drawing.svg");
  ASSERT_TRUE(SaveDrawingPicture(surface_, svg, 400));
  const std::string text = ReadBytes(svg);
  EXPECT_TRUE(text.rfind("<?xml", 0) == 0 || text.rfind("<svg", 0) == 0) << text.substr(0, 40);
  EXPECT_NE(text.find("<svg"), std::string::npos);
  for (const char* name : {"drawing.bmp", "drawing.jpg"}) {
    ASSERT_TRUE(SaveDrawingPicture(surface_, folder_.File(name), 400)) << name;
    QImage image;
    EXPECT_TRUE(image.load(QString::fromStdString(folder_.File(name)))) << name;
    EXPECT_EQ(image.width(), 400);
  }
}

TEST_F(DrawingPictureTest, ThePdfStartsWithItsHeader) {
  const std::string pdf = folder_.File("drawing.pdf");
  ASSERT_TRUE(SaveDrawingPicture(surface_, pdf, 400));
  EXPECT_EQ(ReadBytes(pdf).substr(0, 4), "%PDF");
}

TEST_F(DrawingPictureTest, OldMetafileNamesGetSvgContent) {
  for (const char* name : {"drawing.emf", "drawing.WMF"}) {
    const std::string path = folder_.File(name);
    ASSERT_TRUE(SaveDrawingPicture(surface_, path, 400)) << name;
    EXPECT_NE(ReadBytes(path).find("<svg"), std::string::npos) << name;
  }
}

TEST_F(DrawingPictureTest, AnUnknownFormatOrFolderWritesNothing) {
  EXPECT_FALSE(SaveDrawingPicture(surface_, folder_.File("drawing.dxf"), 400));
  EXPECT_FALSE(fs::exists(folder_.File("drawing.dxf")));
  EXPECT_FALSE(SaveDrawingPicture(surface_, folder_.File("none/drawing.png"), 400));
  EXPECT_FALSE(SaveDrawingPicture(surface_, folder_.File("none/drawing.svg"), 400));
  EXPECT_FALSE(SaveDrawingPicture(surface_, folder_.File("none/drawing.pdf"), 400));
}

// Every shipped symbol, drawn from its file in a row of boxes: each box holds
// some of its strokes. The picture is kept under the build folder to be seen.
TEST(ShippedSymbols, AreDrawnInTheirBoxes) {
  TestApp();
  const std::string dir = JoinPath(PLUVANE_DATA, "Symboles");
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(dir))
    if (entry.path().extension() == ".svg") names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  ASSERT_GE(names.size(), 10u);
  Surface surface;
  int column = 0;
  for (const std::string& name : names) {
    const int left = 1200 * column++;
    const int n = surface.AddObject(12, left, 0, left + 1000, 1000);
    surface.SetCurrentObject(n);
    // As the catalogue names them: the metafile, found as its SVG twin.
    surface.SetObjectPicture(name.substr(0, name.size() - 4) + ".wmf");
  }
  const PictureFolders folders{"", dir};
  const QImage image = RenderDrawing(surface, 1200 * static_cast<int>(names.size()) / 10, folders);
  image.save(QString::fromStdString(
      (fs::path(PLUVANE_BIN).parent_path() / "shipped_symbols.png").string()));
  ASSERT_TRUE(SaveDrawingPicture(
      surface, (fs::path(PLUVANE_BIN).parent_path() / "shipped_symbols.svg").string(), 800,
      folders));
  // The extent starts 2 % of the width before the first box.
  const double per_pixel = DrawingExtent(surface).width() / image.width();
  const double origin = DrawingExtent(surface).left();
  for (std::size_t i = 0; i < names.size(); ++i) {
    const int x0 = static_cast<int>((1200.0 * static_cast<double>(i) - origin) / per_pixel);
    const int x1 = static_cast<int>((1200.0 * static_cast<double>(i) + 1000 - origin) / per_pixel);
    const int y0 = static_cast<int>((0 - DrawingExtent(surface).top()) / per_pixel);
    const int y1 = static_cast<int>((1000 - DrawingExtent(surface).top()) / per_pixel);
    int inked = 0;
    for (int y = y0; y < y1; ++y)
      for (int x = x0; x < x1; ++x)
        if (image.pixelColor(x, y) != QColor(Qt::white)) ++inked;
    EXPECT_GT(inked, 20) << names[i];
  }
}

}  // namespace
}  // namespace pluvane
