// Turns a hand-written description of .LI2 records (see expected/*.LI2.txt)
// into the bytes the file must hold: 812 bytes a record, single-precision
// numbers little-endian at index I (byte (I - 1) * 4), texts as given.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <sstream>
#include <string>

namespace pluvane {

inline void PutSingle(std::string& record, int index, double value) {
  const auto single = static_cast<float>(value);
  std::uint32_t bits = 0;
  std::memcpy(&bits, &single, 4);
  for (int b = 0; b < 4; ++b) {
    record[static_cast<std::size_t>((index - 1) * 4 + b)] = static_cast<char>(bits >> (8 * b));
  }
}

inline std::string Li2FromDescription(const std::string& description) {
  std::string bytes, record;
  bool open = false;
  auto close = [&] {
    if (open) bytes += record;
  };
  std::istringstream in(description);
  std::string line;
  while (std::getline(in, line)) {
    const std::string body = line.substr(0, line.find('#'));
    std::istringstream words(body);
    std::string first;
    if (!(words >> first)) continue;
    if (first == "record") {
      close();
      record.assign(812, '\0');
      open = true;
    } else if (first == "text") {
      int index = 0;
      words >> index;
      const std::size_t from = body.find('\''), to = body.rfind('\'');
      const std::string text = body.substr(from + 1, to - from - 1);
      record.replace(static_cast<std::size_t>((index - 1) * 4), text.size(), text);
    } else {
      double value = 0;
      words >> value;
      const std::size_t dots = first.find("..");
      const int low = std::stoi(first.substr(0, dots));
      const int high = dots == std::string::npos ? low : std::stoi(first.substr(dots + 2));
      for (int i = low; i <= high; ++i) PutSingle(record, i, value);
    }
  }
  close();
  return bytes;
}

}  // namespace pluvane
