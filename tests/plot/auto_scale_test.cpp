#include "plot/auto_scale.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

void ExpectStep(StepChoice choice, double step, int spacing) {
  EXPECT_DOUBLE_EQ(choice.step, step);
  EXPECT_EQ(choice.spacing, spacing);
}

TEST(StepForX, TakesTheSizeOfXMaximum) {
  ExpectStep(StepForX(90000), 2000, 10);
  ExpectStep(StepForX(-90000), 2000, 10);
  ExpectStep(StepForX(120), 5, 2);
  ExpectStep(StepForX(50), 1, 1);
  ExpectStep(StepForX(0.3), 0.01, 1);
  ExpectStep(StepForX(0.05), 0.001, 5);
}

TEST(StepForY, TakesYMaximumWithItsSignAndMirrorsBelow) {
  ExpectStep(StepForY(1500000), 5000, 2);
  ExpectStep(StepForY(19), 0.5, 2);
  ExpectStep(StepForY(2), 0.2, 5);
  ExpectStep(StepForY(0.006), 0.001, 5);
  ExpectStep(StepForY(0.005), 1, 2);
  ExpectStep(StepForY(-25), 1, 5);
  ExpectStep(StepForY(-9000), 200, 5);
  ExpectStep(StepForY(-2000000), 0.5, 2);
}

TEST(StepForRange, WorksOnTheRange) {
  ExpectStep(StepForRange(10, 35), 1, 2);
  ExpectStep(StepForRange(0, 7), 0.5, 2);
  ExpectStep(StepForRange(0, 3), 0.1, 2);
  ExpectStep(StepForRange(0, 0.7), 0.01, 5);
  ExpectStep(StepForRange(0, 0.3), 0.01, 2);
  ExpectStep(StepForRange(0, 0.05), 1, 2);
  ExpectStep(StepForRange(90, 0), 5, 2);
  ExpectStep(StepForRange(100, 0), 10, 2);
}

TEST(FormatOfStep, ShowsTheStepsDecimals) {
  EXPECT_EQ(FormatOfStep(5), "#########0");
  EXPECT_EQ(FormatOfStep(0.5), "#######0.0");
  EXPECT_EQ(FormatOfStep(0.05), "######0.00");
  EXPECT_EQ(FormatOfStep(0.002), "#####0.000");
  EXPECT_EQ(FormatOfStep(0.0001), "#########0");
}

TEST(ComputeAutoScale, ScalesTheCurvesOfAFile) {
  TempFolder folder;
  WriteBytes(folder.File("a.crb"),
             "'A'\r\n     0.000     0.000\r\n    60.000     2.000\r\n   120.000     1.000\r\n");
  ScriptedUi ui;
  AutoScale s;
  ASSERT_TRUE(ComputeAutoScale(ui, folder.File("a.crb"), s));
  EXPECT_DOUBLE_EQ(s.x_min, 0);
  EXPECT_DOUBLE_EQ(s.x_max, 120);
  EXPECT_DOUBLE_EQ(s.y_min, 0);
  EXPECT_DOUBLE_EQ(s.y_max, 2);
  ExpectStep({s.x_step, s.x_spacing}, 5, 2);
  ExpectStep({s.y_step, s.y_spacing}, 0.2, 5);
  EXPECT_EQ(s.x_format, "#########0");
  EXPECT_EQ(s.y_format, "#######0.0");
}

TEST(ComputeAutoScale, AFlatCurveIsWidenedWithTiesToEven) {
  TempFolder folder;
  WriteBytes(folder.File("a.crb"), "'A'\r\n     0.000    10.000\r\n   100.000    10.000\r\n");
  ScriptedUi ui;
  AutoScale s;
  ASSERT_TRUE(ComputeAutoScale(ui, folder.File("a.crb"), s));
  // 5 and 12 (12.5 to the even), a step of 7 / 2, then 1.5 and 15.5 to the even.
  EXPECT_DOUBLE_EQ(s.y_min, 2);
  EXPECT_DOUBLE_EQ(s.y_max, 16);
  ExpectStep({s.y_step, s.y_spacing}, 0.5, 2);
  ExpectStep({s.x_step, s.x_spacing}, 5, 2);
}

TEST(ComputeAutoScale, NoDataIsAnAnomaly) {
  TempFolder folder;
  WriteBytes(folder.File("a.crb"), "'A'\r\n'B'\r\n");
  ScriptedUi ui;
  AutoScale s;
  EXPECT_FALSE(ComputeAutoScale(ui, folder.File("a.crb"), s));
  ExpectLastMessage(ui, "Anomalie dans le fichier de courbes à restituer \r" + folder.File("a.crb"),
                    "Controle de cohérence", MessageIcon::kNone);
}

}  // namespace
}  // namespace pluvane
