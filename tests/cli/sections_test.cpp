// pluvane-cli import-sections and export-sections, started as a user starts
// them: the section library of a network written to a text file, read back
// into another network, with the report on standard output and the messages
// on standard error.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cli/program_folder.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

class SectionsCli : public ::testing::Test {
 protected:
  SectionsCli() {
    ini_before_ = ReadBytes(programs_.App("pluvane.ini"));
    // A network with no object at all.
    WriteBytes(programs_.Work("vide.mtf"),
               "{\"format\":\"pluvane-network\",\"version\":1,"
               "\"page\":{\"logicWidth\":100000,\"logicHeight\":100000},\"objects\":[]}");
  }
  ~SectionsCli() override { EXPECT_EQ(ReadBytes(programs_.App("pluvane.ini")), ini_before_); }

  // Runs pluvane-cli from the work folder, its two streams apart.
  ProgramFolder programs_;
  std::string ini_before_;
};

const char* const kDemoSections =
    "'OV150'\r\n"
    "0 0.25 0.5 0.9 1.2 1.4 1.5\r\n"
    "0 0.6 0.88 1 0.9 0.6 0\r\n"
    "'FOSSE'\r\n"
    "0 0.5 1 1.5\r\n"
    "1 2 3 4\r\n";

TEST_F(SectionsCli, ExportWritesTheLibrary) {
  const SplitRun run = programs_.Cli("export-sections Exemples/Demo.mtf -o sections.sec");
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, programs_.Work("sections.sec") + "\n");
  EXPECT_EQ(run.err, "Export des sections: ok 2 sections ont été exportées.\n");
  EXPECT_EQ(ReadBytes(programs_.Work("sections.sec")), kDemoSections);
}

TEST_F(SectionsCli, AnExportImportedIntoAnEmptyNetworkGivesTheSameSections) {
  ASSERT_EQ(programs_.Cli("export-sections Exemples/Demo.mtf -o sections.sec").status, 0);
  const SplitRun run = programs_.Cli("import-sections vide.mtf sections.sec -o copie.mtf");
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "OV150\t: importé\nFOSSE\t: importé\n\nok 2 sections ont été importées.\n");
  EXPECT_EQ(run.err, "");
  // No report is left beside the file.
  EXPECT_FALSE(fs::exists(programs_.Work("sections.msg")));
  // The network written holds them, and gives the same file again.
  EXPECT_NE(programs_.Cli("info copie.mtf").out.find("101\t2\t"), std::string::npos);
  ASSERT_EQ(programs_.Cli("export-sections copie.mtf -o encore.sec").status, 0);
  EXPECT_EQ(ReadBytes(programs_.Work("encore.sec")), kDemoSections);
  // The network imported into is left as it was.
  EXPECT_EQ(programs_.Cli("export-sections vide.mtf -o rien.sec").err,
            "Export des sections: ok 0 section a été exportée.\n");
}

TEST_F(SectionsCli, NamesAlreadyInTheLibraryAreReported) {
  WriteBytes(programs_.Work("lot.sec"), kDemoSections + std::string("'Nouvelle'\n0 1\n2 2\n"));
  const SplitRun run = programs_.Cli("import-sections Exemples/Demo.mtf lot.sec -o demo2.mtf");
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out,
            "OV150\t: existe déjà dans la BD section\n"
            "FOSSE\t: existe déjà dans la BD section\n"
            "Nouvelle\t: importé\n"
            "\n"
            "ok 3 sections ont été importées.\n");
  EXPECT_NE(programs_.Cli("info demo2.mtf").out.find("101\t3\t"), std::string::npos);
}

TEST_F(SectionsCli, ACurveFileIsReadByItsExtension) {
  WriteBytes(programs_.Work("section.crb"),
             "'Dalot'\r\n     0.000     2.000\r\n     1.000     2.000\r\n");
  const SplitRun run = programs_.Cli("import-sections vide.mtf section.crb -o dalot.mtf");
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "Dalot\t: importé\n\nok 1 section a été importée.\n");
  ASSERT_EQ(programs_.Cli("export-sections dalot.mtf -o dalot.sec").status, 0);
  EXPECT_EQ(ReadBytes(programs_.Work("dalot.sec")), "'Dalot'\r\n0 1\r\n2 2\r\n");
}

TEST_F(SectionsCli, HeightsThatDoNotRiseStopTheImport) {
  WriteBytes(programs_.Work("faux.sec"),
             "'Bon'\n0 1\n1 1\n'Plat'\n0 1 1\n1 1 1\n'Apres'\n0 1\n1 1\n");
  const SplitRun run = programs_.Cli("import-sections vide.mtf faux.sec -o faux.mtf");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out,
            "Bon\t: importé\n\nLes hauteurs de la section Plat doivent être croissante.\n"
            "Revoir la section Plat (3e point)\n");
  // The sections made before the fault are kept, as in the program.
  ASSERT_EQ(programs_.Cli("export-sections faux.mtf -o faux2.sec").status, 0);
  EXPECT_EQ(ReadBytes(programs_.Work("faux2.sec")), "'Bon'\r\n0 1\r\n1 1\r\n");
}

TEST_F(SectionsCli, MalformedFilesNeverBreakTheProgram) {
  WriteBytes(programs_.Work("lettres.sec"), "'A'\nx y z\n\n'B\n");
  SplitRun run = programs_.Cli("import-sections vide.mtf lettres.sec -o a.mtf");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out.substr(run.out.rfind("Revoir")), "Revoir la section A (0e point)\n");
  WriteBytes(programs_.Work("nom.sec"), "pas de nom\n1 2 3\n");
  run = programs_.Cli("import-sections vide.mtf nom.sec -o b.mtf");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "\nok 0 section a été importée.\n");
}

TEST_F(SectionsCli, Refusals) {
  SplitRun run = programs_.Cli("import-sections vide.mtf absent.sec -o x.mtf");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "pluvane-cli: Fichier " + programs_.Work("absent.sec") + " introuvable!\n");
  EXPECT_FALSE(fs::exists(programs_.Work("x.mtf")));
  EXPECT_EQ(programs_.Cli("import-sections absent.mtf absent.sec -o x.mtf").status, 1);
  EXPECT_EQ(programs_.Cli("export-sections absent.mtf -o x.sec").status, 1);
  run = programs_.Cli("export-sections vide.mtf -o dossier/absent/x.sec");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "Export des sections: Impossible d'écrire le fichier " +
                         programs_.Work("dossier/absent/x.sec") + "\n");
  // Bad usage.
  run = programs_.Cli("import-sections vide.mtf lot.sec");
  EXPECT_EQ(run.status, 2);
  EXPECT_NE(run.err.find("import-sections NETWORK.mtf FILE.sec|FILE.crb -o OUT.mtf"),
            std::string::npos);
  EXPECT_EQ(programs_.Cli("import-sections vide.mtf -o x.mtf").status, 2);
  EXPECT_EQ(programs_.Cli("export-sections vide.mtf").status, 2);
  EXPECT_EQ(programs_.Cli("export-sections vide.mtf -o").status, 2);
  EXPECT_EQ(programs_.Cli("export-sections a.mtf b.mtf -o x.sec").status, 2);
}

TEST_F(SectionsCli, TheHelpNamesBoth) {
  const SplitRun run = programs_.Cli("--help");
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.out.find("  export-sections NETWORK.mtf -o FILE.sec\n"), std::string::npos);
  EXPECT_NE(run.out.find("  import-sections NETWORK.mtf FILE.sec|FILE.crb -o OUT.mtf\n"),
            std::string::npos);
}

}  // namespace
}  // namespace pluvane
