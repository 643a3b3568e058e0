#include "plans/snapindex.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "plans/outline.h"

namespace tamo {
namespace {

constexpr LineCellSize kCells = {4, 4096, 1 << 18};
constexpr size_t kMostLooked = 20000;  // entries of cells, the nearest cells first
constexpr size_t kMostNear = 256;      // lines looked at closely
constexpr size_t kMostCrossing = 64;   // of these, lines that are tried for intersections
constexpr size_t kMostHits = 16;
constexpr double kSamePlace = 0.02;  // points

struct NearLine {
  double distance;
  const SnapLine* line;
};

PagePoint OnLine(const PageLine& line, double part) {
  return {line.from.x + part * (line.to.x - line.from.x),
          line.from.y + part * (line.to.y - line.from.y)};
}

// Where along the line, as a part of it, the place's perpendicular meets it.
double PartAt(const PageLine& line, PagePoint at) {
  const double dx = line.to.x - line.from.x;
  const double dy = line.to.y - line.from.y;
  const double length = dx * dx + dy * dy;
  return length == 0 ? 0 : ((at.x - line.from.x) * dx + (at.y - line.from.y) * dy) / length;
}

std::optional<PagePoint> Crossing(const PageLine& a, const PageLine& b) {
  const double ax = a.to.x - a.from.x;
  const double ay = a.to.y - a.from.y;
  const double bx = b.to.x - b.from.x;
  const double by = b.to.y - b.from.y;
  const double across = ax * by - ay * bx;
  const double size = std::hypot(ax, ay) * std::hypot(bx, by);
  if (std::abs(across) <= 1e-9 * size) return std::nullopt;
  const double x = b.from.x - a.from.x;
  const double y = b.from.y - a.from.y;
  const double onA = (x * by - y * bx) / across;
  const double onB = (x * ay - y * ax) / across;
  if (onA < 0 || onA > 1 || onB < 0 || onB > 1) return std::nullopt;
  return OnLine(a, onA);
}

// The hits around a place, gathered kind by kind.
class Hits {
 public:
  Hits(PagePoint at, double reach) : at_(at), reach_(reach) {}

  void Offer(SnapKind kind, PagePoint place) {
    const double distance = Distance(at_, place);
    if (distance <= reach_) found_.push_back({distance, {kind, place}});
  }
  std::vector<SnapHit> Best() {
    std::stable_sort(found_.begin(), found_.end(), [](const Found& a, const Found& b) {
      return a.hit.kind != b.hit.kind ? a.hit.kind < b.hit.kind : a.distance < b.distance;
    });
    std::vector<SnapHit> hits;
    for (const Found& found : found_) {
      if (hits.size() == kMostHits) break;
      const bool known = std::any_of(hits.begin(), hits.end(), [&](const SnapHit& hit) {
        return Distance(hit.at, found.hit.at) <= kSamePlace;
      });
      if (!known) hits.push_back(found.hit);
    }
    return hits;
  }

