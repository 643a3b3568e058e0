#pragma once

#include <QString>
#include <QStringList>

#include "records/markupsfile.h"
#include "reports/reportsource.h"

namespace tamo {

// How a bid stands, in the figures that an estimator looks for first. Those of the recap are the
// recap's own.
struct BidOverview {
  int rooms = 0;
  int roomLines = 0;  // that name a system
  int areas = 0;
  int areaLines = 0;
  int withoutQuantity = 0;  // lines of rooms and areas
  QStringList unpriced;     // systems with neither a unit price nor a material, or without a file
  int items = 0;
  double itemPrices = 0;  // without markups
  double adjustment = 0;
  double total = 0;
  double manhours = 0;
  QString failure;        // why there is no recap; its figures are 0 then
  QStringList uncounted;  // what could not be read and counts nowhere, in sentences
};

// Reads the whole bid of `source`; nothing of it is kept.
BidOverview OverviewOfBid(const ReportSource& source, const Markups& markups);

}  // namespace tamo
