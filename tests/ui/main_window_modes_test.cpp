// The main window driven as a user drives it: tool clicks on its bands, the
// mouse and the keys on its drawing, and what the drawing and the messages
// say afterwards.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <cmath>
#include <memory>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "network/georeferencing.h"
#include "network/topology.h"
#include "ui/main_window.h"
#include "ui/main_window_fixture.h"
#include "ui/test_app.h"

namespace pluvane {
namespace {

class MainWindowModes : public MainWindowTest {
 protected:
  // A logical point at the fractions (fx, fy) of the visible area.
  std::pair<double, double> Logic(double fx, double fy) {
    return {surface().ViewLeft() + fx * surface().ViewWidth(),
            surface().ViewTop() + fy * surface().ViewHeight()};
  }
  QPoint Client(double x, double y) {
    return QPoint(static_cast<int>(std::lround(view()->LogicToClientX(x))),
                  static_cast<int>(std::lround(view()->LogicToClientY(y))));
  }
  // The logical point under the client pixel nearest to (x, y).
  std::pair<double, double> Snapped(double x, double y) {
    const QPoint at = Client(x, y);
    return {view()->ClientToLogicX(at.x()), view()->ClientToLogicY(at.y())};
  }
  void MoveTo(const QPoint& at) {
    QMouseEvent event(QEvent::MouseMove, at, view()->viewport()->mapToGlobal(at), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(view()->viewport(), &event);
  }
  void ClickAt(std::pair<double, double> p) {
    const QPoint at = Client(p.first, p.second);
    MoveTo(at);
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, Qt::NoModifier, at);
  }
  // A click on the tool's button of its band.
  void Tool(const char* key) {
    QAction* action = window_->tool_bars()->Tool(key);
    ASSERT_NE(action, nullptr) << key;
    for (QToolBar* bar : window_->findChildren<QToolBar*>()) {
      if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action))) {
        QTest::mouseClick(button, Qt::LeftButton);
        return;
      }
    }
    window_->ToolClicked(key);
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(view(), key, modifiers);
  }
  int Nodes() { return CountByName(surface(), kINameNode); }
  // A node placed with the node tool at (fx, fy) of the view; its number.
  int PlaceNode(double fx, double fy) {
    Tool("X_NOD");
    const auto p = Logic(fx, fy);
    ClickAt(p);
    return NodeAt(p);
  }
  int NodeAt(std::pair<double, double> p) {
    for (int node : FindObjectList(surface(), "iName", kINameNode)) {
      const auto [x, y] = ObjectCentre(surface(), node);
      if (std::abs(x - p.first) < 0.01 * surface().ViewWidth() &&
          std::abs(y - p.second) < 0.01 * surface().ViewHeight()) {
        return node;
      }
    }
    return 0;
  }
  std::string Tag(int object, const char* name) {
    CursorKeeper keep(surface());
    surface().SetCurrentObject(object);
    return surface().ObjTag(name);
  }
  void SetTag(int object, const char* name, const std::string& value) {
    CursorKeeper keep(surface());
    surface().SetCurrentObject(object);
    surface().SetObjTag(name, value);
  }
  // Collectors drawn with the CAC tool through the nodes, in order.
  void Chain(const std::vector<std::pair<double, double>>& points) {
    Tool("X_CAC");
    for (const auto& p : points) ClickAt(p);
    Key(Qt::Key_Escape);
  }
  QString Status() { return window_->panels().Status()->text(); }
};

TEST_F(MainWindowModes, NodesArePlacedWhereTheUserClicks) {
  Tool("X_NOD");
  EXPECT_EQ(window_->interaction().CurrentMode(), "CREATE OBJ");
  const auto a = Snapped(Logic(0.3, 0.4).first, Logic(0.3, 0.4).second);
  const auto b = Snapped(Logic(0.6, 0.5).first, Logic(0.6, 0.5).second);
  ClickAt(a);
  ClickAt(b);
  ASSERT_EQ(Nodes(), 2);
  const auto nodes = FindObjectList(surface(), "iName", kINameNode);
  const auto [x, y] = ObjectCentre(surface(), nodes[1]);
  // Positions are whole logical units of the press, within a pixel.
  const double pixel = surface().ViewWidth() / view()->viewport()->width();
  EXPECT_NEAR(x, b.first, pixel);
  EXPECT_NEAR(y, b.second, pixel);
  // The mode stays armed for the next node.
  EXPECT_EQ(window_->interaction().CurrentMode(), "CREATE OBJ");
  EXPECT_EQ(Tag(nodes[0], "Id"), "Nod_1");
  EXPECT_EQ(Tag(nodes[1], "Id"), "Nod_2");
}

