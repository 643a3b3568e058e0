#pragma once

#include <QStringList>

namespace tamo {

// What one takeoff unit of a system takes of one of its materials, as it is read at a glance: the
// order quantity with its unit, its cost and its labor in money of two decimals, without waste and
// markups. Empty texts for what is not there yet. The price itself is worked out elsewhere.
struct MaterialFigures {
  QString quantity;
  QString cost;
  QString labor;
};

// Of the material in row `at` of the list of materials; `system` has its rows of twelve.
MaterialFigures FiguresOf(const QStringList& system, int at);

}  // namespace tamo
