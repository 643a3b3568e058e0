#include "common/filememory.h"

#include <algorithm>
#include <utility>

namespace tamo {

bool FileMemory::Find(const QString& path, const FileStamp& stamp, QString& text) {
  if (!stamp.Known()) return false;
  const std::lock_guard lock(mutex_);
  const auto young = young_.constFind(path);
  if (young != young_.constEnd()) {
    if (young->stamp != stamp) return false;
    text = young->text;
    return true;
  }
  const auto old = old_.constFind(path);
  if (old == old_.constEnd() || old->stamp != stamp) return false;
  text = old->text;
  Add(path, old_.take(path));
  return true;
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
  young_.remove(path);
  old_.remove(path);
}

void FileMemory::Add(const QString& path, Entry entry) {
  if (characters_ + entry.text.size() > kMost / 2) {
    old_ = std::exchange(young_, {});
    characters_ = 0;
  }
  characters_ += entry.text.size();
  young_.emplace(path, std::move(entry));
}

}  // namespace tamo
