#include "schedule/findtables.h"

#include <algorithm>
#include <cmath>

#include "schedule/headwords.h"
#include "schedule/rulelevels.h"
#include "schedule/tableamount.h"
#include "schedule/tableframes.h"
#include "schedule/tablereader.h"

namespace tamo {
namespace {

constexpr int kFewestHeads = 3;
constexpr double kHeadsAbove = 70;   // points over the first rule in which heads may stand
constexpr double kKeyWidth = 60;     // points from a table's edge in which its numbers begin
constexpr double kTitleAbove = 40;   // points over a table in which its title stands
constexpr double kThrough = 0.45;    // of a frame: a rule that goes through it
constexpr double kMuchLarger = 2.5;  // times the area: what holds a table and more than it

struct Found {
  PageBox frame;
  std::vector<ScheduleTable> tables;
};

double Area(const PageBox& box) {
  return box.Empty() ? 0 : box.Width() * box.Height();
}

int ColumnsWithHeads(const Found& found) {
  int columns = 0;
  for (const ScheduleTable& table : found.tables) {
    for (const ScheduleColumn& column : table.columns) columns += column.head.isEmpty() ? 0 : 1;
  }
  return columns;
}

class Search {
 public:
  explicit Search(const SheetDrawing& drawing) : drawing_(drawing) {
    for (const Word& word : drawing.words) {
      if (MeaningOfText(word.text) != kNoMeaning) headWords_.push_back(&word);
    }
  }

  std::vector<ScheduleTable> Run() {
    if (int(headWords_.size()) < kFewestHeads) return {};
    for (const PageBox& frame : RuledFrames(drawing_)) Try(frame, true);
    std::vector<PageBox> taken;
    for (const Found& found : found_) taken.push_back(Grown(found.frame, 2));
    for (const PageBox& frame : UnruledFrames(drawing_, taken)) Try(frame, false);
    return InOrder();
  }

 private:
  int HeadWordsIn(const PageBox& box) const {
    return int(std::count_if(headWords_.begin(), headWords_.end(), [&box](const Word* word) {
      return Holds(box, word->MidX(), word->MidY());
    }));
  }

  void Try(const PageBox& frame, bool ruled) {
    PageBox held = frame;
    held.top -= kHeadsAbove;
    if (HeadWordsIn(held) < kFewestHeads) return;
    Found found = Read(ruled ? WithRowsBelow(frame) : frame);
    if (found.tables.empty()) found = Read(WithHeadsAbove(frame));
    if (found.tables.empty() || !Headed(found) || (ruled && !Divided(found))) return;
    Take(std::move(found));
  }

  // Heads stand over nearly all columns; else words of a drawing were taken for heads.
  static bool Headed(const Found& found) {
    size_t columns = 0;
    size_t guessed = 0;
    for (const ScheduleTable& table : found.tables) {
      columns += table.columns.size();
      for (const ScheduleColumn& column : table.columns) guessed += column.guessed ? 1 : 0;
    }
    return size_t(ColumnsWithHeads(found)) * 4 >= columns * 3 && guessed * 2 <= columns;
  }

  // A frame whose rows or columns are ruled inside; else it is one around a drawing.
  bool Divided(const Found& found) const {
    const SheetDrawing inside = Inside(drawing_, found.frame);
    const PageBox& frame = found.frame;
    const auto rules = [&](bool along, double from, double to) {
      const auto levels = LevelsOf(inside.rules, along, from, to);
      return size_t(std::count_if(levels.begin(), levels.end(), [&](const RuleLevel& level) {
        return level.covered >= kThrough * (to - from);
      }));
    };
    return rules(true, frame.left, frame.right) > 2 + found.tables.front().rows.size() / 8 ||
           rules(false, frame.top, frame.bottom) > 4;
  }

