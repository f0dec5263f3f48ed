#include "network/catalogue.h"

#include <gtest/gtest.h>

#include <string>

#include "foundation/paths.h"
#include "drawing/symbol_file.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

TEST(CatalogueTest, KeyToIName) {
  const std::pair<const char*, int> rows[] = {
      {"X_BV", 1},      {"X_BVS", 21},  {"X_ROUT", 2},   {"X_HYBV", 3}, {"X_HY", 4},
      {"X_CAC", 5},     {"X_CAF", 6},   {"X_CAO", 7},    {"X_DQQ", 8},  {"X_DQZ", 9},
      {"X_RS", 10},     {"X_RSP", 11},  {"X_PLU", 12},   {"X_TR", 13},  {"X_CLAV", 14},
      {"X_CALAGE", 15}, {"X_MARK", 16}, {"X_RAYON", 17}, {"X_NOD", 99}, {"X_BIEF", 100}};
  for (const auto& [key, i_name] : rows) EXPECT_EQ(INameOfKey(key), i_name) << key;
  EXPECT_EQ(INameOfKey("x_cac"), 5);  // keys are compared in capitals
  EXPECT_EQ(INameOfKey("X_NOPE"), 0);
  EXPECT_EQ(INameOfKey(""), 0);
  EXPECT_EQ(INameOfKey("MDMOVE"), 0);
}

TEST(CatalogueTest, KeyToNextCreationPair) {
  struct Row {
    const char* key;
    int group;
    int name;
  };
  const Row rows[] = {
      {"X_BV", 1, 1},    {"X_BVS", 1, 21},  {"X_ROUT", 2, 2},    {"X_HYBV", 1, 3},
      {"X_HY", 1, 4},    {"X_CAC", 2, 5},   {"X_CAF", 2, 6},     {"X_CAO", 2, 7},
      {"X_DQQ", 3, 8},   {"X_DQZ", 3, 9},   {"X_RS", 3, 10},     {"X_RSP", 3, 11},
      {"X_PLU", 1, 12},  {"X_TR", 2, 13},   {"X_CLAV", 1, 14},   {"X_CALAGE", 1, 15},
      {"X_MARK", 1, 16}, {"X_NOD", 99, 99}, {"X_BIEF", 100, 100}};
  for (const Row& row : rows) {
    const auto pair = NextCreationPair(row.key);
    ASSERT_TRUE(pair.has_value()) << row.key;
    EXPECT_EQ(pair->i_group, row.group) << row.key;
    EXPECT_EQ(pair->i_name, row.name) << row.key;
  }
  EXPECT_FALSE(NextCreationPair("X_RAYON").has_value());
  EXPECT_FALSE(NextCreationPair("X_WHAT").has_value());
  // Imports give the type number.
  ASSERT_TRUE(NextCreationPairOfIName(15).has_value());
  EXPECT_EQ(NextCreationPairOfIName(15)->i_group, 1);
  EXPECT_EQ(NextCreationPairOfIName(21)->i_group, 1);
  EXPECT_FALSE(NextCreationPairOfIName(17).has_value());
  EXPECT_FALSE(NextCreationPairOfIName(101).has_value());
  EXPECT_FALSE(NextCreationPairOfIName(0).has_value());
}

TEST(CatalogueTest, Labels) {
  const std::pair<int, const char*> rows[] = {{1, "Bassins Versants"},
                                              {2, "Routage"},
                                              {3, "Exutoire de BV"},
                                              {4, "Hydrogramme"},
                                              {5, "Collecteur circulaire"},
                                              {6, "Collecteur paramétrique fermé"},
                                              {7, "Collecteur paramétrique ouvert"},
                                              {8, "Déversoir DQQ"},
                                              {9, "Déversoir DQZ"},
                                              {10, "Bassin RS"},
                                              {11, "Bassin RSP"},
                                              {12, "Pluviographe"},
                                              {13, "Raccord"},
                                              {14, "Condition Limite aval"},
                                              {16, "Marquage de sortie"},
                                              {99, "Noeud"},
                                              {100, "Bief"},
                                              {101, "Section paramétrique"},
                                              {102, "Coef. de Montana"},
                                              {103, "Pluie réelle H(t)"},
                                              {104, "Pluie Caquot"},
                                              {105, "Pluie simple triangle"},
                                              {106, "Pluie double triangle"},
                                              {107, "Pluie synthétique I(t)"},
                                              {108, "Pluie captée par radar"},
                                              {109, "Scénario de pluie"},
                                              {110, "Calage"}};
  for (const auto& [i_name, label] : rows) EXPECT_EQ(LabelOfIName(i_name), label) << i_name;
  // A calibration point is 15 and has no label; 110 is the one named "Calage".
  EXPECT_EQ(LabelOfIName(15), "");
  for (int i_name : {0, -1, 17, 18, 20, 21, 50, 111, 112, 150}) {
    EXPECT_EQ(LabelOfIName(i_name), "") << i_name;
  }
}

