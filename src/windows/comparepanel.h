#pragma once

#include "windows/builder.h"

namespace tamo {

// Beside the plan while another one is laid over it: which sheets, and what has changed.
QWidget* ComparePanel(Builder& b);

}  // namespace tamo
