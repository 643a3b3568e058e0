#pragma once

#include <QByteArray>

#include "plans/markpdf.h"

// What the annotations of all marks are made of, in the page's own coordinates.
namespace tamo {

// The rectangle that holds all points given to it.
struct PdfBox {
  double left = 1e9, bottom = 1e9, right = -1e9, top = -1e9;

  void Take(PagePoint at, double around);
  QByteArray Text() const;
};

// The letters of a mark, as an entry of its form's resources.
inline constexpr char kLetters[] =
    "/Font<</F1<</Type/Font/Subtype/Type1/BaseFont/Helvetica/Encoding/WinAnsiEncoding>>>>";

QByteArray Pair(PagePoint at);
QByteArray ColourParts(unsigned colour);  // 0xRRGGBB

// The entries that every annotation has, and those of this program's own.
QByteArray CommonEntries(const Mark& mark, double width, const PdfBox& box);
QByteArray OwnEntries(const Mark& mark);

MarkObjects LegendAsPdf(const Mark& mark, const PageMap& map);

}  // namespace tamo
