// Plots drawn from their scripts and curve files by the program's own chain,
// rendered as pictures, and checked by their pixels: curves where their
// scale puts them, date ticks, the bars of a long profile, the outline of a
// section. Each picture is kept under the build folder to be looked at.
#include <gtest/gtest.h>

#include <QImage>
#include <cmath>
#include <string>
#include <vector>

#include "foundation/fixed_width.h"
#include "foundation/line_parsing.h"
#include "foundation/numbers.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "foundation/text.h"
#include "drawing/surface.h"
#include "plot/curve_script.h"
#include "plot/morvex_draw.h"
#include "test_app.h"
#include "ui/drawing_picture.h"

namespace pluvane {
namespace {

// An A4 landscape page of 29.7 cm at 10 logical units (0.1 mm) a pixel.
constexpr int kWidth = 2970;
constexpr double kUnitsPerPixel = 10;
// Page cm 0 stands this far from the page's left and bottom edges.
constexpr double kLeftOffset = 0.095;
constexpr double kTop = 20.96;

double PixelX(double cm) { return (cm + kLeftOffset) * 1000 / kUnitsPerPixel; }
double PixelY(double cm) { return (kTop - cm) * 1000 / kUnitsPerPixel; }

const QColor kBlueCurve(0, 0, 255);
const QColor kRedCurve(255, 0, 0);
const QColor kBlack(0, 0, 0);

struct XY {
  double x, y;
};

std::string CurveBlock(const std::string& name, const std::vector<XY>& points) {
  std::string text = "'" + name + "'\r\n";
  for (const XY& p : points) text += FormatFixed(p.x, 10, 3) + FormatFixed(p.y, 10, 3) + "\r\n";
  return text;
}

// A smooth flood wave rising from `base` to `peak` at `peak_time`.
std::vector<XY> Hydrograph(double peak_time, double peak, double base) {
  std::vector<XY> points;
  for (int t = 0; t <= 240; t += 2) {
    const double u = (t - peak_time) / 35.0;
    points.push_back({static_cast<double>(t), base + (peak - base) * std::exp(-u * u)});
  }
  return points;
}

// True when a pixel within `reach` pixels of (x, y) has about that colour.
bool ColourNear(const QImage& image, double x, double y, const QColor& colour, int reach = 2) {
  const int cx = static_cast<int>(std::lround(x)), cy = static_cast<int>(std::lround(y));
  for (int dy = -reach; dy <= reach; ++dy) {
    for (int dx = -reach; dx <= reach; ++dx) {
      const int px = cx + dx, py = cy + dy;
      if (px < 0 || py < 0 || px >= image.width() || py >= image.height()) continue;
      if (Near(image.pixelColor(px, py), colour, 60)) return true;
    }
  }
  return false;
}

// True when a pixel within `reach` pixels of (x, y) is dark: a thin black
// line, even spread over two pixels by the antialiasing.
bool InkNear(const QImage& image, double x, double y, int reach = 1) {
  const int cx = static_cast<int>(std::lround(x)), cy = static_cast<int>(std::lround(y));
  for (int dy = -reach; dy <= reach; ++dy) {
    for (int dx = -reach; dx <= reach; ++dx) {
      const int px = cx + dx, py = cy + dy;
      if (px < 0 || py < 0 || px >= image.width() || py >= image.height()) continue;
      const QColor c = image.pixelColor(px, py);
      if (std::max({c.red(), c.green(), c.blue()}) < 200) return true;
    }
  }
  return false;
}

int CountColour(const QImage& image, const QRect& area, const QColor& colour) {
  int count = 0;
  const QRect inside = area.intersected(image.rect());
  for (int y = inside.top(); y <= inside.bottom(); ++y)
    for (int x = inside.left(); x <= inside.right(); ++x)
      if (Near(image.pixelColor(x, y), colour, 60)) ++count;
  return count;
}

// The pixels' bounding box of a colour (strictly that colour, give or take
// the antialiasing of a line's core).
QRect BoundsOf(const QImage& image, const QColor& colour) {
  QRect bounds;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (Near(image.pixelColor(x, y), colour, 30)) bounds |= QRect(x, y, 1, 1);
  return bounds;
}

// The rectangle of the surface whose left and bottom are these page cm: the
// frame's outline, from its working top.
const Shape* FrameBox(Surface& surface, double left_cm, double bottom_cm) {
  const std::int32_t left = static_cast<std::int32_t>(std::lround((left_cm + kLeftOffset) * 1000));
  const std::int32_t bottom = static_cast<std::int32_t>(std::lround((kTop - bottom_cm) * 1000));
  const Shape* found = nullptr;
  for (int n = surface.FirstObject(); n != 0; n = surface.NextObject()) {
    const Shape* shape = surface.ObjectShape(n);
    if (shape->kind == kKindRectangle && shape->box.left == left && shape->box.bottom == bottom)
      found = shape;
  }
  return found;
}

bool HasText(Surface& surface, const std::string& text) {
  for (int n = surface.FirstObject(); n != 0; n = surface.NextObject())
    if (surface.ObjectShape(n)->text.string == text) return true;
  return false;
}

// The numbers of a script statement, by its keyword.
std::vector<std::string> StatementWords(const std::string& script, const std::string& keyword) {
  std::vector<std::string> lines;
  ReadTextLines(script, lines);
  ScriptedUi ui;
  for (const std::string& line : lines) {
    std::vector<std::string> words;
    SplitLine(ui, Trim(line), words);
    if (!words.empty() && EqualsNoCase(words[0], keyword)) return words;
  }
  return {};
}

class PlotPages : public ::testing::Test {
 protected:
  void SetUp() override { TestApp(); }

