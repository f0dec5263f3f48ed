// Curve files: named curves one after the other, each a header line with its
// name between apostrophes and data lines of fixed columns of 10 characters
// (X, Y, then further values). The format test, the readers of one curve, the
// extents of a whole file, and the extraction of one curve into another file.
// Point i of a curve is held at index i - 1.
#pragma once

#include <string>
#include <vector>

#include "foundation/user_interface.h"

namespace pluvane {

// ReadCurve status: found, not found.
inline constexpr int kCurveFound = 0;
inline constexpr int kCurveNotFound = 2;

// True when the first line that is not blank begins with an apostrophe once
// split on blanks. A missing or empty file is no curve file.
bool CurveFormatCheck(UserInterface& ui, const std::string& path);

// Reads the first curve named `name` (case and blanks around it ignored).
// Columns 21-30 of its first data line are an offset added to every Y. Empty
// lines are skipped. A missing file shows its message and touches nothing.
void ReadCurve(UserInterface& ui, const std::string& file, const std::string& name,
               std::vector<double>& x, std::vector<double>& y, int& count, int& status);
// Three and four columns (Z from columns 21-30, T from 31-40), with no offset.
void ReadCurve(UserInterface& ui, const std::string& file, const std::string& name,
               std::vector<double>& x, std::vector<double>& y, std::vector<double>& z, int& count,
               int& status);
void ReadCurve(UserInterface& ui, const std::string& file, const std::string& name,
               std::vector<double>& x, std::vector<double>& y, std::vector<double>& z,
               std::vector<double>& t, int& count, int& status);

// The extents of every curve of the file; every line without an apostrophe
// counts, an empty one as the point (0, 0). With no data the minima stay at
// 999999999 and the maxima at -9999999999. A missing file shows its message
// and leaves the extents as they were.
void CurveMinMax(UserInterface& ui, const std::string& file, double& x_min, double& x_max,
                 double& y_min, double& y_max);

// Appends the header and the non-blank data lines of the first curve named
// `name` of `source` to `destination`, created if need be. 0 with at least
// two points copied, 2 with fewer or with no such curve, 1 when the source is
// missing (with its message).
int XtCourbe(UserInterface& ui, const std::string& name, const std::string& source,
             const std::string& destination);

}  // namespace pluvane
