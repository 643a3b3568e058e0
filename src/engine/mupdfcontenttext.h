#pragma once

#include <mupdf/fitz.h>

#include <vector>

#include "plans/pagecontent.h"

namespace tamo {

// The letters of one run of the engine as pieces; `place` brings them onto the page. What is no
// matter of place and font is taken from `like`. Never throws an error of the engine.
std::vector<TextPiece> PiecesOf(fz_context* context, const fz_text_span& span, fz_matrix place,
                                const TextPiece& like);

}  // namespace tamo
