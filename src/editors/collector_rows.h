// What the three collector editors (circular, closed, open) share: the rows
// common to them, their cell types, and the list of the section library in
// row 4 of the closed and open collectors.
#pragma once

#include <string>

#include "editors/editor_context.h"
#include "editors/tag_grid_form.h"

namespace pluvane {

inline constexpr int kCollectorSectionRow = 4;

// Invert levels accept negative values, the other numbers do not; all take 2 decimals.
CellType LevelCell();
CellType QuantityCell();

// Rows 1 to 3 with the identifier's label of the form, then row 4 as given,
// then the length in row 5.
std::vector<TagRow> CollectorRows(const std::string& label_of_identifier, TagRow row4);

// Row 4 of the closed and open collectors: IdSect chosen among the Ids of the
// section library.
TagRow SectionRow(Surface& surface);

// When the list of row 4 is dropped (a click on its cell) and the library
// holds no section, the user is told where sections are made.
void TellEmptySectionLibrary(EditorContext& context, const std::string& caption);

}  // namespace pluvane
