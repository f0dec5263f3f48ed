// The objects that hold one Id, in ascending order. Nearly every Id has a
// single holder, kept in place; a list is made only when there are several,
// so that the index of Ids keeps small entries.
#pragma once

#include <algorithm>
#include <memory>
#include <vector>

namespace pluvane {

class IdHolders {
 public:
  bool Empty() const { return first_ == 0; }
  int Front() const { return first_; }
  int Size() const { return many_ ? static_cast<int>(many_->size()) : (first_ ? 1 : 0); }
  std::vector<int> Numbers() const {
    if (many_) return *many_;
    return first_ ? std::vector<int>{first_} : std::vector<int>();
  }

  // The first holder above `number`, 0 if none.
  int After(int number) const {
    if (!many_) return first_ > number ? first_ : 0;
    auto at = std::upper_bound(many_->begin(), many_->end(), number);
    return at == many_->end() ? 0 : *at;
  }

  // Object numbers are above zero.
  void Insert(int number) {
    if (first_ == 0) {
      first_ = number;
      return;
    }
    if (!many_) many_ = std::make_unique<std::vector<int>>(1, first_);
    many_->insert(std::lower_bound(many_->begin(), many_->end(), number), number);
    first_ = many_->front();
  }

  void Erase(int number) {
    if (!many_) {
      if (first_ == number) first_ = 0;
      return;
    }
    auto at = std::lower_bound(many_->begin(), many_->end(), number);
    if (at == many_->end() || *at != number) return;
    many_->erase(at);
    first_ = many_->front();
    if (many_->size() == 1) many_.reset();
  }

 private:
  int first_ = 0;                           // the lowest holder, 0 when none
  std::unique_ptr<std::vector<int>> many_;  // every holder, when there are several
};

}  // namespace pluvane
