// The free drawing tools of the main window driven with the mouse and the
// keys: each shape placed where the user drags or clicks, undone with Ctrl+Z,
// saved and read back; the attributes through the real colour dialog; the
// pop-up of the drawing's actions; and a picture of a drawing made so.
#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QInputDialog>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <cmath>
#include <filesystem>
#include <memory>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/numbers.h"
#include "foundation/test_files.h"
#include "ui/grid_table_view.h"
#include "ui/main_window.h"
#include "ui/main_window_fixture.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

// Types `text` into the next input box as soon as it shows.
void AnswerNextInput(const QString& text) {
  QTimer::singleShot(0, [text] {
    auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
    if (!box) return AnswerNextInput(text);
    box->setTextValue(text);
    box->accept();
  });
}

// Picks `colour` in the next colour dialog as soon as it shows.
void AnswerNextColour(const QColor& colour) {
  QTimer::singleShot(0, [colour] {
    auto* box = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
    if (!box) return AnswerNextColour(colour);
    box->setCurrentColor(colour);
    box->accept();
  });
}

class DrawingTools : public MainWindowTest {
 protected:
  QWidget* viewport() { return view()->viewport(); }

  // The client pixel at the fractions (fx, fy) of the drawing's area.
  QPoint At(double fx, double fy) {
    return QPoint(static_cast<int>(fx * viewport()->width()),
                  static_cast<int>(fy * viewport()->height()));
  }
  // The logical point the drawing takes for a client pixel, in whole units.
  Point LogicOf(QPoint at) {
    return Point{RoundLong(view()->ClientToLogicX(at.x())),
                 RoundLong(view()->ClientToLogicY(at.y()))};
  }
  void MoveTo(QPoint at, Qt::MouseButtons buttons = Qt::NoButton) {
    QMouseEvent event(QEvent::MouseMove, at, viewport()->mapToGlobal(at), Qt::NoButton, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(viewport(), &event);
  }
  void Drag(QPoint from, QPoint to) {
    MoveTo(from);
    QTest::mousePress(viewport(), Qt::LeftButton, Qt::NoModifier, from);
    MoveTo((from + to) / 2, Qt::LeftButton);
    MoveTo(to, Qt::LeftButton);
    QTest::mouseRelease(viewport(), Qt::LeftButton, Qt::NoModifier, to);
  }
  void Click(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    MoveTo(at);
    QTest::mouseClick(viewport(), button, Qt::NoModifier, at);
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(view(), key, modifiers);
  }
  int Count() { return surface().ObjectCount(kPage); }
  int Last() {
    int last = 0;
    for (int n = surface().NextObjectNumber(0); n > 0; n = surface().NextObjectNumber(n)) last = n;
    return last;
  }
  const Shape& ShapeOf(int n) { return *surface().ObjectShape(n); }
  static Box BoxOf(Point a, Point b) {
    return Box{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
  }
  QString Status() { return window_->panels().Status()->text(); }
};

TEST_F(DrawingTools, EachDraggedShapeIsPlacedWhereDraggedAndUndone) {
  const std::vector<std::pair<const char*, int>> tools = {{"MnuPlaceRectangle", kKindRectangle},
                                                          {"MnuPlaceEllipse", kKindEllipse},
                                                          {"MnuPlaceLine", kKindLine},
                                                          {"MnuPlaceArc", kKindArc},
                                                          {"MnuPlacePie", kKindPie},
                                                          {"MnuPlaceChord", kKindChord},
                                                          {"MnuPlaceCotation", kKindDimension}};
  const int before = Count();
  for (const auto& [menu, kind] : tools) {
    window_->RunMenu(menu);
    EXPECT_EQ(Status().toStdString(),
              "Tirez du premier coin jusqu'au coin opposé, bouton gauche enfoncé.");
    const QPoint a = At(0.2, 0.3), b = At(0.45, 0.6);
    MoveTo(a);
    QTest::mousePress(viewport(), Qt::LeftButton, Qt::NoModifier, a);
    MoveTo(b, Qt::LeftButton);
    // The shape follows the pointer while dragged.
    EXPECT_EQ(view()->RubberShapeKind(), kind) << menu;
    QTest::mouseRelease(viewport(), Qt::LeftButton, Qt::NoModifier, b);
    EXPECT_FALSE(view()->HasRubberShape());
    ASSERT_EQ(Count(), before + 1) << menu;
    const Shape& shape = ShapeOf(Last());
    EXPECT_EQ(shape.kind, kind) << menu;
    EXPECT_EQ(shape.box, BoxOf(LogicOf(a), LogicOf(b))) << menu;
    if (kind == kKindLine || kind == kKindDimension) {
      EXPECT_EQ(shape.points, (std::vector<Point>{LogicOf(a), LogicOf(b)})) << menu;
    } else if (kind != kKindRectangle && kind != kKindEllipse) {
      EXPECT_EQ(shape.points,
                (std::vector<Point>{LogicOf(a), Point{LogicOf(b).x, LogicOf(a).y}, LogicOf(b)}))
          << menu;
    }
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Count(), before) << menu;
  }
}

TEST_F(DrawingTools, PolylinesPolygonsAndCurvesTakeAVertexAClick) {
  const int before = Count();
  window_->RunMenu("MnuPlacePolyLine");
  const QPoint a = At(0.1, 0.1), b = At(0.3, 0.4), c = At(0.5, 0.2);
  Click(a);
  Click(b);
  MoveTo(c);
  EXPECT_EQ(view()->RubberShapeKind(), kKindPolyline);
  EXPECT_EQ(view()->RubberShapePoints().size(), 2u);
  MoveTo(c);
  QTest::mouseClick(viewport(), Qt::LeftButton, Qt::NoModifier, c);
  QTest::mouseDClick(viewport(), Qt::LeftButton, Qt::NoModifier, c);
  ASSERT_EQ(Count(), before + 1);
  EXPECT_EQ(ShapeOf(Last()).kind, kKindPolyline);
  EXPECT_EQ(ShapeOf(Last()).points, (std::vector<Point>{LogicOf(a), LogicOf(b), LogicOf(c)}));
  EXPECT_FALSE(view()->HasRubberShape());

  window_->RunMenu("MnuPlacePolygon");
  Click(a);
  Click(b);
  Click(c);
  Key(Qt::Key_Return);
  ASSERT_EQ(Count(), before + 2);
  EXPECT_EQ(ShapeOf(Last()).kind, kKindPolygon);
  EXPECT_EQ(ShapeOf(Last()).box, (Box{LogicOf(a).x, LogicOf(a).y, LogicOf(c).x, LogicOf(b).y}));

  window_->RunMenu("MnuPlaceBezier");
  Click(a);
  Click(b);
  Click(c);
  Key(Qt::Key_Return);
  ASSERT_EQ(Count(), before + 3);
  EXPECT_EQ(ShapeOf(Last()).kind, kKindBezier);
  EXPECT_EQ(ShapeOf(Last()).points.size(), 7u);

  // Escape forgets the vertices of the shape being drawn.
  window_->RunMenu("MnuPlacePolyLine");
  Click(a);
  Click(b);
  Key(Qt::Key_Escape);
  Key(Qt::Key_Return);
  EXPECT_EQ(Count(), before + 3);

  Key(Qt::Key_Z, Qt::ControlModifier);
  Key(Qt::Key_Z, Qt::ControlModifier);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Count(), before);
}

