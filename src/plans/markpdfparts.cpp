#include "plans/markpdfparts.h"

#include <QDateTime>
#include <algorithm>

#include "plans/pdfappend.h"

namespace tamo {

void PdfBox::Take(PagePoint at, double around) {
  left = std::min(left, at.x - around);
  right = std::max(right, at.x + around);
  bottom = std::min(bottom, at.y - around);
  top = std::max(top, at.y + around);
}

QByteArray PdfBox::Text() const {
  return '[' + PdfNumber(left) + ' ' + PdfNumber(bottom) + ' ' + PdfNumber(right) + ' ' +
         PdfNumber(top) + ']';
}

QByteArray Pair(PagePoint at) {
  return PdfNumber(at.x) + ' ' + PdfNumber(at.y);
}

QByteArray ColourParts(unsigned colour) {
  return PdfNumber((colour >> 16 & 255) / 255.0) + ' ' + PdfNumber((colour >> 8 & 255) / 255.0) +
         ' ' + PdfNumber((colour & 255) / 255.0);
}

QByteArray CommonEntries(const Mark& mark, double width, const PdfBox& box) {
  const QByteArray date =
      "(D:" +
      QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMddHHmmss")).toLatin1() + "Z)";
  return "/Type/Annot/Rect" + box.Text() + "/NM" + PdfText(mark.name) + "/F 4/C[" +
         ColourParts(ColourNumber(mark.colour)) + "]/BS<</Type/Border/W " + PdfNumber(width) +
         "/S/S>>/T(Tamo)/M" + date + "/CreationDate" + date;
}

// Other readers list the title as the subject; an outline's subject says which one it is.
QByteArray OwnEntries(const Mark& mark) {
  QByteArray entries;
  if (!mark.title.isEmpty()) entries += QByteArray("/") + kTitleKey + PdfText(mark.title);
  if (!mark.title.isEmpty() && !IsOutline(mark.kind)) entries += "/Subj" + PdfText(mark.title);
  if (!mark.kept.isEmpty()) entries += QByteArray("/") + kKeptKey + PdfText(mark.kept);
  return entries;
}

}  // namespace tamo
