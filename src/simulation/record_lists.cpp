#include "simulation/record_lists.h"

#include <functional>
#include <vector>

#include "drawing/object_tags.h"
#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "simulation/model_text_file.h"

namespace pluvane {

namespace {

// Writes each record of the list into a new file at `path`, after a head
// line with the count when `counted`; returns the count.
int WriteRecords(const std::string& path, const std::vector<int>& records, bool counted,
                 const std::function<void(ModelTextFile&, int)>& write) {
  ModelTextFile file(path);
  if (counted) file.Line(PadLong(static_cast<std::int32_t>(records.size()), 5));
  for (int n : records) write(file, n);
  file.Flush();
  return static_cast<int>(records.size());
}

// The tag `tag` followed by i, of object n.
double NumberedVal(const Surface& surface, int n, const char* tag, int i) {
  return Val(surface.TagOf(n, tag + std::to_string(i)));
}

// fixed(10, 3) of tag1, tag2... up to NbPt, joined.
std::string SectionRow(const Surface& surface, int n, const char* tag, int count) {
  std::string row;
  for (int i = 1; i <= count; ++i) row += FormatFixed(NumberedVal(surface, n, tag, i), 10, 3);
  return row;
}

}  // namespace

int GenFicBrn(ModelContext& context, const std::string& path) {
  const Surface& surface = context.surface;
  return WriteRecords(path, surface.FindAllByTag(kTagIName, kINameReach), true,
                      [&](ModelTextFile& file, int n) {
                        std::string line = PadText(surface.TagOf(n, kTagId), 10, 2);
                        const int count = ValRoundInt(surface.TagOf(n, "NbColl"));
                        for (int i = 1; i <= count; ++i) {
                          line += PadText(surface.TagOf(n, "IdColl" + std::to_string(i)), 10, 2);
                        }
                        file.Line(line);
                      });
}

int GenFicSec(ModelContext& context, const std::string& path) {
  const Surface& surface = context.surface;
  return WriteRecords(path, surface.FindAllByTag(kTagIName, kINameSection), false,
                      [&](ModelTextFile& file, int n) {
                        const int count = ValRoundInt(surface.TagOf(n, "NbPt"));
                        file.Line("'" + std::string(surface.TagOf(n, kTagId)) + "'");
                        file.Line(SectionRow(surface, n, "X", count));
                        file.Line(SectionRow(surface, n, "Y", count));
                      });
}

int GenFicApp(ModelContext& context, const std::string& path) {
  const Surface& surface = context.surface;
  const double y_shift = context.YShift;
  return WriteRecords(
      path, surface.FindAllByTag(kTagIName, std::to_string(kINameHY)), false,
      [&](ModelTextFile& file, int n) {
        const int count = ValRoundInt(surface.TagOf(n, "NbPt"));
        file.Line("'" + std::string(surface.TagOf(n, "libell")) + "'");
        for (int i = 1; i <= count; ++i) {
          std::string line = FormatFixed(NumberedVal(surface, n, "X", i), 10, 0) +
                             FormatFixed(NumberedVal(surface, n, "Y", i) - y_shift, 10, 0);
          if (i == 1) line += FormatFixed(Val(surface.TagOf(n, "Qsec")), 10, 2);
          file.Line(line);
        }
      });
}

}  // namespace pluvane
