#include "reports/merge.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "reportbench.h"
#include "reports/systemshelf.h"
#include "reports/takeoffwalk.h"

namespace tamo::test {
namespace {

#define S(text) QStringLiteral(text)

QStringList Rows(const std::vector<MergedRow>& rows) {
  QStringList texts;
  for (const MergedRow& row : rows) texts += row.name + u'|' + row.quantity + u'|' + row.units;
  return texts;
}

TEST(Merge, NoRoomsAndNoAreasGiveAnEmptyList) {
  BenchProject project;
  EXPECT_TRUE(Calculate(project.Source()).empty());
}

TEST(Merge, OneRowForASystemInTwoRoomsAndOneAreaInThePlaceOfItsFirstAppearance) {
  BenchProject project;
  project.Room(S("A"), {RoomLine(S("Paint"), S("100")), RoomLine(S("Base"), S("12.5"), S("LF"))});
  project.Room(S("B"), {RoomLine(S("Door"), S("1"), S("EA")), RoomLine(S("Paint"), S("50"))});
  project.Area(S("Yard"), {AreaLine(S("Fence"), S("9"), S("LF")), AreaLine(S("Paint"), S("25"))});
  EXPECT_EQ(Rows(Calculate(project.Source())),
            (QStringList{S("Paint|175|SF"), S("Base|12.5|LF"), S("Door|1|EA"), S("Fence|9|LF")}));
}

TEST(Merge, NamesAreToldApartByCase) {
  BenchProject project;
  project.Room(S("A"), {RoomLine(S("Paint"), S("1")), RoomLine(S("paint"), S("2"))});
  EXPECT_EQ(Rows(Calculate(project.Source())), (QStringList{S("Paint|1|SF"), S("paint|2|SF")}));
}

TEST(Merge, TheFirstLineDecidesTheUnits) {
  BenchProject project;
  project.Room(S("A"),
               {RoomLine(S("Paint"), S("1"), S("SF")), RoomLine(S("Paint"), S("2"), S("SY"))});
  EXPECT_EQ(Rows(Calculate(project.Source())), QStringList{S("Paint|3|SF")});
}

TEST(Merge, UnitsOfAnAreaAreTrimmed) {
  BenchProject project;
  project.Area(S("A"), {AreaLine(S("Fence"), S("9"), S("  LF "))});
  EXPECT_EQ(Rows(Calculate(project.Source())), QStringList{S("Fence|9|LF")});
}

TEST(Merge, UnitsOfALineShorterThan47StandBehindColumn43) {
  BenchProject project;
  project.Room(S("A"), {S("Door").leftJustified(40) + S("12 EA")});
  EXPECT_EQ(Rows(Calculate(project.Source())), QStringList{S("Door|12 EA|EA")});
}

TEST(Merge, ASingleQuantityStandsAsTypedAndASumAsNumberText) {
  BenchProject project;
  project.Room(S("A"), {RoomLine(S("One"), S("1.50")), RoomLine(S("Two"), S("1.50"))});
  project.Room(S("B"), {RoomLine(S("Two"), S("1.50"))});
  EXPECT_EQ(Rows(Calculate(project.Source())), (QStringList{S("One|1.50|SF"), S("Two|3|SF")}));
}

TEST(Merge, AFoundSystemIsReadFromColumn32AndANewOneFromColumn33) {
  BenchProject project;
  // Column 32 holds a digit that the first line of a system leaves out.
  const QString line = S("Paint").leftJustified(31) + S("7") + S("12").leftJustified(14) + S(" SF");
  project.Room(S("A"), {line});
  EXPECT_EQ(Rows(Calculate(project.Source())), QStringList{S("Paint|12|SF")});
  project.Room(S("B"), {line});
  EXPECT_EQ(Rows(Calculate(project.Source())), QStringList{S("Paint|724|SF")});
}

TEST(Merge, AFoundSystemOfAnAreaIsReadFromColumn21) {
  BenchProject project;
  const QString line = S("Fence").leftJustified(20) + S("7") + S("12").leftJustified(14) + S(" LF");
  project.Area(S("A"), {line, line});
  EXPECT_EQ(Rows(Calculate(project.Source())), QStringList{S("Fence|724|LF")});
}

TEST(Merge, AMissingListOfRoomsSkipsAllRoomsAndGoesOnWithTheAreas) {
  BenchProject project;
  project.Room(S("A"), {RoomLine(S("Paint"), S("100"))});
  project.Area(S("Yard"), {AreaLine(S("Fence"), S("9"), S("LF"))});
  project.Remove(S("Rooms/Rooms.tamo"));
  EXPECT_EQ(Rows(Calculate(project.Source())), QStringList{S("Fence|9|LF")});
}

TEST(Merge, AMissingRoomFileLeavesItsListEmpty) {
  BenchProject project;
  project.Room(S("A"), {RoomLine(S("Paint"), S("100"))});
  project.Room(S("B"), {RoomLine(S("Paint"), S("1"))});
  project.Remove(S("Rooms/A.rfs"));
  EXPECT_EQ(Rows(Calculate(project.Source())), QStringList{S("Paint|1|SF")});
}

TEST(Merge, ARoomNameThatLeavesItsFolderIsNotRead) {
  BenchProject project;
  project.Room(S("A"), {RoomLine(S("Paint"), S("1"))});
  project.Write(S("Secret.rfs"), {S("9"), RoomLine(S("Stolen"), S("1"))});
  project.Write(S("Rooms/Rooms.tamo"), {S("../Secret"), S("True"), S("A"), S("True")});
  EXPECT_EQ(Rows(Calculate(project.Source())), QStringList{S("Paint|1|SF")});
}

TEST(Merge, EmptyLinesOfARoomCountAsLines) {
  BenchProject project;
  project.Room(S("A"), {S(""), RoomLine(S("Paint"), S("1"))});
  EXPECT_EQ(Rows(Calculate(project.Source())), (QStringList{S("||"), S("Paint|1|SF")}));
}

TEST(Merge, SumsAreCutTo15Digits) {
  BenchProject project;
  QStringList lines;
  for (int i = 0; i < 10; ++i) lines += RoomLine(S("Paint"), S(".1"));
  project.Room(S("A"), lines);
  EXPECT_EQ(Rows(Calculate(project.Source())), QStringList{S("Paint|1|SF")});
}

TEST(Systems, AFileIsReadLineByLine) {
  BenchProject project;
  project.Write(
      S("Systems/Wall.sys"),
      {S("Wall"), S("SF"),    S("0.00"), S("001002003"), S("note"), S(""),      S("\x01"), S(""),
       S(""),     S("Stud"),  S("LF"),   S(".62"),       S(".75"),  S("opu"),   S("42"),   S("upm"),
       S("5"),    S("46.50"), S(""),     S(""),          S(""),     S("Board"), S("SHT")});
  PricedSystem system;
  ASSERT_EQ(LoadSystem(project.Source(), S("Wall"), system), kNoError);
  EXPECT_EQ(system.file.units, S("SF"));
  EXPECT_EQ(system.file.notes, S("note\r\n\r\n"));
  ASSERT_EQ(system.blocks.size(), 2u);
  EXPECT_EQ(system.blocks[0].material, S("Stud"));
  EXPECT_EQ(system.blocks[0].price, .62);
  EXPECT_EQ(system.blocks[0].ratio, .75);
  EXPECT_EQ(system.blocks[0].orderTag, OrderTag::Opu);
  EXPECT_EQ(system.blocks[0].laborTag, LaborTag::Upm);
  EXPECT_EQ(system.blocks[0].waste, 5);
  EXPECT_EQ(system.blocks[0].wage, 46.5);
  // A last block of fewer than twelve lines counts, its missing lines are empty.
  EXPECT_EQ(system.blocks[1].orderUnit, S("SHT"));
  EXPECT_EQ(system.blocks[1].orderTag, OrderTag::None);
  EXPECT_EQ(system.blocks[1].price, 0);
}

TEST(Systems, WithoutTheEndMarkTheRestIsNotes) {
  BenchProject project;
  project.Write(S("Systems/Wall.sys"),
                {S("Wall"), S("SF"), S("0.00"), S(""), S("Stud"), S("LF"), S("1")});
  PricedSystem system;
  LoadSystem(project.Source(), S("Wall"), system);
  EXPECT_TRUE(system.blocks.empty());
  EXPECT_EQ(system.file.notes, S("Stud\r\nLF\r\n1\r\n"));
}

TEST(Systems, WithoutAFileTheTextsOfTheSystemBeforeStay) {
  BenchProject project;
  project.System(S("Guard"), S("EA"), S("38.50"), {}, S("010020030"));
  project.System(S("Wall"), S("SF"), S("0.00"), {{S("Stud")}});
  const ReportSource source = project.Source();
  SystemShelf shelf(source);
  shelf.Load(u"Gone");
  EXPECT_EQ(shelf.UnitPrice(), 0);
  EXPECT_FALSE(shelf.Found());
  shelf.Load(u"Wall");
  EXPECT_EQ(shelf.Blocks().size(), 1u);
  shelf.Load(u"Guard");
  shelf.Load(u"Gone");
  EXPECT_EQ(shelf.UnitPrice(), 38.5);
  EXPECT_EQ(shelf.Units(), S("EA"));
  EXPECT_TRUE(shelf.Blocks().empty());
}

TEST(Systems, OnlyTheProjectsCopyIsRead) {
  BenchProject project;
  QDir().mkpath(project.dataPath + S("Systems"));
  project.files.SaveLines(project.dataPath + S("Systems/Wall.sys"), {S("Wall"), S("SF"), S("5")});
  PricedSystem system;
  EXPECT_EQ(LoadSystem(project.Source(), S("Wall"), system), kFileNotFound);
}

TEST(Systems, EachFileIsReadOnce) {
  class CountingDisk : public RealDisk {
   public:
    int reads = 0;
    int ReadStamped(const QString& path, QByteArray& bytes, FileStamp& stamp) override {
      return Disk::ReadStamped(path, bytes, stamp);
    }
    int Read(const QString& path, QByteArray& bytes) override {
      if (path.endsWith(QLatin1String(".sys"))) ++reads;
      return RealDisk::Read(path, bytes);
    }
  };
  BenchProject project;
  project.System(S("Wall"), S("SF"), S("0.00"), {{S("Stud")}});
  project.System(S("Door"), S("EA"), S("5"));
  CountingDisk disk;
  Files files(disk);
  const ReportSource source{files, {project.folder, S("/")}, {}, false};
  SystemShelf shelf(source);
  for (int i = 0; i < 3; ++i) {
    shelf.Load(u"Wall");
    shelf.Load(u"Door");
    EXPECT_EQ(shelf.UnitPrice(), 5);
  }
  EXPECT_EQ(disk.reads, 2);
}

}  // namespace
}  // namespace tamo::test
