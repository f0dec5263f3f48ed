#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "foundation/expect_message.h"
#include "foundation/paths.h"
#include "plot/number_pattern.h"
#include "plot/plot_clip.h"
#include "plot/plot_command.h"
#include "plot/plot_draw.h"
#include "plot_fixture.h"

namespace pluvane {
namespace {

// A4 landscape: page cm 0 is 0.095 cm from the left and 0.04 cm from the
// bottom; 1000 units to the cm, y downwards from the page's top at 20.96 cm.
std::int32_t DevX(double cm) { return static_cast<std::int32_t>(std::lround((cm + 0.095) * 1000)); }
std::int32_t DevY(double cm) { return static_cast<std::int32_t>(std::lround((20.96 - cm) * 1000)); }
// The frame 2..28 x 2..20 cm with X 0..100 and Y 0..10.
double CmOfX(double x) { return 2 + x / 100 * 26; }
double CmOfY(double y) { return 2 + y / 10 * 18; }

const std::string kPlotA = " Plotxy 1 \"c.crb\" \"A\" \"\" 0 2 255\r\n";

// Two-point strokes standing upright (vertical) or lying (horizontal).
std::vector<const Shape*> Strokes(Surface& surface, bool vertical) {
  std::vector<const Shape*> strokes;
  for (const Shape* s : ShapesOfKind(surface, kKindPolyline)) {
    if (s->points.size() != 2) continue;
    const bool upright = s->points[0].x == s->points[1].x;
    const bool lying = s->points[0].y == s->points[1].y;
    if (s->line_color != 0) continue;  // the curves of the tests are coloured
    if (vertical ? upright && !lying : lying && !upright) strokes.push_back(s);
  }
  return strokes;
}

// A frame whose X runs from 01/01/2000 to `x_max` by days, labelled every 5.
std::string DateScript(const std::string& x_max) {
  return "PAGE \"A4\" \"H\"\r\n Cadre 2 28 2 20 \"\" 6 1 0 6 0 0\r\n Echelle \"F\" 01/01/2000 " +
         x_max +
         " 0 10 1 1 5 2 \"\" \"\" \"V\" 5 \"01/01/2000\" \"######0.00\"\r\n Grille 0 0 2 1 0\r\n" +
         kPlotA + " EndCadre\r\nENDPAGE\r\n";
}

using Render = PlotFixture;

TEST_F(Render, PageExtentIsThePageInHundredthsOfMillimetres) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  Draw(PageScript(kPlotA));
  EXPECT_EQ(surface.LogicWidth(), 29700);
  EXPECT_EQ(surface.LogicHeight(), 21000);
  EXPECT_TRUE(ui.Empty());
}

TEST_F(Render, PointsLandWhereTheScaleSays) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {50, 5}, {100, 10}, {25, 2.5}}));
  Draw(PageScript(kPlotA));
  const auto curves = Curves();
  ASSERT_EQ(curves.size(), 1u);
  const std::vector<Point> expected = {{DevX(2), DevY(2)},
                                       {DevX(15), DevY(11)},
                                       {DevX(28), DevY(20)},
                                       {DevX(CmOfX(25)), DevY(CmOfY(2.5))}};
  EXPECT_EQ(curves[0]->points, expected);
  EXPECT_EQ(curves[0]->points[1], (Point{15095, 9960}));
  EXPECT_EQ(curves[0]->line_color, 255);
  EXPECT_EQ(curves[0]->line_width, 2);
  EXPECT_EQ(curves[0]->fill_style, 1);  // hollow
}

TEST_F(Render, ACurveOfAMillionPointsIsOneObject) {
  std::vector<XY> points;
  for (int i = 0; i < 1000; ++i) points.push_back({i / 10.0, (i % 7) * 1.0});
  WriteCurves("c.crb", CurveText("A", points));
  Draw(PageScript(kPlotA));
  const auto curves = Curves();
  ASSERT_EQ(curves.size(), 1u);
  EXPECT_EQ(curves[0]->points.size(), 1000u);
}

