// The clock of the benchmarks: milliseconds since a point in time.
#pragma once

#include <chrono>

inline double Milliseconds(std::chrono::steady_clock::time_point since) {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - since)
      .count();
}
