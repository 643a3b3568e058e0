#include "schedule/alignment.h"

#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

constexpr double kStep = 0.5;       // points of one step of the profile
constexpr double kNarrowest = 0.3;  // of the size: a narrower gap in common is none
constexpr double kBlank = 1.0;      // of the size: a gap this narrow may lie between two words

struct Column {
  double from = 0;
  double to = 0;
  std::vector<Span> heads = {};
};

// How many texts lie over each place.
class Profile {
 public:
  Profile(double from, double to, const std::vector<Span>& texts)
      : from_(from), counts_(size_t(std::max(1.0, std::ceil((to - from) / kStep))), 0) {
    for (const Span& text : texts) {
      const size_t end = Index(text.to - 0.01) + 1;
      for (size_t i = Index(text.from); i < end; ++i) ++counts_[i];
    }
  }

  std::vector<Column> Covered(double gap, int stray) const {
    std::vector<Column> columns;
    for (size_t i = 0; i < counts_.size(); ++i) {
      if (counts_[i] <= stray) continue;
      const double at = from_ + double(i) * kStep;
      if (!columns.empty() && at - columns.back().to <= gap) {
        columns.back().to = at + kStep;
      } else {
        columns.push_back({at, at + kStep});
      }
    }
    return columns;
  }

  // The middle of the widest place between two others over which the fewest texts lie.
  double Weakest(double low, double high) const {
    const size_t first = Index(low);
    const size_t last = std::max(first, Index(high));
    const int least = *std::min_element(counts_.begin() + std::ptrdiff_t(first),
                                        counts_.begin() + std::ptrdiff_t(last) + 1);
    size_t bestStart = first;
    size_t bestLength = 0;
    for (size_t i = first; i <= last; ++i) {
      size_t end = i;
      while (end <= last && counts_[end] == least) ++end;
      if (end - i > bestLength) {
        bestLength = end - i;
        bestStart = i;
      }
      if (end > i) i = end;
    }
    return from_ + (double(bestStart) + double(bestLength) / 2) * kStep;
  }

 private:
  size_t Index(double at) const {
    const double index = std::floor((at - from_) / kStep);
    return size_t(std::clamp(index, 0.0, double(counts_.size() - 1)));
  }

  double from_;
  std::vector<int> counts_;
};

double Shared(const Span& head, const Column& column) {
  return std::min(head.to, column.to) - std::max(head.from, column.from);
}

int BestColumn(const Span& head, double least, const std::vector<Column>& columns) {
  int best = -1;
  double most = least;
  for (size_t c = 0; c < columns.size(); ++c) {
    if (Shared(head, columns[c]) <= most) continue;
    most = Shared(head, columns[c]);
    best = int(c);
  }
  return best;
}

// Of several heads over one run of text only the lowest are its own; the others stand over more.
void KeepLowest(double size, Column& column) {
  double lowest = -1e9;
  for (const Span& head : column.heads) lowest = std::max(lowest, head.base);
  auto& heads = column.heads;
  heads.erase(std::remove_if(heads.begin(), heads.end(),
                             [=](const Span& head) { return head.base < lowest - 0.4 * size; }),
              heads.end());
}

// The nearest heads to the left and to the right are lower: they are parts of what it names.
bool BetweenLower(const Span& head, const std::vector<Span>& heads, double size) {
  const Span* left = nullptr;
  const Span* right = nullptr;
  for (const Span& other : heads) {
    if (other.to < head.from && (left == nullptr || other.to > left->to)) left = &other;
    if (other.from > head.to && (right == nullptr || other.from < right->from)) right = &other;
  }
  const auto lower = [&](const Span* other) {
    return other != nullptr && other->base > head.base + 0.4 * size;
  };
  return lower(left) && lower(right);
}

// Gives each head to the column that it stands over; a head over no text makes a column, unless it
// stands close beside one without a head.
void GiveHeads(const std::vector<Span>& heads, double size, std::vector<Column>& columns) {
  std::vector<Span> over;
  for (const Span& head : heads) {
    const int best = BestColumn(head, 0, columns);
    if (best >= 0) {
      columns[size_t(best)].heads.push_back(head);
    } else {
      over.push_back(head);
    }
  }
  for (Column& column : columns) KeepLowest(size, column);
  for (const Span& head : over) {
    if (!head.single && BetweenLower(head, heads, size)) continue;
    const int near = BestColumn(head, -1.5 * size, columns);
    if (near >= 0 && columns[size_t(near)].heads.empty()) {
      columns[size_t(near)].heads.push_back(head);
      continue;
    }
    columns.push_back({head.from, head.to, {head}});
    std::sort(columns.begin(), columns.end(),
              [](const Column& a, const Column& b) { return a.from < b.from; });
  }
}

// A column without a head that is no more than a blank away from its neighbour belongs to it.
void JoinHeadless(double size, std::vector<Column>& columns) {
  for (size_t i = 0; i < columns.size();) {
    if (!columns[i].heads.empty() || columns.size() < 2) {
      ++i;
      continue;
    }
    const double before = i > 0 ? columns[i].from - columns[i - 1].to : 1e9;
    const double after = i + 1 < columns.size() ? columns[i + 1].from - columns[i].to : 1e9;
    if (std::min(before, after) > 2.5 * kBlank * size) {
      ++i;
      continue;
    }
    const size_t into = before <= after + 0.5 * size ? i - 1 : i + 1;
    columns[into].from = std::min(columns[into].from, columns[i].from);
    columns[into].to = std::max(columns[into].to, columns[i].to);
    columns.erase(columns.begin() + std::ptrdiff_t(i));
  }
}

}  // namespace

std::vector<double> AlignedBorders(double from, double to, const std::vector<Span>& texts,
                                   const std::vector<Span>& heads, double size) {
  const Profile profile(from, to, texts);
  const int stray = int(double(texts.size()) / 400);
  std::vector<Column> columns = profile.Covered(kNarrowest * size, stray);
  GiveHeads(heads, size, columns);
  JoinHeadless(size, columns);
  std::vector<double> borders;
  for (size_t i = 0; i < columns.size(); ++i) {
    if (i > 0) borders.push_back((columns[i - 1].to + columns[i].from) / 2);
    const std::vector<Span>& own = columns[i].heads;
    for (size_t h = 0; h + 1 < own.size(); ++h) {  // several heads over one run of text
      borders.push_back(profile.Weakest(own[h].to - 0.5, own[h + 1].from + 0.5));
    }
  }
  std::sort(borders.begin(), borders.end());
  return borders;
}

}  // namespace tamo
