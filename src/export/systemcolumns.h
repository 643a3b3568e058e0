#pragma once

#include <QString>
#include <QStringList>
#include <array>

#include "common/tablesink.h"
#include "records/materialblock.h"

namespace tamo {

// The columns of a sheet of systems.
enum class SystemColumn {
  System,
  Unit,
  UnitPrice,
  Colour,
  Material,
  OrderUnit,
  Price,
  Ratio,
  RatioReads,
  LaborRatio,
  LaborReads,
  Waste,
  Wage,
  Count
};

std::vector<TableColumn> SystemColumns();
QString NameOf(SystemColumn column);

// How a conversion number reads, in the words of the sheet, and back; "" when the words mean none.
QString ReadingOf(const QString& tag);
QString TagOf(const QString& reading);

}  // namespace tamo
