#include "workspace/projectnumber.h"

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

}  // namespace tamo
