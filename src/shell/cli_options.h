// The words given to one command of pluvane-cli: its positional words and its
// options. Words that name files are made whole against the folder the command
// was started from as soon as they are read, before anything (the opening of
// a network, an engine run) changes the current folder.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace pluvane {

// One option: its names ("-o", "--output"), whether a value follows it, and
// whether that value is a file's path.
struct CliOption {
  std::vector<std::string> names;
  bool takes_value = true;
  bool is_path = false;
};

class CliOptions {
 public:
  // `positional_paths` says which positional words name files (the others are
  // taken as they are). False on bad usage: an unknown option, an option
  // without its value, fewer than `min_positional` or more than
  // `max_positional` positional words.
  bool Parse(const std::vector<std::string>& args, const std::vector<CliOption>& options,
             std::size_t min_positional, std::size_t max_positional,
             bool positional_paths = true);

  const std::vector<std::string>& Positional() const { return positional_; }
  // An option is known by its first name.
  bool Has(const std::string& name) const { return values_.count(name) != 0; }
  // Its value (the last one given), empty when absent.
  std::string Value(const std::string& name) const;
  // Every value of an option that may be repeated, in the order given.
  std::vector<std::string> Values(const std::string& name) const;

 private:
  std::vector<std::string> positional_;
  std::map<std::string, std::vector<std::string>> values_;
};

}  // namespace pluvane