  // Draws page 1 of the script and renders the page at kWidth pixels, kept
  // as `shot` for the eye.
  QImage Render(const std::string& script, const std::string& shot) {
    picture_ = DrawScriptPage(ui_, script);
    EXPECT_TRUE(picture_.drawn);
    EXPECT_EQ(picture_.width, 29700);
    EXPECT_EQ(picture_.height, 21000);
    const QImage image =
        RenderArea(*picture_.surface, QRectF(0, 0, picture_.width, picture_.height), kWidth);
    image.save(QString::fromStdString(SnapshotPath(shot)));
    return image;
  }
  std::string File(const std::string& name) const { return folder_.File(name); }

  TempFolder folder_;
  ScriptedUi ui_;
  PlotPicture picture_;
};

TEST_F(PlotPages, HydrographOfThreeCurvesWithItsLegend) {
  const std::string curves = File("essai.Deb");
  WriteBytes(curves, CurveBlock("Autre", Hydrograph(50, 9, 0)) +
                         CurveBlock("Cac_1", Hydrograph(63, 2.5, 0.2)) +
                         CurveBlock("Cac_2", Hydrograph(97, 1.6, 0.1)) +
                         CurveBlock("Nod_3", Hydrograph(141, 0.9, 0.05)));
  WriteBytes(File("IdCrb.Tmp"), "Cac_1\r\n  Cac_2\r\nNod_3\r\n");
  const std::string script = File("DEB.Mst");
  ASSERT_TRUE(WriteCurveScript(ui_, File("IdCrb.Tmp"), script, curves, "Deb", ""));
  const QImage image = Render(script, "plot_hydrograph.png");
  EXPECT_TRUE(ui_.Empty());

  const std::vector<std::string> scale = StatementWords(script, "Echelle");
  ASSERT_GE(scale.size(), 6u);
  const double x_min = Val(scale[2]), x_max = Val(scale[3]);
  const double y_min = Val(scale[4]), y_max = Val(scale[5]);
  ASSERT_LT(x_min, x_max);
  ASSERT_LT(y_min, y_max);
  // The title and the legend lowered the frame's working top: the outline
  // tells where it is.
  const Shape* frame = FrameBox(*picture_.surface, 3, 3);
  ASSERT_NE(frame, nullptr);
  const double top_cm = kTop - frame->box.top / 1000.0;
  EXPECT_LT(top_cm, 19);
  EXPECT_GT(top_cm, 16);
  const auto at = [&](double x, double y) {
    return QPointF(PixelX(3 + (x - x_min) / (x_max - x_min) * 25),
                   PixelY(3 + (y - y_min) / (y_max - y_min) * (top_cm - 3)));
  };
  // Each peak where the axes put it, in its curve's colour.
  const QPointF peak1 = at(63, 2.5), peak2 = at(97, 1.6), peak3 = at(141, 0.9);
  EXPECT_TRUE(ColourNear(image, peak1.x(), peak1.y(), kBlueCurve)) << peak1.x() << " " << peak1.y();
  EXPECT_TRUE(ColourNear(image, peak2.x(), peak2.y(), kRedCurve)) << peak2.x() << " " << peak2.y();
  EXPECT_TRUE(ColourNear(image, peak3.x(), peak3.y(), kBlack)) << peak3.x() << " " << peak3.y();
  // Nothing of the first curve stands above its peak.
  EXPECT_FALSE(ColourNear(image, peak1.x(), peak1.y() - 12, kBlueCurve));
  // The three chosen curves and no other: the fourth of the file is left out.
  int drawn_curves = 0;
  for (int n = picture_.surface->FirstObject(); n != 0; n = picture_.surface->NextObject())
    if (picture_.surface->ObjectShape(n)->points.size() > 100) ++drawn_curves;
  EXPECT_EQ(drawn_curves, 3);
  // The legend, between the title and the working top: a sample of each
  // colour, and its texts.
  const QRect band(static_cast<int>(PixelX(3)), static_cast<int>(PixelY(19)) + 1,
                   static_cast<int>(PixelX(28) - PixelX(3)),
                   static_cast<int>(PixelY(top_cm) - PixelY(19)) - 2);
  EXPECT_GT(CountColour(image, band, kBlueCurve), 30);
  EXPECT_GT(CountColour(image, band, kRedCurve), 30);
  for (const char* text : {"Cac_1", "Cac_2", "Nod_3", "Hydrogramme", "Temps(mn)", "Débit (m3/s)"})
    EXPECT_TRUE(HasText(*picture_.surface, text)) << text;
}

TEST_F(PlotPages, DateAxisHasItsTicksAndDayMonthLabels) {
  std::vector<XY> flow;
  for (int day = 0; day <= 30; ++day)
    flow.push_back({static_cast<double>(day), 1 + 7 * std::exp(-(day - 12) * (day - 12) / 20.0)});
  WriteBytes(File("mesure.crb"), CurveBlock("Q", flow));
  const std::string script = File("dates.Mst");
  WriteBytes(script,
             "PAGE  \"A4\"  \"H\"  \"Mesures\"\r\n"
             " Cadre  2  28  3  20  \"Débit mesuré en janvier 2000\"  6 1 0 7 0 0\r\n"
             "    Echelle \"F\"  01/01/2000  31/01/2000  0  10  1  1  5  2 \"Date\"  "
             "\"Débit (m3/s)\"  \"V\" 5 \"01/01/2000\" \"######0.00\"\r\n"
             "    Grille 5 2 2 0 12632256\r\n"
             "    Plotxy 1 \"mesure.crb\" \"Q\" \"Débit\" 0 2 16711680\r\n"
             " EndCadre\r\n"
             "ENDPAGE\r\n");
  const QImage image = Render(script, "plot_dates.png");
  EXPECT_TRUE(ui_.Empty());
  // A label every 5 days, reading day and month.
  for (const char* label : {"01/01", "06/01", "11/01", "16/01", "21/01", "26/01", "31/01"})
    EXPECT_TRUE(HasText(*picture_.surface, label)) << label;
  // A tick a day along the bottom edge, a long one at each label; none
  // between two days.
  const double bottom = PixelY(3);
  for (int day = 0; day <= 30; ++day) {
    const double x = PixelX(2 + day * 26.0 / 30);
    EXPECT_TRUE(InkNear(image, x, bottom + 3)) << "day " << day;
    EXPECT_EQ(InkNear(image, x, bottom + 8), day % 5 == 0) << "day " << day;
    if (day < 30) {
      EXPECT_FALSE(InkNear(image, PixelX(2 + (day + 0.5) * 26.0 / 30), bottom + 3)) << day;
    }
    // Each label stands upright under its long tick.
    if (day % 5 == 0) {
      const QRect under(static_cast<int>(x) - 12, static_cast<int>(bottom) + 22, 25, 60);
      int ink = 0;
      for (int py = under.top(); py <= under.bottom(); ++py)
        for (int px = under.left(); px <= under.right(); ++px)
          if (InkNear(image, px, py, 0)) ++ink;
      EXPECT_GT(ink, 30) << "label of day " << day;
    }
  }
}

TEST_F(PlotPages, LongProfileHasABarAtEachNode) {
  // A reach of three collectors: distances of the nodes, inverts, vaults and
  // the ground, as the long profile writes them.
  WriteBytes(
      File("Prof.crb"),
      CurveBlock("ZR_R",
                 {{0, 100.0}, {40, 99.6}, {40, 99.5}, {90, 99.0}, {90, 98.9}, {150, 98.3}}) +
          CurveBlock(
              "ZV_R",
              {{0, 100.8}, {40, 100.4}, {40, 100.5}, {90, 100.0}, {90, 100.1}, {150, 99.5}}) +
          CurveBlock("ZTN_R", {{0, 102.0}, {40, 101.5}, {90, 101.2}, {150, 100.4}}));
  const std::string script = File("Prof.Mst");
  WriteBytes(script,
             "PAGE  \"A4\"  \"H\"  \"Profil en long\"\r\n"
             " Cadre  2  28  2  20  \"Bief R\"  6 0 0 6 0 0\r\n"
             "    Echelle \"F\"  0  160  97  103  10  .5  2  2 \"Distance cumulée (m)\"  "
             "\"Z (ngf)\"  \"V\" 4.5 \"#########0\" \"######0.00\"\r\n"
             "    Grille  0 0 2 0 0\r\n"
             "    Plotxy 0 \"Prof.crb\" \"*ZTN_R\" \"\" 0  0  0  0  0 \r\n"
             "    Plotxy 1 \"Prof.crb\" \"ZTN_R\" \"\" 0 2 0 0  0 \r\n"
             "    Plotxy 0 \"Prof.crb\" \"*ZR_R\" \"\" 0  0  0  0  0 \r\n"
             "    Plotxy 1 \"Prof.crb\" \"ZR_R\" \"\" 0 1 16711680 0  0 \r\n"
             "    Plotxy 1 \"Prof.crb\" \"ZV_R\" \"\" 0 1 16711680 0  0 \r\n"
             " EndCadre\r\n"
             "ENDPAGE\r\n\r\n");
  const QImage image = Render(script, "plot_profile.png");
  EXPECT_TRUE(ui_.Empty());
  const Shape* frame = FrameBox(*picture_.surface, 2, 2);
  ASSERT_NE(frame, nullptr);
  const double top_cm = kTop - frame->box.top / 1000.0;
  const auto px = [](double x) { return PixelX(2 + x / 160 * 26); };
  const auto py = [&](double z) { return PixelY(2 + (z - 97) / 6 * (top_cm - 2)); };
  // Bars from each node down to the bottom of the frame, below the invert.
  for (double node : {40.0, 90.0, 150.0}) {
    for (double z : {97.5, 98.0}) EXPECT_TRUE(InkNear(image, px(node), py(z))) << node << " " << z;
  }
  // And nothing between the nodes there.
  for (double between : {20.0, 65.0, 120.0}) {
    EXPECT_FALSE(InkNear(image, px(between), py(97.8), 3)) << between;
  }
  // Invert and vault in blue, the ground in black.
  EXPECT_TRUE(ColourNear(image, px(65), py(99.25), kBlueCurve));
  EXPECT_TRUE(ColourNear(image, px(65), py(100.25), kBlueCurve));
  EXPECT_TRUE(ColourNear(image, px(65), py(101.35), kBlack));
}

TEST_F(PlotPages, SectionOutlineIsAClosedShapeAtItsExtremes) {
  // A horseshoe: walls 0.6 m high, 1.2 m apart, under a half-round vault.
  std::vector<XY> outline = {{-0.6, 0}, {-0.6, 0.6}};
  for (int a = 180; a >= 0; a -= 5) {
    const double r = a * 3.14159265358979 / 180;
    outline.push_back({0.6 * std::cos(r), 0.6 + 0.6 * std::sin(r)});
  }
  outline.push_back({0.6, 0});
  WriteBytes(File("sec.crb"), CurveBlock("T120", outline));
  const std::string script = File("sec.Mst");
  WriteBytes(script,
             "PAGE  \"A4\"  \"H\"  \"\"\r\n"
             " Cadre  3  27  3  20  \"\"  6 1 0 7 0 0\r\n"
             "    Echelle \"F\"  -1.2  1.2  -.2  1.5  .1  .1  2  2 \"Largeur (m)\"  "
             "\"Hauteur (m)\"  \"V\" 5 \"######0.00\" \"######0.00\"\r\n"
             "    Grille 2 2 2 0 12632256\r\n"
             "    Plotxy 9 \"sec.crb\" \"T120\" \"\" 0 2 16711680\r\n"
             " EndCadre\r\n"
             " COMMENT 4  3  1.5  0. \" Nortavel, fichier sec.crb\" Arial\"0 0\r\n"
             "ENDPAGE\r\n");
  const QImage image = Render(script, "plot_section.png");
  EXPECT_TRUE(ui_.Empty());
  // 10 cm to the metre both ways: the walls at 9 and 21 cm, the floor at
  // 5 cm, the vault's crown at 17 cm.
  const QRect blue = BoundsOf(image, kBlueCurve);
  EXPECT_NEAR(blue.left(), PixelX(9), 2);
  EXPECT_NEAR(blue.right(), PixelX(21), 2);
  EXPECT_NEAR(blue.top(), PixelY(17), 2);
  EXPECT_NEAR(blue.bottom(), PixelY(5), 2);
  // Closed: the floor joins the two walls.
  EXPECT_TRUE(ColourNear(image, PixelX(15), PixelY(5), kBlueCurve));
  EXPECT_TRUE(ColourNear(image, PixelX(9), PixelY(7), kBlueCurve));
  EXPECT_TRUE(ColourNear(image, PixelX(21), PixelY(7), kBlueCurve));
}

}  // namespace
}  // namespace pluvane
