#include "plot/curve_file.h"

#include <fstream>

#include "foundation/line_parsing.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

constexpr std::size_t kColumnWidth = 10;

// Val of the n-th column (from 0) of a data line.
double Column(std::string_view line, std::size_t index) {
  return Val(CharMid(line, index * kColumnWidth + 1, kColumnWidth));
}

bool HasApostrophe(std::string_view line) { return line.find('\'') != std::string_view::npos; }

// Moves `reader` past the header of the first curve named `name`; false when
// the file has none.
bool FindCurve(TextReader& reader, const std::string& name, std::string* header = nullptr) {
  const std::string wanted = Trim(name);
  while (!reader.AtEnd()) {
    int position = 0;
    const std::string quoted = ReadQuoted(reader, position, header);
    if (position > 0 && EqualsNoCase(quoted, wanted)) return true;
  }
  return false;
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
  double offset = 0;
  std::string line;
  while (reader.ReadLine(line) && !HasApostrophe(line)) {
    if (Trim(line).empty()) continue;
    // The file's last line is taken in a branch of its own that looks for no
    // offset.
    if (with_offset && count == 0 && !reader.AtEnd()) offset = Column(line, 2);
    for (std::size_t c = 0; c < columns.size(); ++c) columns[c]->push_back(Column(line, c));
    (*columns[1])[static_cast<std::size_t>(count)] += offset;
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
  std::string line;
  while (reader.ReadLine(line)) {
    // An empty line is the point (0, 0), as the scales have always had it.
    if (HasApostrophe(line)) continue;
    const double x = Column(line, 0), y = Column(line, 1);
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
  std::string line;
  while (reader.ReadLine(line) && !HasApostrophe(line)) {
    if (Trim(line).empty()) continue;
    out << Utf8ToCp1252(line) << "\r\n";
    ++points;
  }
  return points >= 2 ? 0 : 2;
}

}  // namespace pluvane
