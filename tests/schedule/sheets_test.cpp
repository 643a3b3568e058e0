#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/sourcefile.h"
#include "truesheet.h"

namespace tamo {
namespace {

void ExpectRead(const QString& text) {
  const TrueSheet sheet = ReadTrueSheet(text);
  const std::string name = QFileInfo(text).fileName().toStdString();
  QString problem;
  const std::vector<ScheduleTable> parts = ReadSheet(sheet, problem);
  if (sheet.refuse) {
    EXPECT_FALSE(problem.isEmpty()) << name;
    EXPECT_TRUE(parts.empty()) << name;
    return;
  }
  EXPECT_EQ(problem.toStdString(), "") << name;
  const Score score = ScoreOf(sheet, parts);
  EXPECT_EQ(score.wrongAndSure, 0) << name << ": " << score.faults.join(u'\n').toStdString();
  EXPECT_EQ(score.rightCells, score.cells)
      << name << ": " << score.faults.join(u'\n').toStdString();
}

TEST(Sheets, WhatStandsOnMadeUpSheetsIsRead) {
  QTemporaryDir folder;
  if (!MakeSheets(folder.path(), 24, 7)) GTEST_SKIP() << "no Python";
  const QStringList texts = QDir(folder.path()).entryList({QStringLiteral("*.txt")});
  ASSERT_EQ(texts.size(), 24);
  for (const QString& text : texts) ExpectRead(folder.filePath(text));
}

TEST(Sheets, WhatStandsOnKeptSheetsIsRead) {
  const QDir folder(test::SourceFile(QStringLiteral("tests/data/schedules")));
  const QStringList texts = folder.entryList({QStringLiteral("*.txt")});
  ASSERT_FALSE(texts.isEmpty());
  for (const QString& text : texts) ExpectRead(folder.filePath(text));
}

}  // namespace
}  // namespace tamo
