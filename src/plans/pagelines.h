#pragma once

#include <QString>
#include <vector>

#include "plans/pagecontent.h"

namespace tamo {

// Text of a page as it is read: pieces that follow each other on one base line, with a blank where
// there is a gap. Text that is drawn twice is there once; columns far apart are lines of their own.
struct PageTextLine {
  QString text;
  PageBox box;
  double size = 0;  // of its first piece
  double dx = 1;    // direction of the base line, as of a TextPiece
  double dy = 0;
};

// In the order of their base lines, level ones from top to bottom. Clipped text is left out.
std::vector<PageTextLine> TextLinesOf(const PageContent& content);

}  // namespace tamo
