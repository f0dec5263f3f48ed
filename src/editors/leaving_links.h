// The links that leave the node a regulating element stands on: the branches
// a divider or a basin may send its flow into, listed by label for the list
// cells of the editors, with their object numbers in the same order. And the
// highlight of elements on the plan, which is the drawing's selection.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawing/surface.h"

namespace pluvane {

struct LeavingLinks {
  std::vector<int> handles;         // object numbers, in creation order
  std::vector<std::string> labels;  // their libell, in the same order
  // The labels joined by tabs, without a trailing tab: the entries of a list cell.
  std::string List() const;
  // The number of the link of that label (case-blind), 0 if none.
  int HandleOf(std::string_view label) const;
};

// The node under a point or regulating element: the node whose Id is the
// element's sNodAm; 0 if none. The cursor does not move.
int NodeOfElement(Surface& surface, int element);

// The link elements (iGroup 2) whose upstream end is the node the element
// stands on. The links bound to the node are the ones that touch it, so no
// walk of the drawing is needed. The cursor does not move.
LeavingLinks LinksLeavingNode(Surface& surface, int element);

// Shows these objects, and only them, as highlighted on the plan.
void HighlightObjects(Surface& surface, const std::vector<int>& objects);
// Removes every highlight.
void ClearHighlight(Surface& surface);

}  // namespace pluvane
