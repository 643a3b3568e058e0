#include "schedule/sheetword.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "schedule/letters.h"

namespace tamo {
namespace {

constexpr double kWordGap = 0.16;   // of the size: from here on a gap is a blank
constexpr double kOverlap = 0.35;   // of the size: how far two drawn parts of a word may overlap
constexpr double kSpaced = 0.06;    // of the size: letters set wider than this are letter-spaced
constexpr double kWidest = 0.75;    // of the size: the widest gap between spaced letters
constexpr double kCapitals = 0.72;  // of the size: height of the capitals

// Letters of one string without a blank between them.
struct Part {
  std::vector<Letter> letters;
  double spacing = 0;  // of the string's letters, in points

  const Letter& First() const { return letters.front(); }
  const Letter& Last() const { return letters.back(); }
  double Size() const {
    double size = 0;
    for (const Letter& letter : letters) size = std::max(size, letter.size);
    return size;
  }
};

// How wide the narrow gaps between neighbouring letters of a string are, 0 when it is set as usual;
// the wide ones may be blanks that were not drawn.
double SpacingOf(const std::vector<Letter>& letters, size_t first, size_t last) {
  std::vector<double> gaps;
  for (size_t i = first + 1; i < last; ++i) {
    if (IsBlank(letters[i].letter) || IsBlank(letters[i - 1].letter)) continue;
    gaps.push_back(letters[i].from - letters[i - 1].to);
  }
  if (gaps.size() < 2) return 0;
  const auto narrow = gaps.begin() + std::ptrdiff_t((gaps.size() - 1) / 4);
  std::nth_element(gaps.begin(), narrow, gaps.end());
  return *narrow > kSpaced * letters[first].size ? *narrow : 0;
}

void CutString(const std::vector<Letter>& letters, size_t first, size_t last,
               std::vector<Part>& parts) {
  const double spacing = SpacingOf(letters, first, last);
  bool open = false;
  for (size_t i = first; i < last; ++i) {
    const Letter& letter = letters[i];
    if (IsBlank(letter.letter)) {
      open = false;
      continue;
    }
    const double wide = spacing + kWordGap * letter.size;
    if (open &&
        (letter.from - parts.back().Last().to > wide || letter.from < parts.back().Last().from)) {
      open = false;
    }
    if (!open) parts.push_back({{}, spacing});
    parts.back().letters.push_back(letter);
    open = true;
  }
}

std::vector<Part> PartsOf(const std::vector<Letter>& letters) {
  std::vector<Part> parts;
  for (size_t i = 0; i < letters.size();) {
    size_t end = i;
    while (end < letters.size() && letters[end].piece == letters[i].piece) ++end;
    CutString(letters, i, end, parts);
    i = end;
  }
  return parts;
}

// The rules that stand across a reading direction, by where along it.
class Fences {
 public:
  Fences(const std::vector<Rule>& rules, Way way) {
    const bool upright = way == Way::Right || way == Way::Left;
    const double along = way == Way::Left || way == Way::Up ? -1 : 1;
    const double across = way == Way::Left || way == Way::Down ? -1 : 1;
    for (const Rule& rule : rules) {
      if (rule.along == upright) continue;
      const double ends[] = {across * rule.from, across * rule.to};
      fences_.push_back({along * rule.at, std::min(ends[0], ends[1]), std::max(ends[0], ends[1])});
    }
    std::sort(fences_.begin(), fences_.end(),
              [](const Fence& a, const Fence& b) { return a.at < b.at; });
  }
  bool Between(double from, double to, double base) const {
    auto at = std::lower_bound(fences_.begin(), fences_.end(), from,
                               [](const Fence& fence, double low) { return fence.at < low; });
    for (; at != fences_.end() && at->at <= to; ++at) {
      if (at->from <= base && at->to >= base) return true;
    }
    return false;
  }

 private:
  struct Fence {
    double at, from, to;
  };
  std::vector<Fence> fences_;
};

// Finds for the end of each part the part that goes on there.
class Joiner {
 public:
  Joiner(const std::vector<Part>& parts, const Fences& fences)
      : parts_(parts), fences_(fences), next_(parts.size(), -1), before_(parts.size(), -1) {
    for (size_t i = 0; i < parts.size(); ++i) rows_[Row(parts[i].First().base)].push_back(int(i));
    for (auto& [row, members] : rows_) {
      std::sort(members.begin(), members.end(), [this](int a, int b) { return From(a) < From(b); });
    }
    EstimateSpacing();
    for (size_t i = 0; i < parts.size(); ++i) FindNext(int(i));
  }
  double SpacingOf(int part) const {
    const Part& one = parts_[size_t(part)];
    return one.letters.size() > 1 ? one.spacing : spacing_ * one.Last().size;
  }
  int Next(int part) const { return next_[size_t(part)]; }
  bool Begins(int part) const { return before_[size_t(part)] < 0; }

 private:
  static constexpr double kRow = 6;

  static int Row(double base) { return static_cast<int>(std::floor(base / kRow)); }
  double From(int part) const { return parts_[size_t(part)].First().from; }

