#include "schedule/tableheads.h"

#include <algorithm>
#include <cmath>

#include "schedule/headwords.h"

namespace tamo {
namespace {

// A head and the columns that it spans.
struct SpanningHead {
  const Phrase* phrase = nullptr;
  int first = 0;
  int last = 0;
  bool turned = false;

  bool SameColumns(const SpanningHead& other) const {
    return first == other.first && last == other.last;
  }
};

class Spanner {
 public:
  Spanner(const SheetDrawing& drawing, const HeadArea& heads, const ColumnBorders& columns)
      : drawing_(drawing), heads_(heads), columns_(columns), leaves_(LeavesOf(heads)) {}

  SpanningHead Of(const Phrase& phrase, bool turned) const {
    SpanningHead head = {&phrase, 0, columns_.Count() - 1, turned};
    const bool left = Narrow(phrase, true, head.first);
    const bool right = Narrow(phrase, false, head.last);
    if (head.first >= head.last) {
      head.first = head.last = std::min(head.first, head.last);
      return head;
    }
    if (left && right && Alone(phrase, head)) return head;
    return turned || IsLeaf(phrase) ? Single(phrase, head) : Over(phrase, head);
  }

 private:
  // Moves one end of the span to the nearest rule beside the phrase; false when there is none.
  bool Narrow(const Phrase& phrase, bool left, int& end) const {
    double nearest = left ? -1e9 : 1e9;
    for (const Rule& rule : drawing_.rules) {
      if (rule.along || rule.from > phrase.MidY() || rule.to < phrase.MidY()) continue;
      if (left && rule.at < phrase.MidX()) nearest = std::max(nearest, rule.at);
      if (!left && rule.at > phrase.MidX()) nearest = std::min(nearest, rule.at);
    }
    if (std::abs(nearest) > 1e8) return false;
    end = left ? columns_.ColumnAt(nearest + 2.5) : columns_.ColumnAt(nearest - 2.5);
    return true;
  }

  // No other head at its height stands over the same columns.
  bool Alone(const Phrase& phrase, const SpanningHead& head) const {
    const double left = columns_.Left(head.first);
    const double right = columns_.Right(head.last);
    const bool whole = head.first == 0 && head.last == columns_.Count() - 1;
    return !whole &&
           std::none_of(heads_.phrases.begin(), heads_.phrases.end(),
                        [&](const Phrase& other) {
                          return &other != &phrase && other.MidX() > left && other.MidX() < right &&
                                 std::abs(other.MidY() - phrase.MidY()) < 0.5 * phrase.size;
                        }) &&
           std::none_of(heads_.turned.begin(), heads_.turned.end(), [&](const Phrase& other) {
             return &other != &phrase && other.MidX() > left && other.MidX() < right &&
                    other.box.top < phrase.MidY() && other.box.bottom > phrase.MidY();
           });
  }

  bool IsLeaf(const Phrase& phrase) const {
    return std::any_of(leaves_.begin(), leaves_.end(),
                       [&phrase](const Phrase& leaf) { return leaf.words == phrase.words; });
  }

  static SpanningHead At(SpanningHead head, int column) {
    head.first = head.last = std::clamp(column, head.first, head.last);
    return head;
  }

  SpanningHead Single(const Phrase& phrase, const SpanningHead& head) const {
    return At(head, columns_.ColumnAt(phrase.MidX()));
  }

  // A head over others: the columns over the line below it, or those around whose middle it stands.
  SpanningHead Over(const Phrase& phrase, SpanningHead head) const {
    double from = 0;
    double to = 0;
    if (LineBelow(phrase, head, from, to)) {
      const int first = columns_.ColumnAt(from + 3);
      const int last = columns_.ColumnAt(to - 3);
      head.first = std::max(head.first, first);
      head.last = std::max(head.first, std::min(head.last, last));
      if (Alone(phrase, head)) return head;
    }
    return Around(phrase, head);
  }

  bool LineBelow(const Phrase& phrase, const SpanningHead& head, double& from, double& to) const {
    const double widest = columns_.Right(head.last) - columns_.Left(head.first);
    double best = phrase.base + 1.8 * phrase.size;
    bool found = false;
    for (const Rule& rule : drawing_.rules) {
      if (!rule.along || rule.at < phrase.base - 0.1 * phrase.size || rule.at > best) continue;
      if (rule.from > phrase.box.left + 1 || rule.to < phrase.box.right - 1) continue;
      if (rule.Length() > 0.95 * widest) continue;
      if (rule.Length() < phrase.box.Width() + 0.5 * phrase.size) continue;  // underlined
      best = rule.at;
      from = rule.from;
      to = rule.to;
      found = true;
    }
    return found;
  }

  // The own heads of a column, seen from a head over it: those lower than it.
  const Phrase* LeafBelow(const Phrase& phrase, int column) const {
    for (const Phrase& leaf : leaves_) {
      const bool lower = leaf.base > phrase.base + 0.4 * phrase.size;
      if (lower && columns_.ColumnAt(leaf.MidX()) == column) return &leaf;
    }
    return nullptr;
  }

