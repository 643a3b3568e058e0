#include "windows/sidebyside.h"

#include <QScreen>
#include <QSettings>
#include <algorithm>

namespace tamo {
namespace {

// The plan keeps at least this width when the takeoff stands beside it.
constexpr int kRoomyPlan = 1300;

// The strip takes at most this part of the screen's height, if it can.
constexpr double kMostOfHeight = 0.45;

QRect Within(const QRect& screen, QRect place) {
  place.setSize(place.size().boundedTo(screen.size()));
  place.moveLeft(std::clamp(place.left(), screen.left(), screen.right() + 1 - place.width()));
  place.moveTop(std::clamp(place.top(), screen.top(), screen.bottom() + 1 - place.height()));
  return place;
}

// `place` is that of the frame.
void PutAt(QWidget& window, const QRect& place, const QMargins& frame) {
  window.setGeometry(place.marginsRemoved(frame));
}

QMargins FrameOf(const QWidget& window) {
  const QRect inner = window.geometry();
  const QRect outer = window.frameGeometry();
  return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
          outer.bottom() - inner.bottom()};
}

}  // namespace

SidePlaces PlacesSideBySide(const QRect& screen, const QSize& planLeast,
                            const QSize& takeoffLeast) {
  SidePlaces places{screen, screen};
  if (screen.width() - takeoffLeast.width() >= std::max(kRoomyPlan, planLeast.width())) {
    places.takeoff.setLeft(screen.right() + 1 - takeoffLeast.width());
    places.plan.setRight(places.takeoff.left() - 1);
    return places;
  }
  const int most = static_cast<int>(screen.height() * kMostOfHeight);
  const int strip = std::min(std::max(takeoffLeast.height(), most / 2), screen.height());
  places.takeoff.setTop(screen.bottom() + 1 - strip);
  places.plan.setBottom(places.takeoff.top() - 1);
  if (places.plan.height() < planLeast.height())
    places.plan.setHeight(std::min(planLeast.height(), screen.height()));
  return places;
}

QString SideBySide::KeyOf(const QString& name, const QWidget& window) const {
  const QScreen* screen = window.screen();
  const QSize size = screen->size();
  return QStringLiteral("BesidePlan/%1/%2 %3x%4")
      .arg(name, screen->name())
      .arg(size.width())
      .arg(size.height());
}

bool SideBySide::Remembered(const QString& key, SidePlaces& places) const {
  const auto kept = kept_.find(key);
  if (kept != kept_.end()) {
    places = *kept;
    return true;
  }
  if (file_.isEmpty()) return false;
  const QSettings settings(file_, QSettings::IniFormat);
  places = {settings.value(key + QStringLiteral("/plan")).toRect(),
            settings.value(key + QStringLiteral("/takeoff")).toRect()};
  return places.plan.isValid() && places.takeoff.isValid();
}

void SideBySide::Arrange(const QString& name, QWidget& takeoff, QWidget& plan) {
  const QRect screen = plan.screen()->availableGeometry();
  const QMargins frame = FrameOf(plan);
  const auto whole = [&frame](const QWidget& window) {
    return window.minimumSizeHint().grownBy(frame);
  };
  SidePlaces places;
  if (!Remembered(KeyOf(name, plan), places))
    places = PlacesSideBySide(screen, whole(plan), whole(takeoff));
  if (plan_ != &plan) {
    plan_ = &plan;
    planMaximized_ = plan.isMaximized();
    planBefore_ = plan.geometry();
    beside_.clear();
  }
  if (!beside_.contains(name)) beside_ += name;
  if (plan.isMaximized() || plan.isFullScreen()) plan.showNormal();
  PutAt(plan, Within(screen, places.plan), frame);
  PutAt(takeoff, Within(screen, places.takeoff), frame);
  planArranged_ = plan.geometry();
}

void SideBySide::Leave(const QString& name, QWidget& takeoff) {
  if (plan_ == nullptr || beside_.removeAll(name) == 0) return;
  const SidePlaces places{plan_->frameGeometry(), takeoff.frameGeometry()};
  const QString key = KeyOf(name, *plan_);
  kept_[key] = places;
  if (!file_.isEmpty()) {
    QSettings settings(file_, QSettings::IniFormat);
    settings.setValue(key + QStringLiteral("/plan"), places.plan);
    settings.setValue(key + QStringLiteral("/takeoff"), places.takeoff);
  }
  if (!beside_.isEmpty()) return;
  // A plan that he moved himself stays where he has it; one that was put away stays away.
  if (plan_->geometry() == planArranged_) {
    plan_->setGeometry(planBefore_);
    if (planMaximized_) plan_->setWindowState(plan_->windowState() | Qt::WindowMaximized);
  }
  plan_ = nullptr;
}

}  // namespace tamo
