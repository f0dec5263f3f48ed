#include "editors/section_import.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <vector>

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "editors/section_library.h"
#include "foundation/line_parsing.h"
#include "foundation/lists.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/hidden_record.h"

namespace pluvane {

namespace {

// One section as a file gives it: its points' heights and widths, as text.
struct SectionPoints {
  std::vector<std::string> heights;
  std::vector<std::string> widths;
};

std::vector<double> Values(const std::vector<std::string>& texts) {
  std::vector<double> values;
  values.reserve(texts.size());
  for (const std::string& text : texts) values.push_back(Val(text));
  return values;
}

// The tags of an imported section: iName, Id, NbPt, then X (width) and Y
// (height) of each point.
void MakeSection(Surface& surface, const NetworkState& state, const std::string& name,
                 const SectionPoints& points) {
  CursorKeeper keeper(surface);
  AddHiddenRecord(surface, state);
  surface.SetObjTag(kTagIName, std::to_string(kINameSection));
  surface.SetObjTag(kTagId, name);
  surface.SetObjTag("NbPt", std::to_string(points.heights.size()));
  for (std::size_t i = 0; i < points.heights.size(); ++i) {
    const std::string n = std::to_string(i + 1);
    surface.SetObjTag("X" + n, points.widths[i]);
    surface.SetObjTag("Y" + n, points.heights[i]);
  }
}

std::string SectionsDone(int count) {
  return "ok " + std::to_string(count) +
         (count >= 2 ? " sections ont été importées." : " section a été importée.");
}

// The flow both formats share: each section named counts; a name the
// library holds is reported and its points left unread; the points of a new
// one are read, their heights tested, and the section made.
class ImportRun {
 public:
  ImportRun(Surface& surface, const NetworkState& state) : surface_(surface), state_(state) {}

  // False when the heights stopped the import.
  bool Section(const std::string& name, const std::function<SectionPoints()>& read_points) {
    ++count_;
    if (FindSection(surface_, name) > 0) {
      lines_.push_back(ExistingLine(name));
      return true;
    }
    const SectionPoints points = read_points();
    // The index of the fault stays from one section to the next, as the
    // report of a section of one point shows.
    if (!IsAscending(Values(points.heights), index_)) {
      lines_.push_back("");
      lines_.push_back("Les hauteurs de la section " + name + " doivent être croissante.");
      lines_.push_back("Revoir la section " + name + " (" + std::to_string(index_) + "e point)");
      return false;
    }
    MakeSection(surface_, state_, name, points);
    lines_.push_back(ImportedLine(name));
    return true;
  }
  void Finish() {
    lines_.push_back("");
    lines_.push_back(SectionsDone(count_));
  }
  int Write(const std::string& report, bool* complete, bool to_the_end) const {
    if (complete != nullptr) *complete = to_the_end;
    std::error_code ignored;
    std::filesystem::remove(report, ignored);
    WriteTextLines(report, lines_);
    return count_;
  }

 private:
  Surface& surface_;
  const NetworkState& state_;
  std::vector<std::string> lines_;
  int count_ = 0;
  int index_ = 0;
};

}  // namespace

std::string ImportedLine(const std::string& name) { return name + "\t: importé"; }
std::string ExistingLine(const std::string& name) {
  return name + "\t: existe déjà dans la BD section";
}

int ImportSecFile(Surface& surface, const NetworkState& state, UserInterface& ui,
                  const std::string& file, const std::string& report, bool* complete) {
  ImportRun run(surface, state);
  TextReader reader(file);
  while (!reader.AtEnd()) {
    int position = 0;
    const std::string name = ReadQuoted(reader, position);
    if (position == 0) continue;
    const bool going_on = run.Section(name, [&] {
      std::string heights_line, widths_line;
      reader.ReadLine(heights_line);
      reader.ReadLine(widths_line);
      SectionPoints points;
      SplitLine(ui, heights_line, points.heights);
      SplitLine(ui, widths_line, points.widths);
      const std::size_t count = std::min(points.heights.size(), points.widths.size());
      points.heights.resize(count);
      points.widths.resize(count);
      return points;
    });
    if (!going_on) return run.Write(report, complete, false);
  }
  run.Finish();
  return run.Write(report, complete, true);
}

int ImportCrbFile(Surface& surface, const NetworkState& state, const std::string& file,
                  const std::string& report, bool* complete) {
  ImportRun run(surface, state);
  std::vector<std::string> lines;
  ReadTextLines(file, lines);
  auto HasApostrophe = [](const std::string& line) { return line.find('\'') != std::string::npos; };
  std::size_t at = 0;
  while (at < lines.size() && !HasApostrophe(lines[at])) ++at;
  while (at < lines.size()) {
    int position = 0;
    const std::string name = QuotedPart(Trim(lines[at]), position);
    ++at;
    std::size_t end = at;
    while (end < lines.size() && !HasApostrophe(lines[end])) ++end;
    const bool going_on = run.Section(name, [&] {
      SectionPoints points;
      for (std::size_t i = at; i < end; ++i) {
        if (Trim(lines[i]).empty()) continue;
        points.heights.push_back(NumToText(Val(CharMid(lines[i], 1, 10))));
        points.widths.push_back(NumToText(Val(CharMid(lines[i], 11, 10))));
      }
      return points;
    });
    if (!going_on) return run.Write(report, complete, false);
    at = end;
  }
  run.Finish();
  return run.Write(report, complete, true);
}

std::string SectionReportPath(const std::string& file) {
  std::string folder, name, base, extension;
  SplitPath(file, folder, name, base, extension);
  return JoinPath(folder, base + ".msg");
}

int ImportSectionFile(Surface& surface, const NetworkState& state, UserInterface& ui,
                      const std::string& file, const std::string& report, bool* complete) {
  std::string folder, name, base, extension;
  SplitPath(file, folder, name, base, extension);
  if (UCase(extension) == "SEC") return ImportSecFile(surface, state, ui, file, report, complete);
  return ImportCrbFile(surface, state, file, report, complete);
}

bool mnuOpt_SecImport(Surface& surface, const NetworkState& state, UserInterface& ui,
                      Console& console) {
  const std::string file = ui.AskOpenFile("Import d'un fichier de section",
                                          "Fichier texte sec|*.sec|crb|*.crb|Autre fichier|*.*",
                                          "sec", "*.sec;*.crb;*.txt");
  if (file.empty()) return false;
  const std::string report = SectionReportPath(file);
  ImportSectionFile(surface, state, ui, file, report);
  std::vector<std::string> lines;
  ReadTextLines(report, lines);
  console.Debut("import de section");
  for (const std::string& line : lines) console.AfficheMessage(line);
  console.Fin(false);
  std::error_code ignored;
  std::filesystem::remove(report, ignored);
  return true;
}

}  // namespace pluvane