TEST_F(Render, CurveOutAndBackInIsOnePolylineJoiningTheCrossings) {
  WriteCurves("c.crb", CurveText("A", {{0, 5}, {50, 15}, {100, 5}}));
  Draw(PageScript(kPlotA));
  const auto curves = Curves();
  ASSERT_EQ(curves.size(), 1u);
  // Crossing y = 10 at x = 25 going out and x = 75 coming back.
  const std::vector<Point> expected = {{DevX(2), DevY(11)},
                                       {DevX(CmOfX(25)), DevY(20)},
                                       {DevX(CmOfX(75)), DevY(20)},
                                       {DevX(28), DevY(11)}};
  EXPECT_EQ(curves[0]->points, expected);
}

TEST_F(Render, AllPointsOutsideDrawNothingAndSayNothing) {
  WriteCurves("c.crb", CurveText("A", {{200, 50}, {300, 60}, {-5, -5}}));
  Draw(PageScript(kPlotA));
  EXPECT_TRUE(Curves().empty());
  EXPECT_TRUE(ui.Empty());
}

TEST_F(Render, SegmentCrossingWithBothEndsOutsideLeavesNoTrace) {
  WriteCurves("c.crb", CurveText("A", {{-10, 5}, {110, 5}, {50, 5}, {50, 20}}));
  Draw(PageScript(kPlotA));
  const auto curves = Curves();
  std::vector<const Shape*> long_ones;
  for (const Shape* s : curves) {
    if (s->points.size() >= 2 && s->line_color == 255) long_ones.push_back(s);
  }
  ASSERT_EQ(long_ones.size(), 1u);
  // From (110, 5) to (50, 5) it enters at x = 100, then leaves at y = 10.
  const std::vector<Point> expected = {
      {DevX(28), DevY(11)}, {DevX(15), DevY(11)}, {DevX(15), DevY(20)}};
  EXPECT_EQ(long_ones[0]->points, expected);
}

TEST_F(Render, TicksStandAtTheStepsWithLongOnesAtTheLabels) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  Draw(PageScript(kPlotA));
  std::vector<const Shape*> x_ticks;
  for (const Shape* s : Strokes(surface, true)) {
    if (std::max(s->points[0].y, s->points[1].y) <= DevY(2) + 200 &&
        std::min(s->points[0].y, s->points[1].y) >= DevY(2) - 200)
      x_ticks.push_back(s);
  }
  ASSERT_EQ(x_ticks.size(), 11u);  // dx = 26 * 10 / 100 = 2.6 cm
  for (int i = 0; i < 11; ++i) {
    const Shape* tick = x_ticks[static_cast<std::size_t>(i)];
    EXPECT_EQ(tick->points[0].x, DevX(2 + 2.6 * i)) << i;
    const double half = i % 5 == 0 ? 0.1 : 0.05;
    EXPECT_EQ(tick->points[0].y, DevY(2 - half)) << i;
    EXPECT_EQ(tick->points[1].y, DevY(2 + half)) << i;
  }
  std::vector<const Shape*> y_ticks;
  for (const Shape* s : Strokes(surface, false)) {
    if (std::min(s->points[0].x, s->points[1].x) >= DevX(1.8) &&
        std::max(s->points[0].x, s->points[1].x) <= DevX(2.2))
      y_ticks.push_back(s);
  }
  ASSERT_EQ(y_ticks.size(), 11u);  // dy = 1.8 cm
  EXPECT_EQ(y_ticks[3]->points[0], (Point{DevX(2 - 0.05), DevY(2 + 3 * 1.8)}));
  EXPECT_EQ(y_ticks[4]->points[0], (Point{DevX(2 - 0.1), DevY(2 + 4 * 1.8)}));
}