  static bool CanBeBelow(const Phrase& leaf) {
    const unsigned meaning = MeaningOfText(leaf.text);
    return meaning == kNoMeaning ||
           (meaning & (kSideWords | kMaterialWord | kHeightWord | kColourWord | kNumberWord |
                       kNameWord | kSizeWord | kOtherWord)) != 0;
  }

  SpanningHead Around(const Phrase& phrase, const SpanningHead& head) const {
    const int middle = std::clamp(columns_.ColumnAt(phrase.MidX()), head.first, head.last);
    SpanningHead best = At(head, middle);
    double nearest = 1e9;
    for (int first = middle; first >= head.first && Below(phrase, first, middle); --first) {
      for (int last = middle; last <= head.last && Below(phrase, last, middle); ++last) {
        const double off = Off(phrase, first, last);
        const bool wider = best.first == best.last && last > first;
        if (off > nearest + (wider ? 0.1 : -0.1)) continue;
        nearest = std::min(nearest, off);
        best.first = first;
        best.last = last;
      }
    }
    return best;
  }
  bool Below(const Phrase& phrase, int column, int middle) const {
    const Phrase* leaf = LeafBelow(phrase, column);
    if (leaf == nullptr) return false;
    return column == middle || (CanBeBelow(*leaf) && !UnderAnother(phrase, column));
  }
  // Another head at the height of this one stands over the column.
  bool UnderAnother(const Phrase& phrase, int column) const {
    return std::any_of(heads_.phrases.begin(), heads_.phrases.end(), [&](const Phrase& other) {
      return &other != &phrase && std::abs(other.MidY() - phrase.MidY()) < 0.5 * phrase.size &&
             columns_.ColumnAt(other.MidX()) == column;
    });
  }
  // How far a head stands off the middle of a run of columns: of their heads, or of their borders.
  double Off(const Phrase& phrase, int first, int last) const {
    const double heads = (LeafBelow(phrase, first)->MidX() + LeafBelow(phrase, last)->MidX()) / 2;
    const double borders = (columns_.Left(first) + columns_.Right(last)) / 2;
    return std::min(std::abs(heads - phrase.MidX()), std::abs(borders - phrase.MidX()));
  }

  const SheetDrawing& drawing_;
  const HeadArea& heads_;
  const ColumnBorders& columns_;
  const std::vector<Phrase> leaves_;
};

// Lines of one cell: over the same columns, close below each other, no rule between.
bool OneCell(const SheetDrawing& drawing, const SpanningHead& upper, const SpanningHead& lower) {
  if (!upper.SameColumns(lower) || upper.turned != lower.turned) return false;
  if (upper.turned) return true;
  const Phrase& a = *upper.phrase;
  const Phrase& b = *lower.phrase;
  if (b.base - a.base > 1.9 * std::max(a.size, b.size)) return false;
  return std::none_of(drawing.rules.begin(), drawing.rules.end(), [&](const Rule& rule) {
    return rule.along && rule.at > a.base && rule.at < b.box.top + 1 && rule.from < b.MidX() &&
           rule.to > b.MidX();
  });
}

// The heads over one column in reading order; `turned` ones stand together among the others.
std::vector<SpanningHead> OverColumn(const std::vector<SpanningHead>& upright,
                                     const std::vector<SpanningHead>& turned, int column) {
  const auto over = [column](const SpanningHead& head) {
    return head.first <= column && head.last >= column;
  };
  std::vector<SpanningHead> own;
  std::copy_if(upright.begin(), upright.end(), std::back_inserter(own), over);
  std::vector<SpanningHead> standing;
  std::copy_if(turned.begin(), turned.end(), std::back_inserter(standing), over);
  if (standing.empty()) return own;
  const double middle = standing.front().phrase->MidY();
  const auto below = std::find_if(own.begin(), own.end(), [middle](const SpanningHead& head) {
    return head.phrase->MidY() > middle;
  });
  own.insert(below, standing.begin(), standing.end());
  return own;
}

}  // namespace

std::vector<HeadTexts> HeadsOverColumns(const SheetDrawing& drawing, const HeadArea& heads,
                                        const ColumnBorders& columns) {
  const Spanner spanner(drawing, heads, columns);
  std::vector<SpanningHead> upright;
  for (const Phrase& phrase : heads.phrases) upright.push_back(spanner.Of(phrase, false));
  std::vector<SpanningHead> turned;
  for (const Phrase& phrase : heads.turned) turned.push_back(spanner.Of(phrase, true));
  std::vector<HeadTexts> texts(static_cast<size_t>(columns.Count()));
  for (int column = 0; column < columns.Count(); ++column) {
    HeadTexts& own = texts[size_t(column)];
    const SpanningHead* before = nullptr;
    const std::vector<SpanningHead> over = OverColumn(upright, turned, column);
    for (const SpanningHead& head : over) {
      if (before != nullptr && OneCell(drawing, *before, head)) {
        own.last() += u' ' + head.phrase->text;
      } else {
        own.append(head.phrase->text);
      }
      before = &head;
    }
  }
  return texts;
}

}  // namespace tamo
