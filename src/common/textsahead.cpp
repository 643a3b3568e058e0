#include "common/textsahead.h"

#include <algorithm>
#include <new>
#include <system_error>
#include <utility>

#include "common/failure.h"

namespace tamo {
namespace {

constexpr size_t kBetweenCalls = 32;  // files asked for, between two calls to the other thread

}  // namespace

TextsAhead::TextsAhead(Files& files, size_t count, std::function<QString(size_t)> pathOf,
                       const ReadingPace& pace, Seen seen)
    : files_(files), pathOf_(std::move(pathOf)), pace_(pace), seen_(std::move(seen)) {
  // A save that is pending is read from memory, which belongs to the asking thread.
  if (count < pace_.fewest || !files_.PendingSaves().empty()) return;
  slots_ = std::vector<Slot>(count);
  try {
    thread_ = std::thread([this] { ReadAhead(); });
  } catch (const std::system_error&) {
    slots_.clear();  // no thread to be had: each file is read when it is asked for
  }
}

TextsAhead::~TextsAhead() {
  if (!thread_.joinable()) return;
  stop_ = true;
  ++next_;
  next_.notify_one();
  thread_.join();
}

// Takes files a little ahead of the asking thread, which reads those in between itself: so neither
// waits for the other, whichever of them is faster.
void TextsAhead::ReadAhead() {
  size_t at = 0;
  for (;;) {
    size_t next = next_;
    for (; FarAhead(at, next) && !stop_; next = next_) next_.wait(next);
    at = std::max(at + 1, next + pace_.lead);
    if (stop_ || at >= slots_.size()) return;
    Slot& slot = slots_[at];
    int untouched = Untouched;
    if (slot.state.compare_exchange_strong(untouched, InWork)) ReadSlot(at, slot);
  }
}

void TextsAhead::ReadSlot(size_t at, Slot& slot) {
  QString text;
  try {
    const QString path = pathOf_(at);
    slot.error = path.isEmpty() ? kFileNotFound : files_.ReadStored(path, text);
  } catch (const std::bad_alloc&) {
    slot.error = kFileOther;  // the asking thread reads it once more, and can tell the user
  }
  const bool look = seen_ && slot.error == kNoError;
  slot.text = text;
  waiting_ += text.size();
  slot.state = Ready;
  slot.state.notify_one();
  if (!look) return;
  try {
    seen_(at, text, stop_);
  } catch (const std::bad_alloc&) {  // it is only there to save time
  }
}

int TextsAhead::ReadHere(size_t at, QString& text, bool missing) {
  const QString path = pathOf_(at);
  text.clear();
  return path.isEmpty() ? kFileNotFound : files_.ReadForReport(path, text, missing);
}

int TextsAhead::Next(QString& text) {
  const size_t at = next_++;
  if (!thread_.joinable()) return ReadHere(at, text);
  if ((at + 1) % kBetweenCalls == 0) next_.notify_one();
  Slot& slot = slots_[at];
  int untouched = Untouched;
  if (slot.state.compare_exchange_strong(untouched, InWork)) return ReadHere(at, text);
  // The file is mostly there at once, sooner than a sleeping thread wakes up.
  for (int i = 0; i < pace_.glances && slot.state == InWork; ++i) std::this_thread::yield();
  slot.state.wait(InWork);
  waiting_ -= slot.text.size();
  // What went wrong ahead may be a name in another case, or right by now.
  if (slot.error != kNoError) return ReadHere(at, text, slot.error == kFileNotFound);
  text = std::exchange(slot.text, QString());
  return kNoError;
}

}  // namespace tamo
