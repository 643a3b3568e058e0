#pragma once

#include "windows/builder.h"

namespace tamo {

class PlanCanvas;

// The viewer's own tool bar over the plan; it belongs to whoever lays it out.
QWidget* PlanToolBar(Builder& b, PlanCanvas& canvas);

}  // namespace tamo
