#include <algorithm>
#include <utility>

#include "common/replacement.h"
#include "plans/saveparts.h"

// How a plan is saved that nothing can be appended to.

namespace tamo {
namespace {

constexpr int kRepairPatience = 120000;

}  // namespace

// Writes the repaired plan to an open file. When that takes too long it is left alone and can't
// touch the file any more.
int PlanSaver::WriteRepaired(const OpenPlan& plan, int handle, QString& problem) {
  problem = QStringLiteral("it takes too long to repair");
  return DoAside(
      plan,
      [handle, disk = &disk_, engine = plan.Engine(),
       size = std::max(plan.Size(), qint64(1))](Progress& progress) {
        qint64 written = 0;
        const auto sink = [&](const QByteArray& part) {
          const std::lock_guard<std::mutex> guard(progress.writing);
          written += part.size();
          progress.perCent = static_cast<int>(std::min(qint64(90), written * 90 / size));
          return progress.left ? kFileOther : disk->Write(handle, part);
        };
        QString words;
        const int error = engine->WriteWhole(sink, words);
        const std::lock_guard<std::mutex> guard(progress.writing);
        progress.problem = words;
        return error;
      },
      kRepairPatience, &problem);
}

PlanSaver::Anew PlanSaver::Reopen(const OpenPlan& plan, const QString& path,
                                  std::vector<Mark>& marks, int& error) {
  Anew other = plan.Another(path, error);
  if (other == nullptr) return nullptr;
  // The opening is the first of the thread's jobs.
  other->Thread().Run([] {}, kBuildPatience, [this] { onProgress_(90); });
  error = kFileOther;
  if (!other->Done()) return nullptr;
  PlanContents contents = other->Take();
  error = contents.error;
  if (error != kNoError) return nullptr;
  marks = std::move(contents.marks);
  return other;
}

// A damaged plan can't be added to: it is written anew, repaired, and the marks are added to that.
int PlanSaver::WriteAnew(const OpenPlan& plan, const QString& path, const MarkChanges& changes,
                         Anew& anew) {
  Replacement copy(disk_, path);
  int error = copy.Begin();
  if (error != kNoError) return Fail(path, error);
  QString problem;
  Anew repaired;
  std::vector<Mark> marks;
  QByteArray bytes;
  error = WriteRepaired(plan, copy.Handle(), problem);
  if (error == kNoError) problem = QStringLiteral("it is too damaged to hold marks");
  if (error == kNoError) repaired = Reopen(plan, copy.Unfinished(), marks, error);
  // No sheet may be missing from what the engine made of it.
  if (error == kNoError && repaired->Sizes().size() != plan.Sizes().size()) error = kFileOther;
  if (error == kNoError && !changes.Empty())
    error = BuildUpdate(*repaired, plan.Path(), changes, bytes);
  if (error == kNeedsRewrite) error = kFileOther;
  if (error == kNoError) {
    problem.clear();
    error = DoAside(plan, WriteBytes(copy.Handle(), bytes), kCopyPatience);
  }
  const bool written = error == kNoError;
  error = FinishCopy(copy, error, path);
  if (error != kNoError) return written ? error : Fail(path, error, problem);
  repaired->Grow(bytes.size());
  repaired->SetPath(path);
  anew = std::move(repaired);
  return kNoError;
}

}  // namespace tamo
