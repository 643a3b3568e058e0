#include "schedule/plannedrooms.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>

#include "common/numbers.h"
#include "common/paths.h"
#include "schedule/finishcodes.h"

namespace tamo {
namespace {

constexpr size_t kNumber = 0, kName = 1, kFloor = 2, kBase = 3, kNorth = 4, kWest = 7, kCeiling = 8;
constexpr char kSideLetters[] = "NESW";

// What the field for a room's name throws away as it is typed.
QString Typable(const QString& name) {
  QString typed;
  for (const QChar letter : name) {
    typed += QStringLiteral("\\,\"/").contains(letter) ? QChar(u' ') : letter;
  }
  return typed.simplified();
}

class Planner {
 public:
  Planner(const FinishKey& key, const FinishAreas& areas) : key_(key), areas_(areas) {}

  void Take(const FinishRow& row, int index) {
    const QString whole = (row.cells[kNumber] + u' ' + row.cells[kName]).simplified();
    if (whole.isEmpty()) return;
    PlannedRoom room;
    room.row = index;
    room.name = NameFor(whole);
    if (room.name.isEmpty()) return;
    room.height = HeightInFeet(row.height);
    TakeFinishes(room, row, kFloor, areas_.floor);
    TakeFinishes(room, row, kBase, areas_.base);
    TakeWalls(room, row);
    TakeFinishes(room, row, kCeiling, areas_.ceiling);
    plan_.rooms.push_back(std::move(room));
  }
  RoomPlan Plan() {
    plan_.leftOut.removeDuplicates();
    return std::move(plan_);
  }

 private:
  QString NameFor(const QString& whole) {
    QString name = Typable(whole);
    if (!NameRefusal(name).isEmpty()) {
      plan_.told.append(QStringLiteral("%1 can't be a room's name and is passed over.").arg(whole));
      return {};
    }
    const QString first = name;
    for (int again = 2; names_.contains(name, Qt::CaseInsensitive); ++again) {
      name = QStringLiteral("%1 (%2)").arg(first).arg(again);
    }
    names_.append(name);
    if (name != whole) plan_.told.append(QStringLiteral("%1 becomes %2.").arg(whole, name));
    return name;
  }

  static bool Has(const PlannedRoom& room, const QString& system) {
    return std::any_of(room.lines.begin(), room.lines.end(), [&system](const PlannedLine& line) {
      return line.system.compare(system, Qt::CaseInsensitive) == 0;
    });
  }

  // The systems of a cell's codes; codes without one are noted.
  QStringList SystemsOf(const FinishRow& row, size_t cell) {
    QStringList systems;
    for (const QString& code : FinishesOf(row, cell)) {
      const QString system = SystemOfCode(key_, code);
      if (system.isEmpty()) {
        plan_.leftOut.append(code);
      } else {
        systems.append(system);
      }
    }
    return systems;
  }

  void TakeFinishes(PlannedRoom& room, const FinishRow& row, size_t cell, const QString& area) {
    for (const QString& system : SystemsOf(row, cell)) {
      if (!Has(room, system)) room.lines.push_back({system, area});
    }
  }

  // Four equal walls are one line; else each system names the sides that have it.
  void TakeWalls(PlannedRoom& room, const FinishRow& row) {
    std::array<QStringList, 4> sides;
    QStringList systems;
    for (size_t side = 0; side < sides.size(); ++side) {
      sides[side] = SystemsOf(row, kNorth + side);
      systems += sides[side];
    }
    systems.removeDuplicates();
    for (const QString& system : systems) {
      QString letters;
      for (size_t side = 0; side < sides.size(); ++side) {
        if (sides[side].contains(system)) letters += QLatin1Char(kSideLetters[side]);
      }
      const QString area = letters.size() == 4 ? areas_.walls : areas_.walls + u' ' + letters;
      if (!Has(room, system)) room.lines.push_back({system, area});
    }
  }

  const FinishKey& key_;
  const FinishAreas& areas_;
  RoomPlan plan_;
  QStringList names_;
};

static_assert(kWest == kNorth + 3);

}  // namespace

int RoomPlan::Lines() const {
  int lines = 0;
  for (const PlannedRoom& room : rooms) lines += int(room.lines.size());
  return lines;
}

RoomPlan PlanRooms(const std::vector<FinishRow>& rows, const FinishKey& key,
                   const FinishAreas& areas) {
  Planner planner(key, areas);
  for (size_t i = 0; i < rows.size(); ++i) planner.Take(rows[i], int(i));
  return planner.Plan();
}

QString HeightInFeet(const QString& height) {
  static const QRegularExpression form(QStringLiteral(
      R"(^(\d+)\s*['\x{2019}\x{2032}]\s*-?\s*(?:(\d+)(?:\s+(\d+)/(\d+))?\s*(?:["\x{201d}\x{2033}]|''))?)"));
  const QRegularExpressionMatch match = form.match(height.trimmed());
  if (!match.hasMatch()) return {};
  double inches = match.captured(2).toDouble();
  const double parts = match.captured(4).toDouble();
  if (parts > 0) inches += match.captured(3).toDouble() / parts;
  return NumberText(match.captured(1).toDouble() + inches / 12);
}

}  // namespace tamo
