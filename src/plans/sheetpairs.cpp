#include "plans/sheetpairs.h"

#include <QRegularExpression>
#include <cstdlib>

#include "plans/pagelines.h"

namespace tamo {
namespace {

constexpr double kTitlePart = 0.75;  // of the sheet: title blocks stand right of it, or below
constexpr double kLargest = 0.9;     // of the largest letters there

// Right or below, as far as title blocks reach.
bool InTitleBlock(const PageBox& box, PageSize size) {
  return box.left > kTitlePart * size.width || box.top > kTitlePart * size.height;
}

}  // namespace

// The largest text there that is a number of a sheet; two different ones say nothing for sure.
QString SheetNumberOf(const PageContent& content) {
  static const QRegularExpression kNumber(
      QStringLiteral("^[A-Z]{1,3}[- ]?[0-9]{1,3}([.-][0-9]{1,2})?[A-Za-z]?$"));
  QString number;
  double size = 0;
  bool twice = false;
  for (const PageTextLine& line : TextLinesOf(content)) {
    const QString text = line.text.trimmed();
    if (!InTitleBlock(line.box, content.size) || !kNumber.match(text).hasMatch()) continue;
    if (line.size < kLargest * size) continue;
    twice = line.size * kLargest <= size && text != number;
    number = text;
    size = std::max(size, line.size);
  }
  return twice ? QString() : number;
}

QString PlainNumber(const QString& number) {
  QString plain;
  for (const QChar c : number.toUpper()) {
    if (c.isLetterOrNumber()) plain += c;
  }
  return plain;
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
  const QString wanted = PlainNumber(number);
  int read = 0;
  // First the page itself, then one before and one behind it, and so on.
  for (int away = 0; away < 2 * pages_; ++away) {
    const int page = first + (away % 2 == 0 ? -1 : 1) * ((away + 1) / 2);
    if (page < 1 || page > pages_) continue;
    const QString found = NumberOf(page, cancel);
    if (cancel.Cancelled()) return 0;
    if (!found.isEmpty() && PlainNumber(found) == wanted) return page;
    progress(++read);
  }
  return 0;
}

}  // namespace tamo
