#pragma once

#include <QFile>
#include <QProcess>
#include <QStringList>
#include <algorithm>
#include <utility>
#include <vector>

#include "common/disk.h"
#include "engine/mupdfcontentreader.h"
#include "schedule/schedulereader.h"
#include "schedule/schedulerows.h"
#include "support/sourcefile.h"

namespace tamo {

// A made-up sheet: where its table stands, and what a person reads off it.
struct TrueSheet {
  QString pdf;
  std::vector<std::pair<int, PageBox>> boxes;  // page from 1
  std::vector<QStringList> rows;               // ten cells each
  bool refuse = false;                         // nothing must be read
};

// `text`: the file beside the PDF, lines "box PAGE X1 Y1 X2 Y2", "row" and ten cells, "refuse".
inline TrueSheet ReadTrueSheet(const QString& text) {
  TrueSheet sheet;
  sheet.pdf = text.chopped(4) + QStringLiteral(".pdf");
  QFile file(text);
  if (!file.open(QIODevice::ReadOnly)) return sheet;
  const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
  for (const QString& line : lines) {
    if (line.startsWith(QLatin1String("box "))) {
      const QStringList parts = line.split(u' ');
      sheet.boxes.push_back(
          {parts[1].toInt(),
           {parts[2].toDouble(), parts[3].toDouble(), parts[4].toDouble(), parts[5].toDouble()}});
    } else if (line.startsWith(QLatin1String("row\t"))) {
      sheet.rows.push_back(line.split(u'\t').mid(1));
    } else if (line == QLatin1String("refuse")) {
      sheet.refuse = true;
    }
  }
  return sheet;
}

// How a reading stands against the truth.
struct Score {
  int cells = 0, rightCells = 0;
  int rows = 0, rightRows = 0;
  int wrongAndSure = 0;  // the worst: wrong, and not marked
  int unsure = 0;
  QStringList faults;

  void Add(const Score& other) {
    cells += other.cells;
    rightCells += other.rightCells;
    rows += other.rows;
    rightRows += other.rightRows;
    wrongAndSure += other.wrongAndSure;
    unsure += other.unsure;
    faults += other.faults;
  }
};

inline void ScoreRow(const QStringList& expected, const FinishRow* found, Score& score) {
  bool whole = true;
  for (int i = 0; i < kScheduleCells; ++i) {
    ++score.cells;
    const QString text = found == nullptr ? QString() : found->cells[size_t(i)];
    if (found != nullptr && text == expected.value(i)) {
      ++score.rightCells;
      continue;
    }
    whole = false;
    const bool marked = found != nullptr && !found->doubts[size_t(i)].empty();
    if (!marked) ++score.wrongAndSure;
    score.faults.append(
        QStringLiteral("%1: \"%2\" for \"%3\"%4")
            .arg(i)
            .arg(text, expected.value(i), marked ? QStringLiteral(" (marked)") : QString()));
  }
  ++score.rows;
  if (whole) ++score.rightRows;
}

inline Score ScoreOf(const TrueSheet& sheet, const std::vector<ScheduleTable>& parts) {
  Score score;
  const std::vector<FinishRow> found = FinishRowsOf(parts);
  for (size_t i = 0; i < sheet.rows.size(); ++i) {
    ScoreRow(sheet.rows[i], i < found.size() ? &found[i] : nullptr, score);
  }
  for (const FinishRow& row : found) {
    for (const auto& doubts : row.doubts) score.unsure += doubts.empty() ? 0 : 1;
  }
  if (found.size() != sheet.rows.size()) {
    score.faults.append(QStringLiteral("%1 rows for %2").arg(found.size()).arg(sheet.rows.size()));
    if (found.size() > sheet.rows.size()) ++score.wrongAndSure;
  }
  return score;
}

// All parts of a sheet by their boxes; the first problem that was said, in `problem`.
inline std::vector<ScheduleTable> ReadSheet(const TrueSheet& sheet, QString& problem) {
  std::vector<ScheduleTable> parts;
  RealDisk disk;
  for (const auto& [page, box] : sheet.boxes) {
    const ScheduleReading reading = ReadSchedule(ReadPageContent(disk, sheet.pdf, page), box);
    if (problem.isEmpty()) problem = reading.problem;
    parts.insert(parts.end(), reading.parts.begin(), reading.parts.end());
  }
  return parts;
}

// Writes `count` sheets into a folder; false when there is no Python.
inline bool MakeSheets(const QString& folder, int count, int seed) {
  QProcess python;
  python.start(QStringLiteral("python3"),
               {QStringLiteral("-B"), test::SourceFile(QStringLiteral("scripts/make_schedules.py")),
                folder, QString::number(count), QString::number(seed)});
  return python.waitForFinished(120000) && python.exitStatus() == QProcess::NormalExit &&
         python.exitCode() == 0;
}

}  // namespace tamo