TEST_F(MainWindowModes, AChainOfThreeCollectorsBetweenFourNodes) {
  std::vector<std::pair<double, double>> points;
  std::vector<int> nodes;
  for (double fx : {0.2, 0.4, 0.6, 0.8}) {
    nodes.push_back(PlaceNode(fx, 0.5));
    points.push_back(Logic(fx, 0.5));
  }
  ASSERT_EQ(Nodes(), 4);
  Tool("X_CAC");
  for (const auto& p : points) ClickAt(p);
  EXPECT_TRUE(view()->HasRubberLine());
  const auto links = FindObjectList(surface(), "iName", kINameCAC);
  ASSERT_EQ(links.size(), 3u);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Tag(links[i], "sNodAm"), Tag(nodes[i], "Id"));
    EXPECT_EQ(Tag(links[i], "sNodAv"), Tag(nodes[i + 1], "Id"));
  }
  EXPECT_EQ(DownstreamCollectors(surface(), nodes[1]).size(), 1u);
}

TEST_F(MainWindowModes, AThirdElementOnANodeIsRefused) {
  const auto at = Logic(0.5, 0.5);
  const int node = PlaceNode(0.5, 0.5);
  ASSERT_GT(node, 0);
  Tool("X_HY");
  ClickAt(at);
  Tool("X_MARK");
  ClickAt(at);
  EXPECT_EQ(ElementsOnNode(surface(), node).size(), 2u);
  const int before = surface().ObjectCount(kPage);
  Tool("X_CLAV");
  MessageAnswerer answerer;
  ClickAt(at);
  ASSERT_EQ(answerer.seen().size(), 1u);
  EXPECT_EQ(answerer.seen()[0].text, "un noeud ne peut supporter qu'un obj au plus");
  EXPECT_EQ(answerer.seen()[0].title, window_->windowTitle());
  EXPECT_EQ(answerer.seen()[0].icon, QMessageBox::Warning);
  EXPECT_EQ(surface().ObjectCount(kPage), before);
  EXPECT_EQ(CountByName(surface(), kINameCLAV), 0);
}

TEST_F(MainWindowModes, ReservoirAndDividerWantTheirDownstreamCollectors) {
  const auto centre = Logic(0.4, 0.5);
  const int node = PlaceNode(0.4, 0.5);
  PlaceNode(0.7, 0.3);
  PlaceNode(0.7, 0.7);
  Chain({centre, Logic(0.7, 0.3)});
  {
    Tool("X_RS");
    MessageAnswerer answerer;
    ClickAt(centre);
    ASSERT_EQ(answerer.seen().size(), 1u);
    EXPECT_EQ(answerer.seen()[0].text, "If faut 2 collecteurs en aval de ce noeud!");
    EXPECT_EQ(answerer.seen()[0].title, "Bassin");
    EXPECT_EQ(answerer.seen()[0].icon, QMessageBox::Warning);
  }
  {
    Tool("X_DQQ");
    MessageAnswerer answerer;
    ClickAt(centre);
    ASSERT_EQ(answerer.seen().size(), 1u);
    EXPECT_EQ(answerer.seen()[0].text,
              "If faut au moins 2 et au plus 4 collecteurs en aval de ce noeud!");
    EXPECT_EQ(answerer.seen()[0].title, "Dérivation");
  }
  EXPECT_EQ(CountByName(surface(), kINameRS), 0);
  EXPECT_EQ(CountByName(surface(), kINameDQQ), 0);
  Chain({centre, Logic(0.7, 0.7)});
  ASSERT_EQ(DownstreamCollectors(surface(), node).size(), 2u);
  {
    MessageAnswerer answerer;
    Tool("X_RS");
    ClickAt(centre);
    Tool("X_DQQ");
    ClickAt(centre);
    EXPECT_TRUE(answerer.seen().empty());
  }
  EXPECT_EQ(CountByName(surface(), kINameRS), 1);
  EXPECT_EQ(CountByName(surface(), kINameDQQ), 1);
}

