#include "plans/savedmarks.h"

#include <gtest/gtest.h>

using namespace tamo;

namespace {

struct Sheets : GroupSheets {
  using MarkedSheets::FillMarks;

  Sheets() { FillSheets({PageSize(), PageSize()}); }
  QString Line(double y) {
    Mark mark;
    mark.points = {{0, y}, {100, y}};
    return PlaceMark(mark);
  }
  void Move(const QString& name, double y) {
    Mark mark = *FindMark(name);
    mark.points = {{0, y}, {100, y}};
    ChangeMark(mark);
  }
  void Count(double x) { AddToGroup({{x, 10}}); }
};

QStringList Names(const std::vector<Mark>& marks) {
  QStringList names;
  for (const Mark& mark : marks) names << mark.name;
  return names;
}

}  // namespace

TEST(SavedMarks, WhatIsNewIsAddedWhatIsGoneIsRemoved) {
  Sheets sheets;
  SavedMarks saved;
  EXPECT_TRUE(saved.ChangesTo(sheets).Empty());
  const QString first = sheets.Line(10);
  const QString second = sheets.Line(20);
  EXPECT_EQ(Names(saved.ChangesTo(sheets).added), QStringList({first, second}));
  saved.Saved(sheets);
  EXPECT_TRUE(saved.ChangesTo(sheets).Empty());
  sheets.RemoveMark(first);
  const MarkChanges changes = saved.ChangesTo(sheets);
  EXPECT_TRUE(changes.added.empty());
  EXPECT_EQ(changes.removed, QStringList({first}));
}

TEST(SavedMarks, AChangedMarkIsRemovedAndAdded) {
  Sheets sheets;
  SavedMarks saved;
  const QString name = sheets.Line(10);
  saved.Saved(sheets);
  sheets.Move(name, 30);
  MarkChanges changes = saved.ChangesTo(sheets);
  EXPECT_EQ(changes.removed, QStringList({name}));
  ASSERT_EQ(Names(changes.added), QStringList({name}));
  EXPECT_EQ(changes.added[0].points[0].y, 30);
  sheets.Undo();
  EXPECT_TRUE(saved.ChangesTo(sheets).Empty()) << "as it stands in the file";
}

TEST(SavedMarks, TheMarksOfAFileAreTheSavedOnes) {
  Sheets sheets;
  sheets.Line(10);
  sheets.Line(20);
  SavedMarks saved;
  saved.Read(sheets.MarksAsDrawn());
  EXPECT_TRUE(saved.ChangesTo(sheets).Empty());
  saved.Read({});
  EXPECT_EQ(saved.ChangesTo(sheets).added.size(), 2U) << "another file, nothing left of the first";
}

TEST(SavedMarks, TotalsAreMadeAnewWhereTheirCirclesChange) {
  Sheets sheets;
  SavedMarks saved;
  sheets.ChooseGroup("Lights");
  sheets.Count(10);
  MarkChanges changes = saved.ChangesTo(sheets);
  EXPECT_EQ(changes.added.size(), 2U) << "the circle and its total";
  saved.Saved(sheets);
  EXPECT_TRUE(saved.ChangesTo(sheets).Empty());
  const QString total = sheets.Totals().front().name;
  sheets.Count(50);
  changes = saved.ChangesTo(sheets);
  EXPECT_EQ(changes.removed, QStringList({total}));
  EXPECT_EQ(changes.added.size(), 2U);
  EXPECT_TRUE(changes.added.back().label.contains("2"));
}

TEST(SavedMarks, WithAnotherProgramsCirclesTheTotalsCountThoseToo) {
  Sheets mine;
  SavedMarks saved;
  mine.ChooseGroup("Lights");
  mine.Count(10);
  const MarkChanges changes = saved.ChangesTo(mine);
  // The other one has counted one of the same name and number.
  Sheets theirs;
  theirs.ChooseGroup("Lights");
  theirs.Count(80);
  std::vector<Mark> inFile = theirs.MarksAsDrawn();
  for (const Mark& total : theirs.Totals()) inFile.push_back(total);
  saved.Read(inFile);
  std::vector<Mark> both = theirs.MarksAsDrawn();
  both.push_back(mine.MarksAsDrawn().front());
  mine.FillMarks(both);
  const MarkChanges anew = saved.ChangesAnew(changes, mine);
  ASSERT_EQ(anew.added.size(), 2U);
  EXPECT_EQ(anew.added[0].label, "Lights 2") << "numbers that both gave are told apart";
  EXPECT_EQ(anew.added[1].kind, Mark::Kind::Total);
  EXPECT_TRUE(anew.added[1].label.contains("2")) << anew.added[1].label.toStdString();
  EXPECT_EQ(anew.removed, QStringList({theirs.Totals().front().name}));
}
