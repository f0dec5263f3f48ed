// The free drawing tools and attributes driven through the interaction
// machine, as the main window drives it: the tool of a menu, then presses,
// releases, double clicks and keys, and the exact texts the user sees.
#include <gtest/gtest.h>

#include <cmath>

#include "drawing/surface_helpers.h"
#include "foundation/test_files.h"
#include "network/placement_fixture.h"
#include "shell/drawing_attributes.h"
#include "shell/main_interaction.h"
#include "shell/shape_drawing.h"

namespace pluvane {
namespace {

constexpr int kLeft = 1;
constexpr int kRight = 2;

class ShapeDrawingTest : public PlacementTest {
 protected:
  void Tool(const char* menu) { ASSERT_TRUE(interaction.DrawingTool(menu).has_value()) << menu; }
  InteractionResult Drag(double x0, double y0, double x1, double y1) {
    interaction.Press(kLeft, 0, 0, x0, y0);
    interaction.Move(x1, y1);
    return interaction.ReleaseAt(kLeft, 0, x1, y1);
  }
  InteractionResult ClickAt(double x, double y, int hit = 0) {
    interaction.Press(kLeft, 0, hit, x, y);
    return interaction.ReleaseAt(kLeft, 0, x, y);
  }
  int Count() { return surface.ObjectCount(kPage); }
  int Last() {
    int last = 0;
    for (int n = surface.NextObjectNumber(0); n > 0; n = surface.NextObjectNumber(n)) last = n;
    return last;
  }
  const Shape& ShapeOf(int n) { return *surface.ObjectShape(n); }
  void Select(std::initializer_list<int> objects) {
    surface.DeselectAll();
    for (int n : objects) {
      surface.SetCurrentObject(n);
      surface.SetSelected(true);
    }
  }

