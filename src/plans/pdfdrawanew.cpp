#include <algorithm>
#include <utility>

#include "common/failure.h"
#include "common/replacement.h"
#include "plans/plansession.h"

// How the viewer saves a plan that nothing can be appended to, and one that another program has
// written to.

namespace tamo {
namespace {

constexpr int kRepairPatience = 120000;

}  // namespace

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
  for (const Mark& mark : marks) aside->saved.insert(mark.name, mark);
  aside->KnowTotals(marks);
  return aside;
}

// A damaged plan can't be added to: it is written anew, repaired, and the marks are added to that.
int PdfDraw::WriteAnew(const QString& path, const MarkChanges& changes) {
  Replacement copy(files_.GetDisk(), path);
  int error = copy.Begin();
  if (error != kNoError) return SaveFailed(path, error);
  QString problem;
  std::unique_ptr<Session> anew;
  std::vector<Mark> marks;
  QByteArray bytes;
  error = WriteRepaired(copy.Handle(), problem);
  if (error == kNoError) problem = QStringLiteral("it is too damaged to hold marks");
  if (error == kNoError) anew = OpenAside(copy.Unfinished(), error, marks);
  // No sheet may be missing from what the engine made of it.
  if (error == kNoError && anew->sizes.size() != session_->sizes.size()) error = kFileOther;
  if (error == kNoError && !changes.Empty()) error = BuildUpdate(*anew, changes, bytes);
  if (error == kNeedsRewrite) error = kFileOther;
  if (error == kNoError) {
    problem.clear();
    error = DoAside(WriteBytes(copy.Handle(), bytes), kCopyPatience);
  }
  const bool written = error == kNoError;
  error = FinishCopy(copy, error, path);
  if (error != kNoError) return written ? error : SaveFailed(path, error, problem);
  anew->size += bytes.size();
  session_ = std::move(anew);
  StartPainting();
  Raise(onPageChanged);  // whoever reads of the plan reads of this one
  ViewChanged();         // the new painter learns what is in sight
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
  const MarkChanges all = WithTotalsAnew(changes);
  return all.Empty() ? kNoError : Append(path, all);
}

}  // namespace tamo
