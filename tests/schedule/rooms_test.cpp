#include <gtest/gtest.h>

#include "schedule/finishcodes.h"
#include "schedule/plannedrooms.h"

namespace tamo {
namespace {

FinishRow Row(const QStringList& cells, const QString& height = {}) {
  FinishRow row;
  for (int i = 0; i < kScheduleCells; ++i) row.cells[size_t(i)] = cells.value(i);
  row.height = height;
  return row;
}

TEST(FinishCodes, ACellCanNameSeveral) {
  EXPECT_EQ(CodesOf(QStringLiteral("PT-1/PT-2")), QStringList({"PT-1", "PT-2"}));
  EXPECT_EQ(CodesOf(QStringLiteral("GYP BD / P-3")), QStringList({"GYP BD", "P-3"}));
  EXPECT_EQ(CodesOf(QStringLiteral("P1,P2")), QStringList({"P1", "P2"}));
  EXPECT_TRUE(CodesOf(QStringLiteral("N/A")).isEmpty());
  EXPECT_TRUE(CodesOf(QStringLiteral("-")).isEmpty());
}

TEST(FinishCodes, AllOfASchedule) {
  const auto rows = {
      Row({"101", "HALL", "CPT-1", "RB-1", "P-1", "P-2", "P-1", "P-1", "ACT-1 9'-0\"", "SEE PLAN"},
          "9'-0\"")};
  EXPECT_EQ(CodesOf(rows), QStringList({"CPT-1", "RB-1", "P-1", "P-2", "ACT-1"}));
}

TEST(PlannedRooms, FourEqualWallsAreOneLine) {
  FinishKey key;
  SetSystemOfCode(key, "P-1", "Paint");
  SetSystemOfCode(key, "P-2", "Dark Paint");
  const RoomPlan plan = PlanRooms({Row({"101", "HALL", "", "", "P-1", "P-1", "P-1", "P-1"}),
                                   Row({"102", "MEN", "", "", "P-1", "P-2", "P-1", "P-2"})},
                                  key);
  ASSERT_EQ(plan.rooms.size(), 2u);
  ASSERT_EQ(plan.rooms[0].lines.size(), 1u);
  EXPECT_EQ(plan.rooms[0].lines[0].area, "WALLS");
  ASSERT_EQ(plan.rooms[1].lines.size(), 2u);
  EXPECT_EQ(plan.rooms[1].lines[0].area, "WALLS NS");
  EXPECT_EQ(plan.rooms[1].lines[1].area, "WALLS EW");
  EXPECT_EQ(plan.Lines(), 3);
}

TEST(PlannedRooms, TheFinishAreasCanBeOthers) {
  FinishKey key;
  SetSystemOfCode(key, "P-1", "Paint");
  SetSystemOfCode(key, "C-1", "Carpet");
  FinishAreas areas;
  areas.floor = "FLOORS";
  areas.walls = "WALL";
  const RoomPlan plan = PlanRooms({Row({"101", "HALL", "C-1", "", "P-1"})}, key, areas);
  ASSERT_EQ(plan.rooms[0].lines.size(), 2u);
  EXPECT_EQ(plan.rooms[0].lines[0].area, "FLOORS");
  EXPECT_EQ(plan.rooms[0].lines[1].area, "WALL N");
}

TEST(PlannedRooms, NamesAreTypableAndEachOnce) {
  const RoomPlan plan =
      PlanRooms({Row({"101", "MDF/IDF, WEST"}), Row({"101", "MDF IDF WEST"})}, {});
  ASSERT_EQ(plan.rooms.size(), 2u);
  EXPECT_EQ(plan.rooms[0].name, "101 MDF IDF WEST");
  EXPECT_EQ(plan.rooms[1].name, "101 MDF IDF WEST (2)");
  EXPECT_EQ(plan.told.size(), 2);
}

TEST(PlannedRooms, CodesWithoutASystemAreTold) {
  const RoomPlan plan = PlanRooms({Row({"101", "HALL", "CPT-1", "RB-1"})}, {});
  EXPECT_EQ(plan.leftOut, QStringList({"CPT-1", "RB-1"}));
}

TEST(PlannedRooms, HeightsAreFeet) {
  EXPECT_EQ(HeightInFeet("9'-0\""), "9");
  EXPECT_EQ(HeightInFeet("8'-6\""), "8.5");
  EXPECT_EQ(HeightInFeet("10'"), "10");
  EXPECT_EQ(HeightInFeet("8'-4 1/2\""), "8.375");
  EXPECT_EQ(HeightInFeet("VARIES"), "");
  EXPECT_EQ(HeightInFeet("-"), "");
}

}  // namespace
}  // namespace tamo
