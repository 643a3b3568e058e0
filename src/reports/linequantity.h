#pragma once

#include <QStringView>

#include "reports/takeoffwalk.h"

namespace tamo {

// The quantity of a takeoff line as the bill and the copies read it. The quantity field of a room
// line fills the 14 characters from column 33, that of an area line those from column 22, but these
// reports are used to reading only a part of the field; tests hold each part.

// The value of `width` characters from column `from`.
double QuantityAt(QStringView line, qsizetype from, qsizetype width);
// The value of the whole field.
double WholeQuantity(SheetKind kind, QStringView line);

}  // namespace tamo
