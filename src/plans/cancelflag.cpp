#include "plans/cancelflag.h"

#include <utility>

namespace tamo {

void CancelFlag::Cancel() {
  const std::lock_guard<std::mutex> guard(mutex_);
  cancelled_ = true;
  if (const auto tell = std::exchange(tell_, nullptr)) tell();
}

void CancelFlag::WhenCancelled(std::function<void()> tell) {
  const std::lock_guard<std::mutex> guard(mutex_);
  tell_ = std::move(tell);
  if (cancelled_ && tell_) std::exchange(tell_, nullptr)();
}

}  // namespace tamo
