#include "simulation/rain_file.h"

#include <cerrno>
#include <vector>

#include "foundation/errors.h"
#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/georeferencing.h"
#include "drawing/surface_helpers.h"
#include "network/network_tags.h"
#include "simulation/rain_block.h"
#include "simulation/scenario_records.h"

namespace pluvane {

namespace {

using Lines = std::vector<std::string>;

// Everything a block writer reads.
struct RainContext {
  const Surface& surface;
  UserInterface& ui;
  const Calibration& calibration;
  int record;        // the rain record
  std::string name;  // the rain's name, "Toto" when the scenario has none
  std::string mode;  // iModePluie of the rain record
  double y_shift;
};

std::string Fixed(double value, int decimals) { return FormatFixed(value, 10, decimals); }
// A tag of the rain record, as a number and as a column of 10.
double TagValue(const RainContext& c, std::string_view tag) {
  return Val(c.surface.TagOf(c.record, tag));
}
std::string FixedTag(const RainContext& c, std::string_view tag) {
  return Fixed(TagValue(c, tag), 2);
}

std::string HeadLine(int i_pluie, const std::string& name) {
  return RainKeyword(i_pluie) + "'" + name + "'";
}

// The C line of a design storm.
std::string CentreLine(const RainContext& c) {
  double x = 0, y = 0, r = 0;
  LocateRainCentre(c.surface, c.calibration, kINameRayon, x, y, r);
  return Fixed(x, 0) + Fixed(y - c.y_shift, 0) + Fixed(r, 1);
}

// The fields of a row of the gauge table, separated by tabs.
std::vector<std::string> TabFields(const std::string& row) {
  std::vector<std::string> fields;
  std::size_t start = 0;
  while (true) {
    const std::size_t tab = row.find('\t', start);
    fields.push_back(row.substr(start, tab == std::string::npos ? std::string::npos : tab - start));
    if (tab == std::string::npos) return fields;
    start = tab + 1;
  }
}

// The centre of an object's box, in map coordinates.
void MapCentre(const Surface& surface, int number, const Calibration& calibration, double& x,
               double& y) {
  const auto [x_centre, y_centre] = ObjectCentre(surface, number);
  const double x_log = RoundLong(x_centre);
  const double y_log = RoundLong(y_centre);
  x = LogicToUserX(calibration, x_log, y_log);
  y = LogicToUserY(calibration, x_log, y_log);
}

// The rows of the record table (object `table`): tag Pt j for j from 1 to
// NbPt, read in one walk of its tags (a table may hold thousands of rows).
std::vector<std::string> TableRows(const Surface& surface, int table, std::int32_t& count) {
  count = ValRoundLong(surface.TagOf(table, "NbPt"));
  std::vector<std::string> rows(count > 0 ? static_cast<std::size_t>(count) : 0);
  std::vector<bool> seen(rows.size(), false);
  surface.ForEachTagOf(table, [&](std::string_view name, std::string_view value) {
    if (name.size() < 3 || name[0] != 'P' || name[1] != 't') return;
    std::size_t j = 0;
    bool digits = true;
    for (std::size_t k = 2; k < name.size() && digits; ++k) {
      digits = name[k] >= '0' && name[k] <= '9' && j <= rows.size();
      j = j * 10 + static_cast<std::size_t>(name[k] - '0');
    }
    if (!digits || j < 1 || j > rows.size() || seen[j - 1] || std::to_string(j) != name.substr(2))
      return;
    seen[j - 1] = true;
    rows[j - 1] = value;
  });
  return rows;
}

// The series of one gauge from the rows of the record table, column g + 1.
void WriteGaugeSeries(const std::vector<std::vector<std::string>>& rows, std::int32_t count,
                      int gauge, double y_shift, Lines& out) {
  out.push_back(PadLong(count - 1, 5));
  for (std::int32_t j = 2; j <= count; ++j) {
    const std::vector<std::string>& fields = rows[static_cast<std::size_t>(j) - 1];
    const double value = static_cast<std::size_t>(gauge) + 1 <= fields.size()
                             ? Val(fields[static_cast<std::size_t>(gauge)])
                             : 0;
    out.push_back(Fixed(Val(fields[0]), 2) + Fixed(value - y_shift, 2));
  }
  out.push_back("");
}

void WriteGaugeBlock(const RainContext& c, Lines& out) {
  const Surface& surface = c.surface;
  const std::vector<int> gauges = surface.FindAllByTag(kTagIName, kINamePLU);
  if (gauges.empty()) return;
  out.push_back(HeadLine(103, c.name));
  out.push_back(PadLong(static_cast<std::int32_t>(gauges.size()), 5) +
                PadInt(static_cast<std::int16_t>(ValInt(c.mode) - 1), 5));
  const int table = surface.FindById(c.name);
  std::int32_t count = 0;
  std::vector<std::vector<std::string>> rows;
  if (table > 10) {
    for (const std::string& row : TableRows(surface, table, count)) rows.push_back(TabFields(row));
  }
  for (std::size_t g = 1; g <= gauges.size(); ++g) {
    out.push_back(PadText("'" + std::string(surface.TagOf(gauges[g - 1], kTagId)) + "'", 10, 2));
    double x = 0, y = 0;
    MapCentre(surface, gauges[g - 1], c.calibration, x, y);
    out.push_back(Fixed(x, 0) + Fixed(y - c.y_shift, 0));
    if (table > 10) WriteGaugeSeries(rows, count, static_cast<int>(g), c.y_shift, out);
  }
}

// The block of a rain kept in the drawing.
void WriteRainBlock(int i_pluie, const RainContext& c, Lines& out) {
  if (i_pluie == kINameRealRain) return WriteGaugeBlock(c, out);
  out.push_back(HeadLine(i_pluie, c.name));
  switch (i_pluie) {
    case kINameCaquot:
      out.push_back(FixedTag(c, "Ca") + FixedTag(c, "Cb"));
      break;
    case kINameSimpleTriangle:
      out.push_back(CentreLine(c));
      out.push_back(FixedTag(c, "Ca") + FixedTag(c, "Cb"));
      out.push_back(FixedTag(c, "Duree") + FixedTag(c, "Timax"));
      break;
    case kINameDoubleTriangle:
      out.push_back(CentreLine(c));
      out.push_back(FixedTag(c, "CaTot") + FixedTag(c, "CbTot"));
      out.push_back(FixedTag(c, "CaInt") + FixedTag(c, "CbInt"));
      out.push_back(FixedTag(c, "DureeTot") + FixedTag(c, "DureeInt") + FixedTag(c, "Timax"));
      break;
    case kINameSynthetic: {
      out.push_back(CentreLine(c));
      const std::int32_t points = ValRoundLong(c.surface.TagOf(c.record, "NbPt"));
      out.push_back(PadLong(points, 5));
      for (std::int32_t i = 1; i <= points; ++i) {
        const std::string n = std::to_string(i);
        out.push_back(FixedTag(c, "X" + n) + Fixed(TagValue(c, "Y" + n) - c.y_shift, 2));
      }
      break;
    }
    case kINameRadar:
      out.push_back(Trim(c.surface.TagOf(c.record, "CrbFile")));
      out.push_back(Trim(c.surface.TagOf(c.record, "PrfFile")));
      break;
    default:
      break;
  }
}

void WriteOrThrow(const std::string& path, const Lines& lines) {
  if (!WriteTextLines(path, lines)) throw FileError(errno != 0 ? errno : EACCES);
}

}  // namespace

std::string RainKeyword(int i_pluie) {
  switch (i_pluie) {
    case kINameRealRain:
      return "PR     ";
    case kINameCaquot:
      return "CAQ       ";
    case kINameSimpleTriangle:
      return "PPST     ";
    case kINameDoubleTriangle:
      return "PPDT     ";
    case kINameSynthetic:
      return "PPHY     ";
    case kINameRadar:
      return "PRAD    ";
    case kINameExternalGauge:
      return "PR";
    case kINameExternalHyeto:
      return "PPHY";
    default:
      return "";
  }
}

void LocateRainCentre(const Surface& surface, const Calibration& calibration, int radius_kind,
                      double& x, double& y, double& r) {
  const int radius = surface.FindByTagFrom(kTagIName, radius_kind);
  if (radius > 10) {
    r = Val(surface.TagOf(radius, "Rayon"));
    const double x_log = ValRoundLong(surface.TagOf(radius, kTagXlog));
    const double y_log = ValRoundLong(surface.TagOf(radius, kTagYlog));
    x = LogicToUserX(calibration, x_log, y_log);
    y = LogicToUserY(calibration, x_log, y_log);
    return;
  }
  const double x_log = surface.LogicLeft() + surface.LogicWidth() / 2.0;
  const double y_log = surface.LogicTop() + surface.LogicHeight() / 2.0;
  x = LogicToUserX(calibration, x_log, y_log);
  y = LogicToUserY(calibration, x_log, y_log);
  r = kWholeNetworkRadius;
}

bool GenFicScn(const std::string& path, const std::string& id, const std::string& design) {
  return WriteTextLines(path, {id, design});
}

int GenFicPlu(const Surface& surface, UserInterface& ui, const Calibration& calibration,
              const std::string& scenario_name, const std::string& scn_path,
              const std::string& plu_path, double y_shift) {
  const int scenario = FindRecordIn(surface, kINameScenario, scenario_name);
  if (scenario == 0) {
    ui.ShowMessage("scenario de pluie non trouvé !", "", MessageIcon::kNone);
    return 0;
  }
  const int i_pluie = ValRoundInt(surface.TagOf(scenario, "iPluie"));
  std::string name(surface.TagOf(scenario, "IdPluie"));
  const std::string id(surface.TagOf(scenario, kTagId));
  const std::string design(surface.TagOf(scenario, "Design"));
  const int named = FindRecordIn(surface, i_pluie, name);
  const std::string mode = named > 10 ? std::string(surface.TagOf(named, "iModePluie")) : "";
  if (name.empty()) name = "Toto";
  if (!GenFicScn(scn_path, id, design)) throw FileError(errno != 0 ? errno : EACCES);

  WriteOrThrow(plu_path, {});
  const int record = FindRecordIn(surface, i_pluie, name);
  if (RainKeyword(i_pluie).empty() || record < 11) return 1;
  if (i_pluie == 127 || i_pluie == 128) {
    const std::string source(surface.TagOf(record, "FileSpec"));
    CopyExternalRain(ui, RainKeyword(i_pluie), source, plu_path, name);
    return 1;
  }
  Lines lines;
  WriteRainBlock(i_pluie, RainContext{surface, ui, calibration, record, name, mode, y_shift},
                 lines);
  WriteOrThrow(plu_path, lines);
  return 1;
}

}  // namespace pluvane
