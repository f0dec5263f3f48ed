#include "exchange/export_text.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <functional>
#include <initializer_list>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/errors.h"
#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/georeferencing.h"
#include "network/network_tags.h"

namespace pluvane {

namespace {

// A text field: right aligned in its width, "-" when empty.
std::string TextField(std::string_view text, int width) {
  return PadText(Trim(text).empty() ? std::string_view("-") : text, width, 2);
}

std::string Number(const Surface& surface, int n, std::string_view tag, int width, int decimals) {
  return FormatFixed(Val(surface.TagOf(n, tag)), width, decimals);
}

// A number column: its tag, width and decimals.
struct NumberColumn {
  const char* tag;
  int width;
  int decimals;
};

// The number columns of object n, side by side.
std::string Numbers(const Surface& surface, int n, std::initializer_list<NumberColumn> columns) {
  std::string text;
  for (const NumberColumn& column : columns) {
    text += Number(surface, n, column.tag, column.width, column.decimals);
  }
  return text;
}

// The outflow columns of an outlet or a hydrograph.
std::string OutflowColumns(const Surface& surface, int n) {
  return Numbers(surface, n, {{"Qsec", 10, 3}, {"SR", 10, 2}});
}

// The lines of a file, built whole before it is written.
class ExportFile {
 public:
  void Line(const std::string& line) {
    text_ += Utf8ToCp1252(line);
    text_ += "\r\n";
  }
  // The old file goes first; a file that cannot be written raises its error.
  void Write(const std::string& path) const {
    const std::string folder = DirOf(path);
    if (!folder.empty() && !FolderExist(folder)) throw AppError(76, "Chemin d'accès introuvable");
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out) throw FileError(errno != 0 ? errno : EACCES);
    out.write(text_.data(), static_cast<std::streamsize>(text_.size()));
    out.close();
    if (!out) throw FileError(errno != 0 ? errno : EIO);
  }

 private:
  std::string text_;
};

// Writes the lines of every object of one kind, in surface order, to `file`.
// Returns how many; nothing is written for none.
int WriteEachObject(const Surface& surface, int i_name, const std::string& file,
                    const std::function<void(ExportFile& out, int object)>& lines) {
  const std::vector<int> objects = surface.FindAllByTag(kTagIName, i_name);
  if (objects.empty()) return 0;
  ExportFile out;
  for (int n : objects) lines(out, n);
  out.Write(file);
  return static_cast<int>(objects.size());
}

// The libell (by the export's name rule) of the object whose Id is `id`, "-"
// when none has it.
std::string NodeName(const Surface& surface, std::string_view id) {
  if (Trim(id).empty()) return "-";
  const int node = surface.FindById(id);
  if (node == 0) return "-";
  return ExportName(surface, node);
}

// The node a hydrograph stands on: the node's UsId, else the Id of its sNodAm.
std::string ConnectedNode(const Surface& surface, std::string_view id) {
  const int node = Trim(id).empty() ? 0 : surface.FindById(id);
  if (node != 0) {
    const std::string_view us_id = surface.TagOf(node, kTagUsId);
    if (!Trim(us_id).empty()) return std::string(us_id);
  }
  return std::string(id);
}

const ExportType* FindType(const std::vector<ExportType>& types, const std::string& type) {
  for (const ExportType& t : types) {
    if (EqualsNoCase(t.type, type)) return &t;
  }
  return nullptr;
}

using TypeWriter = int (*)(Surface&, const Calibration&, int, const std::string&);

int WriteBV(Surface& s, const Calibration& c, int i_name, const std::string& file) {
  return ExportBVFile(s, c, i_name, file);
}
int WriteHY(Surface& s, const Calibration&, int i_name, const std::string& file) {
  return ExportHYFile(s, i_name, file);
}
int WriteCan(Surface& s, const Calibration&, int i_name, const std::string& file) {
  return ExportCanFile(s, i_name, file);
}

int ExportTypes(Surface& surface, const NetworkState& state, UserInterface& ui,
                const std::vector<ExportType>& types, const std::string& heading,
                const std::string& selection_file, const std::string& report_file,
                const std::string& folder) {
  std::string folder_name, name, base, extension;
  SplitPath(state.NetworkFile, folder_name, name, base, extension);
  std::vector<std::string> lines;
  ReadTextLines(selection_file, lines);
  const std::vector<std::string> selected = SelectedTypes(lines);
  std::vector<std::string> report{heading + base + " >>>", ""};
  int done = 0;
  for (std::size_t i = 0; i < selected.size(); ++i) {
    const ExportType* type = FindType(types, selected[i]);
    if (type == nullptr) continue;
    const std::string file = JoinPath(folder, base + "_" + type->type + ".txt");
    TypeWriter writer = WriteCan;
    const char* context = "ExportCanFile";
    if (type->i_name == kINameBV || type->i_name == kINameHYBV) {
      writer = WriteBV;
      context = "ExportBVFile";
    } else if (type->i_name == kINameHY) {
      writer = WriteHY;
      context = "ExportHYFile";
    }
    int count = 0;
    try {
      count = writer(surface, state.calibration, type->i_name, file);
    } catch (const AppError& error) {
      ShowError(ui, &error, context);
    }
    report.push_back(std::to_string(count) + " " + PadText(type->type, 15, 0) +
                     "\tont été regénérés dans le fichier " + file);
    ++done;
    ui.ShowProgress(static_cast<int>(100.0 * static_cast<double>(i + 1) /
                                     static_cast<double>(selected.size())));
  }
  ui.ShowProgress(0);
  std::error_code ignored;
  std::filesystem::remove(report_file, ignored);
  if (!WriteTextLines(report_file, report)) {
    const AppError error = FileError(errno != 0 ? errno : EACCES);
    ShowError(ui, &error, "ExportApp");
  }
  return done;
}

}  // namespace

