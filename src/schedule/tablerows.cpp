#include "schedule/tablerows.h"

#include <algorithm>
#include <cmath>

#include "schedule/headarea.h"
#include "schedule/headwords.h"

namespace tamo {
namespace {

constexpr double kCloseLines = 1.37;  // of the size: from one line of a text to its next
constexpr double kSameLine = 0.35;    // of the size

// The words of one line inside a band, indices.
struct BandLine {
  double base = 0;
  double size = 0;
  std::vector<size_t> words;
};

using Lines = std::vector<BandLine>;

// The row of a line between two with numbers: which of those, and which it may be as well.
struct Choice {
  size_t anchor = 0;
  size_t other = 0;
  bool unsure = false;
};

// Where in a row the line with its number stands.
enum class Upright { Top, Middle, Bottom };

class RowMaker {
 public:
  RowMaker(std::vector<PlacedWord>& words, const RowKey& key) : words_(words), key_(key) {}

  std::vector<RowPlace> Make(const std::vector<double>& across, double top, double bottom) {
    std::vector<std::pair<double, double>> bands;
    double above = top;
    for (const double at : across) {
      if (at <= above + 1) continue;
      if (at >= bottom) break;
      bands.push_back({above, at});
      above = at;
    }
    bands.push_back({above, bottom});
    ruled_ = RowsAreRuled(bands);
    for (const auto& [from, to] : bands) Band(from, to);
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
    return words_[index].first <= key_.column && words_[index].last >= key_.column;
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
    if (BeginsRoom(KeyText(line))) return false;
    return spans || (atKey && key_.role != ColumnRole::Name && text.size() > 3);
  }

  // The words of the heads in their own columns.
  bool IsHeadsAgain(const BandLine& line) const {
    std::vector<int> columns;
    size_t heads = 0;
    for (const size_t index : line.words) {
      const auto column = size_t(words_[index].first);
      if (column >= key_.heads.size()) continue;
      if (!key_.heads[column].contains(words_[index].word->text.toUpper())) continue;
      ++heads;
      columns.push_back(int(column));
    }
    std::sort(columns.begin(), columns.end());
    const auto different = std::unique(columns.begin(), columns.end()) - columns.begin();
    return different >= 3 && double(heads) >= 0.6 * double(line.words.size());
  }

  // A text of the key column that is a room's number.
  bool BeginsRoom(const QString& text) const {
    if (key_.role == ColumnRole::Name) return false;
    if (key_.role == ColumnRole::NumberAndName) return LooksLikeNumber(text.section(u' ', 0, 0));
    return LooksLikeNumber(text);
  }

  // Whether the rules across part all rows: there are about as many bands with text as lines that
  // begin a room.
  bool RowsAreRuled(const std::vector<std::pair<double, double>>& bands) const {
    size_t filled = 0;
    size_t rooms = 0;
    for (const auto& [from, to] : bands) {
      const Lines lines = LinesBetween(from, to);
      filled += lines.empty() ? 0 : 1;
      for (const BandLine& line : lines) {
        const bool room = key_.role == ColumnRole::Name ? ColumnsIn(line) >= 3 && InKeyAtAll(line)
                                                        : BeginsRoom(KeyText(line));
        rooms += room ? 1 : 0;
      }
    }
    return filled >= 2 &&
           double(filled) >= (key_.role == ColumnRole::Name ? 0.4 : 0.6) * double(rooms);
  }
  bool InKeyAtAll(const BandLine& line) const { return !KeyText(line).isEmpty(); }

  bool IsAnchor(const BandLine& line) const {
    const QString text = KeyText(line);
    if (text.isEmpty()) return false;
    const bool wide = ColumnsIn(line) >= 3;
    if (!ruled_) return BeginsRoom(text) || wide;
    return BeginsRoom(text) && (wide || key_.role == ColumnRole::Number);
  }

  // The line of a row's finishes between the two lines of its name.
  bool BetweenNames(const Lines& lines, size_t at) const {
    if (key_.role == ColumnRole::Number || at == 0 || at + 1 >= lines.size()) return false;
    const auto nameOnly = [this](const BandLine& line) {
      return !KeyText(line).isEmpty() && ColumnsIn(line) <= 2;
    };
    return ColumnsIn(lines[at]) >= 3 && KeyText(lines[at]).isEmpty() && nameOnly(lines[at - 1]) &&
           nameOnly(lines[at + 1]) &&
           lines[at + 1].base - lines[at - 1].base < kCloseLines * 1.5 * lines[at].size;
  }

  // FLOOR over CLOSET: a line worded as a title that stands as close as the lines of one text.
  bool NameGoesOn(const Lines& lines, size_t at) const {
    if (key_.role == ColumnRole::Number || at + 1 >= lines.size()) return false;
    return BetweenNames(lines, at + 1) ||
           lines[at + 1].base - lines[at].base < kCloseLines * lines[at].size;
  }

  void AddGroup(const BandLine& line) {
    RowPlace place = {line.base - line.size, line.base + 0.2 * line.size, true, TextOf(line), {}};
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
      if (IsAnchor(lines[i]) || BetweenNames(lines, i)) anchors.push_back(i);
    }
    if (anchors.size() < 2) return OneRow(lines, top, bottom);
    SeveralRows(lines, anchors);
  }

