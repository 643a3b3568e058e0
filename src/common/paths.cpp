#include "common/paths.h"

#include <QRegularExpression>

namespace tamo {
namespace {

bool IsSeparator(QChar c) {
  return c == kBackslash || c == kSlash;
}

qsizetype LastSeparator(const QString& path) {
  return std::max(path.lastIndexOf(kBackslash), path.lastIndexOf(kSlash));
}

}  // namespace

QChar PlatformSeparator() {
#ifdef Q_OS_WIN
  return kBackslash;
#else
  return kSlash;
#endif
}

bool EndsInSeparator(const QString& path) {
  return !path.isEmpty() && IsSeparator(path.back());
}

QString FixedDataPath(QString path, QChar separator) {
  if (path.size() > 2 && !EndsInSeparator(path)) path += separator;
  if (path.size() >= 5) {
    const QString end = path.right(5).toUpper();
    if (!(end.startsWith(QLatin1String("TAMO")) && EndsInSeparator(end)))
      path += QLatin1String("Tamo") + separator;
  }
  return path;
}

QStringList FolderLevels(const QString& path) {
  QStringList levels;
  for (qsizetype i = 0; i < path.size(); ++i) {
    if (!IsSeparator(path[i]) || i == 0) continue;
    const QString level = path.left(i);
    if (level.size() == 2 && level[1] == QLatin1Char(':')) continue;
    levels += level;
  }
  return levels;
}

QString InFolder(const QString& folder, const QString& name) {
  return EndsInSeparator(folder) ? folder + name : folder + PlatformSeparator() + name;
}

QString BareFolder(QString folder) {
  while (folder.size() > 1 && EndsInSeparator(folder)) folder.chop(1);
  return folder;
}

QString FileNameOf(const QString& path) {
  return path.mid(LastSeparator(path) + 1);
}

QString FolderOf(const QString& path) {
  const auto at = LastSeparator(path);
  return at < 0 ? QString() : path.left(at);
}

QString NativePath(QString path) {
  for (QChar& c : path) {
    if (IsSeparator(c)) c = PlatformSeparator();
  }
  return path;
}

namespace {

// A report asks of every room's name; few begin as a device's does.
bool IsDeviceName(const QString& name) {
  static const QRegularExpression device(
      QStringLiteral("^(CON|PRN|AUX|NUL|COM[0-9]|LPT[0-9])\\s*(\\..*)?$"),
      QRegularExpression::CaseInsensitiveOption);
  return QStringLiteral("CPANL").contains(name.front().toUpper()) && device.match(name).hasMatch();
}

}  // namespace

QString NameRefusal(const QString& name) {
  const QString shown = name.size() > 40 ? name.left(40) + QStringLiteral("...") : name;
  if (name.trimmed().isEmpty()) return QStringLiteral("A name is missing. Type a name.");
  for (const QChar c : name) {
    if (IsSeparator(c)) {
      return QStringLiteral(
                 "The name \"%1\" can't be used: it holds a slash or backslash. Type another name.")
          .arg(shown);
    }
    if (c < QChar(32) || c == QChar(127)) {
      return QStringLiteral(
                 "The name \"%1\" can't be used: it holds a control character. Type the name "
                 "again.")
          .arg(QString(shown).replace(QRegularExpression(QStringLiteral("[\\x00-\\x1f\\x7f]")),
                                      QStringLiteral("?")));
    }
  }
  if (name == QLatin1String(".") || name == QLatin1String("..")) {
    return QStringLiteral("The name \"%1\" can't be used: it means a folder. Type another name.")
        .arg(shown);
  }
  if (IsDeviceName(name)) {
    return QStringLiteral(
               "The name \"%1\" can't be used: it is reserved for a device. Type another name.")
        .arg(shown);
  }
  if (name.size() > 50 && name.toUtf8().size() > 200) {
    return QStringLiteral(
               "The name \"%1\" can't be used: it is too long for a file. Type a shorter name.")
        .arg(shown);
  }
  return {};
}

}  // namespace tamo
