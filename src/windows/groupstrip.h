#pragma once

#include "windows/builder.h"

namespace tamo {

// Over the plan while groups are counted: the name of a group and the totals of all.
QWidget* GroupStrip(Builder& b);

}  // namespace tamo