TEST_F(MainWindowModes, BreakingACollectorAtAQuarterOfItsLength) {
  const auto a = Snapped(Logic(0.2, 0.5).first, Logic(0.2, 0.5).second);
  const auto b = Snapped(Logic(0.6, 0.5).first, Logic(0.6, 0.5).second);
  Tool("X_NOD");
  ClickAt(a);
  ClickAt(b);
  Chain({a, b});
  auto links = FindObjectList(surface(), "iName", kINameCAC);
  ASSERT_EQ(links.size(), 1u);
  const std::string id = Tag(links[0], "Id");
  SetTag(links[0], "L", "100");
  SetTag(links[0], "ZRam", "10");
  SetTag(links[0], "ZRav", "9");
  Tool("MDBREAK");
  EXPECT_EQ(window_->interaction().CurrentMode(), "MDBREAK");
  // Hovering tells where the node will go.
  const auto quarter = Snapped(a.first + 0.25 * (b.first - a.first), a.second);
  MoveTo(Client(quarter.first, quarter.second));
  EXPECT_TRUE(window_->binder().bubble()->isVisible());
  EXPECT_TRUE(window_->binder().bubble()->text().startsWith("Dam (%)= "));
  ClickAt(quarter);
  links = FindObjectList(surface(), "iName", kINameCAC);
  ASSERT_EQ(links.size(), 2u);
  EXPECT_EQ(Nodes(), 3);
  const int first = FindObject(surface(), "Id", id);
  ASSERT_GT(first, 0);
  const int second = links[0] == first ? links[1] : links[0];
  EXPECT_NEAR(Val(Tag(first, "L")), 25, 0.1);
  EXPECT_NEAR(Val(Tag(first, "ZRam")), 10, 1e-9);
  EXPECT_NEAR(Val(Tag(first, "ZRav")), 9.75, 0.001);
  EXPECT_NEAR(Val(Tag(second, "L")), 75, 0.1);
  EXPECT_NEAR(Val(Tag(second, "ZRam")), 9.75, 0.001);
  EXPECT_NEAR(Val(Tag(second, "ZRav")), 9, 1e-9);
  EXPECT_EQ(Tag(first, "sNodAv"), Tag(second, "sNodAm"));
  EXPECT_FALSE(window_->binder().bubble()->isVisible());
}

TEST_F(MainWindowModes, ANodeIsNotBreakable) {
  const auto at = Logic(0.5, 0.5);
  PlaceNode(0.5, 0.5);
  Tool("MDBREAK");
  MessageAnswerer answerer;
  ClickAt(at);
  ASSERT_EQ(answerer.seen().size(), 1u);
  EXPECT_EQ(answerer.seen()[0].text, "Seuls les collecteurs sont divisables (Cac, Cao, Caf) !");
  EXPECT_EQ(Nodes(), 1);
}

TEST_F(MainWindowModes, FusionAtANodeBetweenTwoCollectors) {
  const auto a = Logic(0.2, 0.5), m = Logic(0.45, 0.4), b = Logic(0.7, 0.5);
  const int first = PlaceNode(0.2, 0.5);
  PlaceNode(0.45, 0.4);
  const int last = PlaceNode(0.7, 0.5);
  Chain({a, m, b});
  auto links = FindObjectList(surface(), "iName", kINameCAC);
  ASSERT_EQ(links.size(), 2u);
  const std::string upstream = Tag(links[0], "Id");
  SetTag(links[0], "L", "40");
  SetTag(links[1], "L", "60");
  SetTag(links[0], "ZRam", "12");
  SetTag(links[1], "ZRav", "11");
  Tool("MDFUSION");
  ClickAt(m);
  links = FindObjectList(surface(), "iName", kINameCAC);
  ASSERT_EQ(links.size(), 1u);
  EXPECT_EQ(Nodes(), 2);
  EXPECT_EQ(Tag(links[0], "Id"), upstream);
  EXPECT_NEAR(Val(Tag(links[0], "L")), 100, 1e-9);
  EXPECT_NEAR(Val(Tag(links[0], "ZRam")), 12, 1e-9);
  EXPECT_NEAR(Val(Tag(links[0], "ZRav")), 11, 1e-9);
  EXPECT_EQ(Tag(links[0], "sNodAm"), Tag(first, "Id"));
  EXPECT_EQ(Tag(links[0], "sNodAv"), Tag(last, "Id"));
}

