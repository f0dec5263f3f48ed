#include "foundation/ini_profile.h"

#include <unistd.h>

#include <filesystem>
#include <vector>

#include "foundation/text.h"

namespace pluvane {

namespace {

std::string_view TrimBlanks(std::string_view s) {
  while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
  while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r')) {
    s.remove_suffix(1);
  }
  return s;
}

enum class LineKind { kOther, kSection, kKey };

// One line of a settings file as the profile functions see it.
struct IniLine {
  LineKind kind = LineKind::kOther;
  std::string_view name;   // section or key name, trimmed
  std::string_view value;  // key value, trimmed, quotes kept
};

IniLine ParseLine(std::string_view raw) {
  IniLine line;
  std::string_view text = TrimBlanks(raw);
  if (text.empty() || text.front() == ';') return line;
  if (text.front() == '[') {
    text.remove_prefix(1);
    line.kind = LineKind::kSection;
    line.name = TrimBlanks(text.substr(0, text.find(']')));
    return line;
  }
  line.kind = LineKind::kKey;
  std::size_t equal = text.find('=');
  line.name = TrimBlanks(text.substr(0, equal));
  if (equal != std::string_view::npos) line.value = TrimBlanks(text.substr(equal + 1));
  return line;
}

std::string_view Unquoted(std::string_view value) {
  if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
      value.back() == value.front()) {
    return value.substr(1, value.size() - 2);
  }
  return value;
}

// Where a key sits in the lines of a file.
struct KeyPlace {
  int section = -1;   // line of the section header, -1 if none
  int key = -1;       // line of the key, -1 if none
  int last_key = -1;  // last key line of the section, -1 if none
};

KeyPlace Locate(const std::vector<std::string>& lines, std::string_view section,
                std::string_view key) {
  KeyPlace place;
  for (int i = 0; i < static_cast<int>(lines.size()); ++i) {
    IniLine line = ParseLine(lines[i]);
    if (line.kind == LineKind::kSection) {
      if (place.section >= 0) break;
      if (EqualsNoCase(line.name, section)) place.section = i;
    } else if (line.kind == LineKind::kKey && place.section >= 0 && !line.name.empty()) {
      place.last_key = i;
      if (place.key < 0 && EqualsNoCase(line.name, key)) place.key = i;
    }
  }
  return place;
}

std::string OneLine(std::string_view text) {
  std::string s(text);
  for (char& c : s) {
    if (c == '\r' || c == '\n') c = ' ';
  }
  return s;
}

}  // namespace

std::string IniRead(std::string_view section, std::string_view key, int buffer_size,
                    const std::string& ini_file) {
  std::vector<std::string> lines;
  if (buffer_size <= 0 || key.empty() || !ReadTextLines(ini_file, lines)) return {};
  KeyPlace place = Locate(lines, TrimBlanks(section), TrimBlanks(key));
  if (place.key < 0) return {};
  std::string_view value = Unquoted(ParseLine(lines[place.key]).value);
  return CharLeft(value, static_cast<std::size_t>(buffer_size - 1));
}

bool IniWrite(std::string_view section, std::string_view key, std::string_view value,
              const std::string& ini_file) {
  const std::string section_name = OneLine(TrimBlanks(section));
  const std::string key_name = OneLine(TrimBlanks(key));
  if (section_name.empty() || key_name.empty()) return false;
  std::vector<std::string> lines;
  std::error_code ec;
  if (std::filesystem::exists(ini_file, ec) && !ReadTextLines(ini_file, lines)) return false;

  KeyPlace place = Locate(lines, section_name, key_name);
  const std::string text = OneLine(value);
  if (place.key >= 0) {
    // The key keeps the spelling it has in the file.
    lines[place.key] = std::string(ParseLine(lines[place.key]).name) + "=" + text;
  } else if (place.section >= 0) {
    int after = place.last_key >= 0 ? place.last_key : place.section;
    lines.insert(lines.begin() + after + 1, key_name + "=" + text);
  } else {
    lines.push_back("[" + section_name + "]");
    lines.push_back(key_name + "=" + text);
  }

  const std::string temporary = ini_file + ".~" + std::to_string(::getpid());
  if (!WriteTextLines(temporary, lines)) {
    std::filesystem::remove(temporary, ec);
    return false;
  }
  std::filesystem::rename(temporary, ini_file, ec);
  if (!ec) return true;
  std::filesystem::remove(temporary, ec);
  return false;
}

}  // namespace pluvane
