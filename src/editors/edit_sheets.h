// The sheets of the general editor (frmEdit): one per kind of element, in
// the fixed order of its tabs, each with its columns bound to tags and the
// curve that the button of a row opens.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace pluvane {

// What a column of a sheet holds.
enum class SheetCell {
  kText,        // a text, the label first of all
  kNumber,      // a number in a range, with decimals
  kLink,        // a link leaving the element's node, from a list of its row
  kSection,     // a section of the library, from the list of sections
  kProduction,  // a catchment's production function, from its list
  kTransfer,    // a catchment's transfer function, from its list
  kParameter,   // a parameter of the production function of the row
  kButton,      // the button of the row's curve, bound to no tag
};

struct SheetColumn {
  const char* head;
  const char* tag;  // nullptr for the button
  SheetCell cell = SheetCell::kText;
  double min = 0;
  double max = 0;
  int decimals = 0;
};

// The curve that a row's button opens in the curve editor.
struct SheetCurve {
  int columns = 0;  // 0: no curve editor (the divider of levels shows a message)
  std::array<const char*, 4> labels{"", "", "", ""};
  const char* title = "";
  int point_limit = 10;
};

struct SheetLayout {
  int i_name;
  const char* caption;  // the tab's caption when the kind has elements
  std::vector<SheetColumn> columns;
  SheetCurve curve;
  const char* transfer_list = "";  // entries of the transfer list (catchments)
};

// The sheets in the order of the tabs.
const std::vector<SheetLayout>& EditSheets();

// Entries of the production list of the catchment sheets.
inline constexpr const char* kEditProductionList =
    "1. CR constant\t2. selon Horner\t3. selon Holtan\t4. Socose (SCS)";

// The heads of the three parameter columns for a production function (1 to 4);
// empty heads for a column the function does not use, or another number.
std::array<std::string, 3> ProductionParameterHeads(int function);

}  // namespace pluvane