TEST_F(MainWindowModes, FusionRefusedWhereThreeLinksMeet) {
  const auto m = Logic(0.45, 0.5);
  PlaceNode(0.2, 0.5);
  PlaceNode(0.45, 0.5);
  PlaceNode(0.7, 0.3);
  PlaceNode(0.7, 0.7);
  Chain({Logic(0.2, 0.5), m, Logic(0.7, 0.3)});
  Chain({m, Logic(0.7, 0.7)});
  Tool("MDFUSION");
  MessageAnswerer answerer;
  ClickAt(m);
  ASSERT_EQ(answerer.seen().size(), 1u);
  EXPECT_EQ(answerer.seen()[0].text, "Fusion impossible quand il y a plus de 2 liaisons !");
  EXPECT_EQ(answerer.seen()[0].title, "Fusion de liaisons");
  EXPECT_EQ(CountByName(surface(), kINameCAC), 3);
}

TEST_F(MainWindowModes, EscInTheMiddleOfALink) {
  const auto a = Logic(0.3, 0.5);
  PlaceNode(0.3, 0.5);
  Tool("X_CAC");
  ClickAt(a);
  ASSERT_EQ(window_->interaction().placement().ClickCount, 1);
  ASSERT_TRUE(view()->HasRubberLine());
  Key(Qt::Key_Escape);
  EXPECT_EQ(window_->interaction().placement().ClickCount, 0);
  EXPECT_EQ(window_->interaction().CursorNumber(), 0);
  EXPECT_EQ(view()->viewport()->cursor().shape(), Qt::ArrowCursor);
  EXPECT_FALSE(view()->HasRubberLine());
  EXPECT_EQ(window_->interaction().CurrentMode(), "");
}

TEST_F(MainWindowModes, DelWithNothingSelectedArmsDeletion) {
  PlaceNode(0.3, 0.5);
  PlaceNode(0.6, 0.5);
  Key(Qt::Key_Escape);
  ClickAt(Logic(0.8, 0.8));  // a click on nothing clears the selection
  ASSERT_EQ(surface().ObjectCount(kSelection), 0);
  Key(Qt::Key_Delete);
  EXPECT_EQ(window_->interaction().CurrentMode(), "MDDELETE");
  EXPECT_NE(window_->interaction().CursorNumber(), 0);
  EXPECT_EQ(Nodes(), 2);
}

TEST_F(MainWindowModes, CopyThenPasteDuplicatesTheSelection) {
  PlaceNode(0.3, 0.5);
  PlaceNode(0.6, 0.5);
  Chain({Logic(0.3, 0.5), Logic(0.6, 0.5)});
  const int before = surface().ObjectCount(kPage);
  Key(Qt::Key_A, Qt::ControlModifier);
  const int selected = surface().ObjectCount(kSelection);
  ASSERT_GT(selected, 0);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Status(), QString(" ok %1 elm ont été copiés et prêts à être collés...").arg(selected));
  MessageAnswerer answerer({"&Oui"});
  Key(Qt::Key_V, Qt::ControlModifier);
  ASSERT_EQ(answerer.seen().size(), 1u);
  EXPECT_EQ(answerer.seen()[0].text,
            "L'opération d'import d'éléments de réseau via Ctrl+V\r"
            "pourrait introduire des doublons d'élément et\r"
            "provoquerait des instabilités ou incohérences de traitement.\r\r"
            "Voulez-vous poursuivre ?");
  EXPECT_EQ(answerer.seen()[0].title, "Importation de données");
  EXPECT_EQ(answerer.seen()[0].icon, QMessageBox::Question);
  EXPECT_EQ(surface().ObjectCount(kPage), before + selected);
  EXPECT_EQ(Nodes(), 4);
  EXPECT_EQ(CountByName(surface(), kINameCAC), 2);
  EXPECT_EQ(surface().ObjectCount(kSelection), selected);
}

TEST_F(MainWindowModes, PasteDeclinedLeavesTheDrawing) {
  PlaceNode(0.3, 0.5);
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_C, Qt::ControlModifier);
  MessageAnswerer answerer({"&Non"});
  Key(Qt::Key_V, Qt::ControlModifier);
  ASSERT_EQ(answerer.seen().size(), 1u);
  EXPECT_EQ(Nodes(), 1);
}

