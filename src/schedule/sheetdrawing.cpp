#include "schedule/sheetdrawing.h"

#include <algorithm>

namespace tamo {
namespace {

PagePoint TurnedPoint(PagePoint at, Way way, PageSize size) {
  switch (way) {
    case Way::Up:
      return {size.height - at.y, at.x};
    case Way::Left:
      return {size.width - at.x, size.height - at.y};
    case Way::Down:
      return {at.y, size.width - at.x};
    default:
      return at;
  }
}

Way WayBack(Way way) {
  if (way == Way::Up) return Way::Down;
  if (way == Way::Down) return Way::Up;
  return way;
}

PageSize TurnedSize(PageSize size, Way way) {
  return way == Way::Up || way == Way::Down ? PageSize{size.height, size.width} : size;
}

// What a word's way becomes when the sheet is turned so that `way` reads to the right.
Way TurnedWay(Way word, Way way) {
  return static_cast<Way>((static_cast<int>(word) - static_cast<int>(way) + 4) % 4);
}

Word TurnedWord(Word word, Way way, PageSize size) {
  const bool upright = word.way == Way::Right || word.way == Way::Left;
  const PagePoint base =
      TurnedPoint(upright ? PagePoint{0, word.base} : PagePoint{word.base, 0}, way, size);
  word.box = TurnedBox(word.box, way, size);
  word.way = TurnedWay(word.way, way);
  word.base = word.way == Way::Right || word.way == Way::Left ? base.y : base.x;
  return word;
}

Rule TurnedRule(const Rule& rule, Way way, PageSize size) {
  const PagePoint a = rule.along ? PagePoint{rule.from, rule.at} : PagePoint{rule.at, rule.from};
  const PagePoint b = rule.along ? PagePoint{rule.to, rule.at} : PagePoint{rule.at, rule.to};
  PageBox box = NoBox();
  box.Take(TurnedPoint(a, way, size));
  box.Take(TurnedPoint(b, way, size));
  const bool along = box.Width() > box.Height();
  if (along) return {true, box.top, box.left, box.right};
  return {false, box.left, box.top, box.bottom};
}

bool InDelta(const Word& word, const std::vector<PageBox>& deltas) {
  if (word.text.size() > 3) return false;
  return std::any_of(deltas.begin(), deltas.end(), [&word](const PageBox& delta) {
    const double middle = (delta.left + delta.right) / 2;
    return Holds(delta, word.MidX(), word.MidY()) &&
           std::abs(word.MidX() - middle) <= 0.3 * delta.Width() &&
           word.box.Height() < delta.Height();
  });
}

}  // namespace

PageBox Grown(const PageBox& box, double by) {
  return {box.left - by, box.top - by, box.right + by, box.bottom + by};
}

bool Holds(const PageBox& box, double x, double y) {
  return x >= box.left && x <= box.right && y >= box.top && y <= box.bottom;
}

SheetDrawing DrawingOf(const PageContent& content) {
  SheetDrawing drawing;
  drawing.size = content.size;
  drawing.rules = RulesOf(content.paths);
  const std::vector<Word> words = WordsOf(content.texts, drawing.rules);
  const std::vector<PageBox> deltas = DeltasOf(content.paths);
  std::copy_if(words.begin(), words.end(), std::back_inserter(drawing.words),
               [&deltas](const Word& word) { return !InDelta(word, deltas); });
  return drawing;
}

PageContent Near(const PageContent& content, const PageBox& box) {
  const auto touches = [&box](const PageBox& one) {
    return one.right >= box.left && one.left <= box.right && one.bottom >= box.top &&
           one.top <= box.bottom;
  };
  PageContent part;
  part.size = content.size;
  std::copy_if(content.texts.begin(), content.texts.end(), std::back_inserter(part.texts),
               [&touches](const TextPiece& piece) { return touches(piece.box); });
  std::copy_if(content.paths.begin(), content.paths.end(), std::back_inserter(part.paths),
               [&touches](const PathPiece& path) { return touches(path.box); });
  std::copy_if(content.pictures.begin(), content.pictures.end(), std::back_inserter(part.pictures),
               [&touches](const PicturePiece& picture) { return touches(picture.box); });
  return part;
}

SheetDrawing Turned(const SheetDrawing& drawing, Way way) {
  if (way == Way::Right) return drawing;
  SheetDrawing turned;
  turned.size = TurnedSize(drawing.size, way);
  for (const Word& word : drawing.words) {
    turned.words.push_back(TurnedWord(word, way, drawing.size));
  }
  for (const Rule& rule : drawing.rules) {
    turned.rules.push_back(TurnedRule(rule, way, drawing.size));
  }
  return turned;
}

PageBox TurnedBox(const PageBox& box, Way way, PageSize size) {
  PageBox turned = NoBox();
  turned.Take(TurnedPoint({box.left, box.top}, way, size));
  turned.Take(TurnedPoint({box.right, box.bottom}, way, size));
  return turned;
}

PageBox TurnedBack(const PageBox& box, Way way, PageSize size) {
  return TurnedBox(box, WayBack(way), TurnedSize(size, way));
}

SheetDrawing Inside(const SheetDrawing& drawing, const PageBox& box) {
  SheetDrawing part;
  part.size = drawing.size;
  std::copy_if(drawing.words.begin(), drawing.words.end(), std::back_inserter(part.words),
               [&box](const Word& word) { return Holds(box, word.MidX(), word.MidY()); });
  for (Rule rule : drawing.rules) {
    const double low = rule.along ? box.top : box.left;
    const double high = rule.along ? box.bottom : box.right;
    rule.from = std::max(rule.from, rule.along ? box.left : box.top);
    rule.to = std::min(rule.to, rule.along ? box.right : box.bottom);
    if (rule.at >= low && rule.at <= high && rule.Length() > 0) part.rules.push_back(rule);
  }
  return part;
}

}  // namespace tamo
