#pragma once

#include <QString>
#include <vector>

#include "plans/pagelines.h"

namespace tamo {

// A line of text as it lies for who reads it, in letters' heights of nothing in particular: points,
// turned so that the letters stand upright. `right` and `low` say how near it is to the lower right
// corner of what is read, 1 in the corner, 0 at the other end.
struct BlockLine {
  QString text;  // simplified
  double left = 0;
  double right = 0;
  double top = 0;
  double bottom = 0;
  double size = 0;
  double nearRight = 0;
  double nearBottom = 0;

  double Width() const { return right - left; }
  double Middle() const { return (top + bottom) / 2; }
};

// The lines of one direction.
struct BlockSide {
  std::vector<BlockLine> lines;
  int direction = 0;  // quarter turns of the letters, clockwise
};

// The lines of a page by their direction, the slanted ones left out. Each also knows how near it
// lies to the corner where the title block of a sheet stands: that of the page as it is looked at,
// or of the sheet as its letters are read, whichever is nearer.
std::vector<BlockSide> BlockSidesOf(const std::vector<PageTextLine>& lines, PageSize size);

enum class BlockLabel { None, Number, Name, Other };
// What the words before a field of a title block announce; `rest` is what stands behind them.
BlockLabel LabelOf(const QString& text, QString& rest);

// The text that belongs to a label: behind it, right of it, under it, or over it when under it
// there is none. `lines` are those of its direction. Several lines of one size are one text.
QString TextOfLabel(const std::vector<BlockLine>& lines, const BlockLine& label,
                    const QString& rest, bool several);

}  // namespace tamo
