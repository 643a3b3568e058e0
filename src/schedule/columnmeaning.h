#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "schedule/scheduletable.h"

namespace tamo {

// The name of what a column tells: Number, Name, Floor ... Remarks; "none" for a column that is not
// taken.
QString MeaningName(ColumnRole role);

// The meaning that is called so, whatever the case; the beginning is enough where only one begins
// so ("ceil" is Ceiling). Nothing when there is none.
std::optional<ColumnRole> MeaningCalled(const QString& name);

// All names, as they are offered.
QStringList MeaningNames();

}  // namespace tamo
