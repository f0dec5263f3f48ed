// The capacity map (frmMapCapacite): the whole network drawn again on its own
// copy, each collector coloured by how full the calculation found it. The
// engine's .sor report gives the figures: its mode line, then its table lines
// (those starting with a double quote), one a collector, its label in the
// first eight columns and its figures behind. The colour classes come from
// the "Co Echelle" section of the settings file; the legend is a small drawing
// of its own, one box a class.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "drawing/surface.h"
#include "foundation/user_interface.h"

namespace pluvane {

inline constexpr const char* kCapacityMapTitle = "Cartographie de la capacité de remplissage";
// Collectors before their result is known.
inline constexpr std::int32_t kCapacityGrey = 218 + 256 * 218 + 65536 * 218;
// A collector that must be enlarged, in dimensioning mode.
inline constexpr std::int32_t kCapacityRed = 255;

// One class of the scale: its colour and the lower bound of its rate, in percent.
struct CapacityClass {
  std::int32_t colour = 0;
  int percent = 0;
};

// The classes in the order of their keys (Co1, Co2...). `consistent` is false
// when the count of keys found differs from "Nombre de Co"; the classes are
// then those found.
struct CapacityScale {
  std::vector<CapacityClass> classes;
  bool consistent = true;
};

// Reads the scale, showing the message of an inconsistent count.
CapacityScale ReadCapacityScale(UserInterface& ui, const std::string& ini_file);
// Writes "Nombre de Co" and Co1..Con; false when the file cannot be written.
bool WriteCapacityScale(const std::vector<CapacityClass>& classes, const std::string& ini_file);

// The colour of a rate: the last class i < n with percent i <= rate < percent
// i + 1, else the colour of class n. 0 without classes.
std::int32_t CoColour(const std::vector<CapacityClass>& classes, double rate);

// The text of a class in the legend and in the scale editor: "20%" or
// "20% à 50%"; the last class shows its bound alone.
std::string ClassText(const std::vector<CapacityClass>& classes, std::size_t index);

// True when the report was computed in diagnostic mode: the first line holding
// "MODE DE CALCUL" (case-blind) ends, behind its ":", in "DIAGNOSTIC". No such
// line, or no ":" in it, reads as diagnostic too.
bool SorIsDiagnostic(const std::vector<std::string>& lines);

// The table lines of a report: those starting with a double quote, without it,
// trimmed.
std::vector<std::string> SorTableLines(const std::vector<std::string>& lines);

// The figures of a collector in the tool-tip: "label = value" lines joined by
// CR LF, in the order of the mode, from the tags of the current object of
// `map` (which must be a collector).
std::string CapacityToolTip(const Surface& map, int object, bool diagnostic);

// What the map was opened on.
struct CapacityMapInput {
  Surface* network = nullptr;  // the network on screen: read only
  std::string sor_file;        // the scenario's report
  std::string work_dir;        // where ficSor.tmp is made
  std::string ini_file;        // the scale's settings file
};

class CapacityMap {
 public:
  explicit CapacityMap(UserInterface& ui) : ui_(ui) {}

  // The form's loading: the mode from ParamReseau and the caption, the copy
  // of the drawing with every collector grey, the legend, then the results.
  // False when the results were not applied in full.
  bool Load(const CapacityMapInput& input);

  // The results alone (the second half of Load). False when they were not
  // applied in full: another mode, a collector missing, an error trapped.
  bool LoadResults();
  // DrawCoEch: the scale read again and the legend drawn from it (empty when
  // the scale is inconsistent or a trapped error stopped it).
  void DrawCoEch();
  // The scale edited (frmCoEchelle's Ok): legend drawn again, collectors
  // coloured again in diagnostic mode.
  void Recolour();

  std::string Caption() const;
  bool Diagnostic() const { return calc_mode_ == 0; }
  int CalcMode() const { return calc_mode_; }
  double CalcDuree() const { return calc_duree_; }
  double CalcDt() const { return calc_dt_; }
  const std::string& IniFile() const { return input_.ini_file; }

  Surface& map() { return map_; }
  Surface& legend() { return legend_; }
  const std::vector<CapacityClass>& classes() const { return scale_.classes; }

  // The tool-tip of the object at that number, empty when it is no collector.
  std::string ToolTip(int object);

  // mnuOpt_Group / mnuOpt_Ungroup on the map's selection (with their refusals).
  void Group();
  void Ungroup();

 private:
  void CopyNetwork();
  bool ApplyLine(const std::string& line, const std::unordered_map<std::string, int>& index);

  UserInterface& ui_;
  CapacityMapInput input_;
  Surface map_;
  Surface legend_;
  CapacityScale scale_;
  int calc_mode_ = 0;
  double calc_duree_ = 0;
  double calc_dt_ = 0;
};

}  // namespace pluvane
