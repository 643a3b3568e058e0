#include "plans/samesymbols.h"

#include <QAbstractEventDispatcher>
#include <algorithm>

#include "plans/likehull.h"
#include "plans/pdfdraw.h"

namespace tamo {
namespace {

QString Symbols(size_t count) {
  return count == 1 ? QStringLiteral("1 symbol") : QStringLiteral("%1 symbols").arg(count);
}

constexpr int kMoment = 200;  // milliseconds

}  // namespace

SameSymbols::SameSymbols(PdfDraw& viewer) : viewer_(viewer), found_([this] { GoOn(); }) {
  search_.onDone = found_.Teller();
  moment_.setSingleShot(true);
  QObject::connect(&moment_, &QTimer::timeout, [this] { GoOn(); });
}

void SameSymbols::Start() {
  End(QString());
  viewer_.Hand().LetGo();
  if (viewer_.OpenedPlan() == nullptr)
    return Tell(QStringLiteral("Find Same: no plan is open whose lines could be read."));
  state_ = State::Boxing;
  plan_ = viewer_.OpenedPlan();
  viewer_.Box().Ask(BoxUse::Symbol);
  viewer_.Snap().Lines().Want(viewer_.OpenedPlan(), viewer_.Page());
  Tell(
      QStringLiteral("Find Same: draw a box around one symbol, with the mouse, or with the arrows "
                     "and Space for two corners."));
}

void SameSymbols::TakeBox(const PageBox& box) {
  if (state_ != State::Boxing) return;
  box_ = box;
  page_ = viewer_.Page();
  state_ = State::Reading;
  viewer_.Snap().Lines().Want(viewer_.OpenedPlan(), page_);
  GoOn();
}

void SameSymbols::GoOn() {
  Step();
  const bool waits = QAbstractEventDispatcher::instance() != nullptr;  // not in a plain thread
  if (Busy() && waits && !moment_.isActive()) moment_.start(kMoment);
}

void SameSymbols::Step() {
  if (state_ == State::Reading && !viewer_.Snap().Lines().Reading()) Begin();
  LikesFound found;
  if (state_ == State::Looking && search_.Take(found)) TakeFound(std::move(found));
  TellProgress();
}

void SameSymbols::TellProgress() {
  if (state_ == State::Reading)
    Tell(QStringLiteral("Find Same: the lines of the sheet are being read. Escape leaves."));
  if (state_ == State::Looking)
    Tell(QStringLiteral("Find Same: looking for it, %1 % of the lines. Escape leaves.")
             .arg(search_.PerCent()));
}

void SameSymbols::Begin() {
  SheetLines& lines = viewer_.Snap().Lines();
  const std::shared_ptr<const SnapIndex> index = lines.Index();
  if (index == nullptr || index->Lines() == 0)
    return End(QStringLiteral("Find Same: %1").arg(lines.SymbolsProblem()));
  state_ = State::Looking;
  search_.Begin(index, lines.Letters(), box_);
}

void SameSymbols::Finish(int patience) {
  if (!Busy()) return;
  viewer_.Snap().Lines().Wait(patience);
  GoOn();
  search_.Wait(patience);
  GoOn();
}

void SameSymbols::TakeFound(LikesFound found) {
  if (!found.problem.isEmpty()) return End(QStringLiteral("Find Same: %1").arg(found.problem));
  likes_ = std::move(found.likes);
  DropCounted();
  if (likes_.empty())
    return End(QStringLiteral("Find Same: %1 found, and a circle stands on each already.")
                   .arg(Symbols(counted_)));
  answers_.assign(likes_.size(), Answer::None);
  current_ = 0;
  state_ = State::Asking;
  Ask();
}

// Nothing is counted twice.
void SameSymbols::DropCounted() {
  std::vector<PagePoint> places;
  for (const Mark& mark : viewer_.MarksAsDrawn()) {
    if (mark.page == page_ && viewer_.CountsAlike(mark)) places.push_back(mark.points.front());
  }
  const size_t before = likes_.size();
  std::erase_if(likes_, [&](const Like& like) {
    return std::any_of(places.begin(), places.end(),
                       [&](PagePoint at) { return InHull(at, like.outline, 0); });
  });
  counted_ = before - likes_.size();
}

void SameSymbols::Ask() {
  const Like& like = likes_[current_];
  const auto sure = static_cast<size_t>(std::count_if(
      likes_.begin(), likes_.end(), [](const Like& one) { return one.doubt.isEmpty(); }));
  QString words = QStringLiteral("Find Same: number %1 of %2").arg(current_ + 1).arg(likes_.size());
  if (sure < likes_.size()) words += QStringLiteral(", %1 of them sure").arg(sure);
  if (counted_ > 0) words += QStringLiteral(", %1 more counted already").arg(counted_);
  words += like.doubt.isEmpty() ? QStringLiteral(". ")
                                : QStringLiteral(". Not sure, %1. ").arg(like.doubt);
  const QString problem = viewer_.Snap().Lines().SymbolsProblem();
  if (!problem.isEmpty()) words += problem + QLatin1Char(' ');
  Tell(words +
       QStringLiteral("Enter or Y yes, N no, A all, Backspace the one before, Escape leaves."));
  if (viewer_.onLookAt) viewer_.onLookAt(like.middle);
  Repaint();
}

bool SameSymbols::TakeKey(PlanKey key) {
  if (state_ == State::Idle) return false;
  if (key == PlanKey::Escape) {
    End(QStringLiteral("Find Same is left, nothing was counted."));
    return false;  // the box goes, too
  }
  if (state_ != State::Asking) return false;
  switch (key) {
    case PlanKey::Enter:
    case PlanKey::Yes:
      Reply(Answer::Yes);
      return true;
    case PlanKey::No:
      Reply(Answer::No);
      return true;
    case PlanKey::All:
      ReplyAll();
      return true;
    case PlanKey::Backspace:
      Back();
      return true;
    default:
      return false;
  }
}

void SameSymbols::Reply(Answer answer) {
  answers_[current_] = answer;
  if (++current_ == likes_.size()) return Count();
  Ask();
}

// All sure ones; those that are not sure are asked about one by one, or all by a second time.
void SameSymbols::ReplyAll() {
  const bool sure = likes_[current_].doubt.isEmpty();
  while (current_ < likes_.size() && likes_[current_].doubt.isEmpty() == sure)
    answers_[current_++] = Answer::Yes;
  if (current_ == likes_.size()) return Count();
  Ask();
}

void SameSymbols::Back() {
  if (current_ > 0) --current_;
  answers_[current_] = Answer::None;
  Ask();
}

void SameSymbols::Count() {
  std::vector<PagePoint> places;
  for (size_t i = 0; i < likes_.size(); ++i) {
    if (answers_[i] == Answer::Yes) places.push_back(likes_[i].middle);
  }
  const size_t refused = likes_.size() - places.size();
  state_ = State::Idle;
  if (places.empty()) return End(QStringLiteral("Find Same: none was accepted."));
  if (!viewer_.PlaceCircles(places))
    return End(QStringLiteral("Find Same: this plan may not be marked, nothing was counted."));
  QString words = QStringLiteral("Find Same: %1 counted").arg(Symbols(places.size()));
  if (refused > 0) words += QStringLiteral(", %1 not").arg(refused);
  End(words + QLatin1Char('.'));
}

void SameSymbols::Leave() {
  if (state_ != State::Idle) End(QString());
}

void SameSymbols::Follow() {
  if (state_ == State::Idle) return;
  const bool page = state_ == State::Boxing || page_ == viewer_.Page();
  if (!page || plan_.lock() != viewer_.OpenedPlan()) Leave();
}

void SameSymbols::End(const QString& words) {
  const bool asked = state_ != State::Idle;
  state_ = State::Idle;
  search_.Drop();
  likes_.clear();
  answers_.clear();
  counted_ = 0;
  if (viewer_.Box().Asked()) viewer_.Box().Leave();
  if (asked || !words.isEmpty()) Tell(words);
  Repaint();
}

void SameSymbols::Tell(const QString& words) {
  if (viewer_.onToolRefused) viewer_.onToolRefused(words);
}

void SameSymbols::Repaint() const {
  if (viewer_.onMarksChanged) viewer_.onMarksChanged();
}

}  // namespace tamo
