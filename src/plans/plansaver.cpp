#include "plans/plansaver.h"

#include <algorithm>
#include <atomic>
#include <utility>

#include "common/files.h"
#include "common/paths.h"
#include "common/replacement.h"
#include "plans/filetail.h"
#include "plans/saveparts.h"

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

PlanSaver::PlanSaver(Disk& disk, QString& problem, std::function<void(int)> onProgress)
    : disk_(disk), problem_(problem), onProgress_(std::move(onProgress)) {}

int PlanSaver::Alone(const QString& path, const std::function<int()>& save) {
  if (saving_) return Fail(path, kFileOther, QStringLiteral("it is just being saved"));
  saving_ = true;
  const int error = save();
  onProgress_(100);
  saving_ = false;
  return error;
}

int PlanSaver::Fail(const QString& path, int error, const QString& reason) {
  problem_ = QStringLiteral(
                 "The plan %1 can't be saved: %2. The old file is unchanged; the marks stay on the "
                 "screen and are saved with the next save that succeeds.")
                 .arg(FileNameOf(path), reason.isEmpty() ? ReasonText(error) : reason);
  return error;
}

void PlanSaver::TakeOver(PlanSaver& other) {
  unsure_ = std::exchange(other.unsure_, QString());
}

int PlanSaver::Confirm(const QString& path) {
  if (unsure_ != path) return kNoError;
  if (disk_.SyncFolder(FolderOf(path)) != kNoError) {
    problem_ = QStringLiteral(
                   "The plan %1 is saved with its marks, but the device did not confirm it: a "
                   "power cut could bring back the old state. It is asked again at every save.")
                   .arg(FileNameOf(path));
    return kNotConfirmed;
  }
  unsure_.clear();
  return kNoError;
}

bool PlanSaver::ChangedOnDisk(const OpenPlan& plan, const QString& path) {
  std::shared_ptr<FileReader> reader;
  if (disk_.OpenToRead(path, reader) != kNoError) return false;
  const FileTail tail = ReadTail(*reader);
  if (tail.whole != plan.Size()) return true;
  if (tail.torn) CutTornTail(disk_, path, tail.whole);
  const qint64 shared = plan.Source().Size();
  const qint64 from = std::max(qint64(0), shared - kCompared);
  return ReadPart(*reader, from, shared - from) !=
         ReadPart(*plan.Source().Reader(), from, shared - from);
}

// --- Parts of a save

// Does a part on the plan's thread and waits for it, with the window alive; kFileOther when it
// takes too long.
int PlanSaver::DoAside(const OpenPlan& plan, const Part& part, int patience, QString* problem) {
  const auto progress = std::make_shared<Progress>();
  const bool done = plan.Thread().Run([progress, part] { progress->error = part(*progress); },
                                      patience, [&] { onProgress_(progress->perCent.load()); });
  const std::lock_guard<std::mutex> guard(progress->writing);
  progress->left = true;
  if (done && problem != nullptr) *problem = progress->problem;
  return done ? progress->error : kFileOther;
}

// Writes to an open file, down to the disk.
int PlanSaver::WriteDown(Disk& disk, int handle, const QByteArray& bytes, Progress& progress) {
  const std::lock_guard<std::mutex> guard(progress.writing);
  if (progress.left) return kFileOther;
  const int error = bytes.isEmpty() ? kNoError : disk.Write(handle, bytes);
  return error != kNoError ? error : disk.Sync(handle);
}

PlanSaver::Part PlanSaver::WriteBytes(int handle, const QByteArray& bytes) const {
  return [disk = &disk_, handle, bytes](Progress& progress) {
    return WriteDown(*disk, handle, bytes, progress);
  };
}

