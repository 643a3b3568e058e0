#include <QSet>
#include <algorithm>
#include <atomic>
#include <utility>

#include "common/failure.h"
#include "common/paths.h"
#include "common/replacement.h"
#include "plans/plansession.h"

// How the viewer saves. A save costs what changed: nothing when no mark is new, an incremental
// update at the file's end when one is. Only the first marked copy is as long as the plan.

namespace tamo {
namespace {

constexpr qint64 kCopyChunk = qint64(1) << 20;
constexpr qint64 kCompared = 2048;

QString PartWritten(const QString& path, int error) {
  return QStringLiteral(
             "The plan %1 was saved in part only: %2. The part is cut off again when the plan is "
             "next opened; the marks stay on the screen and are saved with the next save that "
             "succeeds.")
      .arg(FileNameOf(path), ReasonText(error));
}

}  // namespace

int PdfDraw::DoAside(const SavePart& work, int patience, QString* problem) {
  const auto progress = std::make_shared<Progress>();
  const bool done =
      session_->thread->Run([progress, work] { progress->error = work(*progress); }, patience,
                            [&] { Raise(onSaveProgress, progress->perCent.load()); });
  const std::lock_guard<std::mutex> guard(progress->writing);
  progress->left = true;
  if (done && problem != nullptr) *problem = progress->problem;
  return done ? progress->error : kFileOther;
}

int PdfDraw::SaveFailed(const QString& path, int error, const QString& reason) {
  problem_ = QStringLiteral(
                 "The plan %1 can't be saved: %2. The old file is unchanged; the marks stay on the "
                 "screen and are saved with the next save that succeeds.")
                 .arg(FileNameOf(path), reason.isEmpty() ? ReasonText(error) : reason);
  return error;
}

void PdfDraw::CutTornTail(const QString& path, qint64 whole) {
  Disk& disk = files_.GetDisk();
  int handle = -1;
  if (!disk.CanWrite(path) || disk.OpenAtEnd(path, handle) != kNoError) return;
  disk.Truncate(handle, whole);
  disk.Sync(handle);
  disk.Close(handle);
}

MarkChanges PdfDraw::Changes() const {
  MarkChanges changes;
  changes.markerSize = MarkerSize();
  QSet<QString> names;
  for (const Mark& mark : MarksAsDrawn()) {
    names.insert(mark.name);
    const auto saved = session_->saved.constFind(mark.name);
    if (saved == session_->saved.constEnd()) {
      changes.added.push_back(mark);
    } else if (*saved != mark) {
      changes.removed.push_back(mark.name);
      changes.added.push_back(mark);
    }
  }
  for (auto saved = session_->saved.keyBegin(); saved != session_->saved.keyEnd(); ++saved) {
    if (!names.contains(*saved)) changes.removed.push_back(*saved);
  }
  return changes;
}

bool PdfDraw::HasUnsavedMarks() const {
  return session_ != nullptr && !Changes().Empty();
}

int PdfDraw::SaveAlone(const QString& given, const std::function<int()>& save) {
  if (saving_) return SaveFailed(given, kFileOther, QStringLiteral("it is just being saved"));
  saving_ = true;
  const int error = save();
  Raise(onSaveProgress, 100);
  saving_ = false;
  return error;
}

int PdfDraw::SaveAs(const QString& given) {
  return SaveAlone(given, [&] { return SaveNow(given); });
}

int PdfDraw::AddTo(const QString& path) {
  return SaveAlone(path, [&] { return AddNow(path); });
}

int PdfDraw::SaveNow(const QString& given) {
  if (ShownPath().isEmpty() || session_ == nullptr) {
    problem_ = QStringLiteral("No plan is shown, so there is nothing to save.");
    return kFileNotFound;
  }
  if (!FinishOpening(kBuildPatience)) {
    return SaveFailed(given, kFileOther, QStringLiteral("it is still being opened"));
  }
  if (session_ == nullptr) return kFileOther;
  const QString path = files_.Resolved(given);
  Disk& disk = files_.GetDisk();
  const bool same = path == files_.Resolved(ShownPath()) && disk.Exists(path);
  const MarkChanges changes = Changes();
  if (same && changes.Empty()) {
    path_ = given;
    return Confirm(path);
  }
  if (disk.IsFolder(path) || (disk.Exists(path) && !disk.CanWrite(path))) {
    return SaveFailed(path, kNoAccess);
  }
  if (const int error = WriteChanges(path, same, changes)) return error;
  MarksAreSaved();
  path_ = given;
  problem_.clear();
  return Confirm(path);
}

int PdfDraw::AddNow(const QString& path) {
  if (session_ == nullptr || !FinishOpening(kBuildPatience)) {
    return SaveFailed(path, kFileOther, QStringLiteral("it is still being opened"));
  }
  if (!files_.GetDisk().CanWrite(path)) return SaveFailed(path, kNoAccess);
  const MarkChanges changes = Changes();
  if (const int error = TakeFromDisk(path, changes)) return error;
  MarksAreSaved();
  path_ = path;
  problem_.clear();
  return kNoError;
}

void PdfDraw::MarksAreSaved() {
  session_->saved.clear();
  for (const Mark& mark : MarksAsDrawn()) session_->saved.insert(mark.name, mark);
}

// Writes to an open file, down to the disk.
int PdfDraw::WriteDown(Disk& disk, int handle, const QByteArray& bytes, Progress& progress) {
  const std::lock_guard<std::mutex> guard(progress.writing);
  if (progress.left) return kFileOther;
  const int error = bytes.isEmpty() ? kNoError : disk.Write(handle, bytes);
  return error != kNoError ? error : disk.Sync(handle);
}

PdfDraw::SavePart PdfDraw::WriteBytes(int handle, const QByteArray& bytes) const {
  return [disk = &files_.GetDisk(), handle, bytes](Progress& progress) {
    return WriteDown(*disk, handle, bytes, progress);
  };
}

int PdfDraw::WriteChanges(const QString& path, bool same, const MarkChanges& changes) {
  if (!same) return WriteCopy(path, changes);
  return ChangedOnDisk(path) ? TakeFromDisk(path, changes) : Append(path, changes);
}

// Whether another program has written to the plan since this one read or saved it.
bool PdfDraw::ChangedOnDisk(const QString& path) {
  std::shared_ptr<FileReader> reader;
  if (files_.GetDisk().OpenToRead(path, reader) != kNoError) return false;
  const FileTail tail = ReadTail(*reader);
  if (tail.whole != session_->size) return true;
  if (tail.torn) CutTornTail(path, tail.whole);
  const qint64 shared = session_->source->Size();
  const qint64 from = std::max(qint64(0), shared - kCompared);
  return ReadPart(*reader, from, shared - from) !=
         ReadPart(*session_->source->Reader(), from, shared - from);
}

// Built on the plan's own thread; the job owns all it works on, so it may come late.
int PdfDraw::BuildUpdate(Session& session, const MarkChanges& changes, QByteArray& bytes) {
  const auto update = std::make_shared<PlanUpdate>();
  const bool done = session.thread->Run(
      [update, changes, plan = session.plan] { *update = plan->BuildUpdate(changes); },
      kBuildPatience, [this] { Raise(onSaveProgress, 0); });
  if (!done) return SaveFailed(ShownPath(), kFileOther, QStringLiteral("it takes too long"));
  bytes = update->bytes;
  if (update->error == kNoError) return kNoError;
  SaveFailed(ShownPath(), update->error, update->problem);
  return update->needsRewrite ? kNeedsRewrite : update->error;
}

// An update that is built and appended in one go on the plan's thread: the window waits once.
struct PdfDraw::Appended {
  PlanUpdate update;
  std::atomic<bool> built = false;  // from then on something of it may stand in the file