TEST_F(Render, LabelsAtTheirTicksInTheirFormat) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  Draw(PageScript(kPlotA));
  for (const auto& [text, value] :
       std::vector<std::pair<std::string, double>>{{"0.00", 0}, {"50.00", 50}, {"100.00", 100}}) {
    const Shape* label = TextShape(surface, text);
    ASSERT_NE(label, nullptr) << text;
    EXPECT_NEAR((label->box.left + label->box.right) / 2.0, DevX(CmOfX(value)), 1) << text;
    EXPECT_EQ(label->box.top, DevY(2 - 0.2)) << text;
    EXPECT_EQ(label->text.align, 2);
    EXPECT_EQ(label->text.angle, 0);
  }
  for (int v = 0; v <= 10; v += 2) {
    const std::string text = std::to_string(v) + ".00";
    const Shape* label = nullptr;  // the right-aligned one: "0.00" is on both axes
    for (const Shape* s : ShapesOfKind(surface, kKindText))
      if (s->text.string == text && s->text.align == 1) label = s;
    ASSERT_NE(label, nullptr) << text;
    EXPECT_EQ(label->box.right, DevX(1.8)) << text;
    EXPECT_NEAR((label->box.top + label->box.bottom) / 2.0, DevY(CmOfY(v)), 1) << text;
    EXPECT_EQ(label->text.align, 1);
  }
  EXPECT_EQ(TextShape(surface, "1.00"), nullptr);
  // Labels at 5 points: 5 * 2540 / 72 logical units.
  EXPECT_EQ(TextShape(surface, "0.00")->text.size, -176);
  EXPECT_EQ(TextShape(surface, "0.00")->text.font, "DejaVu Sans");
}

TEST_F(Render, DateLabelsStandUprightAndReadDayMonth) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {10, 10}}));
  Draw(DateScript("11/01/2000"));
  ASSERT_TRUE(ui.Empty()) << ui.Last().text;
  for (const std::string text : {"01/01", "06/01", "11/01"}) {
    const Shape* label = TextShape(surface, text);
    ASSERT_NE(label, nullptr) << text;
    EXPECT_EQ(label->text.angle, 90) << text;
  }
  // The curve runs over the ten days.
  const auto curves = Curves();
  ASSERT_EQ(curves.size(), 1u);
  EXPECT_EQ(curves[0]->points.back(), (Point{DevX(28), DevY(20)}));
}

TEST_F(Render, EqualYLimitsAreWidenedByOneStep) {
  WriteCurves("c.crb", CurveText("A", {{0, 5}, {100, 5.5}}));
  Draw(PageScript(kPlotA, "", "\"F\" 0 100 5 5 10 1 5 2 \"\" \"\""));
  const auto curves = Curves();
  ASSERT_EQ(curves.size(), 1u);
  // Y runs 5 to 6 now: 5.5 is the frame's middle height.
  EXPECT_EQ(curves[0]->points[1], (Point{DevX(28), DevY(11)}));
  EXPECT_NE(TextShape(surface, "5.00"), nullptr);
}

TEST_F(Render, AZeroYStepLeavesTheYTicksOut) {
  WriteCurves("c.crb", CurveText("A", {{0, 5}, {100, 5}}));
  Draw(PageScript(kPlotA, "", "\"F\" 0 100 5 5 10 0 5 2 \"\" \"\""));
  EXPECT_TRUE(Strokes(surface, false).empty());
  EXPECT_EQ(Strokes(surface, true).size(), 11u);  // the X ticks stay
  EXPECT_NE(TextShape(surface, "50.00"), nullptr);
}

TEST_F(Render, OutlineKindsBoxAxesOrNothing) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  Draw(PageScript(kPlotA));
  auto boxes = ShapesOfKind(surface, kKindRectangle);
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0]->box, (Box{DevX(2), DevY(20), DevX(28), DevY(2)}));
  EXPECT_EQ(boxes[0]->fill_style, 1);

  surface.ClearDrawing();
  Draw(PageScript(kPlotA, "", "\"O\" 0 100 0 10 10 1 5 2 \"\" \"\""));
  EXPECT_TRUE(ShapesOfKind(surface, kKindRectangle).empty());
  int axes = 0;
  for (const Shape* s : ShapesOfKind(surface, kKindPolyline)) {
    if (s->points == std::vector<Point>{{DevX(2), DevY(2)}, {DevX(28), DevY(2)}}) ++axes;
    if (s->points == std::vector<Point>{{DevX(2), DevY(2)}, {DevX(2), DevY(20)}}) ++axes;
  }
  EXPECT_EQ(axes, 2);
}

