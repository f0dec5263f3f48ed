// pluvane-cli import-rain: the external rain import of the rain library,
// without a window.
#include <gtest/gtest.h>

#include "foundation/test_files.h"
#include "program_folder.h"

namespace pluvane {
namespace {

TEST(ImportRainCli, ImportsTheBlocksAndWritesTheNetwork) {
  ProgramFolder folder;
  WriteBytes(folder.Work("pluie.txt"),
             "CAQ       'Orage_A'\r\n      5.90      -.59\r\nPPST 'Autre'\r\n 1 2 3\r\n");
  const ProgramRun run =
      folder.Start("pluvane-cli", "import-rain Exemples/Demo.mtf pluie.txt --key CAQ -o out.mtf");
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_NE(run.output.find("ok une pluie a été importée."), std::string::npos) << run.output;
  const std::string network = ReadBytes(folder.Work("out.mtf"));
  EXPECT_NE(network.find("\"Orage_A\""), std::string::npos);
  EXPECT_EQ(network.find("\"Autre\""), std::string::npos);

  // The same file again: the rain exists, the import is refused and says so,
  // and the network is written as it stands.
  const ProgramRun again =
      folder.Start("pluvane-cli", "import-rain out.mtf pluie.txt --key caq -o out2.mtf");
  EXPECT_EQ(again.status, 1) << again.output;
  EXPECT_NE(again.output.find("Controle de cohérence d'import de pluie: Import d'une pluie "
                              "existante non autorisé: "),
            std::string::npos)
      << again.output;
  EXPECT_EQ(ReadBytes(folder.Work("out2.mtf")).find("\"Orage_A\"") != std::string::npos, true);
}

TEST(ImportRainCli, AFileWithNothingOfTheKeyStillRuns) {
  ProgramFolder folder;
  WriteBytes(folder.Work("pluie.txt"), "PRAD 'R'\na.Crb\nb.Prf\n");
  const ProgramRun run =
      folder.Start("pluvane-cli", "import-rain Exemples/Demo.mtf pluie.txt --key PPHY -o out.mtf");
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_NE(run.output.find("ok 0 pluies ont été importées."), std::string::npos) << run.output;
  EXPECT_FALSE(ReadBytes(folder.Work("out.mtf")).empty());
}

TEST(ImportRainCli, AnEmptyFileIsRefusedAndBadWordsAreUsage) {
  ProgramFolder folder;
  WriteBytes(folder.Work("vide.txt"), "");
  const ProgramRun run =
      folder.Start("pluvane-cli", "import-rain Exemples/Demo.mtf vide.txt --key PR -o out.mtf");
  EXPECT_EQ(run.status, 1) << run.output;
  EXPECT_NE(run.output.find("attention le fichier des pluies est vide."), std::string::npos);
  EXPECT_EQ(folder.Start("pluvane-cli", "import-rain Exemples/Demo.mtf vide.txt --key XX -o o.mtf")
                .status,
            2);
  EXPECT_EQ(folder.Start("pluvane-cli", "import-rain Exemples/Demo.mtf vide.txt --key PR").status,
            2);
}

}  // namespace
}  // namespace pluvane
