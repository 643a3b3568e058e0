// What the journal of former states costs a save: the same saves without it and with it, as fast as
// they can follow each other. TMPDIR names the device. And how long it takes to hold 1,000 rooms
// against 1,000 rooms, from the version's file on.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QTemporaryDir>

#include "history/history.h"
#include "history/statedisk.h"
#include "largebid.h"
#include "reports/compare.h"

namespace {

using tamo::HistoryFolder;

QString RoomOf(int save) {
  QString text = QStringLiteral("9\r\n");
  for (int line = 0; line < 30; ++line)
    text += QStringLiteral("Drywall              WALLS      %1 SF\r\n")
                .arg(line == save % 30 ? save : 792, 13);
  return text;
}

void Saves(benchmark::State& state, bool journaled) {
  const QTemporaryDir place;
  const QString data = place.path() + QStringLiteral("/Tamo/");
  QDir().mkpath(data);
  tamo::RealDisk disk;
  tamo::RealDisk journalDisk;
  tamo::Files files(disk);
  const HistoryFolder folder(tamo::DataFolder(data, QStringLiteral("/")));
  tamo::Journal journal(
      {journalDisk, [&] { return folder; }, [] { return tamo::WhenText(QDate::currentDate()); }});
  if (journaled) files.witness = &journal;
  int save = 0;
  for (auto _ : state) {
    files.SaveText(data + QStringLiteral("Office %1.rfs").arg(save % 20), RoomOf(save));
    ++save;
  }
  files.witness = nullptr;
}

void SaveWithoutJournal(benchmark::State& state) {
  Saves(state, false);
}
BENCHMARK(SaveWithoutJournal)->UseRealTime();

void SaveWithJournal(benchmark::State& state) {
  Saves(state, true);
}
BENCHMARK(SaveWithJournal)->UseRealTime();

// Every fifth room has another line than the version.
void CompareLargeBids(benchmark::State& state) {
  const QTemporaryDir place;
  const QString data = place.path() + QStringLiteral("/Tamo/");
  const QString bid = data + QStringLiteral("Projects/12-2611001/");
  tamo::bench::WriteProject(bid.toStdString(), 1000, 4);
  tamo::RealDisk disk;
  tamo::Files files(disk);
  const tamo::DataFolder folder(data, QStringLiteral("/"));
  tamo::BidState then;
  QString path;
  tamo::ReadBidState(disk, folder, QStringLiteral("12-2611001"), then, path);
  const tamo::VersionHead head{QStringLiteral("as sent"), then.project, QStringLiteral("Large"),
                               tamo::WhenText(QDate::currentDate())};
  for (const char* level : {"History", "History/Versions"})
    disk.MakeFolder(data + QLatin1String(level));
  if (tamo::WriteVersion(disk, folder, head, then, path) != 0) state.SkipWithError("no version");
  for (int room = 0; room < 1000; room += 5) {
    const QString file = bid + QStringLiteral("Rooms/Room %1.rfs").arg(room);
    QString text;
    files.ReadText(file, text);
    files.SaveText(file,
                   text + QStringLiteral("System 3             WALLS                 792 SF\r\n"));
  }
  const tamo::ReportSource now{files, {bid, QStringLiteral("/")}, {}, false};
  tamo::Markups markups;
  markups.MMU = markups.LMU = QStringLiteral(".10");
  for (auto _ : state) {
    tamo::VersionHead found;
    tamo::BidState former;
    tamo::ReadVersion(disk, path, found, former);
    const tamo::FormerBid version(folder, found, former);
    const tamo::ReportSource source{version.GetFiles(), now.project, {}, false};
    const tamo::Report report = tamo::Compare({source, markups, version.Words()},
                                              {now, markups, {}}, QStringLiteral("Large"));
    benchmark::DoNotOptimize(report.lines.size());
  }
}
BENCHMARK(CompareLargeBids)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