  // Rows without a rule below them: lines that begin with a number, close below the last rule.
  PageBox WithRowsBelow(PageBox frame) const {
    for (bool more = true; more;) {
      more = false;
      for (const Word& word : drawing_.words) {
        const double below = word.base - frame.bottom;
        if (word.way != Way::Right || below <= 0.5 * word.size || below > 2.2 * word.size) continue;
        if (word.MidX() < frame.left || word.box.left > frame.left + kKeyWidth) continue;
        if (!LooksLikeNumber(word.text) || WordsBeside(word, frame) < 3) continue;
        frame.bottom = word.base + 0.4 * word.size;
        more = true;
        break;
      }
    }
    return frame;
  }
  int WordsBeside(const Word& word, const PageBox& frame) const {
    return int(std::count_if(drawing_.words.begin(), drawing_.words.end(), [&](const Word& other) {
      return other.way == Way::Right && std::abs(other.base - word.base) < 0.3 * word.size &&
             other.box.left > word.box.right + word.size && other.MidX() < frame.right;
    }));
  }

  // Heads without a rule over them: the lines next over the first rule.
  PageBox WithHeadsAbove(PageBox frame) const {
    double top = frame.top;
    for (const Word* word : headWords_) {
      if (word->MidX() < frame.left || word->MidX() > frame.right) continue;
      if (word->MidY() >= frame.top || word->MidY() < frame.top - kHeadsAbove) continue;
      top = std::min(top, word->box.top - 2);
    }
    frame.top = top;
    return frame;
  }

  Found Read(const PageBox& frame) const {
    Found found = {frame, ReadTables(Inside(drawing_, Grown(frame, 2)), frame)};
    auto& tables = found.tables;
    tables.erase(std::remove_if(tables.begin(), tables.end(),
                                [](const ScheduleTable& table) {
                                  return table.kind == TableKind::Unknown || table.rows.empty();
                                }),
                 tables.end());
    return found;
  }

  // A smaller frame is the better one, but for one that holds only part of the table.
  void Take(Found found) {
    std::vector<size_t> within;
    for (size_t i = 0; i < found_.size(); ++i) {
      const double shared = Area(found_[i].frame.Cut(found.frame));
      if (shared > 0.3 * std::min(Area(found_[i].frame), Area(found.frame))) within.push_back(i);
    }
    if (within.empty()) return found_.push_back(std::move(found));
    if (within.size() > 1) return;
    Found& other = found_[within.front()];
    const bool larger = Area(found.frame) < kMuchLarger * Area(other.frame);
    const bool more = ColumnsWithHeads(found) > ColumnsWithHeads(other);
    if (larger && (more || HoldsMore(found.tables, other.tables))) other = std::move(found);
  }

  // The line over a table that names it.
  void Name(ScheduleTable& table) const {
    if (!table.title.isEmpty()) return;
    double best = 0;
    for (const Word& word : drawing_.words) {
      const double gap = table.box.top - word.base;
      if (word.way != Way::Right || gap < -1 || gap > kTitleAbove) continue;
      if (word.MidX() < table.box.left - 5 || word.MidX() > table.box.right) continue;
      if (word.size > best) best = word.size;
    }
    QStringList title;
    for (const Word& word : drawing_.words) {
      const double gap = table.box.top - word.base;
      if (word.way != Way::Right || gap < -1 || gap > kTitleAbove || word.size < 0.9 * best)
        continue;
      if (word.MidX() < table.box.left - 5 || word.MidX() > table.box.right) continue;
      title.append(word.text);
    }
    if (title.size() <= 12) table.title = title.join(u' ');
  }

  std::vector<ScheduleTable> InOrder() {
    std::vector<ScheduleTable> tables;
    std::stable_sort(found_.begin(), found_.end(),
                     [](const Found& a, const Found& b) { return a.frame.top < b.frame.top; });
    // Frames that begin at nearly the same height read from left to right.
    for (auto first = found_.begin(); first != found_.end();) {
      auto last = first + 1;
      while (last != found_.end() && last->frame.top - first->frame.top < 30) ++last;
      std::stable_sort(first, last,
                       [](const Found& a, const Found& b) { return a.frame.left < b.frame.left; });
      first = last;
    }
    for (Found& found : found_) {
      for (ScheduleTable& table : found.tables) {
        Name(table);
        tables.push_back(std::move(table));
      }
    }
    return tables;
  }

  const SheetDrawing& drawing_;
  std::vector<const Word*> headWords_;
  std::vector<Found> found_;
};

}  // namespace

std::vector<ScheduleTable> TablesIn(const SheetDrawing& drawing) {
  return Search(drawing).Run();
}

}  // namespace tamo
