#include "records/oddfiles.h"

#include <QString>

namespace tamo::test {
namespace {

int Below(std::mt19937& dice, int end) {
  return static_cast<int>(dice() % static_cast<unsigned>(end));
}

QString OddLine(std::mt19937& dice) {
  static const QString usual[] = {
      QString(),
      QStringLiteral("True"),
      QStringLiteral("0.00"),
      QStringLiteral("upo"),
      QStringLiteral("\x01"),
      QStringLiteral(" "),
      QStringLiteral("Crew, crane              50.25"),
      QStringLiteral("Drywall              WALLS                 792 SF")};
  static const QString letters = QString::fromUtf8("aZ09 .,;\"'\\/-\tü€é×x(s)\x7f");
  if (Below(dice, 3) == 0) return usual[Below(dice, static_cast<int>(std::size(usual)))];
  QString line;
  for (int left = Below(dice, 45); left > 0; --left)
    line += letters[Below(dice, static_cast<int>(letters.size()))];
  return line;
}

QByteArray Windows1252(QString text) {
  return text.replace(QChar(0x20AC), QChar(0x80)).toLatin1();
}

}  // namespace

QByteArray OddFile(std::mt19937& dice) {
  static const char* const ends[] = {"\r\n", "\n", "\r"};
  const bool mixed = Below(dice, 4) == 0;
  const char* end = ends[Below(dice, 3)];
  QString text;
  for (int left = Below(dice, 40); left > 0; --left) {
    if (mixed) end = ends[Below(dice, 3)];
    text += OddLine(dice) + QLatin1String(end);
  }
  if (Below(dice, 3) == 0) text += OddLine(dice);
  QByteArray bytes = Below(dice, 3) == 0 ? Windows1252(text) : text.toUtf8();
  if (Below(dice, 4) == 0) bytes.prepend("\xEF\xBB\xBF");
  if (Below(dice, 4) == 0) bytes.truncate(Below(dice, static_cast<int>(bytes.size()) + 1));
  return bytes;
}

}  // namespace tamo::test
