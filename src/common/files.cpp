#include "common/files.h"

#include <algorithm>

#include "common/failure.h"
#include "common/paths.h"
#include "common/replacement.h"
#include "common/textlines.h"

namespace tamo {
QString Files::Resolved(const QString& path) {
  if (disk_.Exists(path)) return path;
  const QString other = names_.OtherCase(disk_, path);
  return other.isEmpty() ? path : other;
}

int Files::ReadText(const QString& path, QString& text) {
  text.clear();
  if (!pending_.empty()) {
    if (const Pending* pending = FindPendingText(path)) {
      text = pending->text;
      return kNoError;
    }
  }
  const FileStamp stamp = disk_.Stamp(path);
  const int error = Noted(path, ReadAnyCase(path, text));
  if (error == kNoError) {
    book_.Read(path, text);
    book_.Saw(path, stamp);
  } else if (IsMissing(error)) {
    book_.NotThere(path);
  } else {
    text = book_.LastText(path);
  }
  return error;
}

int Files::ReadForReport(const QString& path, QString& text, bool missing) {
  text.clear();
  if (!pending_.empty()) {
    if (const Pending* pending = FindPendingText(path)) {
      text = pending->text;
      return kNoError;
    }
  }
  return Noted(path, ReadAnyCase(path, text, missing));
}

int Files::ReadAnyCase(const QString& path, QString& text, bool missing) {
  text.clear();
  const int error = missing ? kFileNotFound : ReadStored(path, text);
  if (error != kFileNotFound) return error;
  const QString other = names_.OtherCase(disk_, path);
  return other.isEmpty() || other == path ? error : ReadStored(other, text);
}

// A file that is not there is missing, unless it or a folder above it was there before.
int Files::GoneOrMissing(const QString& path, int error) const {
  if (!IsMissing(error)) return error;
  if (book_.Seen(path)) return kGone;
  if (error == kFileNotFound) return error;
  for (QString folder = FolderOf(path); !folder.isEmpty(); folder = FolderOf(folder)) {
    if (book_.SeenFolder(folder) && !disk_.Exists(folder)) return kGone;
  }
  return error;
}

bool Files::IsGone(const QString& path) const {
  if (disk_.Exists(path)) return false;
  return book_.SeenFolder(path) || GoneOrMissing(path, kPathNotFound) == kGone;
}

bool Files::IsBehind(const QString& path) {
  return book_.Apart(path) && !book_.IsFailing(path) && FindPending(path) == nullptr;
}

// What a read came to is told in the notice, or taken out of it.
int Files::Noted(const QString& path, int error) {
  error = GoneOrMissing(path, error);
  const size_t before = book_.Failures().size();
  if (error != kNoError && !IsMissing(error)) {
    book_.Failed(path, error);
  } else if (before != 0) {
    book_.Mend(path);
  }
  if (book_.Failures().size() != before) Told();
  return error;
}

// The stamp is taken before the file is read, so it is never newer than the text.
int Files::ReadStored(const QString& path, QString& text) {
  if (memory_.Knows(path) && memory_.Find(path, disk_.Stamp(path), text)) return kNoError;
  QByteArray bytes;
  FileStamp stamp;
  const int error = disk_.ReadStamped(path, bytes, stamp);
  if (error != kNoError) return error;
  text = DecodedText(bytes);
  if (!IsText(text)) {
    text.clear();
    return kNotText;
  }
  memory_.Keep(path, stamp, text);
  return kNoError;
}

int Files::ReadLines(const QString& path, QStringList& lines) {
  QString text;
  const int error = ReadText(path, text);
  lines = WholeLines(text);
  return error;
}

int Files::ReadFields(const QString& path, QStringList& fields) {
  QString text;
  const int error = ReadText(path, text);
  fields = DelimitedFields(text);
  return error;
}

int Files::SaveLines(const QString& path, const QStringList& lines, FileKind kind,
                     const QString& base) {
  return SaveText(path, JoinedLines(lines), kind, base);
}

int Files::SaveText(const QString& path, const QString& text, FileKind kind, const QString& base) {
  if (mayWrite && !mayWrite(path)) return kNoAccess;
  if (!pending_.empty() || !book_.Failures().empty()) RetryPending(path);
  Pending save{path, text, kNoError, {}, kind, false, base};
  save.text.remove(QChar(u'\0'));  // no text that can be read again holds one
  const int error = Store(save, true);
  Pending* known = FindPending(path);
  if (error != kNoError && error != kTheirsTaken) {
    if (known != nullptr) {
      *known = std::move(save);
    } else {
      pending_.push_back(std::move(save));
    }
    Told();
  } else if (known != nullptr) {
    pending_.erase(pending_.begin() + (known - pending_.data()));
    Told();
  }
  return error;
}

// Writes it, together with what the file holds beyond what the program knows of it.
int Files::Store(Pending& save, bool mayAsk) {
  constexpr int kMostRounds = 20;
  for (int round = 0; round < kMostRounds; ++round) {
    Text made;
    save.reason = TextToStore(save, mayAsk, made);
    save.held = save.reason != kNoError;
    if (save.held) return save.reason;
    save.reason = ReplaceInItsFolder(save.path, made);
    if (!made.displaced.isNull()) save.reason = TakeIn(save, save.reason, made);
    if (save.reason == kFileExists) continue;  // another program was quicker
    if (save.reason != kNoError && save.reason != kNotConfirmed) return save.reason;
    book_.Stored(save.path, save.text, made.text != save.text);
    book_.Saw(save.path, disk_.Stamp(save.path));
    return save.reason;
  }
  return save.reason;
}

// Another program stored its text between our look and our save, and ours stands in its place: what
// it holds is merged into ours, until nobody was between. They may have begun with a text that was
// out of its place just then, so that a name that is missing there was not taken out by anybody.
// What can't be merged is put back, and looked at like anything that was there before. 58: the save
// has to be made once more.
int Files::TakeIn(Pending& save, int reason, Text& made) {
  while (!made.displaced.isNull()) {
    Text whole{{}, made.text, {}};
    const bool names = save.kind == FileKind::List || save.kind == FileKind::Pairs;
    const QString base = names ? QString() : made.expected;
    if (!MergeTexts(save.kind, base, made.text, made.displaced, whole.text)) {
      whole.text = made.displaced;
      Replace(save.path, whole);
      book_.SetApart(save.path);
      return kFileExists;
    }
    if (whole.text == made.text) return reason;
    reason = Replace(save.path, whole);
    made = whole;
    if (reason != kNoError && reason != kNotConfirmed) {
      save.text = whole.text;  // theirs waits together with ours
      return reason;
    }
  }
  return reason;
}

// The text of the save was made from an earlier one than the program has read since.
bool Files::IsOlder(const Pending& save) const {
  return !save.base.isNull() && book_.HadAnothersText(save.path) &&
         save.base != book_.LastText(save.path);
}

// The file may hold something else than what the text of the save was made from.
bool Files::MustLook(const Pending& save) const {
  const QString& path = save.path;
  const FileStamp stamp = disk_.Stamp(path);
  if (!stamp.Known() && !disk_.Exists(path))
    return book_.Seen(path) || book_.Apart(path) || !disk_.Exists(FolderOf(path));
  return book_.WasAbsent(path) || book_.Apart(path) || book_.MayBeChanged(path, stamp) ||
         IsOlder(save);
}

// The text of a save, merged with the file's where that is not what the program last had of it. An
// error number when the file must not be written over.
int Files::TextToStore(const Pending& save, bool mayAsk, Text& made) {
  const QString& path = save.path;
  made.text = save.text;
  if (book_.HasLastText(path)) made.Expect(book_.LastText(path));
  if (!MustLook(save)) return kNoError;
  QString theirs;
  const int error = Noted(path, ReadAnyCase(path, theirs));
  if (IsMissing(error)) return kNoError;
  if (error != kNoError) return error;
  made.Expect(theirs);
  const bool older = IsOlder(save);
  if (!older && book_.IsLastText(path, theirs)) return kNoError;
  if (MergeTexts(save.kind, older ? save.base : book_.LastText(path), save.text, theirs, made.text))
    return kNoError;
  made.text = save.text;
  return mayAsk && keepMine ? Chosen(save, theirs) : kChangedMeanwhile;
}

// Two texts that can't be merged: the estimator says which one stays.
int Files::Chosen(const Pending& save, const QString& theirs) {
  if (keepMine(save.path, save.text, theirs)) return kNoError;
  book_.SetApart(save.path);
  return kTheirsTaken;
}

bool Files::Exists(const QString& path) {
  return FindPendingText(path) != nullptr || disk_.Exists(Resolved(path));
}

int Files::Remove(const QString& path) {
  if (mayWrite && !mayWrite(path)) return kNoAccess;
  StopTrying(path);
  const QString target = Resolved(path);
  std::shared_ptr<FileReader> former;
  if (witness != nullptr) disk_.OpenToRead(target, former);
  const int error = disk_.RemoveFile(target);
  names_.Forget();
  if (error == kNoError && former != nullptr) witness->Replaced(target, std::move(former));
  if (error == kNoError || IsMissing(error)) book_.Forget(path);
  return error;
}

void Files::ForgetFolder(const QString& folder) {
  book_.ForgetFolder(folder);
  names_.Forget();
  Told();
}

// A folder that went away is not begun anew: what it held may come back.
int Files::MakeFolder(const QString& path) {
  if (mayWrite && !mayWrite(path)) return kNoAccess;
  const QString bare = BareFolder(path);
  if (book_.SeenFolder(bare) && !disk_.Exists(bare)) return kGone;
  const int error = disk_.MakeFolder(bare);
  if (error == kNoError) MakeLasting(bare);
  if (error != kNoError && !missingFolders_.contains(bare) && !disk_.Exists(bare)) {
    missingFolders_ += bare;
  }
  return error;
}

// A new folder stands after a power cut only when the folder above it is on the device.
void Files::MakeLasting(const QString& folder) {
  const auto sync = [this, above = FolderOf(folder)] {
    return disk_.SyncFolder(above) == kNoError ? kNoError : kNotConfirmed;
  };
  if (sync() != kNoError) KeepTrying(folder, kNotConfirmed, sync);
}

void Files::MakeFolders(const QString& path) {
  for (const QString& level : FolderLevels(path)) MakeFolder(level);
  if (!EndsInSeparator(path)) MakeFolder(path);
}

// A folder that could not be made when it was asked for is made now; why it still can't be is the
// reason of the failed save.
int Files::ReplaceInItsFolder(const QString& path, Text& made) {
  const int error = Replace(path, made);
  if (error != kPathNotFound || missingFolders_.isEmpty()) return error;
  const int folders = MakeMissingFolders();
  const int again = Replace(path, made);
  return again == kPathNotFound && folders != kNoError ? folders : again;
}

// The folders that could not be made when they were asked for, outermost first.
int Files::MakeMissingFolders() {
  int error = kNoError;
  missingFolders_.removeIf([&](const QString& folder) {
    if (disk_.Exists(folder)) return true;
    const int made = disk_.MakeFolder(folder);
    if (made == kNoError) disk_.SyncFolder(FolderOf(folder));
    if (made != kNoError && error == kNoError) error = made;
    return made == kNoError;
  });
  return error;
}

void Files::Sweep(const QString& folder) {
  SweepUnfinished(disk_, BareFolder(folder));
}

}  // namespace tamo