TEST_F(DrawingTools, ATextIsTypedWhereClickedAndAFreeLinkJoinsTwoShapes) {
  const int before = Count();
  window_->RunMenu("mnuUtil_PlaceTxt");
  AnswerNextInput("Bassin de l'Ouest");
  const QPoint at = At(0.5, 0.5);
  Click(at);
  ASSERT_EQ(Count(), before + 1);
  const int text = Last();
  EXPECT_EQ(ShapeOf(text).kind, kKindText);
  EXPECT_EQ(ShapeOf(text).text.string, "Bassin de l'Ouest");
  EXPECT_EQ(ShapeOf(text).box.left, LogicOf(at).x);
  EXPECT_EQ(ShapeOf(text).box.top, LogicOf(at).y);

  window_->RunMenu("MnuPlaceRectangle");
  Drag(At(0.1, 0.1), At(0.2, 0.2));
  const int box = Last();
  window_->RunMenu("mnuPlaceLink");
  Click(At(0.15, 0.15));
  Click(At(0.52, 0.505));
  ASSERT_EQ(Count(), before + 3);
  CursorKeeper keep(surface());
  surface().SetCurrentObject(Last());
  EXPECT_EQ(surface().ObjectKind(), kKindLink);
  EXPECT_EQ(surface().LinkEndObject(0), box);
  EXPECT_EQ(surface().LinkEndObject(1), text);
}

