#include <algorithm>
#include <atomic>
#include <utility>

#include "common/failure.h"
#include "common/paths.h"
#include "plans/plansession.h"

// How the viewer saves. A save costs what changed: nothing when no mark is new, an incremental
// update at the file's end when one is. Only the first marked copy is as long as the plan.

namespace tamo {
namespace {

constexpr int kBuildPatience = 20000;
constexpr int kRepairPatience = 120000;
constexpr qint64 kCopyChunk = qint64(1) << 20;
constexpr int kCopyPatience = 600000;
constexpr qint64 kCompared = 2048;
// Instead of an error number: nothing can be appended to the plan, it has to be written anew.
constexpr int kNeedsRewrite = -1;

}  // namespace

struct PdfDraw::Progress {
  std::mutex writing;
  bool left = false;  // nobody waits for it any more: nothing may be written
  std::atomic<int> perCent = 0;
  int error = kFileOther;
  QString problem;  // in words, where the work has some
};

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
    if (!session_->savedNames.contains(mark.name)) changes.added.push_back(mark);
  }
  for (const QString& name : session_->savedNames) {
    if (!names.contains(name)) changes.removed.push_back(name);
  }
  return changes;
}

bool PdfDraw::HasUnsavedMarks() const {
  return session_ != nullptr && !Changes().Empty();
}

int PdfDraw::SaveAs(const QString& given) {
  if (saving_) return SaveFailed(given, kFileOther, QStringLiteral("it is just being saved"));
  saving_ = true;
  const int error = SaveNow(given);
  Raise(onSaveProgress, 100);
  saving_ = false;
  return error;
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
    return kNoError;
  }
  if (disk.IsFolder(path) || (disk.Exists(path) && !disk.CanWrite(path))) {
    return SaveFailed(path, kNoAccess);
  }
  if (const int error = WriteChanges(path, same, changes)) return error;
  session_->savedNames.clear();
  for (const Mark& mark : MarksAsDrawn()) session_->savedNames.insert(mark.name);
  path_ = given;
  problem_.clear();
  return kNoError;
}

