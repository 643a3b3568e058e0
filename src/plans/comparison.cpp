#include "plans/comparison.h"

#include <algorithm>
#include <atomic>
#include <utility>

#include "common/failure.h"
#include "common/paths.h"
#include "plans/pdfdraw.h"

namespace tamo {
namespace {

constexpr int kFirstPicture = 1500;  // milliseconds that the first overlay has the engines alone
constexpr int kSlice = 20;

// What is found out waits for the coarse picture of the sheets, which is looked
// at meanwhile.
void LetPaint(const std::shared_ptr<PlanPainter>& painter, const CancelFlag& cancel) {
  for (int waited = 0; painter != nullptr && waited < kFirstPicture; waited += kSlice) {
    if (cancel.Cancelled() || painter->WaitForCoarse(kSlice)) return;
  }
}

}  // namespace

Comparison::Comparison(PdfDraw& viewer)
    : viewer_(viewer), pictures_([post = jobs_.Poster(), told = picturesTold_, this] {
        // Many pictures at once are one piece of news.
        if (told->exchange(true)) return;
        post([this] { PicturesCame(); });
      }) {}

Comparison::~Comparison() {
  onChanged = nullptr;
  End();
}

void Comparison::StopWork() {
  jobs_.LeaveSheet();
  searched_ = 0;
}

void Comparison::Begin(const QString& path, const QString& password) {
  End();
  problem_.clear();
  former_.path = path;
  now_ = viewer_.OpenedPlan();
  if (now_ == nullptr || viewer_.ShownFile().isEmpty())
    return Fail(QStringLiteral("Open a plan first: there is no sheet that could be compared."));
  if (viewer_.ShowsFile(path))
    return Fail(QStringLiteral("%1 is the plan that is open: pick its other revision.")
                    .arg(FileNameOf(path)));
  int error = kNoError;
  old_ = viewer_.OpenBeside(path, error);
  if (old_ == nullptr)
    return Fail(QStringLiteral("The plan %1 can't be compared, because %2.")
                    .arg(FileNameOf(path), ReasonText(error)));
  jobs_.Post([this, plan = old_, password](CancelFlag&, const SheetJobs::TellNews& tell) {
    auto contents = std::make_shared<PlanContents>(plan->Open(password));
    tell([this, contents] { Opened(*contents); });
  });
  Tell();
}

void Comparison::End() {
  StopWork();
  jobs_.StopAll();
  EndPoints();
  pictures_.Drop();
  if (old_ != nullptr) old_->Abandon();
  old_.reset();
  now_.reset();
  former_.sheets.reset();
  former_.sizes.clear();
  former_.marks.clear();
  known_.clear();
  page_ = 0;
  place_ = -1;
  swapped_ = wantsPassword_ = false;
  if (!former_.path.isEmpty() || !problem_.isEmpty()) {
    former_.path.clear();
    problem_.clear();
    Tell();
  }
}

void Comparison::Fail(const QString& words) {
  const bool locked = wantsPassword_;
  const QString path = former_.path;
  End();
  problem_ = words;
  wantsPassword_ = locked;
  if (locked) former_.path = path;
  Tell();
}

void Comparison::Opened(const PlanContents& contents) {
  wantsPassword_ = contents.wantsPassword;
  if (contents.error != kNoError || contents.wantsPassword)
    return Fail(QStringLiteral("The plan %1 can't be compared: %2.")
                    .arg(FileNameOf(former_.path), contents.problem));
  if (contents.sizes.empty())
    return Fail(QStringLiteral("The plan %1 has no sheets.").arg(FileNameOf(former_.path)));
  former_.sizes = contents.sizes;
  former_.marks = contents.marks;
  former_.sheets = std::make_shared<SheetPairs>(old_, Pages());
  Follow();
}

void Comparison::Follow() {
  if (old_ == nullptr || former_.sizes.empty()) return;
  const std::shared_ptr<EnginePlan> now = viewer_.OpenedPlan();
  if (now == nullptr) return;
  const bool anew = now != std::exchange(now_, now);
  if (!anew && viewer_.Page() == page_) return;
  EndPoints();
  page_ = viewer_.Page();
  place_ = -1;
  Compare(anew);
}

CompareTask Comparison::Task() const {
  CompareTask task;
  task.now = now_;
  task.old = old_;
  task.oldSheets = former_.sheets;
  task.oldSizes = former_.sizes;
  return task;
}

void Comparison::Compare(bool anew) {
  StopWork();
  if (anew) pictures_.Drop();
  const auto there = known_.find(page_);
  if (there != known_.end() && there->second.looked) {
    ShowPair(there->second);
    return Tell();
  }
  SheetsCompared guess;
  if (there != known_.end()) {
    guess = there->second;
  } else {
    guess.page = page_;
    guess.oldPage = std::clamp(page_, 1, Pages());
    guess.alignment.fit =
        FitInto(former_.sizes[size_t(guess.oldPage) - 1], viewer_.SizeOfPage(page_));
  }
  ShowPair(guess);
  CompareTask task = Task();
  task.nowSize = viewer_.SizeOfPage(page_);
  task.page = page_;
  task.oldPage = guess.oldPage;
  task.byUser = guess.byUser;
  task.keepPair = guess.byUser || guess.alignment.byHand;
  if (guess.alignment.byHand) task.byPoints = guess.alignment.fit;
  const auto painter = pictures_.Looked() ? pictures_.Painter() : nullptr;
  jobs_.Post([this, task, painter](CancelFlag& cancel, const SheetJobs::TellNews& tell) {
    LetPaint(painter, cancel);
    CompareSheets(task, cancel, [&](const SheetsCompared& known, int searched) {
      tell([this, known, searched] { Took(known, searched); });
    });
  });
  Tell();
}

void Comparison::Took(const SheetsCompared& known, int searched) {
  searched_ = searched;
  if (searched == 0) {
    known_[known.page] = known;
    if (known.page == page_) ShowPair(known);
  }
  Tell();
}

void Comparison::ShowPair(const SheetsCompared& known) {
  OverlaySheets sheets = {now_, old_, known.oldPage, known.alignment.fit};
  sheets.swapped = swapped_;
  if (known.oldPage == 0) {
    pictures_.Drop();
  } else {
    pictures_.Show(sheets, known.page, viewer_.Sizes());
  }
  viewer_.ShowAnew();
}

void Comparison::PicturesCame() {
  picturesTold_->store(false);
  const auto& painter = pictures_.Painter();
  if (painter != nullptr && !painter->TakeFailedPages().empty()) {
    return Fail(QStringLiteral("The sheets can't be laid over each other: sheet %1 of one of the "
                               "plans is damaged or needs too much time or memory.")
                    .arg(page_));
  }
  const auto& changed = viewer_.Pictures().onPicturesChanged;
  if (changed) changed();
}

void Comparison::StepPair(int by) {
  const SheetsCompared* known = Known();
  if (!On() || former_.sizes.empty()) return;
  const int from =
      known != nullptr && known->oldPage > 0 ? known->oldPage : std::clamp(page_, 1, Pages());
  SheetsCompared chosen;
  chosen.page = page_;
  chosen.oldPage = std::clamp(from + by, 1, Pages());
  chosen.byUser = true;
  chosen.alignment.fit =
      FitInto(former_.sizes[size_t(chosen.oldPage) - 1], viewer_.SizeOfPage(page_));
  known_[page_] = chosen;
  place_ = -1;
  Compare(true);
}

void Comparison::NextLayer() {
  if (!On()) return;
  static constexpr OverlayLayer kNext[] = {OverlayLayer::Old, OverlayLayer::Now,
                                           OverlayLayer::Both};
  pictures_.SetLayer(kNext[static_cast<int>(pictures_.Layer())]);
  viewer_.ShowAnew();
  Tell();
}

void Comparison::Swap() {
  if (!On()) return;
  swapped_ = !swapped_;
  if (const SheetsCompared* known = Known()) ShowPair(*known);
  Tell();
}

void Comparison::StepPlace(int by) {
  const SheetsCompared* known = Known();
  const int places = known == nullptr ? 0 : static_cast<int>(known->places.size());
  if (places == 0) return;
  if (place_ < 0 && by < 0) place_ = 0;
  GoToPlace(((place_ + by) % places + places) % places);
}

void Comparison::GoToPlace(int place) {
  const SheetsCompared* known = Known();
  if (known == nullptr || place < 0 || size_t(place) >= known->places.size()) return;
  place_ = place;
  if (onShowPlace) onShowPlace(known->places[size_t(place)].box);
  if (viewer_.onMarksChanged) viewer_.onMarksChanged();
  Tell();
}

const SheetsCompared* Comparison::Known() const {
  const auto there = known_.find(page_);
  return there == known_.end() ? nullptr : &there->second;
}

}  // namespace tamo
