#pragma once

#include <QString>
#include <QWidget>

namespace tamo {

// Where each window last was and how large: all that windows remember.
class WindowPlaces {
 public:
  // `file` is an INI file, made when it is missing; "" keeps nothing.
  explicit WindowPlaces(QString file) : file_(std::move(file)) {}

  void Keep(const QString& form, const QWidget& window) const;
  void Restore(const QString& form, QWidget& window) const;

 private:
  QString file_;
};

}  // namespace tamo