 private:
  struct Found {
    double distance;
    SnapHit hit;
  };
  PagePoint at_;
  double reach_;
  std::vector<Found> found_;
};

void OfferLine(Hits& hits, const SnapLine& near, PagePoint at,
               const std::optional<PagePoint>& from) {
  const PageLine& line = near.line;
  if (near.endsAtFrom) hits.Offer(SnapKind::End, line.from);
  if (near.endsAtTo) hits.Offer(SnapKind::End, line.to);
  if (near.curve == 0) hits.Offer(SnapKind::Middle, OnLine(line, 0.5));
  if (from.has_value()) {
    const double foot = PartAt(line, *from);
    if (foot >= 0 && foot <= 1) hits.Offer(SnapKind::Foot, OnLine(line, foot));
  }
  hits.Offer(SnapKind::Nearest, OnLine(line, std::clamp(PartAt(line, at), 0.0, 1.0)));
}

void OfferCrossings(Hits& hits, std::span<const NearLine> near) {
  for (size_t i = 0; i < near.size(); ++i) {
    for (size_t j = i + 1; j < near.size(); ++j) {
      const SnapLine& a = *near[i].line;
      const SnapLine& b = *near[j].line;
      if (a.curve != 0 && a.curve == b.curve) continue;
      if (const auto place = Crossing(a.line, b.line)) hits.Offer(SnapKind::Intersection, *place);
    }
  }
}

// The nearest few, nearest first, none twice.
void KeepNearest(std::vector<NearLine>& near) {
  const auto closer = [](const NearLine& a, const NearLine& b) {
    return a.distance != b.distance ? a.distance < b.distance : a.line < b.line;
  };
  // A line stands in as many of the cells around the place as it runs through.
  constexpr size_t kEnough = kMostNear * 16;
  if (near.size() > kEnough) {
    std::nth_element(near.begin(), near.begin() + kEnough, near.end(), closer);
    near.resize(kEnough);
  }
  std::sort(near.begin(), near.end(), closer);
  const auto same = [](const NearLine& a, const NearLine& b) { return a.line == b.line; };
  near.erase(std::unique(near.begin(), near.end(), same), near.end());
  if (near.size() > kMostNear) near.resize(kMostNear);
}

}  // namespace

QString SnapInWords(SnapKind kind) {
  static const char* const words[] = {"end", "intersection", "middle", "foot", "nearest"};
  return QLatin1String(words[static_cast<int>(kind)]);
}

SnapIndex::SnapIndex(std::vector<SnapLine> lines)
    : lines_(std::move(lines)),
      cells_(
          lines_, [](const SnapLine& line) -> const PageLine& { return line.line; }, kCells) {}

// The cells within reach of a place in rings from the one it lies in outwards, until `visit` has
// enough.
template <typename Visit>
void SnapIndex::VisitAround(PagePoint at, double reach, Visit visit) const {
  const int left = cells_.Column(at.x - reach);
  const int right = cells_.Column(at.x + reach);
  const int top = cells_.Row(at.y - reach);
  const int bottom = cells_.Row(at.y + reach);
  const int column = cells_.Column(at.x);
  const int row = cells_.Row(at.y);
  const int rings = std::max({column - left, right - column, row - top, bottom - row});
  for (int ring = 0; ring <= rings; ++ring) {
    for (int y = std::max(top, row - ring); y <= std::min(bottom, row + ring); ++y) {
      const bool whole = std::abs(y - row) == ring;
      for (int x = column - ring; x <= column + ring; x += whole ? 1 : std::max(1, 2 * ring)) {
        if (x < left || x > right) continue;
        if (!visit(cells_.In(x, y))) return;
      }
    }
  }
}

void SnapIndex::LinesAround(PagePoint at, double reach, std::vector<uint32_t>& numbers) const {
  VisitAround(at, reach, [&](std::span<const uint32_t> cell) {
    numbers.insert(numbers.end(), cell.begin(), cell.end());
    return true;
  });
}

std::vector<SnapHit> SnapIndex::Near(PagePoint at, double reach,
                                     const std::optional<PagePoint>& from,
                                     std::span<const SnapLine> more) const {
  std::vector<NearLine> near;
  const auto look = [&](const SnapLine& line) {
    const double distance = DistanceToLine(at, line.line.from, line.line.to);
    if (distance <= reach) near.push_back({distance, &line});
  };
  for (const SnapLine& line : more) look(line);
  size_t looked = 0;
  VisitAround(at, reach, [&](std::span<const uint32_t> cell) {
    cell = cell.first(std::min(cell.size(), kMostLooked - looked));
    for (const uint32_t number : cell) look(lines_[number]);
    looked += cell.size();
    return looked < kMostLooked;
  });
  KeepNearest(near);
  Hits hits(at, reach);
  for (const NearLine& line : near) OfferLine(hits, *line.line, at, from);
  OfferCrossings(hits, std::span(near).first(std::min(near.size(), kMostCrossing)));
  return hits.Best();
}

}  // namespace tamo
