#include <algorithm>

#include "common/failure.h"
#include "common/files.h"
#include "common/paths.h"

// What could not be saved or read: kept, tried again, and told in the notice.

namespace tamo {
namespace {

QString UnsureText(const QString& path) {
  return QStringLiteral(
             "Saved, but not surely: %1 holds your entry, but the device did not confirm it. A "
             "power cut could bring back the old state; your entry is kept here, too.")
      .arg(path);
}

}  // namespace

QString ReasonText(int number) {
  switch (number) {
    case kFileNotFound:
    case kPathNotFound:
      return QStringLiteral("its folder does not exist");
    case kNoAccess:
      return QStringLiteral("there is no right to write it");
    case kDiskFull:
      return QStringLiteral("the disk is full");
    case kNotConfirmed:
      return QStringLiteral("the device did not confirm it");
    default:
      return QStringLiteral("the device reports a failure");
  }
}

QString ReadReasonText(int number) {
  switch (number) {
    case kGone:
      return QStringLiteral("it is gone, though it was there before");
    case kNoAccess:
      return QStringLiteral("access to it is denied");
    case kTooLarge:
      return QStringLiteral("it is far too large to be a file of this program");
    case kNotText:
      return QStringLiteral("it holds no text");
    case kPastEnd:
      return QStringLiteral("it ends sooner than its size says");
    case kChangedMeanwhile:
      return QStringLiteral("it holds other entries than those that yours were made from");
    default:
      return QStringLiteral("the device reports a failure");
  }
}

Files::Pending* Files::FindPending(const QString& path) {
  for (Pending& pending : pending_) {
    if (pending.path.compare(path, Qt::CaseInsensitive) == 0) return &pending;
  }
  return nullptr;
}

Files::Pending* Files::FindPendingText(const QString& path) {
  Pending* known = FindPending(path);
  return known != nullptr && !known->save ? known : nullptr;
}

void Files::KeepTrying(const QString& path, int reason, std::function<int()> save) {
  if (Pending* known = FindPending(path)) {
    known->reason = reason;
    known->save = std::move(save);
  } else {
    pending_.push_back({path, {}, reason, std::move(save)});
  }
  Told();
}

void Files::StopTrying(const QString& path) {
  const auto before = pending_.size();
  std::erase_if(pending_, [&](const Pending& pending) {
    return pending.path.compare(path, Qt::CaseInsensitive) == 0;
  });
  if (pending_.size() != before) Told();
}

void Files::RetryPending(const QString& except) {
  const auto before = pending_.size();
  std::erase_if(pending_, [&](Pending& pending) {
    if (pending.path.compare(except, Qt::CaseInsensitive) == 0) return false;
    if (mayWrite && !mayWrite(pending.path)) return false;
    if (pending.save) {
      pending.reason = pending.save();
    } else {
      Store(pending, false);
    }
    return pending.reason == kNoError;
  });
  RetryReads();
  if (pending_.size() != before) Told();
}

// What can be read again leaves the notice. The forms read it when they next show it.
void Files::RetryReads() {
  const std::vector<ReadFailure> failures = book_.Failures();
  for (const ReadFailure& failure : failures) {
    QString text;
    if (FindPendingText(failure.path) == nullptr)
      Noted(failure.path, ReadAnyCase(failure.path, text));
  }
}

bool Files::TryAgain() {
  RetryPending({});
  return pending_.empty();
}

void Files::BeginAnew() {
  for (Pending& pending : pending_) {
    if (!pending.held) continue;
    book_.Forget(pending.path);
    for (QString folder = FolderOf(pending.path); !folder.isEmpty(); folder = FolderOf(folder)) {
      if (!disk_.Exists(folder)) book_.Forget(folder);
    }
    MakeFolders(FolderOf(pending.path));
  }
  RetryPending({});
}

QString Files::BeginAnewQuestion() const {
  QString named;
  const Pending* last = nullptr;
  for (const Pending& pending : pending_) {
    if (!pending.held) continue;
    last = &pending;
    named += QStringLiteral("\n") + pending.path;
  }
  if (last == nullptr) return {};
  return QStringLiteral(
             "Your entries for these files wait here, because of %1: %2.\n%3\n\nBegin anew, and "
             "store them as they stand here? What the files held will be lost. (No: your entries "
             "go on waiting.)")
      .arg(FileNameOf(last->path), ReadReasonText(last->reason), named);
}

QString Files::Notice() const {
  if (pending_.empty()) {
    if (book_.Failures().empty()) return {};
    const ReadFailure& last = book_.Failures().back();
    QString text =
        QStringLiteral(
            "Can't be read: %1, because %2. What stands on the screen stays, and nothing "
            "is written over the file.")
            .arg(last.path, ReadReasonText(last.number));
    if (book_.Failures().size() > 1)
      text += QStringLiteral(" (%1 files can't be read.)").arg(book_.Failures().size());
    return text + QStringLiteral(" Click here to try again.");
  }
  const Pending& last = pending_.back();
  QString text;
  if (last.reason == kNotConfirmed) {
    text = UnsureText(last.path);
  } else if (!last.held) {
    text = QStringLiteral(
               "Not saved: %1, because %2. The file on disk is unchanged; your entry is kept here.")
               .arg(last.path, ReasonText(last.reason));
  } else if (last.reason == kGone) {
    text = QStringLiteral("The data folder can't be reached: %1 is gone. Your entries wait here.")
               .arg(last.path);
  } else {
    text = QStringLiteral("Not saved: %1, because %2. Your entries wait here.")
               .arg(last.path, ReadReasonText(last.reason));
  }
  if (pending_.size() > 1)
    text += QStringLiteral(" (%1 files wait to be saved.)").arg(pending_.size());
  return text + QStringLiteral(" Click here to try again.");
}

}  // namespace tamo
