#include "reports/schedulecheck.h"

#include <algorithm>

#include "records/keptschedule.h"
#include "records/roomline.h"
#include "reports/takeoffwalk.h"

namespace tamo {
namespace {

struct SheetLine {
  QString system;
  QString area;
  QString quantity;
};
struct RoomSheet {
  QString name;
  std::vector<SheetLine> lines;
  bool takenOff = false;  // at least one line has a quantity
};

class RoomCollector : public TakeoffVisitor {
 public:
  void BeginSheet(SheetKind kind, const QString& name) override {
    if (kind == SheetKind::Room) rooms.push_back({name, {}, false});
  }
  void Line(SheetKind kind, QStringView text) override {
    if (kind != SheetKind::Room || text.trimmed().isEmpty()) return;
    const RoomLine line(text.toString());
    RoomSheet& room = rooms.back();
    room.lines.push_back({line.System(), line.FinishArea(), line.QuantityText()});
    room.takenOff = room.takenOff || line.Quantity() != 0;
  }

  std::vector<RoomSheet> rooms;
};

bool Same(const QString& a, const QString& b) {
  return a.compare(b, Qt::CaseInsensitive) == 0;
}

class Checker {
 public:
  Checker(const KeptSchedule& schedule, const std::vector<RoomSheet>& rooms, TableSink* table)
      : schedule_(schedule), rooms_(rooms), table_(table) {}

  Report Make() {
    Say(QStringLiteral("Schedule Check"));
    Begin(QStringLiteral("Rooms of the schedule not taken off"));
    for (const KeptRoom& kept : schedule_.rooms) CheckRoom(kept);
    End();
    Begin(QStringLiteral("Takeoff that the schedule does not name"));
    for (const RoomSheet& room : rooms_) CheckFinishes(room);
    End();
    Begin(QStringLiteral("Changes of the last revision"));
    for (const QString& change : schedule_.changes) Found(change);
    End();
    return std::move(report_);
  }

 private:
  void Say(const QString& line) { report_.lines += line; }
  void Begin(const QString& head) {
    Say(QString());
    Say(head);
    head_ = head;
    found_ = false;
  }
  void Found(const QString& text) {
    Say(QStringLiteral("  ") + text);
    if (table_ != nullptr) table_->Add({head_, text});
    found_ = true;
  }
  void End() {
    if (!found_) Say(QStringLiteral("  none"));
  }

  void CheckRoom(const KeptRoom& kept) {
    const QString name = (kept.cells.value(0) + u' ' + kept.cells.value(1)).trimmed();
    const auto room = std::find_if(rooms_.begin(), rooms_.end(), [&kept](const RoomSheet& one) {
      return Same(one.name, kept.room);
    });
    if (kept.room.isEmpty() || room == rooms_.end()) {
      Found(name + QStringLiteral(" - no room of the project"));
    } else if (!room->takenOff) {
      Found(name);
    }
  }

  void CheckFinishes(const RoomSheet& room) {
    const auto kept =
        std::find_if(schedule_.rooms.begin(), schedule_.rooms.end(),
                     [&room](const KeptRoom& one) { return Same(one.room, room.name); });
    if (kept == schedule_.rooms.end()) {
      Found(room.name + QStringLiteral(" - not in the schedule"));
      return;
    }
    for (const SheetLine& line : room.lines) {
      const bool named = std::any_of(
          kept->systems.begin(), kept->systems.end(),
          [&line](const QString& system) { return Same(system.left(20).trimmed(), line.system); });
      if (named) continue;
      Found(QStringLiteral("%1: %2 %3 %4").arg(room.name, line.system, line.area, line.quantity));
    }
  }

  const KeptSchedule& schedule_;
  const std::vector<RoomSheet>& rooms_;
  TableSink* table_;
  QString head_;  // under which what is found stands
  Report report_;
  bool found_ = false;
};

}  // namespace

Report ScheduleCheck(const ReportSource& source) {
  if (source.table != nullptr)
    source.table->Begin({{QStringLiteral("What"), ColumnKind::Text, 40},
                         {QStringLiteral("Found"), ColumnKind::Text, 60}});
  KeptSchedule schedule;
  ReadKeptSchedule(source.files, source.project, schedule);
  if (schedule.rooms.empty()) {
    Report report;
    report.lines = {QStringLiteral("Schedule Check"), QString(),
                    QStringLiteral("The project keeps no finish schedule. Read one off the plan "
                                   "and make its rooms.")};
    return report;
  }
  RoomCollector collector;
  WalkTakeoff(source, collector);
  return Checker(schedule, collector.rooms, source.table).Make();
}

}  // namespace tamo
