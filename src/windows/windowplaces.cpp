#include "windows/windowplaces.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <algorithm>

namespace tamo {
namespace {

// The screen on which most of the window would lie; the first one for a window beside all.
QRect ScreenOf(const QRect& window) {
  QRect best = QGuiApplication::primaryScreen()->availableGeometry();
  int most = 0;
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect common = screen->availableGeometry() & window;
    const int area = common.width() * common.height();
    if (area > most) {
      most = area;
      best = screen->availableGeometry();
    }
  }
  return best;
}

// Where nobody looks and no screen was described, windows have the size they want.
bool IsSeen(const QScreen* screen) {
  return screen != nullptr && (QGuiApplication::platformName() != QLatin1String("offscreen") ||
                               !screen->name().isEmpty());
}

// A window that was never shown has no frame yet; this much is left for it.
constexpr QSize kUsualFrame(4, 40);

QSize FrameOf(const QWidget& window) {
  const QSize frame = window.frameGeometry().size() - window.size();
  const bool known = window.isVisible() || !frame.isNull();
  return known ? frame : kUsualFrame;
}

void Fit(QWidget& window) {
  const QRect screen = ScreenOf(window.frameGeometry());
  if (IsSeen(window.screen()))
    window.resize(window.size().boundedTo(screen.size() - FrameOf(window)));
  const QRect now = window.frameGeometry();
  const QPoint corner(
      std::clamp(now.x(), screen.left(), std::max(screen.left(), screen.right() + 1 - now.width())),
      std::clamp(now.y(), screen.top(),
                 std::max(screen.top(), screen.bottom() + 1 - now.height())));
  if (corner != now.topLeft()) window.move(corner);
}

}  // namespace

QSize RoomFor(const QWidget& window) {
  if (!IsSeen(window.screen())) return {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
  return window.screen()->availableSize() - FrameOf(window);
}

void WindowPlaces::Keep(const QString& form, const QWidget& window) {
  if (!window.isMinimized()) corners_[form] = window.pos();
  if (!file_.isEmpty())
    QSettings(file_, QSettings::IniFormat).setValue(form, window.saveGeometry());
}

void WindowPlaces::Restore(const QString& form, QWidget& window) const {
  if (file_.isEmpty()) return;
  const QByteArray place = QSettings(file_, QSettings::IniFormat).value(form).toByteArray();
  if (!place.isEmpty()) window.restoreGeometry(place);
}

void WindowPlaces::Place(const QString& form, QWidget& window) const {
  const auto known = corners_.find(form);
  if (known != corners_.end()) window.move(*known);
  if (!window.isMaximized() && !window.isFullScreen()) Fit(window);
}

}  // namespace tamo
