#include "network/placement.h"

#include <gtest/gtest.h>

#include <cmath>

#include "foundation/expect_message.h"
#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "drawing/surface_helpers.h"
#include "placement_fixture.h"

namespace pluvane {
namespace {

TEST_F(PlacementTest, SymbolSizesFollowTheFirstNode) {
  const int first = Node(1000, 1000);
  EXPECT_EQ(BoxOf(first), (Box{900, 900, 1100, 1100}));
  EXPECT_EQ(state.NodeCount, 2);
  EXPECT_EQ(surface.ObjectKind(), kKindPicture);
  const int gauge = Symbol("X_PLU", 3000, 3000);
  EXPECT_EQ(BoxOf(gauge), (Box{2800, 2800, 3200, 3200}));  // doubled
  const int bv = Symbol("X_BV", 5000, 5000);
  EXPECT_EQ(BoxOf(bv), (Box{4800, 4800, 5200, 5200}));
  EXPECT_EQ(state.NodeCount, 2);
}

TEST_F(PlacementTest, SymbolOnANodeTakesItsRectangle) {
  const int node = Node(1000, 1000);
  EXPECT_EQ(BoxOf(Symbol("X_HYBV", 0, 0, node)), (Box{900, 900, 1100, 1100}));
  EXPECT_EQ(BoxOf(Symbol("X_BVS", 0, 0, node)), (Box{900, 900, 1100, 1100}));
  // Free catchments and gauges are widened by the node's width on each side.
  EXPECT_EQ(BoxOf(Symbol("X_PLU", 0, 0, node)), (Box{700, 700, 1300, 1300}));
  EXPECT_EQ(BoxOf(Symbol("X_BV", 0, 0, node)), (Box{700, 700, 1300, 1300}));
}

TEST_F(PlacementTest, SymbolCarriesItsPicture) {
  const int node = Node(1000, 1000);
  surface.SetCurrentObject(node);
  EXPECT_EQ(surface.ObjectPicture(), state.SymbolDir + "/NOD.svg");
  surface.SetCurrentObject(Symbol("X_CLAV", 0, 0, node));
  EXPECT_EQ(surface.ObjectPicture(), state.SymbolDir + "/FIN.svg");
}

TEST_F(PlacementTest, MissingSymbolsFolderIsReported) {
  state.SymbolDir = "/nowhere/Symboles";
  EXPECT_EQ(Node(1000, 1000), 0);
  ExpectLastMessage(ui,
                    "Erreur Draw_A_Symbol\r\nle répertoire des symboles peut être mal défini dans "
                    "le fichier /opt/pluvane/pluvane.ini",
                    "", MessageIcon::kNone);
  EXPECT_EQ(surface.ObjectCount(kPage), 0);
  EXPECT_EQ(state.NodeCount, 1);
  EXPECT_EQ(state.ElementCounters[99], 0);
}

TEST_F(PlacementTest, ASymbolIsOneUndoStep) {
  Node(1000, 1000);
  const int outlet = Symbol("X_HYBV", 0, 0, FindObject(surface, "Id", "Nod_1"));
  ASSERT_GT(outlet, 0);
  EXPECT_TRUE(surface.Undo());
  EXPECT_EQ(surface.ObjectCount(kPage), 1);
  EXPECT_EQ(FindObject(surface, "Id", "Hbv_1"), 0);
}

TEST_F(PlacementTest, PrepareLinkSetsTheStyleOfTheKey) {
  state.ZoomFactor = 2;
  struct Row {
    const char* key;
    std::int32_t color;
    double width;
    int style;
  };
  const Row rows[] = {{"X_ROUT", 0, 0, 0},     {"X_CAC", 16711680, -1.5, 0},
                      {"X_CAF", 255, -1.5, 0}, {"X_CAO", 16776960, -1.5, 0},
                      {"X_TR", 0, 0, 2},       {"X_BIEF", 0, -3, 0}};
  for (const Row& row : rows) {
    PrepareLink(surface, state, row.key);
    surface.SetCurrentObject(kDefaults);
    EXPECT_EQ(surface.LineColor(), row.color) << row.key;
    EXPECT_DOUBLE_EQ(std::fabs(surface.LineWidth()), std::fabs(row.width)) << row.key;
    EXPECT_LE(surface.LineWidth(), 0) << row.key;
    EXPECT_EQ(surface.LineStyle(), row.style) << row.key;
  }
  // Without the scale-with-zoom flag the zoom does not divide.
  state.ScaleWithZoom = false;
  PrepareLink(surface, state, "X_CAC");
  surface.SetCurrentObject(kDefaults);
  EXPECT_DOUBLE_EQ(surface.LineWidth(), -3);
}

TEST_F(PlacementTest, DrawLinkStyle) {
  state.ZoomFactor = 2;
  const int a = Node(1000, 1000);
  const int b = Node(3000, 1000);
  const int link = DrawLink(surface, state, "X_CAF", a, b, 5, 5);
  ASSERT_GT(link, 0);
  EXPECT_EQ(surface.CurrentObject(), link);
  EXPECT_EQ(surface.ObjectKind(), kKindLink);
  EXPECT_EQ(surface.LinkEndObject(0), a);
  EXPECT_EQ(surface.LinkEndObject(1), b);
  EXPECT_EQ(surface.LineColor(), 255);
  EXPECT_DOUBLE_EQ(surface.LineWidth(), -100);  // minus the node half-size
  EXPECT_EQ(surface.LineStyle(), 0);
  EXPECT_EQ(surface.LinkEndMarker(0), 0);
  EXPECT_EQ(surface.LinkEndMarker(1), 0);
  EXPECT_DOUBLE_EQ(surface.LinkMarkerWidth(1), -20);
  EXPECT_DOUBLE_EQ(surface.LinkMarkerHeight(1), -20);
  EXPECT_EQ(surface.ObjectPoints().size(), 2u);
  // Sent behind the symbols, so that they stay clickable.
  EXPECT_LT(surface.ObjectShape(link)->layer, surface.ObjectShape(a)->layer);
  EXPECT_EQ(DrawLink(surface, state, "X_CAC", 0, b, 0, 0), 0);
  EXPECT_EQ(DrawLink(surface, state, "X_CAC", a, -1, 0, 0), 0);
  const int tr = DrawLink(surface, state, "X_TR", a, b, 0, 0);
  surface.SetCurrentObject(tr);
  EXPECT_EQ(surface.LineStyle(), 2);
}

TEST_F(PlacementTest, ImportLinkRefusesEqualEndsAndKeepsTheStyleWidth) {
  const int a = Node(1000, 1000);
  const int b = Node(3000, 1000);
  EXPECT_EQ(DrawLinkByNumber(surface, state, 5, a, a), 0);
  EXPECT_EQ(state.ElementCounters[5], 0);
  const int link = DrawLinkByNumber(surface, state, 5, a, b);
  surface.SetCurrentObject(link);
  EXPECT_DOUBLE_EQ(surface.LineWidth(), -3);
  EXPECT_EQ(surface.LineColor(), 16711680);
  EXPECT_EQ(surface.LinkEndMarker(0), 0);
  EXPECT_EQ(surface.LinkEndMarker(1), 0);
}

// The hydrological complex: one eighth of a turn further per route.
class ComplexTest : public PlacementTest {
 protected:
  std::pair<std::int32_t, std::int32_t> Expected(int routes) {
    const double a = 3.1416 / 4 * (routes + 1);
    return {RoundLong(1000 + 200 * std::cos(a)), RoundLong(1000 + 200 * std::sin(a))};
  }
  std::pair<std::int32_t, std::int32_t> Position(int number) {
    return {ValLong(TagOf(number, "Xlog")), ValLong(TagOf(number, "Ylog"))};
  }
};

TEST_F(ComplexTest, OnANodeMakesTheOutletTheCatchmentAndTheRoute) {
  const int node = Node(1000, 1000);
  const HydrologicalComplex made = PlaceHydrologicalComplex(surface, state, ui, node);
  ASSERT_GT(made.outlet, 0);
  ASSERT_GT(made.catchment, 0);
  ASSERT_GT(made.route, 0);
  EXPECT_EQ(TagOf(made.outlet, "iName"), "3");
  EXPECT_EQ(TagOf(made.outlet, "sNodAm"), "Nod_1");
  EXPECT_EQ(BoxOf(made.outlet), BoxOf(node));
  EXPECT_EQ(Position(made.catchment), Expected(0));
  EXPECT_EQ(TagOf(made.catchment, "sNodAm"), "");
  EXPECT_EQ(TagOf(made.route, "sNodAm"), "Bv_1");
  EXPECT_EQ(TagOf(made.route, "sNodAv"), "Hbv_1");
  const auto [cx, cy] = ObjectCentre(surface, made.catchment);
  EXPECT_NEAR(cx, 1000 + 200 * std::cos(3.1416 / 4), 0.5);
  EXPECT_NEAR(cy, 1000 + 200 * std::sin(3.1416 / 4), 0.5);
}

TEST_F(ComplexTest, EachClickOnTheOutletTurnsOneEighthFurther) {
  const int node = Node(1000, 1000);
  const int outlet = PlaceHydrologicalComplex(surface, state, ui, node).outlet;
  for (int routes = 1; routes <= 3; ++routes) {
    const HydrologicalComplex made = PlaceHydrologicalComplex(surface, state, ui, outlet);
    EXPECT_EQ(made.outlet, outlet);
    EXPECT_EQ(Position(made.catchment), Expected(routes)) << routes;
    EXPECT_EQ(TagOf(made.route, "sNodAv"), "Hbv_1");
  }
  EXPECT_EQ(CountByName(surface, kINameHYBV), 1);
  EXPECT_EQ(CountByName(surface, kINameBV), 4);
  EXPECT_EQ(CountByName(surface, kINameRout), 4);
}

TEST_F(ComplexTest, OneUndoStepAndNothingOnOtherObjects) {
  const int node = Node(1000, 1000);
  const int bv = Symbol("X_BV", 4000, 4000);
  const HydrologicalComplex none = PlaceHydrologicalComplex(surface, state, ui, bv);
  EXPECT_EQ(none.outlet + none.catchment + none.route, 0);
  PlaceHydrologicalComplex(surface, state, ui, node);
  EXPECT_EQ(surface.ObjectCount(kPage), 5);
  EXPECT_TRUE(surface.Undo());
  EXPECT_EQ(surface.ObjectCount(kPage), 2);
}

}  // namespace
}  // namespace pluvane
