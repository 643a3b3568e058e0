#include "plans/marksteps.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <utility>
#include <vector>

#include "common/disk.h"
#include "common/files.h"
#include "plans/pdfdraw.h"
#include "support/fakeplanengine.h"

// What can be taken back of a long day on one plan.

namespace tamo::test {
namespace {

MarkStep StepOf(const QString& name, size_t points, bool joined = false) {
  MarkStep step;
  step.mark.kind = Mark::Kind::Polyline;
  step.mark.name = name;
  step.mark.points.resize(points);
  step.joined = joined;
  return step;
}

TEST(MarkSteps, TheFirstOnesGoWhenTheyTakeTooMuchMemory) {
  MarkSteps steps;
  constexpr int kSteps = 1000;
  for (int i = 0; i < kSteps; ++i) steps.Add(StepOf(QString::number(i), kMostMarkPoints));
  EXPECT_LE(steps.Bytes(), MarkSteps::kMostBytes);
  EXPECT_TRUE(steps.Drew("0"));
  EXPECT_TRUE(steps.Drew("999"));
  EXPECT_FALSE(steps.Drew("1000"));
  int back = 0;
  while (steps.TakeBack() != nullptr) ++back;
  EXPECT_GT(back, 150);
  EXPECT_LT(back, kSteps);
  EXPECT_TRUE(steps.Drew("0"));  // its mark still stands
  EXPECT_FALSE(steps.Drew("999"));
  while (steps.BringBack() != nullptr) --back;
  EXPECT_EQ(back, 0);
  steps.Clear();
  EXPECT_EQ(steps.Bytes(), 0U);
  EXPECT_FALSE(steps.Drew("0"));
}

TEST(MarkSteps, WhatGoesTogetherIsDroppedTogetherAndTheLastEntryStaysWhole) {
  MarkSteps steps;
  for (int entry = 0; entry < 100; ++entry) {
    for (int part = 0; part < 10; ++part)
      steps.Add(StepOf(QString::number(entry * 10 + part), kMostMarkPoints, part > 0));
  }
  int back = 0;
  const MarkStep* step = nullptr;
  bool joined = false;
  while ((step = steps.TakeBack()) != nullptr) {
    ++back;
    joined = step->joined;
  }
  EXPECT_FALSE(joined) << "a part of an entry is left";
  EXPECT_EQ(back % 10, 0);
  steps.Clear();
  for (int part = 0; part < 500; ++part)
    steps.Add(StepOf(QString::number(part), kMostMarkPoints, part > 0));
  for (back = 0; steps.TakeBack() != nullptr;) ++back;
  EXPECT_EQ(back, 500);
}

TEST(MarkSteps, CountTheirBytesThroughEveryWay) {
  MarkSteps steps;
  steps.Add(StepOf("a", 10));
  const size_t one = steps.Bytes();
  steps.Add(StepOf("b", 20));
  Mark longer = steps.Last()->mark;
  longer.points.resize(30);
  steps.ChangeLast(longer);
  EXPECT_EQ(steps.Bytes(), 2 * one + 20 * sizeof(PagePoint));
  steps.KeepWith("a", "xy");
  EXPECT_EQ(steps.Bytes(), 2 * one + 20 * sizeof(PagePoint) + 4);
  steps.TakeBack();
  steps.TakeBack();
  EXPECT_EQ(steps.BringBack()->mark.kept, "xy");
  EXPECT_FALSE(steps.BringsMore());
  steps.Add(StepOf("c", 10));
  EXPECT_EQ(steps.Bytes(), 2 * one + 4);
}

// Nothing that was drawn is lost with the steps.
TEST(MarkSteps, MarksStayWhenTheirStepsAreDropped) {
  QTemporaryDir folder;
  RealDisk disk;
  Files files(disk);
  FakePlanEngine engine;
  PdfDraw draw(files, engine);
  const QString path = folder.filePath("plan.pdf");
  ASSERT_EQ(files.SaveText(path, "a plan"), 0);
  ASSERT_EQ(draw.OpenFile(path, ""), 0);
  constexpr int kMarks = 300;
  Mark way;
  way.kind = Mark::Kind::Polyline;
  way.points.resize(kMostMarkPoints);
  const QString first = draw.PlaceMark(way);
  for (int i = 1; i < kMarks; ++i) draw.PlaceMark(way);
  int back = 0;
  while (draw.Undo()) ++back;
  EXPECT_LT(back, kMarks);
  EXPECT_EQ(draw.MarksAsDrawn().size(), static_cast<size_t>(kMarks - back));
  EXPECT_NE(draw.FindMark(first), nullptr);
  EXPECT_TRUE(draw.WasDrawnHere(first));
  while (draw.Redo()) --back;
  EXPECT_EQ(back, 0);
  EXPECT_EQ(draw.MarksAsDrawn().size(), static_cast<size_t>(kMarks));
  EXPECT_TRUE(draw.HasUnsavedMarks());
}

}  // namespace
}  // namespace tamo::test
