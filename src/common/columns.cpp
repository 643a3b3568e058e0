#include "common/columns.h"

#include <algorithm>

#include "common/failure.h"

namespace tamo {

QString Blanks(qsizetype count) {
  if (count < 0) {
    throw RunTimeFailure(
        kInvalidArgument,
        QStringLiteral("A text is %1 characters wider than its column. Shorten it.").arg(-count));
  }
  return QString(count, QLatin1Char(' '));
}

QString PaddedRight(const QString& text, qsizetype width) {
  return text + Blanks(width - text.size());
}
QString PaddedLeft(const QString& text, qsizetype width) {
  return Blanks(width - text.size()) + text;
}
QString GrownBlanks(qsizetype count) {
  return QString(std::max<qsizetype>(count, 0), QLatin1Char(' '));
}
QString GrownRight(const QString& text, qsizetype width) {
  return text + GrownBlanks(width - text.size());
}
QString GrownLeft(const QString& text, qsizetype width) {
  return GrownBlanks(width - text.size()) + text;
}

QString Columns(const QString& text, qsizetype from, qsizetype width) {
  return text.mid(from - 1, width);
}
QString From(const QString& text, qsizetype from) {
  return text.mid(from - 1);
}

QString TrimmedBlanks(const QString& text) {
  qsizetype first = 0;
  qsizetype last = text.size();
  while (first < last && text[first] == QLatin1Char(' ')) ++first;
  while (last > first && text[last - 1] == QLatin1Char(' ')) --last;
  return text.mid(first, last - first);
}

}  // namespace tamo
