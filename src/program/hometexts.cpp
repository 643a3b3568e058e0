#include "program/hometexts.h"

#include <QLocale>

#include "common/columns.h"
#include "common/numbers.h"

namespace tamo {
namespace {

QString Counted(int count, const QString& one, const QString& many) {
  return QStringLiteral("%1 %2").arg(count).arg(count == 1 ? one : many);
}

QString DaysLeft(qint64 days) {
  if (days == 0) return QStringLiteral("today");
  if (days == 1) return QStringLiteral("1 day left");
  if (days > 1) return QStringLiteral("%1 days left").arg(days);
  return days == -1 ? QStringLiteral("yesterday") : QStringLiteral("%1 days ago").arg(-days);
}

// "2 systems: Door, Mirror", the first few by name.
QString Named(const QStringList& names) {
  constexpr qsizetype kMost = 3;
  if (names.isEmpty()) return QStringLiteral("none");
  const QString list = names.mid(0, kMost).join(QStringLiteral(", "));
  return QStringLiteral("%1 (%2%3)")
      .arg(names.size())
      .arg(list, names.size() > kMost ? QStringLiteral(" ...") : QString());
}

}  // namespace

QDate BidDay(const QString& typed) {
  const QString text = typed.simplified();
  const QLocale english(QLocale::English, QLocale::UnitedStates);
  for (const char* format :
       {"M/d/yyyy", "M-d-yyyy", "yyyy-M-d", "d.M.yyyy", "MMMM d, yyyy", "MMMM d yyyy",
        "MMM d, yyyy", "MMM d yyyy", "d MMMM yyyy", "d MMM yyyy"}) {
    const QDate day = english.toDate(text, QLatin1String(format));
    if (day.isValid() && day.year() > 1900) return day;
  }
  for (const char* format : {"M/d/yy", "M-d-yy"}) {
    QDate day = english.toDate(text, QLatin1String(format));
    if (!day.isValid()) continue;
    if (day.year() < 2000) day = day.addYears(100);
    return day;
  }
  return {};
}

QString BidDateText(const QString& typed, QDate today) {
  if (TrimmedBlanks(typed).isEmpty()) return QStringLiteral("not set");
  const QDate day = BidDay(typed);
  return day.isValid() ? typed.trimmed() + QStringLiteral(", ") + DaysLeft(today.daysTo(day))
                       : typed.trimmed();
}

QString DollarText(double dollars) {
  QString text = NumberText(dollars);
  const bool minus = text.startsWith(QLatin1Char('-'));
  if (minus) text.remove(0, 1);
  const qsizetype point = text.indexOf(QLatin1Char('.'));
  for (qsizetype at = (point < 0 ? text.size() : point) - 3; at > 0; at -= 3)
    text.insert(at, QLatin1Char(','));
  if (point >= 0 && text.size() - text.indexOf(QLatin1Char('.')) == 2) text += QLatin1Char('0');
  return QStringLiteral("$ ") + (minus ? QStringLiteral("-") : QString()) + text;
}

HomeTexts TextsOf(const BidOverview& state) {
  const bool failed = !state.failure.isEmpty();
  const QString none = QStringLiteral("can't be made");
  HomeTexts texts;
  texts.total = failed ? none : DollarText(state.total);
  texts.hours = failed ? none : NumberText(state.manhours);
  texts.rooms = QStringLiteral("%1, %2")
                    .arg(state.rooms)
                    .arg(Counted(state.roomLines, QStringLiteral("line"), QStringLiteral("lines")));
  texts.areas = QStringLiteral("%1, %2")
                    .arg(state.areas)
                    .arg(Counted(state.areaLines, QStringLiteral("line"), QStringLiteral("lines")));
  texts.emptyLines =
      state.withoutQuantity == 0 ? QStringLiteral("none") : QString::number(state.withoutQuantity);
  texts.unpriced = Named(state.unpriced);
  texts.items = state.items == 0
                    ? QStringLiteral("none")
                    : QStringLiteral("%1, %2").arg(state.items).arg(DollarText(state.itemPrices));
  texts.adjustment = state.adjustment == 0 ? QStringLiteral("none") : DollarText(state.adjustment);
  texts.uncounted = failed ? state.failure : state.uncounted.join(QLatin1Char(' '));
  return texts;
}

}  // namespace tamo