std::string ExportName(const Surface& surface, int number) {
  std::string_view name = surface.TagOf(number, "libell");
  if (Trim(name).empty()) name = surface.TagOf(number, "Libell");
  if (Trim(name).empty()) name = "-";
  return std::string(name);
}

int ExportObjData2TxtFile(UserInterface& ui, const std::string& file, const Surface& surface,
                          int kind) {
  try {
    ExportFile out;
    int count = 0;
    const int total = surface.ObjectCount(1);
    int walked = 0, shown = 0;
    for (int n : surface.Objects()) {
      ++walked;
      const int percent = total > 0 ? static_cast<int>(100.0 * walked / total) : 0;
      if (percent != shown) {
        ui.ShowProgress(percent);
        shown = percent;
      }
      if (ValInt(surface.TagOf(n, kTagIName)) != kind) continue;
      out.Line(PadText(ExportName(surface, n), 18, 0) + Number(surface, n, kTagXus, 12, 3) +
               Number(surface, n, kTagYus, 12, 3) + Number(surface, n, "Zus", 12, 2));
      ++count;
    }
    out.Write(file);
    ui.ShowProgress(0);
    ui.ShowStatus("Ok exportation d'elm : " + std::to_string(count));
    return count;
  } catch (const AppError& error) {
    ui.ShowProgress(0);
    ShowError(ui, &error, "ExportObjData2TxtFile");
    return 0;
  }
}

int ExportBVFile(Surface& surface, const Calibration& calibration, int i_name,
                 const std::string& file) {
  CursorKeeper keeper(surface);
  return WriteEachObject(surface, i_name, file, [&](ExportFile& out, int n) {
    if (i_name == kINameBV) {
      // A catchment that has been moved since its coordinates were written
      // is put right here.
      const auto [cx, cy] = ObjectCentre(surface, n);
      const double x = RoundLong(cx), y = RoundLong(cy);
      surface.SetCurrentObject(n);
      surface.SetObjTag(kTagXus, LogicToUserX(calibration, x, y));
      surface.SetObjTag(kTagYus, LogicToUserY(calibration, x, y));
      out.Line(TextField(ExportName(surface, n), 20) +
               Numbers(surface, n, {{kTagXus, 15, 2},
                                 {kTagYus, 15, 2},
                                 {"S", 10, 2},
                                 {"L", 10, 2},
                                 {"m", 10, 6},
                                 {"ci", 10, 3}}));
    } else {
      out.Line(TextField(ExportName(surface, n), 20) + OutflowColumns(surface, n));
    }
    out.Line("");
  });
}

