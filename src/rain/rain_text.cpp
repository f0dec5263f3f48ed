#include "rain/rain_text.h"

#include <cmath>
#include <string_view>

#include "drawing/tag_match.h"
#include "foundation/line_parsing.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/network_tags.h"
#include "rain/rain_records.h"

namespace pluvane {

namespace {

// The largest count a block may announce (16-bit counts of the engine).
constexpr double kMaxCount = 32767;

// The fields of a line of numbers, split at blanks and tabs.
std::vector<std::string_view> Fields(std::string_view line) {
  std::vector<std::string_view> fields;
  std::size_t i = 0;
  while (i < line.size()) {
    while (i < line.size() && (line[i] == ' ' || line[i] == '\t')) ++i;
    const std::size_t start = i;
    while (i < line.size() && line[i] != ' ' && line[i] != '\t') ++i;
    if (i > start) fields.push_back(line.substr(start, i - start));
  }
  return fields;
}

// Reads the numbers of a line, at least `needed` of them; `fields` keeps the
// line's fields as they stand.
bool Numbers(const std::string& line, std::size_t needed, std::vector<double>& values,
             std::vector<std::string_view>* fields = nullptr) {
  std::vector<std::string_view> found = Fields(line);
  if (found.size() < needed) return false;
  values.assign(needed, 0);
  for (std::size_t i = 0; i < needed; ++i) {
    if (!ReadWholeNumber(found[i], values[i])) return false;
  }
  if (fields) *fields = std::move(found);
  return true;
}

bool Count(double value, int& count) {
  if (value < 0 || value > kMaxCount || value != std::floor(value)) return false;
  count = static_cast<int>(value);
  return true;
}

// The lines of a block read in turn.
class BlockLines {
 public:
  explicit BlockLines(const RainTextBlock& block) : block_(block) {}
  bool Next(std::string& line) {
    if (next_ >= block_.lines.size()) return false;
    line = block_.lines[next_++];
    return true;
  }
  bool NextNumbers(UserInterface& /*ui*/, std::size_t needed, std::vector<double>& values) {
    const std::string* line = Next();
    return line && Numbers(*line, needed, values);
  }
  const std::string* Next() {
    if (next_ >= block_.lines.size()) return nullptr;
    return &block_.lines[next_++];
  }

 private:
  const RainTextBlock& block_;
  std::size_t next_ = 0;
};

struct Gauge {
  std::string name;
  double state = 0;
  std::vector<std::pair<std::string, std::string>> records;  // time, height as read
};

// The name of a gauge line and the fields after its closing apostrophe.
bool GaugeLine(UserInterface& ui, const std::string& line, Gauge& gauge) {
  int position = 0;
  gauge.name = QuotedPart(line, position);
  if (position == 0) return false;
  const std::size_t close = line.find('\'', static_cast<std::size_t>(position));
  std::vector<std::string> rest;
  if (close != std::string::npos) SplitLine(ui, Trim(line.substr(close + 1)), rest);
  gauge.state = 0;
  if (!rest.empty() && !rest[0].empty() && !ReadWholeNumber(rest[0], gauge.state)) return false;
  return true;
}

// The keyword of a head line (its first field, in capitals) when the line is
// one, else empty: a keyword of the six followed by a field with an apostrophe.
std::string HeadKeyword(const std::string& line) {
  const std::vector<std::string_view> fields = Fields(line);
  if (fields.size() < 2 || fields[0].size() > 4) return "";
  const std::string keyword = UCase(fields[0]);
  if (!IsRainKeyword(keyword) || fields[1].find('\'') == std::string_view::npos) return "";
  return keyword;
}

bool DecodeGauges(UserInterface& ui, BlockLines& in, DecodedRain& rain, RainBlockFault& fault) {
  std::vector<double> v;
  int count = 0;
  if (!in.NextNumbers(ui, 2, v) || !Count(v[0], count)) return false;
  const double mode = v[1];
  std::vector<Gauge> gauges(static_cast<std::size_t>(count));
  for (Gauge& gauge : gauges) {
    std::string line;
    if (!in.Next(line) || !GaugeLine(ui, line, gauge)) return false;
    if (gauge.state > 1) {
      fault = {RainBlockFault::kGaugeState, gauge.name};
      return false;
    }
    int records = 0;
    if (!in.NextNumbers(ui, 2, v)) return false;
    if (!in.NextNumbers(ui, 1, v) || !Count(v[0], records)) return false;
    gauge.records.reserve(static_cast<std::size_t>(records));
    for (int i = 0; i < records; ++i) {
      std::vector<std::string_view> fields;
      const std::string* record = in.Next();
      if (!record || !Numbers(*record, 2, v, &fields)) return false;
      gauge.records.emplace_back(std::string(fields[0]), std::string(fields[1]));
    }
  }
  // Records are joined by position; the last gauge gives the times.
  const std::size_t rows = gauges.empty() ? 0 : gauges.back().records.size();
  rain.tags.emplace_back("iMode", NumToText(mode));
  const int entry = static_cast<int>(mode) + 1;
  rain.tags.emplace_back("iModePluie", entry == 1   ? std::string(kThiessen)
                                       : entry == 2 ? std::string(kWeightedDistance)
                                                    : std::to_string(entry));
  rain.tags.emplace_back("NbPt", std::to_string(rows + 1));
  std::string head = "Etat pluvio ->";
  for (const Gauge& gauge : gauges) {
    head += "\t" + NumToText(gauge.state);
    rain.gauges.push_back(gauge.name);
  }
  rain.tags.emplace_back("Pt1", head);
  for (std::size_t i = 0; i < rows; ++i) {
    std::string row = gauges.back().records[i].first;
    for (const Gauge& gauge : gauges) {
      row += "\t";
      if (i < gauge.records.size()) row += gauge.records[i].second;
    }
    while (!row.empty() && row.back() == '\t') row.pop_back();
    rain.tags.emplace_back("Pt" + std::to_string(i + 2), row);
  }
  return true;
}

// Lines of numbers given to tags in turn; an empty tag name skips a field.
bool NumberLines(UserInterface& ui, BlockLines& in,
                 const std::vector<std::vector<const char*>>& lines, DecodedRain& rain) {
  for (const auto& tags : lines) {
    std::vector<double> v;
    if (!in.NextNumbers(ui, tags.size(), v)) return false;
    for (std::size_t i = 0; i < tags.size(); ++i) {
      if (*tags[i] != '\0') rain.tags.emplace_back(tags[i], NumToText(v[i]));
    }
  }
  return true;
}

}  // namespace

bool IsRainKeyword(const std::string& keyword) {
  return keyword == "PR" || keyword == "CAQ" || keyword == "PPST" || keyword == "PPDT" ||
         keyword == "PPHY" || keyword == "PRAD";
}

std::vector<RainTextBlock> ReadRainBlocks(UserInterface& /*ui*/,
                                          const std::vector<std::string>& lines) {
  std::vector<RainTextBlock> blocks;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::string line = Trim(lines[i]);
    if (line.empty()) continue;
    const std::string keyword = HeadKeyword(line);
    int position = 0;
    if (!keyword.empty()) {
      // The name is the quoted part of the line after the keyword, blanks and all.
      const std::string name = QuotedPart(line, position);
      blocks.push_back({keyword, name, static_cast<int>(i) + 1, {}});
      continue;
    }
    if (!blocks.empty()) blocks.back().lines.push_back(line);
  }
  return blocks;
}

