#include "simulation/record_lists.h"

#include <functional>
#include <vector>

#include "drawing/object_tags.h"
#include "foundation/fixed_width.h"
#include "foundation/numbers.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/catalogue.h"
#include "simulation/model_text_file.h"

namespace pluvane {

namespace {


// Visits each record of the list current, writing into a new file at `path`,
// after a head line with the count when `counted`; returns the count.
int WriteRecords(Surface& surface, const std::string& path, const std::vector<int>& records,
                 bool counted, const std::function<void(ModelTextFile&)>& write) {
  CursorKeeper keeper(surface);
  ModelTextFile file(path);
  if (counted) file.Line(PadLong(static_cast<std::int32_t>(records.size()), 5));
  for (int n : records) {
    surface.SetCurrentObject(n);
    write(file);
  }
  file.Flush();
  return static_cast<int>(records.size());
}

std::string Numbered(const char* tag, int i) { return tag + std::to_string(i); }

double NumberedVal(const Surface& surface, const char* tag, int i) {
  return Val(surface.ObjTag(Numbered(tag, i)));
}

// fixed(10, 3) of tag1, tag2... up to NbPt, joined.
std::string SectionRow(const Surface& surface, const char* tag, int count) {
  std::string row;
  for (int i = 1; i <= count; ++i) row += FormatFixed(NumberedVal(surface, tag, i), 10, 3);
  return row;
}

}  // namespace

int GenFicBrn(ModelContext& context, const std::string& path) {
  Surface& surface = context.surface;
  return WriteRecords(surface, path, FindObjectList(surface, kTagIName, kINameReach), true,
                      [&](ModelTextFile& file) {
                        std::string line = PadText(surface.ObjTag(kTagId), 10, 2);
                        const int count = ValRoundInt(surface.ObjTag("NbColl"));
                        for (int i = 1; i <= count; ++i) {
                          line += PadText(surface.ObjTag(Numbered("IdColl", i)), 10, 2);
                        }
                        file.Line(line);
                      });
}

int GenFicSec(ModelContext& context, const std::string& path) {
  Surface& surface = context.surface;
  return WriteRecords(surface, path, FindObjectList(surface, kTagIName, kINameSection), false,
                      [&](ModelTextFile& file) {
                        const int count = ValRoundInt(surface.ObjTag("NbPt"));
                        file.Line("'" + surface.ObjTag(kTagId) + "'");
                        file.Line(SectionRow(surface, "X", count));
                        file.Line(SectionRow(surface, "Y", count));
                      });
}

int GenFicApp(ModelContext& context, const std::string& path) {
  Surface& surface = context.surface;
  const double y_shift = context.YShift;
  return WriteRecords(
      surface, path, FindObjectList(surface, kTagIName, std::to_string(kINameHY)), false,
      [&](ModelTextFile& file) {
        const int count = ValRoundInt(surface.ObjTag("NbPt"));
        file.Line("'" + surface.ObjTag("libell") + "'");
        for (int i = 1; i <= count; ++i) {
          std::string line = FormatFixed(NumberedVal(surface, "X", i), 10, 0) +
                             FormatFixed(NumberedVal(surface, "Y", i) - y_shift, 10, 0);
          if (i == 1) line += FormatFixed(Val(surface.ObjTag("Qsec")), 10, 2);
          file.Line(line);
        }
      });
}

}  // namespace pluvane
