#include "plans/carriedmarks.h"

#include <gtest/gtest.h>

using namespace tamo;

namespace {

constexpr PageSize kSheet = {612, 792};

Mark Drawn(Mark::Kind kind, std::vector<PagePoint> points, const char* name) {
  Mark mark;
  mark.kind = kind;
  mark.page = 3;
  mark.points = std::move(points);
  mark.label = "10.0 feet @ 1/4\"=1'";
  mark.name = name;
  return mark;
}

SheetsCompared Known(std::vector<ChangedPlace> places = {}) {
  SheetsCompared known;
  known.page = 5;
  known.oldPage = 3;
  known.alignment.fit = Fit(1, 0, 20, -10);
  known.places = std::move(places);
  return known;
}

}  // namespace

TEST(CarriedMarks, ComeWhereTheSheetsLieOnEachOther) {
  const std::vector<Mark> old = {Drawn(Mark::Kind::Line, {{100, 100}, {200, 100}}, "tamo-1-a"),
                                 Drawn(Mark::Kind::Circle, {{300, 300}}, "tamo-2-a")};
  const CarriedMarks carried = CarryMarks(old, Known(), kSheet, {});
  ASSERT_EQ(carried.marks.size(), 2U);
  EXPECT_EQ(carried.marks[0].page, 5);
  EXPECT_NEAR(carried.marks[0].points[1].x, 220, 1e-9);
  EXPECT_NEAR(carried.marks[0].points[1].y, 90, 1e-9);
  EXPECT_EQ(carried.marks[0].label, old[0].label);
  EXPECT_TRUE(carried.changed.isEmpty());
}

TEST(CarriedMarks, OfOtherSheetsAndThoseThatAreThereAreLeft) {
  std::vector<Mark> old = {Drawn(Mark::Kind::Line, {{100, 100}, {200, 100}}, "tamo-1-a"),
                           Drawn(Mark::Kind::Line, {{100, 150}, {200, 150}}, "tamo-2-a")};
  old[1].page = 4;
  const CarriedMarks carried = CarryMarks(old, Known(), kSheet, {old[0]});
  EXPECT_TRUE(carried.marks.empty());
  EXPECT_EQ(carried.there, 1);
}

TEST(CarriedMarks, ThoseOffTheSheetAreCounted) {
  const std::vector<Mark> old = {Drawn(Mark::Kind::Line, {{100, 5}, {200, 5}}, "tamo-1-a")};
  const CarriedMarks carried = CarryMarks(old, Known(), kSheet, {});
  EXPECT_TRUE(carried.marks.empty());
  EXPECT_EQ(carried.outside, 1);
}

TEST(CarriedMarks, AChangedPlaceFlagsWhatGoesThroughIt) {
  const ChangedPlace place = {
      ChangedPlace::Kind::Changed, {160, 80, 180, 100}, "8'-0\" became 9'-0\""};
  const std::vector<Mark> old = {
      Drawn(Mark::Kind::Line, {{100, 100}, {200, 100}}, "tamo-1-a"),
      Drawn(Mark::Kind::Line, {{100, 300}, {200, 300}}, "tamo-2-a"),
      Drawn(Mark::Kind::Area, {{10, 20}, {400, 20}, {400, 400}, {10, 400}}, "tamo-3-a")};
  const CarriedMarks carried = CarryMarks(old, Known({place}), kSheet, {});
  ASSERT_EQ(carried.marks.size(), 3U);
  EXPECT_EQ(carried.marks[0].label, "10.0 feet @ 1/4\"=1' - check: the drawing changed here");
  EXPECT_EQ(carried.marks[1].label, old[1].label);
  EXPECT_NE(carried.marks[2].label, old[2].label) << "the place lies inside the area";
  ASSERT_EQ(carried.changed.size(), 2);
  EXPECT_EQ(carried.changed[0], "Line 10.0 feet @ 1/4\"=1' (8'-0\" became 9'-0\")");
  EXPECT_DOUBLE_EQ(ValueOfMark(carried.marks[0]), 10);
}

TEST(CarriedMarks, AFlagIsNotPutTwice) {
  const ChangedPlace place = {ChangedPlace::Kind::Gone, {0, 0, 600, 700}, "Lines gone"};
  std::vector<Mark> old = {Drawn(Mark::Kind::Line, {{100, 100}, {200, 100}}, "tamo-1-a")};
  old[0].label += " - check: the drawing changed here";
  EXPECT_EQ(CarryMarks(old, Known({place}), kSheet, {}).marks[0].label, old[0].label);
}

TEST(CarriedMarks, ACircleKeepsItsNumberAndSaysInItsTitleThatTheDrawingChanged) {
  const ChangedPlace place = {ChangedPlace::Kind::Gone, {0, 0, 600, 700}, "Lines gone"};
  std::vector<Mark> old = {Drawn(Mark::Kind::Grouped, {{100, 100}}, "tamo-1-a"),
                           Drawn(Mark::Kind::Circle, {{200, 100}}, "tamo-2-a"),
                           Drawn(Mark::Kind::Legend, {{300, 100}}, "tamo-3-a")};
  old[0].group = "Lights";
  old[0].label = "Lights 12";
  old[0].title = QString(kLongestTitle, 'x');
  old[1].label.clear();
  old[2].label = "Totals of the plan\nPaint\t10.0 SF";
  const CarriedMarks carried = CarryMarks(old, Known({place}), kSheet, {});
  ASSERT_EQ(carried.marks.size(), 3U);
  EXPECT_EQ(carried.marks[0].label, "Lights 12");
  EXPECT_TRUE(carried.marks[0].title.endsWith("xx - check: the drawing changed here"));
  EXPECT_EQ(carried.marks[0].title.size(), kLongestTitle);
  EXPECT_EQ(carried.marks[1].label, "");
  EXPECT_EQ(carried.marks[1].title, "Check: the drawing changed here");
  EXPECT_EQ(carried.marks[2], [&] {
    Mark legend = old[2];
    legend.page = 5;
    legend.points = carried.marks[2].points;
    return legend;
  }()) << "a legend is out of date at most";
  EXPECT_TRUE(SaysDrawingChanged(carried.marks[0]));
  EXPECT_TRUE(SaysDrawingChanged(carried.marks[1]));
  Mark looked = carried.marks[1];
  DropDrawingChanged(looked);
  EXPECT_EQ(looked.title, "");
}

TEST(CarriedMarks, TotalsOfGroupsAreMadeAnewAndNotCarried) {
  const std::vector<Mark> old = {Drawn(Mark::Kind::Total, {{100, 100}}, "tamo-total-3-aa"),
                                 Drawn(Mark::Kind::Circle, {{100, 100}}, "tamo-1-a")};
  EXPECT_EQ(CarryMarks(old, Known(), kSheet, {}).marks.size(), 1U);
}
