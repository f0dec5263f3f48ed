// The catalogue of element types: for each kind of record kept on the drawing,
// its type number (iName), its family (iGroup), the command key that places
// it, the prefix of its Id, its symbol file, the cursor of its command, its
// short code in files and its French label. Every conversion between keys,
// numbers, labels and codes goes through this table.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pluvane {

// Type numbers (iName).
inline constexpr int kINameBV = 1;
inline constexpr int kINameRout = 2;
inline constexpr int kINameHYBV = 3;
inline constexpr int kINameHY = 4;
inline constexpr int kINameCAC = 5;
inline constexpr int kINameCAF = 6;
inline constexpr int kINameCAO = 7;
inline constexpr int kINameDQQ = 8;
inline constexpr int kINameDQZ = 9;
inline constexpr int kINameRS = 10;
inline constexpr int kINameRSP = 11;
inline constexpr int kINamePLU = 12;
inline constexpr int kINameTR = 13;
inline constexpr int kINameCLAV = 14;
inline constexpr int kINameCalage = 15;
inline constexpr int kINameMark = 16;
inline constexpr int kINameRayon = 17;
inline constexpr int kINameBVS = 21;
inline constexpr int kINameNode = 99;
inline constexpr int kINameReach = 100;
inline constexpr int kINameSection = 101;
inline constexpr int kINameMontana = 102;
inline constexpr int kINameRealRain = 103;
inline constexpr int kINameCaquot = 104;
inline constexpr int kINameSimpleTriangle = 105;
inline constexpr int kINameDoubleTriangle = 106;
inline constexpr int kINameSynthetic = 107;
inline constexpr int kINameRadar = 108;
inline constexpr int kINameRainScenario = 109;
inline constexpr int kINameCalageLabel = 110;
inline constexpr int kINameScenario = 111;
inline constexpr int kINameCurrentScenario = 112;
// The records of the external rain library: a gauge's rain, a hyetograph.
inline constexpr int kINameExternalGauge = 127;
inline constexpr int kINameExternalHyeto = 128;
// The hidden form of a calibration point.
inline constexpr int kINameHiddenCalage = 150;

// Families (iGroup).
inline constexpr int kGroupPoint = 1;
inline constexpr int kGroupLink = 2;
inline constexpr int kGroupRegulator = 3;
inline constexpr int kGroupNode = 99;
inline constexpr int kGroupReach = 100;
inline constexpr int kGroupLibrary = -1;

// One row of the table. Empty texts and zero numbers stand for "none".
struct ElementType {
  int i_name;
  int i_group;                  // 0: the record carries no iGroup
  std::string_view key;         // command key, "X_..."
  std::string_view prefix;      // Id prefix; empty for a fixed Id or a number
  std::string_view symbol;      // symbol file; empty for links and shapes
  int cursor;                   // picture number of the command's cursor, 0 if none
  std::string_view short_code;  // code in files
  std::string_view label;       // French label
};

// The row of a command key (compared in capitals), or of a type number;
// nullptr when there is none.
const ElementType* ElementTypeOfKey(std::string_view key);
const ElementType* ElementTypeOfIName(int i_name);

// Command key to iName; 0 for an unknown key.
int INameOfKey(std::string_view key);
// The command key of a type number, empty if it has none.
std::string KeyOfIName(int i_name);

// The (iGroup, iName) pair that the next creation will use. X_PLU, X_CLAV,
// X_MARK and X_CALAGE give group 1; X_RAYON and unknown keys have no pair.
struct CreationPair {
  int i_group = 0;
  int i_name = 0;
};
std::optional<CreationPair> NextCreationPair(std::string_view key);
// The same from a type number, as imports give it.
std::optional<CreationPair> NextCreationPairOfIName(int i_name);

// French label of a type, library records and 110 "Calage" included; empty
// outside 1 to 110 or for a type without a label.
std::string LabelOfIName(int i_name);
// Short code of a type in files (up to 99); empty when it has none.
std::string ShortCodeOfIName(int i_name);
// Id prefix of a key ("Cac_"), empty when it has none.
std::string IdPrefixOfKey(std::string_view key);
// Cursor picture number of a key, 0 when it has none.
int CursorNumberOfKey(std::string_view key);
// Symbol file name of a key as the catalogue names it ("BV.wmf"), empty when
// the element is not a picture symbol.
std::string SymbolFileOfKey(std::string_view key);

// The picture file of a key's symbol: X_BVS falls back on the catchment's
// symbol when its own is absent. Empty when none exists.
std::string SymbolPathOfKey(const std::string& symbol_dir, std::string_view key);

// A regulating or point element standing on a node (iGroup 1 or 3 with a
// node in sNodAm), and a link element (iGroup 2), from the tags' values.
bool StandsOnNode(std::string_view i_group, std::string_view s_nod_am);
bool IsLinkElement(std::string_view i_group);

}  // namespace pluvane