bool DecodeRainBlock(UserInterface& ui, const RainTextBlock& block, DecodedRain& rain,
                     RainBlockFault& fault) {
  rain = DecodedRain{};
  fault = RainBlockFault{};
  rain.tags.emplace_back(kTagId, block.name);
  rain.tags.emplace_back(kTagUsId, block.name);
  BlockLines in(block);
  bool ok = false;
  const std::vector<const char*> centre = {"", "", ""};
  if (block.keyword == "CAQ") {
    ok = NumberLines(ui, in, {{"Ca", "Cb"}}, rain);
  } else if (block.keyword == "PPST") {
    ok = NumberLines(ui, in, {centre, {"Ca", "Cb"}, {"Duree", "Timax"}}, rain);
  } else if (block.keyword == "PPDT") {
    ok = NumberLines(
        ui, in, {centre, {"CaTot", "CbTot"}, {"CaInt", "CbInt"}, {"DureeTot", "DureeInt", "Timax"}},
        rain);
  } else if (block.keyword == "PPHY") {
    std::vector<double> v;
    int count = 0;
    ok = NumberLines(ui, in, {centre}, rain) && in.NextNumbers(ui, 1, v) && Count(v[0], count);
    if (ok) rain.tags.emplace_back("NbPt", std::to_string(count));
    for (int i = 1; ok && i <= count; ++i) {
      ok = in.NextNumbers(ui, 2, v);
      if (!ok) break;
      rain.tags.emplace_back("X" + std::to_string(i), NumToText(v[0]));
      rain.tags.emplace_back("Y" + std::to_string(i), NumToText(v[1]));
    }
  } else if (block.keyword == "PRAD") {
    std::string crb, prf;
    ok = in.Next(crb) && in.Next(prf);
    if (ok) {
      rain.tags.emplace_back("CrbFile", crb);
      rain.tags.emplace_back("PrfFile", prf);
    }
  } else if (block.keyword == "PR") {
    ok = DecodeGauges(ui, in, rain, fault);
  }
  // An imported design storm keeps its coefficients and refers to no Montana entry.
  if (block.keyword == "CAQ" || block.keyword == "PPST") {
    for (const char* tag : {"IdMonta", "Design", "Pret"}) rain.tags.emplace_back(tag, "");
  } else if (block.keyword == "PPDT") {
    for (const char* tag : {"IdTot", "DesignTot", "PretTot", "IdInt", "DesignInt", "PretInt"}) {
      rain.tags.emplace_back(tag, "");
    }
  }
  if (!ok && fault.kind == RainBlockFault::kNone) fault.kind = RainBlockFault::kFormat;
  return ok;
}

}  // namespace pluvane
