#include "plans/lengthtext.h"

#include <QRegularExpression>
#include <cmath>

namespace tamo {
namespace {

// One spelling for each sign: the quotes, dashes and fractions that typesetters and phones write.
QString Plain(const QString& text) {
  static const std::pair<const char*, const char*> signs[] = {
      {"\u2019", "'"},    {"\u2018", "'"},    {"\u2032", "'"},    {"\u00b4", "'"},
      {"\u201d", "\""},   {"\u201c", "\""},   {"\u2033", "\""},   {"''", "\""},
      {"\u2013", "-"},    {"\u2014", "-"},    {"\u2011", "-"},    {"\u2212", "-"},
      {"\u00a0", " "},    {"\u2044", "/"},    {"\u00bd", " 1/2"}, {"\u00bc", " 1/4"},
      {"\u00be", " 3/4"}, {"\u215b", " 1/8"}, {"\u215c", " 3/8"}, {"\u215d", " 5/8"},
      {"\u215e", " 7/8"}};
  QString plain = text;
  for (const auto& [sign, meant] : signs)
    plain.replace(QString::fromUtf8(sign), QLatin1String(meant));
  static const QRegularExpression thousands(QStringLiteral("(?<=\\d),(?=\\d{3}(\\D|$))"));
  return plain.replace(thousands, QString()).simplified().toLower();
}

// "58", "58.5", "5/8", "58 5/8" and "58-5/8".
constexpr char kNumber[] = "(\\d+(?:\\.\\d+)?|\\.\\d+)?(?:[ -]?\\b(\\d+)/(\\d+))?";

std::optional<double> NumberOf(const QRegularExpressionMatch& match, int first) {
  const QString whole = match.captured(first);
  const QString over = match.captured(first + 1);
  if (whole.isEmpty() && over.isEmpty()) return std::nullopt;
  const double under = match.captured(first + 2).toDouble();
  if (!over.isEmpty() && under == 0) return std::nullopt;
  return whole.toDouble() + (over.isEmpty() ? 0 : over.toDouble() / under);
}

QRegularExpression Whole(const QString& pattern) {
  return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

std::optional<double> FeetAndInches(const QString& text) {
  const QString number = QLatin1String(kNumber);
  static const QRegularExpression both =
      Whole(number + QStringLiteral(" ?(?:'|ft\\.?|feet|foot) ?-? ?") + number +
            QStringLiteral(" ?(?:\"|in\\.?|inch|inches)?"));
  static const QRegularExpression inches =
      Whole(number + QStringLiteral(" ?(?:\"|in\\.?|inch|inches)"));
  if (const auto match = both.match(text); match.hasMatch()) {
    const std::optional<double> feet = NumberOf(match, 1);
    const std::optional<double> more = NumberOf(match, 4);
    if (feet.has_value()) return *feet + more.value_or(0) / 12;
  }
  if (const auto match = inches.match(text); match.hasMatch()) {
    if (const std::optional<double> only = NumberOf(match, 1)) return *only / 12;
  }
  return std::nullopt;
}

std::optional<double> Metric(const QString& text) {
  static const QRegularExpression metric =
      Whole(QLatin1String(kNumber) + QStringLiteral(" ?(mm|cm|m|meters?|metres?)"));
  const auto match = metric.match(text);
  if (!match.hasMatch()) return std::nullopt;
  const std::optional<double> number = NumberOf(match, 1);
  if (!number.has_value()) return std::nullopt;
  const QString unit = match.captured(4);
  const double metres = unit == QLatin1String("mm")   ? 0.001
                        : unit == QLatin1String("cm") ? 0.01
                                                      : 1;
  return *number * metres / 0.3048;
}

}  // namespace

std::optional<double> FeetOf(const QString& text) {
  const QString plain = Plain(text);
  if (plain.isEmpty() || plain.size() > 40) return std::nullopt;
  static const QRegularExpression number = Whole(QLatin1String(kNumber));
  std::optional<double> feet;
  if (const auto match = number.match(plain); match.hasMatch()) feet = NumberOf(match, 1);
  if (!feet.has_value()) feet = FeetAndInches(plain);
  if (!feet.has_value()) feet = Metric(plain);
  if (feet.has_value() && (*feet <= 0 || *feet > 1e6)) return std::nullopt;
  return feet;
}

QString FeetInWords(double feet) {
  const auto sixteenths = static_cast<qint64>(std::floor(std::abs(feet) * 192 + 0.5));
  const qint64 whole = sixteenths / 192;
  const qint64 inches = sixteenths % 192 / 16;
  qint64 over = sixteenths % 16;
  qint64 under = 16;
  while (over != 0 && over % 2 == 0) {
    over /= 2;
    under /= 2;
  }
  QString words = QStringLiteral("%1'-%2").arg(whole).arg(inches);
  if (over != 0) words += QStringLiteral(" %1/%2").arg(over).arg(under);
  return words + QLatin1Char('"');
}

}  // namespace tamo
