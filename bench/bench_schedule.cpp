// How well and how fast room finish schedules are read off made-up sheets.
//
//   bench_schedule [COUNT [SEED]]      prints the figures, and what was read wrong
#include <QDir>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>

#include "../tests/schedule/truesheet.h"

namespace tamo {
namespace {

struct Timing {
  double whole = 0;
  double longest = 0;
  int sheets = 0;
};

void ReadOne(const QString& text, Score& all, Timing& timing, int& refusedRight, int& refuse) {
  const TrueSheet sheet = ReadTrueSheet(text);
  const auto start = std::chrono::steady_clock::now();
  QString problem;
  const std::vector<ScheduleTable> parts = ReadSheet(sheet, problem);
  const double took =
      std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
  timing.whole += took;
  timing.longest = std::max(timing.longest, took);
  ++timing.sheets;
  const QByteArray name = QFileInfo(sheet.pdf).fileName().toUtf8();
  if (sheet.refuse) {
    ++refuse;
    refusedRight += parts.empty() ? 1 : 0;
    if (!parts.empty()) std::printf("%s: read, and should not be\n", name.constData());
    return;
  }
  const Score score = ScoreOf(sheet, parts);
  if (!problem.isEmpty()) std::printf("%s: %s\n", name.constData(), problem.toUtf8().constData());
  for (const QString& fault : score.faults.mid(0, 8)) {
    std::printf("%s: %s\n", name.constData(), fault.toUtf8().constData());
  }
  all.Add(score);
}

int Run(int count, int seed) {
  QTemporaryDir folder;
  if (!MakeSheets(folder.path(), count, seed)) return 1;
  Score all;
  Timing timing;
  int refusedRight = 0;
  int refuse = 0;
  const QStringList texts = QDir(folder.path()).entryList({QStringLiteral("*.txt")});
  for (const QString& text : texts) {
    ReadOne(folder.filePath(text), all, timing, refusedRight, refuse);
  }
  std::printf("sheets                       %d\n", timing.sheets);
  std::printf("cells right of all           %d of %d\n", all.rightCells, all.cells);
  std::printf("rows right of all            %d of %d\n", all.rightRows, all.rows);
  std::printf("wrong cells not marked       %d\n", all.wrongAndSure);
  std::printf("cells marked as unsure       %d\n", all.unsure);
  std::printf("refused of those to refuse   %d of %d\n", refusedRight, refuse);
  std::printf("time of a sheet              %.1f ms, the longest %.1f ms\n",
              timing.whole / std::max(1, timing.sheets), timing.longest);
  return 0;
}

}  // namespace
}  // namespace tamo

int main(int count, char** words) {
  return tamo::Run(count > 1 ? std::atoi(words[1]) : 100, count > 2 ? std::atoi(words[2]) : 1);
}
