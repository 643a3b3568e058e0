#pragma once

#include <mupdf/fitz.h>

namespace tamo {

// How often the patterns of a page may be repeated in all. Nothing can stop the engine once it
// paints one; a pattern past the budget is only begun.
struct PatternBudget {
  double repeats = 2e7;
  bool exceeded = false;
};

// A device that records a page into a display list which is safe to paint: by several threads at
// once, and within the budget, which outlives the device. One device of a thread at a time. To be
// called inside a try of the engine.
fz_device* NewRecorder(fz_context* context, fz_display_list* list, PatternBudget* budget);

}  // namespace tamo
