// The small tables of an element between its tags and a curve file, around
// one opening of the curve editor: the tags NbPt, Xi, Yi (Zi, Ti) are written
// as one named curve, and the curve the editor saved is read back into them.
// Two, three and four columns (X, Y; X, Y, Z; X, Y, Z, T) work on the current
// object; the section's variant finds its object by Id.
#pragma once

#include <string>

#include "drawing/surface.h"
#include "foundation/user_interface.h"

namespace pluvane {

// Writes the curve of the current object's tags to `file`, replacing it: the
// curve name in apostrophes, then one line per point, each value by
// FormatFixed at width 10 with 3 decimals, the fields joined with nothing
// between. `columns` is 2, 3 or 4.
void TagsToCurveFile(Surface& surface, const std::string& file, const std::string& curve_name,
                     int columns);
inline void TagsToCurveFile2(Surface& surface, const std::string& file, const std::string& name) {
  TagsToCurveFile(surface, file, name, 2);
}
inline void TagsToCurveFile3(Surface& surface, const std::string& file, const std::string& name) {
  TagsToCurveFile(surface, file, name, 3);
}
inline void TagsToCurveFile4(Surface& surface, const std::string& file, const std::string& name) {
  TagsToCurveFile(surface, file, name, 4);
}

// Reads the first curve of that name from `file` into the current object's
// tags: NbPt the point count, then Xi, Yi (Zi, Ti) of each point. Returns the
// count, or -1 when the file or the curve is missing (the tags stay then).
int CurveFileToTags(Surface& surface, UserInterface& ui, const std::string& file,
                    const std::string& curve_name, int columns);
inline int CurveFileToTags2(Surface& surface, UserInterface& ui, const std::string& file,
                            const std::string& name) {
  return CurveFileToTags(surface, ui, file, name, 2);
}
inline int CurveFileToTags3(Surface& surface, UserInterface& ui, const std::string& file,
                            const std::string& name) {
  return CurveFileToTags(surface, ui, file, name, 3);
}
inline int CurveFileToTags4(Surface& surface, UserInterface& ui, const std::string& file,
                            const std::string& name) {
  return CurveFileToTags(surface, ui, file, name, 4);
}

// The two-column variants on the section whose Id is `section_id` (widths in
// X, heights in Y). False when no object has that Id; the cursor is put back.
bool SectionToCurveFile(Surface& surface, const std::string& section_id, const std::string& file,
                        const std::string& curve_name);
// The count read, -1 when the section, the file or the curve is missing.
int CurveFileToSection(Surface& surface, UserInterface& ui, const std::string& section_id,
                       const std::string& file, const std::string& curve_name);

}  // namespace pluvane
