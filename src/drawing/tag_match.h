// The value a search looks for in a tag. A text matches the whole stored text
// exactly; a number matches a stored text that reads as that same number
// ("99", "99.0", " 99"), which is how the drawing compared numbers with tags.
#pragma once

#include <string>
#include <string_view>

namespace pluvane {

class TagMatch {
 public:
  TagMatch(std::string_view text) : text_(text) {}
  TagMatch(const char* text) : text_(text) {}
  TagMatch(const std::string& text) : text_(text) {}
  TagMatch(double number);
  TagMatch(int number) : TagMatch(static_cast<double>(number)) {}

  bool Matches(std::string_view stored) const;
  bool numeric() const { return numeric_; }
  // The text looked for (for a number, its plain text form).
  const std::string& text() const { return text_; }

 private:
  std::string text_;
  bool numeric_ = false;
  double number_ = 0;
};

// The number that a whole text is (blanks around allowed), if it is one.
bool ReadWholeNumber(std::string_view text, double& number);

}  // namespace pluvane
