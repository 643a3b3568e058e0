// The price library at typing speed.
//
// TwoDurableSaves is the peer of EnterInWageRate: the master file and the project's copy of a
// system with 200 materials, written durably and nothing else. LoadSystem/10 and LoadSystem/10000
// open a system of a library of so many.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QTemporaryDir>

#include "common/desk.h"
#include "common/kit.h"
#include "common/paths.h"
#include "pricing/pricingform.h"
#include "pricing/unitprice.h"
#include "silentplatform.h"

namespace {

using namespace tamo;

struct Quiet : bench::SilentPlatform, ReportRefresh, SettingsReader, ProjectNumberSeed {
  void PrintReport() override {}
  void DisableProjectFileEntry() override {}
  void LoadSettings() override {}
  void SeedProjectNumber() override {}
};

QStringList Materials(int count) {
  QStringList blocks;
  for (int i = 0; i < count; ++i) {
    MaterialBlock block;
    block.material = QStringLiteral("Material %1").arg(i);
    block.orderUnits = QStringLiteral("SHT");
    block.price = QStringLiteral("13.40");
    block.upo = QStringLiteral("16");
    block.upoTag = QString::fromLatin1(kUpo);
    block.mnhrPO = QStringLiteral("38");
    block.mnhrTag = QString::fromLatin1(kUpm);
    block.waste = QStringLiteral("10");
    block.wageRate = QStringLiteral("46.50");
    blocks += block.Rows();
  }
  return blocks;
}

// A Pricing form with a project open.
struct Room {
  Room() {
    shared.Separator = PlatformSeparator();
    shared.DataPath = folder.path() + QStringLiteral("/Tamo/");
    shared.JobID = QStringLiteral("00-2112001");
    QDir().mkpath(DataFolder(shared).Systems());
    QDir().mkpath(ProjectFolder(shared).Systems());
    form.Show();
  }

  void Library(int systems, const QStringList& blocks) {
    SystemFile system;
    system.units = QStringLiteral("SF");
    system.unitPrice = QStringLiteral("0.00");
    system.blocks = blocks;
    for (int i = 0; i < systems; ++i) {
      system.description = QStringLiteral("System %1").arg(i);
      QFile file(MasterSystemPath(shared, system.description));
      if (file.open(QIODevice::WriteOnly)) file.write(SystemFileText(system).toUtf8());
      form.DescriptionsList.Add(system.description);
    }
  }

  void Open(const QString& name) {
    desk.Dispatch([&] {
      form.Description.SetText(name);
      desk.Focus(form.Description);
    });
    desk.PressKey(form.Description, Key::Named(Key::Name::Enter));
  }

  QTemporaryDir folder;
  RealDisk disk;
  SystemClock clock;
  Quiet quiet;
  Platform platform{disk, clock, quiet, quiet, quiet, folder.path(), folder.path(), folder.path()};
  Desk desk{quiet};
  Files files{disk};
  SharedFields shared;
  Kit kit{desk, files, shared, platform};
  PricingForm form{kit, quiet, quiet, quiet};
};

void TwoDurableSaves(benchmark::State& state) {
  Room room;
  SystemFile system;
  system.description = QStringLiteral("System 0");
  system.blocks = Materials(200);
  const QString text = SystemFileText(system);
  for (auto _ : state) {
    room.files.SaveText(MasterSystemPath(room.shared, system.description), text);
    room.files.SaveText(ProjectSystemPath(room.shared, system.description), text);
  }
}
BENCHMARK(TwoDurableSaves)->UseRealTime()->Unit(benchmark::kMillisecond);

// The first of 200 materials is finished again and again.
void EnterInWageRate(benchmark::State& state) {
  Room room;
  room.Library(1, Materials(200));
  room.Open(QStringLiteral("System 0"));
  for (auto _ : state) {
    state.PauseTiming();
    room.desk.Dispatch([&] {
      room.form.MaterialList.SetIndex(0);
      room.desk.Focus(room.form.WageRate);
    });
    state.ResumeTiming();
    room.desk.PressKey(room.form.WageRate, Key::Named(Key::Name::Enter));
  }
}
BENCHMARK(EnterInWageRate)->UseRealTime()->Unit(benchmark::kMillisecond);

void LoadSystem(benchmark::State& state) {
  Room room;
  const int systems = static_cast<int>(state.range(0));
  room.Library(systems, Materials(4));
  int next = 0;
  for (auto _ : state) {
    room.Open(QStringLiteral("system %1").arg(next));
    next = (next + 7) % systems;
  }
}
BENCHMARK(LoadSystem)->Arg(10)->Arg(10000)->UseRealTime()->Unit(benchmark::kMicrosecond);

void EstimatedUnitPrice(benchmark::State& state) {
  const QStringList system = Materials(200);
  for (auto _ : state) benchmark::DoNotOptimize(EstimateUnitPrice(system, {}));
}
BENCHMARK(EstimatedUnitPrice)->UseRealTime()->Unit(benchmark::kMicrosecond);

}  // namespace
