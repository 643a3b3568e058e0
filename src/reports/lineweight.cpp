#include "reports/lineweight.h"

#include <QLatin1String>
#include <algorithm>

namespace tamo {
namespace {

bool IsOneOf(QStringView text, std::initializer_list<const char*> words) {
  return std::any_of(words.begin(), words.end(),
                     [&](const char* word) { return text == QLatin1String(word); });
}

bool BeginsWithTotal(QStringView text) {
  for (const char* word : {"Total", "Subtotal", "Gross Profit", "Net Profit"}) {
    if (text.startsWith(QLatin1String(word))) return true;
  }
  return false;
}

qsizetype BlanksBefore(QStringView line) {
  qsizetype blanks = 0;
  while (blanks < line.size() && line[blanks] == u' ') ++blanks;
  return blanks;
}

}  // namespace

bool IsHeavyLine(QStringView title, QStringView line) {
  const QStringView text = line.trimmed();
  const QStringView report = title.trimmed();
  if (text.isEmpty() || text.startsWith(u'_')) return false;
  if (text == report) return true;
  const qsizetype blanks = BlanksBefore(line);
  if (report == u"Project Manager")
    return IsOneOf(text, {"Field Copy", "Office Copy"}) || blanks == 0 || BeginsWithTotal(text);
  if (report == u"BreakDown") return blanks == 0 || BeginsWithTotal(text);
  if (report == u"Recap Sheet") return blanks == 2 || BeginsWithTotal(text);
  return false;
}

}  // namespace tamo
