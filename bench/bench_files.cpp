// A durable save of a 2 KB file beside what it can't do without: write, fdatasync, rename, sync of
// the folder.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <cstdio>

#include "common/files.h"

namespace {

const QString kText(2048, QLatin1Char('x'));

void RawSave(benchmark::State& state) {
  const QTemporaryDir folder;
  const QByteArray path = folder.filePath(QStringLiteral("room.rfs")).toUtf8();
  const QByteArray fresh = path + ".new";
  const QByteArray bytes = kText.toUtf8();
  for (auto _ : state) {
    const int file = open(fresh.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (write(file, bytes.constData(), static_cast<size_t>(bytes.size())) < 0)
      state.SkipWithError("write");
    fdatasync(file);
    close(file);
    std::rename(fresh.constData(), path.constData());
    const int dir = open(folder.path().toUtf8().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    fsync(dir);
    close(dir);
  }
}
BENCHMARK(RawSave)->UseRealTime();

void DurableSave(benchmark::State& state) {
  const QTemporaryDir folder;
  tamo::RealDisk disk;
  tamo::Files files(disk);
  const QString path = folder.filePath(QStringLiteral("room.rfs"));
  for (auto _ : state) files.SaveText(path, kText);
}
BENCHMARK(DurableSave)->UseRealTime();

}  // namespace