// Copies the plan and `more` behind it to an open file, down to the disk.
PlanSaver::Part PlanSaver::CopyBytes(const OpenPlan& plan, int handle,
                                     const QByteArray& more) const {
  return [handle, rest = WriteBytes(handle, more), disk = &disk_, reader = plan.Source().Reader(),
          size = plan.Size()](Progress& progress) {
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

// Built on the plan's own thread; the job owns all it works on, so it may come late.
int PlanSaver::BuildUpdate(const OpenPlan& plan, const QString& path, const MarkChanges& changes,
                           QByteArray& bytes) {
  const auto update = std::make_shared<PlanUpdate>();
  const bool done = plan.Thread().Run(
      [update, changes, engine = plan.Engine()] { *update = engine->BuildUpdate(changes); },
      kBuildPatience, [this] { onProgress_(0); });
  if (!done) return Fail(path, kFileOther, QStringLiteral("it takes too long"));
  bytes = update->bytes;
  if (update->error == kNoError) return kNoError;
  Fail(path, update->error, update->problem);
  return update->needsRewrite ? kNeedsRewrite : update->error;
}

// The update that was built did not reach the disk.
void PlanSaver::ForgetUpdate(const OpenPlan& plan) {
  plan.Thread().Run([engine = plan.Engine()] { engine->ForgetUpdate(); }, kBuildPatience,
                    [this] { onProgress_(0); });
}

// Ends a copy: on the disk, then under its name. A failure leaves what stood there.
int PlanSaver::FinishCopy(Replacement& copy, int error, const QString& path) {
  error = copy.Finish(error);
  unsure_ = error == kNotConfirmed ? path : QString();
  return error == kNoError || error == kNotConfirmed ? kNoError : Fail(path, error);
}

// --- At the plan's end

// An update that is built and appended in one go on the plan's thread: the window waits once.
struct PlanSaver::Appended {
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

int PlanSaver::Append(OpenPlan& plan, const QString& path, const MarkChanges& changes, Anew& anew) {
  int handle = -1;
  int error = disk_.OpenAtEnd(path, handle);
  if (error != kNoError) return Fail(path, error);
  const auto job = std::make_shared<Appended>();
  QString problem = QStringLiteral("it takes too long");
  error = DoAside(
      plan,
      [job, engine = plan.Engine(), changes, disk = &disk_, handle](Progress& progress) {
        return job->Do(*engine, changes, *disk, handle, progress);
      },
      kBuildPatience + kCopyPatience, &problem);
  bool takenBack = true;
  // What part of it arrived goes again; should that fail, too, the next opening cuts it.
  if (error != kNoError && job->built) takenBack = disk_.Truncate(handle, plan.Size()) == kNoError;
  disk_.Close(handle);  // all is on the disk already, or taken back
  if (error == kNoError) {
    plan.Grow(job->update.bytes.size());
    return kNoError;
  }
  Fail(path, error == kNeedsRewrite ? kFileOther : error, problem);
  if (!takenBack) problem_ = PartWritten(path, error);
  return error == kNeedsRewrite ? WriteAnew(plan, path, changes, anew) : error;
}

// --- As a copy

int PlanSaver::Copy(OpenPlan& plan, const QString& path, const MarkChanges& changes, Anew& anew) {
  QByteArray bytes;
  int error = kNoError;
  if (!changes.Empty()) error = BuildUpdate(plan, plan.Path(), changes, bytes);
  if (error == kNeedsRewrite) return WriteAnew(plan, path, changes, anew);
  if (error != kNoError) return error;
  Replacement copy(disk_, path);
  error = copy.Begin();
  if (error == kNoError) {
    error = DoAside(plan, CopyBytes(plan, copy.Handle(), bytes), kCopyPatience);
    error = FinishCopy(copy, error, path);
  } else {
    Fail(path, error);
  }
  if (error != kNoError) {
    if (!changes.Empty()) ForgetUpdate(plan);
    return error;
  }
  plan.Grow(bytes.size());
  plan.SetPath(path);
  // From now on the copy is read, so the plan stays even when its source goes.
  std::shared_ptr<FileReader> reader;
  if (disk_.OpenToRead(path, reader) == kNoError) plan.Source().Replace(std::move(reader));
  return kNoError;
}

}  // namespace tamo
