#include "common/readbook.h"

#include <algorithm>
#include <utility>

#include "common/paths.h"

namespace tamo {

QString ReadBook::Key(const QString& path) {
  return BareFolder(path).toCaseFolded();
}

void ReadBook::Keep(const QString& key, const QString& text) {
  if (characters_ + text.size() > kMostText / 2) {
    old_ = std::exchange(young_, {});
    characters_ = 0;
  }
  old_.remove(key);
  characters_ += text.size() - young_.value(key).size();
  young_.insert(key, text);
  marks_.insert(key, qHash(text));
}

void ReadBook::Mend(const QString& path) {
  std::erase_if(failures_, [&](const ReadFailure& failure) {
    return failure.path.compare(path, Qt::CaseInsensitive) == 0;
  });
}

void ReadBook::Read(const QString& path, const QString& text) {
  const QString key = Key(path);
  seen_.insert(key);
  folders_.insert(FolderOf(key));
  if (!absent_.empty()) absent_.remove(key);
  const auto mark = marks_.constFind(key);
  if (mark != marks_.constEnd() && *mark != qHash(text)) anothers_.insert(key);
  if (!apart_.empty()) apart_.remove(key);
  Keep(key, text);
  if (!failures_.empty()) Mend(path);
}

void ReadBook::Stored(const QString& path, const QString& text, bool merged) {
  const QString key = Key(path);
  const bool another = merged || anothers_.contains(key);
  Read(path, text);
  if (merged) apart_.insert(key);
  if (another) {
    anothers_.insert(key);
  } else {
    anothers_.remove(key);
  }
}

bool ReadBook::MayBeChanged(const QString& path, const FileStamp& now) const {
  const QString key = Key(path);
  if (!marks_.contains(key)) return false;
  const FileStamp last = stamps_.value(key);
  return !last.Known() || !now.Known() || last != now;
}

bool ReadBook::IsLastText(const QString& path, const QString& text) const {
  const auto mark = marks_.constFind(Key(path));
  return mark != marks_.constEnd() && *mark == qHash(text);
}

void ReadBook::Failed(const QString& path, int number) {
  apart_.insert(Key(path));
  for (ReadFailure& failure : failures_) {
    if (failure.path.compare(path, Qt::CaseInsensitive) != 0) continue;
    failure.number = number;
    return;
  }
  if (failures_.size() < kMostFailures) failures_.push_back({path, number});
}

bool ReadBook::IsFailing(const QString& path) const {
  return std::any_of(failures_.begin(), failures_.end(), [&](const ReadFailure& failure) {
    return failure.path.compare(path, Qt::CaseInsensitive) == 0;
  });
}

void ReadBook::Forget(const QString& path) {
  const QString key = Key(path);
  for (QSet<QString>* set : {&seen_, &folders_, &apart_, &absent_, &anothers_}) set->remove(key);
  young_.remove(key);
  old_.remove(key);
  stamps_.remove(key);
  marks_.remove(key);
  Mend(path);
}

void ReadBook::ForgetFolder(const QString& folder) {
  const QString inside = Key(folder) + PlatformSeparator();
  const auto below = [&](const QString& key) { return key.startsWith(inside); };
  for (QSet<QString>* set : {&seen_, &folders_, &apart_, &absent_, &anothers_})
    set->removeIf(below);
  young_.removeIf([&](const auto& entry) { return below(entry.key()); });
  old_.removeIf([&](const auto& entry) { return below(entry.key()); });
  stamps_.removeIf([&](const auto& entry) { return below(entry.key()); });
  marks_.removeIf([&](const auto& entry) { return below(entry.key()); });
  std::erase_if(failures_, [&](const ReadFailure& failure) { return below(Key(failure.path)); });
  Forget(folder);
}

bool ReadBook::HasLastText(const QString& path) const {
  const QString key = Key(path);
  return young_.contains(key) || old_.contains(key);
}

QString ReadBook::LastText(const QString& path) const {
  const QString key = Key(path);
  const auto young = young_.constFind(key);
  return young != young_.constEnd() ? *young : old_.value(key);
}

}  // namespace tamo
