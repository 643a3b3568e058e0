#pragma once

#include <QFont>

namespace tamo {

// A face of equal widths for lists of fixed columns: "MS Gothic", else the best that is installed.
QFont FixedFont();

}  // namespace tamo
