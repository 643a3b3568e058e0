#include "windows/windowplaces.h"

#include <QSettings>

namespace tamo {

void WindowPlaces::Keep(const QString& form, const QWidget& window) const {
  if (!file_.isEmpty())
    QSettings(file_, QSettings::IniFormat).setValue(form, window.saveGeometry());
}

void WindowPlaces::Restore(const QString& form, QWidget& window) const {
  if (file_.isEmpty()) return;
  const QByteArray place = QSettings(file_, QSettings::IniFormat).value(form).toByteArray();
  if (!place.isEmpty()) window.restoreGeometry(place);
}

}  // namespace tamo
