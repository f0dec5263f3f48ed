#include "shell/cli_options.h"

#include <filesystem>
#include <system_error>

#include "foundation/paths.h"

namespace pluvane {

namespace {

const CliOption* Find(const std::vector<CliOption>& options, const std::string& word) {
  for (const CliOption& option : options) {
    for (const std::string& name : option.names) {
      if (name == word) return &option;
    }
  }
  return nullptr;
}

std::string StartFolder() {
  std::error_code error;
  return std::filesystem::current_path(error).string();
}

}  // namespace

bool CliOptions::Parse(const std::vector<std::string>& args,
                       const std::vector<CliOption>& options, std::size_t min_positional,
                       std::size_t max_positional, bool positional_paths) {
  const std::string start = StartFolder();
  positional_.clear();
  values_.clear();
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& word = args[i];
    if (!word.empty() && word[0] == '-') {
      const CliOption* option = Find(options, word);
      if (option == nullptr) return false;
      std::vector<std::string>& values = values_[option->names.front()];
      if (!option->takes_value) continue;
      if (i + 1 >= args.size()) return false;
      const std::string& value = args[++i];
      values.push_back(option->is_path ? AbsolutePath(value, start) : value);
    } else {
      positional_.push_back(positional_paths ? AbsolutePath(word, start) : word);
    }
  }
  return positional_.size() >= min_positional && positional_.size() <= max_positional;
}

std::string CliOptions::Value(const std::string& name) const {
  const auto found = values_.find(name);
  if (found == values_.end() || found->second.empty()) return "";
  return found->second.back();
}

std::vector<std::string> CliOptions::Values(const std::string& name) const {
  const auto found = values_.find(name);
  return found == values_.end() ? std::vector<std::string>{} : found->second;
}

}  // namespace pluvane
