#pragma once

#include <QString>

#include "common/services.h"
#include "common/textrows.h"

namespace tamo {

// Prints a report in pages of fifty lines and what belongs to the fiftieth, each page a job of its
// own. A page breaks at the first empty line after each fiftieth; when none of the next ten is
// empty they are printed again on the next page.
void PrintPages(Printer& printer, const ListRows& lines, const QString& jobID,
                const QString& jobName);

}  // namespace tamo