  int Do(EnginePlan& plan, const MarkChanges& changes, Disk& disk, int handle, Progress& progress) {
    update = plan.BuildUpdate(changes);
    progress.problem = update.problem;
    if (update.error != kNoError) return update.needsRewrite ? kNeedsRewrite : update.error;
    built = true;
    const int error = WriteDown(disk, handle, update.bytes, progress);
    if (error != kNoError) plan.ForgetUpdate();  // it did not reach the disk
    return error;
  }
};

int PdfDraw::Append(const QString& path, const MarkChanges& changes) {
  Disk& disk = files_.GetDisk();
  int handle = -1;
  int error = disk.OpenAtEnd(path, handle);
  if (error != kNoError) return SaveFailed(path, error);
  const auto job = std::make_shared<Appended>();
  QString problem = QStringLiteral("it takes too long");
  error =
      DoAside([job, plan = session_->plan, changes, disk = &disk, handle](
                  Progress& progress) { return job->Do(*plan, changes, *disk, handle, progress); },
              kBuildPatience + kCopyPatience, &problem);
  bool takenBack = true;
  // What part of it arrived goes again; should that fail, too, the next opening cuts it.
  if (error != kNoError && job->built)
    takenBack = disk.Truncate(handle, session_->size) == kNoError;
  disk.Close(handle);  // all is on the disk already, or taken back
  if (error == kNoError) {
    session_->size += job->update.bytes.size();
    return kNoError;
  }
  SaveFailed(path, error == kNeedsRewrite ? kFileOther : error, problem);
  if (!takenBack) problem_ = PartWritten(path, error);
  return error == kNeedsRewrite ? WriteAnew(path, changes) : error;
}

// Copies the plan and `more` behind it to an open file, down to the disk.
PdfDraw::SavePart PdfDraw::CopyBytes(int handle, const QByteArray& more) const {
  return [handle, rest = WriteBytes(handle, more), disk = &files_.GetDisk(),
          reader = session_->source->Reader(), size = session_->size](Progress& progress) {
    for (qint64 place = 0; place < size; place += kCopyChunk) {
      const qint64 count = std::min(kCopyChunk, size - place);
      const QByteArray part = ReadPart(*reader, place, count);
      if (part.size() != count) return kFileOther;
      const std::lock_guard<std::mutex> guard(progress.writing);
      if (progress.left) return kFileOther;
      if (const int error = disk->Write(handle, part)) return error;
      progress.perCent = static_cast<int>((place + count) * 99 / size);
    }
    return rest(progress);
  };
}

// Ends a copy: on the disk, then under its name. A failure leaves what stood there.
int PdfDraw::FinishCopy(Replacement& copy, int error, const QString& path) {
  error = copy.Finish(error);
  unsure_ = error == kNotConfirmed ? path : QString();
  return error == kNoError || error == kNotConfirmed ? kNoError : SaveFailed(path, error);
}

// The marks stand in the file, but the device did not say so: it is asked once more.
int PdfDraw::Confirm(const QString& path) {
  if (unsure_ != path) return kNoError;
  if (files_.GetDisk().SyncFolder(FolderOf(path)) != kNoError) {
    problem_ = QStringLiteral(
                   "The plan %1 is saved with its marks, but the device did not confirm it: a "
                   "power cut could bring back the old state. It is asked again at every save.")
                   .arg(FileNameOf(path));
    return kNotConfirmed;
  }
  unsure_.clear();
  return kNoError;
}

int PdfDraw::WriteCopy(const QString& path, const MarkChanges& changes) {
  QByteArray bytes;
  int error = kNoError;
  if (!changes.Empty()) error = BuildUpdate(*session_, changes, bytes);
  if (error == kNeedsRewrite) return WriteAnew(path, changes);
  if (error != kNoError) return error;
  Disk& disk = files_.GetDisk();
  Replacement copy(disk, path);
  error = copy.Begin();
  if (error == kNoError) {
    error = DoAside(CopyBytes(copy.Handle(), bytes), kCopyPatience);
    error = FinishCopy(copy, error, path);
  } else {
    SaveFailed(path, error);
  }
  if (error != kNoError) {
    if (!changes.Empty()) ForgetUpdate();
    return error;
  }
  session_->size += bytes.size();
  // From now on the copy is read, so the plan stays even when its source goes.
  std::shared_ptr<FileReader> reader;
  if (disk.OpenToRead(path, reader) == kNoError) session_->source->Replace(std::move(reader));
  return kNoError;
}

// The update that was built did not reach the disk.
void PdfDraw::ForgetUpdate() {
  session_->thread->Run([plan = session_->plan] { plan->ForgetUpdate(); }, kBuildPatience,
                        [this] { Raise(onSaveProgress, 0); });
}

}  // namespace tamo
