// Dates and times written the French way, as the program's reports and
// printouts head their pages.
#pragma once

#include <ctime>
#include <string>

namespace pluvane {

// "dd mmmm yyyy hh:mm:ss": "05 novembre 2026 14:03:27".
std::string FrenchDateTime(const std::tm& when);

// The present local time.
std::tm Now();

}  // namespace pluvane
