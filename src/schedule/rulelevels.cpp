#include "schedule/rulelevels.h"

#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

constexpr double kDouble = 2.6;  // points between the two lines of a double one

double CoveredBy(std::vector<Rule>::iterator first, std::vector<Rule>::iterator last) {
  std::sort(first, last, [](const Rule& a, const Rule& b) { return a.from < b.from; });
  double covered = 0;
  double end = -1e9;
  for (auto at = first; at != last; ++at) {
    covered += std::max(0.0, at->to - std::max(at->from, end));
    end = std::max(end, at->to);
  }
  return covered;
}

bool Strikes(const Rule& rule, const Word& word) {
  if (word.way != Way::Right) return false;
  const double middle = word.base - 0.34 * word.size;
  if (std::abs(rule.at - middle) > 0.2 * word.size) return false;
  const double shared = std::min(rule.to, word.box.right) - std::max(rule.from, word.box.left);
  return shared >= 0.6 * word.box.Width();
}

// A line of the ruling ends at lines across it; what strikes a row through mostly lies on text.
bool IsStrike(const Rule& rule, const SheetDrawing& drawing) {
  double struck = 0;
  for (const Word& word : drawing.words) {
    if (Strikes(rule, word)) struck += word.box.Width();
  }
  return struck >= 0.25 * rule.Length() || (struck > 0 && rule.Length() < 12);
}

}  // namespace

std::vector<RuleLevel> LevelsOf(const std::vector<Rule>& rules, bool along, double from,
                                double to) {
  std::vector<Rule> own;
  for (Rule rule : rules) {
    if (rule.along != along) continue;
    rule.from = std::max(rule.from, from);
    rule.to = std::min(rule.to, to);
    if (rule.Length() > 0) own.push_back(rule);
  }
  std::sort(own.begin(), own.end(), [](const Rule& a, const Rule& b) { return a.at < b.at; });
  std::vector<RuleLevel> levels;
  for (auto first = own.begin(); first != own.end();) {
    auto last = first + 1;
    while (last != own.end() && last->at - (last - 1)->at <= kDouble &&
           last->at - first->at <= 2 * kDouble) {
      ++last;
    }
    RuleLevel level;
    level.at = (first->at + (last - 1)->at) / 2;
    level.covered = CoveredBy(first, last);
    level.from = first->from;
    level.to = first->to;
    for (auto at = first; at != last; ++at) level.to = std::max(level.to, at->to);
    levels.push_back(level);
    first = last;
  }
  return levels;
}

void DropStrikes(SheetDrawing& drawing) {
  std::vector<Rule> kept;
  for (const Rule& rule : drawing.rules) {
    if (!rule.along || !IsStrike(rule, drawing)) kept.push_back(rule);
  }
  drawing.rules = std::move(kept);
}

}  // namespace tamo