TEST_F(Render, AnotherOutlineKindDrawsNoOutlineAndAllTheRest) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  Draw(PageScript(kPlotA, "Titre", "\"X\" 0 100 0 10 10 1 5 2 \"Temps\" \"Cote\""));
  // Only the title's band is a box.
  const auto boxes = ShapesOfKind(surface, kKindRectangle);
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0]->box.top, DevY(20));
  EXPECT_EQ(Curves().size(), 1u);
  EXPECT_EQ(Strokes(surface, true).size(), 11u);
  for (const std::string text : {"Titre", "Temps", "Cote", "0.00", "100.00", "10.00"}) {
    EXPECT_NE(TextShape(surface, text), nullptr) << text;
  }
}

TEST_F(Render, FrameFillColourFillsTheBox) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  Draw(PageScript(kPlotA, "", "\"F\" 0 100 0 10 10 1 5 2 \"\" \"\"", "0 0 2 1 0 12632256"));
  const auto boxes = ShapesOfKind(surface, kKindRectangle);
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0]->fill_style, 0);
  EXPECT_EQ(boxes[0]->fill_color, 12632256);
}

TEST_F(Render, TitleLowersTheWorkingTopAndIsClosedByABand) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  Draw(PageScript(kPlotA, "Titre"));
  const Shape* title = TextShape(surface, "Titre");
  ASSERT_NE(title, nullptr);
  EXPECT_EQ(title->box.top, DevY(19.8));
  EXPECT_NEAR((title->box.left + title->box.right) / 2.0, DevX(15), 1);
  EXPECT_EQ(title->text.align, 2);
  // 6 points are 212 units high; the working top is 0.2 cm under the title.
  const std::int32_t working_top = DevY(19.8) + 212 + 200;
  const auto boxes = ShapesOfKind(surface, kKindRectangle);
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_EQ(boxes[0]->box, (Box{DevX(2), DevY(20), DevX(28), working_top}));
  EXPECT_EQ(boxes[1]->box, (Box{DevX(2), working_top, DevX(28), DevY(2)}));
  // The top of the curve is at the lowered top.
  EXPECT_EQ(Curves()[0]->points[1], (Point{DevX(28), working_top}));
}

TEST_F(Render, FontIndex99IsArial) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  Draw(PageScript(kPlotA, "Titre", "\"F\" 0 100 0 10 10 1 5 2 \"\" \"\"", "0 0 2 1 0",
                  "6 1 0 6 99 0"));
  EXPECT_EQ(TextShape(surface, "Titre")->text.font, "DejaVu Sans");
  surface.ClearDrawing();
  Draw(PageScript(kPlotA, "Titre", "\"F\" 0 100 0 10 10 1 5 2 \"\" \"\"", "0 0 2 1 0",
                  "6 1 0 6 3 0"));
  EXPECT_EQ(TextShape(surface, "Titre")->text.font, "DejaVu Sans Mono");
  EXPECT_EQ(TextShape(surface, "0.00")->text.font, "DejaVu Sans Mono");
}

TEST_F(Render, OnlyTheFirstPageIsDrawn) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  Draw(PageScript(kPlotA, "Premiere") + PageScript(kPlotA, "Seconde"));
  EXPECT_NE(TextShape(surface, "Premiere"), nullptr);
  EXPECT_EQ(TextShape(surface, "Seconde"), nullptr);
  EXPECT_EQ(Curves().size(), 1u);
}

