#include "plans/likeshape.h"

#include <algorithm>
#include <cmath>

#include "plans/likehull.h"
#include "plans/outline.h"

namespace tamo {
namespace {

constexpr double kSame = 0.03;       // points that two drawings of one line lie apart
constexpr double kLeastSize = 2;     // points of a symbol
constexpr double kLeastWidth = 0.3;  // of it across its longest line: less is a single line
constexpr double kLeastTolerance = 0.12;
constexpr double kMostTolerance = 0.25;

bool Holds(const PageBox& box, PagePoint at) {
  return at.x >= box.left && at.x <= box.right && at.y >= box.top && at.y <= box.bottom;
}

bool Holds(const PageBox& box, const SnapIndex& lines, const LikeStroke& stroke) {
  for (uint32_t i = stroke.first; i < stroke.first + stroke.count; ++i) {
    const PageLine& line = lines.All()[i].line;
    if (!Holds(box, line.from) || !Holds(box, line.to)) return false;
  }
  return true;
}

bool Same(const LikeStroke& a, const LikeStroke& b) {
  const auto near = [](PagePoint one, PagePoint other) { return Distance(one, other) <= kSame; };
  if (!near(a.middle, b.middle)) return false;
  return (near(a.from, b.from) && near(a.to, b.to)) || (near(a.from, b.to) && near(a.to, b.from));
}

// The strokes wholly in the box, what is drawn twice once.
std::vector<LikeStroke> StrokesIn(const LikeSheet& sheet, const PageBox& box) {
  std::vector<LikeStroke> found;
  const PagePoint middle = box.Middle();
  const double reach = std::max(box.Width(), box.Height()) / 2;
  sheet.strokes.Near(middle, reach, [&](uint32_t number) {
    const LikeStroke& stroke = sheet.strokes.Strokes()[number];
    if (!Holds(box, *sheet.lines, stroke)) return true;
    const bool known = std::any_of(found.begin(), found.end(),
                                   [&](const LikeStroke& other) { return Same(stroke, other); });
    if (!known) found.push_back(stroke);
    return found.size() <= kMostShapeStrokes;
  });
  return found;
}

// Makes `line` longer by another one that goes on along it; false when it does not.
bool Extend(PageLine& line, const LikeStroke& other) {
  const double length = Distance(line.from, line.to);
  const double x = (line.to.x - line.from.x) / length;
  const double y = (line.to.y - line.from.y) / length;
  double along[2];
  for (int i = 0; i < 2; ++i) {
    const PagePoint at = i == 0 ? other.from : other.to;
    const double across = (at.y - line.from.y) * x - (at.x - line.from.x) * y;
    if (std::abs(across) > kSame) return false;
    along[i] = (at.x - line.from.x) * x + (at.y - line.from.y) * y;
  }
  const auto [first, last] = std::minmax(along[0], along[1]);
  if (first > length + kSame || last < -kSame || (first >= -kSame && last <= length + kSame))
    return false;
  const PagePoint from = line.from;
  const double begin = std::min(0.0, first);
  const double end = std::max(length, last);
  line = {{from.x + begin * x, from.y + begin * y}, {from.x + end * x, from.y + end * y}};
  return true;
}

PageLine ReachOf(const LikeStroke& stroke, const std::vector<LikeStroke>& all) {
  PageLine reach = {stroke.from, stroke.to};
  if (stroke.curved || stroke.length == 0) return reach;
  bool longer = true;
  while (longer) {
    longer = false;
    for (const LikeStroke& other : all) {
      if (!other.curved && Extend(reach, other)) longer = true;
    }
  }
  return reach;
}

double WidthAcross(const std::vector<PagePoint>& hull, double& size) {
  PageLine longest;
  for (const PagePoint from : hull) {
    for (const PagePoint to : hull) {
      if (Distance(from, to) > Distance(longest.from, longest.to)) longest = {from, to};
    }
  }
  size = Distance(longest.from, longest.to);
  double width = 0;
  for (const PagePoint at : hull)
    width = std::max(width, DistanceToLine(at, longest.from, longest.to));
  return width;
}

QString WhyNothing(const LikeSheet& sheet, const PageBox& box) {
  for (const LikeLetter& letter : *sheet.letters) {
    if (Holds(box, letter.at))
      return QStringLiteral(
          "Only letters are in the box: symbols are found by their lines. Ctrl+F finds text.");
  }
  return QStringLiteral(
      "No line lies wholly in the box. Draw it around one whole symbol, a little larger than it.");
}

QString ProblemOf(const LikeShape& shape, double width) {
  if (shape.strokes.size() > kMostShapeStrokes)
    return QStringLiteral("Too much is in the box: over %1 lines. Draw it around one symbol.")
        .arg(kMostShapeStrokes);
  if (shape.size < kLeastSize)
    return QStringLiteral("What is in the box is too small: it measures %1 points.")
        .arg(shape.size, 0, 'f', 1);
  if (width < kLeastWidth)
    return QStringLiteral(
        "Only a single line is in the box: too little to tell its likes from other lines.");
  return {};
}

}  // namespace

QString LettersIn(const std::vector<LikeLetter>& letters, const std::vector<PagePoint>& hull) {
  const PageBox box = BoxAround(hull);
  QString found;
  auto letter = std::lower_bound(letters.begin(), letters.end(), box.left,
                                 [](const LikeLetter& a, double x) { return a.at.x < x; });
  for (; letter != letters.end() && letter->at.x <= box.right; ++letter) {
    if (Holds(box, letter->at) && InHull(letter->at, hull, 0)) found += QChar(letter->letter);
  }
  std::sort(found.begin(), found.end());
  return found;
}

LikeShape ShapeInBox(const LikeSheet& sheet, const PageBox& box) {
  LikeShape shape;
  const std::vector<LikeStroke> strokes = StrokesIn(sheet, box);
  if (strokes.empty()) {
    shape.problem = WhyNothing(sheet, box);
    return shape;
  }
  std::vector<PagePoint> places;
  for (const LikeStroke& stroke : strokes) {
    shape.strokes.push_back({stroke, {}});
    shape.length += stroke.length;
    for (uint32_t i = stroke.first; i < stroke.first + stroke.count; ++i) {
      const PageLine& line = sheet.lines->All()[i].line;
      shape.ink.push_back(line);
      places.insert(places.end(), {line.from, line.to});
    }
  }
  shape.hull = HullOf(std::move(places));
  const PageBox around = BoxAround(shape.hull);
  shape.middle = around.Middle();
  const double width = WidthAcross(shape.hull, shape.size);
  shape.tolerance = std::clamp(0.02 * shape.size, kLeastTolerance, kMostTolerance);
  shape.problem = ProblemOf(shape, width);
  if (!shape.problem.isEmpty()) return shape;
  for (ShapeStroke& own : shape.strokes) own.reach = ReachOf(own.stroke, strokes);
  shape.letters = LettersIn(*sheet.letters, shape.hull);
  return shape;
}

}  // namespace tamo
