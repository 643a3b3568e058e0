#include "schedule/tablecolumns.h"

#include <algorithm>
#include <cmath>

#include "schedule/alignment.h"
#include "schedule/headwords.h"
#include "schedule/rulelevels.h"

namespace tamo {
namespace {

constexpr double kCovers = 0.45;  // of the rows' height: a rule that divides columns
constexpr double kNarrowest = 4;  // points of a column
constexpr size_t kRuledRows = 4;  // rules that go through the rows, of a table with ruled columns
constexpr double kHeadCell = 5;   // points: the least height of a head's cell
constexpr double kUnder = 0.25;   // of the way between two heads: right under one between them
constexpr double kOutside = 4;    // points between the outermost rule and text outside of it

bool Above(const Phrase& upper, const Phrase& lower) {
  const double shared =
      std::min(upper.box.right, lower.box.right) - std::max(upper.box.left, lower.box.left);
  return lower.base > upper.base + 0.4 * upper.size && shared > 0;
}

// Whether the rows have texts right under a head, not only under the heads to both sides of it.
bool HasOwnTexts(const Phrase& phrase, const Phrase& left, const Phrase& right,
                 const HeadArea& heads) {
  const double apart = right.MidX() - left.MidX();
  const auto own =
      std::count_if(heads.bodyMiddles.begin(), heads.bodyMiddles.end(), [&](double middle) {
        const double off = std::abs(middle - phrase.MidX());
        return off < kUnder * apart && off < std::abs(middle - left.MidX()) &&
               off < std::abs(middle - right.MidX());
      });
  return heads.bodyLines > 0 && own * 3 >= heads.bodyLines;
}

// Whether heads of the line below, to the left and to the right of a head, are parts of what it
// names: N and E of WALLS, MATL and HGT of CEILING.
bool StandsOverBoth(const Phrase& phrase, const std::vector<Phrase>& all, const HeadArea& heads) {
  const Phrase* left = nullptr;
  const Phrase* right = nullptr;
  for (const Phrase& other : all) {
    const double below = other.base - phrase.base;
    if (below < 0.4 * phrase.size || below > 4 * phrase.size) continue;
    const bool before = other.MidX() < phrase.MidX();
    if (before && (left == nullptr || other.MidX() > left->MidX())) left = &other;
    if (!before && (right == nullptr || other.MidX() < right->MidX())) right = &other;
  }
  if (left == nullptr || right == nullptr) return false;
  if (HasOwnTexts(phrase, *left, *right, heads)) return false;
  const unsigned over = MeaningOfText(phrase.text);
  const unsigned both[] = {MeaningOfText(left->text), MeaningOfText(right->text)};
  const auto are = [&both](unsigned what) {
    return (both[0] & what) != 0 && (both[1] & what) != 0;
  };
  if ((over & kWallWord) != 0) return are(kSideWords);
  if ((over & kRoomWord) != 0) return are(kNumberWord | kNameWord);
  if (over == kMaterialWord) return are(kFinishWords);
  const unsigned parts = kMaterialWord | kHeightWord | kColourWord;
  return (over & (kFloorWord | kBaseWord | kCeilingWord | kSideWords)) != 0 && are(parts);
}

// The rules from top to bottom that go through the rows.
std::vector<double> RuledBorders(const SheetDrawing& drawing, const HeadArea& heads,
                                 double bottom) {
  std::vector<double> borders;
  for (const RuleLevel& level : LevelsOf(drawing.rules, false, heads.bottom, bottom)) {
    if (level.covered < kCovers * (bottom - heads.bottom)) continue;
    if (!borders.empty() && level.at - borders.back() < kNarrowest) continue;
    borders.push_back(level.at);
  }
  return borders;
}

// Between rows that are ruled, the rules between the lowest heads: where most rows have one cell
// over several columns.
void AddHeadBorders(const SheetDrawing& drawing, const HeadArea& heads,
                    std::vector<double>& borders) {
  if (!heads.found || borders.size() < kRuledRows) return;
  const std::vector<double> through = borders;
  for (const Rule& rule : drawing.rules) {
    if (rule.along || rule.from > heads.bottom - kHeadCell || rule.to < heads.bottom - 1) continue;
    if (rule.at < through.front() || rule.at > through.back()) continue;
    const bool there = std::any_of(borders.begin(), borders.end(), [&rule](double at) {
      return std::abs(at - rule.at) < kNarrowest;
    });
    if (!there) borders.push_back(rule.at);
  }
  std::sort(borders.begin(), borders.end());
}

// From the first to the last text of the heads and rows.
Span TextSpan(const std::vector<TextLine>& lines, double top) {
  Span span = {1e9, -1e9, 0};
  for (const TextLine& line : lines) {
    if (line.base <= top) continue;
    span.from = std::min(span.from, line.phrases.front().box.left);
    span.to = std::max(span.to, line.phrases.back().box.right);
  }
  return span;
}

// Whether a text lies wholly on the outer side of a place.
bool AnyOutside(const std::vector<TextLine>& lines, double top, double at, bool left) {
  return std::any_of(lines.begin(), lines.end(), [=](const TextLine& line) {
    const Phrase& phrase = left ? line.phrases.front() : line.phrases.back();
    return line.base > top && (left ? phrase.box.right < at : phrase.box.left > at);
  });
}

// Texts of the rows between two places, but for lines of a single text.
std::vector<Span> TextsBetween(const std::vector<TextLine>& lines, double top, double from,
                               double to) {
  std::vector<Span> texts;
  for (const TextLine& line : lines) {
    if (line.base <= top || IsHeadLine(line)) continue;
    if (line.phrases.size() == 1 && LooksLikeGroup(line.phrases.front().text)) continue;
    for (const Phrase& phrase : line.phrases) {
      if (phrase.MidX() >= from && phrase.MidX() <= to) {
        texts.push_back({std::max(phrase.box.left, from), std::min(phrase.box.right, to), 0});
      }
    }
  }
  return texts;
}

// Whether the cell of a head reaches over a place from top to bottom: a merged head.
bool ReachesOver(const SheetDrawing& drawing, const Phrase& head, double from, double to) {
  double left = -1e9;
  double right = 1e9;
  for (const Rule& rule : drawing.rules) {
    if (rule.along || rule.from > head.MidY() || rule.to < head.MidY()) continue;
    if (rule.at < head.MidX()) left = std::max(left, rule.at);
    if (rule.at > head.MidX()) right = std::min(right, rule.at);
  }
  if (left < -1e8 || right > 1e8) return false;
  return left < from - kOutside || right > to + kOutside;
}

// WAINSCOT and REMARKS never stand over several columns.
bool NamesOne(const Phrase& head) {
  const unsigned one = kRemarkWord | kOtherWord | kHeightWord | kNumberWord | kNameWord |
                       kDescriptionWord | kDoorWord;
  return (MeaningOfText(head.text) & one) != 0;
}

std::vector<Span> HeadsBetween(const SheetDrawing& drawing, const std::vector<Phrase>& leaves,
                               double from, double to) {
  std::vector<Span> heads;
  for (const Phrase& leaf : leaves) {
    if (leaf.MidX() < from || leaf.MidX() > to || ReachesOver(drawing, leaf, from, to)) continue;
    heads.push_back({leaf.box.left, leaf.box.right, leaf.box.bottom, NamesOne(leaf)});
  }
  std::sort(heads.begin(), heads.end(),
            [](const Span& a, const Span& b) { return a.from < b.from; });
  return heads;
}

// Whether a rule divides the heads between two places though none divides the rows.
void Divide(const SheetDrawing& drawing, const std::vector<TextLine>& lines, const HeadArea& heads,
            double from, double to, std::vector<double>& borders) {
  const std::vector<Span> own = HeadsBetween(drawing, LeavesOf(heads), from, to);
  if (own.size() < 2 && heads.found) return;
  const std::vector<Span> texts = TextsBetween(lines, heads.bottom, from, to);
  const double size = UsualSize(drawing);
  for (const double at : AlignedBorders(from, to, texts, own, size)) borders.push_back(at);
}

void AddOuter(const PageBox& frame, const std::vector<TextLine>& lines, double top,
              std::vector<double>& ruled) {
  const Span texts = TextSpan(lines, top);
  if (ruled.empty() || AnyOutside(lines, top, ruled.front(), true)) {
    ruled.insert(ruled.begin(), std::min(frame.left, texts.from));
  }
  if (ruled.size() < 2 || AnyOutside(lines, top, ruled.back(), false)) {
    ruled.push_back(std::max(frame.right, texts.to));
  }
}

}  // namespace

int ColumnBorders::ColumnAt(double x) const {
  const auto above = std::upper_bound(at.begin(), at.end(), x);
  return std::clamp(int(above - at.begin()) - 1, 0, std::max(0, Count() - 1));
}

std::vector<Phrase> LeavesOf(const HeadArea& heads) {
  std::vector<Phrase> all = heads.phrases;
  all.insert(all.end(), heads.turned.begin(), heads.turned.end());
  std::vector<Phrase> leaves;
  for (const Phrase& phrase : heads.phrases) {
    const bool over = std::any_of(all.begin(), all.end(),
                                  [&phrase](const Phrase& other) { return Above(phrase, other); });
    if (!over && !StandsOverBoth(phrase, all, heads)) leaves.push_back(phrase);
  }
  leaves.insert(leaves.end(), heads.turned.begin(), heads.turned.end());
  return leaves;
}

ColumnBorders ColumnsOf(const SheetDrawing& drawing, const std::vector<TextLine>& lines,
                        const HeadArea& heads, const PageBox& frame) {
  std::vector<double> ruled = RuledBorders(drawing, heads, frame.bottom);
  AddHeadBorders(drawing, heads, ruled);
  const std::vector<double> drawn = ruled;
  AddOuter(frame, lines, heads.top, ruled);
  std::vector<double> borders = ruled;
  for (size_t i = 0; i + 1 < ruled.size(); ++i) {
    Divide(drawing, lines, heads, ruled[i], ruled[i + 1], borders);
  }
  std::sort(borders.begin(), borders.end());
  ColumnBorders columns;
  for (const double at : borders) {
    if (!columns.at.empty() && at - columns.at.back() < 1) continue;
    columns.at.push_back(at);
    columns.ruled.push_back(std::find(drawn.begin(), drawn.end(), at) != drawn.end());
  }
  return columns;
}

}  // namespace tamo
