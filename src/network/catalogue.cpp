#include "network/catalogue.h"

#include <array>

#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "drawing/symbol_file.h"

namespace pluvane {

namespace {

constexpr std::array<ElementType, 32> kTypes{{
    {1, 1, "X_BV", "Bv_", "BV.wmf", 1, "BV", "Bassins Versants"},
    {21, 1, "X_BVS", "Bvs_", "BVS.wmf", 1, "", ""},
    {2, 2, "X_ROUT", "Rou_", "", 2, "ROUT", "Routage"},
    {3, 1, "X_HYBV", "Hbv_", "HYBV.wmf", 3, "HYBV", "Exutoire de BV"},
    {4, 1, "X_HY", "Hy_", "HY.wmf", 4, "HY", "Hydrogramme"},
    {5, 2, "X_CAC", "Cac_", "", 5, "CAC", "Collecteur circulaire"},
    {6, 2, "X_CAF", "Caf_", "", 6, "CAF", "Collecteur paramétrique fermé"},
    {7, 2, "X_CAO", "Cao_", "", 7, "CAO", "Collecteur paramétrique ouvert"},
    {8, 3, "X_DQQ", "Dqq_", "DQQ.wmf", 8, "DQQ", "Déversoir DQQ"},
    {9, 3, "X_DQZ", "Dqz_", "DQZ.wmf", 9, "DQZ", "Déversoir DQZ"},
    {10, 3, "X_RS", "Rs_", "RS.wmf", 10, "RS", "Bassin RS"},
    {11, 3, "X_RSP", "Rsp_", "RSP.wmf", 11, "RSP", "Bassin RSP"},
    {12, 1, "X_PLU", "Plu_", "PLU.wmf", 12, "PLV", "Pluviographe"},
    {13, 2, "X_TR", "Tr_", "", 13, "TR", "Raccord"},
    {14, 1, "X_CLAV", "Cla_", "FIN.wmf", 14, "CLAV", "Condition Limite aval"},
    {15, 0, "X_CALAGE", "Pt_", "CAL.wmf", 110, "PT", ""},
    {16, 1, "X_MARK", "Mrk_", "MARK.wmf", 16, "MRK", "Marquage de sortie"},
    {17, 0, "X_RAYON", "", "", 0, "", ""},
    {99, 99, "X_NOD", "Nod_", "NOD.wmf", 111, "NOD", "Noeud"},
    {100, 100, "X_BIEF", "", "", 100, "", "Bief"},
    // Library and hidden records: no key, no place on the drawing.
    {101, 0, "", "", "", 0, "", "Section paramétrique"},
    {102, 0, "", "", "", 0, "", "Coef. de Montana"},
    {103, 0, "", "", "", 0, "", "Pluie réelle H(t)"},
    {104, -1, "", "", "", 0, "", "Pluie Caquot"},
    {105, -1, "", "", "", 0, "", "Pluie simple triangle"},
    {106, -1, "", "", "", 0, "", "Pluie double triangle"},
    {107, -1, "", "", "", 0, "", "Pluie synthétique I(t)"},
    {108, -1, "", "", "", 0, "", "Pluie captée par radar"},
    {109, -1, "", "", "", 0, "", "Scénario de pluie"},
    {110, 0, "", "", "", 0, "", "Calage"},
    {111, 0, "", "", "", 0, "", ""},
    {112, -1, "", "", "", 0, "", ""},
}};

// Keys whose next-creation pair is the point family whatever the table says.
constexpr std::array<std::string_view, 4> kPointGroupKeys{"X_PLU", "X_CLAV", "X_MARK", "X_CALAGE"};

std::optional<CreationPair> PairOf(const ElementType* type) {
  if (!type || type->key.empty() || type->i_name == kINameRayon) return std::nullopt;
  CreationPair pair{type->i_group, type->i_name};
  for (std::string_view key : kPointGroupKeys) {
    if (type->key == key) pair.i_group = kGroupPoint;
  }
  return pair;
}

}  // namespace

const ElementType* ElementTypeOfKey(std::string_view key) {
  const std::string upper = UCase(Trim(key));
  if (upper.empty()) return nullptr;
  for (const ElementType& type : kTypes) {
    if (type.key == upper) return &type;
  }
  return nullptr;
}

const ElementType* ElementTypeOfIName(int i_name) {
  for (const ElementType& type : kTypes) {
    if (type.i_name == i_name) return &type;
  }
  return nullptr;
}

int INameOfKey(std::string_view key) {
  const ElementType* type = ElementTypeOfKey(key);
  return type ? type->i_name : 0;
}

std::string KeyOfIName(int i_name) {
  const ElementType* type = ElementTypeOfIName(i_name);
  return type ? std::string(type->key) : std::string();
}

std::optional<CreationPair> NextCreationPair(std::string_view key) {
  return PairOf(ElementTypeOfKey(key));
}

std::optional<CreationPair> NextCreationPairOfIName(int i_name) {
  return PairOf(ElementTypeOfIName(i_name));
}

std::string LabelOfIName(int i_name) {
  if (i_name < 1 || i_name > kINameCalageLabel) return "";
  const ElementType* type = ElementTypeOfIName(i_name);
  return type ? std::string(type->label) : std::string();
}

std::string ShortCodeOfIName(int i_name) {
  if (i_name < 1 || i_name > kINameNode) return "";
  const ElementType* type = ElementTypeOfIName(i_name);
  return type ? std::string(type->short_code) : std::string();
}

std::string IdPrefixOfKey(std::string_view key) {
  const ElementType* type = ElementTypeOfKey(key);
  return type ? std::string(type->prefix) : std::string();
}

int CursorNumberOfKey(std::string_view key) {
  const ElementType* type = ElementTypeOfKey(key);
  return type ? type->cursor : 0;
}

std::string SymbolFileOfKey(std::string_view key) {
  const ElementType* type = ElementTypeOfKey(key);
  return type ? std::string(type->symbol) : std::string();
}

std::string SymbolPathOfKey(const std::string& symbol_dir, std::string_view key) {
  std::string found = FindSymbolFile(symbol_dir, SymbolFileOfKey(key));
  if (found.empty() && INameOfKey(key) == kINameBVS) {
    found = FindSymbolFile(symbol_dir, SymbolFileOfKey("X_BV"));
  }
  return found;
}

bool StandsOnNode(std::string_view i_group, std::string_view s_nod_am) {
  const int group = ValInt(i_group);
  return (group == kGroupPoint || group == kGroupRegulator) && !Trim(s_nod_am).empty();
}

bool IsLinkElement(std::string_view i_group) { return ValInt(i_group) == kGroupLink; }

}  // namespace pluvane
