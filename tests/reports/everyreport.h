#pragma once

#include <QString>
#include <QStringList>

#include "reports/markupfactors.h"
#include "reports/reportsource.h"

namespace tamo::test {

// What came of a report: its lines with its notes and what it could not count, or the message that
// it stopped with.
struct Outcome {
  QStringList lines;
  QStringList notes;
  QString message;
  bool operator==(const Outcome&) const = default;
};

Markups RandomMarkups(unsigned seed);

inline constexpr int kReports = 8;
// Report number 0 to kReports - 1 of `source`.
Outcome Play(int report, const ReportSource& source, const Markups& markups);

}  // namespace tamo::test
