// The collector import and the MapInfo tables.
#include <gtest/gtest.h>

#include "exchange/import_fixture.h"

namespace pluvane {
namespace {

class LinkImport : public ImportTest {
 protected:
  LinkImport() {
    a = Node(1000, 1000);
    b = Node(3000, 1000);
    c = Node(5000, 1000);
    Set(a, {{"libell", "R1"}});
    Set(b, {{"libell", "R2"}});
    Set(c, {{"libell", "R3"}});
  }
  std::string AllColumns() { return Fld("c.Fld", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}); }
  int a = 0, b = 0, c = 0;
};

TEST_F(LinkImport, CircularCollectorsJoinTheNodesTheyName) {
  const std::string table = Table("c.txt", "C1 r1 R2 10.5 10.2 0.8 120 CI 70 1.5 20\n");
  EXPECT_EQ(ImportLinks(Target(), "CI", table, AllColumns(), " "), 1);
  const std::vector<int> links = OfType(5);
  ASSERT_EQ(links.size(), 1u);
  surface.SetCurrentObject(links[0]);
  EXPECT_EQ(surface.LinkEndObject(0), a);
  EXPECT_EQ(surface.LinkEndObject(1), b);
  EXPECT_EQ(surface.LineColor(), 16711680);
  EXPECT_EQ(Tags(links[0]), (TagList{{"Id", "CI_1"},
                                     {"libell", "C1"},
                                     {"iName", "5"},
                                     {"iGroup", "2"},
                                     {"iBief", "0"},
                                     {"Dn", "0.8"},
                                     {"K", "70"},
                                     {"HD", "1.5"},
                                     {"SR", "20"},
                                     {"sNodAm", "Nod_1"},
                                     {"sNodAv", "Nod_2"},
                                     {"ZRam", "10.5"},
                                     {"ZRav", "10.2"},
                                     {"L", "120"}}));
  EXPECT_EQ(LastStatus(), "ok 1 CI ont été importés.");
}

TEST_F(LinkImport, ClosedAndOpenCollectorsTakeTheirSections) {
  const std::string table = Table("c.txt",
                                  "F1 R1 R2 10 9 \"Ovoide T180\" 100 PF 65 2 3\n"
                                  "O1 R2 R3 9 8 Trapeze 200 PO 25 12.5 15\n");
  EXPECT_EQ(ImportLinks(Target(), "PF", table, AllColumns(), " "), 1);
  EXPECT_EQ(ImportLinks(Target(), "PO", table, AllColumns(), " "), 1);
  const int pf = OfType(6)[0], po = OfType(7)[0];
  EXPECT_EQ(TagOf(pf, "Id"), "PF_1");
  EXPECT_EQ(TagOf(pf, "IdSect"), "Ovoide T180");
  EXPECT_EQ(TagOf(pf, "K"), "65");
  EXPECT_EQ(TagOf(pf, "HD"), "2");
  EXPECT_EQ(TagOf(pf, "SR"), "3");
  EXPECT_EQ(TagOf(po, "Id"), "PO_1");
  EXPECT_EQ(TagOf(po, "IdSect"), "Trapeze");
  EXPECT_EQ(TagOf(po, "Kmin"), "25");
  EXPECT_EQ(TagOf(po, "Largeur"), "12.5");
  EXPECT_EQ(TagOf(po, "Kmaj"), "15");
  EXPECT_EQ(TagOf(po, "L"), "200");
  surface.SetCurrentObject(pf);
  EXPECT_EQ(surface.LineColor(), 255);
  surface.SetCurrentObject(po);
  EXPECT_EQ(surface.LineColor(), 16776960);
}

TEST_F(LinkImport, ALineWithTheSameNodeAtBothEndsIsSkippedButCounted) {
  const std::string table = Table("c.txt",
                                  "C1 R1 R1 10 9 0.5 100 CI 70 0 0\n"
                                  "C2 R1 R2 10 9 0.5 100 CI 70 0 0\n");
  EXPECT_EQ(ImportLinks(Target(), "CI", table, AllColumns(), " "), 2);
  ASSERT_EQ(OfType(5).size(), 1u);
  EXPECT_EQ(TagOf(OfType(5)[0], "libell"), "C2");
  EXPECT_EQ(LastStatus(), "ok 2 CI ont été importés.");
}

TEST_F(LinkImport, ATypeColumnOfAnotherKindSkipsTheLine) {
  const std::string table = Table("c.txt",
                                  "C1 R1 R2 10 9 0.5 100 PF 70 0 0\n"
                                  "C2 R2 R3 10 9 0.5 100 ci 70 0 0\n"
                                  "C3 R1 R3 10 9 0.5 100 \"\" 70 0 0\n");
  EXPECT_EQ(ImportLinks(Target(), "CI", table, AllColumns(), " "), 2);
  const std::vector<int> links = OfType(5);
  ASSERT_EQ(links.size(), 2u);
  EXPECT_EQ(TagOf(links[0], "libell"), "C2");
  EXPECT_EQ(TagOf(links[1], "libell"), "C3");
  EXPECT_TRUE(OfType(6).empty());
}

TEST_F(LinkImport, NodesThatTheNetworkLacksSkipTheirLines) {
  const std::string table = Table("c.txt",
                                  "C1 R1 R9 10 9 0.5 100 CI\n"
                                  "C2 R9 R1 10 9 0.5 100 CI\n"
                                  "C3 \"\" R1 10 9 0.5 100 CI\n"
                                  "C4 R1\n"
                                  "\"C5 R1 R2\n"
                                  "- R2 R3 x y z\n");
  EXPECT_EQ(ImportLinks(Target(), "CI", table, AllColumns(), " "), 5);
  const std::vector<int> links = OfType(5);
  ASSERT_EQ(links.size(), 1u);
  // The label "-" is kept as it stands; words read as 0.
  EXPECT_EQ(TagOf(links[0], "libell"), "-");
  EXPECT_EQ(TagOf(links[0], "Id"), "CI_5");
  EXPECT_EQ(TagOf(links[0], "ZRam"), "0");
  EXPECT_EQ(TagOf(links[0], "Dn"), "0");
  EXPECT_EQ(ui.Texts(),
            std::vector<std::string>{"Un 2eme guillemet manque pour l'element C5 R1 R2"});
}

TEST_F(LinkImport, AnEmptyLabelTakesTheTypeAndTheNumber) {
  Set(Link("X_CAC", a, c), {{"Id", "CI_4"}});
  const std::string table = Table("c.txt", "\"\" R1 R2 10 9 0.5 100 CI\n");
  EXPECT_EQ(ImportLinks(Target(), "CI", table, AllColumns(), " "), 1);
  EXPECT_EQ(TagOf(OfType(5)[1], "Id"), "CI_5");
  EXPECT_EQ(TagOf(OfType(5)[1], "libell"), "CI_5");
}

TEST_F(LinkImport, TheMifCommandReadsTheMidBesideAndCapitalisesItsLines) {
  Table("reseau.mif", "Version 300\n");
  Table("reseau.MID",
        "\"c 1\",\"r1\",\"R2\",10,9,0.4,50,\"CI\",70,0,0\n"
        "\"c,2\",\"R2\",\"R3\",10,9,0.4,50,\"CI\",70,0,0\n");
  ui.Queue(folder.File("reseau.mif"));
  ImportSession session = Session({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
  MnuFi_Import_Mif_Cac_CI(session);
  EXPECT_EQ(ui.Messages()[0].title,
            "Charger un fichier Mif des canalisations reliant les noeuds venant d'être importés");
  EXPECT_EQ(ui.Messages()[0].text, "*.mif");
  EXPECT_EQ(dialogs, std::vector<std::string>{"Import des CI ou PF"});
  EXPECT_TRUE(FileExist(folder.File("reseau.Fld")));
  const std::vector<int> links = OfType(5);
  // Quotes become blanks before the split: the comma of "c,2" cuts its field,
  // the columns of that line shift and its type column reads "50".
  ASSERT_EQ(links.size(), 1u);
  EXPECT_EQ(TagOf(links[0], "libell"), "C_1");
  EXPECT_EQ(TagOf(links[0], "sNodAm"), "Nod_1");
  EXPECT_EQ(LastStatus(), "ok 1 CI ont été importés.");
  EXPECT_EQ(ui.Statuses().front(), "Importation des CI");
}

TEST_F(LinkImport, AMifWithoutItsMidIsRefused) {
  Table("seul.mif", "Version 300\n");
  ui.Queue(folder.File("seul.mif"));
  ImportSession session = Session({1, 2, 3});
  MnuFi_Import_Mif_Cac_PO(session);
  EXPECT_EQ(ui.Last().text, "Fichier " + folder.File("seul.MID") +
                                " introuvable : la table MapInfo (.Mid) doit se trouver à côté du "
                                "fichier .Mif.");
  EXPECT_TRUE(dialogs.empty());
  EXPECT_TRUE(OfType(7).empty());
}

TEST_F(ImportTest, AQuotedFieldOfAMidKeepsItsCommas) {
  Table("noeuds.Mif", "Version 300\n");
  Table("noeuds.mid", "\"Regard, nord\",2000,8000,5\n\"R2\",3000 , 7000\n");
  ui.Queue(folder.File("noeuds.Mif"));
  ui.Queue("2");
  ImportSession session = Session({1, 2, 3, 4});
  MnuFi_Import_Mif_Nod(session);
  EXPECT_EQ(ui.Messages()[0].title,
            "Charger un fichier Mapinfo Mif contenant des sympboles (points, noeuds, ...)");
  EXPECT_EQ(ui.Messages()[1].title, "Import des noeuds");
  const std::vector<int> nodes = OfType(99);
  ASSERT_EQ(nodes.size(), 2u);
  EXPECT_EQ(TagOf(nodes[0], "libell"), "REGARD,_NORD");
  EXPECT_EQ(TagOf(nodes[0], "Xus"), "2000");
  EXPECT_EQ(TagOf(nodes[0], "Yus"), "8000");
  EXPECT_EQ(TagOf(nodes[0], "Zus"), "5");
  EXPECT_EQ(TagOf(nodes[1], "libell"), "R2");
  EXPECT_EQ(TagOf(nodes[1], "Xus"), "3000");
  EXPECT_EQ(TagOf(nodes[1], "Zus"), "");
  // The pass cuts the .Mid by blanks and finds no extent: the map stays X = Xlog.
  EXPECT_EQ(TagOf(nodes[0], "Xlog"), "2000");
  EXPECT_EQ(TagOf(nodes[0], "Ylog"), "2000");
  // The text twin beside it, and the columns kept under the table's name.
  EXPECT_EQ(ReadBytes(folder.File("noeuds.Txt")),
            "\"Regard, nord\"     2000     8000     5\r\n\"R2\"     3000     7000\r\n");
  EXPECT_TRUE(FileExist(folder.File("noeuds.Fld")));
}

TEST_F(ImportTest, TheTextTwinOfAMid) {
  const std::string mid = Table("t.Mid",
                                "\" a \",2,3,4,5, six 6 ,7,8,9,10,\"onze, 11\",12,13,14,15,16,17\n"
                                "\n"
                                "x\n");
  EXPECT_EQ(imp_GenNod_MidFile2TxtFile(ui, mid, folder.File("t.Txt")), 2);
  EXPECT_EQ(ReadBytes(folder.File("t.Txt")),
            "\"a\"     2     3     4     5     \"SIX_6\"     7     8     9     10     "
            "\"ONZE,_11\"     12     13     14     15\r\n"
            "\"x\"\r\n");
  EXPECT_TRUE(ui.Empty());
}

TEST_F(ImportTest, AMissingMidStopsTheNodeImportWithItsReport) {
  Table("seul.mif", "Version 300\n");
  ui.Queue(folder.File("seul.mif"));
  ImportSession session = Session({1, 2, 3});
  MnuFi_Import_Mif_Nod(session);
  ASSERT_EQ(ui.Messages().size(), 2u);
  EXPECT_EQ(ui.Last().text, "Fichier introuvable\rerreur dans imp_GenNod_MidFile2TxtFile");
  EXPECT_EQ(ui.Last().title, "Pluvane (erreur n°53, L0)");
  EXPECT_TRUE(dialogs.empty());
  EXPECT_EQ(surface.ObjectCount(kAllObjects), 0);
}

}  // namespace
}  // namespace pluvane

namespace pluvane {
namespace {

TEST_F(ImportTest, AHundredThousandLines) {
  std::string nodes, links;
  for (int i = 1; i <= 100000; ++i) {
    nodes += "N" + std::to_string(i) + " " + std::to_string(i % 9000 + 500) + " " +
             std::to_string(i / 9000 * 100 + 500) + "\r\n";
    // Every tenth collector names a node the network lacks.
    const int to = i % 10 == 0 ? 200000 : i + 1;
    links += "C" + std::to_string(i) + " N" + std::to_string(i) + " N" + std::to_string(to) +
             " 1 0.5 0.3 10 CI\r\n";
  }
  const std::string node_table = Table("n.txt", nodes);
  EXPECT_EQ(ImportNodes(Target(), node_table, Fld("n.Fld", {1, 2, 3}), " "), 100000);
  EXPECT_EQ(LastStatus(), "ok 100000 NOD ont été importés.");
  EXPECT_EQ(ImportLinks(Target(), "CI", Table("c.txt", links),
                        Fld("c.Fld", {1, 2, 3, 4, 5, 6, 7, 8}), " "),
            100000);
  EXPECT_EQ(OfType(5).size(), 90000u);
  EXPECT_GE(ui.PumpCount(), 100000 / 30);
  EXPECT_EQ(ui.Progress().back(), -1);
}

}  // namespace
}  // namespace pluvane
