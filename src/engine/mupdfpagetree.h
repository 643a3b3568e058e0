#pragma once

#include <mupdf/fitz.h>
#include <mupdf/pdf.h>

namespace tamo {

// The one idea of "page N": the leaves of the page tree from first to last, as other readers show
// them. A page that is named twice is two pages; what is no page (null, a number) is passed over;
// wrong counts do not matter; a tree that runs in a circle ends there. At most 100,000 pages.

// Calls `take` for each. Never throws; a damaged tree gives the pages before the damage. `take`
// throws nothing either.
void WalkPages(fz_context* context, pdf_document* document,
               void (*take)(fz_context* context, pdf_obj* page, void* state), void* state);

// Has the engine number the pages of this document the same way; in memory only. To be called
// inside a try of the engine.
void FlattenPageTree(fz_context* context, pdf_document* document);

}  // namespace tamo