  // Titles over the first row of a band.
  void TakeLeadingGroups(Lines& lines) {
    if (ruled_ && key_.role != ColumnRole::Number) return;
    while (lines.size() > 1 && IsGroup(lines.front()) && !IsAnchor(lines.front()) &&
           InKey(lines.front().words.front()) && !NameGoesOn(lines, 0)) {
      AddGroup(lines.front());
      lines.erase(lines.begin());
    }
  }

  void OneRow(const Lines& lines, double top, double bottom) {
    rows_.push_back({top, bottom, false, {}, {}});
    for (const BandLine& line : lines) Give(line, int(rows_.size()) - 1, false);
  }

  void SeveralRows(const Lines& lines, const std::vector<size_t>& anchors);
  Upright UprightOf(const Lines& lines, const std::vector<size_t>& anchors) const;
  static Choice NearestRow(const Lines& lines, const std::vector<size_t>& anchors, size_t line,
                           Upright upright);
  void GiveMore(const BandLine& line, int row, bool unsure);
  void DoubtOther(const BandLine& line, int row);

  std::vector<PlacedWord>& words_;
  const RowKey key_;
  bool ruled_ = false;  // rules part the rows
  std::vector<RowPlace> rows_;
};

// Told by whether the lines between two rows stand nearer to the upper one or to the lower one.
Upright RowMaker::UprightOf(const Lines& lines, const std::vector<size_t>& anchors) const {
  int above = 0;
  int below = 0;
  for (size_t i = 0; i + 1 < anchors.size(); ++i) {
    const size_t first = anchors[i] + 1;
    const size_t last = anchors[i + 1] - 1;
    if (first > last || IsGroup(lines[first]) || IsGroup(lines[last])) continue;
    const double up = lines[first].base - lines[anchors[i]].base;
    const double down = lines[anchors[i + 1]].base - lines[last].base;
    above += up < 0.85 * down ? 1 : 0;
    below += down < 0.85 * up ? 1 : 0;
  }
  if (above > 0 && below > 0) return Upright::Middle;
  return below > 0 ? Upright::Bottom : Upright::Top;
}

// Rows without rules between them: each line with a number begins one; the others belong to the
// nearest.
void RowMaker::SeveralRows(const Lines& lines, const std::vector<size_t>& anchors) {
  std::vector<int> rowOf(lines.size(), -1);
  std::vector<size_t> others;
  for (size_t i = 0; i < lines.size(); ++i) {
    const BandLine& line = lines[i];
    if (std::binary_search(anchors.begin(), anchors.end(), i)) {
      rows_.push_back({line.base - line.size, line.base + 0.2 * line.size, false, {}, {}});
      rowOf[i] = int(rows_.size()) - 1;
      Give(line, rowOf[i], false);
    } else if (IsGroup(line) && InKey(line.words.front()) && !NameGoesOn(lines, i)) {
      AddGroup(line);
    } else {
      others.push_back(i);
    }
  }
  const Upright upright = UprightOf(lines, anchors);
  for (const size_t i : others) {
    const Choice choice = NearestRow(lines, anchors, i, upright);
    GiveMore(lines[i], rowOf[choice.anchor], choice.unsure);
    if (choice.unsure) DoubtOther(lines[i], rowOf[choice.other]);
  }
}

// The line with a number to which another line belongs.
Choice RowMaker::NearestRow(const Lines& lines, const std::vector<size_t>& anchors, size_t line,
                            Upright upright) {
  const auto next = std::upper_bound(anchors.begin(), anchors.end(), line);
  const bool hasNext = next != anchors.end();
  const bool hasBefore = next != anchors.begin();
  const double up = hasBefore ? lines[line].base - lines[*(next - 1)].base : 1e9;
  const double down = hasNext ? lines[*next].base - lines[line].base : 1e9;
  const bool nearNext =
      upright == Upright::Bottom || (upright == Upright::Middle && down < 0.95 * up);
  const bool toNext = !hasBefore || (hasNext && nearNext);
  const double chosen = toNext ? down : up;
  const bool unsure = (toNext ? up : down) < 1.15 * chosen || chosen > 2.6 * lines[line].size;
  const size_t before = hasBefore ? *(next - 1) : *next;
  const size_t after = hasNext ? *next : before;
  return {toNext ? after : before, toNext ? before : after, unsure};
}

void RowMaker::DoubtOther(const BandLine& line, int row) {
  for (const size_t index : line.words) {
    rows_[size_t(row)].doubtful.push_back(words_[index].first);
  }
}

void RowMaker::GiveMore(const BandLine& line, int row, bool unsure) {
  Give(line, row, unsure);
  RowPlace& place = rows_[size_t(row)];
  place.top = std::min(place.top, line.base - line.size);
  place.bottom = std::max(place.bottom, line.base + 0.2 * line.size);
}

}  // namespace

std::vector<RowPlace> RowsOf(std::vector<PlacedWord>& words, const std::vector<double>& across,
                             const RowKey& key, double top, double bottom) {
  return RowMaker(words, key).Make(across, top, bottom);
}

}  // namespace tamo
