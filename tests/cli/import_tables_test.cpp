// pluvane-cli import, started from a work folder with relative paths: a
// network built from text and MapInfo tables, and the refusals.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cli/program_folder.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

class ImportCli : public ::testing::Test {
 protected:
  ImportCli() {
    WriteBytes(programs_.Work("vide.mtf"),
               "{\"format\":\"pluvane-network\",\"version\":1,"
               "\"page\":{\"logicWidth\":100000,\"logicHeight\":100000},\"objects\":[]}");
    fs::create_directories(programs_.Work("tables"));
    Write("tables/noeuds.txt", "R1 1000 5000 12\r\nR2 2000 5000 11\r\nR3 3000 4000 10\r\n");
    Write("tables/noeuds.Fld", " 1 \r\n 2 \r\n 3 \r\n 4 \r\n");
    Write("tables/bv.txt", "B1 900 5200 2.5 120 0.01 0.4\r\n");
    Write("tables/bv.Fld", " 1 \r\n 2 \r\n 3 \r\n 4 \r\n 5 \r\n 6 \r\n 7 \r\n");
    Write("tables/coll.txt",
          "C1 R1 R2 10 9.5 0.6 1000 CI 70 1 2\r\n"
          "F1 R2 R3 9.5 9 Ovoide 1414 PF 65 0 0\r\n"
          "O1 R3 R1 9 8 Trapeze 2236 PO 25 12 15\r\n");
    Write("colonnes.Fld",
          " 1 \r\n 2 \r\n 3 \r\n 4 \r\n 5 \r\n 6 \r\n 7 \r\n 8 \r\n 9 \r\n 10 \r\n 11 \r\n");
  }

  void Write(const std::string& name, const std::string& text) {
    WriteBytes(programs_.Work(name), text);
  }
  ProgramFolder programs_;
};

const char* const kQuestion =
    "Import des noeuds: L' espace de travail n'est pas calé.\nVous pouvez\n"
    "1: importer un fond de plan puis définir le calage.\n"
    "2: ne pas définir le calage, auquel cas les coordonnées\n"
    "    seront relatives.\n\n";

TEST_F(ImportCli, ANetworkFromTextTables) {
  SplitRun run = programs_.Cli("import nodes vide.mtf tables/noeuds.txt -o r1.mtf");
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "ok 3 NOD ont été importés.\n");
  EXPECT_EQ(run.err, kQuestion);
  run = programs_.Cli("import bv r1.mtf tables/bv.txt -o r2.mtf");
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "ok 1 BV ont été importés.\n");
  EXPECT_EQ(run.err, "");
  for (const char* kind : {"ci", "pf", "po"}) {
    run = programs_.Cli(std::string("import ") + kind +
                        " r2.mtf tables/coll.txt --fields colonnes.Fld -o r2.mtf");
    EXPECT_EQ(run.status, 0) << run.err;
  }
  EXPECT_EQ(run.out, "ok 1 PO ont été importés.\n");
  const std::string info = "\n" + programs_.Cli("info r2.mtf").out;
  for (const char* line : {"1\t1\t", "5\t1\t", "6\t1\t", "7\t1\t", "99\t3\t"}) {
    EXPECT_NE(info.find(std::string("\n") + line), std::string::npos) << line << "\n" << info;
  }
  // The network imported into is left as it was.
  EXPECT_EQ(programs_.Cli("info vide.mtf").out.find("99\t"), std::string::npos);
}

TEST_F(ImportCli, ANodeTableOfMapInfo) {
  Write("tables/points.MIF", "Version 300\r\n");
  Write("tables/points.mid", "\"Regard, 1\",1000,5000,12\r\n\"R2\",2000,5000,11\r\n");
  const SplitRun run =
      programs_.Cli("import nodes vide.mtf tables/points.MIF --fields tables/noeuds.Fld -o m.mtf");
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "ok 2 NOD ont été importés.\n");
  EXPECT_EQ(ReadBytes(programs_.Work("tables/points.Txt")),
            "\"Regard, 1\"     1000     5000     12\r\n\"R2\"     2000     5000     11\r\n");
  EXPECT_NE(ReadBytes(programs_.Work("m.mtf")).find("REGARD,_1"), std::string::npos);
}

TEST_F(ImportCli, RefusalsWriteNoNetwork) {
  SplitRun run = programs_.Cli("import bv vide.mtf tables/bv.txt -o x.mtf");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err,
            "Import de BV: La présence de noeuds est obligatoire.\nVous devez d'abord importer les "
            "noeuds.\nIl s'agit des noeuds du même réseau que les BV\n");
  run = programs_.Cli("import ci vide.mtf tables/coll.txt -o x.mtf");
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.err.find("Import de canalisations: La présence de noeuds est obligatoire."),
            std::string::npos);
  run = programs_.Cli("import nodes vide.mtf tables/absent.txt -o x.mtf");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err,
            "pluvane-cli: Fichier " + programs_.Work("tables/absent.txt") + " introuvable.\n");
  Write("tables/seul.txt", "A 1 2\r\n");
  run = programs_.Cli("import nodes vide.mtf tables/seul.txt -o x.mtf");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "pluvane-cli: Fichier des colonnes " + programs_.Work("tables/seul.Fld") +
                         " introuvable.\n");
  Write("tables/seul.Mif", "Version 300\r\n");
  run =
      programs_.Cli("import bv Exemples/Demo.mtf tables/seul.Mif --fields tables/bv.Fld -o x.mtf");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "pluvane-cli: Fichier " + programs_.Work("tables/seul.Mid") +
                         " introuvable : la table MapInfo (.Mid) doit se trouver à côté du "
                         "fichier .Mif.\n");
  Write("tables/gros.Fld", " 1 \r\n 5000 \r\n");
  run = programs_.Cli("import nodes vide.mtf tables/noeuds.txt --fields tables/gros.Fld -o x.mtf");
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(
      run.err.find("Import: Numéro de colonne 5000 trop grand (au plus 999) dans le fichier " +
                   programs_.Work("tables/gros.Fld") + ", ligne 2."),
      std::string::npos)
      << run.err;
  EXPECT_FALSE(fs::exists(programs_.Work("x.mtf")));
}

TEST_F(ImportCli, BadUsage) {
  EXPECT_EQ(programs_.Cli("import noeuds vide.mtf tables/noeuds.txt -o x.mtf").status, 2);
  EXPECT_EQ(programs_.Cli("import nodes vide.mtf tables/noeuds.txt").status, 2);
  EXPECT_EQ(programs_.Cli("import nodes vide.mtf -o x.mtf").status, 2);
  EXPECT_EQ(programs_.Cli("import nodes vide.mtf tables/noeuds.txt --colonnes a -o x.mtf").status,
            2);
  EXPECT_FALSE(fs::exists(programs_.Work("x.mtf")));
}

}  // namespace
}  // namespace pluvane
