#include "export/fixedfont.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QStringList>

namespace tamo {

QFont FixedFont() {
  // Asked for one by one, each family that is missing costs as much as all other fonts of the
  // start.
  static const QString family = [] {
    const QStringList families = QFontDatabase::families();
    for (const char* name :
         {"MS Gothic", "Noto Sans Mono", "DejaVu Sans Mono", "Consolas", "Menlo"}) {
      if (families.contains(QLatin1String(name), Qt::CaseInsensitive))
        return QString(QLatin1String(name));
    }
    return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
  }();
  QFont font(family);
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  font.setPointSizeF(QGuiApplication::font().pointSizeF());
  return font;
}

}  // namespace tamo
