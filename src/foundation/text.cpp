#include "foundation/text.h"

#include <array>
#include <fstream>
#include <sstream>

namespace pluvane {

namespace {

// Unicode code points of the Windows-1252 bytes 0x80 to 0x9F; 0 where the
// byte is unassigned (it then stands for itself, as the C1 control).
constexpr std::array<char32_t, 32> kCp1252High = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void AppendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

// Length of the UTF-8 sequence that starts at `i`, or 0 when it is not valid.
std::size_t SequenceLength(std::string_view s, std::size_t i) {
  const auto b = static_cast<unsigned char>(s[i]);
  std::size_t n;
  char32_t min;
  if (b < 0x80) return 1;
  if ((b & 0xE0) == 0xC0) n = 2, min = 0x80;
  else if ((b & 0xF0) == 0xE0) n = 3, min = 0x800;
  else if ((b & 0xF8) == 0xF0) n = 4, min = 0x10000;
  else return 0;
  if (i + n > s.size()) return 0;
  char32_t c = b & (0x7F >> n);
  for (std::size_t k = 1; k < n; ++k) {
    const auto cont = static_cast<unsigned char>(s[i + k]);
    if ((cont & 0xC0) != 0x80) return 0;
    c = (c << 6) | (cont & 0x3F);
  }
  if (c < min || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return 0;
  return n;
}

// Decodes the code point at `i` of valid UTF-8 and moves `i` past it; an
// invalid byte is taken as Windows-1252 so that nothing is ever lost.
char32_t NextCodePoint(std::string_view s, std::size_t& i) {
  std::size_t n = SequenceLength(s, i);
  const auto b = static_cast<unsigned char>(s[i]);
  if (n <= 1) {
    ++i;
    if (b >= 0x80 && b < 0xA0 && kCp1252High[b - 0x80] != 0) return kCp1252High[b - 0x80];
    return b;
  }
  char32_t c = b & (0x7F >> n);
  for (std::size_t k = 1; k < n; ++k) c = (c << 6) | (static_cast<unsigned char>(s[i + k]) & 0x3F);
  i += n;
  return c;
}

// Byte offset of the character at 0-based index `index` (the size when past the end).
std::size_t OffsetOfChar(std::string_view s, std::size_t index) {
  std::size_t i = 0;
  while (index > 0 && i < s.size()) {
    std::size_t n = SequenceLength(s, i);
    i += n == 0 ? 1 : n;
    --index;
  }
  return i;
}

char32_t UpperOf(char32_t c) {
  if (c >= 'a' && c <= 'z') return c - 32;
  if ((c >= 0xE0 && c <= 0xFE && c != 0xF7)) return c - 32;
  switch (c) {
    case 0x0153: return 0x0152;  // œ
    case 0x0161: return 0x0160;  // š
    case 0x017E: return 0x017D;  // ž
    case 0x00FF: return 0x0178;  // ÿ
    default: return c;
  }
}

char32_t LowerOf(char32_t c) {
  if (c >= 'A' && c <= 'Z') return c + 32;
  if ((c >= 0xC0 && c <= 0xDE && c != 0xD7)) return c + 32;
  switch (c) {
    case 0x0152: return 0x0153;
    case 0x0160: return 0x0161;
    case 0x017D: return 0x017E;
    case 0x0178: return 0x00FF;
    default: return c;
  }
}

template <typename Map>
std::string MapCase(std::string_view text, Map map) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    if (static_cast<unsigned char>(text[i]) < 0x80) {
      out += static_cast<char>(map(static_cast<unsigned char>(text[i])));
      ++i;
    } else {
      AppendUtf8(out, map(NextCodePoint(text, i)));
    }
  }
  return out;
}

}  // namespace

std::string LTrim(std::string_view text) {
  std::size_t b = 0;
  while (b < text.size() && text[b] == ' ') ++b;
  return std::string(text.substr(b));
}

std::string RTrim(std::string_view text) {
  std::size_t e = text.size();
  while (e > 0 && text[e - 1] == ' ') --e;
  return std::string(text.substr(0, e));
}

std::string Trim(std::string_view text) {
  std::size_t b = 0, e = text.size();
  while (b < e && text[b] == ' ') ++b;
  while (e > b && text[e - 1] == ' ') --e;
  return std::string(text.substr(b, e - b));
}

std::string UCase(std::string_view text) { return MapCase(text, UpperOf); }

std::string LCase(std::string_view text) { return MapCase(text, LowerOf); }

bool EqualsNoCase(std::string_view a, std::string_view b) {
  // ASCII texts, the common case, compare without building the capitals.
  for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
    const auto x = static_cast<unsigned char>(a[i]), y = static_cast<unsigned char>(b[i]);
    if (x >= 0x80 || y >= 0x80) return UCase(a) == UCase(b);
    if (UpperOf(x) != UpperOf(y)) return false;
  }
  if (a.size() == b.size()) return true;
  return UCase(a) == UCase(b);
}

std::size_t CharCount(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++count) {
    std::size_t n = SequenceLength(text, i);
    i += n == 0 ? 1 : n;
  }
  return count;
}

