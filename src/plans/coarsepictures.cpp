#include "plans/coarsepictures.h"

#include <algorithm>
#include <utility>

namespace tamo {

std::shared_ptr<const Picture> CoarsePictures::Find(int page, int half) const {
  const auto found = std::find_if(pages_.begin(), pages_.end(),
                                  [&](const Page& kept) { return kept.page == page; });
  return found == pages_.end() ? nullptr : found->halves[half];
}

void CoarsePictures::LookAt(int page) {
  const auto found = std::find_if(pages_.begin(), pages_.end(),
                                  [&](const Page& kept) { return kept.page == page; });
  if (found != pages_.end()) pages_.splice(pages_.begin(), pages_, found);
}

// A half that comes late, of a page that was left meanwhile, is no look at it.
void CoarsePictures::Keep(int page, int half, std::shared_ptr<const Picture> picture) {
  const auto found = std::find_if(pages_.begin(), pages_.end(),
                                  [&](const Page& kept) { return kept.page == page; });
  if (found != pages_.end()) {
    found->halves[half] = std::move(picture);
    return;
  }
  pages_.push_front({page, {}});
  pages_.front().halves[half] = std::move(picture);
  if (pages_.size() > kMostPages) pages_.pop_back();
}

}  // namespace tamo
