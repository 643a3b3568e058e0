#include "plans/plansaver.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "common/failure.h"
#include "support/fakeplanengine.h"
#include "support/faultdisk.h"

using namespace tamo;
using namespace tamo::test;

namespace {

struct Saver : ::testing::Test {
  QTemporaryDir folder;
  FaultDisk disk;
  FakePlanEngine engine;
  QString problem;
  std::vector<int> heard;
  PlanSaver saver{disk, problem, [this](int perCent) { heard.push_back(perCent); }};
  QString path = folder.filePath("a.pdf");
  QString marked = folder.filePath("a-Marked.pdf");
  PlanSaver::Anew anew;
  int error = -1;

  void Write(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  static QByteArray Read(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
  }
  std::unique_ptr<OpenPlan> Open() {
    Write(path, "%PDF-1.4\n");
    auto plan = OpenPlan::Begin(disk, engine, path, "", nullptr, error);
    EXPECT_TRUE(plan->Wait(20000));
    plan->Take();
    return plan;
  }
  static MarkChanges OneLine() {
    Mark mark;
    mark.points = {{1, 2}, {3, 4}};
    mark.name = QStringLiteral("tamo-1-a");
    MarkChanges changes;
    changes.added = {mark};
    return changes;
  }
};

}  // namespace

TEST_F(Saver, AChangeGoesToTheEndOfTheFile) {
  const auto plan = Open();
  ASSERT_EQ(saver.Append(*plan, path, OneLine(), anew), kNoError);
  EXPECT_EQ(anew, nullptr);
  const QByteArray bytes = Read(path);
  EXPECT_TRUE(bytes.startsWith("%PDF-1.4\n\n%Mark tamo-1-a|")) << bytes.toStdString();
  EXPECT_EQ(plan->Size(), bytes.size());
  EXPECT_FALSE(saver.ChangedOnDisk(*plan, path)) << "what was saved here is known";
}

TEST_F(Saver, ACopyIsWrittenBesideAndIsReadFromThenOn) {
  const auto plan = Open();
  ASSERT_EQ(saver.Copy(*plan, marked, OneLine(), anew), kNoError);
  EXPECT_EQ(Read(path), "%PDF-1.4\n");
  EXPECT_TRUE(Read(marked).contains("%Mark tamo-1-a|"));
  EXPECT_EQ(plan->Path(), marked);
  EXPECT_EQ(plan->Size(), Read(marked).size());
  ASSERT_TRUE(QFile::remove(path));
  EXPECT_FALSE(saver.ChangedOnDisk(*plan, marked));
}

TEST_F(Saver, AFailureLeavesTheOldFileWholeAndSaysWhy) {
  const auto plan = Open();
  Write(marked, "what stood there");
  disk.SetFull(true);
  EXPECT_EQ(saver.Copy(*plan, marked, OneLine(), anew), kDiskFull);
  EXPECT_EQ(saver.Append(*plan, path, OneLine(), anew), kDiskFull);
  disk.SetFull(false);
  EXPECT_EQ(Read(marked), "what stood there");
  EXPECT_EQ(Read(path), "%PDF-1.4\n");
  EXPECT_EQ(plan->Path(), path);
  EXPECT_TRUE(problem.startsWith("The plan a.pdf can't be saved: ")) << problem.toStdString();
}

TEST_F(Saver, AnUpdateThatCannotBeBuiltWritesNothing) {
  const auto plan = Open();
  engine.updateError = kFileOther;
  EXPECT_EQ(saver.Append(*plan, path, OneLine(), anew), kFileOther);
  EXPECT_EQ(saver.Copy(*plan, marked, OneLine(), anew), kFileOther);
  EXPECT_EQ(Read(path), "%PDF-1.4\n");
  EXPECT_FALSE(QFile::exists(marked));
}

TEST_F(Saver, AnotherProgramsSaveIsSeenAndRead) {
  const auto plan = Open();
  EXPECT_FALSE(saver.ChangedOnDisk(*plan, path));
  Write(path, "%PDF-1.4\n\n%Mark tamo-7-b|0|1|255000000|1|1|2|3|4|x\n");
  EXPECT_TRUE(saver.ChangedOnDisk(*plan, path));
  std::vector<Mark> marks;
  const PlanSaver::Anew fresh = saver.Reopen(*plan, path, marks, error);
  ASSERT_NE(fresh, nullptr);
  EXPECT_TRUE(fresh->Taken());
  ASSERT_EQ(marks.size(), 1U);
  EXPECT_EQ(marks[0].name, "tamo-7-b");
  EXPECT_EQ(saver.Reopen(*plan, folder.filePath("none.pdf"), marks, error), nullptr);
  EXPECT_EQ(error, kFileNotFound);
}

TEST_F(Saver, OneSaveAtATimeAndItsEndIsHeard) {
  int inner = kNoError;
  const int outer = saver.Alone(path, [&] {
    inner = saver.Alone(path, [] { return kNoError; });
    return kNoAccess;
  });
  EXPECT_EQ(outer, kNoAccess);
  EXPECT_EQ(inner, kFileOther);
  EXPECT_TRUE(problem.contains("it is just being saved"));
  EXPECT_EQ(heard, std::vector<int>{100});
  EXPECT_EQ(saver.Alone(path, [] { return kNoError; }), kNoError) << "the next one may go on";
}

TEST_F(Saver, WhatTheDeviceDidNotConfirmIsAskedAgain) {
  const auto plan = Open();
  EXPECT_EQ(saver.Confirm(marked), kNoError) << "nothing to be confirmed";
  disk.ResetSteps();
  ASSERT_EQ(saver.Copy(*plan, marked, OneLine(), anew), kNoError);
  const int last = disk.StepsTaken();  // the sync of the folder
  disk.ResetSteps();
  disk.FailStep(last, kFileOther);
  ASSERT_EQ(saver.Copy(*plan, marked, OneLine(), anew), kNoError) << "the new file stands there";
  disk.ResetSteps();
  disk.FailStep(1, kFileOther);
  EXPECT_EQ(saver.Confirm(marked), kNotConfirmed);
  EXPECT_TRUE(problem.contains("did not confirm it")) << problem.toStdString();
  EXPECT_EQ(saver.Confirm(path), kNoError) << "of another plan";
  disk.FailStep(0, kNoError);
  PlanSaver other(disk, problem, [](int) {});
  other.TakeOver(saver);
  EXPECT_EQ(saver.Confirm(marked), kNoError) << "the other one knows of it now";
  EXPECT_EQ(other.Confirm(marked), kNoError);
}