std::string CharLeft(std::string_view text, std::size_t count) {
  return std::string(text.substr(0, OffsetOfChar(text, count)));
}

std::string CharRight(std::string_view text, std::size_t count) {
  std::size_t total = CharCount(text);
  if (count >= total) return std::string(text);
  return std::string(text.substr(OffsetOfChar(text, total - count)));
}

std::string CharMid(std::string_view text, std::size_t start, std::size_t count) {
  if (start < 1) start = 1;
  std::size_t b = OffsetOfChar(text, start - 1);
  std::string_view rest = text.substr(b);
  if (count == std::string::npos) return std::string(rest);
  return std::string(rest.substr(0, OffsetOfChar(rest, count)));
}

std::size_t CharFind(std::string_view text, std::string_view what, std::size_t start) {
  if (start < 1) start = 1;
  std::size_t b = OffsetOfChar(text, start - 1);
  if (b > text.size()) return 0;
  std::size_t at = text.find(what, b);
  if (at == std::string_view::npos) return 0;
  return CharCount(text.substr(0, at)) + 1;
}

bool IsValidUtf8(std::string_view bytes) {
  for (std::size_t i = 0; i < bytes.size();) {
    if (static_cast<unsigned char>(bytes[i]) < 0x80) {
      ++i;
      continue;
    }
    std::size_t n = SequenceLength(bytes, i);
    if (n == 0) return false;
    i += n;
  }
  return true;
}

std::string Cp1252ToUtf8(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() + bytes.size() / 8);
  for (char ch : bytes) {
    const auto b = static_cast<unsigned char>(ch);
    if (b < 0x80) {
      out += ch;
    } else if (b < 0xA0 && kCp1252High[b - 0x80] != 0) {
      AppendUtf8(out, kCp1252High[b - 0x80]);
    } else {
      AppendUtf8(out, b);
    }
  }
  return out;
}

std::string DecodeText(std::string_view bytes) {
  if (IsValidUtf8(bytes)) return std::string(bytes);
  return Cp1252ToUtf8(bytes);
}

std::string Utf8ToCp1252(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    if (static_cast<unsigned char>(text[i]) < 0x80) {
      out += text[i++];
      continue;
    }
    char32_t c = NextCodePoint(text, i);
    if (c < 0x100 && !(c >= 0x80 && c < 0xA0 && kCp1252High[c - 0x80] != 0)) {
      out += static_cast<char>(c);
      continue;
    }
    char byte = '?';
    for (std::size_t k = 0; k < kCp1252High.size(); ++k) {
      if (kCp1252High[k] == c) byte = static_cast<char>(0x80 + k);
    }
    out += byte;
  }
  return out;
}

bool ReadTextFile(const std::string& path, std::string& text) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  std::string bytes;
  in.seekg(0, std::ios::end);
  const std::streamoff size = in.tellg();
  in.seekg(0, std::ios::beg);
  if (size > 0) {
    bytes.resize(static_cast<std::size_t>(size));
    in.read(bytes.data(), size);
    bytes.resize(static_cast<std::size_t>(in.gcount()));
  } else {
    // A file whose size is not known beforehand (a pipe, a device).
    std::ostringstream buffer;
    buffer << in.rdbuf();
    bytes = std::move(buffer).str();
  }
  if (IsValidUtf8(bytes)) {
    text = std::move(bytes);
  } else {
    text = Cp1252ToUtf8(bytes);
  }
  return true;
}

bool ReadTextLines(const std::string& path, std::vector<std::string>& lines) {
  std::string text;
  if (!ReadTextFile(path, text)) return false;
  lines.clear();
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t end = text.find('\n', start);
    if (end == std::string::npos) end = text.size();
    std::size_t stop = end;
    if (stop > start && text[stop - 1] == '\r') --stop;
    lines.emplace_back(text, start, stop - start);
    start = end + 1;
  }
  return true;
}

namespace {

bool WriteLines(const std::string& path, const std::vector<std::string>& lines,
                std::ios::openmode mode) {
  std::ofstream out(path, std::ios::binary | mode);
  if (!out) return false;
  for (const auto& line : lines) out << Utf8ToCp1252(line) << "\r\n";
  return static_cast<bool>(out.flush());
}

}  // namespace

bool AppendTextLines(const std::string& path, const std::vector<std::string>& lines) {
  return WriteLines(path, lines, std::ios::app);
}

bool WriteTextLines(const std::string& path, const std::vector<std::string>& lines) {
  return WriteLines(path, lines, std::ios::trunc);
}

std::string QuotedPart(std::string_view line, int& position) {
  std::size_t first = line.find('\'');
  if (first == std::string_view::npos) {
    position = 0;
    return {};
  }
  position = static_cast<int>(CharCount(line.substr(0, first)) + 1);
  std::string_view rest = line.substr(first + 1);
  std::size_t second = rest.find('\'');
  return Trim(second == std::string_view::npos ? rest : rest.substr(0, second));
}

}  // namespace pluvane