TEST_F(DrawingTools, ShapesAreSavedAndReadBack) {
  window_->RunMenu("MnuPlaceEllipse");
  Drag(At(0.1, 0.1), At(0.3, 0.2));
  window_->RunMenu("MnuPlacePolygon");
  Click(At(0.4, 0.4));
  Click(At(0.6, 0.4));
  Click(At(0.5, 0.7));
  Key(Qt::Key_Return);
  window_->RunMenu("MnuPlaceCotation");
  Drag(At(0.1, 0.8), At(0.7, 0.8));
  TempFolder folder;
  const std::string path = folder.File("dessin.mtf");
  ASSERT_TRUE(surface().SaveFile(path, kNativeFormat));
  Surface again;
  ASSERT_TRUE(again.LoadFile(path, 0));
  ASSERT_EQ(again.ObjectCount(kPage), surface().ObjectCount(kPage));
  for (int n = surface().NextObjectNumber(0), m = again.NextObjectNumber(0); n > 0 && m > 0;
       n = surface().NextObjectNumber(n), m = again.NextObjectNumber(m)) {
    EXPECT_EQ(again.ObjectShape(m)->kind, ShapeOf(n).kind);
    EXPECT_EQ(again.ObjectShape(m)->box, ShapeOf(n).box);
    EXPECT_EQ(again.ObjectShape(m)->points, ShapeOf(n).points);
  }
}

TEST_F(DrawingTools, TheFillColourComesFromTheColourDialog) {
  window_->RunMenu("MnuPlaceRectangle");
  Drag(At(0.2, 0.2), At(0.4, 0.4));
  const int box = Last();
  window_->RunMenu("mnuSelectSelectionMode");
  Click(At(0.3, 0.2));
  ASSERT_TRUE(surface().IsSelected(box));
  AnswerNextColour(QColor(255, 0, 0));
  window_->RunMenu("MnAtFillCo");
  EXPECT_EQ(ShapeOf(box).fill_color, 255);
  EXPECT_EQ(ShapeOf(box).fill_style, 0);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(ShapeOf(box).fill_style, 1);
}

TEST_F(DrawingTools, TheRightButtonOffersTheDrawingsActions) {
  Click(At(0.5, 0.5), Qt::RightButton);
  QApplication::processEvents();
  auto* menu = window_->findChild<QMenu*>("myActionPopup");
  ASSERT_NE(menu, nullptr);
  QStringList captions;
  for (QAction* action : menu->actions()) captions << action->text();
  EXPECT_EQ(captions.join("|").toStdString(),
            "Sélection|Supprimer|Déplacer|Rotation|Grouper|Dégrouper|Premier plan|Arrière "
            "plan|Arc|Corde|Cotation|Ellipse|Ligne|Secteur|Polygone|Polyligne|Rectangle|Texte");
  menu->actions().at(16)->trigger();
  menu->close();
  EXPECT_EQ(surface().EditMode(), kKindRectangle);
}

TEST_F(DrawingTools, TheSettingsToolOpensTheNetworksSettingsAndOkWritesThem) {
  const auto duration = [this] {
    CursorKeeper keep(surface());
    return FindObject(surface(), "Id", "ParamReseau") > 0 ? surface().ObjTag("CalcDuree")
                                                          : std::string("?");
  };
  const std::string before = duration();
  ASSERT_NE(before, "240");
  QString title;
  OnNextForm([&title](FormWindow* form) {
    title = form->windowTitle();
    QAbstractItemModel* model = form->Table(0)->model();
    model->setData(model->index(0, 0), "240", Qt::EditRole);
    QTest::mouseClick(form->Button("cmdOk"), Qt::LeftButton);
  });
  window_->ToolClicked("X_PARAM");
  EXPECT_EQ(title.toStdString(), "Paramétrage du réseau");
  EXPECT_EQ(window_->application().state().CalcDuree, 240);
  EXPECT_EQ(duration(), "240");
  // One step, undone at once.
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(duration(), before);
}

TEST_F(DrawingTools, TheCoordinateSystemOfTheMapIsTypedInTheNetworkSettings) {
  QString picture;
  OnNextForm([&picture](FormWindow* form) {
    TypeInto(form, 1, 4, "EPSG:2154");
    std::filesystem::create_directories(SnapshotPath("forms"));
    picture = QString::fromStdString(SnapshotPath("forms/frmParamReseau.png"));
    EXPECT_TRUE(form->grab().toImage().save(picture));
    QTest::mouseClick(form->Button("cmdOk"), Qt::LeftButton);
  });
  window_->ToolClicked("X_PARAM");
  EXPECT_FALSE(picture.isEmpty());
  EXPECT_EQ(window_->application().state().CoordinateSystem, "EPSG:2154");
  CursorKeeper keep(surface());
  ASSERT_GT(FindObject(surface(), "Id", "ParamReseau"), 0);
  EXPECT_EQ(surface().ObjTag("SysCoord"), "EPSG:2154");
}

