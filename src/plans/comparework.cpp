#include "plans/comparework.h"

#include <algorithm>

#include "plans/overlayplan.h"
#include "plans/picturelines.h"
#include "plans/pixelmemory.h"
#include "plans/sheetalign.h"
#include "plans/sheetchanges.h"
#include "plans/sheetnumber.h"
#include "plans/textchanges.h"
#include "plans/twoatonce.h"

namespace tamo {
namespace {

constexpr size_t kFewPaths = 20;       // a scan has hardly any
constexpr double kScanPart = 0.5;      // of the sheet that its picture covers
constexpr double kPictureSide = 2400;  // pixels of the picture that lines are looked for in

bool IsScan(const PageContent& content) {
  double covered = 0;
  for (const PicturePiece& picture : content.pictures)
    covered += picture.box.Width() * picture.box.Height();
  return content.paths.size() < kFewPaths &&
         covered > kScanPart * content.size.width * content.size.height;
}

// The work on one sheet, step by step; what is known so far is told in between.
class Work {
 public:
  Work(const CompareTask& task, CancelFlag& cancel, const TellCompared& tell)
      : task_(task), cancel_(cancel), tell_(tell) {
    known_.page = task.page;
    known_.oldPage = task.oldPage;
    known_.byUser = task.byUser;
  }
  void Do() {
    Pair();
    if (cancel_.Cancelled()) return;
    if (known_.oldPage == 0) known_.looked = true;
    if (known_.looked) return tell_(known_, 0);
    Align();
    if (cancel_.Cancelled()) return;
    tell_(known_, 0);
    Look();
    if (!cancel_.Cancelled()) tell_(known_, 0);
  }

 private:
  void Pair();
  void Align();
  void Look();
  void Load();
  void SayLimits();
  SheetLinework PictureWork(EnginePlan& plan, const LoadedPage& page);

  const CompareTask& task_;
  CancelFlag& cancel_;
  const TellCompared& tell_;
  SheetsCompared known_;
  PageContent now_;
  PageContent old_;
  std::shared_ptr<LoadedPage> nowPage_;
  std::shared_ptr<LoadedPage> oldPage_;
  bool byPictures_ = false;
};

// By the number in the title block, or else the same page.
void Work::Pair() {
  TwoAtOnce(
      cancel_, [&](CancelFlag& flag) { now_ = task_.now->ReadContent(task_.page, flag); },
      [&](CancelFlag& flag) { old_ = task_.old->ReadContent(task_.oldPage, flag); });
  if (cancel_.Cancelled()) return;
  known_.nowNumber = SheetNumberOf(now_);
  const QString guessed = SheetNumberOf(old_);
  task_.oldSheets->Know(task_.oldPage, guessed);
  if (!known_.nowNumber.isEmpty() && !task_.keepPair) {
    const int found = task_.oldSheets->Find(known_.nowNumber, task_.oldPage, cancel_,
                                            [&](int read) { tell_(known_, read); });
    // The other plan numbers its sheets, and none is this one.
    known_.oldPage = found > 0 ? found : guessed.isEmpty() ? task_.oldPage : 0;
  }
  if (known_.oldPage > 0) known_.oldNumber = task_.oldSheets->NumberOf(known_.oldPage, cancel_);
  known_.byNumber = !task_.byUser && !known_.nowNumber.isEmpty() &&
                    PlainSheetNumber(known_.nowNumber) == PlainSheetNumber(known_.oldNumber);
  if (known_.oldPage > 0 && known_.oldPage != task_.oldPage)
    old_ = task_.old->ReadContent(known_.oldPage, cancel_);
}

void Work::Load() {
  if (nowPage_ != nullptr) return;
  TwoAtOnce(
      cancel_, [&](CancelFlag& flag) { nowPage_ = task_.now->LoadPage(task_.page, flag); },
      [&](CancelFlag& flag) { oldPage_ = task_.old->LoadPage(known_.oldPage, flag); });
}

SheetLinework Work::PictureWork(EnginePlan& plan, const LoadedPage& page) {
  SheetLinework work;
  work.size = page.Size();
  PaintPart part;
  part.pixelsPerPoint = kPictureSide / std::max(work.size.width, work.size.height);
  part.width = std::max(1, static_cast<int>(work.size.width * part.pixelsPerPoint));
  part.height = std::max(1, static_cast<int>(work.size.height * part.pixelsPerPoint));
  work.fineness = 1.2 / part.pixelsPerPoint;
  Pixels pixels(size_t(part.width) * size_t(part.height));
  if (plan.Paint(page, part, cancel_, pixels.data()))
    work.lines = LinesOfPicture(InkOf(pixels.data(), part.width, part.height), part.pixelsPerPoint);
  return work;
}

void Work::SayLimits() {
  if (byPictures_) {
    known_.limits = QStringLiteral(
        "One of the sheets is a scan or can't be read: they are compared by their pictures, and "
        "texts are not named.");
  } else if (!now_.whole || !old_.whole) {
    known_.limits = QStringLiteral("A part of one of the sheets could not be read.");
  }
}

void Work::Align() {
  byPictures_ = IsScan(now_) || IsScan(old_) || now_.error != 0 || old_.error != 0;
  SheetLinework now;
  SheetLinework old;
  if (byPictures_) {
    Load();
    if (nowPage_ != nullptr && oldPage_ != nullptr) {
      now = PictureWork(*task_.now, *nowPage_);
      if (!cancel_.Cancelled()) old = PictureWork(*task_.old, *oldPage_);
    }
  } else {
    now = LineworkOf(now_);
    old = LineworkOf(old_);
  }
  now.size = task_.nowSize;
  old.size = task_.oldSizes[size_t(known_.oldPage) - 1];
  if (cancel_.Cancelled()) return;
  known_.alignment = task_.byPoints ? RefinedFit(old, now, *task_.byPoints) : AlignSheets(old, now);
  known_.aligned = true;
  SayLimits();
}

// Sheets that lie anyhow differ everywhere: that would say nothing.
void Work::Look() {
  known_.looked = true;
  if (!known_.alignment.sure && !known_.alignment.byHand) return;
  Load();
  if (cancel_.Cancelled()) return;
  const bool painted =
      nowPage_ != nullptr && oldPage_ != nullptr &&
      FindChangedPlaces({*task_.now, *task_.old, *nowPage_, *oldPage_, known_.alignment.fit},
                        byPictures_, cancel_, known_.places);
  if (!painted) {
    known_.limits +=
        QStringLiteral(" One of the sheets can't be painted: changed lines are not found.");
    known_.limits = known_.limits.trimmed();
  }
  std::vector<ChangedPlace> texts;
  if (!byPictures_) texts = TextChangesOf(old_, now_, known_.alignment.fit);
  NamePlaces(known_.places, texts);
}

}  // namespace

void CompareSheets(const CompareTask& task, CancelFlag& cancel, const TellCompared& tell) {
  Work(task, cancel, tell).Do();
}

}  // namespace tamo
