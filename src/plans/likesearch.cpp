#include "plans/likesearch.h"

#include <utility>

#include "plans/waituntil.h"

namespace tamo {

void LikeSearch::Begin(std::shared_ptr<const SnapIndex> lines,
                       std::shared_ptr<const std::vector<LikeLetter>> letters, const PageBox& box) {
  Drop();
  search_ = std::make_shared<Search>();
  if (thread_ == nullptr) thread_ = std::make_unique<WorkThread>();
  thread_->Post([search = search_, sheet = sheet_, lines = std::move(lines),
                 letters = std::move(letters), box, tell = onDone] {
    if (search->cancel.Cancelled()) return;
    if (sheet->made == nullptr || sheet->made->lines != lines)
      sheet->made = std::make_unique<LikeSheet>(lines, letters);
    LikesFound found = FindLikes(*sheet->made, box, search->cancel, search->perCent);
    {
      const std::lock_guard<std::mutex> guard(search->mutex);
      search->found = std::move(found);
      search->done = true;
    }
    if (tell) tell();
  });
}

// The lines of the sheet go, too, as soon as nobody looks through them any more.
void LikeSearch::Drop() {
  if (search_ == nullptr) return;
  search_->cancel.Cancel();
  search_.reset();
  if (thread_ != nullptr) thread_->Post([sheet = sheet_] { sheet->made.reset(); });
}

bool LikeSearch::Busy() const {
  if (search_ == nullptr) return false;
  const std::lock_guard<std::mutex> guard(search_->mutex);
  return !search_->done;
}

bool LikeSearch::Take(LikesFound& found) {
  if (search_ == nullptr || Busy()) return false;
  found = std::move(search_->found);
  Drop();
  return true;
}

bool LikeSearch::Wait(int milliseconds) {
  return WaitUntil(milliseconds, [this] { return !Busy(); });
}

}  // namespace tamo
