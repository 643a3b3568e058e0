#include "plans/marklegend.h"
#include "plans/markpdfparts.h"
#include "plans/pdfappend.h"

namespace tamo {
namespace {

constexpr double kBorder = 0.75;

// A rectangle of the page as it is looked at, as a path of its own coordinates.
QByteArray Rectangle(PagePoint at, double width, double height, const PageMap& map, PdfBox& box) {
  const PagePoint corners[] = {
      at, {at.x + width, at.y}, {at.x + width, at.y + height}, {at.x, at.y + height}};
  QByteArray path;
  for (const PagePoint corner : corners) {
    const PagePoint own = map.ToFile(corner);
    box.Take(own, 0);
    path += Pair(own) + (path.isEmpty() ? " m " : " l ");
  }
  return path + "h ";
}

QByteArray Letters(const LegendShape::Text& text, const PageMap& map) {
  const PagePoint zero = map.ToFile({0, 0});
  const PagePoint right = map.ToFile({1, 0});
  const PagePoint up = map.ToFile({0, -1});
  return ColourParts(text.colour) + " rg BT /F1 " + PdfNumber(kLegendLetters) + " Tf " +
         PdfNumber(right.x - zero.x) + ' ' + PdfNumber(right.y - zero.y) + ' ' +
         PdfNumber(up.x - zero.x) + ' ' + PdfNumber(up.y - zero.y) + ' ' +
         Pair(map.ToFile(text.at)) + " Tm " + PdfLetters(text.text) + " Tj ET\n";
}

}  // namespace

// A free text that any reader shows, with a picture of its own.
MarkObjects LegendAsPdf(const Mark& mark, const PageMap& map) {
  const LegendShape shape = ShapeOfLegend(mark);
  MarkObjects objects;
  PdfBox box;
  const QByteArray frame = Rectangle(shape.at, shape.width, shape.height, map, box);
  const double width = kBorder / map.Unit();
  PdfBox unused;
  QByteArray& content = objects.formContent;
  content = "1 1 1 rg " + frame + "f\n" + ColourParts(ColourNumber(mark.colour)) + " RG " +
            PdfNumber(width) + " w " + frame + "S\n";
  content += Pair(map.ToFile({shape.at.x, shape.underHead})) + " m " +
             Pair(map.ToFile({shape.at.x + shape.width, shape.underHead})) + " l S\n";
  for (const LegendShape::Patch& patch : shape.patches)
    content += ColourParts(patch.colour) + " rg " +
               Rectangle(patch.at, kLegendPatch, kLegendPatch, map, unused) + "f\n";
  for (const LegendShape::Text& text : shape.texts) content += Letters(text, map);
  objects.annotation = "/Subtype/FreeText/DA(/Helv " + PdfNumber(kLegendLetters / map.Unit()) +
                       " Tf 0 g)/Contents" + PdfText(mark.label) + CommonEntries(mark, width, box) +
                       OwnEntries(mark);
  objects.formEntries =
      "/Type/XObject/Subtype/Form/BBox" + box.Text() + "/Resources<<" + kLetters + ">>";
  return objects;
}

}  // namespace tamo
