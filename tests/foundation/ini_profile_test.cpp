#include "foundation/ini_profile.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

// A settings file in Windows-1252 ("è" is the byte E8).
const std::string kIni =
    "; r\xE9glages\r\n"
    "Orphelin=1\r\n"
    "[Param\xE8tres]\r\n"
    "  RepTravail = /data/Eau \r\n"
    "Zoom=2\r\n"
    ";Zoom=3\r\n"
    "\r\n"
    "[ Autres ]\r\n"
    "\tLanceur\t=\twine\r\n"
    "Cit\xE9=\"  Bordeaux \"\r\n"
    "Quote='a'\r\n"
    "Demi=\"abc\r\n"
    "Long=abcdef\r\n"
    "Accents=\xE9\xE8\xE0\xF9\r\n"
    "Vide=\r\n"
    "Zoom=9\r\n"
    "Zoom=10\r\n";

TEST(IniRead, MissingFileSectionOrKeyReadsEmpty) {
  TempFolder dir;
  WriteBytes(dir.File("p.ini"), kIni);
  EXPECT_EQ(IniRead("Autres", "Lanceur", 255, dir.File("absent.ini")), "");
  EXPECT_EQ(IniRead("Absente", "Lanceur", 255, dir.File("p.ini")), "");
  EXPECT_EQ(IniRead("Autres", "Absente", 255, dir.File("p.ini")), "");
  EXPECT_EQ(IniRead("Autres", "", 255, dir.File("p.ini")), "");
}

TEST(IniRead, NamesMatchCaseBlindWithAccents) {
  TempFolder dir;
  WriteBytes(dir.File("p.ini"), kIni);
  EXPECT_EQ(IniRead("PARAMÈTRES", "reptravail", 255, dir.File("p.ini")), "/data/Eau");
  EXPECT_EQ(IniRead("paramètres", "ZOOM", 255, dir.File("p.ini")), "2");
  EXPECT_EQ(IniRead("Parametres", "Zoom", 255, dir.File("p.ini")), "");
  EXPECT_EQ(IniRead("autres", "CITÉ", 255, dir.File("p.ini")), "  Bordeaux ");
}

TEST(IniRead, BlanksAndTabsAroundNamesAndValuesDoNotCount) {
  TempFolder dir;
  WriteBytes(dir.File("p.ini"), kIni);
  EXPECT_EQ(IniRead(" Autres ", " Lanceur ", 255, dir.File("p.ini")), "wine");
  EXPECT_EQ(IniRead("Autres", "Vide", 255, dir.File("p.ini")), "");
}

TEST(IniRead, QuotesAroundTheValueAreRemoved) {
  TempFolder dir;
  WriteBytes(dir.File("p.ini"), kIni);
  EXPECT_EQ(IniRead("Autres", "Quote", 255, dir.File("p.ini")), "a");
  EXPECT_EQ(IniRead("Autres", "Demi", 255, dir.File("p.ini")), "\"abc");
}

TEST(IniRead, ValueCutToTheBuffer) {
  TempFolder dir;
  WriteBytes(dir.File("p.ini"), kIni);
  EXPECT_EQ(IniRead("Autres", "Long", 4, dir.File("p.ini")), "abc");
  EXPECT_EQ(IniRead("Autres", "Long", 1, dir.File("p.ini")), "");
  EXPECT_EQ(IniRead("Autres", "Long", 0, dir.File("p.ini")), "");
  EXPECT_EQ(IniRead("Autres", "Accents", 3, dir.File("p.ini")), "éè");
}

TEST(IniRead, CommentsKeysOutsideSectionsAndDuplicates) {
  TempFolder dir;
  WriteBytes(dir.File("p.ini"), kIni);
  // The commented ";Zoom=3" is no key; a key before any section belongs to none.
  EXPECT_EQ(IniRead("Paramètres", "Zoom", 255, dir.File("p.ini")), "2");
  EXPECT_EQ(IniRead("", "Orphelin", 255, dir.File("p.ini")), "");
  EXPECT_EQ(IniRead("Autres", "Zoom", 255, dir.File("p.ini")), "9");
}

TEST(IniRead, Utf8FileAndLfLineEnds) {
  TempFolder dir;
  WriteBytes(dir.File("u.ini"), "[Paramètres]\nRéseau=Bègles.mtf\n");
  EXPECT_EQ(IniRead("PARAMÈTRES", "RÉSEAU", 255, dir.File("u.ini")), "Bègles.mtf");
}

