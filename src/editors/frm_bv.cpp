#include "editors/frm_bv.h"

#include <array>
#include <string_view>

#include "drawing/surface_helpers.h"
#include "editors/element_tags.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

// The smallest surface, length and slope that count as given.
constexpr double kSmallest = 0.00001;

// A production function: its list entry and, for rows 7 to 9, the label of
// each parameter it takes and the tag that remembers it (empty past the last).
struct Production {
  std::string_view entry;
  std::array<std::string_view, 3> labels;
  std::array<std::string_view, 3> tags;
};

constexpr std::array<Production, 4> kProductions = {{
    {"1. CR constant (Coef. de Ruissellement)",
     {"Coef de ruissellement =", "", ""},
     {"fp_Cr", "", ""}},
    {"2. selon Horner",
     {"Coef de perte initiale (alpha) =", "Coef de recharge (beta) =", ""},
     {"fp_Alpha", "fp_Beta", ""}},
    {"3. selon Holtan",
     {"Infiltration à saturation fc(mm/h) =", "Infiltration à sec A(mm/h) =",
      "Stockage potentiel du sol T(mm) ="},
     {"fp_fc", "fp_A", "fp_T"}},
    {"4. Selon SCS",
     {"Capacité d'interception J(mm) =", "Temps de ressuyage du sol (jours) =", ""},
     {"fp_J", "fp_D", ""}},
}};

constexpr std::array<std::string_view, 5> kTransfers = {
    "1. k (Desbordes) + réservoir linéaire", "2. k (Giandotti) + réservoir linéaire",
    "3. k (Passini) + réservoir linéaire", "4. k (imposé) + réservoir linéaire",
    "5. Tc (imposé) + hydrogramme unitaire type Socose"};

// The imposed time of transfer functions 4 and 5: row 11's label and the tag.
struct ImposedTime {
  std::string_view label;
  std::string_view tag;
};
constexpr std::array<ImposedTime, 2> kImposedTimes = {{
    {"Temps de réponse K(mn) =", "fr_K"},
    {"Temps de concentration Tc(mn) =", "fr_Tc"},
}};

template <std::size_t N>
std::string ListOf(const std::array<std::string_view, N>& entries) {
  std::string list;
  for (std::string_view entry : entries) {
    if (!list.empty()) list += '\t';
    list += entry;
  }
  return list;
}

std::string ProductionList() {
  std::array<std::string_view, kProductions.size()> entries{};
  for (std::size_t i = 0; i < kProductions.size(); ++i) entries[i] = kProductions[i].entry;
  return ListOf(entries);
}

const Production* ProductionOf(int number) {
  if (number < 1 || number > static_cast<int>(kProductions.size())) return nullptr;
  return &kProductions[static_cast<std::size_t>(number - 1)];
}

const ImposedTime* ImposedTimeOf(int number) {
  if (number < 4 || number > 5) return nullptr;
  return &kImposedTimes[static_cast<std::size_t>(number - 4)];
}

// The function number of a selection text: its first character.
int NumberOf(std::string_view text) { return text.empty() ? 0 : ValInt(text.substr(0, 1)); }

std::vector<TagRow> BvRows() {
  return {
      {"libell", "Identificateur (16 car. maxi) =", CellType::Text()},
      {"S", "Surface (ha)=", CellType::Float(0, 9999999999.99, 2)},
      {"L", "Longueur de cheminement (m)=", CellType::Float(0, 9999999999.99, 2)},
      {"m", "Pente moyenne (-)=", CellType::Float(-99.99999, 99.99999, 5)},
      {"ci", "Coef. imperméabilisation (-)=", CellType::Float(0, 1, 2)},
      {"Fpluie", "Fonction de production de la pluie nette", CellType::List(ProductionList())},
      {"Fpluie1", "", CellType::Float(-999.999, 999.999, 3)},
      {"Fpluie2", "", CellType::Float(-999.999, 999.999, 3)},
      {"Fpluie3", "", CellType::Float(0, 99999999.999, 3)},
      {"Fruissel", "Fonction de production du ruissellement ", CellType::List(ListOf(kTransfers))},
      {"K", "Temps de réponse du BV (mn)=", CellType::Float(-99999.99, 99999.99, 2)},
  };
}

}  // namespace

FrmBV::FrmBV(EditorContext& context)
    : TagGridForm(context, "BV du complexe hydrologique", BvRows()),
      grey_(grid().BackColour(kLabelCol, kRowK)) {
  const int production = NumberOf(Tag("Fpluie"));
  grid().SetListIndex(kValueCol, kRowFpluie, ProductionOf(production) ? production - 1 : -1);
  FpluieDisplay(production);
  // The element's own values win over the remembered ones.
  ShowTag(kRowFpluie1, "Fpluie1");
  if (production != 1) ShowTag(kRowFpluie2, "Fpluie2");
  if (production == 3) ShowTag(kRowFpluie3, "Fpluie3");

  const int transfer = NumberOf(Tag("Fruissel"));
  const bool listed = transfer >= 1 && transfer <= static_cast<int>(kTransfers.size());
  grid().SetListIndex(kValueCol, kRowFruissel, listed ? transfer - 1 : -1);
  ShowTag(kRowK, "K");
  if (const ImposedTime* time = ImposedTimeOf(transfer)) {
    grid().SetText(kLabelCol, kRowK, time->label);
    Unlock(kRowK);
  } else {
    Lock(kRowK);
  }
  // A new choice in a list shows its function, however it was made.
  grid().AddListener([this](const GridChange& change) {
    if (Closed() || change.kind != GridChange::kCells || change.row1 != change.row2) return;
    if (change.col1 > kValueCol || change.col2 < kValueCol) return;
    if (change.row1 == kRowFpluie || change.row1 == kRowFruissel) FunctionChosen(change.row1);
  });
}

