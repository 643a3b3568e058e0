#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include "reports/bidoverview.h"

namespace tamo {

// What the home page says of an open project: pure functions of its figures.

// The date that an estimator typed as bid date: month, day and year in figures, or with the month's
// name, or the year first; invalid when it can't be told.
QDate BidDay(const QString& typed);
// "12/24/2026, 32 days left"
QString BidDateText(const QString& typed, QDate today);

struct HomeTexts {
  QString total;
  QString hours;
  QString rooms;
  QString areas;
  QString emptyLines;
  QString unpriced;
  QString items;
  QString adjustment;
  QString uncounted;  // "" when all is counted
};
HomeTexts TextsOf(const BidOverview& state);

// Dollars for the eye: "$ 35,121", "$ 35,121.50".
QString DollarText(double dollars);

}  // namespace tamo
