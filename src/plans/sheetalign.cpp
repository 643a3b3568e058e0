#include "plans/sheetalign.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "plans/fitvote.h"
#include "plans/linegrid.h"
#include "plans/pagelines.h"

namespace tamo {
namespace {

constexpr int kSamples = 3000;    // places on lines that are held against the other sheet
constexpr int kFewSamples = 400;  // to choose among the likely fits
constexpr double kRough = 3;      // points that a likely fit may be off
constexpr double kEnough = 0.3;   // of the lines have to lie on each other
constexpr double kBeyondChance = 0.2;
constexpr double kAtOnce = 0.8;  // so many, and nothing else is tried
constexpr double kSimple = 0.1;  // points by which a plainer fit may differ

struct Turned {
  double x;
  double y;
};
Turned Way(const SheetFit& fit, const LineSample& sample) {
  const double size = fit.Size();
  return {(fit.a * sample.dx - fit.b * sample.dy) / size,
          (fit.b * sample.dx + fit.a * sample.dy) / size};
}

// The part of the samples that lie on lines of the grid, under a fit.
double Agreed(const std::vector<LineSample>& samples, const LineGrid& grid, const SheetFit& fit,
              double reach) {
  if (samples.empty()) return 0;
  int on = 0;
  for (const LineSample& sample : samples) {
    const Turned way = Way(fit, sample);
    if (grid.Nearest(fit.To(sample.at), way.x, way.y, reach).has_value()) ++on;
  }
  return double(on) / double(samples.size());
}

SheetFit Inverse(const SheetFit& fit) {
  const PagePoint origin = fit.Back({0, 0});
  const double square = fit.a * fit.a + fit.b * fit.b;
  return {fit.a / square, -fit.b / square, origin.x, origin.y};
}

// A distance on the new sheet as one on the old sheet.
double Back(const SheetFit& fit, double reach) {
  constexpr double kMost = 30;  // points: farther off, any line would do
  return std::min(kMost, reach / fit.Size());
}

// Solves four equations; false when they leave something open.
bool Solve(std::array<std::array<double, 5>, 4>& rows) {
  for (size_t i = 0; i < 4; ++i) {
    size_t best = i;
    for (size_t j = i + 1; j < 4; ++j) {
      if (std::abs(rows[j][i]) > std::abs(rows[best][i])) best = j;
    }
    std::swap(rows[i], rows[best]);
    if (std::abs(rows[i][i]) < 1e-9) return false;
    for (size_t j = 0; j < 4; ++j) {
      if (j == i) continue;
      const double part = rows[j][i] / rows[i][i];
      for (size_t k = i; k < 5; ++k) rows[j][k] -= part * rows[i][k];
    }
  }
  return true;
}

// The two sheets, ready to be held against each other.
class Aligner {
 public:
  Aligner(const SheetLinework& old, const SheetLinework& now)
      : old_(old),
        oldGrid_(old.lines),
        nowGrid_(now.lines),
        oldSamples_(SamplesOf(oldGrid_.Lines(), kSamples)),
        nowSamples_(SamplesOf(nowGrid_.Lines(), kSamples)),
        fineness_(std::max(old.fineness, now.fineness)) {}

  // A sheet that lost or gained much still has the whole of the other one's lines.
  double Whole(const SheetFit& fit) const {
    return std::max(Agreed(oldSamples_, nowGrid_, fit, fineness_),
                    Agreed(nowSamples_, oldGrid_, Inverse(fit), Back(fit, fineness_)));
  }
  // As much as lies on each other where it does not belong.
  double Chance(const SheetFit& fit) const {
    double sum = 0;
    static constexpr PagePoint kAside[] = {{7.3, 5.1}, {-11.7, 17.9}, {23.3, -13.7}};
    for (const PagePoint by : kAside) sum += Whole(Joined(fit, {1, 0, by.x, by.y}));
    return sum / std::size(kAside);
  }
  SheetAlignment Judged(const SheetFit& fit) const {
    SheetAlignment made;
    made.fit = fit;
    made.agreed = Whole(fit);
    made.sure = made.agreed >= kEnough && made.agreed - Chance(fit) >= kBeyondChance;
    return made;
  }
  SheetFit Refined(SheetFit fit) const {
    for (const double reach : {8.0, 5.0, 3.0, 2.0, 1.0, 1.0, 1.0}) {
      if (!Improve(fit, std::max(reach, 2 * fineness_))) break;
    }
    return Plain(fit);
  }
  SheetFit BestOf(const std::vector<SheetFit>& fits) const;

 private:
  bool Improve(SheetFit& fit, double reach) const;
  SheetFit Plain(const SheetFit& fit) const;

