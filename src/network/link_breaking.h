// Breaking a collector at a new node (the "MDBREAK" mode): the position of
// the pointer along the link shown while hovering, and the release that puts
// a node there and replaces the collector by two halves. The first half keeps
// the old Id and label, the second gets a new Id; both carry the other tags
// of the old one, with the length and the invert levels shared out along the
// slope. The surface cannot reconnect a link, so everything goes through new
// links and the old one is deleted.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "network/create_mode.h"
#include "network/placement.h"
#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

// The distance from A to C as a percentage of the distance from A to B; 0
// when AB is shorter than 0.00001. C need not lie on AB, so the result may
// exceed 100.
double PercentAlong(double xA, double yA, double xB, double yB, double xC, double yC);

// The information bubble over a collector (iName 5, 6, 7) at the logical
// pointer (x, y): "Dam (%)= " and the percentage along it, from the centres
// of its ends, then, when its L is at least 0.001, a line break and
// "Dam (m)= " and that share of L. Empty over anything else. The cursor is
// kept.
std::string BreakBubbleText(Surface& surface, int link, double x, double y);

// What a half of a broken link takes from the old one.
struct LinkTemplate {
  std::string key;                                        // "X_CAC", "X_CAF" or "X_CAO"
  LinkStyle style;                                        // colour, width and line style
  std::vector<std::pair<std::string, std::string>> tags;  // the old link's, by index
};

// Writes a half's style and tags on the current link: bare ends, the style,
// the type's default tags without counting, then the old link's values by
// index from 1 on (the defaults of a type come in the same order; tags beyond
// them are added under their names). The first half takes the old Id; the
// second derives a new one from it, which is also its label.
void CopyLinkTags(Surface& surface, NetworkState& state, const LinkTemplate& old, bool second_half);

// The two links that replaced a broken one; 0 and 0 when nothing was broken.
struct BrokenLink {
  int first = 0;
  int second = 0;
};

// Breaks a collector at a new node put at the logical (x, y). A link whose L
// is 0 has no slope: the arithmetic error is reported (ShowError, context
// "BreakLink") and nothing changes. Anything but a link is left alone. When
// the collector belongs to a reach, the second half is appended to it. One
// undo step.
BrokenLink BreakLink(PlacementContext& context, int link, double x, double y);

// The release of the left button in "MDBREAK" on the object `hit` (0 for
// none) at the logical (x, y). Anything but a collector gets
// "Seuls les collecteurs sont divisables (Cac, Cao, Caf) !". After a break,
// pending events run and the selection is cleared; the window hides its
// bubble and re-arms the mode's pointer.
void ReleaseInBreakMode(PlacementContext& context, int hit, double x, double y);

// True for the kinds of link that can be broken or fused: circular, closed
// and open collectors (iName 5, 6, 7).
bool IsCollectorIName(int i_name);

}  // namespace pluvane
