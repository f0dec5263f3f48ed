#include "results/capacity_map.h"

#include <algorithm>
#include <filesystem>

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "drawing/surface_object.h"
#include "foundation/settings_keys.h"
#include "foundation/errors.h"
#include "foundation/fixed_width.h"
#include "foundation/grid.h"
#include "foundation/ini_profile.h"
#include "foundation/line_parsing.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/network_parameters.h"

namespace pluvane {

namespace {

constexpr int kLegendWidth = 400;
constexpr int kLegendHeight = 200;
constexpr const char* kCollectorGroup = "2";

std::string TmpFile(const std::string& work_dir) { return JoinPath(work_dir, "ficSor.tmp"); }

// The collectors of the map by their label; the first of a label counts.
std::unordered_map<std::string, int> CollectorIndex(Surface& map) {
  std::unordered_map<std::string, int> index;
  CursorKeeper keep(map);
  for (int number = map.FirstObject(); number != 0; number = map.NextObject()) {
    if (Trim(map.ObjTag(kTagIGroup)) != kCollectorGroup) continue;
    index.emplace(Trim(map.ObjTag("libell")), number);
  }
  return index;
}

bool IsCollector(Surface& map, int object) {
  if (object < kFirstObjectNumber || !map.ObjectShape(object)) return false;
  return Trim(TagOfObject(map, object, kTagIGroup)) == kCollectorGroup;
}

}  // namespace

CapacityScale ReadCapacityScale(UserInterface& ui, const std::string& ini_file) {
  CapacityScale scale;
  const int count = static_cast<int>(Val(IniRead(kSectionScale, kKeyScaleCount, 255, ini_file)));
  // The keys are taken from Co1 on while they stand.
  for (int rank = 1;; ++rank) {
    const std::string value = IniRead(kSectionScale, "Co" + std::to_string(rank), 255, ini_file);
    if (Trim(value).empty()) break;
    const std::size_t comma = value.find(',');
    CapacityClass item;
    item.colour = static_cast<std::int32_t>(Val(value.substr(0, comma)));
    item.percent = comma == std::string::npos ? 0 : static_cast<int>(Val(value.substr(comma + 1)));
    scale.classes.push_back(item);
  }
  if (static_cast<int>(scale.classes.size()) != count) {
    scale.consistent = false;
    ui.ShowMessage(
        "Incoherence de 'Nombre de Co', revoir dans la section [Co Echelle] du fichier " + ini_file,
        "", MessageIcon::kNone);
  }
  return scale;
}

bool WriteCapacityScale(const std::vector<CapacityClass>& classes, const std::string& ini_file) {
  bool written = IniWrite(kSectionScale, kKeyScaleCount, std::to_string(classes.size()), ini_file);
  for (std::size_t i = 0; i < classes.size() && written; ++i) {
    written = IniWrite(kSectionScale, "Co" + std::to_string(i + 1),
                       std::to_string(classes[i].colour) + "," + std::to_string(classes[i].percent),
                       ini_file);
  }
  // Keys left from a longer scale would make the count disagree.
  for (std::size_t rank = classes.size() + 1; written; ++rank) {
    const std::string key = "Co" + std::to_string(rank);
    if (Trim(IniRead(kSectionScale, key, 255, ini_file)).empty()) break;
    written = IniWrite(kSectionScale, key, "", ini_file);
  }
  return written;
}

std::int32_t CoColour(const std::vector<CapacityClass>& classes, double rate) {
  if (classes.empty()) return 0;
  const std::size_t n = classes.size();
  std::int32_t colour = classes[n - 1].colour;
  bool held = false;
  for (std::size_t i = 0; i + 1 < n; ++i) {
    if (rate >= classes[i].percent && rate < classes[i + 1].percent) {
      colour = classes[i].colour;
      held = true;
    }
  }
  return held ? colour : classes[n - 1].colour;
}

std::string ClassText(const std::vector<CapacityClass>& classes, std::size_t index) {
  if (index >= classes.size()) return "";
  const std::string low = std::to_string(classes[index].percent) + "%";
  if (index + 1 == classes.size()) return low;
  return low + " à " + std::to_string(classes[index + 1].percent) + "%";
}

bool SorIsDiagnostic(const std::vector<std::string>& lines) {
  for (const std::string& line : lines) {
    const std::string upper = UCase(line);
    if (upper.find("MODE DE CALCUL") == std::string::npos) continue;
    const std::size_t colon = upper.find(':');
    if (colon == std::string::npos) return true;
    return Trim(upper.substr(colon + 1)) == "DIAGNOSTIC";
  }
  return true;
}

std::vector<std::string> SorTableLines(const std::vector<std::string>& lines) {
  std::vector<std::string> table;
  for (const std::string& line : lines) {
    if (!line.empty() && line[0] == '"') table.push_back(Trim(std::string_view(line).substr(1)));
  }
  return table;
}

std::string CapacityToolTip(const Surface& map, int object, bool diagnostic) {
  struct Row {
    const char* label;
    const char* tag;
  };
  static const Row kDiagnostic[] = {
      {"Désignation = ", "libell"},
      {"Taux de remplissage (%) = ", "Taux"},
      {"Débit de base (m3/s) = ", "Qbase"},
      {"Débit maximum amont (m3/s) = ", "QmaxAm"},
      {"Vol. de ruissellement amont (m3) = ", "VolAm"},
      {"Débit capable (m3/s) = ", "Qcapable"},
      {"Débit maximum aval (m3/s) = ", "QmaxAv"},
      {"Vol. de ruissellement aval (m3) = ", "VolAv"},
  };
  static const Row kDimensioning[] = {
      {"Désignation = ", "libell"},
      {"Taux de saturation (%) = ", "Taux"},
      {"Débit maximum amont (m3/s) = ", "QmaxAm"},
      {"Vol. de ruissellement amont (m3) = ", "VolAm"},
      {"Débit capable de référence (m3/s) = ", "Qcapable"},
      {"Diamètre du collecteur circulaire équivalent (m) = ", "DiamEq"},
      {"Extension de la taille du collecteur = ", "Extens"},
  };
  auto tag = [&](const char* name) { return Trim(map.TagOf(object, name)); };
  std::string text;
  auto add = [&](const char* label, const char* name) {
    if (!text.empty()) text += "\r\n";
    text += label + tag(name);
  };
  const bool not_seven = tag(kTagIName) != std::to_string(kINameCAO);
  if (diagnostic) {
    for (const Row& row : kDiagnostic) add(row.label, row.tag);
    if (not_seven) add("Vol de perte/chaussée (m3) = ", "VolPerte");
  } else {
    for (const Row& row : kDimensioning) add(row.label, row.tag);
    const Shape* shape = map.ObjectShape(object);
    if (shape && shape->line_color == kCapacityRed && not_seven)
      add("Nouveau diamètre du coll. circulaire équivalent (m) = ", "NewDiam");
  }
  return text;
}

std::string CapacityMap::Caption() const {
  return calc_mode_ == 0 ? "Synthèse cartographique - Mode diagnostic"
                         : "Synthèse cartographique - Mode dimensionnement";
}

void CapacityMap::CopyNetwork() {
  map_.ClearDrawing();
  if (input_.network) {
    map_.PasteClipboard(input_.network->CopySelection(1));
    map_.SetViewLeft(input_.network->ViewLeft());
    map_.SetViewTop(input_.network->ViewTop());
  }
  map_.DeselectAll();
  map_.SetRedraw(false);
  for (int number = map_.FirstObject(); number != 0; number = map_.NextObject()) {
    if (Trim(map_.ObjTag(kTagIGroup)) == kCollectorGroup) map_.SetLineColor(kCapacityGrey);
  }
  map_.SetRedraw(true);
}

bool CapacityMap::Load(const CapacityMapInput& input) {
  input_ = input;
  calc_mode_ = 0;
  calc_duree_ = 0;
  calc_dt_ = 0;
  if (input_.network) {
    Surface& network = *input_.network;
    const int param = network.FindById(kParamReseau);
    if (param != 0) {
      calc_mode_ = static_cast<int>(Val(TagOfObject(network, param, "CalcMode")));
      calc_duree_ = Val(TagOfObject(network, param, "CalcDuree"));
      calc_dt_ = Val(TagOfObject(network, param, "CalcDt"));
    }
  }
  CopyNetwork();
  DrawCoEch();
  return LoadResults();
}

void CapacityMap::DrawCoEch() {
  legend_.ClearDrawing();
  scale_ = ReadCapacityScale(ui_, input_.ini_file);
  if (!scale_.consistent) return;
  const int n = static_cast<int>(scale_.classes.size());
  try {
    if (n < 1) throw AppError(9, "L'indice n'appartient pas à la sélection");
    for (int i = 1; i <= n; ++i) {
      const std::int32_t top = (n + 1 - i) * kLegendHeight;
      const int box = legend_.AddObject(kKindRectangle, 0, top, kLegendWidth, top + kLegendHeight);
      legend_.SetCurrentObject(box);
      legend_.SetFillColor(scale_.classes[i - 1].colour);
      legend_.SetFillStyle(0);
      legend_.SetLineColor(0);
      const int label = legend_.AddObject(kKindText, kLegendWidth / 4, top + kLegendHeight / 2 - 75,
                                          kLegendWidth * 3, top + kLegendHeight / 2 + 75);
      legend_.SetCurrentObject(label);
      legend_.SetTextString(ClassText(scale_.classes, static_cast<std::size_t>(i - 1)));
      legend_.SetTextFontName("Arial");
      legend_.SetTextSize(-(kLegendHeight * 0.75));
      legend_.SetTextColor(0);
      legend_.SetTextFillBack(false);
    }
  } catch (const AppError&) {
    legend_.ClearDrawing();
    ui_.ShowMessage("DrawCoEch: nb co = " + std::to_string(n), "", MessageIcon::kNone);
  }
  legend_.DeselectAll();
}

bool CapacityMap::LoadResults() {
  std::vector<std::string> lines;
  ReadTextLines(input_.sor_file, lines);
  const bool diagnostic = SorIsDiagnostic(lines);
  if (diagnostic != (calc_mode_ == 0)) {
    ui_.ShowMessage(
        "Attentention le mode de calcul actuel ne correspond pas aux\r\nrésultats de calcul "
        "contenus dans le fichier " +
            input_.sor_file +
            "\r\n\r\nQuitter la synthèse cartographique puis Relancer l'exécution svp...",
        kCapacityMapTitle, MessageIcon::kNone);
    return false;
  }
  const std::vector<std::string> table = SorTableLines(lines);
  const std::string tmp = TmpFile(input_.work_dir);
  WriteTextLines(tmp, table);
  std::vector<std::string> rows;
  if (!ReadTextLines(tmp, rows)) rows = table;
  const auto index = CollectorIndex(map_);
  bool complete = true;
  UndoStep step(map_, "Carto");
  map_.SetRedraw(false);
  try {
    const std::size_t count = rows.size();
    int shown = -1;
    for (std::size_t i = 0; i < count; ++i) {
      const int progress = static_cast<int>((i + 1) * 100 / count);
      if (progress != shown) ui_.ShowProgress(shown = progress);
      if (!ApplyLine(rows[i], index)) {
        ui_.ShowMessage(
            "Il y a incohérence de paramétrage du réseau\r\nQuitter puis Relancer l'exécution de "
            "simulation svp...",
            kCapacityMapTitle, MessageIcon::kNone);
        complete = false;
        break;
      }
    }
  } catch (const AppError& error) {
    ShowError(ui_, &error, "frmMapCapacite");
    complete = false;
  }
  ui_.ShowProgress(-1);
  map_.SetRedraw(true);
  std::error_code ignored;
  std::filesystem::remove(tmp, ignored);
  return complete;
}

bool CapacityMap::ApplyLine(const std::string& line,
                            const std::unordered_map<std::string, int>& index) {
  const auto found = index.find(Trim(CharLeft(line, 8)));
  if (found == index.end()) return false;
  std::vector<std::string> words;
  const int count = SplitLine(ui_, Trim(CharMid(line, 9)), words);
  map_.SetCurrentObject(found->second);
  const bool diagnostic = calc_mode_ == 0;
  static const char* const kDiagnostic[] = {"Qbase", "QmaxAm", "VolAm", "Qcapable", "QmaxAv", "VolAv", "VolPerte"};
  static const char* const kDimensioning[] = {"QmaxAm", "VolAm", "Qcapable", "DiamEq", "Extens", "NewDiam"};
  const bool seven = Trim(map_.ObjTag(kTagIName)) == std::to_string(kINameCAO);
  for (int w = 0; w < count; ++w) {
    const char* name = nullptr;
    if (diagnostic) {
      if (w < 5 || (w == 5 && count > 5) || (w == 6 && !seven)) name = kDiagnostic[w];
    } else if (w < 6) {
      name = kDimensioning[w];
    }
    if (!name) continue;
    if (!diagnostic && w == 4)
      map_.SetObjTag(name, Trim(words[4]));
    else
      map_.SetObjTag(name, Val(words[w]));
  }
  const double upstream = Val(map_.ObjTag("QmaxAm"));
  const double capable = Val(map_.ObjTag("Qcapable"));
  if (capable == 0) throw AppError(11, "Division par zéro");
  const double rate = std::max(0.0, upstream / capable * 100);
  map_.SetObjTag("Taux", FormatFixed(rate, 8, 2));
  if (diagnostic)
    map_.SetLineColor(CoColour(scale_.classes, rate));
  else
    map_.SetLineColor(UCase(Trim(map_.ObjTag("Extens"))) == "OUI" ? kCapacityRed : kButtonFaceColour);
  return true;
}

void CapacityMap::Recolour() {
  DrawCoEch();
  if (calc_mode_ != 0) return;
  CursorKeeper keep(map_);
  map_.SetRedraw(false);
  for (int number = map_.FirstObject(); number != 0; number = map_.NextObject()) {
    if (Trim(map_.ObjTag(kTagIGroup)) != kCollectorGroup) continue;
    const std::string rate = Trim(map_.ObjTag("Taux"));
    if (!rate.empty()) map_.SetLineColor(CoColour(scale_.classes, Val(rate)));
  }
  map_.SetRedraw(true);
}

std::string CapacityMap::ToolTip(int object) {
  if (!IsCollector(map_, object)) return "";
  return CapacityToolTip(map_, object, calc_mode_ == 0);
}

void CapacityMap::Group() {
  if (SelectedObjects(map_).size() < 2) {
    ui_.ShowMessage("Au moins 2 elm doient être sélectionnés pour se regrouper en un", "",
                    MessageIcon::kNone);
    return;
  }
  map_.Arrange(0);
}

void CapacityMap::Ungroup() {
  if (SelectedObjects(map_).empty()) {
    ui_.ShowMessage("Un elm doit être sélectionné pour être décomposé en plusieurs elm", "",
                    MessageIcon::kNone);
    return;
  }
  map_.Arrange(1);
}

}  // namespace pluvane
