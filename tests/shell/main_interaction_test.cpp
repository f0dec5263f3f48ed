#include "shell/main_interaction.h"

#include <gtest/gtest.h>

#include <cmath>

#include "foundation/expect_message.h"
#include "foundation/numbers.h"
#include "network/calibration_points.h"
#include "foundation/test_files.h"
#include "network/catalogue.h"
#include "network/placement_fixture.h"
#include "drawing/surface_helpers.h"
#include "shell/configuration.h"
#include "shell/view_commands.h"

namespace pluvane {
namespace {

constexpr int kLeft = 1;
constexpr int kRight = 2;
constexpr int kCtrl = 2;
constexpr const char* kDeleteStatus =
    "Sélectionnez un ou plusieurs éléments à supprimer, puis valider avec la touche <Suppr>";

class MainInteractionTest : public PlacementTest {
 protected:
  MainInteractionTest() { interaction.SetCaption("Pluvane - reseau.mtf"); }

  // A click of the left button at (x, y) on the object `hit`.
  InteractionResult Click(int hit, double x = 0, double y = 0, int button = kLeft) {
    interaction.Press(button, 0, hit, x, y);
    return interaction.Release(button, 0);
  }
  int Count() { return surface.ObjectCount(kPage); }
  void Select(int object) {
    surface.SetCurrentObject(object);
    surface.SetSelected(true);
  }

