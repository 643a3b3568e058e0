#include "plans/markpdf.h"

#include <algorithm>
#include <cmath>

#include "plans/markpdfparts.h"
#include "plans/markshape.h"
#include "plans/outline.h"
#include "plans/pdfappend.h"

namespace tamo {
namespace {

// The four corners of the label on the page, from its base line's start on.
void TakeText(const MarkShape& shape, const PageMap& map, PdfBox& box) {
  const double c = std::cos(shape.textAngle);
  const double s = std::sin(shape.textAngle);
  for (const double along : {-shape.textWidth / 2, shape.textWidth / 2}) {
    for (const double up : {-0.25 * shape.textSize, shape.textSize}) {
      box.Take(
          map.ToFile({shape.textAt.x + along * c + up * s, shape.textAt.y + along * s - up * c}),
          0);
    }
  }
}

// A text matrix turns the letters the way the page's own coordinates lie to the page looked at.
QByteArray TextPart(const MarkShape& shape, const PageMap& map) {
  if (shape.text.isEmpty()) return {};
  const double c = std::cos(shape.textAngle);
  const double s = std::sin(shape.textAngle);
  const PagePoint zero = map.ToFile({0, 0});
  const PagePoint right = map.ToFile({c, s});
  const PagePoint up = map.ToFile({s, -c});
  const PagePoint start = map.ToFile(
      {shape.textAt.x - shape.textWidth / 2 * c, shape.textAt.y - shape.textWidth / 2 * s});
  return "BT /F1 " + PdfNumber(shape.textSize) + " Tf " + PdfNumber(right.x - zero.x) + ' ' +
         PdfNumber(right.y - zero.y) + ' ' + PdfNumber(up.x - zero.x) + ' ' +
         PdfNumber(up.y - zero.y) + ' ' + Pair(start) + " Tm " + PdfLetters(shape.text) +
         " Tj ET\n";
}

QByteArray CirclePart(PagePoint centre, double radius) {
  constexpr double kArc = 0.5522847498;
  const double r = radius;
  const double k = radius * kArc;
  const double x = centre.x;
  const double y = centre.y;
  const auto curve = [](double x1, double y1, double x2, double y2, double x3, double y3) {
    return Pair({x1, y1}) + ' ' + Pair({x2, y2}) + ' ' + Pair({x3, y3}) + " c\n";
  };
  return Pair({x + r, y}) + " m\n" + curve(x + r, y + k, x + k, y + r, x, y + r) +
         curve(x - k, y + r, x - r, y + k, x - r, y) + curve(x - r, y - k, x - k, y - r, x, y - r) +
         curve(x + k, y - r, x + r, y - k, x + r, y) + "s\n";
}

// What the mark says, in words behind its number, and at what scale.
struct LabelParts {
  QString unit;
  QString ratio;
};

LabelParts PartsOf(const QString& label) {
  const qsizetype blank = label.indexOf(QLatin1Char(' '));
  LabelParts parts;
  parts.unit = blank < 0 ? QString() : label.mid(blank + 1);
  parts.ratio = parts.unit;
  if (const qsizetype at = parts.unit.indexOf(QLatin1String(" @ ")); at >= 0) {
    parts.ratio = parts.unit.mid(at + 3);
    parts.unit.truncate(at);
  }
  if (parts.unit.startsWith(QLatin1String("sq "))) parts.unit.remove(0, 3);
  if (parts.unit == QLatin1String("feet")) parts.unit = QStringLiteral("ft");
  return parts;
}

// Units of the label for one own unit of the page.
double UnitsOfOne(const Mark& mark, double unit) {
  const double value = std::abs(ValueOfMark(mark));
  const double drawn = IsSurface(mark.kind)
                           ? std::sqrt(OutlineArea(mark.points)) / unit
                           : OutlineLength(mark.points, IsOutline(mark.kind)) / unit;
  const double said = IsSurface(mark.kind) ? std::sqrt(value) : value;
  return drawn > 0 && said > 0 ? said / drawn : unit / 72;
}

// How a reader measures the mark. The page's own units become those of the label along X; lengths
// and areas are in these.
QByteArray Measure(const Mark& mark, double unit) {
  const LabelParts parts = PartsOf(mark.label);
  const auto format = [](const QString& name, double factor) {
    return "[<</Type/NumberFormat/U" + PdfText(name) + "/C " + QByteArray::number(factor, 'f', 8) +
           "/D 10/F/D>>]";
  };
  return "/Measure<</Type/Measure/Subtype/RL/R" + PdfText(parts.ratio) + "/X" +
         format(parts.unit, UnitsOfOne(mark, unit)) + "/D" + format(parts.unit, 1) + "/A" +
         format(QStringLiteral("sq ") + parts.unit, 1) + ">>";
}

void TakeStrokes(const MarkShape& shape, const PageMap& map, double width, PdfBox& box,
                 QByteArray& content) {
  for (const MarkShape::Stroke& stroke : shape.strokes) {
    const PagePoint from = map.ToFile(stroke.from);
    const PagePoint to = map.ToFile(stroke.to);
    box.Take(from, width);
    box.Take(to, width);
    content += Pair(from) + " m " + Pair(to) + " l S\n";
  }
}

// The way along the points of a polyline or an outline: its light fill, then its line.
QByteArray WayPart(const MarkShape& shape, const PageMap& map, PdfBox& box, double width) {
  if (shape.way.empty()) return {};
  QByteArray way;
  for (const PagePoint at : shape.way) {
    const PagePoint own = map.ToFile(at);
    box.Take(own, width);
    way += Pair(own) + (way.isEmpty() ? " m\n" : " l\n");
  }
  if (shape.closed) way += "h\n";
  QByteArray part = "1 j\n";
  if (shape.filled) part += "q /Light gs\n" + way + "f\nQ\n";
  if (shape.dashed) part += '[' + PdfNumber(kMarkDash / map.Unit()) + "] 0 d\n";
  return part + way + "S\n";
}

QByteArray FillState(const MarkShape& shape) {
  if (!shape.filled) return {};
  return "/ExtGState<</Light<</Type/ExtGState/ca " + PdfNumber(kMarkFill) + ">>>>";
}

// What kind of annotation it is, and its places in the page's own coordinates.
QByteArray Places(const Mark& mark, const PageMap& map) {
  QByteArray places;
  for (const PagePoint at : mark.points) places += Pair(map.ToFile(at)) + ' ';
  places = '[' + places.trimmed() + ']';
  if (mark.kind == Mark::Kind::Line)
    return "/Subtype/Line/L" + places + "/LE[/Butt/Butt]/IT/LineDimension/Cap true";
  if (mark.kind == Mark::Kind::Polyline)
    return "/Subtype/PolyLine/Vertices" + places + "/IT/PolyLineDimension";
  return "/Subtype/Polygon/Vertices" + places + "/IT/PolygonDimension/Subj(" +
         SubjectOf(mark.kind) + ')';
}

}  // namespace

const char* SubjectOf(Mark::Kind kind) {
  if (kind == Mark::Kind::Perimeter) return "Perimeter";
  return kind == Mark::Kind::CutOut ? "Cut-out" : "Area";
}

Mark::Kind OutlineOfSubject(const QString& subject) {
  for (const Mark::Kind kind : {Mark::Kind::Perimeter, Mark::Kind::CutOut}) {
    if (subject == QLatin1String(SubjectOf(kind))) return kind;
  }
  return Mark::Kind::Area;
}

PagePoint PageMap::ToFile(PagePoint at) const {
  const double whole = a * d - b * c;
  if (whole == 0) return at;
  const double x = at.x - e;
  const double y = at.y - f;
  return {(d * x - c * y) / whole, (a * y - b * x) / whole};
}

double PageMap::Unit() const {
  const double unit = std::hypot(a, b);
  return unit > 0 ? unit : 1;
}

MarkObjects MarkAsPdf(const Mark& mark, double markerSize, const PageMap& map) {
  if (mark.kind == Mark::Kind::Legend) return LegendAsPdf(mark, map);
  const MarkShape shape = ShapeOf(mark, markerSize);
  const double width = shape.width / map.Unit();
  MarkObjects objects;
  PdfBox box;
  const QByteArray colour = ColourParts(ColourNumber(mark.colour));
  objects.formContent = colour + " RG " + colour + " rg " + PdfNumber(width) + " w\n";
  if (shape.circle) {
    const PagePoint centre = map.ToFile(shape.centre);
    const double radius = shape.radius / map.Unit();
    box.Take(centre, radius + width / 2);
    objects.formContent += CirclePart(centre, radius);
    objects.annotation = "/Subtype/Circle/Contents" + PdfText(QStringLiteral("Count"));
  } else {
    TakeStrokes(shape, map, width, box, objects.formContent);
    objects.formContent += WayPart(shape, map, box, width);
    TakeText(shape, map, box);
    objects.formContent += ColourParts(ReadableOnWhite(ColourNumber(mark.colour))) + " rg\n";
    objects.formContent += TextPart(shape, map);
    objects.annotation =
        Places(mark, map) + "/Contents" + PdfText(mark.label) + Measure(mark, map.Unit());
  }
  objects.annotation += CommonEntries(mark, width, box) + OwnEntries(mark);
  objects.formEntries = "/Type/XObject/Subtype/Form/BBox" + box.Text() + "/Resources<<" +
                        FillState(shape) + kLetters + ">>";
  return objects;
}

QByteArray MarkAnnotation(const MarkObjects& objects, const QByteArray& page, int form) {
  return "<<" + objects.annotation + "/P " + page + "/AP<</N " + QByteArray::number(form) +
         " 0 R>>>>";
}

}  // namespace tamo