TEST_F(Render, LegendEntriesFollowTheTitle) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}) + CurveText("B", {{10, 1}, {20, 2}}));
  const std::string plots =
      " Plotxy 1 \"c.crb\" \"A\" \"Pluie\" 0 2 255\r\n"
      " Plotxy 3 \"c.crb\" \"B\" \"Débit\" 0 1 65280 0 4\r\n"
      " Plotxy 1 \"c.crb\" \"A\" \"\" 0 1 0\r\n";
  Draw(PageScript(plots));
  const Shape* first = TextShape(surface, "Pluie");
  const Shape* second = TextShape(surface, "Débit");
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  // No title: the first line's sample is at 20 - 0.2 - 0.4 cm.
  EXPECT_EQ(first->box.left, DevX(2.4 + 1 + 0.1));
  EXPECT_NEAR((first->box.top + first->box.bottom) / 2.0, DevY(19.4), 1);
  // Entry width: 2 samples + 0.1 + (5 + 1) characters of 4 points.
  const double width = 2 + 0.1 + 6 * (4 * 2.54 / 72);
  EXPECT_EQ(second->box.left, DevX(2.4 + width + 1.1));
  // The samples: a line of the first curve, a square of the second.
  bool line_sample = false, square_sample = false;
  for (const Shape* s : AllShapes(surface)) {
    if (s->kind == kKindPolyline &&
        s->points == std::vector<Point>{{DevX(2.4), DevY(19.4)}, {DevX(3.4), DevY(19.4)}})
      line_sample = s->line_color == 255;
    if (s->kind == kKindPolygon && s->points.size() == 5 && s->fill_color == 65280 &&
        s->points[0].x < DevX(2.4 + width + 0.5) && s->points[0].x > DevX(2.4 + width))
      square_sample = true;
  }
  EXPECT_TRUE(line_sample);
  EXPECT_TRUE(square_sample);
  EXPECT_EQ(TextsOf(surface).size(), 2u + 3 + 6);

  surface.ClearDrawing();
  Draw(PageScript(plots), true);
  EXPECT_EQ(TextShape(surface, "Pluie"), nullptr);
}

TEST_F(Render, LongLegendsWrapToANewLine) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  const std::string long_text(34, 'x');
  std::string plots;
  for (int i = 0; i < 4; ++i)
    plots += " Plotxy 1 \"c.crb\" \"A\" \"" + long_text + std::to_string(i) + "\" 0 2 255\r\n";
  Draw(PageScript(plots));
  const Shape* third = TextShape(surface, long_text + "2");
  const Shape* fourth = TextShape(surface, long_text + "3");
  ASSERT_NE(third, nullptr);
  ASSERT_NE(fourth, nullptr);
  // Samples and 35 characters of 4 points make 7.18 cm: three entries a line.
  EXPECT_NEAR((third->box.top + third->box.bottom) / 2.0, DevY(19.4), 1);
  EXPECT_EQ(fourth->box.left, DevX(2 + 1 + 1.1));
  EXPECT_NEAR((fourth->box.top + fourth->box.bottom) / 2.0, DevY(19.4 - 0.4), 1);
}

TEST_F(Render, CommentsAtTheirPlaceInTheirStyle) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  std::string script = PageScript(kPlotA);
  script.insert(script.find("ENDPAGE"),
                " COMMENT 4  2 1.5  0. \" Nortavel, fichier c.crb\" Arial\"0 0\r\n"
                " COMMENT 10 5 10 45 \"Penché\" 3 0 255 D H\r\n");
  Draw(script);
  // The compiled text comes back trimmed.
  const Shape* first = TextShape(surface, "Nortavel, fichier c.crb");
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first->box.left, DevX(2));
  EXPECT_EQ(first->box.bottom, DevY(1.5));
  EXPECT_EQ(first->text.font, "DejaVu Sans");
  EXPECT_EQ(first->text.size, -141);  // 4 points
  const Shape* second = TextShape(surface, "Penché");
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(second->box.left, DevX(5));  // alignment words change nothing
  EXPECT_EQ(second->text.angle, 45);
  EXPECT_EQ(second->text.color, 255);
  EXPECT_EQ(second->text.font, "DejaVu Sans Mono");
}

TEST_F(Render, GridLinesEverySoManyTicks) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  Draw(PageScript(kPlotA, "", "\"F\" 0 100 0 10 10 1 5 2 \"\" \"\"", "5 2 2 0 128"));
  std::vector<const Shape*> vertical, horizontal;
  for (const Shape* s : ShapesOfKind(surface, kKindPolyline)) {
    if (s->line_color != 128) continue;
    (s->points[0].x == s->points[1].x ? vertical : horizontal).push_back(s);
  }
  // Every 13 cm from the left edge, up to the right one; every 3.6 cm in Y.
  ASSERT_EQ(vertical.size(), 2u);
  EXPECT_EQ(vertical[0]->points, (std::vector<Point>{{DevX(15), DevY(2)}, {DevX(15), DevY(20)}}));
  EXPECT_EQ(vertical[1]->points[0].x, DevX(28));
  ASSERT_EQ(horizontal.size(), 5u);
  EXPECT_EQ(horizontal[0]->points[0], (Point{DevX(2), DevY(5.6)}));
  EXPECT_EQ(horizontal[0]->line_style, 2);
}

