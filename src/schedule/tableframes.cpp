#include "schedule/tableframes.h"

#include <algorithm>
#include <cmath>

#include "schedule/headarea.h"
#include "schedule/headwords.h"

namespace tamo {
namespace {

constexpr double kSameEnd = 3;    // points
constexpr double kShortest = 60;  // points of a table's rule
constexpr double kLowest = 12;    // points of a table's height
constexpr size_t kFewestRules = 3;
constexpr double kWidestGap = 50;  // points between rows, where nothing at the sides goes on

// Rules of one direction with the same ends, in order.
using Family = std::vector<Rule>;

std::vector<Family> FamiliesOf(const std::vector<Rule>& rules, bool along) {
  std::vector<Rule> own;
  for (const Rule& rule : rules) {
    if (rule.along == along && rule.Length() >= kShortest) own.push_back(rule);
  }
  std::sort(own.begin(), own.end(), [](const Rule& a, const Rule& b) { return a.from < b.from; });
  std::vector<bool> used(own.size(), false);
  std::vector<Family> families;
  for (size_t i = 0; i < own.size(); ++i) {
    if (used[i]) continue;
    Family family;
    for (size_t k = i; k < own.size() && own[k].from - own[i].from <= kSameEnd; ++k) {
      if (used[k] || std::abs(own[k].to - own[i].to) > kSameEnd) continue;
      used[k] = true;
      family.push_back(own[k]);
    }
    if (family.size() < kFewestRules) continue;
    std::sort(family.begin(), family.end(),
              [](const Rule& a, const Rule& b) { return a.at < b.at; });
    families.push_back(std::move(family));
  }
  return families;
}

// Whether a rule at one of the family's ends goes from one of its rules to the next.
bool SideGoesOn(const std::vector<Rule>& rules, const Rule& one, const Rule& next) {
  return std::any_of(rules.begin(), rules.end(), [&](const Rule& rule) {
    if (rule.along == one.along) return false;
    const bool atEnd =
        std::abs(rule.at - one.from) <= kSameEnd || std::abs(rule.at - one.to) <= kSameEnd;
    return atEnd && rule.from <= one.at + kSameEnd && rule.to >= next.at - kSameEnd;
  });
}

PageBox BoxOf(const Rule& first, const Rule& last) {
  const double low = std::min(first.from, last.from);
  const double high = std::max(first.to, last.to);
  if (first.along) return {low, first.at, high, last.at};
  return {first.at, low, last.at, high};
}

// Cuts a family where its rules no longer follow each other.
void TakeChains(const std::vector<Rule>& rules, const Family& family, std::vector<PageBox>& boxes) {
  std::vector<bool> bound;
  for (size_t i = 0; i + 1 < family.size(); ++i) {
    bound.push_back(SideGoesOn(rules, family[i], family[i + 1]));
  }
  const auto sided = std::count(bound.begin(), bound.end(), true);
  const bool sides = size_t(sided) * 2 > bound.size();
  size_t first = 0;
  for (size_t i = 0; i < family.size(); ++i) {
    const bool ends = i + 1 == family.size();
    const bool goesOn =
        !ends && (bound[i] || (!sides && family[i + 1].at - family[i].at <= kWidestGap));
    if (goesOn) continue;
    if (i + 1 - first >= kFewestRules) boxes.push_back(BoxOf(family[first], family[i]));
    first = i + 1;
  }
}

bool SameBox(const PageBox& a, const PageBox& b) {
  return std::abs(a.left - b.left) <= kSameEnd && std::abs(a.top - b.top) <= kSameEnd &&
         std::abs(a.right - b.right) <= kSameEnd && std::abs(a.bottom - b.bottom) <= kSameEnd;
}

// --- Without rules

constexpr double kHeadsApart = 220;  // points from one head to the next
constexpr double kStacked = 3.5;     // of the size: from one line of heads to the next
constexpr double kRowsApart = 3.2;   // of the size: from one row to the next

// Heads beside each other on one line.
struct HeadRun {
  PageBox box;
  double size = 0;
  int heads = 0;
};

std::vector<HeadRun> RunsOf(const TextLine& line) {
  std::vector<HeadRun> runs;
  bool open = false;
  for (const Phrase& phrase : line.phrases) {
    if (!IsHeadPhrase(phrase)) {
      open = false;
      continue;
    }
    if (!open || phrase.box.left - runs.back().box.right > kHeadsApart) {
      runs.push_back({NoBox(), phrase.size, 0});
    }
    runs.back().box.Take({phrase.box.left, phrase.box.top});
    runs.back().box.Take({phrase.box.right, phrase.box.bottom});
    ++runs.back().heads;
    open = true;
  }
  return runs;
}

// Heads over one table though a wide column parts them.
bool Beside(const HeadRun& a, const HeadRun& b) {
  const double apart = std::max(a.box.left, b.box.left) - std::min(a.box.right, b.box.right);
  const double below = std::max(a.box.top, b.box.top) - std::min(a.box.bottom, b.box.bottom);
  return apart < kHeadsApart / 2 && below < 1.5 * std::max(a.size, b.size);
}

void JoinBeside(std::vector<HeadRun>& runs) {
  for (size_t i = 0; i < runs.size(); ++i) {
    for (size_t k = i + 1; k < runs.size();) {
      if (!Beside(runs[i], runs[k])) {
        ++k;
        continue;
      }
      runs[i].box.Take({runs[k].box.left, runs[k].box.top});
      runs[i].box.Take({runs[k].box.right, runs[k].box.bottom});
      runs[i].heads += runs[k].heads;
      runs.erase(runs.begin() + std::ptrdiff_t(k));
      k = i + 1;
    }
  }
}

bool Stacked(const HeadRun& upper, const HeadRun& lower) {
  const double gap = lower.box.top - upper.box.bottom;
  const double shared =
      std::min(upper.box.right, lower.box.right) - std::max(upper.box.left, lower.box.left);
  return gap < kStacked * upper.size && shared > -kHeadsApart / 4;
}

std::vector<HeadRun> HeadRunsOf(const std::vector<TextLine>& lines) {
  std::vector<HeadRun> all;
  for (const TextLine& line : lines) {
    for (const HeadRun& run : RunsOf(line)) {
      const auto over = std::find_if(all.rbegin(), all.rend(),
                                     [&run](const HeadRun& upper) { return Stacked(upper, run); });
      if (over == all.rend()) {
        all.push_back(run);
        continue;
      }
      over->box.Take({run.box.left, run.box.top});
      over->box.Take({run.box.right, run.box.bottom});
      over->heads += run.heads;
    }
  }
  JoinBeside(all);
  return all;
}

// Down from the heads as far as there are rows.
PageBox WithRows(const HeadRun& run, const std::vector<TextLine>& lines) {
  PageBox box = run.box;
  double last = box.bottom;
  for (const TextLine& line : lines) {
    if (line.base <= box.bottom + 0.5) continue;
    const double apart = line.base - last;
    bool any = false;
    double left = box.left;
    double right = box.right;
    for (const Phrase& phrase : line.phrases) {
      const bool under = phrase.box.left >= run.box.left - 3 * run.size ||
                         phrase.box.right > run.box.left + run.size;
      if (!under || phrase.box.left > box.right) continue;
      any = true;
      left = std::min(left, phrase.box.left);
      right = std::max(right, phrase.box.right);
    }
    if (!any) continue;
    if (apart > kRowsApart * line.size || IsHeadLine(line)) break;
    box.left = left;
    box.right = right;
    last = line.base;
  }
  box.left -= 3 * run.size;
  box.bottom = last + 0.3 * run.size;
  return box;
}

}  // namespace

std::vector<PageBox> RuledFrames(const SheetDrawing& drawing) {
  std::vector<PageBox> frames;
  for (const bool along : {true, false}) {
    std::vector<PageBox> boxes;
    for (const Family& family : FamiliesOf(drawing.rules, along)) {
      TakeChains(drawing.rules, family, boxes);
    }
    std::stable_sort(boxes.begin(), boxes.end(), [](const PageBox& a, const PageBox& b) {
      return a.Width() * a.Height() < b.Width() * b.Height();
    });
    for (const PageBox& box : boxes) {
      if (box.Width() < kShortest || box.Height() < kLowest) continue;
      if (frames.empty() || !SameBox(frames.back(), box)) frames.push_back(box);
    }
  }
  return frames;
}

std::vector<PageBox> UnruledFrames(const SheetDrawing& drawing, const std::vector<PageBox>& taken) {
  SheetDrawing free;
  free.size = drawing.size;
  for (const Word& word : drawing.words) {
    const bool inside = std::any_of(taken.begin(), taken.end(), [&word](const PageBox& box) {
      return Holds(box, word.MidX(), word.MidY());
    });
    if (!inside) free.words.push_back(word);
  }
  const std::vector<TextLine> lines = LinesOf(free);
  std::vector<PageBox> boxes;
  for (const HeadRun& run : HeadRunsOf(lines)) {
    if (run.heads >= 3) boxes.push_back(WithRows(run, lines));
  }
  return boxes;
}

}  // namespace tamo