  MainInteraction interaction{surface, state, ui};
};

TEST_F(ShapeDrawingTest, EachToolSetsItsEditMode) {
  const std::vector<std::pair<const char*, int>> tools = {
      {"MnuPlaceLine", 1},      {"MnuPlaceRectangle", 2}, {"MnuPlaceEllipse", 4},
      {"MnuPlaceArc", 5},       {"MnuPlacePie", 6},       {"MnuPlaceChord", 7},
      {"MnuPlacePolyLine", 8},  {"MnuPlacePolygon", 9},   {"MnuPlaceTxt", 10},
      {"mnuUtil_PlaceTxt", 10}, {"MnuPlaceBezier", 14},   {"MnuPlaceCotation", 22},
      {"mnuSelectSelectionMode", 11}, {"mnuSelectRotationMode", 13},
      {"mnuSelectViewMode", 0}, {"mnuPlaceLink", 21},     {"myRECT", 2},
      {"myDIMLINE", 22},        {"myTEXT", 10}};
  for (const auto& [menu, mode] : tools) {
    interaction.ToolClick("MDMOVE");
    Tool(menu);
    EXPECT_EQ(surface.EditMode(), mode) << menu;
    EXPECT_EQ(interaction.CurrentMode(), "") << menu;
  }
  EXPECT_FALSE(interaction.DrawingTool("MnAtFill").has_value());
}

TEST_F(ShapeDrawingTest, ToolsSayWhatToDoInTheStatus) {
  Tool("MnuPlaceRectangle");
  EXPECT_EQ(ui.Statuses().back(), "Tirez du premier coin jusqu'au coin opposé, bouton gauche enfoncé.");
  Tool("MnuPlacePolyLine");
  EXPECT_EQ(ui.Statuses().back(),
            "Cliquez chaque sommet ; double-cliquez ou tapez <Entrée> pour finir, <Echap> pour "
            "annuler.");
  Tool("MnuPlaceTxt");
  EXPECT_EQ(ui.Statuses().back(), "Cliquez à l'endroit du texte.");
  Tool("mnuPlaceLink");
  EXPECT_EQ(ui.Statuses().back(), "Cliquez le premier objet, puis le second.");
  Tool("mnuSelectRotationMode");
  EXPECT_EQ(ui.Statuses().back(), "Tirez autour de la sélection pour la faire tourner.");
  Tool("mnuSelectSelectionMode");
  EXPECT_EQ(ui.Statuses().back(), "");
}

TEST_F(ShapeDrawingTest, EditAndViewModesSetWhatTheMouseMayDo) {
  Tool("mnuSelectEditMode");
  EXPECT_EQ(surface.EditMode(), 11);
  EXPECT_EQ(surface.SelectionAllowed(), -1);
  Tool("mnuSelectSelectionMode");
  EXPECT_EQ(surface.SelectionAllowed(), 23);
  Tool("mnuSelectViewMode");
  EXPECT_FALSE(surface.SelectionEnabled());
}

TEST_F(ShapeDrawingTest, ALineIsDraggedAndIsOneUndoStep) {
  Tool("MnuPlaceLine");
  const InteractionResult pressed = interaction.Press(kLeft, 0, 0, 1000, 2000);
  ASSERT_TRUE(pressed.rubber_shape.has_value());
  EXPECT_EQ(pressed.rubber_shape->kind, kKindLine);
  const InteractionResult released = interaction.ReleaseAt(kLeft, 0, 3000, 1000);
  EXPECT_FALSE(released.rubber_shape.has_value());
  ASSERT_EQ(Count(), 1);
  const Shape& line = ShapeOf(Last());
  EXPECT_EQ(line.kind, kKindLine);
  EXPECT_EQ(line.box, (Box{1000, 1000, 3000, 2000}));
  EXPECT_EQ(line.points, (std::vector<Point>{{1000, 2000}, {3000, 1000}}));
  // The tool stays armed for the next line.
  EXPECT_EQ(surface.EditMode(), kEditLine);
  EXPECT_TRUE(surface.Undo());
  EXPECT_EQ(Count(), 0);
}

TEST_F(ShapeDrawingTest, DraggedShapesTakeTheirKindAndBox) {
  for (const char* menu : {"MnuPlaceRectangle", "MnuPlaceEllipse", "MnuPlaceArc", "MnuPlacePie",
                           "MnuPlaceChord", "MnuPlaceCotation"}) {
    Tool(menu);
    Drag(4000, 3000, 1000, 5000);
    const Shape& shape = ShapeOf(Last());
    EXPECT_EQ(shape.kind, surface.EditMode()) << menu;
    EXPECT_EQ(shape.box, (Box{1000, 3000, 4000, 5000})) << menu;
  }
  EXPECT_EQ(Count(), 6);
  // An arc runs from the corner pressed to the next corner on its side; the
  // corner released closes its box. A dimension line keeps its two ends.
  int n = surface.NextObjectNumber(0);
  n = surface.NextObjectNumber(surface.NextObjectNumber(n));
  EXPECT_EQ(ShapeOf(n).kind, kKindArc);
  EXPECT_EQ(ShapeOf(n).points, (std::vector<Point>{{4000, 3000}, {1000, 3000}, {1000, 5000}}));
  EXPECT_EQ(ShapeOf(Last()).points, (std::vector<Point>{{4000, 3000}, {1000, 5000}}));
  EXPECT_TRUE(ShapeOf(surface.NextObjectNumber(0)).points.empty());
}

// The radius of action of the design storms is a circle drawn on the plan:
// its tool arms the creation with the ellipse; Shift keeps the drag square.
TEST_F(ShapeDrawingTest, TheRadiusOfActionIsACircleDrawnWithShift) {
  interaction.ToolClick("X_RAYON");
  EXPECT_EQ(state.CurrentMode, "CREATE OBJ");
  EXPECT_EQ(surface.EditMode(), kEditEllipse);
  EXPECT_EQ(ui.Statuses().back(),
            "Rayon d'action : tirez du coin au coin opposé en tenant la touche Maj pour tracer "
            "un cercle.");
  // Without Shift the drag is an ellipse, refused and taken away.
  Drag(1000, 1000, 3000, 2000);
  ASSERT_FALSE(ui.Empty());
  EXPECT_EQ(ui.Last().text, "Cf. barre de message ci-dessous pour tracer un cercle et non un ellipse.");
  EXPECT_EQ(ui.Last().title, "Définition d'un rayon d'action");
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(state.CurrentMode, "CREATE OBJ");
  // With Shift it is a circle of the larger side.
  interaction.Press(kLeft, 1, 0, 1000, 1000);
  const InteractionResult placed = interaction.ReleaseAt(kLeft, 1, 3000, 2000);
  ASSERT_EQ(Count(), 1);
  EXPECT_EQ(ShapeOf(Last()).kind, kKindEllipse);
  EXPECT_EQ(ShapeOf(Last()).box, (Box{1000, 1000, 3000, 3000}));
  EXPECT_EQ(TagOfObject(surface, Last(), "Id"), "Rayon");
  EXPECT_EQ(TagOfObject(surface, Last(), "iName"), "17");
  EXPECT_EQ(placed.open_form, "frmPluRayon");
  EXPECT_EQ(state.CurrentMode, "");
  // The circle and its tags go in one step.
  EXPECT_TRUE(surface.Undo());
  EXPECT_EQ(Count(), 0);
}

TEST_F(ShapeDrawingTest, AClickWithoutDragPlacesNothing) {
  Tool("MnuPlaceRectangle");
  ClickAt(1000, 1000);
  Drag(1000, 1000, 1000, 3000);  // no width
  Tool("MnuPlaceLine");
  ClickAt(1000, 1000);
  EXPECT_EQ(Count(), 0);
}

TEST_F(ShapeDrawingTest, APolylineTakesAVertexAClickAndEndsOnEnter) {
  Tool("MnuPlacePolyLine");
  ClickAt(1000, 1000);
  InteractionResult r = ClickAt(2000, 3000);
  ASSERT_TRUE(r.rubber_shape.has_value());
  EXPECT_EQ(r.rubber_shape->kind, kKindPolyline);
  EXPECT_EQ(r.rubber_shape->points.size(), 2u);
  ClickAt(4000, 1500);
  EXPECT_EQ(Count(), 0);
  interaction.Key(13, 0);
  ASSERT_EQ(Count(), 1);
  const Shape& line = ShapeOf(Last());
  EXPECT_EQ(line.kind, kKindPolyline);
  EXPECT_EQ(line.points, (std::vector<Point>{{1000, 1000}, {2000, 3000}, {4000, 1500}}));
  EXPECT_EQ(line.box, (Box{1000, 1000, 4000, 3000}));
  EXPECT_TRUE(surface.Undo());
  EXPECT_EQ(Count(), 0);
}

TEST_F(ShapeDrawingTest, APolygonEndsOnADoubleClickAndNeedsThreeVertices) {
  Tool("MnuPlacePolygon");
  ClickAt(1000, 1000);
  ClickAt(2000, 1000);
  // The double click presses again on its point: one vertex only.
  ClickAt(2000, 1000);
  interaction.DoubleClick(2000, 1000);
  EXPECT_EQ(Count(), 0);
  ClickAt(1000, 1000);
  ClickAt(2000, 1000);
  ClickAt(1500, 2000);
  interaction.DoubleClick(1500, 2000);
  ASSERT_EQ(Count(), 1);
  EXPECT_EQ(ShapeOf(Last()).kind, kKindPolygon);
  EXPECT_EQ(ShapeOf(Last()).points.size(), 3u);
}

TEST_F(ShapeDrawingTest, EscapeCancelsTheVerticesSoFar) {
  Tool("MnuPlacePolyLine");
  ClickAt(1000, 1000);
  ClickAt(2000, 1000);
  interaction.Key(27, 0);
  EXPECT_EQ(surface.EditMode(), 11);
  interaction.Key(13, 0);
  EXPECT_EQ(Count(), 0);
}

TEST_F(ShapeDrawingTest, ABezierCurvePassesThroughTheClickedPoints) {
  Tool("MnuPlaceBezier");
  ClickAt(1000, 1000);
  ClickAt(2000, 2000);
  ClickAt(3000, 1000);
  interaction.DoubleClick(3000, 1000);
  ASSERT_EQ(Count(), 1);
  const Shape& curve = ShapeOf(Last());
  EXPECT_EQ(curve.kind, kKindBezier);
  ASSERT_EQ(curve.points.size(), 7u);
  EXPECT_EQ(curve.points[0], (Point{1000, 1000}));
  EXPECT_EQ(curve.points[3], (Point{2000, 2000}));
  EXPECT_EQ(curve.points[6], (Point{3000, 1000}));
  // The tangent at the middle point is parallel to the chord of its neighbours.
  EXPECT_EQ(curve.points[2].y, 2000);
  EXPECT_EQ(curve.points[4].y, 2000);
}

TEST_F(ShapeDrawingTest, ATextIsAClickAndTheTextTyped) {
  Tool("MnuPlaceTxt");
  ui.Queue("Regard 12");
  ClickAt(2000, 3000);
  ASSERT_EQ(ui.Messages().size(), 1u);
  EXPECT_EQ(ui.Last().kind, "text");
  EXPECT_EQ(ui.Last().text, "Texte à placer :");
  EXPECT_EQ(ui.Last().title, "Placer un texte");
  ASSERT_EQ(Count(), 1);
  surface.SetCurrentObject(Last());
  EXPECT_EQ(surface.ObjectKind(), kKindText);
  EXPECT_EQ(surface.TextString(), "Regard 12");
  EXPECT_EQ(surface.TextFontName(), "Arial");
  EXPECT_LT(surface.TextSize(), 0);
  EXPECT_EQ(ShapeOf(Last()).box.left, 2000);
  EXPECT_EQ(ShapeOf(Last()).box.top, 3000);
  // Cancelled or empty: nothing.
  ui.QueueCancel();
  ClickAt(5000, 5000);
  ui.Queue("");
  ClickAt(5000, 5000);
  EXPECT_EQ(Count(), 1);
}

TEST_F(ShapeDrawingTest, AFreeLinkJoinsTwoObjects) {
  const int a = surface.AddObject(kKindRectangle, 1000, 1000, 1200, 1200);
  const int b = surface.AddObject(kKindEllipse, 5000, 5000, 5400, 5400);
  Tool("mnuPlaceLink");
  InteractionResult r = ClickAt(1100, 1100, a);
  ASSERT_TRUE(r.rubber_shape.has_value());
  EXPECT_EQ(r.rubber_shape->points.front(), (std::pair<double, double>(1100, 1100)));
  ClickAt(1100, 1100, a);  // the same object again: still waiting
  EXPECT_EQ(Count(), 2);
  ClickAt(5200, 5200, b);
  ASSERT_EQ(Count(), 3);
  surface.SetCurrentObject(Last());
  EXPECT_EQ(surface.ObjectKind(), kKindLink);
  EXPECT_EQ(surface.LinkEndObject(0), a);
  EXPECT_EQ(surface.LinkEndObject(1), b);
  EXPECT_EQ(surface.ObjTagCount(), 0);
  EXPECT_TRUE(surface.Undo());
  EXPECT_EQ(Count(), 2);
}

TEST_F(ShapeDrawingTest, TheRotationModeTurnsTheSelectionAboutItsCentre) {
  surface.AddObject(kKindLine, 1000, 2000, 3000, 2000);
  surface.SetObjectPoints({{1000, 2000}, {3000, 2000}});
  const int line = surface.CurrentObject();
  const int text = surface.AddObject(kKindText, 1900, 1900, 2100, 2100);
  Select({line, text});
  Tool("mnuSelectRotationMode");
  // From the right of the centre (2000, 2000) to above it: a quarter turn.
  interaction.Press(kLeft, 0, 0, 3000, 2000);
  interaction.ReleaseAt(kLeft, 0, 2000, 1000);
  EXPECT_EQ(ShapeOf(line).points, (std::vector<Point>{{2000, 3000}, {2000, 1000}}));
  EXPECT_DOUBLE_EQ(ShapeOf(text).text.angle, 90);
  EXPECT_TRUE(surface.Undo());
  EXPECT_EQ(ShapeOf(line).points, (std::vector<Point>{{1000, 2000}, {3000, 2000}}));
  EXPECT_DOUBLE_EQ(ShapeOf(text).text.angle, 0);
}

TEST_F(ShapeDrawingTest, TheTextsRotationTurnsTextsOnly) {
  surface.AddObject(kKindLine, 1000, 2000, 3000, 2000);
  surface.SetObjectPoints({{1000, 2000}, {3000, 2000}});
  const int line = surface.CurrentObject();
  const int text = surface.AddObject(kKindText, 1900, 1900, 2100, 2100);
  Select({text});
  interaction.Press(kRight, 0, text, 2000, 2000);
  EXPECT_EQ(interaction.ReleaseAt(kRight, 0, 2000, 2000).popup, "mnuPopUp_txt");
  Select({line, text});
  interaction.ToolClick("MDROTATE");
  EXPECT_EQ(interaction.CurrentMode(), "MDROTATE");
  EXPECT_EQ(surface.EditMode(), 13);
  interaction.Press(kLeft, 0, 0, 3000, 2000);
  interaction.ReleaseAt(kLeft, 0, 1000, 2000);
  EXPECT_DOUBLE_EQ(ShapeOf(text).text.angle, 180);
  EXPECT_EQ(ShapeOf(line).points, (std::vector<Point>{{1000, 2000}, {3000, 2000}}));
}

TEST_F(ShapeDrawingTest, ShapesAreSavedAndLoadedWithTheDrawing) {
  Tool("MnuPlacePolygon");
  ClickAt(1000, 1000);
  ClickAt(2000, 1000);
  ClickAt(1500, 2000);
  interaction.Key(13, 0);
  Tool("MnuPlaceArc");
  Drag(3000, 3000, 5000, 4000);
  Tool("MnuPlaceTxt");
  ui.Queue("Exutoire");
  ClickAt(6000, 6000);
  TempFolder folder;
  const std::string path = folder.File("dessin.mtf");
  ASSERT_TRUE(surface.SaveFile(path, kNativeFormat));
  std::vector<Shape> before;
  for (int n = surface.NextObjectNumber(0); n > 0; n = surface.NextObjectNumber(n))
    before.push_back(ShapeOf(n));
  surface.ClearDrawing();
  ASSERT_TRUE(surface.LoadFile(path, 0));
  ASSERT_EQ(Count(), 3);
  std::size_t i = 0;
  for (int n = surface.NextObjectNumber(0); n > 0; n = surface.NextObjectNumber(n), ++i) {
    EXPECT_EQ(ShapeOf(n).kind, before[i].kind);
    EXPECT_EQ(ShapeOf(n).box, before[i].box);
    EXPECT_EQ(ShapeOf(n).points, before[i].points);
    EXPECT_EQ(ShapeOf(n).text, before[i].text);
  }
}

// Attributes.

class DrawingAttributesTest : public ShapeDrawingTest {
 protected:
  bool Run(const char* menu) { return RunDrawingAttribute(menu, surface, state, ui); }
};

TEST_F(DrawingAttributesTest, NothingToChangeIsSaid) {
  const int text = surface.AddObject(kKindText, 0, 0, 100, 100);
  Select({text});
  EXPECT_FALSE(Run("MnAtLineCo"));
  EXPECT_EQ(ui.Last().text,
            "Les lignes, polygones, rectangles ou ellipses à modifier doivent être sélectionnés !");
  EXPECT_EQ(ui.Last().title, "Attributs de dessin");
  EXPECT_EQ(ui.Last().icon, MessageIcon::kExclamation);
  const int box = surface.AddObject(kKindRectangle, 0, 0, 100, 100);
  Select({box});
  EXPECT_FALSE(Run("TxtFOrmat_Ori"));
  EXPECT_EQ(ui.Last().text, "Les textes à modifier doivent être sélectionnés !");
  EXPECT_EQ(ui.Last().title, "Format de texte");
  surface.DeselectAll();
  EXPECT_FALSE(Run("mnuMyUtil_Group"));
  EXPECT_EQ(ui.Last().text, "Les objets doivent être sélectionnés !");
  EXPECT_EQ(ui.Last().title, "Disposition");
  // Nothing was recorded: the last step is still the rectangle's creation.
  EXPECT_TRUE(surface.Undo());
  EXPECT_EQ(Count(), 1);
}

TEST_F(DrawingAttributesTest, LineAndFillGoToShapesOnlyInOneStep) {
  const int line = surface.AddObject(kKindPolyline, 0, 0, 100, 100);
  const int box = surface.AddObject(kKindRectangle, 0, 0, 100, 100);
  const int text = surface.AddObject(kKindText, 0, 0, 100, 100);
  const int picture = surface.AddObject(kKindPicture, 0, 0, 100, 100);
  Select({line, box, text, picture});
  ui.Queue("255");
  EXPECT_TRUE(Run("MnAtLineCo"));
  EXPECT_EQ(ShapeOf(line).line_color, 255);
  EXPECT_EQ(ShapeOf(box).line_color, 255);
  EXPECT_EQ(ShapeOf(text).line_color, 0);
  EXPECT_EQ(ShapeOf(picture).line_color, 0);
  ui.Queue("65280");
  EXPECT_TRUE(Run("MnAtFillCo"));
  EXPECT_EQ(ShapeOf(box).fill_color, 65280);
  EXPECT_EQ(ShapeOf(box).fill_style, 0);  // a colour chosen shows
  ui.Queue("6");
  EXPECT_TRUE(Run("MnAtFill"));
  EXPECT_EQ(ShapeOf(box).fill_style, 6);
  ui.Queue("2");
  EXPECT_TRUE(Run("MnAtLst"));
  EXPECT_EQ(ShapeOf(line).line_style, 2);
  ui.Queue("-40");
  EXPECT_TRUE(Run("MnAtlWei"));
  EXPECT_EQ(ShapeOf(line).line_width, -40);
  // Each was one step.
  EXPECT_TRUE(surface.Undo());
  EXPECT_EQ(ShapeOf(line).line_width, 0);
  EXPECT_EQ(ShapeOf(box).line_width, 0);
  EXPECT_EQ(ShapeOf(line).line_style, 2);
}

TEST_F(DrawingAttributesTest, ChoicesOutOfRangeOrNotNumbersAreRefused) {
  const int box = surface.AddObject(kKindRectangle, 0, 0, 100, 100);
  Select({box});
  ui.Queue("9");
  EXPECT_FALSE(Run("MnAtFill"));
  EXPECT_EQ(ui.Last().text, "Rentrez un nombre de 0 à 7.");
  ui.Queue("trait");
  EXPECT_FALSE(Run("MnAtlWei"));
  EXPECT_EQ(ui.Last().text, "Rentrez un nombre.");
  EXPECT_EQ(ui.Last().title, "Attributs de dessin");
  ui.QueueCancel();
  EXPECT_FALSE(Run("MnAtLst"));
  ui.QueueCancel();
  EXPECT_FALSE(Run("MnAtLineCo"));
  EXPECT_EQ(ShapeOf(box).fill_style, 1);
  EXPECT_EQ(ShapeOf(box).line_width, 0);
  // The prompt offers the present value.
  ui.Clear();
  ui.QueueCancel();
  Run("MnAtFill");
  EXPECT_EQ(ui.Messages().front().text,
            "Remplissage (0 plein, 1 aucun, 2 horizontal, 3 vertical, 4 diagonal /, 5 diagonal "
            "\\, 6 croisé, 7 croisé en diagonale) :");
}

TEST_F(DrawingAttributesTest, TextFormatGoesToTextsOnly) {
  const int text = surface.AddObject(kKindText, 0, 0, 100, 100);
  const int box = surface.AddObject(kKindRectangle, 0, 0, 100, 100);
  Select({text, box});
  ui.Queue("450");
  EXPECT_TRUE(Run("TxtFOrmat_Ori"));
  EXPECT_DOUBLE_EQ(ShapeOf(text).text.angle, 90);
  ui.Queue("-30");
  EXPECT_TRUE(Run("mnuPopUp_txt_Ori"));
  EXPECT_DOUBLE_EQ(ShapeOf(text).text.angle, 330);
  ui.Queue("2");
  EXPECT_TRUE(Run("MnTxAli"));
  EXPECT_EQ(ShapeOf(text).text.align, 2);
  EXPECT_EQ(ShapeOf(box).text.align, 0);
  ui.Queue("16711680");
  EXPECT_TRUE(Run("mnuPopUp_txt_Co"));
  EXPECT_EQ(ShapeOf(text).text.color, 16711680);
  ui.Queue("Courier");
  EXPECT_TRUE(Run("TxtFormat_Font"));
  EXPECT_EQ(ShapeOf(text).text.font, "Courier");
  ui.Queue("Times");
  EXPECT_TRUE(Run("mnuPopUp_txt_Police"));
  EXPECT_EQ(ShapeOf(text).text.font, "Times");
  // A size in points is that many pixels on the screen as it stands.
  const double per_pixel = surface.ViewHeight() / state.ClientHeight;
  // The font dialog gave its 10 points.
  EXPECT_DOUBLE_EQ(ShapeOf(text).text.size, -std::round(10 * per_pixel));
  ui.Queue("12");
  EXPECT_TRUE(Run("mnuPopUp_txt_Size"));
  EXPECT_DOUBLE_EQ(ShapeOf(text).text.size, -std::round(12 * per_pixel));
  ui.Queue("0");
  EXPECT_FALSE(Run("mnuPopUp_txt_Size"));
  EXPECT_EQ(ui.Last().text, "Rentrez une taille positive.");
  EXPECT_TRUE(surface.Undo());
  EXPECT_DOUBLE_EQ(ShapeOf(text).text.size, -std::round(10 * per_pixel));
  EXPECT_EQ(ShapeOf(text).text.font, "Times");
}

TEST_F(DrawingAttributesTest, GroupUngroupAndStacking) {
  const int a = surface.AddObject(kKindRectangle, 0, 0, 100, 100);
  const int b = surface.AddObject(kKindEllipse, 50, 50, 200, 200);
  Select({a});
  EXPECT_TRUE(Run("mnuMyUtil_Down"));
  EXPECT_LT(ShapeOf(a).layer, ShapeOf(b).layer);
  EXPECT_TRUE(Run("mnuMyUtil_Upper"));
  EXPECT_GT(ShapeOf(a).layer, ShapeOf(b).layer);
  Select({a, b});
  EXPECT_TRUE(Run("mnuMyUtil_Group"));
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(ShapeOf(Last()).kind, kKindGroup);
  surface.SetCurrentObject(Last());
  surface.SetSelected(true);
  EXPECT_TRUE(Run("mnuMyUtil_unGroup"));
  EXPECT_EQ(Count(), 2);
  EXPECT_TRUE(surface.Undo());
  EXPECT_EQ(Count(), 1);
  EXPECT_TRUE(surface.Undo());
  EXPECT_EQ(Count(), 2);
}

}  // namespace
}  // namespace pluvane