int FrmBV::FunctionOf(int row) { return NumberOf(grid().Text(kValueCol, row)); }

std::string FrmBV::Tag(std::string_view name) const {
  return TagOfObject(context_.surface, Element(), name);
}

void FrmBV::SetTag(std::string_view name, std::string_view value) {
  SetTagOfObject(context_.surface, Element(), name, value);
}

std::string FrmBV::NumberOfRow(int row) {
  return grid().IsBlank(kValueCol, row) ? "" : NumToText(grid().Value(kValueCol, row));
}

void FrmBV::ShowTag(int row, std::string_view name) {
  const std::string value = Tag(name);
  const int decimals = grid().Type(kValueCol, row).decimals;
  grid().SetText(kValueCol, row, Trim(value).empty() ? "" : CellNumber(Val(value), decimals));
}

void FrmBV::Lock(int row) {
  grid().SetBackColour(kValueCol, row, grey_);
  grid().SetForeColour(kValueCol, row, grey_);
  grid().SetLocked(kValueCol, row, true);
}

void FrmBV::Unlock(int row) {
  grid().SetBackColour(kValueCol, row, kWhite);
  grid().SetForeColour(kValueCol, row, kBlack);
  grid().SetLocked(kValueCol, row, false);
}

void FrmBV::pReinitRow7_9() {
  for (int row = kRowFpluie1; row <= kRowFpluie3; ++row) {
    grid().SetText(kLabelCol, row, "");
    grid().SetText(kValueCol, row, "");
    Unlock(row);
  }
}

void FrmBV::FpluieDisplay(int number) {
  pReinitRow7_9();
  const Production* production = ProductionOf(number);
  if (!production) return;
  for (int i = 0; i < 3; ++i) {
    const int row = kRowFpluie1 + i;
    const std::string_view tag = production->tags[static_cast<std::size_t>(i)];
    if (tag.empty()) {
      Lock(row);
      continue;
    }
    grid().SetText(kLabelCol, row, production->labels[static_cast<std::size_t>(i)]);
    ShowTag(row, tag);
  }
}

void FrmBV::FpluieSave(int number) {
  const Production* production = ProductionOf(number);
  if (!production) return;
  for (int i = 0; i < 3; ++i) {
    const std::string_view tag = production->tags[static_cast<std::size_t>(i)];
    if (!tag.empty()) SetTag(tag, NumberOfRow(kRowFpluie1 + i));
  }
}

void FrmBV::FruisselDisplay(int number) {
  const ImposedTime* time = ImposedTimeOf(number);
  if (!time) {
    grid().SetText(kLabelCol, kRowK, "");
    grid().SetText(kValueCol, kRowK, "");
    Lock(kRowK);
    return;
  }
  grid().SetText(kLabelCol, kRowK, time->label);
  ShowTag(kRowK, time->tag);
  Unlock(kRowK);
}

void FrmBV::FruisselSave(int number) {
  if (const ImposedTime* time = ImposedTimeOf(number)) {
    SetTag(time->tag, NumberOfRow(kRowK));
  }
}

void FrmBV::ListDropDown(Grid& g, int col, int row) {
  if (&g != &grid() || col != kValueCol || g.Text(col, row).empty()) return;
  if (row == kRowFpluie) FpluieSave(FunctionOf(row));
  if (row == kRowFruissel) FruisselSave(FunctionOf(row));
}

void FrmBV::FunctionChosen(int row) {
  if (grid().Text(kValueCol, row).empty()) return;
  if (row == kRowFpluie) FpluieDisplay(FunctionOf(row));
  if (row == kRowFruissel) FruisselDisplay(FunctionOf(row));
}

void FrmBV::cmdOk() {
  struct Required {
    int row;
    const char* message;
  };
  static constexpr std::array<Required, 3> kRequired = {{
      {kRowS, "La surface du BV doit être non nulle!"},
      {kRowL, "La longueur du BV doit être non nulle!"},
      {kRowSlope, "La pente du BV doit être non nulle!"},
  }};
  for (const Required& required : kRequired) {
    if (grid().Value(kValueCol, required.row) >= kSmallest) continue;
    Refuse(required.row, required.message);
    return;
  }
  if (!StoreRows()) return;
  // Parameters past the function's count are not kept on the element.
  const int production = NumberOf(Tag("Fpluie"));
  if (production == 1) SetTag("Fpluie2", "");
  if (production == 1 || production == 2) SetTag("Fpluie3", "");
  Close();
}

}  // namespace pluvane