// A small drawing made with the tools, for the user guide.
TEST_F(DrawingTools, TheRadiusOfActionIsACircleDraggedWithShift) {
  window_->ToolClicked("X_RAYON");
  EXPECT_EQ(Status().toStdString(),
            "Rayon d'action : tirez du coin au coin opposé en tenant la touche Maj pour tracer un "
            "cercle.");
  QString title;
  OnNextForm([&](FormWindow* form) {
    title = form->windowTitle();
    form->reject();
  });
  const QPoint a = At(0.3, 0.3), b = At(0.5, 0.4);
  MoveTo(a);
  QTest::mousePress(viewport(), Qt::LeftButton, Qt::ShiftModifier, a);
  MoveTo(b, Qt::LeftButton);
  EXPECT_EQ(view()->RubberShapeKind(), kKindEllipse);
  QTest::mouseRelease(viewport(), Qt::LeftButton, Qt::ShiftModifier, b);
  QApplication::processEvents();
  EXPECT_EQ(title, "Rayon d'action de la pluie projet");
  const int circle = FindObject(surface(), "Id", "Rayon");
  ASSERT_GT(circle, 0);
  const Box box = ShapeOf(circle).box;
  EXPECT_EQ(ShapeOf(circle).kind, kKindEllipse);
  EXPECT_EQ(box.right - box.left, box.bottom - box.top);
  EXPECT_EQ(box.right - box.left, LogicOf(b).x - LogicOf(a).x);
}

TEST_F(DrawingTools, PictureOfADrawingMadeWithTheTools) {
  const int before = Count();
  window_->RunMenu("MnuPlaceRectangle");
  Drag(At(0.08, 0.1), At(0.3, 0.35));
  window_->RunMenu("MnuPlaceEllipse");
  Drag(At(0.36, 0.1), At(0.58, 0.35));
  window_->RunMenu("MnuPlacePie");
  Drag(At(0.64, 0.1), At(0.9, 0.4));
  window_->RunMenu("MnuPlacePolygon");
  Click(At(0.1, 0.75));
  Click(At(0.2, 0.5));
  Click(At(0.32, 0.72));
  Click(At(0.22, 0.88));
  Key(Qt::Key_Return);
  window_->RunMenu("MnuPlaceBezier");
  Click(At(0.38, 0.8));
  Click(At(0.48, 0.5));
  Click(At(0.58, 0.8));
  Click(At(0.68, 0.5));
  Key(Qt::Key_Return);
  window_->RunMenu("MnuPlaceCotation");
  Drag(At(0.08, 0.94), At(0.6, 0.94));
  window_->RunMenu("MnuPlaceTxt");
  AnswerNextInput("Bassin de retenue");
  Click(At(0.72, 0.62));
  window_->RunMenu("mnuPlaceLink");
  Click(At(0.19, 0.2));
  Click(At(0.47, 0.2));
  // Colours through the dialogs, on shapes selected with the mouse.
  window_->RunMenu("mnuSelectSelectionMode");
  Click(At(0.19, 0.1));
  AnswerNextColour(QColor(120, 180, 230));
  window_->RunMenu("MnAtFillCo");
  Click(At(0.47, 0.3));
  AnswerNextColour(QColor(250, 200, 90));
  window_->RunMenu("MnAtFillCo");
  AnswerNextColour(QColor(200, 60, 20));
  window_->RunMenu("MnAtLineCo");
  AnswerNextInput("3");
  window_->RunMenu("MnAtlWei");
  Click(At(0.97, 0.02));  // nothing: the selection goes
  // The last polyline is left being drawn, its rubber line shown.
  window_->RunMenu("MnuPlacePolyLine");
  Click(At(0.75, 0.75));
  Click(At(0.85, 0.85));
  MoveTo(At(0.93, 0.72));
  QApplication::processEvents();
  EXPECT_EQ(Count(), before + 8);
  const std::string path = SnapshotPath("drawing_tools.png");
  EXPECT_TRUE(window_->grab().toImage().save(QString::fromStdString(path)));
  Key(Qt::Key_Escape);
}

}  // namespace
}  // namespace pluvane
