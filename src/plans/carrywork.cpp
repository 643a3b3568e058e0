#include "plans/carrywork.h"

#include <algorithm>

namespace tamo {
namespace {

QString SheetInWords(const QString& number, int page) {
  return number.isEmpty() ? QStringLiteral("page %1").arg(page)
                          : QStringLiteral("sheet %1").arg(number);
}

// The new sheet that an old one is; 0 for none.
int NewPage(const CarryTask& task, int oldPage, const QString& number, CancelFlag& cancel) {
  const int pages = static_cast<int>(task.nowSizes.size());
  if (number.isEmpty()) return oldPage <= pages ? oldPage : 0;
  return task.nowSheets->Find(number, std::clamp(oldPage, 1, pages), cancel, [](int) {});
}

}  // namespace

SheetsToCarry CompareMarkedSheets(const CarryTask& task, CancelFlag& cancel,
                                  const std::function<void(int done)>& progress) {
  SheetsToCarry carry;
  int done = 0;
  for (const int oldPage : task.oldPages) {
    const QString number = task.common.oldSheets->NumberOf(oldPage, cancel);
    CompareTask sheet = task.common;
    sheet.oldPage = oldPage;
    sheet.page = NewPage(task, oldPage, number, cancel);
    sheet.keepPair = true;
    if (cancel.Cancelled()) return {};
    if (sheet.page == 0) {
      carry.alone += SheetInWords(number, oldPage);
      continue;
    }
    sheet.nowSize = task.nowSizes[size_t(sheet.page) - 1];
    SheetsCompared last;
    CompareSheets(sheet, cancel, [&](const SheetsCompared& known, int) { last = known; });
    if (cancel.Cancelled()) return {};
    carry.sheets.push_back(std::move(last));
    progress(++done);
  }
  return carry;
}

}  // namespace tamo
