#pragma once

#include <QStringList>
#include <vector>

#include "reports/markupfactors.h"
#include "reports/reportsource.h"

namespace tamo::test {

// A copy as it is put together plainly, line by line, each figure read off the line's own text.
struct PlainCopy {
  QStringList lines;
  std::vector<bool> detail;
  double total = 0;
  double labor = 0;
  double material = 0;
};

PlainCopy MakePlainCopy(const ReportSource& source, const Markups& markups, bool office);

}  // namespace tamo::test