TEST_F(Render, CurveKindsAndTheirShapes) {
  WriteCurves("c.crb", CurveText("A", {{0, 5}, {100, 5}}));
  const std::string plots =
      " Plotxy 2 \"c.crb\" \"A\" \"\" 0 1 255 0 4\r\n"
      " Plotxy 5 \"c.crb\" \"A\" \"\" 0 1 255 65280 4\r\n"
      " Plotxy 7 \"c.crb\" \"A\" \"\" 0 1 255 0 4\r\n"
      " Plotxy 8 \"c.crb\" \"A\" \"  +x\" 0 1 255 0 4\r\n"
      " Plotxy 9 \"c.crb\" \"A\" \"\" 0 1 16711680\r\n"
      " Plotxy 11 \"c.crb\" \"A\" \"\" 0 1 16711935\r\n"
      " Plotxy 12 \"c.crb\" \"A\" \"\" 0 1 33023\r\n";
  Draw(PageScript(plots), true);
  const std::int32_t s = 106;  // 4 pixels of 2.54 / 96 cm
  const Point p{DevX(2), DevY(11)};
  int squares = 0, ellipses = 0, triangles = 0, symbols = 0;
  for (const Shape* shape : AllShapes(surface)) {
    if (shape->kind == kKindPolygon && shape->points.size() == 5 &&
        shape->points[0] == Point{p.x - s, p.y - s}) {
      ++squares;
      EXPECT_EQ(shape->fill_color, 16777215);  // white
    }
    if (shape->kind == kKindEllipse && shape->box == Box{p.x - s, p.y - s, p.x + s, p.y + s}) {
      ++ellipses;
      EXPECT_EQ(shape->fill_style, 0);
      EXPECT_EQ(shape->fill_color, 65280);
    }
    if (shape->kind == kKindPolygon && shape->points.size() == 4 &&
        shape->points[2] == Point{p.x, p.y - 159}) {
      ++triangles;
      EXPECT_EQ(shape->fill_color, 255);  // fill "0": the line colour
    }
    if (shape->kind == kKindText && shape->text.string == "+") {
      ++symbols;
      EXPECT_EQ(shape->text.size, -106);  // 3 points
    }
  }
  EXPECT_EQ(squares, 1);
  EXPECT_EQ(ellipses, 1);
  EXPECT_EQ(triangles, 1);
  EXPECT_EQ(symbols, 2);
  const std::vector<Point> closed = {
      {DevX(2), DevY(11)}, {DevX(28), DevY(11)}, {DevX(2), DevY(11)}};
  const std::vector<Point> area = {{DevX(2), DevY(11)},
                                   {DevX(28), DevY(11)},
                                   {DevX(28), DevY(2)},
                                   {DevX(2), DevY(2)},
                                   {DevX(2), DevY(11)}};
  bool closed_found = false, area_found = false;
  for (const Shape* shape : AllShapes(surface)) {
    if (shape->kind == kKindPolyline && shape->points == closed) closed_found = true;
    if (shape->kind == kKindPolygon && shape->points == area) {
      area_found = true;
      EXPECT_EQ(shape->fill_color, 16711935);
      EXPECT_EQ(shape->fill_style, 0);
    }
    EXPECT_NE(shape->line_color, 33023) << "kind 12 draws nothing";
  }
  EXPECT_TRUE(closed_found);
  EXPECT_TRUE(area_found);
}

TEST_F(Render, BarsFromEachPointDownToYMinimum) {
  WriteCurves("c.crb", CurveText("A", {{0, 5}, {50, 8}, {150, 2}}));
  Draw(PageScript(" Plotxy 1 \"c.crb\" \"*A\" \"\" 0 1 255\r\n"), true);
  std::vector<std::vector<Point>> bars;
  for (const Shape* s : Curves()) {
    if (s->points.size() == 2 && s->points[0].x == s->points[1].x) bars.push_back(s->points);
  }
  ASSERT_EQ(bars.size(), 2u);  // the third point is outside
  EXPECT_EQ(bars[1], (std::vector<Point>{{DevX(15), DevY(CmOfY(8))}, {DevX(15), DevY(2)}}));

  surface.ClearDrawing();
  Draw(PageScript(" Plotxy 1 \"c.crb\" \"*A\" \"---*\" 0 1 255\r\n"), true);
  EXPECT_EQ(Curves().size(), 1u);  // the curve alone
}

