#include "schedule/tablerows.h"

#include <algorithm>
#include <cmath>

#include "schedule/headarea.h"
#include "schedule/headwords.h"

namespace tamo {
namespace {

constexpr double kSameLine = 0.35;  // of the size

// The words of one line inside a band, indices.
struct BandLine {
  double base = 0;
  double size = 0;
  std::vector<size_t> words;
};

using Lines = std::vector<BandLine>;

class RowMaker {
 public:
  RowMaker(std::vector<PlacedWord>& words, int key) : words_(words), key_(key) {}

  std::vector<RowPlace> Make(const std::vector<double>& across, double top, double bottom) {
    double above = top;
    for (const double at : across) {
      if (at <= above + 1) continue;
      if (at >= bottom) break;
      Band(above, at);
      above = at;
    }
    Band(above, bottom);
    return std::move(rows_);
  }

 private:
  Lines LinesBetween(double top, double bottom) const {
    std::vector<size_t> order;
    for (size_t i = 0; i < words_.size(); ++i) {
      const double y = words_[i].word->MidY();
      if (y > top && y <= bottom) order.push_back(i);
    }
    std::sort(order.begin(), order.end(),
              [this](size_t a, size_t b) { return words_[a].word->base < words_[b].word->base; });
    Lines lines;
    for (const size_t index : order) {
      const Word& word = *words_[index].word;
      if (lines.empty() || word.base - lines.back().base > kSameLine * word.size) {
        lines.push_back({word.base, word.size, {}});
      }
      lines.back().words.push_back(index);
    }
    for (BandLine& line : lines) {
      std::sort(line.words.begin(), line.words.end(), [this](size_t a, size_t b) {
        return words_[a].word->box.left < words_[b].word->box.left;
      });
    }
    return lines;
  }

  bool InKey(size_t index) const {
    return words_[index].first <= key_ && words_[index].last >= key_;
  }

  QString KeyText(const BandLine& line) const {
    QStringList parts;
    for (const size_t index : line.words) {
      if (InKey(index)) parts.append(words_[index].word->text);
    }
    return parts.join(u' ');
  }

  QString TextOf(const BandLine& line) const {
    QStringList parts;
    for (const size_t index : line.words) parts.append(words_[index].word->text);
    return parts.join(u' ');
  }

  int ColumnsIn(const BandLine& line) const {
    std::vector<int> columns;
    for (const size_t index : line.words) columns.push_back(words_[index].first);
    std::sort(columns.begin(), columns.end());
    return int(std::unique(columns.begin(), columns.end()) - columns.begin());
  }

  // A text without spaces as wide as a word's between its words: one phrase.
  bool OneText(const BandLine& line) const {
    for (size_t i = 1; i < line.words.size(); ++i) {
      const Word& a = *words_[line.words[i - 1]].word;
      const Word& b = *words_[line.words[i]].word;
      if (b.box.left - a.box.right > std::max(a.size, b.size) + a.spacing + b.spacing) return false;
    }
    return true;
  }

  bool IsGroup(const BandLine& line) const {
    if (!OneText(line)) return false;
    const QString text = TextOf(line);
    if (LooksLikeNumber(text)) return false;
    if (LooksLikeGroup(text)) return true;
    const bool atKey = InKey(line.words.front());
    const bool spans = words_[line.words.front()].last > words_[line.words.front()].first;
    return spans || (atKey && ColumnsIn(line) >= 1 && text.size() > 3);
  }

  bool IsHeadsAgain(const BandLine& line) const {
    int heads = 0;
    for (const size_t index : line.words) {
      if (MeaningOfText(words_[index].word->text) != kNoMeaning) ++heads;
    }
    return heads >= 3 && heads >= 0.7 * double(line.words.size());
  }

  bool IsAnchor(const BandLine& line) const {
    const QString text = KeyText(line);
    if (text.isEmpty()) return false;
    return LooksLikeNumber(text) || ColumnsIn(line) >= 3;
  }

  void AddGroup(const BandLine& line) {
    RowPlace place = {line.base - line.size, line.base + 0.2 * line.size, true, TextOf(line)};
    rows_.push_back(place);
  }

  void Give(const BandLine& line, int row, bool unsure) {
    for (const size_t index : line.words) {
      words_[index].row = row;
      if (unsure) words_[index].doubts.push_back(Doubt::WhichRow);
    }
  }