TEST_F(MainWindowModes, UndoAndRedoOfThePlacement) {
  PlaceNode(0.3, 0.5);
  PlaceNode(0.6, 0.5);
  ASSERT_EQ(Nodes(), 2);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Nodes(), 1);
  Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Nodes(), 2);
}

TEST_F(MainWindowModes, TheArmedToolStandsPressed) {
  Tool("X_CAC");
  EXPECT_TRUE(window_->tool_bars()->Tool("X_CAC")->isChecked());
  EXPECT_FALSE(window_->tool_bars()->Tool("X_NOD")->isChecked());
  Tool("X_NOD");
  EXPECT_TRUE(window_->tool_bars()->Tool("X_NOD")->isChecked());
  EXPECT_FALSE(window_->tool_bars()->Tool("X_CAC")->isChecked());
  Tool("MDBREAK");
  EXPECT_TRUE(window_->tool_bars()->Tool("MDBREAK")->isChecked());
  Key(Qt::Key_Escape);
  EXPECT_FALSE(window_->tool_bars()->Tool("MDBREAK")->isChecked());
}

TEST_F(MainWindowModes, PictureOfTheExampleNetwork) {
  Reopen(app_.Demo());
  // The view the example was saved with, as `make run` shows it; the pointer
  // over the node "Église": its map coordinates stand in the status bar.
  const int church = FindObject(surface(), "libell", "Église");
  ASSERT_GT(church, 10);
  const auto [x, y] = ObjectCentre(surface(), church);
  const QPoint at = Client(x, y);
  MoveTo(at);
  const double px = view()->ClientToLogicX(at.x()), py = view()->ClientToLogicY(at.y());
  const Calibration& calibration = window_->application().state().calibration;
  auto coordinate = [](double value) { return NumToText(std::round(value * 100) / 100); };
  EXPECT_EQ(window_->panels().XY()->text().toStdString(),
            coordinate(LogicToUserX(calibration, px, py)) + ", " +
                coordinate(LogicToUserY(calibration, px, py)));
  // The church stands near (650300, 6862000) on the map.
  EXPECT_NEAR(LogicToUserX(calibration, px, py), 650300, 50);
  EXPECT_NEAR(LogicToUserY(calibration, px, py), 6862000, 50);
  QApplication::processEvents();
  const QImage shot = window_->grab().toImage();
  ASSERT_FALSE(shot.isNull());
  // The node's symbol is drawn where the pointer stands: not the page's white.
  const QPoint in_shot = view()->mapTo(window_.get(), at);
  EXPECT_NE(shot.pixelColor(in_shot).rgb() & 0xFFFFFF, 0xFFFFFFu);
  EXPECT_TRUE(shot.save(QString::fromStdString(SnapshotPath("main_window.png"))));
}

TEST_F(MainWindowModes, PictureOfALinkBeingPlaced) {
  Reopen(app_.Demo());
  Key(Qt::Key_F4);  // the whole network in view
  // Two new nodes in a free part of the plan, a collector between them, and
  // the next one going from the second toward the pointer.
  PlaceNode(0.1, 0.72);
  PlaceNode(0.24, 0.84);
  Tool("X_CAC");
  ClickAt(Logic(0.1, 0.72));
  ClickAt(Logic(0.24, 0.84));
  const QPoint pointer = Client(Logic(0.34, 0.7).first, Logic(0.34, 0.7).second);
  MoveTo(pointer);
  ASSERT_TRUE(view()->HasRubberLine());
  // The map coordinates of the pointer's pixel, to the centimetre, stand in
  // the status bar.
  const auto [x, y] = Snapped(Logic(0.34, 0.7).first, Logic(0.34, 0.7).second);
  const Calibration& map = window_->application().state().calibration;
  const auto metres = [](double v) { return NumToText(std::round(v * 100) / 100); };
  EXPECT_EQ(window_->panels().XY()->text().toStdString(),
            metres(LogicToUserX(map, x, y)) + ", " + metres(LogicToUserY(map, x, y)));
  QApplication::processEvents();
  const QImage shot = window_->grab().toImage();
  ASSERT_FALSE(shot.isNull());
  EXPECT_TRUE(shot.save(QString::fromStdString(SnapshotPath("placement.png"))));
}

}  // namespace
}  // namespace pluvane
