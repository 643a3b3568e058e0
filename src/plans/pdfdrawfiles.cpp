#include <utility>

#include "common/failure.h"
#include "common/paths.h"
#include "plans/pdfdraw.h"

// How the viewer opens plans, and has them saved.

namespace tamo {
namespace {

QString OpenReason(int error) {
  switch (error) {
    case kFileNotFound:
      return QStringLiteral("the file is not there");
    case kPathNotFound:
      return QStringLiteral("its folder is not there");
    case kNoAccess:
      return QStringLiteral("there is no right to read it");
    default:
      return QStringLiteral("the device reports a failure");
  }
}

}  // namespace

// What was painted goes before the plan that was painted.
void PdfDraw::Put(std::unique_ptr<OpenPlan> plan) {
  pictures_.Drop();
  plan_ = std::move(plan);
}

int PdfDraw::ShowNothing(const QString& path, int error, const QString& reason) {
  Put(nullptr);
  problem_ = QStringLiteral(
                 "The plan %1 can't be shown: %2. Pick another file; the file itself is unchanged.")
                 .arg(FileNameOf(path), reason);
  BeginPlan(QString());
  FillPlan({}, {});
  return error;
}

int PdfDraw::OpenFile(const QString& given, const QString& password) {
  Put(nullptr);
  problem_.clear();
  notices_.wantsPassword = false;
  const QString path = files_.Resolved(given);
  int error = kNoError;
  Put(OpenPlan::Begin(files_.GetDisk(), engine_, path, password, opened_.Teller(), error));
  if (plan_ == nullptr) return ShowNothing(path, error, OpenReason(error));
  BeginPlan(given);
  if (FinishOpening(patience_.Now())) return ShownPath().isEmpty() ? kFileOther : kNoError;
  // A slow plan: a blank sheet stands for it until it is there, or has taken too long.
  FillPlan({}, {});
  tooLong_.start(patience_.Longest());
  return kNoError;
}

void PdfDraw::TooLong() {
  if (plan_ == nullptr || plan_->Taken()) return;
  ShowNothing(ShownPath(), kFileOther, QStringLiteral("it takes too long to open"));
  Raise(onProblem, problem_);
}

bool PdfDraw::FinishOpening(int milliseconds) {
  if (plan_ == nullptr || plan_->Taken()) return true;
  if (!plan_->Wait(milliseconds)) return false;
  TakeOpened();
  return true;
}

// Takes what the plan's thread has read; it is done by now.
void PdfDraw::TakeOpened() {
  const bool late = plan_->Late();
  PlanContents contents = plan_->Take();
  notices_.wantsPassword = contents.wantsPassword;
  if (contents.error != kNoError) {
    ShowNothing(ShownPath(), contents.error, contents.problem);
    if (late) Raise(onProblem, problem_);
    return;
  }
  notices_.reservation = contents.reservation;
  notices_.caution = contents.caution;
  StartPainting();
  // What was drawn on the blank sheet meanwhile is kept.
  contents.marks.insert(contents.marks.end(), MarksAsDrawn().begin(), MarksAsDrawn().end());
  FillPlan(std::move(contents.sizes), std::move(contents.marks));
  if (late && !notices_.caution.isEmpty()) Raise(onPageProblem, notices_.caution);
}

std::unique_ptr<PdfDraw> PdfDraw::SetAside() {
  FinishOpening(patience_.InSight());
  auto aside = std::make_unique<PdfDraw>(files_, engine_);
  if (plan_ == nullptr) return aside;
  std::vector<Mark> marks = MarksAsDrawn();
  pictures_.Drop();
  aside->plan_ = std::move(plan_);
  aside->BeginPlan(path_);
  aside->notices_ = notices_;
  aside->saver_.TakeOver(saver_);
  aside->FillPlan(aside->plan_->Sizes(), std::move(marks));
  BeginPlan(QString());
  FillPlan({}, {});
  return aside;
}

void PdfDraw::BringBack(PdfDraw& aside) {
  Put(nullptr);
  problem_.clear();
  std::vector<Mark> marks = aside.MarksAsDrawn();
  Put(std::move(aside.plan_));
  saver_.TakeOver(aside.saver_);
  BeginPlan(aside.path_);
  notices_ = aside.notices_;
  if (plan_ == nullptr) return FillPlan({}, {});
  if (plan_->Taken()) StartPainting();
  FillPlan(plan_->Sizes(), std::move(marks));
}

// --- Saving

bool PdfDraw::HasUnsavedMarks() const {
  return plan_ != nullptr && !plan_->Saved().ChangesTo(*this).Empty();
}

int PdfDraw::SaveAs(const QString& given) {
  return saver_.Alone(given, [&] { return SaveNow(given); });
}

int PdfDraw::AddTo(const QString& path) {
  return saver_.Alone(path, [&] { return AddNow(path); });
}

int PdfDraw::SaveNow(const QString& given) {
  if (ShownPath().isEmpty() || plan_ == nullptr) {
    problem_ = QStringLiteral("No plan is shown, so there is nothing to save.");
    return kFileNotFound;
  }
  if (!FinishOpening(kBuildPatience))
    return saver_.Fail(given, kFileOther, QStringLiteral("it is still being opened"));
  if (plan_ == nullptr) return kFileOther;
  const QString path = files_.Resolved(given);
  Disk& disk = files_.GetDisk();
  const bool same = path == files_.Resolved(ShownPath()) && disk.Exists(path);
  const MarkChanges changes = plan_->Saved().ChangesTo(*this);
  if (same && changes.Empty()) {
    path_ = given;
    return saver_.Confirm(path);
  }
  if (disk.IsFolder(path) || (disk.Exists(path) && !disk.CanWrite(path)))
    return saver_.Fail(path, kNoAccess);
  const bool changed = same && saver_.ChangedOnDisk(*plan_, path);
  const int error = changed ? TakeFromDisk(path, changes) : Write(path, same, changes);
  if (error != kNoError) return error;
  plan_->Saved().Saved(*this);
  path_ = given;
  problem_.clear();
  return saver_.Confirm(path);
}

int PdfDraw::AddNow(const QString& path) {
  if (plan_ == nullptr || !FinishOpening(kBuildPatience))
    return saver_.Fail(path, kFileOther, QStringLiteral("it is still being opened"));
  if (!files_.GetDisk().CanWrite(path)) return saver_.Fail(path, kNoAccess);
  const MarkChanges changes = plan_->Saved().ChangesTo(*this);
  if (const int error = TakeFromDisk(path, changes)) return error;
  plan_->Saved().Saved(*this);
  path_ = path;
  problem_.clear();
  return kNoError;
}

// Into the plan's own file, or as a copy.
int PdfDraw::Write(const QString& path, bool own, const MarkChanges& changes) {
  PlanSaver::Anew anew;
  const int error =
      own ? saver_.Append(*plan_, path, changes, anew) : saver_.Copy(*plan_, path, changes, anew);
  if (anew == nullptr) return error;
  Put(std::move(anew));
  StartPainting();
  Raise(onPageChanged);  // whoever reads of the plan reads of this one
  ViewChanged();         // the new painter learns what is in sight
  return error;
}

// Another program has written to the plan: its state is taken, and what changed here goes on top.
int PdfDraw::TakeFromDisk(const QString& path, const MarkChanges& changes) {
  int error = kNoError;
  std::vector<Mark> marks;
  PlanSaver::Anew fresh = saver_.Reopen(*plan_, path, marks, error);
  if (fresh == nullptr) return saver_.Fail(path, error);
  Put(std::move(fresh));
  StartPainting();
  std::erase_if(marks, [&](const Mark& mark) { return changes.removed.contains(mark.name); });
  marks.insert(marks.end(), changes.added.begin(), changes.added.end());
  FillPlan(plan_->Sizes(), std::move(marks));
  const MarkChanges all = plan_->Saved().ChangesAnew(changes, *this);
  return all.Empty() ? kNoError : Write(path, true, all);
}

}  // namespace tamo