  void Band(double top, double bottom) {
    Lines lines = LinesBetween(top, bottom);
    if (lines.empty()) return;
    const bool heads = std::any_of(lines.begin(), lines.end(),
                                   [this](const BandLine& line) { return IsHeadsAgain(line); });
    if (heads && lines.size() <= 4) return;
    if (lines.size() == 1 && IsGroup(lines.front())) return AddGroup(lines.front());
    TakeLeadingGroups(lines);
    std::vector<size_t> anchors;
    for (size_t i = 0; i < lines.size(); ++i) {
      if (IsAnchor(lines[i])) anchors.push_back(i);
    }
    if (anchors.size() < 2) return OneRow(lines, top, bottom);
    SeveralRows(lines, anchors);
  }

  // Titles over the first row of a band.
  void TakeLeadingGroups(Lines& lines) {
    while (lines.size() > 1 && IsGroup(lines.front()) && !IsAnchor(lines.front()) &&
           InKey(lines.front().words.front())) {
      AddGroup(lines.front());
      lines.erase(lines.begin());
    }
  }

  void OneRow(const Lines& lines, double top, double bottom) {
    rows_.push_back({top, bottom, false, {}});
    for (const BandLine& line : lines) Give(line, int(rows_.size()) - 1, false);
  }

  void SeveralRows(const Lines& lines, const std::vector<size_t>& anchors);
  bool Centred(const Lines& lines, const std::vector<size_t>& anchors) const;
  static size_t NearestRow(const Lines& lines, const std::vector<size_t>& anchors, size_t line,
                           bool centred, bool& unsure);
  void GiveMore(const BandLine& line, int row, bool unsure);

  std::vector<PlacedWord>& words_;
  const int key_;
  std::vector<RowPlace> rows_;
};

// Whether lines between two rows stand nearer to the lower one as well as to the upper one: the
// texts of a row are centred on its middle.
bool RowMaker::Centred(const Lines& lines, const std::vector<size_t>& anchors) const {
  bool above = false;
  bool below = false;
  for (size_t i = 0; i + 1 < anchors.size(); ++i) {
    const size_t line = anchors[i] + 1;
    if (anchors[i + 1] != line + 1 || IsGroup(lines[line])) continue;
    const double up = lines[line].base - lines[anchors[i]].base;
    const double down = lines[anchors[i + 1]].base - lines[line].base;
    above = above || up < 0.85 * down;
    below = below || down < 0.85 * up;
  }
  return above && below;
}

// Rows without rules between them: each line with a number begins one; the others belong to the
// nearest.
void RowMaker::SeveralRows(const Lines& lines, const std::vector<size_t>& anchors) {
  std::vector<int> rowOf(lines.size(), -1);
  std::vector<size_t> others;
  for (size_t i = 0; i < lines.size(); ++i) {
    const BandLine& line = lines[i];
    if (std::binary_search(anchors.begin(), anchors.end(), i)) {
      rows_.push_back({line.base - line.size, line.base + 0.2 * line.size, false, {}});
      rowOf[i] = int(rows_.size()) - 1;
      Give(line, rowOf[i], false);
    } else if (IsGroup(line) && InKey(line.words.front())) {
      AddGroup(line);
    } else {
      others.push_back(i);
    }
  }
  const bool centred = Centred(lines, anchors);
  for (const size_t i : others) {
    bool unsure = false;
    const size_t anchor = NearestRow(lines, anchors, i, centred, unsure);
    GiveMore(lines[i], rowOf[anchor], unsure);
  }
}

// The line with a number to which another line belongs.
size_t RowMaker::NearestRow(const Lines& lines, const std::vector<size_t>& anchors, size_t line,
                            bool centred, bool& unsure) {
  const auto next = std::upper_bound(anchors.begin(), anchors.end(), line);
  const bool hasNext = next != anchors.end();
  const bool hasBefore = next != anchors.begin();
  const double up = hasBefore ? lines[line].base - lines[*(next - 1)].base : 1e9;
  const double down = hasNext ? lines[*next].base - lines[line].base : 1e9;
  const bool toNext = !hasBefore || (hasNext && centred && down < 0.95 * up);
  const double chosen = toNext ? down : up;
  unsure = (toNext ? up : down) < 1.15 * chosen || chosen > 2.6 * lines[line].size;
  return toNext ? *next : *(next - 1);
}

void RowMaker::GiveMore(const BandLine& line, int row, bool unsure) {
  Give(line, row, unsure);
  RowPlace& place = rows_[size_t(row)];
  place.top = std::min(place.top, line.base - line.size);
  place.bottom = std::max(place.bottom, line.base + 0.2 * line.size);
}

}  // namespace

std::vector<RowPlace> RowsOf(std::vector<PlacedWord>& words, const std::vector<double>& across,
                             int key, double top, double bottom) {
  return RowMaker(words, key).Make(across, top, bottom);
}

}  // namespace tamo
