#include "records/keptschedule.h"

namespace tamo {
namespace {

constexpr qsizetype kCells = 10;

void TakeLine(const QString& line, KeptSchedule& schedule) {
  QStringList parts = line.split(u'\t');
  const QString fact = parts.takeFirst();
  if (fact == QLatin1String("room")) {
    KeptRoom room;
    room.room = parts.value(0);
    for (qsizetype i = 1; i <= kCells; ++i) room.cells.append(parts.value(i));
    schedule.rooms.push_back(std::move(room));
  } else if (fact == QLatin1String("systems") && !schedule.rooms.empty()) {
    schedule.rooms.back().systems = parts;
  } else if (fact == QLatin1String("change")) {
    schedule.changes.append(parts.value(0));
  }
}

QString Line(const char* fact, const QStringList& parts) {
  QStringList plain = {QLatin1String(fact)};
  for (const QString& part : parts) plain.append(part.simplified());
  return plain.join(u'\t');
}

}  // namespace

int ReadKeptSchedule(Files& files, const ProjectFolder& project, KeptSchedule& schedule) {
  QStringList lines;
  const int error = files.ReadLines(project.FinishSchedule(), lines);
  schedule = {};
  for (const QString& line : lines) TakeLine(line, schedule);
  return error;
}

int WriteKeptSchedule(Files& files, const ProjectFolder& project, const KeptSchedule& schedule) {
  QStringList lines;
  for (const KeptRoom& room : schedule.rooms) {
    lines.append(Line("room", QStringList{room.room} + room.cells));
    if (!room.systems.isEmpty()) lines.append(Line("systems", room.systems));
  }
  for (const QString& change : schedule.changes) lines.append(Line("change", {change}));
  return files.SaveLines(project.FinishSchedule(), lines);
}

}  // namespace tamo
