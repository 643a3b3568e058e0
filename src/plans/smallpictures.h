#pragma once

#include <compare>
#include <cstddef>
#include <list>
#include <map>
#include <memory>

#include "plans/picture.h"

namespace tamo {

// A page in small: the column of the pages, the home page and others want it in sizes of their own.
struct SmallKey {
  int page = 0;  // from 1
  int side = 0;  // pixels of the longer side
  auto operator<=>(const SmallKey&) const = default;
};

// The small pictures that were made. Of each size kMostBytes are kept, beyond that those that were
// asked for longest ago are dropped, but never the newest; of more than kMostSizes the one asked
// for longest ago goes. Who wants a picture again has it made anew.
class SmallPictures {
 public:
  static constexpr size_t kMostBytes = size_t(12) << 20;  // 300 pages of the column
  static constexpr size_t kMostSizes = 3;

  std::shared_ptr<const Picture> Find(const SmallKey& key);  // null when it is not there
  void Keep(const SmallKey& key, std::shared_ptr<const Picture> picture);
  void Clear() { sizes_.clear(); }

 private:
  struct Kept {
    int page = 0;
    std::shared_ptr<const Picture> picture;
  };
  struct OfSize {
    int side = 0;
    std::list<Kept> kept;                             // that asked for last first
    std::map<int, std::list<Kept>::iterator> places;  // by page
    size_t bytes = 0;
    void Drop(std::list<Kept>::iterator which);
  };
  OfSize* SizeOf(int side);  // null when there is none; it is asked for

  std::list<OfSize> sizes_;  // that asked for last first
};

}  // namespace tamo
