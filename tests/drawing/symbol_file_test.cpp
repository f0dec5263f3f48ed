#include "drawing/symbol_file.h"

#include <gtest/gtest.h>

#include "foundation/test_files.h"

namespace pluvane {
namespace {

TEST(SymbolFile, TheNamedFileComesFirst) {
  TempFolder dir;
  WriteBytes(dir.File("CAL.wmf"), "w");
  WriteBytes(dir.File("CAL.svg"), "s");
  EXPECT_EQ(FindSymbolFile(dir.Path(), "CAL.wmf"), dir.File("CAL.wmf"));
}

TEST(SymbolFile, ThenTheSameBaseAsSvgThenPng) {
  TempFolder dir;
  WriteBytes(dir.File("CAL.png"), "p");
  EXPECT_EQ(FindSymbolFile(dir.Path(), "CAL.wmf"), dir.File("CAL.png"));
  WriteBytes(dir.File("CAL.svg"), "s");
  EXPECT_EQ(FindSymbolFile(dir.Path(), "CAL.wmf"), dir.File("CAL.svg"));
}

TEST(SymbolFile, NamesAreFoundWhateverTheirCase) {
  TempFolder dir;
  WriteBytes(dir.File("cal.SVG"), "s");
  EXPECT_EQ(FindSymbolFile(dir.Path(), "CAL.wmf"), dir.File("cal.SVG"));
}

TEST(SymbolFile, AMissingSymbolIsEmpty) {
  TempFolder dir;
  EXPECT_EQ(FindSymbolFile(dir.Path(), "CAL.wmf"), "");
  EXPECT_EQ(FindSymbolFile(dir.Path(), ""), "");
}

TEST(SymbolFile, TheShippedCalibrationSymbolIsFound) {
  EXPECT_EQ(FindSymbolFile(std::string(PLUVANE_DATA) + "/Symboles", "CAL.wmf"),
            std::string(PLUVANE_DATA) + "/Symboles/CAL.svg");
}

}  // namespace
}  // namespace pluvane
