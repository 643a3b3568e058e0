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

void Fit(QWidget& window) {
  const QRect screen = ScreenOf(window.frameGeometry());
  const QSize frame = window.frameGeometry().size() - window.size();
  // Where nobody looks the screen is a name only, and pictures are taken in full size.
  if (QGuiApplication::platformName() != QLatin1String("offscreen"))
    window.resize(window.size().boundedTo(screen.size() - frame));
  const QRect now = window.frameGeometry();
  const QPoint corner(
      std::clamp(now.x(), screen.left(), std::max(screen.left(), screen.right() + 1 - now.width())),
      std::clamp(now.y(), screen.top(),
                 std::max(screen.top(), screen.bottom() + 1 - now.height())));
  if (corner != now.topLeft()) window.move(corner);
}

}  // namespace

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
