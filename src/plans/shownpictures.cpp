#include "plans/shownpictures.h"

#include <QStringList>
#include <utility>

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

ShownPictures::ShownPictures(OverlayPictures& over, std::function<QString()> file)
    : over_(over), file_(std::move(file)), news_([this] { Painted(); }) {}

void ShownPictures::Show(std::shared_ptr<EnginePlan> plan, std::vector<PageSize> sizes) {
  painter_ = std::make_unique<PlanPainter>(std::move(plan), std::move(sizes), news_.Teller());
}

void ShownPictures::Drop() {
  painter_.reset();
}

void ShownPictures::Forget() {
  if (painter_ != nullptr) painter_->Forget();
  TellOfPainting();
}

void ShownPictures::TellOfPages() {
  const auto tell = [this](const QString& text) {
    if (onPageProblem) onPageProblem(text);
  };
  for (const int page : painter_->TakeFailedPages()) {
    tell(QStringLiteral("Page %1 of %2 can't be drawn: it is damaged or needs too much time or "
                        "memory. The other pages and all marks are unaffected.")
             .arg(page)
             .arg(file_()));
  }
  for (const auto& [page, gaps] : painter_->TakeGaps()) {
    tell(QStringLiteral("Page %1 of %2 is not shown whole: %3. Marks are unaffected.")
             .arg(QString::number(page), file_(), GapsInWords(gaps)));
  }
}

void ShownPictures::TellOfPainting() {
  if (onPainting) onPainting(painter_ != nullptr && !painter_->IsSharp());
}

void ShownPictures::Painted() {
  if (painter_ != nullptr) TellOfPages();
  if (onPicturesChanged) onPicturesChanged();
  TellOfPainting();
}

void ShownPictures::Look(const PlanView& view) {
  page_ = view.page;
  over_.Look(view);
  if (painter_ != nullptr && !over_.Shows(view.page)) painter_->Look(view);
  TellOfPainting();
}

std::vector<PlacedPicture> ShownPictures::PicturesFor(const PlanView& view) {
  if (auto laidOver = over_.PicturesFor(view); !laidOver.empty()) return laidOver;
  if (painter_ == nullptr) return {};
  return painter_->PicturesFor(view);
}

std::shared_ptr<const Picture> ShownPictures::Thumbnail(int page, int longSide) {
  return painter_ == nullptr ? nullptr : painter_->Thumbnail(page, longSide);
}

std::shared_ptr<const Picture> ShownPictures::PrintPicture(const PlanView& part,
                                                           const std::function<void()>& meanwhile) {
  PlanPainter* painter = PainterOf(part.page);
  return painter == nullptr ? nullptr : painter->PrintPicture(part, kPrintPatience, meanwhile);
}

PlanPainter* ShownPictures::PainterOf(int page) const {
  return over_.Shows(page) ? over_.Painter().get() : painter_.get();
}

bool ShownPictures::WaitUntilSharp(int milliseconds) {
  PlanPainter* painter = PainterOf(page_);
  return painter != nullptr && painter->WaitUntilSharp(milliseconds);
}

bool ShownPictures::WaitForCoarse(int milliseconds) {
  PlanPainter* painter = PainterOf(page_);
  return painter != nullptr && painter->WaitForCoarse(milliseconds);
}

}  // namespace tamo
