#pragma once

#include <mupdf/fitz.h>
#include <mupdf/pdf.h>

#include <vector>

namespace tamo {

// Of each layer of a document whether it is shown. False when it has not so many, or is damaged.
// Never throws.
bool ShowLayersOf(fz_context* context, pdf_document* document, const std::vector<bool>& shown);

}  // namespace tamo
