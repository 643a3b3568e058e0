#pragma once

#include <QString>
#include <vector>

#include "plans/sheetbook.h"

namespace tamo {

// Finds a sheet of a plan by what somebody types: its number (whatever the case, the hyphens, the
// blanks and points), its page ("12", "page 12"), the beginning of its number, or words of its
// name. The pages, each once: those whose number it is go before all others.
std::vector<int> SheetsCalled(const QString& typed, const SheetBook& book);

// A sheet as a list shows it: "A-601  FINISH SCHEDULE  (page 12)"; "Page 12" where it is called
// nothing.
QString SheetInWords(const SheetBook& book, int page);

// Why nothing was found, and what is known.
QString NoSheetInWords(const QString& typed, const SheetBook& book);

}  // namespace tamo
