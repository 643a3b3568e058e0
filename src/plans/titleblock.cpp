#include "plans/titleblock.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "plans/sheetnumber.h"

namespace tamo {
namespace {

constexpr double kLevel = 0.05;      // of the direction: a line that is not slanted
constexpr double kUnderLabel = 4;    // letters' heights between a label and its text
constexpr double kBesideLabel = 12;  // the same, to the right
constexpr double kSameSize = 1.25;   // letters of one text differ by no more
constexpr double kNextLine = 1.1;    // letters' heights between two lines of one text
constexpr int kMostLines = 4;        // of one name

QRegularExpression Words(const char* pattern) {
  return QRegularExpression(QLatin1String(pattern), QRegularExpression::CaseInsensitiveOption);
}

// Turns a place so that letters of `direction` stand upright.
PagePoint Upright(PagePoint at, int direction, PageSize size) {
  switch (direction) {
    case 1:
      return {at.y, size.width - at.x};
    case 2:
      return {size.width - at.x, size.height - at.y};
    case 3:
      return {size.height - at.y, at.x};
    default:
      return at;
  }
}

BlockLine Laid(const PageTextLine& line, int direction, PageSize size) {
  const PagePoint one = Upright({line.box.left, line.box.top}, direction, size);
  const PagePoint other = Upright({line.box.right, line.box.bottom}, direction, size);
  BlockLine laid;
  laid.text = line.text.simplified();
  laid.size = line.size;
  laid.left = std::min(one.x, other.x);
  laid.right = std::max(one.x, other.x);
  laid.top = std::min(one.y, other.y);
  laid.bottom = std::max(one.y, other.y);
  const bool across = direction % 2 == 1;
  const PageSize read = across ? PageSize{size.height, size.width} : size;
  const double seenRight = (line.box.left + line.box.right) / 2 / std::max(size.width, 1.0);
  const double seenLow = (line.box.top + line.box.bottom) / 2 / std::max(size.height, 1.0);
  const double readRight = (laid.left + laid.right) / 2 / std::max(read.width, 1.0);
  const double readLow = laid.Middle() / std::max(read.height, 1.0);
  const bool asRead = std::min(readRight, readLow) > std::min(seenRight, seenLow);
  laid.nearRight = asRead ? readRight : seenRight;
  laid.nearBottom = asRead ? readLow : seenLow;
  return laid;
}

bool Overlap(const BlockLine& a, const BlockLine& b, double slack) {
  return a.left < b.right + slack && b.left < a.right + slack;
}

bool IsText(const BlockLine& line) {
  QString rest;
  return LabelOf(line.text, rest) == BlockLabel::None;
}

// The line next under (or over) `from` that lies in its column.
const BlockLine* NextIn(const std::vector<BlockLine>& lines, const BlockLine& from, bool under,
                        double most) {
  const BlockLine* next = nullptr;
  double least = 0;
  for (const BlockLine& line : lines) {
    if (&line == &from || !Overlap(line, from, from.size * 0.5)) continue;
    const double gap = under ? line.top - from.bottom : from.top - line.bottom;
    const bool beyond = under ? line.Middle() > from.Middle() : line.Middle() < from.Middle();
    const double height = std::max(line.size, from.size);
    if (!beyond || gap < -0.6 * height || gap > most * height) continue;
    if (next != nullptr && gap >= least) continue;
    next = &line;
    least = gap;
  }
  return next;
}

const BlockLine* RightOf(const std::vector<BlockLine>& lines, const BlockLine& label) {
  const BlockLine* next = nullptr;
  for (const BlockLine& line : lines) {
    const bool level =
        std::abs(line.Middle() - label.Middle()) <= 0.7 * std::max(line.size, label.size);
    const double gap = line.left - label.right;
    if (!level || gap < 0 || gap > kBesideLabel * label.size) continue;
    if (next == nullptr || line.left < next->left) next = &line;
  }
  return next;
}

// The text of `first` and of the lines of its kind that follow it.
QString Paragraph(const std::vector<BlockLine>& lines, const BlockLine& first, bool under) {
  QStringList texts = {first.text};
  const BlockLine* last = &first;
  while (texts.size() < kMostLines) {
    const BlockLine* next = NextIn(lines, *last, under, kNextLine);
    if (next == nullptr || !IsText(*next) || IsSheetNumber(next->text)) break;
    const double ratio = next->size / std::max(last->size, 0.1);
    if (ratio > kSameSize || ratio < 1 / kSameSize) break;
    if (under) {
      texts.append(next->text);
    } else {
      texts.prepend(next->text);
    }
    last = next;
  }
  return texts.join(QLatin1Char(' '));
}

}  // namespace

std::vector<BlockSide> BlockSidesOf(const std::vector<PageTextLine>& lines, PageSize size) {
  std::vector<BlockSide> sides(4);
  for (int direction = 0; direction < 4; ++direction)
    sides[size_t(direction)].direction = direction;
  for (const PageTextLine& line : lines) {
    if (std::min(std::abs(line.dx), std::abs(line.dy)) > kLevel || line.size <= 0) continue;
    const int direction =
        std::abs(line.dx) > std::abs(line.dy) ? (line.dx > 0 ? 0 : 2) : (line.dy > 0 ? 1 : 3);
    sides[size_t(direction)].lines.push_back(Laid(line, direction, size));
  }
  std::erase_if(sides, [](const BlockSide& side) { return side.lines.empty(); });
  return sides;
}

BlockLabel LabelOf(const QString& text, QString& rest) {
  static const QRegularExpression name = Words(
      "^(?:(?:SHEET|DRAWING|DWG\\.?|SHT\\.?) (?:TITLE|NAME|CONTENTS?)\\b|TITLE(?= ?:|$)) ?[:.]? "
      "?(.*)$");
  static const QRegularExpression number = Words(
      "^(?:SHEET|DRAWING|DWG\\.?|SHT\\.?)(?: ?(?:NO\\b\\.?|NUMBER\\b|NUM\\b\\.?|#))? ?[:.]? "
      "?(.*)$");
  static const QRegularExpression other = Words(
      "^(?:(?:DATE|SCALE|DRAWN|CHECKED|CHK|DESIGNED|APPROVED|PROJECT|JOB|REVISIONS?|REV|ISSUED?|"
      "ISSUES|PHASE|CLIENT|OWNER|ARCHITECTS?|ENGINEERS?|CONSULTANTS?|SEAL|STAMP|COPYRIGHT|FILE|"
      "PLOT(?:TED)?|NO|DESCRIPTION|BY|SHEET|DRAWING)\\b(?: (?:NO|NUMBER|NAME|BY|DATE|TITLE|"
      "ADDRESS|LOG|HISTORY|FOR|\\d+ ?(?:OF|/) ?\\d+)\\b)?\\.? ?[:#]?|[A-Z][A-Z .&/]{0,24}:.*|.*"
      "\\d{1,4}[/.-]\\d{1,2}[/.-]\\d{2,4}.*)$");
  rest.clear();
  if (text.size() > 120) return BlockLabel::None;
  if (const auto match = name.match(text); match.hasMatch()) {
    rest = match.captured(1).trimmed();
    return BlockLabel::Name;
  }
  if (const auto match = number.match(text); match.hasMatch()) {
    rest = match.captured(1).trimmed();
    if (rest.isEmpty() || IsSheetNumber(rest)) return BlockLabel::Number;
    rest.clear();
  }
  return other.match(text).hasMatch() ? BlockLabel::Other : BlockLabel::None;
}

QString TextOfLabel(const std::vector<BlockLine>& lines, const BlockLine& label,
                    const QString& rest, bool several) {
  if (!rest.isEmpty()) return rest;
  const BlockLine* under = NextIn(lines, label, true, kUnderLabel);
  const BlockLine* beside = RightOf(lines, label);
  const BlockLine* over = NextIn(lines, label, false, kUnderLabel);
  const bool points = label.text.endsWith(QLatin1Char(':'));
  const std::pair<const BlockLine*, bool> order[] = {
      {points ? beside : under, true}, {points ? under : beside, true}, {over, false}};
  for (const auto& [line, down] : order) {
    if (line == nullptr || !IsText(*line) || IsSheetNumber(line->text) == several) continue;
    return several ? Paragraph(lines, *line, down) : line->text;
  }
  return {};
}

}  // namespace tamo
