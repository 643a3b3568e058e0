#include "schedule/placedword.h"

#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

constexpr double kTouch = 0.22;   // of the size: so far over a border is no more than touching it
constexpr double kAligned = 0.3;  // of the size: off the place where a column's texts begin

// Where the texts of a column usually begin, end and have their middle.
struct Habit {
  double left = 0, middle = 0, right = 0;
  double offLeft = 1e9, offMiddle = 1e9, offRight = 1e9;  // how far most are off it
};

double MiddleOf(std::vector<double> values) {
  const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

void Settle(const std::vector<double>& values, double& usual, double& off) {
  if (values.size() < 2) return;
  usual = MiddleOf(values);
  std::vector<double> distances;
  distances.reserve(values.size());
  for (const double value : values) distances.push_back(std::abs(value - usual));
  off = MiddleOf(distances);
}

std::vector<Habit> HabitsOf(const std::vector<TextLine>& lines, const ColumnBorders& columns,
                            double top) {
  std::vector<std::vector<double>> left(static_cast<size_t>(columns.Count()));
  std::vector<std::vector<double>> middle = left;
  std::vector<std::vector<double>> right = left;
  for (const TextLine& line : lines) {
    if (line.base <= top) continue;
    for (const Phrase& phrase : line.phrases) {
      const auto column = size_t(columns.ColumnAt(phrase.MidX()));
      left[column].push_back(phrase.box.left);
      middle[column].push_back(phrase.MidX());
      right[column].push_back(phrase.box.right);
    }
  }
  std::vector<Habit> habits(left.size());
  for (size_t i = 0; i < left.size(); ++i) {
    Settle(left[i], habits[i].left, habits[i].offLeft);
    Settle(middle[i], habits[i].middle, habits[i].offMiddle);
    Settle(right[i], habits[i].right, habits[i].offRight);
  }
  return habits;
}

bool Keeps(const Habit& habit, const PageBox& box, double size) {
  const double near = kAligned * size;
  const double middle = (box.left + box.right) / 2;
  const double best = std::min({habit.offLeft, habit.offMiddle, habit.offRight});
  if (best > 1e8) return true;  // nothing to compare with
  return (habit.offLeft <= best + 0.1 && std::abs(box.left - habit.left) <= near) ||
         (habit.offMiddle <= best + 0.1 && std::abs(middle - habit.middle) <= near) ||
         (habit.offRight <= best + 0.1 && std::abs(box.right - habit.right) <= near);
}

class Placer {
 public:
  Placer(const SheetDrawing& drawing, const std::vector<TextLine>& lines,
         const ColumnBorders& columns, double top)
      : drawing_(drawing), columns_(columns), habits_(HabitsOf(lines, columns, top)) {}

  void Place(const TextLine& line) {
    const size_t begin = placed_.size();
    for (const Phrase& phrase : WithStringsWhole(line)) PlacePhrase(phrase, line);
    MarkTouching(begin);
    MarkCollisions(begin);
  }
  std::vector<PlacedWord> Words() { return std::move(placed_); }

 private:
  // One drawn string that a border goes through at a blank is one text, most likely.
  std::vector<Phrase> WithStringsWhole(const TextLine& line) const {
    std::vector<Phrase> phrases;
    for (const Phrase& phrase : line.phrases) {
      if (!phrases.empty() && OneString(phrases.back(), phrase)) {
        Phrase& whole = phrases.back();
        whole.words.insert(whole.words.end(), phrase.words.begin(), phrase.words.end());
        whole.text += u' ' + phrase.text;
        whole.box.Take({phrase.box.right, phrase.box.bottom});
        whole.torn = true;
      } else {
        phrases.push_back(phrase);
      }
    }
    return phrases;
  }
  bool OneString(const Phrase& left, const Phrase& right) const {
    const Word& a = At(left.words.back());
    const Word& b = At(right.words.front());
    return a.piece == b.piece && b.box.left - a.box.right <= (a.fixed ? 0.95 : 0.6) * a.size;
  }

  // A word that ends right at a border, another right behind it: perhaps one text.
  void MarkTouching(size_t begin) {
    for (size_t i = begin; i + 1 < placed_.size(); ++i) {
      PlacedWord& a = placed_[i];
      PlacedWord& b = placed_[i + 1];
      if (a.last >= b.first || b.first >= columns_.Count()) continue;
      const double border = columns_.Left(b.first);
      const double gap = b.word->box.left - a.word->box.right;
      if (gap > 0.45 * a.word->size || a.word->box.right < border - 0.08 * a.word->size) continue;
      a.doubts.push_back(Doubt::WhichColumn);
      b.doubts.push_back(Doubt::WhichColumn);
    }
  }

  const Word& At(int index) const { return drawing_.words[size_t(index)]; }

  // How far a word reaches over the border on its left (or right) side out of its column.
  double Beyond(const Word& word, int column) const {
    const double left = column > 0 ? columns_.Left(column) - word.box.left : 0;
    const double right =
        column + 1 < columns_.Count() ? word.box.right - columns_.Right(column) : 0;
    return std::max(left, right);
  }

  bool Ruled(int border, double y) const {
    const double at = columns_.at[size_t(border)];
    return std::any_of(drawing_.rules.begin(), drawing_.rules.end(), [&](const Rule& rule) {
      return !rule.along && std::abs(rule.at - at) <= 2.7 && rule.from <= y && rule.to >= y;
    });
  }

  // Whether the rule of a border is missing at a height, though other rows have it.
  bool Missing(int border, double y) const {
    return columns_.ruled[size_t(border)] && !Ruled(border, y);
  }

  // The columns of one cell around a text: as far as the rules between them are missing.
  void Widen(double y, int& first, int& last) const {
    while (first > 0 && Missing(first, y)) --first;
    while (last + 1 < columns_.Count() && Missing(last + 1, y)) ++last;
  }

  bool OnlyTextIn(const TextLine& line, const Phrase& phrase, int first, int last) const {
    return std::none_of(line.phrases.begin(), line.phrases.end(), [&](const Phrase& other) {
      const int column = columns_.ColumnAt(other.MidX());
      return !Holds(phrase.box, other.MidX(), other.MidY()) && column >= first && column <= last;
    });
  }

  // One cell over several columns, with a single text: it stands for all of them.
  bool PlaceMerged(const Phrase& phrase, const TextLine& line, int first, int last) {
    for (int border = first + 1; border <= last; ++border) {
      if (!Missing(border, phrase.MidY())) return false;
    }
    Widen(phrase.MidY(), first, last);
    if (first == last || !OnlyTextIn(line, phrase, first, last)) return false;
    for (const int index : phrase.words) {
      placed_.push_back({&At(index), first, last, -1, {Doubt::Merged}});
    }
    return true;
  }

  void PlacePhrase(const Phrase& phrase, const TextLine& line) {
    const int first = columns_.ColumnAt(phrase.box.left + kTouch * phrase.size);
    const int last = columns_.ColumnAt(phrase.box.right - kTouch * phrase.size);
    if (PlaceMerged(phrase, line, first, last)) return;
    const size_t begin = placed_.size();
    bool crosses = phrase.torn;
    for (const int index : phrase.words) {
      const Word& word = At(index);
      const int column = columns_.ColumnAt(word.MidX());
      placed_.push_back({&word, column, column, -1, {}});
      crosses = crosses || Beyond(word, column) > kTouch * word.size;
    }
    if (crosses) return KeepTogether(phrase, begin);
    if (first != last) CheckParts(phrase, begin);
  }

  // A text too wide for its cell: all of it belongs where it keeps to the column's habit.
  void KeepTogether(const Phrase& phrase, size_t begin) {
    const int first = columns_.ColumnAt(phrase.box.left + kTouch * phrase.size);
    const int last = columns_.ColumnAt(phrase.box.right - kTouch * phrase.size);
    int column = first;
    for (int one = first; one <= last; ++one) {
      if (Keeps(habits_[size_t(one)], phrase.box, phrase.size)) {
        column = one;
        break;
      }
    }
    for (size_t i = begin; i < placed_.size(); ++i) {
      placed_[i].first = placed_[i].last = column;
      placed_[i].doubts.push_back(Doubt::OverBorder);
    }
  }

  // Words of one text that lie in several columns: sure when each part stands as its column's do.
  void CheckParts(const Phrase& phrase, size_t begin) {
    bool sure = true;
    for (size_t i = begin; i < placed_.size();) {
      size_t end = i;
      PageBox box = NoBox();
      while (end < placed_.size() && placed_[end].first == placed_[i].first) {
        const PageBox& one = placed_[end].word->box;
        box.Take({one.left, one.top});
        box.Take({one.right, one.bottom});
        ++end;
      }
      sure = sure && Keeps(habits_[size_t(placed_[i].first)], box, phrase.size);
      i = end;
    }
    if (sure) return;
    for (size_t i = begin; i < placed_.size(); ++i) {
      placed_[i].doubts.push_back(Doubt::WhichColumn);
    }
  }

  // Texts of a line that lie over each other.
  void MarkCollisions(size_t begin) {
    for (size_t i = begin; i + 1 < placed_.size(); ++i) {
      for (size_t k = i + 1; k < placed_.size() && k < i + 3; ++k) {
        const Word& a = *placed_[i].word;
        const Word& b = *placed_[k].word;
        const double shared = std::min(a.box.right, b.box.right) - std::max(a.box.left, b.box.left);
        if (shared <= 0.3 * std::min(a.size, b.size)) continue;
        placed_[i].doubts.push_back(Doubt::Overlapping);
        placed_[k].doubts.push_back(Doubt::Overlapping);
      }
    }
  }

  const SheetDrawing& drawing_;
  const ColumnBorders& columns_;
  const std::vector<Habit> habits_;
  std::vector<PlacedWord> placed_;
};

}  // namespace

std::vector<PlacedWord> PlaceWords(const SheetDrawing& drawing, const std::vector<TextLine>& lines,
                                   const ColumnBorders& columns, double top) {
  Placer placer(drawing, lines, columns, top);
  for (const TextLine& line : lines) {
    if (line.base > top) placer.Place(line);
  }
  return placer.Words();
}

}  // namespace tamo