TEST_F(Render, MissingCurveFileIsToldAndTheNextCurveDrawn) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  Draw(PageScript(" Plotxy 1 \"absent.crb\" \"A\" \"\" 0 2 255\r\n" + kPlotA));
  ASSERT_EQ(ui.Messages().size(), 1u);
  ExpectLastMessage(ui, " Fichier " + JoinPath(folder.Path(), "absent.crb") + " introuvable.", "",
                    MessageIcon::kNone);
  EXPECT_EQ(Curves().size(), 1u);
}

TEST_F(Render, ReversedScaleIsToldAndTheFrameStillDrawn) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  Draw(PageScript(kPlotA, "Titre", "\"F\" 0 100 10 0 10 1 5 2 \"\" \"\""));
  ExpectLastMessage(ui, "Revoir la ligne Echelle du Cadre 1\nIncoherence des X,Y minmax !",
                    "Echelle incohérente dans le fic Mst", MessageIcon::kCritical);
  EXPECT_NE(TextShape(surface, "Titre"), nullptr);
}

TEST_F(Render, RunTimeErrorIsReportedWithTheControlLine) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {100, 10}}));
  Draw(DateScript("99/99/2000"));
  ExpectLastMessage(ui, "Erreur dans Morvex, n° 13 (ligne 3) : Incompatibilité de type",
                    "Traçage de courbe", MessageIcon::kNone);
  EXPECT_TRUE(surface.Redraw());
}

TEST_F(Render, AnOverfullBufferEndsTheCurveWithItsMessage) {
  CtlPage a4;
  PlotPage page(surface, a4);
  page.left = 2, page.right = 28, page.bottom = 2, page.top = 20, page.top_read = 20;
  page.x_min = 0, page.x_max = 1, page.y_min = 0, page.y_max = 1;
  const int count = 1000002;
  std::vector<double> x(count, 0.5), y(count, 0.5);
  CtlPlot plot;
  plot.kind = 1;
  PlotUcm(ui, page, x, y, count, false, plot);
  ExpectLastMessage(ui,
                    "Module PlotUcm, erreur n° 9 : L'indice n'appartient pas à la sélection "
                    "ligne:1000002",
                    "Traçage de courbe", MessageIcon::kNone);
  EXPECT_TRUE(AllShapes(surface).empty());
  // One point fewer fits.
  PlotUcm(ui, page, x, y, count - 1, false, plot);
  EXPECT_EQ(AllShapes(surface).size(), 1u);
}

TEST_F(Render, EqualScalesStretchThePageForASection) {
  WriteCurves("c.crb", CurveText("A", {{0, 0}, {10, 10}}));
  const std::string script = folder.File("s.Mst");
  WriteBytes(script, PageScript(kPlotA, "", "\"F\" 0 10 0 10 1 1 5 2 \"\" \"\""));
  MorvexDraw(ui, true, surface, script, folder.Path(), true);
  // 26 cm for 10 units in X: the 18 cm in Y are stretched to as long.
  EXPECT_EQ(surface.LogicWidth(), 29700);
  EXPECT_EQ(surface.LogicHeight(), std::lround(21000 * 26.0 / 18));
  const auto curve = Curves()[0];
  EXPECT_NEAR(curve->points[1].x - curve->points[0].x, curve->points[0].y - curve->points[1].y, 1);
}

TEST(ClipSegment, LeavingEnteringAndMissing) {
  const PlotWindow window{0, 10, 0, 10};
  double x[2], y[2];
  ASSERT_EQ(ClipSegment(window, 5, 5, 15, 5, x, y), 1);
  EXPECT_DOUBLE_EQ(x[0], 10 + 1e-6);
  ASSERT_EQ(ClipSegment(window, 5, 15, 5, 5, x, y), 2);
  EXPECT_DOUBLE_EQ(y[0], 10 + 1e-6);
  EXPECT_DOUBLE_EQ(y[1], 5);
  ASSERT_EQ(ClipSegment(window, 1, 1, 2, 2, x, y), 1);
  EXPECT_DOUBLE_EQ(x[0], 2);
  EXPECT_EQ(ClipSegment(window, 20, 20, 30, 5, x, y), 0);
}

