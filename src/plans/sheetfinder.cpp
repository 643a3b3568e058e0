#include "plans/sheetfinder.h"

#include <QRegularExpression>
#include <algorithm>

namespace tamo {
namespace {

// The page that somebody types, 0 for none.
int PageTyped(const QString& typed, int pages) {
  static const QRegularExpression page(QStringLiteral("^(?:page|p\\.|#)? ?(\\d{1,6})$"),
                                       QRegularExpression::CaseInsensitiveOption);
  const int number = page.match(typed).captured(1).toInt();
  return number <= pages ? number : 0;
}

enum class Likeness { Same, Label, Digits, Begins, Named, None };

Likeness LikenessOf(const SheetBook::Sheet& sheet, const QString& plain, const QString& typed) {
  const QString number = PlainSheetNumber(sheet.title.number);
  if (!plain.isEmpty() && number == plain) return Likeness::Same;
  if (!typed.isEmpty() && sheet.label.compare(typed, Qt::CaseInsensitive) == 0)
    return Likeness::Label;
  const bool digits = !plain.isEmpty() && plain.front().isDigit();
  if (digits && number.endsWith(plain) && number[number.size() - plain.size() - 1].isLetter())
    return Likeness::Digits;
  if (!plain.isEmpty() && number.startsWith(plain)) return Likeness::Begins;
  if (typed.size() > 1 && sheet.title.name.contains(typed, Qt::CaseInsensitive))
    return Likeness::Named;
  return Likeness::None;
}

}  // namespace

std::vector<int> SheetsCalled(const QString& typed, const SheetBook& book) {
  const QString wanted = typed.simplified();
  const QString plain = PlainSheetNumber(wanted);
  const int page = PageTyped(wanted, book.Sheets());
  std::vector<int> called[static_cast<int>(Likeness::None) + 1];
  for (int at = 1; at <= book.Sheets(); ++at)
    called[static_cast<int>(LikenessOf(book.Of(at), plain, wanted))].push_back(at);
  std::vector<int> pages = called[static_cast<int>(Likeness::Same)];
  if (!pages.empty()) return pages;
  const auto add = [&pages](const std::vector<int>& more) {
    for (const int one : more) {
      if (std::find(pages.begin(), pages.end(), one) == pages.end()) pages.push_back(one);
    }
  };
  // A plain number is a page, unless the plan itself calls another page so.
  add(called[static_cast<int>(Likeness::Label)]);
  if (page != 0 && pages.empty()) add({page});
  add(called[static_cast<int>(Likeness::Digits)]);
  if (!pages.empty()) return pages;
  add(called[static_cast<int>(Likeness::Begins)]);
  add(called[static_cast<int>(Likeness::Named)]);
  return pages;
}

QString SheetInWords(const SheetBook& book, int page) {
  const SheetBook::Sheet& sheet = book.Of(page);
  QString words = sheet.title.number;
  if (!sheet.title.name.isEmpty())
    words += (words.isEmpty() ? QString() : QStringLiteral("  ")) + sheet.title.name;
  if (words.isEmpty() && !sheet.label.isEmpty() && sheet.label != QString::number(page))
    words = sheet.label;
  if (words.isEmpty()) return QStringLiteral("Page %1").arg(page);
  return QStringLiteral("%1  (page %2)").arg(words, QString::number(page));
}

QString NoSheetInWords(const QString& typed, const SheetBook& book) {
  if (book.Sheets() == 0) return QStringLiteral("No plan is open.");
  QString first;
  QString last;
  int known = 0;
  for (int page = 1; page <= book.Sheets(); ++page) {
    const QString& number = book.TitleOf(page).number;
    if (number.isEmpty()) continue;
    if (known++ == 0) first = number;
    last = number;
  }
  QString words = QStringLiteral("No sheet is called \"%1\". ").arg(typed.simplified());
  if (known == 0) {
    words += book.Done() ? QStringLiteral(
                               "No number could be read on these sheets: they are "
                               "scanned, drawn as lines, or say none for sure. ")
                         : QString();
  } else {
    words += known == 1 ? QStringLiteral("One number is known: %1. ").arg(first)
                        : QStringLiteral("%1 numbers are known, %2 to %3. ")
                              .arg(QString::number(known), first, last);
  }
  if (!book.Done())
    words += QStringLiteral("%1 of %2 sheets are read. ").arg(book.SheetsRead()).arg(book.Sheets());
  return words + QStringLiteral("A page goes too: 1 to %1.").arg(book.Sheets());
}

}  // namespace tamo
