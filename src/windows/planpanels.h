#pragma once

#include "windows/builder.h"

namespace tamo {

class PlanCanvas;
class PlanThumbnails;

// The panels beside the plan by which one finds one's way: a sheet by its number, bookmarks and
// links, layers. They share their place with the browser of files: one stands there at a time.
QWidget* PlanPanels(Builder& b, QWidget* browser);

// Links under the pointer, names under the thumbnails, and the keys of the ways.
void BindPlanWays(Builder& b, PlanCanvas& canvas, PlanThumbnails& thumbnails);

}  // namespace tamo