// Writes to an open file, down to the disk.
PdfDraw::SavePart PdfDraw::WriteBytes(int handle, const QByteArray& bytes) const {
  return [disk = &files_.GetDisk(), handle, bytes](Progress& progress) {
    const std::lock_guard<std::mutex> guard(progress.writing);
    if (progress.left) return kFileOther;
    const int error = bytes.isEmpty() ? kNoError : disk->Write(handle, bytes);
    return error != kNoError ? error : disk->Sync(handle);
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

int PdfDraw::Append(const QString& path, const MarkChanges& changes) {
  QByteArray bytes;
  int error = BuildUpdate(*session_, changes, bytes);
  if (error == kNeedsRewrite) return WriteAnew(path, changes);
  if (error != kNoError) return error;
  Disk& disk = files_.GetDisk();
  int handle = -1;
  error = disk.OpenAtEnd(path, handle);
  if (error == kNoError) {
    error = DoAside(WriteBytes(handle, bytes), kCopyPatience);
    // What part of it arrived goes again; should that fail, too, the next opening cuts it.
    if (error != kNoError) disk.Truncate(handle, session_->size);
    disk.Close(handle);  // all is on the disk already, or taken back
  }
  if (error != kNoError) {
    ForgetUpdate();
    return SaveFailed(path, error);
  }
  session_->size += bytes.size();
  return kNoError;
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

// Ends a copy that is on the disk: under its name. A failure leaves what stood there.
int PdfDraw::FinishCopy(int handle, int error, const QString& unfinished, const QString& path) {
  Disk& disk = files_.GetDisk();
  const int closing = disk.Close(handle);
  if (error == kNoError) error = closing;
  if (error == kNoError) error = disk.Rename(unfinished, path);
  if (error != kNoError) {
    disk.RemoveFile(unfinished);
    return SaveFailed(path, error);
  }
  disk.SyncFolder(FolderOf(path));
  return kNoError;
}

int PdfDraw::WriteCopy(const QString& path, const MarkChanges& changes) {
  QByteArray bytes;
  int error = kNoError;
  if (!changes.Empty()) error = BuildUpdate(*session_, changes, bytes);
  if (error == kNeedsRewrite) return WriteAnew(path, changes);
  if (error != kNoError) return error;
  const QString unfinished = path + QLatin1String(kUnfinishedEnding);
  Disk& disk = files_.GetDisk();
  int handle = -1;
  error = disk.OpenNew(unfinished, handle);
  if (error == kNoError) {
    error = DoAside(CopyBytes(handle, bytes), kCopyPatience);
    error = FinishCopy(handle, error, unfinished, path);
  } else {
    SaveFailed(path, error == kFileNotFound ? kPathNotFound : error);
  }
  if (error != kNoError) {
    if (!changes.Empty()) ForgetUpdate();
    return error == kFileNotFound ? kPathNotFound : error;
  }
  session_->size += bytes.size();
  // From now on the copy is read, so the plan stays even when its source goes.
  std::shared_ptr<FileReader> reader;
  if (disk.OpenToRead(path, reader) == kNoError) session_->source->Replace(std::move(reader));
  return kNoError;
}

// The update that was built did not reach the disk.
void PdfDraw::ForgetUpdate() {
  session_->thread->Run([plan = session_->plan] { plan->ForgetUpdate(); }, kBuildPatience);
}

// Writes the repaired plan to an open file. When that takes too long it is left alone and can't
// touch the file any more.
int PdfDraw::WriteRepaired(int handle, QString& problem) {
  problem = QStringLiteral("it takes too long to repair");
  return DoAside(
      [handle, disk = &files_.GetDisk(), plan = session_->plan,
       size = std::max(session_->size, qint64(1))](Progress& progress) {
        qint64 written = 0;
        const auto sink = [&](const QByteArray& part) {
          const std::lock_guard<std::mutex> guard(progress.writing);
          written += part.size();
          progress.perCent = static_cast<int>(std::min(qint64(90), written * 90 / size));
          return progress.left ? kFileOther : disk->Write(handle, part);
        };
        QString words;
        const int error = plan->WriteWhole(sink, words);
        const std::lock_guard<std::mutex> guard(progress.writing);
        progress.problem = words;
        return error;
      },
      kRepairPatience, &problem);
}

// Opens a plan that is not shown (yet).
std::unique_ptr<PdfDraw::Session> PdfDraw::OpenAside(const QString& path, int& error,
                                                     std::vector<Mark>& marks) {
  std::unique_ptr<Session> aside = NewSession(path, password_, error);
  const auto opening = std::exchange(opening_, nullptr);
  if (aside == nullptr) return nullptr;
  // The opening is the first of the thread's jobs.
  aside->thread->Run([] {}, kBuildPatience, [this] { Raise(onSaveProgress, 90); });
  const std::lock_guard<std::mutex> lock(opening->mutex);
  error = opening->done ? opening->contents.error : kFileOther;
  if (error != kNoError) return nullptr;
  aside->sizes = std::move(opening->contents.sizes);
  marks = std::move(opening->contents.marks);
  for (const Mark& mark : marks) aside->savedNames.insert(mark.name);
  return aside;
}

// A damaged plan can't be added to: it is written anew, repaired, and the marks are added to that.
int PdfDraw::WriteAnew(const QString& path, const MarkChanges& changes) {
  const QString unfinished = path + QLatin1String(kUnfinishedEnding);
  Disk& disk = files_.GetDisk();
  int handle = -1;
  int error = disk.OpenNew(unfinished, handle);
  if (error != kNoError) return SaveFailed(path, error == kFileNotFound ? kPathNotFound : error);
  QString problem;
  std::unique_ptr<Session> anew;
  std::vector<Mark> marks;
  QByteArray bytes;
  error = WriteRepaired(handle, problem);
  if (error == kNoError) problem = QStringLiteral("it is too damaged to hold marks");
  if (error == kNoError) anew = OpenAside(unfinished, error, marks);
  if (error == kNoError && !changes.Empty()) error = BuildUpdate(*anew, changes, bytes);
  if (error == kNeedsRewrite) error = kFileOther;
  if (error == kNoError) {
    problem.clear();
    error = DoAside(WriteBytes(handle, bytes), kCopyPatience);
  }
  if (error != kNoError) {
    disk.Close(handle);
    disk.RemoveFile(unfinished);
    return SaveFailed(path, error, problem);
  }
  error = FinishCopy(handle, error, unfinished, path);
  if (error != kNoError) return error;
  anew->size += bytes.size();
  session_ = std::move(anew);
  StartPainting();
  ViewChanged();  // the new painter learns what is in sight
  return kNoError;
}

// Another program has written to the plan: its state is taken, and what changed here goes on top.
int PdfDraw::TakeFromDisk(const QString& path, const MarkChanges& changes) {
  int error = kNoError;
  std::vector<Mark> marks;
  std::unique_ptr<Session> fresh = OpenAside(path, error, marks);
  if (fresh == nullptr) return SaveFailed(path, error);
  session_ = std::move(fresh);
  StartPainting();
  std::erase_if(marks, [&](const Mark& mark) { return changes.removed.contains(mark.name); });
  marks.insert(marks.end(), changes.added.begin(), changes.added.end());
  FillPlan(session_->sizes, std::move(marks));
  return changes.Empty() ? kNoError : Append(path, changes);
}

}  // namespace tamo
