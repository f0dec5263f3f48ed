#include "results/long_profile.h"

#include <cmath>
#include <filesystem>
#include <optional>
#include <unordered_map>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/fixed_width.h"
#include "foundation/line_parsing.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/network_tags.h"
#include "plot/auto_scale.h"
#include "plot/curve_file.h"
#include "plot/script_words.h"

namespace pluvane {

namespace {

// An element by Id and kind. The index of Ids answers at once when the first
// object of that Id is of the kind, which is the rule; else the whole search.
int FindElement(Surface& surface, const std::string& id, int i_name) {
  const int first = surface.FindById(id);
  if (first > 0 && TagMatch(i_name).Matches(TagOfObject(surface, first, kTagIName))) return first;
  if (first == 0) return 0;
  CursorKeeper keeper(surface);
  return FindObject2(surface, kTagId, id, kTagIName, i_name);
}

// The ground level of a node, 0 when it isn't there.
double GroundOf(Surface& surface, const std::string& node) {
  const int found = FindElement(surface, node, kINameNode);
  return found > 0 ? Val(TagOfObject(surface, found, "Zus")) : 0;
}

// The height of a section of the library: its last point's X.
double SectionHeight(Surface& surface, const std::string& section) {
  const int found = FindElement(surface, section, kINameSection);
  if (found < 1) return 0;
  const std::string count = Trim(TagOfObject(surface, found, "NbPt"));
  return Val(TagOfObject(surface, found, "X" + NumToText(ValInt(count))));
}

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

// The nearest whole number, ties to the even one.
double Whole(double value) { return std::nearbyint(value); }

// The limits are put on the run of values -100, -98... 1000: the first value
// that, moved by `shift`, is above the limit. None when the limit is above them.
std::optional<double> FirstOfRun(double limit, double shift) {
  constexpr int kRound = 2;
  for (int v = -100; v <= 1000; v += kRound) {
    if (v + shift > limit) return v;
  }
  return std::nullopt;
}

}  // namespace

ReachProfile ReadReachProfile(Surface& surface, const std::string& reach_id) {
  CursorKeeper keeper(surface);
  ReachProfile reach;
  reach.name = reach_id;
  reach.ground.push_back(0);
  const int record = FindElement(surface, reach_id, kINameReach);
  if (record < 1) return reach;
  reach.found = true;
  surface.SetCurrentObject(record);
  // A long reach holds thousands of tags: they are read in one walk, the
  // first of each name counting, as a search by name would find it.
  std::unordered_map<std::string, std::string> tags;
  for (int t = surface.ObjTagCount() - 1; t >= 0; --t) {
    tags[surface.ObjTagName(t)] = surface.ObjTagValue(t);
  }
  const auto tag = [&tags](const std::string& name) {
    const auto found = tags.find(name);
    return found == tags.end() ? std::string() : found->second;
  };
  const int count = ValInt(tag("NbColl"));
  std::vector<std::pair<std::string, std::string>> ranks;
  for (int i = 1; i <= count; ++i) {
    const std::string rank = NumToText(i);
    ranks.emplace_back(tag("IdColl" + rank), tag("InameColl" + rank));
  }
  double distance = 0;
  for (std::size_t i = 0; i < ranks.size(); ++i) {
    const std::string& kind = ranks[i].second;
    const int collector = FindElement(surface, ranks[i].first, ValInt(kind));
    if (collector < 1) continue;
    surface.SetCurrentObject(collector);
    const double invert_up = Val(surface.ObjTag("ZRam"));
    const double invert_down = Val(surface.ObjTag("ZRav"));
    const double length = Val(surface.ObjTag("L"));
    const std::string upstream = surface.ObjTag(kTagSNodAm);
    const std::string downstream = surface.ObjTag(kTagSNodAv);
    const double height = Trim(kind) == "5" ? SectionHeight(surface, surface.ObjTag("IdSect"))
                                            : Val(surface.ObjTag("Dn"));
    if (i == 0) reach.ground[0] = GroundOf(surface, upstream);
    reach.start.push_back(distance);
    distance += length;
    reach.end.push_back(distance);
    reach.invert_up.push_back(invert_up);
    reach.invert_down.push_back(invert_down);
    reach.vault_up.push_back(invert_up + height);
    reach.vault_down.push_back(invert_down + height);
    reach.ground.push_back(GroundOf(surface, downstream));
  }
  for (double level : reach.ground) {
    if (level != 0) reach.has_ground = true;
  }
  return reach;
}

std::string ProfileDataLine(double x, double y) {
  return FormatFixed(x, 10, 3) + FormatFixed(y, 10, 3);
}

bool AppendProfileCurves(const std::string& curve_file, const ReachProfile& reach) {
  const std::size_t count = reach.start.size();
  std::vector<std::string> lines;
  lines.reserve(6 * count + 4);
  lines.push_back("'ZR_" + reach.name + "'");
  for (std::size_t i = 0; i < count; ++i) {
    lines.push_back(ProfileDataLine(reach.start[i], reach.invert_up[i]));
    lines.push_back(ProfileDataLine(reach.end[i], reach.invert_down[i]));
  }
  lines.push_back("'ZV_" + reach.name + "'");
  for (std::size_t i = 0; i < count; ++i) {
    lines.push_back(ProfileDataLine(reach.start[i], reach.vault_up[i]));
    lines.push_back(ProfileDataLine(reach.end[i], reach.vault_down[i]));
  }
  if (reach.has_ground) {
    lines.push_back("'ZTN_" + reach.name + "'");
    lines.push_back(ProfileDataLine(0, reach.ground[0]));
    for (std::size_t i = 0; i < count; ++i) {
      lines.push_back(ProfileDataLine(reach.end[i], reach.ground[i + 1]));
    }
  }
  return AppendTextLines(curve_file, lines);
}

ProfileScale ProfileScaleOf(double x_min, double x_max, double y_min, double y_max) {
  constexpr double kRound = 2;
  ProfileScale scale;
  y_min = (Whole(y_min / 5) - 1) * 5;
  y_max = (Whole(y_max / 5) + 1) * 5;
  // The steps of a tenth of the ranges that the old writer worked out here
  // were never used: the tables below give the steps.
  if (const auto v = FirstOfRun(x_min, -0.01)) x_min = *v - kRound;
  if (const auto v = FirstOfRun(x_max, 0.01)) x_max = *v;
  if (const auto v = FirstOfRun(y_min, -0.01)) y_min = *v;
  if (const auto v = FirstOfRun(y_max, 0.01)) y_max = *v;
  if (kRound + 0.01 < y_min) y_min -= kRound;
  scale.x_min = x_min;
  scale.x_max = x_max;
  scale.y_min = y_min;
  scale.y_max = y_max;
  const StepChoice x = StepForX(x_max);
  const StepChoice y = StepForY(y_max);
  scale.x_step = x.step;
  scale.x_spacing = x.spacing;
  scale.y_step = y.step;
  scale.y_spacing = y.spacing;
  scale.x_format = FormatOfStep(x.step);
  scale.y_format = FormatOfStep(y.step);
  return scale;
}

bool WriteProfileScript(UserInterface& ui, const std::string& script, const std::string& curve_file,
                        const std::vector<std::string>& reaches, const std::string& page_title) {
  double x_min = 0, x_max = 0, y_min = 0, y_max = 0;
  CurveMinMax(ui, curve_file, x_min, x_max, y_min, y_max);
  const ProfileScale s = ProfileScaleOf(x_min, x_max, y_min, y_max);
  std::string title = "Bief ";
  for (std::size_t i = 0; i < reaches.size(); ++i) title += (i > 0 ? ", " : "") + reaches[i];
  const std::string file = Quoted(FileNameOf(curve_file));
  const auto N = [](double value) { return ScriptNumber(value); };
  std::vector<std::string> lines;
  lines.push_back("PAGE  \"A4\"  \"H\"  " + Quoted(page_title));
  lines.push_back(" Cadre " + N(2) + " " + N(28) + " " + N(2) + " " + N(20) + "  " + Quoted(title) +
                  "  6 0 0 6 0 0");
  lines.push_back("    Echelle \"F\" " + N(s.x_min) + " " + N(s.x_max) + " " + N(s.y_min) + " " +
                  N(s.y_max) + " " + N(s.x_step) + " " + N(s.y_step) + " " + N(s.x_spacing) + " " +
                  N(s.y_spacing) + " \"Distance cumulée (m)\"  \"Z (ngf)\"  \"V\" 4.5 " +
                  Quoted(s.x_format) + " " + Quoted(s.y_format));
  lines.push_back("    Grille  0 0 2 0 0");
  for (const std::string& reach : reaches) {
    if (FileExist(curve_file) && FindQuotedKey(ui, curve_file, "ZTN_" + reach)) {
      lines.push_back("    Plotxy 0 " + file + " " + Quoted("*ZTN_" + reach) +
                      " \"\" 0  0  0  0  0 ");
      lines.push_back("    Plotxy 1 " + file + " " + Quoted("ZTN_" + reach) + " \"\" 0 2 0 0  0 ");
      lines.push_back("    Plotxy 0 " + file + " " + Quoted("*ZR_" + reach) +
                      " \"\" 0  0  0  0  0 ");
    }
    for (const char* curve : {"ZR_", "ZV_"}) {
      lines.push_back("    Plotxy 1 " + file + " " + Quoted(curve + reach) +
                      " \"\" 0 1 16711680 0  0 ");
    }
  }
  lines.push_back(" EndCadre");
  lines.push_back("ENDPAGE");
  lines.push_back("");
  return WriteTextLines(script, lines);
}

std::string WriteLongProfile(Surface& surface, UserInterface& ui, const std::string& work_dir,
                             const std::vector<std::string>& reaches,
                             const std::string& page_title) {
  // The old file goes, whatever the case of its name.
  for (std::string old = FindFileNoCase(work_dir, kProfileCurveFile); !old.empty();
       old = FindFileNoCase(work_dir, kProfileCurveFile)) {
    std::error_code error;
    if (!std::filesystem::remove(old, error)) break;
  }
  const std::string curves = JoinPath(work_dir, kProfileCurveFile);
  for (const std::string& reach : reaches) {
    const ReachProfile profile = ReadReachProfile(surface, reach);
    if (profile.found) AppendProfileCurves(curves, profile);
  }
  const std::string script = JoinPath(work_dir, kProfileScript);
  if (!WriteProfileScript(ui, script, curves, reaches, page_title)) return {};
  return script;
}

}  // namespace pluvane
