#pragma once

#include <mupdf/fitz.h>

namespace tamo {

// Pictures of one plan may share a decoder's dictionary (JBIG2), whose counts of holders are made
// for one thread only. Decoding such a picture goes through a lock of the whole program, whichever
// thread paints it, wherever it stands: on the page, as a mask, or in a letter drawn as a picture.

// Puts the lock before `image`, and before its mask. Once is enough.
void GuardSharedDecoder(fz_context* context, fz_image* image);
// The same for the pictures in the letters of a text. Throws as the engine does.
void GuardSharedDecoders(fz_context* context, const fz_text* text);

}  // namespace tamo
