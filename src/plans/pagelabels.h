#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace tamo {

// How the pages from one on are called: a prefix, and a number that counts on in some style.
struct LabelRange {
  int from = 0;    // page, from 0
  char style = 0;  // D decimal, R r Roman, A a letters; any other: no number
  QString prefix;
  int start = 1;
};

// The label of every page, as many as there are pages; none when no range is given. Pages before
// the first range are called by their number.
QStringList PageLabels(std::vector<LabelRange> ranges, int pages);

}  // namespace tamo
