#pragma once

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace tamo {

// Elements that are only added, in pieces of memory that never move: the millionth is added as fast
// as the first.
template <typename T>
class Pieces {
 public:
  size_t Size() const { return size_; }
  const T& operator[](size_t at) const { return pieces_[at / kPiece][at % kPiece]; }
  void Add(const T& element) {
    if (size_ == pieces_.size() * kPiece)
      pieces_.push_back(std::make_unique_for_overwrite<T[]>(kPiece));
    pieces_[size_ / kPiece][size_ % kPiece] = element;
    ++size_;
  }
  size_t Bytes() const { return size_ * sizeof(T); }

 private:
  static constexpr size_t kPiece = 4096;

  std::vector<std::unique_ptr<T[]>> pieces_;
  size_t size_ = 0;
};

}  // namespace tamo
