#pragma once

#include <QString>
#include <QStringList>

#include "records/markupsfile.h"

// What a takeoff unit costs, estimated from the materials of a system. These are the figures of the
// Pricing form; the reports round on their own.
namespace tamo {

// Price of a takeoff unit. `text` is the sum with all its digits, not in money format, "0" without
// a block. A conversion number of 0 stops the sum: `stoppedAt` is then the block (from 0), `text`
// the sum of the blocks before, and `labor` tells which of the two numbers it was.
struct EstimatedPrice {
  QString text;
  int stoppedAt = -1;
  bool labor = false;
};

// The sum over the blocks of `system`: material and labor, each loaded with waste and markups on
// its own base, never compounded. Every step is cut to 15 digits. A block with no tag takes over
// the running figure of the step before. A figure beyond what a number holds raises a
// RunTimeFailure.
//
// Half a thousandth is added to each base and stays in it: it rounds nothing. A test holds it.
EstimatedPrice EstimateUnitPrice(const QStringList& system, const Markups& markups);

// Money text of a typed price: cents are cut, not rounded (1.999 is 1.99), there is no digit before
// the point below one (.05), and -.05 comes out as .-5. Tests hold it. The bottom line and the
// reports write money by routines of their own.
struct PriceFormat {
  static QString MakeMoney(const QString& text);
};

// The texts of the three material markups joined end to end, read as one number and divided by the
// markup. A markup of 0 raises a RunTimeFailure.
double ActualProfit(const Markups& markups);

}  // namespace tamo