  MainInteraction interaction{surface, state, ui};
};

// Tool clicks.

TEST_F(MainInteractionTest, EachToolClickResetsFirst) {
  interaction.ToolClick("MYMDBUBLE");
  const int node = Node(1000, 1000);
  interaction.Move(1000, 1000, node);
  ASSERT_TRUE(interaction.BubbleVisible());
  surface.SetEditMode(24);
  surface.SetSelectionEnabled(false);
  surface.SetSelectionAllowed(0);
  interaction.placement().ClickCount = 1;

  const InteractionResult result = interaction.ToolClick("MDMOVE");
  EXPECT_EQ(ui.Statuses().at(ui.Statuses().size() - 2), "");
  EXPECT_FALSE(result.bubble_visible);
  EXPECT_EQ(result.bubble_text, "");
  EXPECT_EQ(surface.EditMode(), 11);
  EXPECT_TRUE(surface.SelectionEnabled());
  EXPECT_EQ(surface.SelectionAllowed(), 23);
  EXPECT_EQ(interaction.placement().ClickCount, 0);
  EXPECT_EQ(interaction.placement().CreationKey, "");
  EXPECT_EQ(state.CurrentMode, "MDMOVE");
  EXPECT_EQ(result.cursor, 200);
}

TEST_F(MainInteractionTest, StatusTextsAndCursorsOfTheTools) {
  const struct {
    const char* key;
    int cursor;
    const char* status;
  } tools[] = {
      {"MDDELETE", 201, kDeleteStatus},
      {"MDMOVE", 200,
       "Sélectionnez un ou plusieurs éléments. Faites déplacer la sélection en tirant sur un "
       "noeud. La fusion à un noeud cible est possible."},
      {"MDFUSION", 204, "Placer un noeud sur un collecteur"},
      {"MDBREAK", 202, "Placer un noeud sur un collecteur"},
      {"MDBREAKPLUS", 0, ""},
      {"MDEDIT1", 203, "Sélectionnez un élément à éditer"},
  };
  for (const auto& tool : tools) {
    const InteractionResult result = interaction.ToolClick(tool.key);
    EXPECT_EQ(state.CurrentMode, tool.key);
    EXPECT_EQ(result.cursor, tool.cursor) << tool.key;
    EXPECT_EQ(ui.Statuses().back(), tool.status) << tool.key;
  }
}

TEST_F(MainInteractionTest, CreationToolArmsTheKeyWithItsCursor) {
  const InteractionResult result = interaction.ToolClick("X_NOD");
  EXPECT_EQ(state.CurrentMode, "CREATE OBJ");
  EXPECT_EQ(interaction.placement().CreationKey, "X_NOD");
  EXPECT_EQ(interaction.placement().NextIName, 99);
  EXPECT_EQ(result.cursor, CursorNumberOfKey("X_NOD"));
  EXPECT_GT(result.cursor, 0);
}

TEST_F(MainInteractionTest, GeneralEditorNeedsADrawing) {
  EXPECT_EQ(interaction.ToolClick("MDEDITALL").open_form, "");
  EXPECT_EQ(state.CurrentMode, "");
  const int node = Node(1000, 1000);
  EXPECT_EQ(interaction.ToolClick("MDEDITALL").open_form, "frmEdit");
  EXPECT_EQ(state.CurrentMode, "MDEDITALL");
  interaction.Press(kLeft, 0, node, 1000, 1000);
  const InteractionResult pressed = interaction.Press(kLeft, 0, node, 1000, 1000);
  EXPECT_EQ(pressed.open_form, "frmEdit");
  EXPECT_EQ(pressed.form_object, node);
}

TEST_F(MainInteractionTest, BandsAndWindowCommands) {
  EXPECT_EQ(interaction.ToolClick("X_BVCOM").open_band, "RESO_CREATE_BV_C");
  EXPECT_EQ(interaction.ToolClick("X_BVSIM").open_band, "RESO_CREATE_BV_S");
  EXPECT_EQ(interaction.ToolClick("X_CALAGE").open_form, "frmCalage");
  EXPECT_EQ(interaction.ToolClick("MDSAVE").window_command, "MDSAVE");
  EXPECT_EQ(state.CurrentMode, "");
}

TEST_F(MainInteractionTest, TextRotationUsesItsEditMode) {
  interaction.ToolClick("MDROTATE");
  EXPECT_EQ(state.CurrentMode, "MDROTATE");
  EXPECT_EQ(surface.EditMode(), 13);
  interaction.Key(27, 0);
  EXPECT_EQ(surface.EditMode(), 11);
}

// Placing.

TEST_F(MainInteractionTest, NodesArePlacedWhereClicked) {
  interaction.ToolClick("X_NOD");
  Click(0, 1000, 2000);
  Click(0, 3000, 2000);
  ASSERT_EQ(CountByName(surface, kINameNode), 2);
  const int first = FindObject(surface, "iName", kINameNode);
  EXPECT_EQ(ObjectCentre(surface, first), std::make_pair(1000.0, 2000.0));
  EXPECT_EQ(state.CurrentMode, "CREATE OBJ");
}

TEST_F(MainInteractionTest, ANodeOnAnObjectIsRefusedSilently) {
  interaction.ToolClick("X_NOD");
  const int catchment = Symbol("X_BV", 5000, 5000);
  const int before = Count();
  Click(catchment, 5000, 5000);
  EXPECT_EQ(Count(), before);
  EXPECT_TRUE(ui.Empty());
}

TEST_F(MainInteractionTest, AChainOfThreeCollectors) {
  const int a = Node(1000, 1000), b = Node(3000, 1000), c = Node(5000, 1000), d = Node(7000, 1000);
  interaction.ToolClick("X_CAC");
  InteractionResult result = Click(a, 1000, 1000);
  ASSERT_TRUE(result.rubber_start.has_value());
  EXPECT_EQ(*result.rubber_start, std::make_pair(1000.0, 1000.0));
  Click(b, 3000, 1000);
  Click(c, 5000, 1000);
  result = Click(d, 7000, 1000);
  const std::vector<int> links = FindObjectList(surface, "iName", kINameCAC);
  ASSERT_EQ(links.size(), 3u);
  EXPECT_EQ(TagOf(links[0], "sNodAm"), TagOf(a, "Id"));
  EXPECT_EQ(TagOf(links[2], "sNodAv"), TagOf(d, "Id"));
  // Drawing goes on from the last node.
  ASSERT_TRUE(result.rubber_start.has_value());
  EXPECT_EQ(*result.rubber_start, std::make_pair(7000.0, 1000.0));
}

TEST_F(MainInteractionTest, EscInTheMiddleOfALink) {
  const int a = Node(1000, 1000);
  interaction.ToolClick("X_CAC");
  Click(a, 1000, 1000);
  ASSERT_EQ(interaction.placement().ClickCount, 1);
  const InteractionResult result = interaction.Key(27, 0);
  EXPECT_EQ(interaction.placement().ClickCount, 0);
  EXPECT_EQ(result.cursor, 0);
  EXPECT_EQ(interaction.CursorNumber(), 0);
  EXPECT_FALSE(result.rubber_start.has_value());
  EXPECT_TRUE(result.refresh_menus);
  EXPECT_EQ(state.CurrentMode, "");
  EXPECT_EQ(surface.SelectionAllowed(), 23);
}

TEST_F(MainInteractionTest, AThirdElementOnANodeIsRefused) {
  const int node = Node(5000, 5000);
  interaction.ToolClick("X_HY");
  Click(node, 5000, 5000);
  interaction.ToolClick("X_MARK");
  Click(node, 5000, 5000);
  EXPECT_TRUE(ui.Empty());
  const int before = Count();
  interaction.ToolClick("X_CLAV");
  Click(node, 5000, 5000);
  ExpectLastMessage(ui, "un noeud ne peut supporter qu'un obj au plus", "Pluvane - reseau.mtf",
                    MessageIcon::kExclamation);
  EXPECT_EQ(Count(), before);
}

TEST_F(MainInteractionTest, AnElementOnANodeLetsTheNextOneThrough) {
  const int node = Node(5000, 5000);
  const int injection = Symbol("X_HY", 5000, 5000, node);
  interaction.ToolClick("X_MARK");
  Click(injection, 5000, 5000);
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(CountByName(surface, kINameMark), 1);
  // A free element still refuses it.
  const int catchment = Symbol("X_BV", 1000, 1000);
  Click(catchment, 1000, 1000);
  ExpectLastMessage(ui, "un obj ne peut pas être déposé sur un autre", "Pluvane - reseau.mtf",
                    MessageIcon::kExclamation);
}

TEST_F(MainInteractionTest, ReservoirNeedsTwoCollectorsDownstream) {
  const int node = Node(5000, 5000);
  Link("X_CAC", node, Node(7000, 5000));
  interaction.ToolClick("X_RS");
  const int before = Count();
  Click(node, 5000, 5000);
  ExpectLastMessage(ui, "If faut 2 collecteurs en aval de ce noeud!", "Bassin",
                    MessageIcon::kExclamation);
  EXPECT_EQ(Count(), before);
  Link("X_CAC", node, Node(7000, 7000));
  ui.Clear();
  Click(node, 5000, 5000);
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(CountByName(surface, kINameRS), 1);
}

TEST_F(MainInteractionTest, DividerTakesAtMostFourCollectors) {
  const int node = Node(5000, 5000);
  for (int i = 0; i < 5; ++i) Link("X_CAC", node, Node(8000, 1000 + 1500 * i));
  interaction.ToolClick("X_DQQ");
  Click(node, 5000, 5000);
  ExpectLastMessage(ui, "If faut au moins 2 et au plus 4 collecteurs en aval de ce noeud!",
                    "Dérivation", MessageIcon::kExclamation);
  EXPECT_EQ(CountByName(surface, kINameDQQ), 0);
}

TEST_F(MainInteractionTest, RightButtonPlacesNothing) {
  interaction.ToolClick("X_NOD");
  Click(0, 1000, 1000, kRight);
  EXPECT_EQ(Count(), 0);
}

// Modes without creation.

TEST_F(MainInteractionTest, PressWithoutHitInBreakDoesNothingOnRelease) {
  const int a = Node(1000, 1000), b = Node(5000, 1000);
  Link("X_CAC", a, b);
  interaction.ToolClick("MDBREAK");
  const int before = Count();
  interaction.Press(kLeft, 0, 0, 3000, 3000);
  EXPECT_TRUE(interaction.placement().CancelRelease);
  interaction.Release(kLeft, 0);
  EXPECT_EQ(Count(), before);
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(state.CurrentMode, "MDBREAK");
  interaction.Press(kLeft, 0, a, 1000, 1000);
  EXPECT_FALSE(interaction.placement().CancelRelease);
}

TEST_F(MainInteractionTest, MovePressSelectsTheNodeAndWhatStandsOnIt) {
  const int node = Node(5000, 5000);
  const int injection = Symbol("X_HY", 5000, 5000, node);
  Node(8000, 8000);
  interaction.ToolClick("MDMOVE");
  interaction.Press(kLeft, 0, node, 5000, 5000);
  EXPECT_EQ(SelectedObjects(surface), (std::vector<int>{node, injection}));
}

TEST_F(MainInteractionTest, EditorOfTheSelectedElement) {
  const int catchment = Symbol("X_BV", 5000, 5000);
  interaction.ToolClick("MDEDIT1");
  Select(catchment);
  interaction.Press(kLeft, 0, catchment, 5000, 5000);
  const InteractionResult result = interaction.Release(kLeft, 0);
  EXPECT_EQ(result.open_form, "frmBV");
  EXPECT_EQ(result.form_object, catchment);
  EXPECT_EQ(ui.Statuses().back(), TagOf(catchment, "libell"));
  // A press on nothing opens nothing.
  interaction.Press(kLeft, 0, 0, 100, 100);
  EXPECT_EQ(interaction.Release(kLeft, 0).open_form, "");
}

TEST_F(MainInteractionTest, DuplicatedIdIsToldBeforeEditing) {
  const int first = Symbol("X_BV", 2000, 2000);
  const int second = Symbol("X_BV", 5000, 5000);
  surface.SetCurrentObject(second);
  surface.SetObjTag("Id", TagOf(first, "Id"));
  interaction.ToolClick("MDEDIT1");
  Select(second);
  interaction.Press(kLeft, 0, second, 5000, 5000);
  EXPECT_EQ(interaction.Release(kLeft, 0).open_form, "frmBV");
  ExpectLastMessage(ui, "Il y a 2 doublon(s) pour " + TagOf(first, "Id"), "Edition d'élément",
                    MessageIcon::kExclamation);
}

TEST_F(MainInteractionTest, NoModeReleaseOnAnObjectShowsItsLabel) {
  const int node = Node(5000, 5000);
  Click(node, 5000, 5000);
  EXPECT_EQ(ui.Statuses().back(), TagOf(node, "libell"));
}

TEST_F(MainInteractionTest, RightReleaseOnTextsOpensTheirPopup) {
  const int text = surface.AddObject(kKindText, 0, 0, 100, 100);
  Select(text);
  EXPECT_EQ(Click(text, 50, 50, kRight).popup, "mnuPopUp_txt");
  const int node = Node(5000, 5000);
  Select(node);
  // A selection that is not only texts gets the drawing's actions.
  EXPECT_EQ(Click(node, 5000, 5000, kRight).popup, "myActionPopup");
}

TEST_F(MainInteractionTest, RightClickDataAccessToggles) {
  const int node = Node(5000, 5000);
  interaction.Key(123, 7);
  EXPECT_TRUE(interaction.DataAccess());
  EXPECT_EQ(ui.Statuses().back(), "Clic droit pour accéder aux données = Oui");
  surface.DeselectAll();
  Select(node);
  Click(node, 5000, 5000, kRight);
  const std::string status = ui.Statuses().back();
  EXPECT_EQ(status.rfind("elm sélectionné : " + TagOf(node, "libell"), 0), 0u) << status;
  EXPECT_NE(status.find("Id = " + TagOf(node, "Id")), std::string::npos) << status;
  interaction.Key(123, 7);
  EXPECT_FALSE(interaction.DataAccess());
  EXPECT_EQ(ui.Statuses().back(), "Clic droit pour accéder aux données = Non");
  const std::size_t statuses = ui.Statuses().size();
  Select(node);
  Click(node, 5000, 5000, kRight);
  EXPECT_EQ(ui.Statuses().size(), statuses);
}

TEST_F(MainInteractionTest, PointerPositionInUserCoordinates) {
  interaction.Move(1234.5, 1000);
  EXPECT_EQ(ui.Panel("sbrXY"), "1234.5, 9000");
}

TEST_F(MainInteractionTest, BubbleShowsTheTagsButTheKind) {
  const int node = Node(5000, 5000);
  interaction.ToolClick("MYMDBUBLE");
  EXPECT_TRUE(interaction.WantsHoverHit());
  const InteractionResult over = interaction.Move(5000, 5000, node);
  EXPECT_TRUE(over.bubble_visible);
  EXPECT_EQ(over.bubble_text.rfind("Id : " + TagOf(node, "Id") + "\n", 0), 0u) << over.bubble_text;
  EXPECT_EQ(over.bubble_text.find("iName"), std::string::npos);
  EXPECT_EQ(over.bubble_text.find("iGroup"), std::string::npos);
  EXPECT_FALSE(interaction.Move(100, 100, 0).bubble_visible);
}

TEST_F(MainInteractionTest, ReachModeTellsTheCollectorAndEndsOnEnter) {
  const int link = Link("X_CAC", Node(1000, 1000), Node(3000, 1000));
  mnuOpt_Bief_New(state, interaction.placement(), ui);
  ASSERT_EQ(state.CurrentMode, "ADDBIEF");
  Select(link);
  Click(link, 2000, 1000);
  EXPECT_EQ(ui.Statuses().back(), TagOf(link, "libell") + " : bief ?");
  // Del does nothing in this mode.
  interaction.Key(46, 0);
  EXPECT_EQ(state.CurrentMode, "ADDBIEF");
  EXPECT_EQ(Count(), 3);
  bool shown = false;
  interaction.SetShowModal([&](FormController&) { shown = true; });
  Select(link);
  const InteractionResult ended = interaction.Key(13, 0);
  EXPECT_TRUE(shown);
  EXPECT_EQ(state.CurrentMode, "");
  EXPECT_TRUE(ended.refresh_menus);
}

// Keys.

TEST_F(MainInteractionTest, DelWithNothingSelectedArmsDeleteAndDeletesNothing) {
  Node(1000, 1000);
  const InteractionResult result = interaction.Key(46, 0);
  EXPECT_EQ(state.CurrentMode, "MDDELETE");
  EXPECT_EQ(result.cursor, 201);
  EXPECT_EQ(Count(), 1);
}

TEST_F(MainInteractionTest, DelAndEnterDeleteTheSelection) {
  const int a = Node(1000, 1000), b = Node(3000, 1000);
  Select(a);
  interaction.Key(46, 0);
  EXPECT_EQ(Count(), 1);
  Select(b);
  interaction.Key(13, 0);
  EXPECT_EQ(Count(), 0);
}

TEST_F(MainInteractionTest, EnterOutsideDeleteKeepsTheSelection) {
  const int a = Node(1000, 1000);
  Select(a);
  interaction.Key(13, 0);
  EXPECT_EQ(Count(), 1);
}

TEST_F(MainInteractionTest, ArrowsMoveTheSelection) {
  const int a = Node(1000, 1000);
  Node(3000, 3000);
  Select(a);
  interaction.Key(37, 0);
  EXPECT_EQ(ObjectCentre(surface, a), std::make_pair(990.0, 1000.0));
  interaction.Key(38, 1);
  EXPECT_EQ(ObjectCentre(surface, a), std::make_pair(990.0, 900.0));
  interaction.Key(39, 1);
  interaction.Key(40, 0);
  EXPECT_EQ(ObjectCentre(surface, a), std::make_pair(1090.0, 910.0));
}

TEST_F(MainInteractionTest, ArrowsRewriteThePlaceOfWhatTheyMoveAndKeepTheSelection) {
  const int a = Node(1000, 1000);
  surface.SetCurrentObject(a);
  const std::string xus = surface.ObjTag("Xus"), yus = surface.ObjTag("Yus");
  Select(a);
  interaction.Key(37, 0);
  surface.SetCurrentObject(a);
  EXPECT_EQ(surface.ObjTag("Xlog"), "990");
  EXPECT_EQ(surface.ObjTag("Ylog"), "1000");
  // No calibration points stand: the map place is left as it was.
  EXPECT_EQ(surface.ObjTag("Xus"), xus);
  EXPECT_EQ(surface.ObjTag("Yus"), yus);
  EXPECT_TRUE(surface.IsSelected(a));
  interaction.Key(37, 0);
  surface.SetCurrentObject(a);
  EXPECT_EQ(surface.ObjTag("Xlog"), "980");
}

TEST_F(MainInteractionTest, OnACalibratedNetworkArrowsRewriteTheMapPlaceAndTheLengths) {
  AddCalibrationPoints(surface, state);
  HideCalibrationPoints(surface, state);
  const int a = Node(1000, 1000);
  const int b = Node(3000, 1000);
  const int link = Link("X_CAC", a, b);
  Select(a);
  interaction.Key(40, 1);
  surface.SetCurrentObject(a);
  EXPECT_EQ(surface.ObjTag("Xlog"), "1000");
  EXPECT_EQ(surface.ObjTag("Ylog"), "1100");
  // The map of the drawing's corners: X = Xlog, Y = height - Ylog.
  EXPECT_EQ(surface.ObjTag("Xus"), "1000");
  EXPECT_EQ(surface.ObjTag("Yus"), "8900");
  surface.SetCurrentObject(link);
  EXPECT_NEAR(Val(surface.ObjTag("L")), std::hypot(2000.0, 100.0), 0.01);
  // One step takes the move and its tags back.
  interaction.Key(90, kCtrl);
  surface.SetCurrentObject(a);
  EXPECT_EQ(ObjectCentre(surface, a), std::make_pair(1000.0, 1000.0));
  EXPECT_EQ(surface.ObjTag("Ylog"), "1000");
  EXPECT_EQ(surface.ObjTag("Yus"), "9000");
}

TEST_F(MainInteractionTest, UndoAndRedo) {
  interaction.ToolClick("X_NOD");
  Click(0, 1000, 1000);
  ASSERT_EQ(Count(), 1);
  interaction.Key(90, kCtrl);
  EXPECT_EQ(Count(), 0);
  interaction.Key(121, kCtrl);
  EXPECT_EQ(Count(), 1);
  interaction.Key(122, kCtrl);
  EXPECT_EQ(Count(), 0);
  interaction.Key(89, kCtrl);
  EXPECT_EQ(Count(), 1);
}

TEST_F(MainInteractionTest, SelectAllGroupAndUngroup) {
  Node(1000, 1000);
  Node(3000, 1000);
  interaction.Key(65, kCtrl);
  EXPECT_EQ(surface.ObjectCount(kSelection), 2);
  surface.DeselectAll();
  interaction.Key(103, kCtrl);  // with nothing selected, all first
  ASSERT_EQ(Count(), 1);
  surface.FirstObject();
  EXPECT_EQ(surface.ObjectKind(), kKindGroup);
  surface.SelectAll();
  interaction.Key(85, kCtrl);
  EXPECT_EQ(Count(), 2);
}

TEST_F(MainInteractionTest, LocateById) {
  const int node = Node(1000, 1000);
  Node(3000, 1000);
  const std::string id = TagOf(node, "Id");
  ui.Queue(id);
  interaction.Key(100, kCtrl);
  ExpectLastMessage(ui, "1 élément trouvé:\n" + id + " type " + ShortCodeOfIName(99),
                    "Localisation d'élément", MessageIcon::kInformation);
  EXPECT_EQ(SelectedObjects(surface), std::vector<int>{node});
  ui.Queue("nothing");
  interaction.Key(70, kCtrl);
  ExpectLastMessage(ui, "Aucun élément nothing", "Localisation d'élément",
                    MessageIcon::kInformation);
}

TEST_F(MainInteractionTest, LocateNeedsANetwork) {
  interaction.Key(68, kCtrl);
  ExpectLastMessage(ui, "Un réseau doit être chargé.", "Localisation d'élément",
                    MessageIcon::kExclamation);
}

// View commands.

TEST_F(MainInteractionTest, ZoomKeys) {
  surface.SetViewLeft(2000);
  interaction.Key(113, 0);
  EXPECT_EQ(state.CurrentMode, "ZOOMT");
  EXPECT_DOUBLE_EQ(surface.ViewLeft(), 0);

  interaction.Key(114, 0);
  EXPECT_EQ(state.CurrentMode, "ZOOMF");
  EXPECT_EQ(surface.EditMode(), 24);
  EXPECT_EQ(surface.AutoScale(), 0);
  interaction.ZoomRectangle(3000, 4000, 1000, 2000);
  EXPECT_DOUBLE_EQ(surface.ViewLeft(), 1000);
  EXPECT_DOUBLE_EQ(surface.ViewTop(), 2000);
  EXPECT_EQ(state.CurrentMode, "");
  EXPECT_EQ(surface.EditMode(), 11);

  Node(6000, 6000);
  interaction.Key(115, 0);
  EXPECT_EQ(state.CurrentMode, "");
  EXPECT_LT(surface.ViewLeft(), 6000);
  EXPECT_GT(surface.ViewLeft() + surface.ViewWidth(), 6000);
  EXPECT_LT(surface.ViewWidth(), 10000);
}

TEST_F(MainInteractionTest, ZoomRectangleOutsideZoomWindowDoesNothing) {
  surface.SetViewLeft(500);
  interaction.ZoomRectangle(3000, 4000, 1000, 2000);
  EXPECT_DOUBLE_EQ(surface.ViewLeft(), 500);
}

TEST_F(MainInteractionTest, F5RestoresSymbolsAfterTheSymbolSizeChanged) {
  const int node = Node(5000, 5000);
  const int injection = Symbol("X_HY", 5000, 5000, node);
  ASSERT_EQ(BoxOf(node), (Box{4900, 4900, 5100, 5100}));
  state.SymbolSize = 150;
  interaction.Key(116, 0);
  EXPECT_EQ(BoxOf(node), (Box{4850, 4850, 5150, 5150}));
  EXPECT_EQ(BoxOf(injection), BoxOf(node));
  EXPECT_EQ(state.CurrentMode, "");
  // New nodes take the new size.
  EXPECT_EQ(BoxOf(Node(1000, 1000)), (Box{850, 850, 1150, 1150}));
}

TEST_F(MainInteractionTest, GridMessages) {
  state.ZoomFactor = 2;
  interaction.ToolClick("MdGrid");
  EXPECT_EQ(ui.Statuses().back(), "Grillage activé");
  EXPECT_EQ(surface.GridOn(), 1);
  EXPECT_EQ(surface.GridStepX(), 62);
  EXPECT_EQ(surface.GridStepY(), 62);
  interaction.ToolClick("MdGrid");
  EXPECT_EQ(ui.Statuses().back(), "Grillage déactivé");
  EXPECT_EQ(surface.GridOn(), 0);
  state.ZoomFactor = 0.0005;
  interaction.ToolClick("MdGrid");
  EXPECT_EQ(surface.GridStepX(), 124);
}

TEST_F(MainInteractionTest, ScrollBarsToggle) {
  interaction.ToolClick("MdAscens");
  EXPECT_NE(surface.ScrollBars(), 0);
  interaction.ToolClick("MdAscens");
  EXPECT_EQ(surface.ScrollBars(), 0);
}

TEST_F(MainInteractionTest, LinkArrowsToggleWithProgress) {
  const int a = Node(1000, 1000), b = Node(3000, 1000);
  const int link = Link("X_CAC", a, b);
  interaction.ToolClick("MDSHOWLNKARROW");
  surface.SetCurrentObject(link);
  EXPECT_EQ(surface.LinkEndMarker(4), 5);
  EXPECT_EQ(surface.LinkEndMarker(0), 0);
  EXPECT_EQ(surface.LinkMarkerColor(4), 16711680);
  EXPECT_DOUBLE_EQ(surface.LinkMarkerWidth(4), -5);
  EXPECT_EQ(ui.Progress(), (std::vector<int>{100, 0}));
  EXPECT_TRUE(interaction.LinkArrows());
  interaction.ToolClick("MDSHOWLNKARROW");
  surface.SetCurrentObject(link);
  EXPECT_EQ(surface.LinkEndMarker(4), 0);
}

TEST_F(MainInteractionTest, ArrowSizeFollowsTheNodesWhenSymbolsKeepTheirSize) {
  const int link = Link("X_CAC", Node(1000, 1000), Node(3000, 1000));
  state.ScaleWithZoom = false;
  interaction.ToolClick("MDSHOWLNKARROW");
  surface.SetCurrentObject(link);
  EXPECT_DOUBLE_EQ(surface.LinkMarkerWidth(4), -250);
}

TEST_F(MainInteractionTest, ScreenColourGoesToTheConfiguration) {
  TempFolder folder;
  state.AppPath = folder.Path();
  ui.Queue("255");
  interaction.ToolClick("MdCoBack");
  EXPECT_EQ(surface.PageColor(), 255);
  EXPECT_EQ(surface.BackColor1(), 255);
  EXPECT_EQ(surface.BackColor2(), 255);
  EXPECT_EQ(state.ScreenBackColor, 255);
  EXPECT_EQ(ReadProfileValue(kSectionOthers, "CoBack Ecran", 20, IniFilePath(state)), "255");
  ui.Queue("0");
  interaction.ToolClick("MdCoBack");
  EXPECT_EQ(surface.PageColor(), 255);
}

TEST_F(MainInteractionTest, CalibrationFormArmsThePointPlacement) {
  interaction.ArmCreationKey("X_CALAGE", "Pt2");
  EXPECT_EQ(state.CurrentMode, "CREATE OBJ");
  const InteractionResult result = Click(0, 2000, 2000);
  EXPECT_EQ(result.open_form, "frmInfoCalage");
  EXPECT_EQ(TagOf(result.form_object, "Id"), "Pt2");
  interaction.ArmCreationKey("");
  EXPECT_EQ(state.CurrentMode, "");
}

}  // namespace
}  // namespace pluvane
