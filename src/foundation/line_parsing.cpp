#include "foundation/line_parsing.h"

#include "foundation/text.h"

namespace pluvane {

namespace {

std::string_view TrimView(std::string_view s) {
  while (!s.empty() && s.front() == ' ') s.remove_prefix(1);
  while (!s.empty() && s.back() == ' ') s.remove_suffix(1);
  return s;
}

std::string_view LTrimView(std::string_view s) {
  while (!s.empty() && s.front() == ' ') s.remove_prefix(1);
  return s;
}

// Byte length of the character that starts `s` (1 for a stray byte).
std::size_t FirstCharLength(std::string_view s) {
  if (s.empty()) return 0;
  std::size_t n = 1;
  while (n < s.size() && (static_cast<unsigned char>(s[n]) & 0xC0) == 0x80) ++n;
  return n;
}

}  // namespace

int SplitLine(UserInterface& ui, std::string_view line, std::vector<std::string>& elements,
              std::string_view separator) {
  if (separator.empty()) separator = " ";
  elements.clear();
  std::string_view rest = line;
  while (true) {
    rest = TrimView(rest);
    std::string_view element;
    if (!rest.empty() && rest.front() == '"') {
      rest.remove_prefix(1);
      std::size_t close = rest.find('"');
      if (close == std::string_view::npos) {
        ui.ShowMessage("Un 2eme guillemet manque pour l'element " + std::string(rest), "",
                       MessageIcon::kNone);
        elements.clear();
        return 0;
      }
      element = rest.substr(0, close);
      rest.remove_prefix(close + 1);
      rest.remove_prefix(FirstCharLength(rest));
    } else {
      std::size_t at = rest.find(separator);
      if (at == std::string_view::npos) {
        if (!rest.empty()) elements.push_back(std::string(rest));
        return static_cast<int>(elements.size());
      }
      element = rest.substr(0, at);
      rest.remove_prefix(at + separator.size());
    }
    elements.push_back(Trim(element));
  }
}

void GetEline(UserInterface& ui, std::string_view line, int n, std::vector<std::string>& elements) {
  if (n > 0 && elements.size() < static_cast<std::size_t>(n)) elements.resize(n);
  std::string_view rest = line;
  for (int i = 1; i <= n; ++i) {
    rest = LTrimView(rest);
    std::string& element = elements[i - 1];
    if (!rest.empty() && rest.front() == '"') {
      rest.remove_prefix(1);
      std::size_t close = rest.find('"');
      if (close == std::string_view::npos) {
        ui.Beep();
        ui.ShowMessage(
            " Erreur dans GetEline.\r\n Un guillemet manquant dans la ligne " + std::string(rest),
            "", MessageIcon::kNone);
        return;
      }
      element = Trim(rest.substr(0, close));
      rest.remove_prefix(close + 1);
    } else if (std::size_t blank = rest.find(' '); blank != std::string_view::npos) {
      element = Trim(rest.substr(0, blank));
      rest.remove_prefix(blank + 1);
    } else if (!rest.empty()) {
      element = Trim(rest);
      rest = {};
    } else if (i < n) {
      element = "0";
    }
  }
}

TextReader::TextReader(const std::string& path) { open_ = ReadTextFile(path, text_); }

bool TextReader::ReadLine(std::string_view& line) {
  if (AtEnd()) return false;
  std::size_t end = text_.find('\n', next_);
  if (end == std::string::npos) end = text_.size();
  std::size_t stop = end;
  if (stop > next_ && text_[stop - 1] == '\r') --stop;
  line = std::string_view(text_).substr(next_, stop - next_);
  next_ = end + 1;
  return true;
}

bool TextReader::ReadLine(std::string& line) {
  std::string_view view;
  if (!ReadLine(view)) return false;
  line.assign(view);
  return true;
}

std::string ReadQuoted(TextReader& reader, int& position, std::string* raw_line) {
  std::string line;
  if (!reader.ReadLine(line)) {
    position = 0;
    if (raw_line != nullptr) raw_line->clear();
    return {};
  }
  if (raw_line != nullptr) *raw_line = line;
  return QuotedPart(Trim(line), position);
}

bool FindQuotedKey(UserInterface& ui, const std::string& file, std::string_view key) {
  TextReader reader(file);
  if (!reader.IsOpen()) {
    ui.ShowMessage(
        "Fichier " + file + " introuvable!\nEnregistrer les données et Quitter le programme!", "",
        MessageIcon::kNone);
    return false;
  }
  while (!reader.AtEnd()) {
    int position = 0;
    std::string quoted = ReadQuoted(reader, position);
    if (position > 0 && EqualsNoCase(quoted, key)) return true;
  }
  return false;
}

}  // namespace pluvane
