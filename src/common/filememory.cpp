#include "common/filememory.h"

#include <algorithm>
#include <utility>

namespace tamo {

bool FileMemory::Find(const QString& path, const FileStamp& stamp, QString& text) {
  if (!stamp.Known()) return false;
  const std::lock_guard lock(mutex_);
  const auto young = young_.find(path);
  if (young != young_.end()) {
    if (young->second.stamp != stamp) return false;
    text = young->second.text;
    return true;
  }
  const auto old = old_.find(path);
  if (old == old_.end() || old->second.stamp != stamp) return false;
  text = old->second.text;
  Entry entry = std::move(old->second);
  old_.erase(old);
  Add(path, std::move(entry));
  return true;
}

bool FileMemory::Knows(const QString& path) {
  const std::lock_guard lock(mutex_);
  return young_.contains(path) || old_.contains(path);
}

void FileMemory::Keep(const QString& path, const FileStamp& stamp, const QString& text) {
  const bool settled = stamp.seen - std::max(stamp.modified, stamp.changed) >= kSettled;
  if (!stamp.Known() || !settled || text.size() > kLargestText) {
    Forget(path);
    return;
  }
  const std::lock_guard lock(mutex_);
  Add(path, {stamp, text});
}

void FileMemory::Forget(const QString& path) {
  const std::lock_guard lock(mutex_);
  young_.erase(path);
  old_.erase(path);
}

void FileMemory::Add(const QString& path, Entry entry) {
  if (characters_ + entry.text.size() > kMost / 2) {
    old_ = std::exchange(young_, {});
    characters_ = 0;
  }
  characters_ += entry.text.size();
  young_.insert_or_assign(path, std::move(entry));
}

}  // namespace tamo
