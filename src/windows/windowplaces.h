#pragma once

#include <QHash>
#include <QPoint>
#include <QString>
#include <QWidget>

namespace tamo {

// What a window's own contents may measure at most on its screen, the frame of the window system
// left out.
QSize RoomFor(const QWidget& window);

// Where each window last was and how large: all that windows remember. A window always lies whole
// on a screen, as far as the screen is large enough.
class WindowPlaces {
 public:
  // `file` is an INI file, made when it is missing; "" keeps nothing beyond this run.
  explicit WindowPlaces(QString file) : file_(std::move(file)) {}

  // A visible window is put away.
  void Keep(const QString& form, const QWidget& window);
  // A new window takes the size and place of an earlier run.
  void Restore(const QString& form, QWidget& window) const;
  // A window is shown: where it was when it was put away, and on a screen.
  void Place(const QString& form, QWidget& window) const;

 private:
  QString file_;
  QHash<QString, QPoint> corners_;  // of the frames, in this run
};

}  // namespace tamo
