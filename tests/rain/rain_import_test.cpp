#include "rain/rain_import.h"

#include <gtest/gtest.h>

#include <fstream>

#include "foundation/paths.h"
#include "foundation/text.h"
#include "rain/rain_text.h"
#include "rain_fixture.h"
#include "simulation/rain_file.h"

namespace pluvane {
namespace {

constexpr const char* kImportTitle = "Controle de cohérence d'import de pluie";

class RainImportTest : public RainTest {
 protected:
  std::string File(const std::string& bytes, const std::string& name = "pluies.plu") {
    const std::string path = folder_.File(name);
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }
  RainImportResult Import(const std::string& key, const std::string& path) {
    return ImportRainFile(surface_, state_, ui_, key, path);
  }
  std::string Generate(const std::string& name) {
    const std::string plu = folder_.File(name);
    EXPECT_EQ(GenFicPlu(surface_, ui_, state_.calibration, "Scn-1", folder_.File("t.Scn"), plu), 1);
    return ReadBytes(plu);
  }
  // Generates the scenario's rain, deletes the rain, imports the file back and
  // generates again: the two files must be the same, byte for byte.
  void RoundTrip(int kind, const std::string& key, const std::string& id) {
    const std::string first = Generate("first.PLU");
    ASSERT_FALSE(first.empty());
    const int record = FindRainRecord(surface_, kind, id);
    ASSERT_GT(record, 10);
    surface_.DeleteObject(record);
    ui_.Clear();
    const RainImportResult result = Import(key, folder_.File("first.PLU"));
    EXPECT_FALSE(result.refused);
    EXPECT_EQ(result.imported, 1);
    EXPECT_TRUE(ui_.Empty()) << ui_.Last().text;
    EXPECT_EQ(ui_.Statuses().back(), "ok une pluie a été importée.");
    EXPECT_GT(FindRainRecord(surface_, kind, id), 10);
    EXPECT_EQ(Generate("second.PLU"), first);
  }
};

TEST_F(RainImportTest, CaquotRoundTrip) {
  AddRecord(104, "CAQ_1");
  surface_.SetObjTag("IdMonta", "Mont1");
  surface_.SetObjTag("Ca", "5.9");
  surface_.SetObjTag("Cb", "-0.59");
  AddScenario("Scn-1", "CAQ_1", 104);
  RoundTrip(104, "CAQ", "CAQ_1");
  const int n = FindRainRecord(surface_, 104, "CAQ_1");
  EXPECT_EQ(Tag(n, "UsId"), "CAQ_1");
  EXPECT_EQ(Tag(n, "Ca"), "5.9");
  EXPECT_EQ(Tag(n, "IdMonta"), "");
  EXPECT_EQ(Tag(n, "Design"), "");
  EXPECT_EQ(Tag(n, "Pret"), "");
  EXPECT_EQ(Count(102), 0);
}

TEST_F(RainImportTest, SimpleTriangleRoundTrip) {
  AddRadius(20000, 60000, 30000, 70000);
  AddRecord(105, "PST_1");
  surface_.SetObjTag("Ca", "5.9");
  surface_.SetObjTag("Cb", "-0.59");
  surface_.SetObjTag("Duree", "240");
  surface_.SetObjTag("Timax", "60.5");
  AddScenario("Scn-1", "PST_1", 105);
  RoundTrip(105, "PPST", "PST_1");
  EXPECT_EQ(Tag(FindRainRecord(surface_, 105, "PST_1"), "Timax"), "60.5");
}

TEST_F(RainImportTest, DoubleTriangleRoundTrip) {
  AddRecord(106, "PDT_1");
  for (const auto& [tag, value] :
       std::vector<std::pair<const char*, const char*>>{{"CaTot", "5.9"},
                                                        {"CbTot", "-0.59"},
                                                        {"CaInt", "6.7"},
                                                        {"CbInt", "-0.55"},
                                                        {"DureeTot", "240"},
                                                        {"DureeInt", "30"},
                                                        {"Timax", "120"}}) {
    surface_.SetObjTag(tag, value);
  }
  AddScenario("Scn-1", "PDT_1", 106);
  RoundTrip(106, "PPDT", "PDT_1");
  const int n = FindRainRecord(surface_, 106, "PDT_1");
  EXPECT_EQ(Tag(n, "CbInt"), "-0.55");
  EXPECT_EQ(Tag(n, "IdTot"), "");
  EXPECT_EQ(Tag(n, "IdInt"), "");
}

TEST_F(RainImportTest, SyntheticRoundTrip) {
  AddRecord(107, "PIT_1");
  surface_.SetObjTag("NbPt", "3");
  surface_.SetObjTag("X1", "0");
  surface_.SetObjTag("Y1", "0");
  surface_.SetObjTag("X2", "15");
  surface_.SetObjTag("Y2", "72.5");
  surface_.SetObjTag("X3", "60");
  surface_.SetObjTag("Y3", "0");
  AddScenario("Scn-1", "PIT_1", 107);
  RoundTrip(107, "PPHY", "PIT_1");
  EXPECT_EQ(Tag(FindRainRecord(surface_, 107, "PIT_1"), "NbPt"), "3");
}

TEST_F(RainImportTest, GaugeRecordsRoundTripWithStatesZero) {
  AddGauge(10000, 20000, 10100, 20100);
  AddGauge(40000, 50000, 40200, 50200);
  AddRecord(103, "Pluie1");
  surface_.SetObjTag("iModePluie", "2. Distance pondérée");
  surface_.SetObjTag("NbPt", "4");
  surface_.SetObjTag("Pt1", "Etat pluvio ->\t1\t1");
  surface_.SetObjTag("Pt2", "0\t0\t0");
  surface_.SetObjTag("Pt3", "10\t2.5\t1.2");
  surface_.SetObjTag("Pt4", "20\t7.75");
  AddScenario("Scn-1", "Pluie1", 103, "2. Distance pondérée");
  RoundTrip(103, "PR", "Pluie1");
  const int n = FindRainRecord(surface_, 103, "Pluie1");
  EXPECT_EQ(Tag(n, "Pt1"), "Etat pluvio ->\t0\t0");
  EXPECT_EQ(Tag(n, "NbPt"), "4");
  EXPECT_EQ(Tag(n, "Pt3"), "10.00\t2.50\t1.20");
  EXPECT_EQ(Tag(n, "Pt4"), "20.00\t7.75\t0.00");
  EXPECT_EQ(Tag(n, "iMode"), "1");
  EXPECT_EQ(Tag(n, "iModePluie"), "2. Distance pondérée");
}

TEST_F(RainImportTest, ASecondNameThatExistsImportsNothing) {
  AddRecord(104, "CAQ_2");
  const std::string path =
      File("CAQ       'CAQ_1'\r\n      5.90      -.59\r\nCAQ       'caq_2'\r\n  6  -0.5\r\n");
  const RainImportResult result = Import("CAQ", path);
  EXPECT_TRUE(result.refused);
  EXPECT_EQ(result.imported, 0);
  ExpectLastMessage(ui_,
                    "Import d'une pluie existante non autorisé: \r\n\r\nla pluie 'caq_2' existe "
                    "déjà dans la base de données \r\nVous devez supprimer ou renommer cette "
                    "pluie dans\r\nla base Kld ou dans le fichier pluie.",
                    kImportTitle, MessageIcon::kExclamation);
  EXPECT_EQ(FindRainRecord(surface_, 104, "CAQ_1"), 0);
  EXPECT_EQ(Count(104), 1);
}

TEST_F(RainImportTest, AGaugeLineWithoutStateCountsAsZero) {
  AddGauge(10000, 20000, 10100, 20100);
  AddGauge(40000, 50000, 40200, 50200);
  const std::string path = File(
      "pr 'Orage'\n 2 0\n'Plu_1'\n 100 200\n 2\n 0 0\n 5 1.5\n\n'Plu_2' 1\n 300 400\n 2\n 0 0\n"
      " 5 2\n");
  EXPECT_EQ(Import("PR", path).imported, 1);
  const int n = FindRainRecord(surface_, 103, "Orage");
  ASSERT_GT(n, 10);
  EXPECT_EQ(Tag(n, "Pt1"), "Etat pluvio ->\t0\t1");
  EXPECT_EQ(Tag(n, "Pt3"), "5\t1.5\t2");
  EXPECT_EQ(Tag(n, "iModePluie"), "1. Thiessen");
  EXPECT_EQ(Tag(n, "UsId"), "Orage");
}

TEST_F(RainImportTest, AGaugeStateAboveOneLeavesTheBlock) {
  AddGauge(10000, 20000, 10100, 20100);
  const std::string path = File(
      "PR 'Orage'\n 1 0\n'Plu_1' 2\n 100 200\n 1\n 0 0\n"
      "PR 'Averse'\n 1 0\n'Plu_1' 0\n 100 200\n 1\n 0 0\n");
  const RainImportResult result = Import("PR", path);
  EXPECT_FALSE(result.refused);
  EXPECT_EQ(result.imported, 1);
  ExpectLastMessage(ui_, "Format de fichier incorrect pour\r- Pluviomètre Plu_1\r- Evenement Orage",
                    "Import de données issues des pluviomètres", MessageIcon::kExclamation);
  EXPECT_EQ(FindRainRecord(surface_, 103, "Orage"), 0);
  EXPECT_GT(FindRainRecord(surface_, 103, "Averse"), 10);
}

TEST_F(RainImportTest, AGaugeMissingFromTheNetworkLeavesTheBlock) {
  AddGauge(10000, 20000, 10100, 20100);
  const std::string path = File("PR 'Orage'\n 1 0\n'Inconnu'\n 100 200\n 1\n 0 0\n");
  EXPECT_EQ(Import("PR", path).imported, 0);
  ExpectLastMessage(ui_,
                    "Le pluviomètre Inconnu spécifié dans le fichier\r\ndoit exister dans le "
                    "réseau\r\nVous devez créer ce pluviomètre avant d'importer ses "
                    "enregistrements",
                    "Controle d'existence de pluviomètre", MessageIcon::kExclamation);
  EXPECT_EQ(Count(103), 0);
}

TEST_F(RainImportTest, AnotherKeysBlocksImportNothingWithoutError) {
  const std::string path = File("CAQ 'CAQ_1'\n 5.9 -0.59\nPRAD 'R'\na.Crb\nb.Prf\n");
  const RainImportResult result = Import("PPST", path);
  EXPECT_FALSE(result.refused);
  EXPECT_EQ(result.imported, 0);
  EXPECT_TRUE(ui_.Empty());
  EXPECT_EQ(ui_.Statuses().back(), "ok 0 pluies ont été importées.");
  EXPECT_EQ(Count(104), 0);
}

TEST_F(RainImportTest, AnEmptyOrMissingFileIsRefused) {
  EXPECT_TRUE(Import("CAQ", File("")).refused);
  ExpectLastMessage(ui_, "attention le fichier des pluies est vide.", kImportTitle,
                    MessageIcon::kExclamation);
  EXPECT_TRUE(Import("CAQ", File("\r\n  \r\n", "blancs.plu")).refused);
  ExpectLastMessage(ui_, "attention le fichier des pluies est vide.", kImportTitle,
                    MessageIcon::kExclamation);
  const std::string missing = folder_.File("absent.plu");
  EXPECT_TRUE(Import("CAQ", missing).refused);
  ExpectLastMessage(ui_, "fichier introuvable:\r" + missing, kImportTitle,
                    MessageIcon::kExclamation);
}

TEST_F(RainImportTest, FaultyBlocksAreLeftWithAClearMessage) {
  const std::string path = File(
      "PPHY 'Court'\n 0 0 9999999.0\n 5\n 0 0\n 10 50\n"
      "PPHY 'Texte'\n 0 0 9999999.0\n 2\n 0 abc\n 10 50\n"
      "PPHY 'Bon'\n 0 0 9999999.0\n 2\n 0 0\n 10 50\n"
      "PPHY 'Tronque'\n 0 0\n");
  const RainImportResult result = Import("PPHY", path);
  EXPECT_EQ(result.imported, 1);
  ASSERT_EQ(ui_.Messages().size(), 3u);
  EXPECT_EQ(ui_.Messages()[0].text, "Format de fichier incorrect pour\r- Pluie Court\r- Ligne 1");
  EXPECT_EQ(ui_.Messages()[0].title, kImportTitle);
  EXPECT_EQ(ui_.Messages()[1].text, "Format de fichier incorrect pour\r- Pluie Texte\r- Ligne 6");
  EXPECT_EQ(ui_.Messages()[2].text,
            "Format de fichier incorrect pour\r- Pluie Tronque\r- Ligne 16");
  EXPECT_GT(FindRainRecord(surface_, 107, "Bon"), 10);
  EXPECT_EQ(Count(107), 1);
  EXPECT_EQ(ui_.Statuses().back(), "ok une pluie a été importée.");
}

TEST_F(RainImportTest, AccentsOfEitherCodeAndEitherLineEndAreRead) {
  // Windows-1252 with CR LF, then UTF-8 with LF.
  EXPECT_EQ(Import("CAQ", File("CAQ 'Pluie_\xE9t\xE9'\r\n 5.9 -0.59\r\n", "a.plu")).imported, 1);
  EXPECT_EQ(Import("CAQ", File("CAQ 'Averse_\xC3\xA0'\n 6 -0.5\n", "b.plu")).imported, 1);
  EXPECT_GT(FindRainRecord(surface_, 104, "Pluie_été"), 10);
  EXPECT_GT(FindRainRecord(surface_, 104, "Averse_à"), 10);
  EXPECT_EQ(ui_.Statuses().back(), "ok une pluie a été importée.");
}

TEST_F(RainImportTest, RadarPathsKeepTheirBlanks) {
  const std::string path = File("PRAD    'Juin'\n  /data/radar juin/s.Crb \n/data/m m.Prf\n");
  EXPECT_EQ(Import("prad", path).imported, 1);
  const int n = FindRainRecord(surface_, 108, "Juin");
  EXPECT_EQ(Tag(n, "CrbFile"), "/data/radar juin/s.Crb");
  EXPECT_EQ(Tag(n, "PrfFile"), "/data/m m.Prf");
}

TEST_F(RainImportTest, TwoBlocksOfOneNameInTheFileAreRefused) {
  const std::string path = File("CAQ 'A'\n 1 2\nCAQ 'a'\n 3 4\n");
  EXPECT_TRUE(Import("CAQ", path).refused);
  EXPECT_EQ(ui_.Last().title, kImportTitle);
  EXPECT_EQ(Count(104), 0);
}

TEST(RainTextTest, BlocksAreCutAtTheirHeads) {
  ScriptedUi ui;
  const std::vector<std::string> lines = {"avant", "CAQ 'A'", "", " 1 2 ", "ppst  'B C'", "x"};
  const std::vector<RainTextBlock> blocks = ReadRainBlocks(ui, lines);
  ASSERT_EQ(blocks.size(), 2u);
  EXPECT_EQ(blocks[0].keyword, "CAQ");
  EXPECT_EQ(blocks[0].name, "A");
  EXPECT_EQ(blocks[0].head_line, 2);
  EXPECT_EQ(blocks[0].lines, std::vector<std::string>{"1 2"});
  EXPECT_EQ(blocks[1].keyword, "PPST");
  EXPECT_EQ(blocks[1].name, "B C");
  EXPECT_EQ(blocks[1].lines, std::vector<std::string>{"x"});
}

}  // namespace
}  // namespace pluvane

