#pragma once

#include <QString>
#include <QStringList>

namespace tamo {

// Reports print ".00" behind every amount of whole dollars, and behind one with cents, too: 35121.5
// reads 35121.5.00. These find such amounts and say them in plain figures.

bool HasCents(double dollars);

// The entries of a bid that bring cents into it, in words: 'the item "Bond", 33.33'. `items`: the
// lines of the bottom line items.
QStringList EntriesWithCents(const QStringList& items, const QString& adjustment);

// The note: whose cents they are, and the sum `what` ("The total") in plain figures. Without an
// entry they come from the markup of the items.
QString CentsNote(const QStringList& entries, const QString& what, double dollars);

}  // namespace tamo
