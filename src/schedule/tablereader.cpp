#include "schedule/tablereader.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "schedule/headroles.h"
#include "schedule/headwords.h"
#include "schedule/mergedcells.h"
#include "schedule/rulelevels.h"
#include "schedule/tablecells.h"
#include "schedule/tablecolumns.h"
#include "schedule/tableheads.h"

namespace tamo {
namespace {

constexpr double kCrosses = 0.7;  // of the width: a rule that ends a row
constexpr size_t kFewRows = 4;
constexpr double kSamePart = 0.03;  // of the width: columns of two parts that are the same
constexpr double kWhole = 0.97;     // of the width: a rule from side to side

// The rules from side to side that cross at least a part of a table's width.
std::vector<double> AcrossOf(const SheetDrawing& drawing, const PageBox& frame, double part) {
  std::vector<double> across;
  for (const RuleLevel& level : LevelsOf(drawing.rules, true, frame.left, frame.right)) {
    if (level.covered >= part * frame.Width()) across.push_back(level.at);
  }
  return across;
}

class TableReader {
 public:
  TableReader(SheetDrawing drawing, const PageBox& frame)
      : drawing_(std::move(drawing)), frame_(frame) {
    DropStrikes(drawing_);
    lines_ = LinesOf(drawing_);
    across_ = AcrossOf(drawing_, frame_, kCrosses);
  }

  std::vector<ScheduleTable> Read() {
    heads_ = FindHeads(drawing_, lines_, across_, AcrossOf(drawing_, frame_, kWhole));
    if (!heads_.found) return {};
    columns_ = ColumnsOf(drawing_, lines_, heads_, frame_);
    if (columns_.Count() < 2) return {};
    texts_ = HeadsOverColumns(drawing_, heads_, columns_);
    words_ = PlaceWords(drawing_, lines_, columns_, heads_.bottom);
    std::vector<ScheduleTable> tables;
    for (const auto& [first, last] : Stretches()) tables.push_back(TableOf(first, last));
    return tables;
  }

  std::vector<ScheduleTable> ReadLike(const ScheduleTable& before) {
    heads_.top = heads_.bottom = frame_.top - 1;
    columns_ = ColumnsOf(drawing_, lines_, heads_, frame_);
    if (size_t(columns_.Count()) != before.columns.size()) return {};
    words_ = PlaceWords(drawing_, lines_, columns_, heads_.bottom);
    ScheduleTable table;
    table.kind = before.kind;
    table.confidence = before.confidence;
    table.columns = before.columns;
    const double wide = columns_.at.back() - columns_.at.front();
    const double wideBefore = before.columns.back().right - before.columns.front().left;
    for (int i = 0; i < columns_.Count(); ++i) {
      ScheduleColumn& column = table.columns[size_t(i)];
      const double part = (columns_.Right(i) - columns_.Left(i)) / wide;
      const double partBefore = (column.right - column.left) / wideBefore;
      column.guessed = column.guessed || std::abs(part - partBefore) > kSamePart;
      column.left = columns_.Left(i);
      column.right = columns_.Right(i);
    }
    table.box = {columns_.Left(0), frame_.top, columns_.Right(columns_.Count() - 1), frame_.bottom};
    TakeRows(table, 0, columns_.Count() - 1);
    return {std::move(table)};
  }

 private:
  using Stretch = std::pair<int, int>;  // first and last column

  // Heads that begin anew: the second half repeats the first.
  std::vector<Stretch> Stretches() const {
    std::vector<HeadTexts> own;
    std::vector<int> at;
    for (int i = 0; i < columns_.Count(); ++i) {
      if (texts_[size_t(i)].isEmpty()) continue;
      own.push_back(texts_[size_t(i)]);
      at.push_back(i);
    }
    for (size_t times = 4; times >= 2; --times) {
      const size_t length = own.size() / times;
      if (length < 3 || length * times != own.size()) continue;
      bool repeats = true;
      for (size_t i = length; i < own.size() && repeats; ++i) {
        repeats = own[i].last() == own[i - length].last();
      }
      if (!repeats) continue;
      std::vector<Stretch> stretches;
      for (size_t part = 0; part < times; ++part) {
        stretches.push_back({at[part * length], at[part * length + length - 1]});
      }
      return stretches;
    }
    return {{0, columns_.Count() - 1}};
  }

  ScheduleTable TableOf(int first, int last) {
    ScheduleTable table;
    table.title = heads_.title;
    const std::vector<HeadTexts> heads(texts_.begin() + first, texts_.begin() + last + 1);
    const std::vector<HeadRole> roles = RolesOf(heads);
    for (int i = first; i <= last; ++i) {
      const HeadRole& role = roles[size_t(i - first)];
      table.columns.push_back({Normal(heads[size_t(i - first)].join(u' ')), role.role, role.guessed,
                               columns_.Left(i), columns_.Right(i)});
    }
    table.kind = KindOf(heads, table.title, table.confidence);
    table.box = {columns_.Left(first), heads_.top, columns_.Right(last), frame_.bottom};
    TakeRows(table, first, last);
    if (table.kind == TableKind::Finish && IsMatrix(table)) table.kind = TableKind::Matrix;
    return table;
  }