  const SheetLinework& old_;
  LineGrid oldGrid_;
  LineGrid nowGrid_;
  std::vector<LineSample> oldSamples_;
  std::vector<LineSample> nowSamples_;
  double fineness_;
};

// One step to the fit that brings the samples onto their lines; how a line lies along itself is
// open, so only the way across counts.
bool Aligner::Improve(SheetFit& fit, double reach) const {
  std::array<std::array<double, 5>, 4> rows{};
  for (const LineSample& sample : oldSamples_) {
    const Turned way = Way(fit, sample);
    const auto foot = nowGrid_.Nearest(fit.To(sample.at), way.x, way.y, reach);
    if (!foot) continue;
    const double nx = -way.y;
    const double ny = way.x;
    const double x = sample.at.x;
    const double y = sample.at.y;
    const double part[4] = {nx * x + ny * y, ny * x - nx * y, nx, ny};
    const double target = nx * foot->x + ny * foot->y;
    for (size_t i = 0; i < 4; ++i) {
      for (size_t j = 0; j < 4; ++j) rows[i][j] += part[i] * part[j];
      rows[i][4] += part[i] * target;
    }
  }
  // What the lines leave open stays as it is: a weak pull to where it was.
  const double was[4] = {fit.a, fit.b, fit.dx, fit.dy};
  const double pull[4] = {1e3, 1e3, 1e-3, 1e-3};
  for (size_t i = 0; i < 4; ++i) {
    rows[i][i] += pull[i];
    rows[i][4] += pull[i] * was[i];
  }
  if (!Solve(rows)) return false;
  const SheetFit next = {rows[0][4] / rows[0][0], rows[1][4] / rows[1][1], rows[2][4] / rows[2][2],
                         rows[3][4] / rows[3][3]};
  if (!(next.Size() > 0.01 && next.Size() < 100)) return false;
  fit = next;
  return true;
}

// A fit that only moves, or does not turn, where that is as good: then nothing is painted askew.
SheetFit Aligner::Plain(const SheetFit& fit) const {
  const PagePoint middle = {old_.size.width / 2, old_.size.height / 2};
  const auto about = [&](double size, double turn) {
    SheetFit plain = Fit(size, turn, 0, 0);
    const PagePoint from = plain.To(middle);
    const PagePoint to = fit.To(middle);
    plain.dx = to.x - from.x;
    plain.dy = to.y - from.y;
    return plain;
  };
  const double quarter = 90 * fit.Quarters();
  SheetFit unmoved = about(1, quarter);
  unmoved.dx = std::round(unmoved.dx);
  unmoved.dy = std::round(unmoved.dy);
  for (const SheetFit& plain : {unmoved, about(1, quarter), about(fit.Size(), quarter)}) {
    if (FarthestApart(plain, fit, old_.size) < kSimple) return plain;
  }
  return fit;
}

SheetFit Aligner::BestOf(const std::vector<SheetFit>& fits) const {
  const std::vector<LineSample> some = SamplesOf(oldGrid_.Lines(), kFewSamples);
  const std::vector<LineSample> others = SamplesOf(nowGrid_.Lines(), kFewSamples);
  SheetFit best;
  double most = -1;
  const double reach = std::max(kRough, fineness_);
  for (const SheetFit& fit : fits) {
    const double agreed = Agreed(some, nowGrid_, fit, reach) +
                          Agreed(others, oldGrid_, Inverse(fit), Back(fit, reach));
    if (agreed <= most) continue;
    most = agreed;
    best = fit;
  }
  return best;
}

}  // namespace

SheetLinework LineworkOf(const PageContent& content) {
  constexpr double kCurve = 0.3;
  constexpr unsigned kWhite = 0xffffff;
  SheetLinework work;
  work.size = content.size;
  for (const PathPiece& path : content.paths) {
    if (path.alpha <= 0 || path.colour == kWhite) continue;
    for (const PageLine& line : Flattened(path, kCurve)) work.lines.push_back(line);
  }
  for (const TextPiece& text : content.texts) {
    if (text.clipped || text.hidden || text.places.empty()) continue;
    work.lines.push_back({text.places.front().start, text.places.back().end});
  }
  return work;
}

SheetAlignment AlignSheets(const SheetLinework& old, const SheetLinework& now) {
  const SheetFit asPaper = FitInto(old.size, now.size);
  SheetAlignment none;
  none.fit = asPaper;
  if (old.lines.empty() || now.lines.empty()) return none;
  const Aligner aligner(old, now);
  SheetAlignment best = aligner.Judged(asPaper);
  // A sheet of a line or two says little; lying as the paper does, it lies well.
  if (best.agreed >= kAtOnce && !best.sure && old.lines.size() < 50) best.sure = true;
  if (best.agreed >= kAtOnce && best.sure) return best;
  std::vector<SheetFit> likely = LikelyFits(old, now);
  likely.push_back(asPaper);
  likely.push_back({});
  const SheetAlignment found = aligner.Judged(aligner.Refined(aligner.BestOf(likely)));
  if (found.sure && (found.agreed > best.agreed || !best.sure)) best = found;
  if (!best.sure) best.fit = asPaper;
  return best;
}

SheetAlignment RefinedFit(const SheetLinework& old, const SheetLinework& now, const SheetFit& fit) {
  SheetAlignment given;
  given.fit = fit;
  given.byHand = true;
  if (old.lines.empty() || now.lines.empty()) return given;
  const Aligner aligner(old, now);
  SheetAlignment refined = aligner.Judged(aligner.Refined(fit));
  given.agreed = aligner.Whole(fit);
  refined.byHand = true;
  return refined.sure && refined.agreed > given.agreed ? refined : given;
}

}  // namespace tamo
