#pragma once

#include <mupdf/fitz.h>

namespace tamo {

// A device that records a page into a display list which is safe to paint: by several threads at
// once, and without patterns that nothing could stop. To be called inside a try of the engine.
fz_device* NewRecorder(fz_context* context, fz_display_list* list);

}  // namespace tamo
