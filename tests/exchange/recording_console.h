// A console that keeps what a treatment told it, for the tests.
#pragma once

#include <string>
#include <vector>

#include "foundation/console.h"

namespace pluvane {

class RecordingConsole : public Console {
 public:
  void Debut(const std::string& title) override {
    title_ = title;
    lines_.clear();
    ++runs_;
  }
  void AfficheMessage(const std::string& text) override { lines_.push_back(text); }
  void AfficheJauge(int, const std::string&) override {}
  void EffaceJauge() override {}
  void Fin(bool close) override {
    ended_ = true;
    closed_ = close;
  }
  std::string GetStatus() const override { return status_; }
  void SetStatus(const std::string& status) override { status_ = status; }
  void Clear() override { lines_.clear(); }

  const std::string& title() const { return title_; }
  const std::vector<std::string>& lines() const { return lines_; }
  int runs() const { return runs_; }
  bool ended() const { return ended_; }
  bool closed() const { return closed_; }

 private:
  std::string title_, status_;
  std::vector<std::string> lines_;
  int runs_ = 0;
  bool ended_ = false, closed_ = false;
};

}  // namespace pluvane
