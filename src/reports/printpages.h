#pragma once

#include <QString>
#include <QStringList>

#include "common/services.h"

namespace tamo {

// Prints a report in pages of fifty lines and what belongs to the fiftieth, each page a job of its
// own. A page breaks at the first empty line after each fiftieth; when none of the next ten is
// empty they are printed again on the next page.
void PrintPages(Printer& printer, const QStringList& lines, const QString& jobID,
                const QString& jobName);

}  // namespace tamo
