#pragma once

#include <atomic>

#include "plans/cancelflag.h"
#include "plans/likematch.h"

namespace tamo {

// What looking for a symbol gave.
struct LikesFound {
  QString problem;          // why it could not be looked for, or not to the end; "" when it could
  std::vector<Like> likes;  // the sure ones first, each part as one reads; the boxed one is sure
  size_t sure = 0;          // how many are
  QString letters;          // in the symbol in the box
};

// More than one place of them is no symbol any more.
inline constexpr size_t kMostLikes = 2000;

// Finds every place of the sheet where the symbol in the box is drawn: turned by any angle,
// mirrored, touching other lines or crossed by them, but neither larger nor smaller. To be called
// on a thread of its own; `perCent` tells how far it is.
LikesFound FindLikes(const LikeSheet& sheet, const PageBox& box, const CancelFlag& cancel,
                     std::atomic<int>& perCent);

}  // namespace tamo