  // How far apart letters stand that are drawn one by one, in parts of their size.
  void EstimateSpacing() {
    std::vector<double> gaps;
    for (const auto& [row, members] : rows_) {
      for (size_t i = 0; i + 1 < members.size(); ++i) {
        const Part& a = parts_[size_t(members[i])];
        const Part& b = parts_[size_t(members[i + 1])];
        if (a.letters.size() > 1 || b.letters.size() > 1) continue;
        const double size = a.Last().size;
        const double gap = (b.First().from - a.Last().to) / size;
        const bool level = std::abs(a.Last().base - b.First().base) <= 0.2 * size;
        if (level && gap > -kOverlap && gap < kWidest) gaps.push_back(gap);
      }
    }
    const auto singles = std::count_if(parts_.begin(), parts_.end(),
                                       [](const Part& part) { return part.letters.size() == 1; });
    if (gaps.size() < 12 || size_t(singles) * 10 < parts_.size() * 8) return;
    const auto middle = gaps.begin() + std::ptrdiff_t(gaps.size() / 2);
    std::nth_element(gaps.begin(), middle, gaps.end());
    if (*middle > kSpaced) spacing_ = *middle;
  }

  bool GoesOn(int first, int second) const {
    const Part& a = parts_[size_t(first)];
    const Part& b = parts_[size_t(second)];
    const double spacing = std::max(SpacingOf(first), SpacingOf(second));
    const double size = std::max(a.Last().size, b.First().size);
    const double smaller = std::min(a.Last().size, b.First().size);
    const double gap = b.First().from - a.Last().to;
    return smaller >= 0.5 * size && std::abs(a.Last().base - b.First().base) <= 0.2 * smaller &&
           gap >= -kOverlap * size && gap <= spacing + kWordGap * size &&
           b.First().from > a.Last().from + 0.05 * size && !Fenced(a, b, size);
  }

  // Single letters may well be drawn over a rule; strings that end at one are two.
  bool Fenced(const Part& a, const Part& b, double size) const {
    if (a.letters.size() < 2 && b.letters.size() < 2) return false;
    const double ends[] = {a.Last().to, b.First().from};
    return fences_.Between(std::min(ends[0], ends[1]) - 0.25 * size,
                           std::max(ends[0], ends[1]) + 0.25 * size, a.Last().base - 0.3 * size);
  }

  void FindNext(int index) {
    const Part& part = parts_[size_t(index)];
    const double reach = kWidest * 1.4 * part.Last().size;
    double best = 1e9;
    for (int row = Row(part.Last().base) - 1; row <= Row(part.Last().base) + 1; ++row) {
      const auto found = rows_.find(row);
      if (found == rows_.end()) continue;
      const std::vector<int>& members = found->second;
      auto at = std::lower_bound(members.begin(), members.end(), part.Last().to - reach,
                                 [this](int a, double from) { return From(a) < from; });
      for (; at != members.end() && From(*at) <= part.Last().to + reach; ++at) {
        const double gap = std::abs(From(*at) - part.Last().to);
        if (*at == index || gap >= best || before_[size_t(*at)] >= 0) continue;
        if (!GoesOn(index, *at)) continue;
        best = gap;
        next_[size_t(index)] = *at;
      }
    }
    if (next_[size_t(index)] >= 0) before_[size_t(next_[size_t(index)])] = index;
  }

  const std::vector<Part>& parts_;
  const Fences& fences_;
  std::vector<int> next_;
  std::vector<int> before_;
  std::map<int, std::vector<int>> rows_;
  double spacing_ = 0;
};

Word WordOf(const std::vector<Letter>& letters, double spacing, Way way) {
  Word word;
  word.spacing = spacing;
  word.way = way;
  word.piece = letters.front().piece;
  word.fixed = letters.front().fixed;
  for (const Letter& letter : letters) {
    word.text += letter.letter;
    word.size = std::max(word.size, letter.size);
    word.unknown = word.unknown || IsUnknown(letter.letter);
  }
  const double base = letters.front().base;
  word.base = BaseOnSheet(base, way);
  word.box = OnSheet({letters.front().from, base - kCapitals * word.size,
                      std::max(letters.back().to, letters.front().to), base},
                     way);
  word.text = word.text.normalized(QString::NormalizationForm_C);
  return word;
}

void TakeWords(const std::vector<TextPiece>& texts, const std::vector<Rule>& rules, Way way,
               std::vector<Word>& words) {
  const std::vector<Part> parts = PartsOf(LettersOf(texts, way));
  const Fences fences(rules, way);
  const Joiner joiner(parts, fences);
  for (size_t i = 0; i < parts.size(); ++i) {
    if (!joiner.Begins(int(i))) continue;
    std::vector<Letter> letters;
    double spacing = 0;
    size_t steps = 0;
    for (int at = int(i); at >= 0 && steps <= parts.size(); at = joiner.Next(at), ++steps) {
      const std::vector<Letter>& more = parts[size_t(at)].letters;
      letters.insert(letters.end(), more.begin(), more.end());
      spacing = std::max(spacing, joiner.SpacingOf(at));
    }
    words.push_back(WordOf(letters, spacing, way));
  }
}

bool RightToLeft(QChar letter) {
  return letter.direction() == QChar::DirR || letter.direction() == QChar::DirAL;
}

void Count(const TextPiece& piece, LetterCounts& counts) {
  for (const QChar letter : piece.text) {
    if (IsBlank(letter)) continue;
    ++(piece.hidden ? counts.hidden : counts.letters);
    if (RightToLeft(letter)) ++counts.foreign;
    if (piece.vertical) ++counts.downwards;
  }
}

}  // namespace

LetterCounts CountLetters(const std::vector<TextPiece>& texts) {
  LetterCounts counts;
  for (const TextPiece& piece : texts) {
    if (!piece.clipped) Count(piece, counts);
  }
  return counts;
}

std::vector<Word> WordsOf(const std::vector<TextPiece>& texts, const std::vector<Rule>& rules) {
  std::vector<Word> words;
  for (const Way way : {Way::Right, Way::Up, Way::Left, Way::Down}) {
    TakeWords(texts, rules, way, words);
  }
  return words;
}

}  // namespace tamo
