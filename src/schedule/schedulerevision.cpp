#include "schedule/schedulerevision.h"

#include <algorithm>

namespace tamo {
namespace {

constexpr const char* kCellNames[kScheduleCells] = {
    "number", "name", "floor", "base", "north", "east", "south", "west", "ceiling", "remarks"};

QString KeyOf(const QString& number, const QString& name) {
  return (number.isEmpty() ? name : number).toUpper();
}
QString KeyOf(const KeptRoom& room) {
  return KeyOf(room.cells.value(0), room.cells.value(1));
}
QString KeyOf(const FinishRow& row) {
  return KeyOf(row.cells[0], row.cells[1]);
}

const KeptRoom* Find(const KeptSchedule& kept, const QString& key) {
  for (const KeptRoom& room : kept.rooms) {
    if (KeyOf(room) == key) return &room;
  }
  return nullptr;
}

bool Has(const std::vector<FinishRow>& rows, const QString& key) {
  return std::any_of(rows.begin(), rows.end(),
                     [&key](const FinishRow& row) { return KeyOf(row) == key; });
}

// A sheet of the same rooms: it has at least half of the kept ones.
bool IsRevision(const KeptSchedule& kept, const std::vector<FinishRow>& rows) {
  const auto common =
      std::count_if(kept.rooms.begin(), kept.rooms.end(),
                    [&rows](const KeptRoom& room) { return Has(rows, KeyOf(room)); });
  return common > 0 && size_t(common) * 2 >= kept.rooms.size();
}

QString Shown(const QString& cell) {
  return cell.isEmpty() ? QStringLiteral("nothing") : cell;
}

void CompareCells(const KeptRoom& before, const FinishRow& now, QStringList& changes) {
  for (qsizetype i = 1; i < kScheduleCells; ++i) {
    const QString& cell = now.cells[size_t(i)];
    if (before.cells.value(i) == cell) continue;
    changes.append(QStringLiteral("%1 %2: %3 was %4, is %5.")
                       .arg(now.cells[0], now.cells[1], QLatin1String(kCellNames[i]),
                            Shown(before.cells.value(i)), Shown(cell))
                       .trimmed());
  }
}

QStringList TextsOf(const FinishRow& row) {
  return {row.cells.begin(), row.cells.end()};
}

KeptRoom Kept(const FinishRow& row, int index, const RoomPlan& plan) {
  KeptRoom kept = {{}, TextsOf(row), {}};
  for (const PlannedRoom& room : plan.rooms) {
    if (room.row != index) continue;
    kept.room = room.name;
    for (const PlannedLine& line : room.lines) kept.systems.append(line.system);
  }
  return kept;
}

}  // namespace

QStringList ChangesOf(const KeptSchedule& kept, const std::vector<FinishRow>& rows) {
  QStringList changes;
  if (!IsRevision(kept, rows)) return changes;
  for (const FinishRow& row : rows) {
    const KeptRoom* before = Find(kept, KeyOf(row));
    if (before == nullptr) {
      changes.append(QStringLiteral("%1 %2 is new.").arg(row.cells[0], row.cells[1]).trimmed());
    } else {
      CompareCells(*before, row, changes);
    }
  }
  for (const KeptRoom& room : kept.rooms) {
    if (Has(rows, KeyOf(room))) continue;
    changes.append(
        QStringLiteral("%1 %2 is gone.").arg(room.cells.value(0), room.cells.value(1)).trimmed());
  }
  return changes;
}

KeptSchedule KeptAfter(const KeptSchedule& kept, const std::vector<FinishRow>& rows,
                       const RoomPlan& plan) {
  KeptSchedule after;
  const bool revision = IsRevision(kept, rows);
  after.changes = ChangesOf(kept, rows);
  if (revision && after.changes.isEmpty()) after.changes = kept.changes;
  for (const KeptRoom& room : kept.rooms) {
    if (!revision && !Has(rows, KeyOf(room))) after.rooms.push_back(room);
  }
  for (size_t i = 0; i < rows.size(); ++i) after.rooms.push_back(Kept(rows[i], int(i), plan));
  return after;
}

}  // namespace tamo
