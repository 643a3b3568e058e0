#include "records/projectnumber.h"

#include "common/columns.h"
#include "common/numbers.h"

namespace tamo {

QString SeedNumber(const QDate& today) {
  return today.toString(QStringLiteral("yyMM")) + QStringLiteral("000");
}

NextNumber NumberAfter(const QString& line, const QDate& today) {
  const QString running = NumberText(Truncated(Value((Blanks(3) + line).right(3))) + 1);
  const QString candidate = line.right(7).left(4) +
                            QString(qMax<qsizetype>(0, 3 - running.size()), QLatin1Char('0')) +
                            running;
  const QString firstOfMonth = today.toString(QStringLiteral("yyMM")) + QStringLiteral("001");
  if (firstOfMonth > candidate) return {firstOfMonth, true};
  return {candidate, false};
}

ProjectNumber NumberInId(const QString& id) {
  const QString digits = id.mid(id.lastIndexOf(QLatin1Char('-')) + 1);
  bool isNumber = digits.size() >= 7 && digits.size() <= 12;
  for (const QChar c : digits)
    isNumber = isNumber && c >= QLatin1Char('0') && c <= QLatin1Char('9');
  const int month = isNumber ? digits.mid(2, 2).toInt() : 0;
  if (month < 1 || month > 12) return {};
  return {digits.left(4), digits.mid(4).toULongLong()};
}

QString DigitsOf(const ProjectNumber& number) {
  return number.month + QString::number(number.running).rightJustified(3, QLatin1Char('0'));
}

int ReadProjectNumber(Files& files, const DataFolder& data, QString& line) {
  QStringList lines;
  const int error = files.ReadLines(data.ProjectNumber(), lines);
  if (!lines.isEmpty()) line = lines.first();
  return error;
}

int WriteProjectNumber(Files& files, const DataFolder& data, const QString& line) {
  return files.SaveLines(data.ProjectNumber(), {line}, FileKind::Latest);
}

}  // namespace tamo
