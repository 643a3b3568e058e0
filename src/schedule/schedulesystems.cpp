#include "records/datafolder.h"
#include "schedule/finishcodes.h"
#include "schedule/librarysystems.h"
#include "schedule/scheduleform.h"

// The systems that a schedule's codes mean, and the finish areas of their lines.

namespace tamo {
namespace {

constexpr size_t kBaseCell = 3;
constexpr char kAreasFile[] = "ScheduleAreas.tamo";

// Whether a code stands in bases alone: those are measured along their length.
bool OnlyBase(const std::vector<FinishRow>& rows, const QString& code) {
  for (const FinishRow& row : rows) {
    for (size_t cell = 2; cell <= 8; ++cell) {
      if (cell != kBaseCell && FinishesOf(row, cell).contains(code)) return false;
    }
  }
  return true;
}

}  // namespace

void ScheduleForm::BindAreas() {
  NewSystem.onClick = [this] { MakeSystem(); };
}

// The areas of the last schedule, else the usual ones; only while no field was typed into.
void ScheduleForm::LoadAreas() {
  if (areasLoaded_) return;
  areasLoaded_ = true;
  const FinishAreas usual;
  QStringList lines;
  kit_.files.ReadLines(DataFolder(kit_.shared).NameFile(kAreasFile), lines);
  const auto show = [&lines](TextField& field, qsizetype line, const QString& area) {
    const QString last = lines.value(line).simplified();
    field.SetText(last.isEmpty() ? area : last);
  };
  show(FloorArea, 0, usual.floor);
  show(BaseArea, 1, usual.base);
  show(WallsArea, 2, usual.walls);
  show(CeilingArea, 3, usual.ceiling);
}

void ScheduleForm::KeepAreas() {
  const FinishAreas areas = Areas();
  kit_.files.SaveLines(DataFolder(kit_.shared).NameFile(kAreasFile),
                       {areas.floor, areas.base, areas.walls, areas.ceiling});
}

// A field that was left empty gives the usual area.
FinishAreas ScheduleForm::Areas() const {
  FinishAreas areas;
  const auto take = [](const TextField& field, QString& area) {
    const QString text = field.Text().simplified();
    if (!text.isEmpty()) area = text;
  };
  take(FloorArea, areas.floor);
  take(BaseArea, areas.base);
  take(WallsArea, areas.walls);
  take(CeilingArea, areas.ceiling);
  return areas;
}

// A system of the name that was typed, without a price, for the selected code.
void ScheduleForm::MakeSystem() {
  if (Key.Index() < 0) {
    kit_.desk.GetMessages().Tell(
        QStringLiteral("Choose a finish code and type the new system's name first."));
    return;
  }
  const QString name = System.Text().simplified();
  const QString units =
      OnlyBase(rows_, Key.Selected()) ? QStringLiteral("LF") : QStringLiteral("SF");
  const QString problem = MakeEmptySystem(kit_.files, kit_.shared, name, units);
  if (!problem.isEmpty()) {
    kit_.desk.GetMessages().Tell(problem);
    return;
  }
  if (onSystemMade) onSystemMade(name);
  TakeSystem(name);
}

void ScheduleForm::ShowUnpriced(const RoomPlan& plan) {
  QStringList systems;
  for (const PlannedRoom& room : plan.rooms) {
    for (const PlannedLine& line : room.lines) {
      if (!systems.contains(line.system)) systems.append(line.system);
    }
  }
  const QStringList unpriced = Unpriced(kit_.files, kit_.shared, systems);
  UnpricedNames.SetCaption(
      unpriced.isEmpty()
          ? QString()
          : QStringLiteral("Without a price: %1.").arg(unpriced.join(QStringLiteral(", "))));
}

}  // namespace tamo