namespace pluvane {
namespace {

// Damaged copies of a good file (bytes dropped, swapped, changed) never stop
// the reader: every key reads them, and a refused import adds nothing.
TEST_F(RainImportTest, DamagedFilesNeverBreakTheReader) {
  AddGauge(10000, 20000, 10100, 20100);
  const std::string good =
      "PR     'Pluie1'\r\n    1    1\r\n   'Plu_1' 0\r\n    10050.    79950.\r\n    2\r\n"
      "      0.00      0.00\r\n     10.00      2.50\r\n\r\nCAQ       'C'\r\n  5.9 -.59\r\n"
      "PPST 'S'\r\n 1 2 3\r\n 4 5\r\n 6 7\r\nPPDT 'D'\r\n 1 2 3\r\n 4 5\r\n 6 7\r\n 8 9 10\r\n"
      "PPHY 'H'\r\n 1 2 3\r\n 2\r\n 0 0\r\n 5 \"6\r\nPRAD 'R'\r\n a\r\n b\r\n";
  std::uint32_t seed = 12345;
  auto next = [&seed] { return seed = seed * 1664525u + 1013904223u; };
  const std::string noise = " '\"\r\n\t0123456789.-+ePRCAQ\xE9\xC3";
  for (int round = 0; round < 300; ++round) {
    std::string bytes = good;
    const int edits = 1 + static_cast<int>(next() % 6);
    for (int e = 0; e < edits && !bytes.empty(); ++e) {
      const std::size_t at = next() % bytes.size();
      switch (next() % 3) {
        case 0:
          bytes.erase(at, 1 + next() % 8);
          break;
        case 1:
          bytes.insert(at, 1, noise[next() % noise.size()]);
          break;
        default:
          bytes[at] = noise[next() % noise.size()];
          break;
      }
    }
    const std::string path = File(bytes, "damaged.plu");
    for (const char* key : {"PR", "CAQ", "PPST", "PPDT", "PPHY", "PRAD"}) {
      const int kind = ImportedKind(key);
      const int before = Count(kind);
      const RainImportResult result = Import(key, path);
      EXPECT_EQ(Count(kind) - before, result.imported);
      if (result.refused) {
        EXPECT_EQ(result.imported, 0);
      }
      // Empty the kind again for the next round.
      for (int n : RecordsOfKind(surface_, kind)) surface_.DeleteObject(n);
    }
  }
}

}  // namespace
}  // namespace pluvane

namespace pluvane {
namespace {

TEST(RainTextTest, TabsSeparateFieldsAndAQuoteInANumberIsAFault) {
  ScriptedUi ui;
  const std::vector<RainTextBlock> blocks =
      ReadRainBlocks(ui, {"CAQ\t'A'", "5.9\t-0.59", "CAQ 'B'", "\"6 1"});
  ASSERT_EQ(blocks.size(), 2u);
  DecodedRain rain;
  RainBlockFault fault;
  ASSERT_TRUE(DecodeRainBlock(ui, blocks[0], rain, fault));
  EXPECT_EQ(rain.tags[2], (std::pair<std::string, std::string>{"Ca", "5.9"}));
  EXPECT_EQ(rain.tags[3], (std::pair<std::string, std::string>{"Cb", "-0.59"}));
  EXPECT_FALSE(DecodeRainBlock(ui, blocks[1], rain, fault));
  EXPECT_EQ(fault.kind, RainBlockFault::kFormat);
  EXPECT_TRUE(ui.Empty());
}

}  // namespace
}  // namespace pluvane