int ExportHYFile(const Surface& surface, int i_name, const std::string& file) {
  return WriteEachObject(surface, i_name, file, [&surface](ExportFile& out, int n) {
    const std::string name = ExportName(surface, n);
    const std::string node = ConnectedNode(surface, surface.TagOf(n, kTagSNodAm));
    out.Line(TextField(name, 20) + TextField(node, 20) + OutflowColumns(surface, n));
    // Points with an empty tag are left out, and not counted.
    std::vector<std::string> points;
    const int declared = ValInt(surface.TagOf(n, "NbPt"));
    for (int i = 1; i <= declared; ++i) {
      const std::string_view x = surface.TagOf(n, "X" + std::to_string(i));
      const std::string_view y = surface.TagOf(n, "Y" + std::to_string(i));
      if (Trim(x).empty() || Trim(y).empty()) continue;
      points.push_back(FormatFixed(Val(x), 10, 2) + FormatFixed(Val(y), 10, 2));
    }
    out.Line(PadInt(static_cast<std::int16_t>(points.size()), 5));
    for (const std::string& point : points) out.Line(point);
    out.Line("");
  });
}

int ExportCanFile(const Surface& surface, int i_name, const std::string& file) {
  return WriteEachObject(surface, i_name, file, [&surface, i_name](ExportFile& out, int n) {
    const std::string upstream = NodeName(surface, surface.TagOf(n, kTagSNodAm));
    const std::string downstream = NodeName(surface, surface.TagOf(n, kTagSNodAv));
    std::string line = TextField(ExportName(surface, n), 20) + TextField(upstream, 20) +
                       TextField(downstream, 20) +
                       Numbers(surface, n, {{"ZRam", 10, 2}, {"ZRav", 10, 2}});
    line += i_name == kINameCAC ? Number(surface, n, "Dn", 10, 2)
                                : TextField(surface.TagOf(n, "IdSect"), 10);
    line += Number(surface, n, "L", 10, 2);
    line += i_name == kINameCAO
                ? Numbers(surface, n, {{"Kmin", 10, 2}, {"Largeur", 10, 2}, {"Kmaj", 10, 2}})
                : Numbers(surface, n, {{"K", 10, 2}, {"HD", 10, 2}, {"SR", 10, 2}});
    out.Line(line);
  });
}

const std::vector<ExportType>& ApplicationTypes() {
  static const std::vector<ExportType> kTypes = {
      {"BV", "BV : Centroïde de BV", kINameBV},
      {"HYBV", "HYBV : Hydrogramme des BV", kINameHYBV},
      {"HY", "HY : Hydrogramme synthétique", kINameHY},
  };
  return kTypes;
}

const std::vector<ExportType>& CollectorTypes() {
  static const std::vector<ExportType> kTypes = {
      {"CI", "CI : collecteur circulaire", kINameCAC},
      {"PF", "PF : collecteur fermé", kINameCAF},
      {"PO", "PO : collecteur ouvert", kINameCAO},
  };
  return kTypes;
}

std::vector<std::string> SelectedTypes(const std::vector<std::string>& lines) {
  std::vector<std::string> types;
  for (const std::string& line : lines) {
    const std::size_t colon = line.find(':');
    if (colon == std::string::npos) continue;
    types.push_back(Trim(line.substr(0, colon)));
  }
  return types;
}

int ExportApp(Surface& surface, const NetworkState& state, UserInterface& ui,
              const std::string& selection_file, const std::string& report_file,
              const std::string& folder) {
  return ExportTypes(surface, state, ui, ApplicationTypes(),
                     "<<< Export des singularités hydrauliques du reseau = ", selection_file,
                     report_file, folder);
}

int ExportCan(Surface& surface, const NetworkState& state, UserInterface& ui,
              const std::string& selection_file, const std::string& report_file,
              const std::string& folder) {
  return ExportTypes(surface, state, ui, CollectorTypes(),
                     "<<< Export des canalisations du reseau = ", selection_file, report_file,
                     folder);
}

}  // namespace pluvane
