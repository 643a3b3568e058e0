// What the journal of former states costs a save: the same saves without it and with it, as fast as
// they can follow each other. TMPDIR names the device.
#include <benchmark/benchmark.h>

#include <QDir>
#include <QTemporaryDir>

#include "history/journal.h"

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

}  // namespace
