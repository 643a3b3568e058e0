#include "player/options.h"

#include <QDir>

namespace tamo::player {
namespace {

QString ReadFolder(const QString& value, QString& into) {
  if (!QDir(value).exists()) return QStringLiteral("there is no folder %1").arg(value);
  into = QDir::cleanPath(QDir(value).absolutePath());
  return {};
}

QString ReadValue(const QString& name, const QString& value, Options& options) {
  if (name == QStringLiteral("--program")) return ReadFolder(value, options.program);
  if (name == QStringLiteral("--home")) {
    QDir().mkpath(value);
    return ReadFolder(value, options.home);
  }
  if (name == QStringLiteral("--fresh")) return ReadFolder(value, options.fresh);
  options.clock = QDate::fromString(value, QStringLiteral("yyyy-MM-dd"));
  return options.clock.isValid() ? QString() : QStringLiteral("--clock wants a date YYYY-MM-DD");
}

}  // namespace

QString ReadOptions(const QStringList& arguments, Options& options) {
  static const QStringList valued = {QStringLiteral("--program"), QStringLiteral("--home"),
                                     QStringLiteral("--fresh"), QStringLiteral("--clock")};
  for (qsizetype at = 0; at < arguments.size(); ++at) {
    const QString& argument = arguments[at];
    if (argument == QStringLiteral("--windows")) {
      options.windows = true;
    } else if (argument == QStringLiteral("--tell")) {
      options.tell = true;
    } else if (valued.contains(argument)) {
      if (at + 1 == arguments.size()) return argument + QStringLiteral(" wants a value");
      const QString wrong = ReadValue(argument, arguments[++at], options);
      if (!wrong.isEmpty()) return wrong;
    } else if (argument.startsWith(QStringLiteral("--"))) {
      return QStringLiteral("there is no option ") + argument;
    } else {
      options.files += argument;
    }
  }
  if (options.files.isEmpty()) return QStringLiteral("no scenario is named");
  const bool folders = !options.program.isEmpty() && !options.home.isEmpty();
  if (options.fresh.isEmpty() && !folders)
    return QStringLiteral("--program DIR and --home DIR are wanted");
  return {};
}

}  // namespace tamo::player
