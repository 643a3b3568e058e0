#pragma once

#include <mupdf/fitz.h>
#include <mupdf/pdf.h>

namespace tamo {

// Runs what a page shows, but for the marks of this program: its contents, then the annotations of
// others, then the form fields. To be called inside a try of the engine.
void RunPage(fz_context* context, pdf_page* page, fz_device* device, fz_cookie* cookie);

}  // namespace tamo
