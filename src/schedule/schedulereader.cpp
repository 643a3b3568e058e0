#include "schedule/schedulereader.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "schedule/findtables.h"
#include "schedule/readingproblem.h"
#include "schedule/sheetdrawing.h"
#include "schedule/tableamount.h"
#include "schedule/tablereader.h"

namespace tamo {
namespace {

constexpr double kEdge = 3;      // points around a drawn box that still belong to it
constexpr double kTooSmall = 8;  // points by which a drawn box may miss a rule
constexpr double kMost = 0.7;    // of a side, that such a rule is long
constexpr double kAround = 40;   // and those that are looked at, for what the box cuts through

void Back(ScheduleTable& table, Way way, PageSize size) {
  if (way == Way::Right) return;
  table.box = TurnedBack(table.box, way, size);
  for (ScheduleRow& row : table.rows) {
    for (ScheduleCell& cell : row.cells) {
      if (!cell.text.isEmpty()) cell.box = TurnedBack(cell.box, way, size);
    }
  }
}

// The reading directions of a drawing in which a table may stand, the most frequent first.
std::vector<Way> WaysOf(const SheetDrawing& drawing) {
  std::map<Way, size_t> counts;
  for (const Word& word : drawing.words) ++counts[word.way];
  std::vector<Way> ways;
  for (const auto& [way, count] : counts) {
    if (count >= 8 && count * 10 >= drawing.words.size()) ways.push_back(way);
  }
  std::sort(ways.begin(), ways.end(), [&counts](Way a, Way b) { return counts[a] > counts[b]; });
  return ways;
}

// Whether a box lies over one of the tables: its turned heads seen from the side.
bool Overlaps(const std::vector<ScheduleTable>& tables, const PageBox& box) {
  return std::any_of(tables.begin(), tables.end(),
                     [&box](const ScheduleTable& table) { return !table.box.Cut(box).Empty(); });
}

std::vector<ScheduleTable> TablesOfAllWays(const SheetDrawing& drawing) {
  std::vector<ScheduleTable> tables;
  for (const Way way : WaysOf(drawing)) {
    for (ScheduleTable& table : TablesIn(Turned(drawing, way))) {
      Back(table, way, drawing.size);
      if (!Overlaps(tables, table.box)) tables.push_back(std::move(table));
    }
  }
  return tables;
}

// All that a drawn box holds as one table, for tables without ruling.
std::vector<ScheduleTable> WholeBox(const SheetDrawing& drawing, const PageBox& box,
                                    const ScheduleTable* before) {
  const std::vector<Way> ways = WaysOf(drawing);
  const Way way = ways.empty() ? Way::Right : ways.front();
  const PageBox turned = TurnedBox(box, way, drawing.size);
  std::vector<ScheduleTable> tables = ReadTables(Turned(drawing, way), turned);
  if (tables.empty() && before != nullptr) {
    tables = ReadFurtherPart(Turned(drawing, way), turned, *before);
  }
  for (ScheduleTable& table : tables) Back(table, way, drawing.size);
  return tables;
}

size_t KnownColumns(const std::vector<ScheduleTable>& tables) {
  size_t columns = 0;
  for (const ScheduleTable& table : tables) {
    for (const ScheduleColumn& column : table.columns)
      columns += column.role == ColumnRole::Other || column.guessed ? 0 : 1;
  }
  return columns;
}

// The tables in a drawn box; the whole box as one where that has more of a room's columns.
std::vector<ScheduleTable> TablesInBox(const SheetDrawing& drawing, const PageBox& box,
                                       const ScheduleTable* before) {
  std::vector<ScheduleTable> tables = TablesOfAllWays(drawing);
  if (tables.size() > 1) return tables;
  std::vector<ScheduleTable> whole = WholeBox(drawing, box, before);
  if (tables.empty()) return whole;
  const bool same = whole.size() == 1 && whole[0].kind == tables[0].kind;
  const bool better = same && whole[0].rows.size() >= tables[0].rows.size() &&
                      KnownColumns(whole) > KnownColumns(tables);
  return better || (same && HoldsMore(whole, tables)) ? whole : tables;
}

bool SameHeads(const ScheduleTable& a, const ScheduleTable& b) {
  if (a.columns.size() != b.columns.size()) return false;
  for (size_t i = 0; i < a.columns.size(); ++i) {
    if (a.columns[i].role != b.columns[i].role) return false;
  }
  return true;
}

void KeepFinishes(std::vector<ScheduleTable>& tables) {
  tables.erase(
      std::remove_if(tables.begin(), tables.end(),
                     [](const ScheduleTable& table) { return table.kind != TableKind::Finish; }),
      tables.end());
}

// A box drawn a little too small: out to the rule beside each of its sides.
PageBox OutToRules(const PageBox& box, const SheetDrawing& sheet) {
  PageBox out = box;
  for (const Rule& rule : sheet.rules) {
    const double from = std::max(rule.from, rule.along ? box.left : box.top);
    const double to = std::min(rule.to, rule.along ? box.right : box.bottom);
    if (to - from < kMost * (rule.along ? box.Width() : box.Height())) continue;
    double& low = rule.along ? out.top : out.left;
    double& high = rule.along ? out.bottom : out.right;
    const double boxLow = rule.along ? box.top : box.left;
    const double boxHigh = rule.along ? box.bottom : box.right;
    if (rule.at < boxLow && rule.at >= boxLow - kTooSmall) low = std::min(low, rule.at);
    if (rule.at > boxHigh && rule.at <= boxHigh + kTooSmall) high = std::max(high, rule.at);
  }
  return out;
}

ScheduleReading Refused(const QString& why) {
  return {why, {}};
}

}  // namespace

std::vector<ScheduleTable> FindTables(const PageContent& page) {
  const PageBox whole = {0, 0, page.size.width, page.size.height};
  if (!WhyUnreadable(page, whole, false).isEmpty()) return {};
  return TablesOfAllWays(DrawingOf(page));
}

ScheduleReading ReadSchedule(const PageContent& page, const std::optional<PageBox>& box,
                             const ScheduleTable* before) {
  const PageBox whole = {0, 0, page.size.width, page.size.height};
  PageBox area = box.has_value() ? *box : whole;
  const QString unreadable = WhyUnreadable(page, area, box.has_value());
  if (!unreadable.isEmpty()) return Refused(unreadable);
  const SheetDrawing sheet =
      box.has_value() ? DrawingOf(Near(page, Grown(area, kAround))) : DrawingOf(page);
  if (box.has_value()) area = OutToRules(area, sheet);
  const SheetDrawing drawing = box.has_value() ? Inside(sheet, Grown(area, kEdge)) : sheet;
  std::vector<ScheduleTable> tables =
      box.has_value() ? TablesInBox(drawing, area, before) : TablesOfAllWays(drawing);
  const QString wrong = WhyNoSchedule(tables, box.has_value());
  if (!wrong.isEmpty()) return Refused(wrong);
  KeepFinishes(tables);
  const auto different = std::find_if(
      tables.begin() + 1, tables.end(),
      [&tables](const ScheduleTable& table) { return !SameHeads(table, tables.front()); });
  if (different != tables.end()) return Refused(TwoTables(*different));
  if (box.has_value()) {
    const QString cut = WhyCut(sheet, area, tables);
    if (!cut.isEmpty()) return Refused(cut);
  }
  return {{}, std::move(tables)};
}

}  // namespace tamo
