#include "plot/curve_script.h"

#include <filesystem>
#include <vector>

#include "foundation/paths.h"
#include "foundation/text.h"
#include "plot/auto_scale.h"
#include "plot/curve_file.h"
#include "plot/script_words.h"

namespace pluvane {

namespace {

// Blue, red, black, orange, violet, green.
constexpr std::int32_t kCurveColours[] = {16711680, 255, 0, 4895487, 10158235, 65280};

// The frame of the script, page cm.
constexpr double kLeft = 3, kRight = 28, kBottom = 3, kTop = 19;

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

}  // namespace

std::string TitleOfCurveKind(const std::string& extension, const std::string& page_title) {
  const std::string kind = UCase(extension);
  if (kind == "DEB" || kind == "HYS") return "Hydrogramme";
  if (kind == "LIM") return "Limnigramme";
  if (kind == "APP") return "Apport";
  return page_title;
}

void AxisTitlesOfCurveKind(const std::string& extension, std::string& x_title,
                           std::string& y_title) {
  const std::string kind = UCase(extension);
  x_title.clear();
  y_title.clear();
  if (kind == "DEB" || kind == "HYS") {
    x_title = "Temps(mn)";
    y_title = "Débit (m3/s)";
  } else if (kind == "LIM") {
    x_title = "Temps(mn)";
    y_title = "Cote (m)";
  }
}

CurveLook NextCurveLook(int i, const CurveLook& before) {
  CurveLook look = before;
  const int colour = i <= 6 ? i : i % 6;
  // i = 12, 18... keep the colour of the curve before.
  if (colour >= 1) look.colour = kCurveColours[colour - 1];
  if (i <= 6) look.width = 2;
  if (i >= 19) look.width = 4;
  look.style = i <= 6 ? 0 : i <= 12 ? 2 : i <= 18 ? 1 : 2;
  return look;
}

bool WriteCurveScript(UserInterface& ui, const std::string& list_file,
                      const std::string& script_file, const std::string& curve_file,
                      const std::string& extension, const std::string& page_title) {
  std::vector<std::string> lines, names;
  ReadTextLines(list_file, lines);
  for (const std::string& line : lines) {
    if (!Trim(line).empty()) names.push_back(Trim(line));
  }
  if (!names.empty()) {
    std::error_code ignored;
    std::filesystem::remove(list_file, ignored);
    for (const std::string& name : names) XtCourbe(ui, name, curve_file, list_file);
  }
  AutoScale scale;
  if (!ComputeAutoScale(ui, list_file, scale) || scale.y_max < -99999999) return false;

  const std::string frame_title = TitleOfCurveKind(extension, page_title);
  std::string x_title, y_title;
  AxisTitlesOfCurveKind(extension, x_title, y_title);
  const std::string file = FileNameOf(curve_file);
  std::vector<std::string> script;
  script.push_back("PAGE  \"A4\"  \"H\"  " + Quoted(page_title));
  script.push_back(" Cadre " + ScriptNumber(kLeft) + " " + ScriptNumber(kRight) + " " +
                   ScriptNumber(kBottom) + " " + ScriptNumber(kTop) + "  " + Quoted(frame_title) +
                   "  6 0 0 7 0 0");
  script.push_back("    Echelle \"F\" " + ScriptNumber(scale.x_min) + " " +
                   ScriptNumber(scale.x_max) + " " + ScriptNumber(scale.y_min) + " " +
                   ScriptNumber(scale.y_max) + " " + ScriptNumber(scale.x_step) + " " +
                   ScriptNumber(scale.y_step) + " " + ScriptNumber(scale.x_spacing) + " " +
                   ScriptNumber(scale.y_spacing) + " " + Quoted(x_title) + "  " + Quoted(y_title) +
                   "  \"V\" 4 " + Quoted(scale.x_format) + " " + Quoted(scale.y_format));
  script.push_back("    Grille " + ScriptNumber(scale.x_spacing) + " " +
                   ScriptNumber(scale.y_spacing) + " 2 0 0");
  CurveLook look;
  for (std::size_t i = 0; i < names.size(); ++i) {
    look = NextCurveLook(static_cast<int>(i) + 1, look);
    script.push_back("    Plotxy 1 " + Quoted(file) + " " + Quoted(names[i]) + " " +
                     Quoted(names[i]) + ScriptNumber(look.style) + ScriptNumber(look.width) +
                     ScriptNumber(look.colour) + " " + ScriptNumber(look.colour) + " 4");
  }
  script.push_back(" EndCadre");
  script.push_back(" COMMENT 4 " + ScriptNumber(kLeft) + " 1.5  0. " +
                   Quoted(" Nortavel, fichier " + file) + " Arial\"0 0");
  script.push_back("ENDPAGE");
  script.push_back("");
  return WriteTextLines(script_file, script);
}

}  // namespace pluvane
