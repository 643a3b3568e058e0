// How fast quantities come in: an Enter in Length in a room of 300 lines of a project of 1,000
// rooms, beside the durable save of the same room alone and beside what that can't do without, and
// the opening of the schedule.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "common/desk.h"
#include "common/files.h"
#include "common/kit.h"
#include "records/namelists.h"
#include "records/roomfile.h"
#include "records/roomline.h"
#include "records/sheetnames.h"
#include "takeoff/rfsform.h"
#include "takeoffstage.h"
#include "workspace/projecthold.h"

namespace {

using namespace tamo;

// A project of 1,000 rooms, the first of which has 300 lines.
struct BigProject {
  QTemporaryDir folder;
  RealDisk disk;
  Files files{disk};
  bench::Nobody nobody;
  Desk desk{nobody};
  SystemClock clock;
  SharedFields shared;
  Platform platform{disk, clock, nobody, nobody, nobody, {}, {}, {}};
  Kit kit{desk, files, shared, platform};
  TakingBack steps{kit, nobody, nobody};
  RFSForm form{kit, nobody, nobody, nobody, nobody, steps};
  ProjectHold hold{kit};
  QStringList lines;

  BigProject() {
    shared.DataPath = folder.path() + QStringLiteral("/Tamo/");
    shared.Separator = QStringLiteral("/");
    shared.JobID = QStringLiteral("00-2112001");
    shared.DriveBy = QStringLiteral("False");
    for (const char* name : {"Rooms", "Systems"})
      QDir().mkpath(tamo::ProjectFolder(shared).SubFolder(name));
    QStringList systems;
    for (int i = 0; i < 300; ++i) {
      const QString name = QStringLiteral("System %1").arg(i);
      const QString unit = i % 2 == 0 ? QStringLiteral("SF") : QStringLiteral("LF");
      systems += name;
      lines += RoomLine::Of(name, QStringLiteral("WALLS"), QStringLiteral("1234.5"), unit).Text();
      files.SaveLines(tamo::ProjectFolder(shared).SystemFile(name),
                      {name, unit, QStringLiteral("1.00"), QStringLiteral("255000000")});
    }
    WriteNames(files, shared, NameList::Systems, systems);
    QStringList rooms;
    for (int i = 0; i < 1000; ++i) {
      rooms += QStringLiteral("Room %1").arg(i);
      WriteRoomFile(files, shared, rooms.last(), QStringLiteral("8"),
                    i == 0 ? lines : lines.mid(0, 1));
    }
    WriteRoomNames(files, shared, rooms);
    hold.Open();
  }
};

double Milliseconds(std::chrono::steady_clock::time_point from) {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - from).count();
}

double Hundredth(std::vector<double>& times, size_t part) {
  std::sort(times.begin(), times.end());
  return times.empty() ? 0 : times[(times.size() - 1) * part / 100];
}

// Write, fdatasync, rename, sync of the folder.
void RawSave(const QByteArray& path, const QByteArray& bytes) {
  const QByteArray fresh = path + ".new";
  const int file = open(fresh.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  benchmark::DoNotOptimize(write(file, bytes.constData(), static_cast<size_t>(bytes.size())));
  fdatasync(file);
  close(file);
  std::rename(fresh.constData(), path.constData());
  const int folder =
      open(path.left(path.lastIndexOf('/')).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  fsync(folder);
  close(folder);
}

// The Enter, the bare save and the raw one take turns, so that all meet the same device in the same
// mood.
void EnterBesideItsSave(benchmark::State& state) {
  BigProject project;
  RFSForm& form = project.form;
  project.desk.Dispatch([&] { form.TakeOffRoomFinishSchedule(nullptr); });
  std::vector<double> enters;
  std::vector<double> saves;
  std::vector<double> raws;
  const QString room = ProjectFolder(project.shared).RoomFile(QStringLiteral("Room 1"));
  for (auto _ : state) {
    form.Length.SetText(QStringLiteral("1.5"));
    auto from = std::chrono::steady_clock::now();
    project.desk.PressKey(form.Length, Key::Named(Key::Name::Enter));
    enters.push_back(Milliseconds(from));
    state.PauseTiming();
    from = std::chrono::steady_clock::now();
    WriteRoomFile(project.files, project.shared, QStringLiteral("Room 1"), QStringLiteral("8"),
                  project.lines);
    saves.push_back(Milliseconds(from));
    QByteArray bytes;
    project.disk.Read(room, bytes);
    from = std::chrono::steady_clock::now();
    RawSave(room.toUtf8() + ".raw", bytes);
    raws.push_back(Milliseconds(from));
    state.ResumeTiming();
  }
  state.counters["enter_median_ms"] = Hundredth(enters, 50);
  state.counters["enter_p99_ms"] = Hundredth(enters, 99);
  state.counters["save_median_ms"] = Hundredth(saves, 50);
  state.counters["raw_median_ms"] = Hundredth(raws, 50);
  state.counters["times_the_raw_save"] = Hundredth(enters, 50) / Hundredth(raws, 50);
  state.counters["times_the_save"] = Hundredth(enters, 50) / Hundredth(saves, 50);
}
BENCHMARK(EnterBesideItsSave)->UseRealTime()->Unit(benchmark::kMillisecond);

void OpenOnAThousandRooms(benchmark::State& state) {
  BigProject project;
  RFSForm& form = project.form;
  for (auto _ : state) {
    project.desk.Dispatch([&] { form.EnterRoomFinishSchedule(nullptr); });
    project.desk.Dispatch([&] { form.Hide(); });
  }
}
BENCHMARK(OpenOnAThousandRooms)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
