#pragma once

#include <list>
#include <memory>

#include "plans/picture.h"

namespace tamo {

// The coarse pictures of the pages looked at last, each in two halves that two threads paint. Those
// of kMostPages pages are kept, whether a page has both halves or, left too early, only one; the
// page looked at longest ago goes first, so the one in sight stays.
class CoarsePictures {
 public:
  static constexpr size_t kMostPages = 6;  // 6.6 million bytes each at most

  std::shared_ptr<const Picture> Find(int page, int half) const;  // null when it is not there
  bool Has(int page, int half) const { return Find(page, half) != nullptr; }
  bool Whole(int page) const { return Has(page, 0) && Has(page, 1); }
  void Keep(int page, int half, std::shared_ptr<const Picture> picture);
  void LookAt(int page);
  void Clear() { pages_.clear(); }
  size_t Pages() const { return pages_.size(); }

 private:
  struct Page {
    int page = 0;
    std::shared_ptr<const Picture> halves[2];
  };
  std::list<Page> pages_;  // that looked at last first
};

}  // namespace tamo
