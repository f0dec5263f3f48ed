#include "editors/point_form.h"

#include <algorithm>
#include <utility>

#include "drawing/object_tags.h"
#include "drawing/surface_helpers.h"
#include "editors/element_tags.h"
#include "editors/grid_plot_view.h"
#include "foundation/grid_rows.h"
#include "foundation/numbers.h"

namespace pluvane {

namespace {

// The name of each curve of the plot, before its column number.
constexpr const char* kCurveWord = "Crb";

}  // namespace

bool CheckColumn(Grid& grid, int col, int& row) {
  for (int i = 2; i <= grid.MaxRows(); ++i) {
    if (grid.Value(col, i) - grid.Value(col, i - 1) >= 0) continue;
    row = i - 1;
    grid.SetActiveCell(col, row);
    return false;
  }
  return true;
}

PointForm::PointForm(EditorContext& context, std::string caption, std::vector<TagRow> rows,
                     std::vector<PointColumn> columns, int limit, Plot plot)
    : TagGridForm(context, std::move(caption), std::move(rows)),
      spread2_(static_cast<int>(columns.size()), 0),
      columns_(std::move(columns)),
      limit_(limit),
      plot_(std::move(plot)) {
  spread2_.SetCaption(Caption());
  for (int col = 1; col <= static_cast<int>(columns_.size()); ++col) {
    const PointColumn& column = columns_[static_cast<std::size_t>(col - 1)];
    spread2_.SetColHead(col, column.head);
    spread2_.SetColumnType(col, column.type);
  }
}

std::vector<FormCommand> PointForm::Commands() {
  std::vector<FormCommand> commands = TagGridForm::Commands();
  commands.push_back({"cmdAddLine", "&Ajouter une ligne", [this] { cmdAddLine(); }});
  commands.push_back({"cmdInsLine", "&Insérer une ligne", [this] { cmdInsLine(); }});
  commands.push_back({"cmdDelLine", "&Supprimer une ligne", [this] { cmdDelLine(); }});
  commands.push_back({"cmdVisu", "&Visu", [this] { cmdVisu(); }});
  return commands;
}

std::string PointForm::Tag(std::string_view name) const {
  return TagOfObject(context_.surface, Element(), name);
}

void PointForm::SetTag(std::string_view name, std::string_view value) {
  SetTagOfObject(context_.surface, Element(), name, value);
}

void PointForm::cmdAddLine() { SSAddRow(spread2_); }

void PointForm::cmdInsLine() {
  if (spread2_.MaxRows() >= limit_) return;
  int row = 0;
  SSInsertRow(spread2_, row);
}

void PointForm::cmdDelLine() {
  const int row = spread2_.ActiveRow();
  SSDeleteRow(spread2_, row);
  spread2_.SetActiveCell(1, std::max(1, std::min(row, spread2_.MaxRows())));
}

void PointForm::cmdVisu() {
  ShowGridPlot(context_, spread2_, kCurveWord, plot_.prefix + Tag(kTagId) + plot_.suffix);
}

void PointForm::LoadPoints(int count) {
  spread2_.SetMaxRows(count);
  for (int i = 1; i <= count; ++i) {
    for (int col = 1; col <= static_cast<int>(columns_.size()); ++col) {
      spread2_.SetText(col, i,
                       Tag(columns_[static_cast<std::size_t>(col - 1)].tag + std::to_string(i)));
    }
  }
}

bool PointForm::TableAccepted(const std::string& falling_message) {
  if (spread2_.MaxRows() < 2) {
    Tell("Il faut au moins 2 lignes dans une courbe !");
    return false;
  }
  int row = 0;
  if (!CheckColumn(spread2_, 1, row)) {
    Tell(falling_message + "\r\n revoir ligne " + std::to_string(row));
    return false;
  }
  return true;
}

void PointForm::ClearPoints(int count) {
  for (int i = 1; i <= count; ++i) {
    for (const PointColumn& column : columns_) SetTag(column.tag + std::to_string(i), "");
  }
}

void PointForm::StorePoints() {
  const int count = spread2_.MaxRows();
  SetTag("NbPt", std::to_string(count));
  for (int i = 1; i <= count; ++i) {
    for (int col = 1; col <= static_cast<int>(columns_.size()); ++col) {
      SetTag(columns_[static_cast<std::size_t>(col - 1)].tag + std::to_string(i),
             spread2_.Text(col, i));
    }
  }
}

void PointForm::Tell(const std::string& text) {
  context_.ui.ShowMessage(text, Caption(), MessageIcon::kInformation);
}

}  // namespace pluvane
