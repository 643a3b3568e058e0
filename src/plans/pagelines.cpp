#include "plans/pagelines.h"

#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

constexpr double kSameLine = 0.4;  // of the letters' height, across the base line
constexpr double kBlank = 0.15;    // of it, along: a gap that is a blank
constexpr double kColumn = 1.6;    // and one that begins another line
constexpr double kSamePlace = 0.1;

// A piece by its place along its base line and across it.
struct Laid {
  const TextPiece* piece;
  int direction;  // degrees
  double across;
  double from;
  double to;
};

Laid LaidOut(const TextPiece& piece) {
  const PagePoint start = piece.places.front().start;
  const PagePoint end = piece.places.back().end;
  const auto along = [&](PagePoint at) { return at.x * piece.dx + at.y * piece.dy; };
  const int direction = static_cast<int>(std::lround(std::atan2(piece.dy, piece.dx) * 57.29578));
  return {&piece, direction, start.y * piece.dx - start.x * piece.dy, along(start), along(end)};
}

bool Before(const Laid& a, const Laid& b) {
  if (a.direction != b.direction) return a.direction < b.direction;
  return a.across != b.across ? a.across < b.across : a.from < b.from;
}

void Append(PageTextLine& line, const Laid& next, double& end) {
  const double size = next.piece->size;
  const bool gap = next.from - end > kBlank * size;
  if (gap && !line.text.endsWith(QLatin1Char(' '))) line.text += QLatin1Char(' ');
  line.text += next.piece->text;
  line.box.Take({next.piece->box.left, next.piece->box.top});
  line.box.Take({next.piece->box.right, next.piece->box.bottom});
  end = std::max(end, next.to);
}

// Pieces of one base line, in their order along it.
void AddLines(std::vector<Laid>& row, std::vector<PageTextLine>& lines) {
  std::sort(row.begin(), row.end(), [](const Laid& a, const Laid& b) { return a.from < b.from; });
  double end = -1e18;
  const Laid* last = nullptr;
  for (const Laid& laid : row) {
    const double size = laid.piece->size;
    const bool twice = last != nullptr && last->piece->text == laid.piece->text &&
                       std::abs(last->from - laid.from) < kSamePlace * size;
    if (twice) continue;
    if (last == nullptr || laid.from - end > kColumn * size) {
      lines.push_back({{}, NoBox(), size, laid.piece->dx, laid.piece->dy});
      end = laid.from;
    }
    Append(lines.back(), laid, end);
    last = &laid;
  }
  row.clear();
}

}  // namespace

std::vector<PageTextLine> TextLinesOf(const PageContent& content) {
  std::vector<Laid> all;
  for (const TextPiece& piece : content.texts) {
    const bool shown = !piece.clipped && !piece.places.empty() && piece.size > 0 && !piece.vertical;
    if (shown && !piece.text.trimmed().isEmpty()) all.push_back(LaidOut(piece));
  }
  std::sort(all.begin(), all.end(), Before);
  std::vector<PageTextLine> lines;
  std::vector<Laid> row;
  for (const Laid& laid : all) {
    const bool same = !row.empty() && row.front().direction == laid.direction &&
                      laid.across - row.front().across <= kSameLine * laid.piece->size;
    if (!same) AddLines(row, lines);
    row.push_back(laid);
  }
  AddLines(row, lines);
  return lines;
}

}  // namespace tamo
