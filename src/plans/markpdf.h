#pragma once

#include <QByteArray>

#include "plans/mark.h"

namespace tamo {

// How a page's own coordinates lie to the points of the page as it is looked at:
// x = a*u + c*v + e, y = b*u + d*v + f. Rotation, crop and user unit are all in it.
struct PageMap {
  double a = 1, b = 0, c = 0, d = -1, e = 0, f = 792;

  PagePoint ToPage(double u, double v) const { return {a * u + c * v + e, b * u + d * v + f}; }
  PagePoint ToFile(PagePoint at) const;  // in the page's own coordinates
  double Unit() const;                   // points of one own unit: the page's user unit
};

// The two objects of a mark in a PDF: the annotation, a Line, Circle, PolyLine or Polygon any
// reader knows, and the form that shows it.
struct MarkObjects {
  QByteArray annotation;   // without its page and its form, see MarkAnnotation
  QByteArray formEntries;  // dictionary entries of the form, without /Length
  QByteArray formContent;  // what the form paints
};

MarkObjects MarkAsPdf(const Mark& mark, double markerSize, const PageMap& map);

// Keys of this program's own in an annotation: the mark's title, and what is kept with it.
inline constexpr char kTitleKey[] = "Tamo_Name";
inline constexpr char kKeptKey[] = "Tamo_Entry";

// What the annotation of a closed outline says that it is, and what outline a text stands for.
const char* SubjectOf(Mark::Kind kind);
Mark::Kind OutlineOfSubject(const QString& subject);

// The whole dictionary of the annotation: on page object `page`, shown by form object `form`.
QByteArray MarkAnnotation(const MarkObjects& objects, const QByteArray& page, int form);

}  // namespace tamo
