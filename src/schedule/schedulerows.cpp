#include "schedule/schedulerows.h"

#include <algorithm>

#include "schedule/headwords.h"

namespace tamo {
namespace {

enum Cell { kNumber, kName, kFloor, kBase, kNorth, kEast, kSouth, kWest, kCeiling, kRemarks };

void Append(QString& text, const QString& more) {
  if (more.isEmpty()) return;
  if (!text.isEmpty()) text += u' ';
  text += more;
}

void Mark(std::vector<Doubt>& doubts, const std::vector<Doubt>& more) {
  for (const Doubt doubt : more) {
    if (std::find(doubts.begin(), doubts.end(), doubt) == doubts.end()) doubts.push_back(doubt);
  }
}

// Resolves the ditto marks of a column: what stands above it, in the part before, too.
class Dittos {
 public:
  explicit Dittos(size_t columns) : above_(columns), any_(columns, false) {}

  void Resolve(size_t column, ScheduleCell& cell) {
    if (column >= above_.size()) return;
    if (!IsDitto(cell.text)) {
      above_[column] = cell;
      any_[column] = true;
      return;
    }
    if (!any_[column] || above_[column].text.isEmpty()) {
      cell.Add(Doubt::NothingAbove);
      if (any_[column]) cell.text.clear();
      return;
    }
    cell.text = above_[column].text;
    for (const Doubt doubt : above_[column].doubts) cell.Add(doubt);
  }

 private:
  std::vector<ScheduleCell> above_;
  std::vector<bool> any_;
};

// "101 LOBBY" in one column.
void TakeBoth(const ScheduleCell& cell, FinishRow& row) {
  const qsizetype blank = cell.text.indexOf(u' ');
  const QString first = blank < 0 ? cell.text : cell.text.left(blank);
  const bool number = LooksLikeNumber(first);
  row.cells[kNumber] = number ? first : QString();
  row.cells[kName] = number ? (blank < 0 ? QString() : cell.text.mid(blank + 1)) : cell.text;
  Mark(row.doubts[kNumber], cell.doubts);
  Mark(row.doubts[kName], cell.doubts);
}

void TakeCell(const ScheduleColumn& column, const ScheduleCell& cell, FinishRow& row) {
  if (column.role == ColumnRole::NumberAndName) return TakeBoth(cell, row);
  if (column.role == ColumnRole::Height) {
    Append(row.height, cell.text);
    Mark(row.doubts[kCeiling], cell.doubts);
    return;
  }
  for (const int at : CellsFor(column.role)) {
    Append(row.cells[size_t(at)], cell.text);
    Mark(row.doubts[size_t(at)], cell.doubts);
    if (column.guessed) Mark(row.doubts[size_t(at)], {Doubt::GuessedHead});
  }
}

bool HasNumbers(const ScheduleTable& table) {
  return table.ColumnOf(ColumnRole::Number) >= 0 || table.ColumnOf(ColumnRole::NumberAndName) >= 0;
}

FinishRow RowOf(const ScheduleTable& table, const ScheduleRow& from, Dittos& dittos) {
  FinishRow row;
  for (size_t i = 0; i < table.columns.size() && i < from.cells.size(); ++i) {
    ScheduleCell cell = from.cells[i];
    dittos.Resolve(i, cell);
    TakeCell(table.columns[i], cell, row);
  }
  Append(row.cells[kCeiling], row.height);
  const bool names = table.ColumnOf(ColumnRole::Name) >= 0;
  if ((HasNumbers(table) || !names) && row.cells[kNumber].isEmpty()) {
    Mark(row.doubts[kNumber], {Doubt::NoNumber});
  }
  if (!HasNumbers(table) && !names) Mark(row.doubts[kName], {Doubt::NoNumber});
  return row;
}

}  // namespace

std::vector<int> CellsFor(ColumnRole role) {
  switch (role) {
    case ColumnRole::Number:
      return {kNumber};
    case ColumnRole::Name:
      return {kName};
    case ColumnRole::NumberAndName:
      return {kNumber, kName};
    case ColumnRole::Floor:
      return {kFloor};
    case ColumnRole::Base:
      return {kBase};
    case ColumnRole::North:
      return {kNorth};
    case ColumnRole::East:
      return {kEast};
    case ColumnRole::South:
      return {kSouth};
    case ColumnRole::West:
      return {kWest};
    case ColumnRole::Walls:
      return {kNorth, kEast, kSouth, kWest};
    case ColumnRole::NorthSouth:
      return {kNorth, kSouth};
    case ColumnRole::EastWest:
      return {kEast, kWest};
    case ColumnRole::Ceiling:
    case ColumnRole::Height:
      return {kCeiling};
    case ColumnRole::Remarks:
      return {kRemarks};
    default:
      return {};
  }
}

int ColumnUnder(const ScheduleTable& table, size_t row, PagePoint at) {
  const std::vector<ScheduleCell>& cells = table.rows[row].cells;
  for (size_t i = 0; i < cells.size(); ++i) {
    const PageBox& box = cells[i].box;
    if (cells[i].text.isEmpty()) continue;
    if (at.x >= box.left - 1 && at.x <= box.right + 1 && at.y >= box.top - 1 &&
        at.y <= box.bottom + 1) {
      return int(i);
    }
  }
  return -1;
}

bool IsDitto(const QString& text) {
  static const QStringList marks = {QStringLiteral("\""),           QStringLiteral("\u201d"),
                                    QStringLiteral("\u201c"),       QStringLiteral("\u2033"),
                                    QStringLiteral("\u3003"),       QStringLiteral("''"),
                                    QStringLiteral("\u2019\u2019"), QStringLiteral("DITTO"),
                                    QStringLiteral("-DO-"),         QStringLiteral("DO.")};
  return marks.contains(text.toUpper());
}

QString FinishRow::Text() const {
  QStringList texts;
  for (const QString& cell : cells) texts.append(cell);
  return texts.join(u'\t');
}

std::vector<FinishRow> FinishRowsOf(const std::vector<ScheduleTable>& parts) {
  std::vector<FinishRow> rows;
  Dittos dittos(parts.empty() ? 0 : parts.front().columns.size());
  for (size_t part = 0; part < parts.size(); ++part) {
    if (parts[part].columns.size() != parts.front().columns.size()) {
      dittos = Dittos(parts[part].columns.size());
    }
    for (size_t i = 0; i < parts[part].rows.size(); ++i) {
      FinishRow row = RowOf(parts[part], parts[part].rows[i], dittos);
      row.part = int(part);
      row.row = int(i);
      rows.push_back(std::move(row));
    }
  }
  return rows;
}

}  // namespace tamo
