// The checks of the Exploitation menu: forbidden values, doublets and orphan
// elements. Each walks the drawing without changing it and gives the lines of
// its report, the closing counts included.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "foundation/user_interface.h"
#include "drawing/surface.h"

namespace pluvane {

inline constexpr const char* kCheckNoNetwork = "un reseau doit être chargé !";
inline constexpr const char* kForbiddenTitle = "Recherche de valeur interdite";
inline constexpr const char* kDoubletsTitle = "Recherche de doublon";
inline constexpr const char* kOrphansTitle = "Recherche d'élément orphelin";
inline constexpr const char* kAllChecksTitle = "Test du réseau";

struct CheckReport {
  std::string title;
  std::vector<std::string> lines;
  int found = 0;
};

// With no network each says so and gives nothing.
std::optional<CheckReport> CheckForbiddenValues(Surface& surface, UserInterface& ui);
std::optional<CheckReport> CheckDoublets(Surface& surface, UserInterface& ui);
// Deselects everything first, as the walk of the links does.
std::optional<CheckReport> CheckOrphans(Surface& surface, UserInterface& ui);
// The three in that order, as one report: the maintenance menu's test.
std::optional<CheckReport> CheckAll(Surface& surface, UserInterface& ui);

}  // namespace pluvane
