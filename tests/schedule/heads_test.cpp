#include <gtest/gtest.h>

#include "schedule/headroles.h"
#include "schedule/headwords.h"

namespace tamo {
namespace {

std::vector<HeadRole> Roles(const std::vector<QStringList>& heads) {
  return RolesOf(heads);
}

ColumnRole RoleOf(const QStringList& head) {
  return RolesOf({head}).front().role;
}

TEST(HeadRoles, TheUsualFormsOfANumber) {
  for (const char* head : {"NO.", "RM NO", "ROOM #", "ROOM NO.", "RM. NO.", "NUMBER", "Rm Number",
                           "SPACE NO.", "ROOM NUMBER"}) {
    EXPECT_EQ(RoleOf({QString::fromLatin1(head)}), ColumnRole::Number) << head;
  }
}

TEST(HeadRoles, TheUsualFormsOfTheFinishes) {
  for (const char* head : {"FLR", "FLOOR FIN.", "FLOOR FINISH", "FLOOR MAT'L", "FLOORING"}) {
    EXPECT_EQ(RoleOf({QString::fromLatin1(head)}), ColumnRole::Floor) << head;
  }
  for (const char* head : {"BASE", "BASE MATL", "WALL BASE", "BASE MAT'L"}) {
    EXPECT_EQ(RoleOf({QString::fromLatin1(head)}), ColumnRole::Base) << head;
  }
  for (const char* head : {"CLG", "CEILING", "CEIL. MAT'L", "CLG. FIN.", "CEILING TYPE"}) {
    EXPECT_EQ(RoleOf({QString::fromLatin1(head)}), ColumnRole::Ceiling) << head;
  }
  for (const char* head : {"CLG HT", "CEILING HGT", "CEILING HEIGHT", "HEIGHT", "CLG. HT."}) {
    EXPECT_EQ(RoleOf({QString::fromLatin1(head)}), ColumnRole::Height) << head;
  }
  for (const char* head : {"REMARKS", "NOTES", "COMMENTS", "REMARKS / NOTES"}) {
    EXPECT_EQ(RoleOf({QString::fromLatin1(head)}), ColumnRole::Remarks) << head;
  }
}

TEST(HeadRoles, AWallIsASideByItsOwnHeadOrByThatAboveIt) {
  EXPECT_EQ(RoleOf({"NORTH WALL"}), ColumnRole::North);
  EXPECT_EQ(RoleOf({"WALLS", "E"}), ColumnRole::East);
  EXPECT_EQ(RoleOf({"FINISHES", "WALL FINISH", "SOUTH"}), ColumnRole::South);
  EXPECT_EQ(RoleOf({"WALLS", "W", "FIN."}), ColumnRole::West);
  EXPECT_EQ(RoleOf({"WALLS"}), ColumnRole::Walls);
  EXPECT_EQ(RoleOf({"WALLS", "N/S"}), ColumnRole::NorthSouth);
  EXPECT_EQ(RoleOf({"WALLS", "NO"}), ColumnRole::North);
}

TEST(HeadRoles, SideLettersAloneNeedCompany) {
  const auto roles = Roles({{"RM"}, {"NAME"}, {"FLR"}, {"N"}, {"S"}, {"E"}, {"W"}});
  EXPECT_EQ(roles[0].role, ColumnRole::Number);
  EXPECT_EQ(roles[3].role, ColumnRole::North);
  EXPECT_EQ(roles[4].role, ColumnRole::South);
  EXPECT_NE(RoleOf({"S"}), ColumnRole::South);
}

TEST(HeadRoles, LetteredWallsAreTakenInOrderAndNeverSure) {
  const auto roles = Roles({{"WALLS", "A"}, {"WALLS", "B"}, {"WALLS", "C"}, {"WALLS", "D"}});
  EXPECT_EQ(roles[0].role, ColumnRole::North);
  EXPECT_EQ(roles[3].role, ColumnRole::West);
  EXPECT_TRUE(roles[1].guessed);
}

TEST(HeadRoles, WhatIsNoFinishIsOther) {
  for (const char* head :
       {"AREA (SF)", "DOOR", "FLOOR COLOR", "WAINSCOT HT", "BASE HEIGHT", "DEPT."}) {
    EXPECT_EQ(RoleOf({QString::fromLatin1(head)}), ColumnRole::Other) << head;
  }
}

TEST(HeadRoles, ARoomAloneIsWhatIsMissing) {
  EXPECT_EQ(Roles({{"NO."}, {"ROOM"}, {"FLOOR"}})[1].role, ColumnRole::Name);
  EXPECT_EQ(Roles({{"ROOM"}, {"NAME"}, {"FLOOR"}})[0].role, ColumnRole::Number);
  EXPECT_EQ(Roles({{"ROOM"}, {"FLOOR"}, {"BASE"}})[0].role, ColumnRole::NumberAndName);
}

TEST(TableKinds, HeadsAndTitleTellThem) {
  double sure = 0;
  EXPECT_EQ(KindOf({{"NO."}, {"NAME"}, {"FLOOR"}, {"BASE"}, {"WALLS"}, {"CLG"}}, {}, sure),
            TableKind::Finish);
  EXPECT_GT(sure, 0.8);
  EXPECT_EQ(KindOf({{"DOOR NO."}, {"SIZE"}, {"FRAME"}, {"HDWR"}, {"REMARKS"}}, {}, sure),
            TableKind::Door);
  EXPECT_EQ(KindOf({{"CODE"}, {"DESCRIPTION"}, {"MANUFACTURER"}}, "FINISH LEGEND", sure),
            TableKind::Legend);
  EXPECT_EQ(KindOf({{"ITEM"}, {"QTY"}, {"PRICE"}}, {}, sure), TableKind::Unknown);
}

TEST(HeadWords, RoomNumbersAndGroups) {
  for (const char* text : {"101", "101A", "B-12", "1.01", "C101-2", "100.1", "A 12"}) {
    EXPECT_TRUE(LooksLikeNumber(QString::fromLatin1(text))) << text;
  }
  for (const char* text : {"LOBBY", "FIRST FLOOR", "", "-"}) {
    EXPECT_FALSE(LooksLikeNumber(QString::fromLatin1(text))) << text;
  }
  EXPECT_TRUE(LooksLikeGroup("FIRST FLOOR"));
  EXPECT_TRUE(LooksLikeGroup("Level 2"));
  EXPECT_FALSE(LooksLikeGroup("LOBBY"));
}

}  // namespace
}  // namespace tamo
