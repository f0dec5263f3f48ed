// What holds a network together: nodes, what stands on them, the links that
// leave and reach them, and the length of a link in map units. The counts on
// a node are geometric: whatever touches the node's rectangle stands on it.
#pragma once

#include <utility>
#include <vector>

#include "drawing/surface.h"
#include "network/network_state.h"

namespace pluvane {

// The objects touching the object's rectangle (itself included), in creation
// order, as the topology rules select them. The selection is cleared.
std::vector<int> ObjectsTouching(Surface& surface, int object);

// True if the object's iName is 99. The cursor does not move.
bool IsNode(Surface& surface, int object);

// The node a point element stands on: a node is its own; otherwise the node
// (iName 99) whose Id is the element's sNodAm; 0 if none. The element is left
// current.
int NodeUnder(Surface& surface, int element);

// How many elements stand on the node: objects touching its rectangle, but
// links, nodes, the radius of action and objects without an Id. The selection
// is cleared, the cursor put back and that object selected.
int CountOnNode(Surface& surface, int node);

// The point and regulating elements (iGroup 1 or 3) touching the node.
std::vector<int> ElementsOnNode(Surface& surface, int node);
// How many of them belong to the family `group`.
int CountGroupOnNode(Surface& surface, int node, int group);

// The link elements touching the node whose upstream end (end 0) is the node
// (compared by Id). The selection is cleared.
std::vector<int> DownstreamCollectors(Surface& surface, int node);
// The routes, collectors and connections touching the node whose downstream
// end (end 1) is the node. The selection is cleared.
std::vector<int> UpstreamLinks(Surface& surface, int node);

// Where an end of a link stands: its Xlog, Ylog rounded, or its centre when
// it has no Xlog. The object is left current.
std::pair<double, double> LogicalPosition(Surface& surface, int number);

// Length of a link from the map positions of its two ends (their Xlog, Ylog
// rounded, through the calibration; an end without Xlog is taken at its
// centre); 0 for an object that is not a link.
double LinkLength(Surface& surface, const Calibration& calibration, int link);

// Length of a link from the Xus, Yus tags of its ends; 0 for a non-link.
double LinkLengthFromUserTags(Surface& surface, int link);

}  // namespace pluvane
