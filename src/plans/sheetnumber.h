#pragma once

#include <QString>
#include <vector>

#include "plans/pagelines.h"

namespace tamo {

// What a sheet of a set is called: "A-601", "FINISH SCHEDULE". Empty where nothing says so for
// sure.
struct SheetTitle {
  QString number;
  QString name;
  bool Empty() const { return number.isEmpty() && name.isEmpty(); }
  bool operator==(const SheetTitle&) const = default;
};

// The number and the name as the sheet's title block states them: near the lower right corner, seen
// from above or along the letters, however the sheet is turned. What could as well be something
// else (two numbers as large as each other, a lone room number) is not taken.
SheetTitle SheetTitleOf(const std::vector<PageTextLine>& lines, PageSize size);

// "A-601", "A6.01", "M101", "FP-2.1a": letters of a discipline and digits.
bool IsSheetNumber(const QString& text);

// The number that a label or a bookmark begins with, and the name behind it: "A-601 - FINISH
// SCHEDULE". Empty when it begins with none.
SheetTitle SheetTitleOfLabel(const QString& label);

// The same for all ways to write a number: "a 6.01" and "A-601" give "A601". Sheets of two sets are
// paired by it.
QString PlainSheetNumber(const QString& number);

}  // namespace tamo
