#include "schedule/textline.h"

#include <algorithm>
#include <cmath>

namespace tamo {
namespace {

constexpr double kSameLine = 0.3;   // of the size
constexpr double kPhraseGap = 0.6;  // of the size: a wider gap is more than a blank
constexpr double kFixedGap = 0.95;  // the same of a typewriter face
constexpr double kLeastHigh = 0.6;  // of the size over the base line: a rule that parts words

bool OneBlank(const Word& left, const Word& right) {
  const double size = std::max(left.size, right.size);
  const double gap = right.box.left - left.box.right;
  const double spacing = left.spacing + right.spacing;
  return gap <= (left.fixed && right.fixed ? kFixedGap : kPhraseGap) * size + spacing;
}

void AddTo(Phrase& phrase, const Word& word, int index) {
  if (!phrase.words.empty()) phrase.text += u' ';
  phrase.text += word.text;
  phrase.words.push_back(index);
  phrase.size = std::max(phrase.size, word.size);
  phrase.box.Take({word.box.left, word.box.top});
  phrase.box.Take({word.box.right, word.box.bottom});
}

Phrase NewPhrase(const Word& word, int index) {
  Phrase phrase;
  phrase.box = NoBox();
  phrase.base = word.base;
  AddTo(phrase, word, index);
  return phrase;
}

// One line's words, left to right, as phrases.
TextLine LineOf(const SheetDrawing& drawing, std::vector<int> words) {
  std::sort(words.begin(), words.end(), [&drawing](int a, int b) {
    return drawing.words[size_t(a)].box.left < drawing.words[size_t(b)].box.left;
  });
  TextLine line;
  int before = -1;
  for (const int index : words) {
    const Word& word = drawing.words[size_t(index)];
    line.base = std::max(line.base, word.base);
    line.size = std::max(line.size, word.size);
    const bool follows = before >= 0 && OneBlank(drawing.words[size_t(before)], word) &&
                         !RuleBetween(drawing, drawing.words[size_t(before)], word);
    if (follows) {
      AddTo(line.phrases.back(), word, index);
    } else {
      line.phrases.push_back(NewPhrase(word, index));
    }
    before = index;
  }
  return line;
}

// Turned words of one column of letters that follow each other, in reading order.
bool Follows(const Word& before, const Word& word) {
  if (before.way != word.way || std::abs(before.base - word.base) > kSameLine * word.size) {
    return false;
  }
  const double gap =
      word.way == Way::Up ? before.box.top - word.box.bottom : word.box.top - before.box.bottom;
  return gap > -0.5 * word.size && gap <= (word.fixed ? kFixedGap : kPhraseGap) * word.size;
}

}  // namespace

bool RuleBetween(const SheetDrawing& drawing, const Word& left, const Word& right) {
  const double top = right.base - kLeastHigh * right.size;
  return std::any_of(drawing.rules.begin(), drawing.rules.end(), [&](const Rule& rule) {
    return !rule.along && rule.at > left.MidX() && rule.at < right.MidX() && rule.from <= top &&
           rule.to >= right.MidY();
  });
}

std::vector<TextLine> LinesOf(const SheetDrawing& drawing) {
  std::vector<int> order;
  for (size_t i = 0; i < drawing.words.size(); ++i) {
    if (drawing.words[i].way == Way::Right) order.push_back(int(i));
  }
  const auto word = [&drawing](int index) -> const Word& { return drawing.words[size_t(index)]; };
  std::sort(order.begin(), order.end(),
            [&word](int a, int b) { return word(a).base < word(b).base; });
  std::vector<TextLine> lines;
  for (size_t i = 0; i < order.size();) {
    size_t end = i + 1;
    const double first = word(order[i]).base;
    while (end < order.size() &&
           word(order[end]).base - first <= kSameLine * word(order[end]).size) {
      ++end;
    }
    lines.push_back(
        LineOf(drawing, {order.begin() + std::ptrdiff_t(i), order.begin() + std::ptrdiff_t(end)}));
    i = end;
  }
  return lines;
}

std::vector<Phrase> TurnedPhrasesOf(const SheetDrawing& drawing) {
  std::vector<int> order;
  for (size_t i = 0; i < drawing.words.size(); ++i) {
    const Way way = drawing.words[i].way;
    if (way == Way::Up || way == Way::Down) order.push_back(int(i));
  }
  std::sort(order.begin(), order.end(), [&drawing](int a, int b) {
    const Word& one = drawing.words[size_t(a)];
    const Word& other = drawing.words[size_t(b)];
    if (one.way != other.way) return one.way < other.way;
    if (std::abs(one.base - other.base) > kSameLine * one.size) return one.base < other.base;
    return one.way == Way::Up ? one.box.bottom > other.box.bottom : one.box.top < other.box.top;
  });
  std::vector<Phrase> phrases;
  int before = -1;
  for (const int index : order) {
    const Word& word = drawing.words[size_t(index)];
    if (before >= 0 && Follows(drawing.words[size_t(before)], word)) {
      AddTo(phrases.back(), word, index);
    } else {
      phrases.push_back(NewPhrase(word, index));
    }
    before = index;
  }
  return phrases;
}

double UsualSize(const SheetDrawing& drawing) {
  std::vector<double> sizes;
  for (const Word& word : drawing.words) sizes.push_back(word.size);
  if (sizes.empty()) return 8;
  const auto middle = sizes.begin() + std::ptrdiff_t(sizes.size() / 2);
  std::nth_element(sizes.begin(), middle, sizes.end());
  return *middle;
}

}  // namespace tamo