  // Marks under the finishes instead of their codes.
  static bool IsMatrix(const ScheduleTable& table) {
    static const QString marks =
        QStringLiteral("\u2022\u25cf\u25cb\u25a0\u25a1\u2713\u2714\u00b7*XxoO");
    int filled = 0;
    int marked = 0;
    for (size_t i = 0; i < table.columns.size(); ++i) {
      const ColumnRole role = table.columns[i].role;
      if (role < ColumnRole::Floor || role > ColumnRole::Ceiling) continue;
      for (const ScheduleRow& row : table.rows) {
        const QString& text = row.cells[i].text;
        filled += text.isEmpty() ? 0 : 1;
        marked += text.size() == 1 && marks.contains(text) ? 1 : 0;
      }
    }
    return marked * 2 > filled || (filled == 0 && table.rows.size() >= kFewRows);
  }

  // The column whose texts begin the rows: the numbers, else the first with text in most rows.
  static RowKey KeyOf(const ScheduleTable& table) {
    for (const ColumnRole role :
         {ColumnRole::Number, ColumnRole::NumberAndName, ColumnRole::Name}) {
      if (table.ColumnOf(role) >= 0) return {table.ColumnOf(role), role, {}};
    }
    return {};
  }

  // ROOM over names alone: where hardly a text of a column of numbers and names is a number.
  static void SettleBoth(ScheduleTable& table, const std::vector<PlacedWord>& words) {
    const int both = table.ColumnOf(ColumnRole::NumberAndName);
    if (both < 0) return;
    std::map<double, const Word*> firstOfLine;
    for (const PlacedWord& placed : words) {
      if (placed.first != both) continue;
      const Word*& first = firstOfLine[placed.word->base];
      if (first == nullptr || placed.word->box.left < first->box.left) first = placed.word;
    }
    const auto numbers =
        std::count_if(firstOfLine.begin(), firstOfLine.end(),
                      [](const auto& line) { return LooksLikeNumber(line.second->text); });
    if (size_t(numbers) * 4 < firstOfLine.size()) {
      table.columns[size_t(both)].role = ColumnRole::Name;
    }
  }

  std::vector<PlacedWord> WordsIn(int first, int last) const {
    std::vector<PlacedWord> words;
    for (const PlacedWord& word : words_) {
      if (word.last < first || word.first > last) continue;
      words.push_back(word);
      words.back().first = std::max(0, word.first - first);
      words.back().last = std::min(last, word.last) - first;
    }
    return words;
  }

  void TakeRows(ScheduleTable& table, int first, int last) {
    std::vector<PlacedWord> words = WordsIn(first, last);
    SettleBoth(table, words);
    RowKey key = KeyOf(table);
    for (const ScheduleColumn& column : table.columns) {
      key.heads.push_back(column.head.toUpper().split(u' ', Qt::SkipEmptyParts));
    }
    const std::vector<RowPlace> places =
        RowsOf(words, across_, key, heads_.bottom, frame_.bottom + 2);
    TakeTurned(places, first, last, words);
    for (size_t i = 0; i < places.size(); ++i) {
      if (places[i].group) {
        table.groups.push_back({int(table.rows.size()), places[i].text});
        continue;
      }
      table.rows.push_back(
          {CellsOf(words, int(i), last - first + 1), places[i].top, places[i].bottom});
      for (const int column : places[i].doubtful) {
        table.rows.back().cells[size_t(column)].Add(Doubt::WhichRow);
      }
    }
    ShareMergedCells(table, drawing_, across_);
    DoubtHeadless(table);
  }

  // A text under no head may belong to what stands beside it.
  static void DoubtHeadless(ScheduleTable& table) {
    for (size_t i = 0; i < table.columns.size(); ++i) {
      if (!table.columns[i].head.isEmpty()) continue;
      for (ScheduleRow& row : table.rows) {
        if (row.cells[i].text.isEmpty()) continue;
        if (i > 0) row.cells[i - 1].Add(Doubt::WhichColumn);
        if (i + 1 < row.cells.size()) row.cells[i + 1].Add(Doubt::WhichColumn);
      }
    }
  }

  // Turned texts between the rows: shown where they lie, and never sure.
  void TakeTurned(const std::vector<RowPlace>& places, int first, int last,
                  std::vector<PlacedWord>& words) const {
    for (const Word& word : drawing_.words) {
      if (word.way == Way::Right || word.MidY() <= heads_.bottom) continue;
      const int column = columns_.ColumnAt(word.MidX());
      if (column < first || column > last) continue;
      for (size_t i = 0; i < places.size(); ++i) {
        if (places[i].group || word.MidY() < places[i].top || word.MidY() > places[i].bottom)
          continue;
        words.push_back({&word, column - first, column - first, int(i), {}});
        break;
      }
    }
  }

  SheetDrawing drawing_;
  const PageBox frame_;
  std::vector<TextLine> lines_;
  std::vector<double> across_;
  HeadArea heads_;
  ColumnBorders columns_;
  std::vector<HeadTexts> texts_;
  std::vector<PlacedWord> words_;
};

}  // namespace

std::vector<ScheduleTable> ReadFurtherPart(SheetDrawing drawing, const PageBox& frame,
                                           const ScheduleTable& before) {
  return TableReader(std::move(drawing), frame).ReadLike(before);
}

std::vector<ScheduleTable> ReadTables(SheetDrawing drawing, const PageBox& frame) {
  return TableReader(std::move(drawing), frame).Read();
}

}  // namespace tamo
