// The long profile of reaches of collectors: each reach walked from upstream
// to downstream into its invert, vault and ground lines along the cumulated
// length, written as the curves of Prof.crb, and the one-frame script
// Prof.Mst that shows them all together with a bar at every node.
#pragma once

#include <string>
#include <vector>

#include "drawing/surface.h"
#include "foundation/user_interface.h"

namespace pluvane {

inline constexpr const char* kProfileCurveFile = "Prof.crb";
inline constexpr const char* kProfileScript = "Prof.Mst";
inline constexpr const char* kProfileTitle = "Profil en long";

// One reach as the profile reads it, one entry a collector found (index 0
// the first). `ground` has one more entry: the first collector's upstream
// node, then each collector's downstream node.
struct ReachProfile {
  std::string name;
  bool found = false;
  std::vector<double> start, end;  // cumulated distance at each end
  std::vector<double> invert_up, invert_down, vault_up, vault_down;
  std::vector<double> ground;
  bool has_ground = false;  // some ground level is not 0
};

// Reads the reach of that Id. Ranks 1 to NbColl whose collector (IdColl<i>
// with InameColl<i>) is missing are left out and the distances close up. The
// height over the invert is the top of the section IdSect for a collector of
// kind "5", Dn for the others. The ground at distance 0 is taken at the
// upstream node of rank 1 only.
ReachProfile ReadReachProfile(Surface& surface, const std::string& reach_id);

// The data lines of a curve file: X and Y each in 10 characters, 3 decimals.
std::string ProfileDataLine(double x, double y);

// Appends ZR_, ZV_ and, when some ground level isn't 0, ZTN_ of the reach.
bool AppendProfileCurves(const std::string& curve_file, const ReachProfile& reach);

// The frame's scale from the extents of the curves.
struct ProfileScale {
  double x_min = 0, x_max = 0, y_min = 0, y_max = 0;
  double x_step = 0, y_step = 0;
  int x_spacing = 0, y_spacing = 0;
  std::string x_format, y_format;
};
ProfileScale ProfileScaleOf(double x_min, double x_max, double y_min, double y_max);

// Writes `script` for the curves of `curve_file` (named by its last component)
// of the reaches, under the page title.
bool WriteProfileScript(UserInterface& ui, const std::string& script, const std::string& curve_file,
                        const std::vector<std::string>& reaches, const std::string& page_title);

// The whole of cmdVisu's work in `work_dir`: Prof.crb made anew from the
// reaches (those not in the network are passed over), then Prof.Mst. Returns
// the script's path.
std::string WriteLongProfile(Surface& surface, UserInterface& ui, const std::string& work_dir,
                             const std::vector<std::string>& reaches,
                             const std::string& page_title = kProfileTitle);

}  // namespace pluvane
