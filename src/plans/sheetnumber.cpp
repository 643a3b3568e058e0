#include "plans/sheetnumber.h"

#include <QRegularExpression>
#include <algorithm>

#include "plans/titleblock.h"

namespace tamo {
namespace {

constexpr double kBlock = 0.5;       // of the sheet: where labels of a title block are believed
constexpr double kCorner = 0.78;     // and a number without a label
constexpr double kStandsOut = 1.25;  // larger than any other number, by this
constexpr double kLargeLetters = 1.4;
constexpr qsizetype kLongestName = 100;

constexpr char kNumber[] =
    "[A-Z]{1,3}[ .-]?(?:\\d{1,4}|\\d{1,3}[.-]\\d{1,3}(?:[.-]\\d{1,2})?)(?:-?[A-Za-z]{1,2}\\d?)?";

// Words before a number that name something else.
bool NamesSomethingElse(const QString& text) {
  static const QRegularExpression words(QStringLiteral(
      "^(?:JAN|FEB|MAR|APR|MAY|JUN|JUL|AUG|SEP|OCT|NOV|DEC|REV|NO|OF|RM|FL|LVL|BLD|STE|APT|TEL|"
      "FAX|EXT|PH|PG)[ .-]?\\d"));
  return words.match(text).hasMatch();
}

double MedianSize(const std::vector<BlockSide>& sides) {
  std::vector<double> sizes;
  for (const BlockSide& side : sides)
    for (const BlockLine& line : side.lines) sizes.push_back(line.size);
  if (sizes.empty()) return 0;
  const auto middle = sizes.begin() + std::ptrdiff_t(sizes.size() / 2);
  std::nth_element(sizes.begin(), middle, sizes.end());
  return *middle;
}

struct Found {
  QString text;
  double size = 0;
  const BlockSide* side = nullptr;
  const BlockLine* line = nullptr;
};

bool InBlock(const BlockLine& line, double least) {
  return line.nearRight >= least && line.nearBottom >= least;
}

// What labels of one kind name. A sheet with more of them than any title block has says nothing for
// sure.
std::vector<Found> Labelled(const std::vector<BlockSide>& sides, BlockLabel kind) {
  constexpr int kMostLabels = 300;
  int labels = 0;
  std::vector<Found> found;
  for (const BlockSide& side : sides) {
    for (const BlockLine& line : side.lines) {
      QString rest;
      // A title block along the lower edge has its name far from the corner.
      const double least = kind == BlockLabel::Name ? 0.15 : kBlock;
      const bool there =
          line.nearBottom >= kBlock ? line.nearRight >= least : line.nearRight >= 0.8;
      if (!there || LabelOf(line.text, rest) != kind) continue;
      if (++labels > kMostLabels) return {};
      const QString text = TextOfLabel(side.lines, line, rest, kind == BlockLabel::Name);
      if (text.isEmpty()) continue;
      const auto value = std::find_if(side.lines.begin(), side.lines.end(),
                                      [&](const BlockLine& other) { return other.text == text; });
      const BlockLine& at = value == side.lines.end() ? line : *value;
      found.push_back({text, at.size, &side, &at});
    }
  }
  return found;
}

// Numbers in the corner that nothing announces.
std::vector<Found> Bare(const std::vector<BlockSide>& sides, double ordinary) {
  std::vector<Found> found;
  double largest = 0;
  for (const BlockSide& side : sides) {
    for (const BlockLine& line : side.lines) {
      if (!InBlock(line, kCorner)) continue;
      largest = std::max(largest, line.size);
      if (IsSheetNumber(line.text)) found.push_back({line.text, line.size, &side, &line});
    }
  }
  std::erase_if(found, [&](const Found& one) {
    return one.size < kLargeLetters * ordinary || one.size * kStandsOut < largest;
  });
  return found;
}

// The one that is larger than all that say something else; null when none is.
const Found* Foremost(const std::vector<Found>& found) {
  const auto largest = std::max_element(
      found.begin(), found.end(), [](const Found& a, const Found& b) { return a.size < b.size; });
  if (largest == found.end()) return nullptr;
  for (const Found& other : found) {
    const bool same = PlainSheetNumber(other.text) == PlainSheetNumber(largest->text);
    if (!same && other.size * kStandsOut > largest->size) return nullptr;
  }
  return &*largest;
}

// What stands right over the number in letters larger than most, with no label in between but the
// number's own.
QString NameOver(const Found& number, double ordinary) {
  BlockLine from = *number.line;
  for (int steps = 0; steps < 3; ++steps) {
    const BlockLine* next = nullptr;
    for (const BlockLine& line : number.side->lines) {
      const double gap = from.top - line.bottom;
      const bool over = line.Middle() < from.Middle() && line.text != number.text;
      const bool near = gap > -0.6 * from.size && gap < 1.5 * number.size;
      if (!over || !near || line.left > from.right || line.right < from.left) continue;
      if (next == nullptr || line.bottom > next->bottom) next = &line;
    }
    if (next == nullptr) return {};
    QString rest;
    const BlockLabel label = LabelOf(next->text, rest);
    if (label == BlockLabel::Number || label == BlockLabel::Name) {
      from.top = next->top;
      continue;
    }
    if (label != BlockLabel::None || next->size < 1.15 * ordinary) return {};
    if (next->size > 1.2 * number.size) return {};
    return TextOfLabel(number.side->lines, from, {}, true);
  }
  return {};
}

bool IsName(const QString& text) {
  static const QRegularExpression letters(QStringLiteral("\\p{L}{2}"));
  return text.size() <= kLongestName && letters.match(text).hasMatch();
}

}  // namespace

bool IsSheetNumber(const QString& text) {
  static const QRegularExpression number(QLatin1Char('^') + QLatin1String(kNumber) +
                                         QLatin1Char('$'));
  const QString trimmed = text.trimmed();
  return trimmed.size() <= 12 && number.match(trimmed).hasMatch() && !NamesSomethingElse(trimmed);
}

SheetTitle SheetTitleOf(const std::vector<PageTextLine>& lines, PageSize size) {
  const std::vector<BlockSide> sides = BlockSidesOf(lines, size);
  const double ordinary = MedianSize(sides);
  const std::vector<Found> labelled = Labelled(sides, BlockLabel::Number);
  const std::vector<Found> bare = Bare(sides, ordinary);
  const Found* number = Foremost(labelled.empty() ? bare : labelled);
  const Found* large = Foremost(bare);
  // A large number in the corner that is another one than its label's.
  if (number != nullptr && large != nullptr && large->size > number->size * kStandsOut &&
      PlainSheetNumber(large->text) != PlainSheetNumber(number->text))
    number = nullptr;
  SheetTitle title;
  if (number != nullptr) title.number = number->text;
  std::vector<Found> names = Labelled(sides, BlockLabel::Name);
  std::erase_if(names, [](const Found& name) { return !IsName(name.text); });
  if (const Found* name = Foremost(names)) title.name = name->text;
  if (names.empty() && number != nullptr) title.name = NameOver(*number, ordinary);
  if (!IsName(title.name)) title.name.clear();
  return title;
}

SheetTitle SheetTitleOfLabel(const QString& label) {
  static const QRegularExpression parts(QStringLiteral("^\\[?(") + QLatin1String(kNumber) +
                                        QStringLiteral(")\\]?(?:\\s*[-\\x{2013}\\x{2014}:_,]+\\s*"
                                                       "|\\s+|$)(.*)$"));
  const auto match = parts.match(label.simplified());
  if (!match.hasMatch() || !IsSheetNumber(match.captured(1))) return {};
  const QString name = match.captured(2).trimmed();
  return {match.captured(1), IsName(name) ? name : QString()};
}

QString PlainSheetNumber(const QString& number) {
  QString plain;
  for (const QChar letter : number.toUpper()) {
    if (letter.isLetterOrNumber()) plain += letter;
  }
  return plain;
}

}  // namespace tamo
