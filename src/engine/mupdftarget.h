#pragma once

#include <mupdf/fitz.h>
#include <mupdf/pdf.h>

#include <QByteArray>

#include "plans/planguide.h"

namespace tamo {

// What a link or a bookmark says, before it is known which page that is.
struct RawTarget {
  PlanTarget::Kind kind = PlanTarget::Kind::None;
  int pageObject = 0;  // a page by its object, or
  int pageIndex = -1;  // by its number from 0
  bool hasX = false;
  bool hasY = false;
  float x = 0;  // in the page's own coordinates
  float y = 0;
  QByteArray outside;
};

// Reads where an annotation or a bookmark leads. Nothing is followed or run. Throws as the engine
// does, so `target` lies outside of the try.
void ReadTarget(fz_context* context, pdf_document* document, pdf_obj* from, RawTarget* target);

}  // namespace tamo
