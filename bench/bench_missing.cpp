// 100,000 rooms that a project lists: a recap and the walk through all of them when their files are
// missing, beside the same when they are there and empty. Argument 0: missing, 1: empty.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QTemporaryDir>
#include <fstream>

#include "common/files.h"
#include "records/datafolder.h"
#include "records/sheetnames.h"
#include "reports/recap.h"
#include "takeoff/rfsform.h"
#include "takeoffstage.h"

namespace {

using namespace tamo;

constexpr int kRooms = 100'000;

struct Listed {
  QTemporaryDir folder;
  RealDisk disk;
  SharedFields shared;

  explicit Listed(bool there) {
    shared.DataPath = folder.path() + QStringLiteral("/Tamo/");
    shared.Separator = QStringLiteral("/");
    shared.JobID = QStringLiteral("00-2112001");
    shared.DriveBy = QStringLiteral("False");
    const ProjectFolder project(shared);
    for (const char* name : {"Rooms", "ATOs", "Systems"}) QDir().mkpath(project.SubFolder(name));
    Files files(disk);
    files.SaveLines(DataFolder(shared).NameFile("Descriptions.tamo"), {QStringLiteral("Paint")});
    QStringList rooms;
    for (int i = 0; i < kRooms; ++i) {
      rooms += QStringLiteral("Room %1").arg(i);
      if (there) std::ofstream(project.RoomFile(rooms.last()).toStdString()) << "8\r\n";
    }
    WriteRoomNames(files, shared, rooms);
  }
};

void Recap(benchmark::State& state) {
  Listed listed(state.range(0) == 1);
  for (auto _ : state) {
    Files files(listed.disk);
    Uncounted uncounted;
    QString adjustment;
    const Report report = MinimalRecapSheet(
        {files, ProjectFolder(listed.shared), {}, false, &uncounted}, {}, false, adjustment);
    benchmark::DoNotOptimize(report);
  }
}
BENCHMARK(Recap)->Arg(1)->Arg(0)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(3);

void Walk(benchmark::State& state) {
  Listed listed(state.range(0) == 1);
  for (auto _ : state) {
    bench::TakeoffStage stage(listed.disk, listed.shared);
    stage.desk.Dispatch([&] { stage.form.TakeOffRoomFinishSchedule(nullptr); });
  }
}
BENCHMARK(Walk)->Arg(1)->Arg(0)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace
