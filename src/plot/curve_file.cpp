#include "plot/curve_file.h"

#include <algorithm>
#include <fstream>
#include <string_view>

#include "foundation/line_parsing.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

constexpr std::size_t kColumnWidth = 10;

bool IsAscii(std::string_view line) {
  for (const char c : line)
    if (static_cast<unsigned char>(c) >= 0x80) return false;
  return true;
}

// Val of the n-th column (from 0) of a data line. Columns count characters:
// only a line with a letter beyond ASCII needs them counted.
double Column(std::string_view line, std::size_t index, bool ascii) {
  if (!ascii) return Val(CharMid(line, index * kColumnWidth + 1, kColumnWidth));
  const std::size_t start = index * kColumnWidth;
  return start < line.size() ? Val(line.substr(start, kColumnWidth)) : 0;
}

bool HasApostrophe(std::string_view line) { return line.find('\'') != std::string_view::npos; }

bool IsBlank(std::string_view line) {
  return line.find_first_not_of(' ') == std::string_view::npos;
}

// Moves `reader` past the header of the first curve named `name`; false when
// the file has none. Only a line with an apostrophe can be a header.
bool FindCurve(TextReader& reader, const std::string& name, std::string* header = nullptr) {
  const std::string wanted = Trim(name);
  std::string_view line;
  while (reader.ReadLine(line)) {
    if (!HasApostrophe(line)) continue;
    int position = 0;
    const std::string quoted = QuotedPart(Trim(line), position);
    if (position > 0 && EqualsNoCase(quoted, wanted)) {
      if (header != nullptr) header->assign(line);
      return true;
    }
  }
  return false;
}

// The number of lines up to the next header: room enough for the points of
// the curve that starts here.
std::size_t LinesOfCurve(std::string_view rest) {
  const std::string_view block = rest.substr(0, rest.find('\''));
  return static_cast<std::size_t>(std::count(block.begin(), block.end(), '\n')) + 1;
}

// The reader behind the three forms of ReadCurve: `columns` holds the arrays
// of the columns to fill, X first.
void ReadColumns(UserInterface& ui, const std::string& file, const std::string& name,
                 const std::vector<std::vector<double>*>& columns, bool with_offset, int& count,
                 int& status) {
  TextReader reader(file);
  if (!FileExist(file) || !reader.IsOpen()) {
    ui.ShowMessage(
        "Fichier " + file + " introuvable!\nEnregistrer les données et Quitter le programme!", "",
        MessageIcon::kNone);
    return;
  }
  for (std::vector<double>* column : columns) column->clear();
  count = 0;
  status = kCurveNotFound;
  if (!FindCurve(reader, name)) return;
  const std::size_t room = LinesOfCurve(reader.Rest());
  for (std::vector<double>* column : columns) column->reserve(room);
  std::vector<double>& y = *columns[1];
  double offset = 0;
  std::string_view line;
  while (reader.ReadLine(line) && !HasApostrophe(line)) {
    if (IsBlank(line)) continue;
    const bool ascii = IsAscii(line);
    // The file's last line is taken in a branch of its own that looks for no
    // offset.
    if (with_offset && count == 0 && !reader.AtEnd()) offset = Column(line, 2, ascii);
    for (std::size_t c = 0; c < columns.size(); ++c) columns[c]->push_back(Column(line, c, ascii));
    y.back() += offset;
    ++count;
  }
  status = kCurveFound;
}

}  // namespace

bool CurveFormatCheck(UserInterface& ui, const std::string& path) {
  TextReader reader(path);
  std::string line;
  while (reader.ReadLine(line)) {
    if (Trim(line).empty()) continue;
    std::vector<std::string> elements;
    SplitLine(ui, line, elements);
    return !elements.empty() && !elements.front().empty() && elements.front().front() == '\'';
  }
  return false;
}

void ReadCurve(UserInterface& ui, const std::string& file, const std::string& name,
               std::vector<double>& x, std::vector<double>& y, int& count, int& status) {
  ReadColumns(ui, file, name, {&x, &y}, true, count, status);
}

void ReadCurve(UserInterface& ui, const std::string& file, const std::string& name,
               std::vector<double>& x, std::vector<double>& y, std::vector<double>& z, int& count,
               int& status) {
  ReadColumns(ui, file, name, {&x, &y, &z}, false, count, status);
}

void ReadCurve(UserInterface& ui, const std::string& file, const std::string& name,
               std::vector<double>& x, std::vector<double>& y, std::vector<double>& z,
               std::vector<double>& t, int& count, int& status) {
  ReadColumns(ui, file, name, {&x, &y, &z, &t}, false, count, status);
}

void CurveMinMax(UserInterface& ui, const std::string& file, double& x_min, double& x_max,
                 double& y_min, double& y_max) {
  TextReader reader(file);
  if (!FileExist(file) || !reader.IsOpen()) {
    ui.ShowMessage("Fichier " + file + " introuvable!", "", MessageIcon::kNone);
    return;
  }
  x_min = y_min = 999999999;
  x_max = y_max = -9999999999.0;
  std::string_view line;
  while (reader.ReadLine(line)) {
    // An empty line is the point (0, 0), as the scales have always had it.
    if (HasApostrophe(line)) continue;
    const bool ascii = IsAscii(line);
    const double x = Column(line, 0, ascii), y = Column(line, 1, ascii);
    if (x < x_min) x_min = x;
    if (x > x_max) x_max = x;
    if (y < y_min) y_min = y;
    if (y > y_max) y_max = y;
  }
}

int XtCourbe(UserInterface& ui, const std::string& name, const std::string& source,
             const std::string& destination) {
  TextReader reader(source);
  if (!FileExist(source) || !reader.IsOpen()) {
    ui.ShowMessage("Erreur XtCourbe : Fichier  '" + source + "'  non trouvé!!!", "",
                   MessageIcon::kNone);
    return 1;
  }
  std::string header;
  if (!FindCurve(reader, name, &header)) return 2;
  std::ofstream out(destination, std::ios::binary | std::ios::app);
  out << Utf8ToCp1252(header) << "\r\n";
  int points = 0;
  std::string_view line;
  while (reader.ReadLine(line) && !HasApostrophe(line)) {
    if (IsBlank(line)) continue;
    out << Utf8ToCp1252(line) << "\r\n";
    ++points;
  }
  return points >= 2 ? 0 : 2;
}

}  // namespace pluvane
