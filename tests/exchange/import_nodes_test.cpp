// The node and catchment imports, their checks, question and column dialogs.
#include <gtest/gtest.h>

#include "exchange/import_dialogs.h"
#include "exchange/import_fixture.h"
#include "network/georeferencing.h"

namespace pluvane {
namespace {

// A map of scale 2: X = 2 Xlog, Y = 20000 - 2 Ylog, so that imports take it
// as a calibration and run no pass of their own.
void ScaleTwo(Calibration& c) {
  c.logic_x = {0, 0, 0, 10000};
  c.logic_y = {0, 0, 10000, 10000};
  c.user_x = {0, 0, 0, 20000};
  c.user_y = {0, 20000, 0, 0};
  ASSERT_TRUE(SolveCalibration(c));
}

class NodeImport : public ImportTest {
 protected:
  NodeImport() { ScaleTwo(state.calibration); }
};

TEST_F(NodeImport, PlacesNodesByTheirMapCoordinates) {
  const std::string table = Table("noeuds.txt",
                                  "N1 2000 18000 12.5\r\n"
                                  "\r\n"
                                  "\"regard 2\" 4000 16000 13\r\n");
  const std::string fld = Fld("noeuds.Fld", {1, 2, 3, 4});
  EXPECT_EQ(ImportNodes(Target(), table, fld, " "), 2);
  const std::vector<int> nodes = OfType(99);
  ASSERT_EQ(nodes.size(), 2u);
  EXPECT_EQ(Tags(nodes[0]), (TagList{{"Id", "Nod_1"},
                                     {"libell", "N1"},
                                     {"iName", "99"},
                                     {"iGroup", "99"},
                                     {"Xlog", "1000"},
                                     {"Ylog", "1000"},
                                     {"Xus", "2000"},
                                     {"Yus", "18000"},
                                     {"Zus", "12.5"}}));
  EXPECT_EQ(TagOf(nodes[1], "Id"), "Nod_2");
  EXPECT_EQ(TagOf(nodes[1], "libell"), "REGARD_2");
  EXPECT_EQ(TagOf(nodes[1], "Xlog"), "2000");
  EXPECT_EQ(TagOf(nodes[1], "Ylog"), "2000");
  const auto [cx, cy] = ObjectCentre(surface, nodes[1]);
  EXPECT_EQ(cx, 2000);
  EXPECT_EQ(cy, 2000);
  EXPECT_EQ(LastStatus(), "ok 2 NOD ont été importés.");
  EXPECT_TRUE(ui.Empty());
}

TEST_F(NodeImport, ZeroForZInTheFldWritesNoZus) {
  const std::string table = Table("n.txt", "N1 2000 18000 12.5\n");
  const std::string fld = Table("n.Fld", " 1 \r\n 2 \r\n 3 \r\n 0 \r\n");
  std::vector<int> columns;
  EXPECT_EQ(ReadFldFile(ui, fld, columns), 99);
  EXPECT_EQ(columns, (std::vector<int>{1, 2, 3, 99}));
  EXPECT_EQ(ImportNodes(Target(), table, fld, " "), 1);
  EXPECT_EQ(TagOf(OfType(99)[0], "Zus"), "");
  EXPECT_EQ(TagOf(OfType(99)[0], "Xus"), "2000");
}

TEST_F(NodeImport, ADashLabelGivesTheId) {
  const std::string table = Table("n.txt", "- 2000 18000\n\"\" 2200 18000\n");
  EXPECT_EQ(ImportNodes(Target(), table, Fld("n.Fld", {1, 2, 3, 4}), " "), 2);
  // The Id is taken as the label, then capitalised with the blanks.
  EXPECT_EQ(TagOf(OfType(99)[0], "libell"), "NOD_1");
  EXPECT_EQ(TagOf(OfType(99)[1], "libell"), "NOD_2");
}

TEST_F(NodeImport, NumbersFollowTheHighestInUse) {
  Set(Node(500, 500), {{"Id", "Nod_7"}});
  EXPECT_EQ(ImportNodes(Target(), Table("n.txt", "A 2000 18000\n"), Fld("n.Fld", {1, 2, 3}), " "),
            1);
  EXPECT_EQ(TagOf(OfType(99)[1], "Id"), "Nod_8");
  EXPECT_GE(state.ElementCounters[99], 8);
}

TEST_F(NodeImport, ShortLinesAndWordsReadAsZero) {
  // A short record is padded with empty fields; a word reads as 0.
  EXPECT_EQ(
      ImportNodes(Target(), Table("n.txt", "A\nB abc 18000\n"), Fld("n.Fld", {1, 2, 3, 4}), " "),
      2);
  EXPECT_EQ(TagOf(OfType(99)[0], "Xus"), "0");
  EXPECT_EQ(TagOf(OfType(99)[0], "Yus"), "0");
  EXPECT_EQ(TagOf(OfType(99)[0], "Zus"), "");
  EXPECT_EQ(TagOf(OfType(99)[1], "Xus"), "0");
  EXPECT_EQ(TagOf(OfType(99)[1], "Yus"), "18000");
}

TEST_F(NodeImport, AnOpenQuoteSkipsItsLineAfterItsMessage) {
  EXPECT_EQ(ImportNodes(Target(), Table("n.txt", "\"A 2000 18000\nB 2000 18000\n"),
                        Fld("n.Fld", {1, 2, 3}), " "),
            1);
  ASSERT_EQ(ui.Messages().size(), 1u);
  EXPECT_EQ(ui.Last().text, "Un 2eme guillemet manque pour l'element A 2000 18000");
  EXPECT_EQ(TagOf(OfType(99)[0], "libell"), "B");
}

TEST_F(NodeImport, AMissingTableOrFldIsRefusedAndChangesNothing) {
  const std::string fld = Fld("n.Fld", {1, 2, 3});
  const std::string undo = surface.UndoLabel();
  const std::string missing = folder.File("absent.txt");
  EXPECT_EQ(ImportNodes(Target(), missing, fld, " "), -1);
  EXPECT_EQ(ui.Last().text, "Impossible de lire le fichier " + missing + ".");
  const std::string table = Table("n.txt", "A 1 2\n");
  EXPECT_EQ(ImportNodes(Target(), table, folder.File("absent.Fld"), " "), -1);
  EXPECT_EQ(ui.Last().text,
            "Fichier des colonnes " + folder.File("absent.Fld") + " illisible ou introuvable.");
  const std::string big = Table("big.Fld", " 1 \r\n\r\n 2000000000 \r\n");
  EXPECT_EQ(ImportNodes(Target(), table, big, " "), -1);
  EXPECT_EQ(ui.Last().text,
            "Numéro de colonne 2000000000 trop grand (au plus 999) dans le fichier " + big +
                ", ligne 3.");
  EXPECT_EQ(surface.ObjectCount(kAllObjects), 0);
  EXPECT_EQ(surface.UndoLabel(), undo);
}

TEST_F(NodeImport, TheImportIsOneUndoStep) {
  const std::string undo = surface.UndoLabel();
  EXPECT_EQ(ImportNodes(Target(), Table("n.txt", "A 2000 18000\nB 2200 18000\n"),
                        Fld("n.Fld", {1, 2, 3}), " "),
            2);
  EXPECT_EQ(surface.UndoLabel(), "Annuler : Importer des noeuds");
  EXPECT_TRUE(surface.Undo());
  EXPECT_EQ(surface.ObjectCount(kAllObjects), 0);
  EXPECT_EQ(surface.UndoLabel(), undo);
}

TEST_F(ImportTest, AnUncalibratedDrawingTakesTheExtentOfTheNodes) {
  // The fixture's map is the drawing's own: scale 1.
  const std::string table = Table("n.txt",
                                  "A 600000 2000000\n"
                                  "B 603000 2003000\n"
                                  "C 601500 2001500\n");
  EXPECT_EQ(ImportNodes(Target(), table, Fld("n.Fld", {1, 2, 3}), " "), 3);
  EXPECT_EQ(TagOf(ByLabel(99, "A"), "Xlog"), "3333");
  EXPECT_EQ(TagOf(ByLabel(99, "A"), "Ylog"), "6667");
  EXPECT_EQ(TagOf(ByLabel(99, "B"), "Xlog"), "6667");
  EXPECT_EQ(TagOf(ByLabel(99, "B"), "Ylog"), "3333");
  EXPECT_EQ(TagOf(ByLabel(99, "C"), "Xlog"), "5000");
  EXPECT_EQ(TagOf(ByLabel(99, "C"), "Ylog"), "5000");
  EXPECT_EQ(TagOf(ByLabel(99, "C"), "Xus"), "601500");
  EXPECT_NEAR(LogicToUserX(state.calibration, 6667, 3333), 603000, 1);
  EXPECT_NEAR(LogicToUserY(state.calibration, 6667, 3333), 2003000, 1);
}

TEST_F(ImportTest, ThePassReadsTheFirstFourBlankSeparatedFieldsOnly) {
  // X in column 5: the pass sees no X, all X read 0 there, and the extent is
  // one line: the map stays as it was.
  const std::string table = Table("n.txt", "A x x 2000 600\nB x x 2500 900\n");
  const Calibration before = state.calibration;
  EXPECT_EQ(ImportNodes(Target(), table, Fld("n.Fld", {1, 5, 4}), " "), 2);
  EXPECT_EQ(state.calibration.XMUCOS, before.XMUCOS);
  EXPECT_EQ(TagOf(ByLabel(99, "A"), "Xlog"), "600");
}

// --- The menu command -----------------------------------------------------

TEST_F(ImportTest, NoNetworkRefusesEveryImport) {
  state.NetworkFile = "";
  ImportSession session = Session({1, 2, 3, 4});
  MnuFi_Import_Txt_Nod(session);
  ASSERT_EQ(ui.Messages().size(), 1u);
  EXPECT_EQ(ui.Last().text, "Un reseau d'accueil déjà calé doit être chargé au préalable !");
  EXPECT_EQ(ui.Last().title, "Fusion de fichiet Tolmar");
  EXPECT_EQ(ui.Last().icon, MessageIcon::kInformation);
  MnuFi_Import_Mif_Cac_PO(session);
  EXPECT_EQ(ui.Messages().size(), 2u);
  EXPECT_EQ(ui.Last().title, "Fusion de fichiet Tolmar");
  EXPECT_TRUE(dialogs.empty());
}

TEST_F(ImportTest, CatchmentsAndCollectorsNeedNodes) {
  ImportSession session = Session();
  MnuFi_Import_Txt_BV(session);
  EXPECT_EQ(ui.Last().text,
            "La présence de noeuds est obligatoire.\nVous devez d'abord importer les noeuds.\n"
            "Il s'agit des noeuds du même réseau que les BV");
  EXPECT_EQ(ui.Last().title, "Import de BV");
  for (auto command : {MnuFi_Import_Txt_Cana_CI, MnuFi_Import_Mif_Cac_PF}) {
    ui.Clear();
    command(session);
    ASSERT_EQ(ui.Messages().size(), 1u);
    EXPECT_EQ(ui.Last().text,
              "La présence de noeuds est obligatoire.\nVous devez d'abord importer les noeuds.\n"
              "Il s'agit des noeuds portant les mêmes Identifiants que\n"
              "ceux des collecteurs que vous désirez importer.");
    EXPECT_EQ(ui.Last().title, "Import de canalisations");
  }
  EXPECT_EQ(surface.ObjectCount(kAllObjects), 0);
}

TEST_F(ImportTest, TheNodeCommandAsksAboutTheCalibration) {
  const std::string table = Table("noeuds.txt", "A 100 200\nB 300 400\n");
  ui.Queue(table);
  ui.Queue("2");
  ImportSession session = Session({1, 2, 3, 4});
  MnuFi_Import_Txt_Nod(session);
  ASSERT_EQ(ui.Messages().size(), 2u);
  EXPECT_EQ(ui.Messages()[0].kind, "open");
  EXPECT_EQ(ui.Messages()[0].title, "Charger un fichier texte contenant des noeuds à importer");
  EXPECT_EQ(ui.Messages()[0].text, "*.txt");
  EXPECT_EQ(ui.Messages()[1].kind, "text");
  EXPECT_EQ(ui.Messages()[1].title, "Import des noeuds");
  EXPECT_EQ(ui.Messages()[1].text,
            "L' espace de travail n'est pas calé.\nVous pouvez\n"
            "1: importer un fond de plan puis définir le calage.\n"
            "2: ne pas définir le calage, auquel cas les coordonnées\n"
            "    seront relatives.\n");
  EXPECT_EQ(dialogs, std::vector<std::string>{"Import des noeuds"});
  EXPECT_EQ(ReadBytes(folder.File("noeuds.Fld")), " 1 \r\n 2 \r\n 3 \r\n 4 \r\n");
  EXPECT_EQ(OfType(99).size(), 2u);
  EXPECT_EQ(ui.Statuses().front(), "Importation des NOD en cours...");
  EXPECT_EQ(LastStatus(), "ok 2 NOD ont été importés.");
}

TEST_F(ImportTest, AnyOtherAnswerThanTwoEndsTheNodeImport) {
  const std::string table = Table("noeuds.txt", "A 100 200\n");
  for (const char* answer : {"1", "cancel", "3"}) {
    ui.Queue(table);
    ui.Queue(answer);
    ImportSession session = Session({1, 2, 3});
    MnuFi_Import_Txt_Nod(session);
  }
  ui.Queue(table);  // the default answer is "1"
  ImportSession session = Session({1, 2, 3});
  MnuFi_Import_Txt_Nod(session);
  EXPECT_TRUE(dialogs.empty());
  EXPECT_EQ(surface.ObjectCount(kAllObjects), 0);
}

TEST_F(ImportTest, ACalibrationPointOnTheDrawingSkipsTheQuestion) {
  Symbol("X_CALAGE", 10, 10);
  ui.Queue(Table("noeuds.txt", "A 100 200\n"));
  ImportSession session = Session({1, 2, 3});
  MnuFi_Import_Txt_Nod(session);
  EXPECT_EQ(ui.Messages().size(), 1u);
  EXPECT_EQ(OfType(99).size(), 1u);
}

TEST_F(ImportTest, ACancelledColumnDialogChangesNothing) {
  const std::string table = Table("noeuds.txt", "A 100 200\n");
  ui.Queue(table);
  ui.Queue("2");
  const std::string undo = surface.UndoLabel();
  ImportSession session = Session({1, 2, 3}, true);
  MnuFi_Import_Txt_Nod(session);
  EXPECT_EQ(dialogs.size(), 1u);
  EXPECT_EQ(surface.ObjectCount(kAllObjects), 0);
  EXPECT_FALSE(FileExist(folder.File("noeuds.Fld")));
  EXPECT_EQ(surface.UndoLabel(), undo);
}

TEST_F(ImportTest, TheColumnDialogShowsTheFldBesideTheTable) {
  const std::string table = Table("bv.txt", "B1 100 200 3 40 0.01 0.5\n");
  Table("bv.Fld", " 1 \r\n 2 \r\n 3 \r\n 4 \r\n 0 \r\n 6 \r\n 7 \r\n");
  Node(50, 50);
  ui.Queue(table);
  ImportSession session = Session();
  MnuFi_Import_Txt_BV(session);
  EXPECT_EQ(ui.Messages()[0].title, "Charger un fichier texte contenant les centroïdes des BV");
  EXPECT_EQ(dialogs, std::vector<std::string>{"Import des BV"});
  EXPECT_EQ(shown, (std::vector<std::string>{"1", "2", "3", "4", "99", "6", "7"}));
  const int bv = OfType(1)[0];
  EXPECT_EQ(TagOf(bv, "S"), "3");
  EXPECT_EQ(TagOf(bv, "L"), "50");  // column 99: the default stays
  EXPECT_EQ(TagOf(bv, "m"), "0.01");
  EXPECT_EQ(TagOf(bv, "ci"), "0.5");
  EXPECT_EQ(ui.Statuses().front(), "Importation de BV en cours...");
  EXPECT_EQ(LastStatus(), "ok 1 BV ont été importés.");
}

TEST_F(NodeImport, CatchmentsKeepTheirLabelsUnlessTheyHoldBlanks) {
  Node(50, 50);
  const std::string table = Table("bv.txt",
                                  "bv1 2000 18000 3 40 0.01 0.5\n"
                                  "\"bv deux\" 2000 18000\n"
                                  "- 2000 18000 1\n");
  EXPECT_EQ(ImportBV(Target(), table, Fld("bv.Fld", {1, 2, 3, 4, 5, 6, 7}), " "), 3);
  const std::vector<int> bvs = OfType(1);
  ASSERT_EQ(bvs.size(), 3u);
  EXPECT_EQ(TagOf(bvs[0], "Id"), "BV_1");
  EXPECT_EQ(TagOf(bvs[0], "libell"), "bv1");
  EXPECT_EQ(TagOf(bvs[1], "libell"), "BV_DEUX");
  EXPECT_EQ(TagOf(bvs[2], "libell"), "BV_3");
  EXPECT_EQ(TagOf(bvs[0], "Xus"), "2000");
  EXPECT_EQ(TagOf(bvs[0], "Xlog"), "1000");
  EXPECT_EQ(TagOf(bvs[0], "L"), "40");
  // A short record keeps the defaults of what it lacks.
  EXPECT_EQ(TagOf(bvs[1], "S"), "5");
  EXPECT_EQ(TagOf(bvs[2], "S"), "1");
  EXPECT_EQ(TagOf(bvs[2], "ci"), "0.60");
  EXPECT_EQ(TagOf(bvs[0], "Fpluie"), "1. CR constant (Coeff. de Ruissellement)");
  EXPECT_EQ(BoxOf(bvs[0]).right - BoxOf(bvs[0]).left, 4 * NodeHalfSize(surface, 20));
}

// --- The column dialogs -----------------------------------------------------

TEST_F(ImportTest, TheColumnDialogsHaveTheirRows) {
  FrmParamCI_PF2Import ci(ui, folder.File("c.Fld"));
  EXPECT_EQ(ci.Caption(), "Import des CI ou PF");
  EXPECT_EQ(ci.grid().ColHead(1), "Paramètre");
  EXPECT_EQ(ci.grid().ColHead(2), "Numéro de colonne");
  EXPECT_EQ(ci.grid().MaxRows(), 11);
  EXPECT_EQ(ci.grid().Text(1, 8), "Type de section (CI ou PF)");
  FrmParamPO2Import po(ui, folder.File("c.Fld"));
  EXPECT_EQ(po.Caption(), "Import des PO");
  EXPECT_EQ(po.grid().Text(1, 6), "Id. Section");
  EXPECT_EQ(po.grid().Text(1, 11), "Coef. Strickler du lit majeur");
  FrmParamNod2Import nod(ui, folder.File("c.Fld"));
  EXPECT_EQ(nod.grid().Text(1, 2), "Coord. X ");
  EXPECT_EQ(nod.grid().Text(1, 4), "Coord. Z  (tn)");
  nod.Run("cmdAnnul");
  EXPECT_TRUE(nod.Closed());
  EXPECT_EQ(nod.RowCount(), 0);
}

TEST_F(ImportTest, FrmTmpMidRefusesAPositionOfZero) {
  FrmTmpMid form(ui, folder.File("c.Fld"));
  EXPECT_EQ(form.Caption(), "Table des collecteurs");
  EXPECT_EQ(form.grid().ColHead(1), "Nom de champs");
  EXPECT_EQ(form.grid().ColHead(2), "Position");
  ASSERT_EQ(form.grid().MaxRows(), 8);
  for (int row = 1; row <= 8; ++row) form.grid().SetText(2, row, std::to_string(row));
  form.grid().SetText(2, 7, "0");
  form.Run("cmdOk");
  EXPECT_EQ(ui.Last().text, "Position non valide pour le champs Diamètre du collecteur");
  EXPECT_EQ(form.grid().ActiveRow(), 7);
  EXPECT_EQ(form.grid().ActiveCol(), 2);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(form.RowCount(), 0);
  form.grid().SetText(2, 7, "12");
  form.Run("cmdOk");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(form.RowCount(), 8);
  EXPECT_EQ(ReadBytes(folder.File("c.Fld")),
            " 1 \r\n 2 \r\n 3 \r\n 4 \r\n 5 \r\n 6 \r\n 12 \r\n 8 \r\n");
}

TEST_F(ImportTest, AFldOfWordsAndZerosNamesNoColumn) {
  const std::string fld = Table("w.Fld", "abc\r\n\r\n 0 \r\n3\r\n-2\r\n");
  std::vector<int> columns;
  EXPECT_EQ(ReadFldFile(ui, fld, columns), 99);
  EXPECT_EQ(columns, (std::vector<int>{99, 99, 3, 99}));
  EXPECT_EQ(FldColumn(columns, 5), 99);
  EXPECT_TRUE(ui.Empty());
}

}  // namespace
}  // namespace pluvane