TEST(IniWrite, CreatesTheFile) {
  TempFolder dir;
  EXPECT_TRUE(IniWrite("Autres", "Lanceur", "wine", dir.File("n.ini")));
  EXPECT_EQ(ReadBytes(dir.File("n.ini")), "[Autres]\r\nLanceur=wine\r\n");
}

TEST(IniWrite, RewritesTheKeyInPlaceAndLeavesOtherLines) {
  TempFolder dir;
  WriteBytes(dir.File("p.ini"), kIni);
  EXPECT_TRUE(IniWrite("PARAMÈTRES", "reptravail", "/home/é", dir.File("p.ini")));
  std::string expected = kIni;
  expected.replace(expected.find("  RepTravail = /data/Eau "), 25, "RepTravail=/home/\xE9");
  EXPECT_EQ(ReadBytes(dir.File("p.ini")), expected);
  EXPECT_EQ(IniRead("Paramètres", "RepTravail", 255, dir.File("p.ini")), "/home/é");
}

TEST(IniWrite, NewKeyGoesAfterTheLastKeyOfItsSection) {
  TempFolder dir;
  WriteBytes(dir.File("p.ini"), kIni);
  EXPECT_TRUE(IniWrite("paramètres", "Nouveau", "5", dir.File("p.ini")));
  std::string expected = kIni;
  expected.insert(expected.find(";Zoom=3"), "Nouveau=5\r\n");
  EXPECT_EQ(ReadBytes(dir.File("p.ini")), expected);
}

TEST(IniWrite, SectionWithoutKeysGetsTheKeyBehindItsHeader) {
  TempFolder dir;
  WriteBytes(dir.File("p.ini"), "[Vide]\r\n; rien\r\n[B]\r\nx=1\r\n");
  EXPECT_TRUE(IniWrite("vide", "k", "v", dir.File("p.ini")));
  EXPECT_EQ(ReadBytes(dir.File("p.ini")), "[Vide]\r\nk=v\r\n; rien\r\n[B]\r\nx=1\r\n");
}

TEST(IniWrite, NewSectionAtTheEnd) {
  TempFolder dir;
  WriteBytes(dir.File("p.ini"), kIni);
  EXPECT_TRUE(IniWrite("Fichiers recents", "Fichier1", "/a/b.mtf", dir.File("p.ini")));
  EXPECT_EQ(ReadBytes(dir.File("p.ini")), kIni + "[Fichiers recents]\r\nFichier1=/a/b.mtf\r\n");
}

TEST(IniWrite, Utf8AndLfFileBecomesWindows1252WithCrLf) {
  TempFolder dir;
  WriteBytes(dir.File("u.ini"), "[Paramètres]\nRéseau=Bègles.mtf\n");
  EXPECT_TRUE(IniWrite("Paramètres", "Zoom", "1", dir.File("u.ini")));
  EXPECT_EQ(ReadBytes(dir.File("u.ini")),
            "[Param\xE8tres]\r\nR\xE9seau=B\xE8gles.mtf\r\nZoom=1\r\n");
}

TEST(IniWrite, LeavesNoTemporaryFileBehind) {
  TempFolder dir;
  WriteBytes(dir.File("p.ini"), kIni);
  EXPECT_TRUE(IniWrite("Autres", "Lanceur", "", dir.File("p.ini")));
  EXPECT_EQ(IniRead("Autres", "Lanceur", 255, dir.File("p.ini")), "");
  int files = 0;
  for ([[maybe_unused]] const auto& entry : fs::directory_iterator(dir.Path())) ++files;
  EXPECT_EQ(files, 1);
}

TEST(IniWrite, RefusesEmptyNamesAndUnwritableFolders) {
  TempFolder dir;
  EXPECT_FALSE(IniWrite("", "k", "v", dir.File("p.ini")));
  EXPECT_FALSE(IniWrite("S", "  ", "v", dir.File("p.ini")));
  EXPECT_FALSE(fs::exists(dir.File("p.ini")));
  EXPECT_FALSE(IniWrite("S", "k", "v", dir.File("absent/p.ini")));
}

TEST(IniWrite, LineBreaksInAValueBecomeBlanks) {
  TempFolder dir;
  EXPECT_TRUE(IniWrite("S", "k", "a\r\nb", dir.File("p.ini")));
  EXPECT_EQ(ReadBytes(dir.File("p.ini")), "[S]\r\nk=a  b\r\n");
}

}  // namespace
}  // namespace pluvane
