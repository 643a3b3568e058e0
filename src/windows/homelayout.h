#pragma once

#include "windows/builder.h"

namespace tamo {

// The home page in the free space of the main form.
QWidget* HomePageOf(Builder& builder);

}  // namespace tamo