TEST(CatalogueTest, ShortCodesStopAt99) {
  const std::pair<int, const char*> rows[] = {
      {1, "BV"},  {2, "ROUT"},  {3, "HYBV"}, {4, "HY"},   {5, "CAC"},  {6, "CAF"},
      {7, "CAO"}, {8, "DQQ"},   {9, "DQZ"},  {10, "RS"},  {11, "RSP"}, {12, "PLV"},
      {13, "TR"}, {14, "CLAV"}, {15, "PT"},  {16, "MRK"}, {99, "NOD"}};
  for (const auto& [i_name, code] : rows) EXPECT_EQ(ShortCodeOfIName(i_name), code) << i_name;
  for (int i_name : {0, 17, 21, 100, 101, 110}) EXPECT_EQ(ShortCodeOfIName(i_name), "") << i_name;
}

TEST(CatalogueTest, PrefixesCursorsAndSymbols) {
  EXPECT_EQ(IdPrefixOfKey("X_BV"), "Bv_");
  EXPECT_EQ(IdPrefixOfKey("X_BVS"), "Bvs_");
  EXPECT_EQ(IdPrefixOfKey("X_CLAV"), "Cla_");
  EXPECT_EQ(IdPrefixOfKey("X_CALAGE"), "Pt_");
  EXPECT_EQ(IdPrefixOfKey("X_MARK"), "Mrk_");
  EXPECT_EQ(IdPrefixOfKey("X_NOD"), "Nod_");
  EXPECT_EQ(IdPrefixOfKey("X_RAYON"), "");
  EXPECT_EQ(IdPrefixOfKey("X_BIEF"), "");
  EXPECT_EQ(CursorNumberOfKey("X_CALAGE"), 110);
  EXPECT_EQ(CursorNumberOfKey("X_NOD"), 111);
  EXPECT_EQ(CursorNumberOfKey("X_BIEF"), 100);
  EXPECT_EQ(CursorNumberOfKey("X_BVS"), 1);
  EXPECT_EQ(CursorNumberOfKey("X_TR"), 13);
  EXPECT_EQ(CursorNumberOfKey("X_RAYON"), 0);
  EXPECT_EQ(SymbolFileOfKey("X_CLAV"), "FIN.wmf");
  EXPECT_EQ(SymbolFileOfKey("X_CALAGE"), "CAL.wmf");
  EXPECT_EQ(SymbolFileOfKey("X_PLU"), "PLU.wmf");
  EXPECT_EQ(SymbolFileOfKey("X_CAC"), "");
  EXPECT_EQ(KeyOfIName(14), "X_CLAV");
  EXPECT_EQ(KeyOfIName(101), "");
}

TEST(CatalogueTest, SymbolLookUpFallsBackOnSvgThenPngCaseBlind) {
  TempFolder folder;
  WriteBytes(folder.File("nod.svg"), "<svg/>");
  WriteBytes(folder.File("HYBV.png"), "png");
  WriteBytes(folder.File("HYBV.svg"), "<svg/>");
  WriteBytes(folder.File("PLU.WMF"), "wmf");
  WriteBytes(folder.File("DQQ.png"), "png");
  EXPECT_EQ(FindSymbolFile(folder.Path(), "NOD.wmf"), folder.File("nod.svg"));
  EXPECT_EQ(FindSymbolFile(folder.Path(), "HYBV.wmf"), folder.File("HYBV.svg"));
  EXPECT_EQ(FindSymbolFile(folder.Path(), "PLU.wmf"), folder.File("PLU.WMF"));
  EXPECT_EQ(FindSymbolFile(folder.Path(), "DQQ.wmf"), folder.File("DQQ.png"));
  EXPECT_EQ(FindSymbolFile(folder.Path(), "RS.wmf"), "");
  EXPECT_EQ(FindSymbolFile(folder.Path(), ""), "");
}

TEST(CatalogueTest, CatchmentOnNodeUsesTheCatchmentSymbolWhenItsOwnIsAbsent) {
  TempFolder folder;
  WriteBytes(folder.File("BV.svg"), "<svg/>");
  EXPECT_EQ(SymbolPathOfKey(folder.Path(), "X_BVS"), folder.File("BV.svg"));
  WriteBytes(folder.File("BVS.svg"), "<svg/>");
  EXPECT_EQ(SymbolPathOfKey(folder.Path(), "X_BVS"), folder.File("BVS.svg"));
  EXPECT_EQ(SymbolPathOfKey(folder.Path(), "X_CAC"), "");
}

TEST(CatalogueTest, EveryShippedSymbolIsFound) {
  const std::string dir = std::string(PLUVANE_DATA) + "/Symboles";
  for (const char* key : {"X_BV", "X_BVS", "X_HYBV", "X_HY", "X_DQQ", "X_DQZ", "X_RS", "X_RSP",
                          "X_PLU", "X_CLAV", "X_CALAGE", "X_MARK", "X_NOD"}) {
    EXPECT_FALSE(SymbolPathOfKey(dir, key).empty()) << key;
  }
}

TEST(CatalogueTest, FamilyCodes) {
  EXPECT_TRUE(StandsOnNode("1", "Nod_1"));
  EXPECT_TRUE(StandsOnNode("3", "Nod_1"));
  EXPECT_FALSE(StandsOnNode("1", " "));
  EXPECT_FALSE(StandsOnNode("2", "Nod_1"));
  EXPECT_TRUE(IsLinkElement("2"));
  EXPECT_FALSE(IsLinkElement("99"));
}

}  // namespace
}  // namespace pluvane
