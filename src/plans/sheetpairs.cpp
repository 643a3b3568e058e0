#include "plans/sheetpairs.h"

#include "plans/pagelines.h"
#include "plans/sheetnumber.h"

namespace tamo {
QString SheetNumberOf(const PageContent& content) {
  return SheetTitleOf(TextLinesOf(content), content.size).number;
}

QString SheetPairs::NumberOf(int page, CancelFlag& cancel) {
  const auto known = numbers_.constFind(page);
  if (known != numbers_.constEnd()) return *known;
  QString number = SheetNumberOf(plan_->ReadContent(page, cancel));
  if (!cancel.Cancelled()) numbers_.insert(page, number);
  return number;
}

int SheetPairs::Find(const QString& number, int first, CancelFlag& cancel,
                     const Progress& progress) {
  const QString wanted = PlainSheetNumber(number);
  int read = 0;
  // First the page itself, then one before and one behind it, and so on.
  for (int away = 0; away < 2 * pages_; ++away) {
    const int page = first + (away % 2 == 0 ? -1 : 1) * ((away + 1) / 2);
    if (page < 1 || page > pages_) continue;
    const QString found = NumberOf(page, cancel);
    if (cancel.Cancelled()) return 0;
    if (!found.isEmpty() && PlainSheetNumber(found) == wanted) return page;
    progress(++read);
  }
  return 0;
}

}  // namespace tamo
