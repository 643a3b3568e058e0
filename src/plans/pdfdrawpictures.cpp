#include <utility>

#include "common/failure.h"
#include "plans/comparison.h"
#include "plans/filetail.h"
#include "plans/pdfdraw.h"
#include "plans/plansession.h"

// What the viewer shows of its plan, and of another one laid over it.

namespace tamo {
namespace {

constexpr int kPrintPatience = 60000;

QString GapsInWords(PageGaps gaps) {
  QStringList words;
  if (gaps.pictures) {
    words << QStringLiteral(
        "a picture on it is missing, because it is damaged or needs too much memory");
  }
  if (gaps.patterns) words << QStringLiteral("a hatch on it is too fine to be drawn everywhere");
  if (gaps.contents) words << QStringLiteral("parts of it are damaged");
  return words.join(QStringLiteral("; "));
}

}  // namespace

void PdfDraw::TellOfPages(PlanPainter& painter) {
  for (const int page : painter.TakeFailedPages()) {
    problem_ = QStringLiteral(
                   "Page %1 of %2 can't be drawn: it is damaged or needs too much time or "
                   "memory. The other pages and all marks are unaffected.")
                   .arg(page)
                   .arg(ShownFile());
    Raise(onPageProblem, problem_);
  }
  for (const auto& [page, gaps] : painter.TakeGaps()) {
    problem_ = QStringLiteral("Page %1 of %2 is not shown whole: %3. Marks are unaffected.")
                   .arg(QString::number(page), ShownFile(), GapsInWords(gaps));
    Raise(onPageProblem, problem_);
  }
}

void PdfDraw::PicturesChanged() {
  if (session_ != nullptr && session_->painter != nullptr) TellOfPages(*session_->painter);
  if (onPicturesChanged) onPicturesChanged();
  TellOfPainting();
}

void PdfDraw::Look(const PlanView& view) {
  comparison_->Pictures().Look(view);
  const bool plain = session_ != nullptr && session_->painter != nullptr;
  if (plain && !comparison_->Shows(view.page)) session_->painter->Look(view);
  TellOfPainting();
}

std::vector<PlacedPicture> PdfDraw::PicturesFor(const PlanView& view) {
  if (auto laidOver = comparison_->Pictures().PicturesFor(view); !laidOver.empty()) return laidOver;
  if (session_ == nullptr || session_->painter == nullptr) return {};
  return session_->painter->PicturesFor(view);
}

std::shared_ptr<const Picture> PdfDraw::Thumbnail(int page, int longSide) {
  if (session_ == nullptr || session_->painter == nullptr) return nullptr;
  return session_->painter->Thumbnail(page, longSide);
}

std::shared_ptr<const Picture> PdfDraw::PrintPicture(const PlanView& part,
                                                     const std::function<void()>& meanwhile) {
  if (comparison_->Shows(part.page))
    return comparison_->Pictures().Painter()->PrintPicture(part, kPrintPatience, meanwhile);
  if (session_ == nullptr || session_->painter == nullptr) return nullptr;
  return session_->painter->PrintPicture(part, kPrintPatience, meanwhile);
}

std::shared_ptr<EnginePlan> PdfDraw::OpenedPlan() const {
  return session_ != nullptr && opening_ == nullptr ? session_->plan : nullptr;
}

// --- Another plan over it

bool PdfDraw::TakeOverlayKey(const PlanStroke& stroke) {
  return comparison_->TakeKey(stroke);
}

std::shared_ptr<EnginePlan> PdfDraw::OpenBeside(const QString& path, int& error) {
  std::shared_ptr<FileReader> reader;
  error = files_.GetDisk().OpenToRead(files_.Resolved(path), reader);
  if (error != kNoError) return nullptr;
  const qint64 whole = ReadTail(*reader).whole;
  auto plan = engine_.NewPlan(std::make_shared<PlanSource>(std::move(reader), whole));
  if (plan == nullptr) error = kFileOther;
  return plan;
}

bool PdfDraw::PutMarks(const std::vector<Mark>& marks) {
  if (!MayMark()) return false;
  TakeOver(marks);
  return true;
}

bool PdfDraw::ShowsFile(const QString& path) const {
  return !path_.isEmpty() && files_.Resolved(path) == files_.Resolved(path_);
}

std::vector<PageSize> PdfDraw::Sizes() const {
  return session_ != nullptr ? session_->sizes : std::vector<PageSize>();
}

bool PdfDraw::WaitUntilSharp(int milliseconds) {
  if (comparison_->Shows(Page()))
    return comparison_->Pictures().Painter()->WaitUntilSharp(milliseconds);
  return session_ != nullptr && session_->painter != nullptr &&
         session_->painter->WaitUntilSharp(milliseconds);
}

bool PdfDraw::WaitForCoarse(int milliseconds) {
  if (comparison_->Shows(Page()))
    return comparison_->Pictures().Painter()->WaitForCoarse(milliseconds);
  return session_ != nullptr && session_->painter != nullptr &&
         session_->painter->WaitForCoarse(milliseconds);
}

}  // namespace tamo
