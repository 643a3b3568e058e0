#include "plans/openplan.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <atomic>
#include <chrono>
#include <thread>

#include "common/failure.h"
#include "plans/filetail.h"
#include "support/fakeplanengine.h"
#include "support/helddisk.h"

using namespace tamo;
using namespace tamo::test;

namespace {

constexpr int kPatience = 20000;

struct Opening : ::testing::Test {
  QTemporaryDir folder;
  HeldDisk disk;
  FakePlanEngine engine;
  std::atomic<int> late = 0;
  int error = -1;

  Opening() { *disk.held = false; }
  QString Write(const char* name, const QByteArray& bytes) {
    QFile file(folder.filePath(QString::fromUtf8(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }
  std::unique_ptr<OpenPlan> Begin(const QString& path) {
    return OpenPlan::Begin(
        disk, engine, path, "", [this] { ++late; }, error);
  }
};

}  // namespace

TEST_F(Opening, WhatThePlanHoldsIsTakenOnce) {
  engine.pages = 3;
  const QString path =
      Write("a.pdf", "%PDF-1.4\n%Mark tamo-1-a|0|2|255000000|1|1|2|3|4|10.0 feet\n");
  const auto plan = Begin(path);
  ASSERT_NE(plan, nullptr);
  EXPECT_EQ(error, kNoError);
  ASSERT_TRUE(plan->Wait(kPatience));
  EXPECT_TRUE(plan->Done());
  EXPECT_FALSE(plan->Taken());
  const PlanContents contents = plan->Take();
  EXPECT_TRUE(plan->Taken());
  EXPECT_EQ(contents.sizes.size(), 3U);
  ASSERT_EQ(contents.marks.size(), 1U);
  EXPECT_EQ(plan->Sizes().size(), 3U);
  EXPECT_EQ(plan->Path(), path);
  EXPECT_EQ(plan->Size(), QFile(path).size());
  EXPECT_FALSE(plan->Late());
  EXPECT_EQ(late, 0);
}

TEST_F(Opening, AFileThatIsNotThereIsANumber) {
  EXPECT_EQ(Begin(folder.filePath("none.pdf")), nullptr);
  EXPECT_EQ(error, kFileNotFound);
}

TEST_F(Opening, ASlowPlanIsToldOfWhenSomebodyGaveUpWaiting) {
  *disk.held = true;
  const auto plan = Begin(Write("a.pdf", "%PDF-1.4\n"));
  ASSERT_NE(plan, nullptr);
  EXPECT_FALSE(plan->Wait(5));
  EXPECT_TRUE(plan->Late());
  EXPECT_FALSE(plan->Done());
  EXPECT_EQ(late, 0);
  *disk.held = false;
  EXPECT_TRUE(plan->Wait(kPatience)) << "one may ask again";
  while (late == 0) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  EXPECT_TRUE(plan->Done());
}

TEST_F(Opening, APlanThatFailsIsDoneToo) {
  engine.openError = kFileOther;
  const auto plan = Begin(Write("a.pdf", "%PDF-1.4\n"));
  ASSERT_TRUE(plan->Wait(kPatience));
  EXPECT_EQ(plan->Take().error, kFileOther);
}

TEST_F(Opening, ATornPartAtTheEndIsCutOff) {
  const QByteArray whole = "%PDF-1.4\nstartxref\n9\n%%EOF\n";
  const QString path = Write("a.pdf", whole + '\n' + kAdditionHead + "half of a sa");
  const auto plan = Begin(path);
  ASSERT_NE(plan, nullptr);
  EXPECT_LT(QFile(path).size(), whole.size() + 3);
  EXPECT_EQ(plan->Size(), QFile(path).size());
}

TEST_F(Opening, AnotherFileIsOpenedByTheSameEngine) {
  const auto plan = Begin(Write("a.pdf", "%PDF-1.4\n"));
  const QString copy = Write("b.pdf", "%PDF-1.4\n");
  const auto other = plan->Another(copy, error);
  ASSERT_NE(other, nullptr);
  EXPECT_TRUE(other->Wait(kPatience));
  EXPECT_EQ(other->Path(), copy);
  EXPECT_EQ(plan->Another(folder.filePath("none.pdf"), error), nullptr);
  EXPECT_EQ(error, kFileNotFound);
}

TEST_F(Opening, IsLeftWithinAMomentWhateverThePlanDoes) {
  *disk.held = true;
  auto plan = Begin(Write("a.pdf", "%PDF-1.4\n"));
  const auto start = std::chrono::steady_clock::now();
  plan.reset();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
  *disk.held = false;
}
