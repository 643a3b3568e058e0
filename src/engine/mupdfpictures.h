#pragma once

#include <mupdf/fitz.h>

namespace tamo {

// A scanned sheet is one large picture: unpacked once when it is first painted, and kept as plain
// samples as long as the page is (160 MB for all pages together), so that each part of it costs as
// little as one of a drawing. What does not fit is decoded for each part, as the engine does it.
//
// Pictures may also share a decoder's dictionary (JBIG2), whose counts of holders are made for one
// thread only: these are decoded one at a time in the whole program, whichever thread paints them,
// wherever they stand: on the page, as a mask, or in a letter drawn as a picture.

// Has `image`, and its mask, decoded that way. Once is enough; to be called before any thread
// paints it. Throws as the engine does.
void PreparePicture(fz_context* context, fz_image* image);
// The same for the pictures in the letters of a text.
void PreparePictures(fz_context* context, const fz_text* text);

}  // namespace tamo
