#include "records/keptschedule.h"
#include "schedule/scheduleform.h"
#include "schedule/schedulerevision.h"

// The rooms that are made of a schedule, and the schedule that the project keeps.

namespace tamo {

bool ScheduleForm::MayWrite() {
  if (kit_.shared.JobID.isEmpty()) {
    kit_.desk.GetMessages().Tell(
        QStringLiteral("No project is open, so the rooms have no place. Open a project first."));
    return false;
  }
  if (kit_.shared.Locked == QLatin1String("True")) {
    kit_.desk.GetMessages().Tell(QStringLiteral("Project is locked."));
    return false;
  }
  return true;
}

void ScheduleForm::WriteRooms() {
  if (!MayWrite()) return;
  if (busy_) return;
  busy_ = true;
  const RoomPlan plan = PlanRooms(rows_, key_, Areas());
  made_ = tamo::MakeRooms(kit_.files, kit_.shared, plan, onProgress);
  if (onDone) onDone(made_.problem.isEmpty());
  busy_ = false;
  KeepSchedule(plan);
  KeepAreas();
  TakeBack.SetEnabled(!made_.rooms.empty());
  if (!made_.problem.isEmpty()) kit_.desk.GetMessages().Tell(made_.problem);
  Summary.SetCaption(QStringLiteral("%1 rooms and %2 lines made, %3 codes left out. %4")
                         .arg(made_.rooms.size())
                         .arg(made_.lines)
                         .arg(plan.leftOut.size())
                         .arg(plan.told.join(u' '))
                         .trimmed());
}

void ScheduleForm::TakeRoomsBack() {
  if (!MayWrite()) return;
  const QString refusal = tamo::TakeBackRooms(kit_.files, kit_.shared, made_);
  if (!refusal.isEmpty()) {
    kit_.desk.GetMessages().Tell(refusal);
    return;
  }
  made_ = {};
  TakeBack.SetEnabled(false);
  ShowSummary();
}

void ScheduleForm::KeepSchedule(const RoomPlan& plan) {
  const ProjectFolder project(kit_.shared);
  KeptSchedule kept;
  ReadKeptSchedule(kit_.files, project, kept);
  WriteKeptSchedule(kit_.files, project, KeptAfter(kept, rows_, plan));
}

// What a new sheet changed of the schedule that the rooms were made of; it is kept for the report.
void ScheduleForm::CompareWithKept() {
  if (!MayWrite()) return;
  const ProjectFolder project(kit_.shared);
  KeptSchedule kept;
  ReadKeptSchedule(kit_.files, project, kept);
  if (kept.rooms.empty() || rows_.empty()) {
    kit_.desk.GetMessages().Tell(QStringLiteral(
        "There is nothing to compare: read the schedule, and make the rooms of one first."));
    return;
  }
  kept.changes = ChangesOf(kept, rows_);
  WriteKeptSchedule(kit_.files, project, kept);
  Summary.SetCaption(kept.changes.isEmpty()
                         ? QStringLiteral("No room of the kept schedule changed.")
                         : QStringLiteral("%1 changes against the kept schedule: %2")
                               .arg(kept.changes.size())
                               .arg(kept.changes.mid(0, 3).join(u' ')));
}

}  // namespace tamo
