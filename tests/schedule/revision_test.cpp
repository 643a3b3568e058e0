#include <gtest/gtest.h>

#include "schedule/roommaking.h"
#include "schedule/schedulerevision.h"
#include "support/room.h"

namespace tamo {
namespace {

FinishRow Row(const QStringList& cells) {
  FinishRow row;
  for (int i = 0; i < kScheduleCells; ++i) row.cells[size_t(i)] = cells.value(i);
  return row;
}

KeptSchedule TwoRooms() {
  return {{{"101 HALL", {"101", "HALL", "CPT-1", "", "", "", "", "", "", ""}, {"Carpet"}},
           {"102 MEN", {"102", "MEN", "CT-1", "", "", "", "", "", "", ""}, {}}},
          {}};
}

TEST(Revision, TellsWhatChangedByRoomNumber) {
  const std::vector<FinishRow> rows = {Row({"101", "HALL", "CPT-2"}), Row({"103", "STAIR", "SC"})};
  EXPECT_EQ(ChangesOf(TwoRooms(), rows), QStringList({"101 HALL: floor was CPT-1, is CPT-2.",
                                                      "103 STAIR is new.", "102 MEN is gone."}));
}

TEST(Revision, AnotherPartOfTheBuildingIsNone) {
  const std::vector<FinishRow> rows = {Row({"201", "HALL", "CPT-2"})};
  EXPECT_TRUE(ChangesOf(TwoRooms(), rows).isEmpty());
  const KeptSchedule after = KeptAfter(TwoRooms(), rows, {});
  EXPECT_EQ(after.rooms.size(), 3u);
  EXPECT_EQ(KeptAfter(TwoRooms(), {Row({"101", "HALL"}), Row({"102", "MEN"})}, {}).rooms.size(),
            2u);
}

struct ProjectRoom : test::FormRoom {};

RoomPlan ThreeRooms() {
  RoomPlan plan;
  for (const char* name : {"101 HALL", "102 MEN", "103 STAIR"}) {
    PlannedRoom room;
    room.name = QLatin1String(name);
    room.lines = {{QStringLiteral("Carpet"), QStringLiteral("FLR")}};
    plan.rooms.push_back(room);
  }
  return plan;
}

TEST(MakingRooms, AStopLeavesWholeRoomsAndNamesTheOthers) {
  ProjectRoom room;
  room.shared.JobID = QStringLiteral("12-2611001");
  room.PutLines(room.Data(QStringLiteral("Projects/12-2611001/Rooms/Rooms.tamo")), {});
  const MadeRooms made = MakeRooms(room.files, room.shared, ThreeRooms(),
                                   [](int done, int /*all*/) { return done < 2; });
  ASSERT_EQ(made.rooms.size(), 2u) << made.problem.toStdString();
  EXPECT_TRUE(made.problem.contains("1 rooms are not made, because it was stopped: 103 STAIR"))
      << made.problem.toStdString();
  const QString rooms = room.Data(QStringLiteral("Projects/12-2611001/Rooms/"));
  EXPECT_EQ(room.WholeLinesOf(rooms + "Rooms.tamo"),
            QStringList({"101 HALL", "True", "102 MEN", "True"}));
  EXPECT_TRUE(room.Bytes(rooms + "103 STAIR.rfs").isEmpty());
  // The same again makes the last one.
  EXPECT_EQ(MakeRooms(room.files, room.shared, ThreeRooms()).rooms.size(), 1u);
}

}  // namespace
}  // namespace tamo
