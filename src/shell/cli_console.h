// The message console of a command-line command: each message is one line of
// the command's output; gauges and status stay silent.
#pragma once

#include <ostream>
#include <string>

#include "foundation/console.h"

namespace pluvane {

class CliConsole : public Console {
 public:
  explicit CliConsole(std::ostream& out) : out_(out) {}
  void Debut(const std::string&) override {}
  void AfficheMessage(const std::string& text) override { out_ << text << "\n"; }
  void AfficheJauge(int, const std::string&) override {}
  void EffaceJauge() override {}
  void Fin(bool) override {}
  std::string GetStatus() const override { return status_; }
  void SetStatus(const std::string& status) override { status_ = status; }
  void Clear() override {}

 private:
  std::ostream& out_;
  std::string status_;
};

}  // namespace pluvane
