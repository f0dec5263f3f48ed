#include "editors/curve_tags.h"

#include <array>
#include <filesystem>
#include <vector>

#include "drawing/surface_guards.h"
#include "editors/section_library.h"
#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "plot/curve_file.h"

namespace pluvane {

namespace {

constexpr std::array<const char*, 4> kPointTags = {"X", "Y", "Z", "T"};

int ColumnCount(int columns) { return columns < 2 ? 2 : (columns > 4 ? 4 : columns); }

std::string PointTag(int col, int point) {
  return kPointTags[static_cast<std::size_t>(col)] + std::to_string(point);
}

}  // namespace

void TagsToCurveFile(Surface& surface, const std::string& file, const std::string& curve_name,
                     int columns) {
  columns = ColumnCount(columns);
  std::vector<std::string> lines{"'" + curve_name + "'"};
  const int count = ValInt(surface.ObjTag("NbPt"));
  for (int point = 1; point <= count; ++point) {
    std::string line;
    for (int col = 0; col < columns; ++col) {
      line += FormatFixed(Val(surface.ObjTag(PointTag(col, point))), 10, 3);
    }
    lines.push_back(line);
  }
  std::error_code ignored;
  std::filesystem::remove(file, ignored);
  WriteTextLines(file, lines);
}

int CurveFileToTags(Surface& surface, UserInterface& ui, const std::string& file,
                    const std::string& curve_name, int columns) {
  columns = ColumnCount(columns);
  // A file the editor never saved leaves the tags as they are, without a word.
  if (!FileExist(file)) return -1;
  std::array<std::vector<double>, 4> values;
  int count = 0;
  int status = kCurveNotFound;
  // Without an offset, whatever the count of columns: the editor's file has
  // none, and a third column must not be added to the second.
  ReadCurve(ui, file, curve_name, values[0], values[1], values[2], values[3], count, status);
  if (status != kCurveFound) return -1;
  surface.SetObjTag("NbPt", count);
  for (int point = 1; point <= count; ++point) {
    for (int col = 0; col < columns; ++col) {
      const auto& column = values[static_cast<std::size_t>(col)];
      const std::size_t index = static_cast<std::size_t>(point - 1);
      surface.SetObjTag(PointTag(col, point), index < column.size() ? column[index] : 0.0);
    }
  }
  return count;
}

bool SectionToCurveFile(Surface& surface, const std::string& section_id, const std::string& file,
                        const std::string& curve_name) {
  CursorKeeper keeper(surface);
  const int section = FindSection(surface, section_id);
  if (section < 1) return false;
  surface.SetCurrentObject(section);
  TagsToCurveFile(surface, file, curve_name, 2);
  return true;
}

int CurveFileToSection(Surface& surface, UserInterface& ui, const std::string& section_id,
                       const std::string& file, const std::string& curve_name) {
  CursorKeeper keeper(surface);
  const int section = FindSection(surface, section_id);
  if (section < 1) return -1;
  surface.SetCurrentObject(section);
  return CurveFileToTags(surface, ui, file, curve_name, 2);
}

}  // namespace pluvane