TEST(FormatByPattern, DigitPlacesAndDecimals) {
  EXPECT_EQ(FormatByPattern(2.5, "######0.00"), "2.50");
  EXPECT_EQ(FormatByPattern(0, "######0.00"), "0.00");
  EXPECT_EQ(FormatByPattern(-1.5, "######0.00"), "-1.50");
  EXPECT_EQ(FormatByPattern(1234.56, "#########0"), "1235");
  EXPECT_EQ(FormatByPattern(0.0005, "#####0.000"), "0.001");
  EXPECT_EQ(FormatByPattern(0.25, "#######0.0"), "0.3");
  EXPECT_EQ(FormatByPattern(7, "abc"), "7");
  EXPECT_EQ(FormatByPattern(7, "0 m"), "7 m");
}

TEST(EndToEnd, CompiledScriptDrawnFromItsControlFile) {
  TempFolder folder;
  ScriptedUi ui;
  WriteBytes(folder.File("crb.Deb"), CurveText("N1", {{0, 0}, {60, 1.5}, {120, 0.5}}));
  const std::string script = folder.File("Deb.Mst");
  WriteBytes(script,
             "PAGE  \"A4\"  \"H\"  \"\"\r\n"
             " Cadre  3  28  3  19  \"Hydrogramme\"  6 0 0 7 0 0\r\n"
             "    Echelle \"F\"  0  120  0  2  10  0.2  2  5 \"Temps(mn)\"  \"Débit (m3/s)\"  "
             "\"V\" 4 \"#########0\" \"#######0.0\"\r\n"
             "    Grille  2  5 2 0 0\r\n"
             "    Plotxy 1 \"crb.Deb\" \"N1\" \"N1\" 0 2 16711680 16711680 4\r\n"
             " EndCadre\r\n"
             " COMMENT 4  3 1.5  0. \" Nortavel, fichier crb.Deb\" Arial\"0 0\r\n"
             "ENDPAGE\r\n\r\n");
  ASSERT_TRUE(CompileScriptPage(ui, script, folder.File("copy.ctl")));
  EXPECT_TRUE(FileExist(folder.File("copy.ctl")));
  PlotPicture picture = DrawScriptPage(ui, script);
  EXPECT_TRUE(ui.Empty());
  ASSERT_TRUE(picture.drawn);
  EXPECT_EQ(picture.width, 29700);
  EXPECT_EQ(picture.height, 21000);
  Surface& surface = *picture.surface;
  for (const std::string text : {"Hydrogramme", "N1", "Temps(mn)", "Débit (m3/s)", "0", "120",
                                  "0.0", "2.0", "Nortavel, fichier crb.Deb"}) {
    EXPECT_NE(TextShape(surface, text), nullptr) << text;
  }
  // The peak at (60, 1.5): X 3 + 12.5 cm, Y 3 cm plus 0.75 of the lowered height.
  const Shape* hydrograph = nullptr;
  for (const Shape* s : ShapesOfKind(surface, kKindPolyline)) {
    if (s->points.size() == 3) hydrograph = s;
  }
  ASSERT_NE(hydrograph, nullptr);
  EXPECT_EQ(hydrograph->points[1].x, DevX(15.5));
  EXPECT_EQ(hydrograph->points[0].y, DevY(3));
  EXPECT_EQ(hydrograph->line_color, 16711680);
}

TEST(EndToEnd, ScriptThatDoesNotCompileDrawsNothing) {
  TempFolder folder;
  ScriptedUi ui;
  const std::string script = folder.File("x.Mst");
  WriteBytes(script, "");
  PlotPicture picture = DrawScriptPage(ui, script);
  EXPECT_FALSE(picture.drawn);
  ExpectLastMessage(ui, " Pas de mot-cle PAGE/ENDPAGE dans " + script, "", MessageIcon::kNone);
  EXPECT_TRUE(AllShapes(*picture.surface).empty());
}

}  // namespace
}  // namespace pluvane
