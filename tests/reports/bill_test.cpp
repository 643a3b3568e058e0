#include "reports/bill.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "reportbench.h"

namespace tamo::test {
namespace {

#define S(text) QStringLiteral(text)

const QString kBlank = S("____________");

QStringList Bill(BenchProject& project, bool whole = false) {
  ReportSource source = project.Source();
  source.wholeQuantities = whole;
  return BillofMaterial(source).lines.ToList();
}

QString BillLine(const QString& material, const QString& order, const QString& unit) {
  return S("     ") + material.leftJustified(21) + order.rightJustified(10) + S("  ") +
         unit.leftJustified(10) + kBlank;
}

TEST(Bill, AProjectOfUnitPricedSystemsGivesTheTitleAndNothingElse) {
  BenchProject project;
  project.System(S("Guard"), S("EA"), S("38.50"));
  project.Room(S("A"), {RoomLine(S("Guard"), S("4"), S("EA"))});
  EXPECT_EQ(Bill(project), (QStringList{S("Bill Of Materials"), S("")}));
}

TEST(Bill, AShortQuantityOfTheFirstRoomLineCountsAs0AndLaterOnesInFull) {
  BenchProject project;
  project.System(S("Door"), S("EA"), S(""), {{S("Slab"), S("EA"), S("1"), S("1"), S("opu")}});
  project.Room(S("A"), {RoomLine(S("Door"), S("4"), S("EA"))});
  // A material that appears is ordered at least once.
  EXPECT_EQ(Bill(project)[2], BillLine(S("Slab"), S("1"), S("EA")));
  project.Room(S("B"),
               {RoomLine(S("Door"), S("7"), S("EA")), RoomLine(S("Door"), S("20"), S("EA"))});
  EXPECT_EQ(Bill(project)[2], BillLine(S("Slab"), S("27"), S("EA")));
  EXPECT_EQ(Bill(project).size(), 4);
}

TEST(Bill, TheFirstRoomLineIsReadInTheTenColumnsFrom33AndLaterOnesFrom37) {
  BenchProject project;
  project.System(S("Wall"), S("SF"), S(""), {{S("Board"), S("SHT"), S("1"), S("1"), S("opu")}});
  project.Room(S("A"), {RoomLine(S("Wall"), S("12345678901234"))});
  EXPECT_EQ(Bill(project)[2], BillLine(S("Board"), S("1234567890"), S("SHT")));
  project.Write(S("Rooms/A.rfs"),
                {S("9"), RoomLine(S("Wall"), S("0")), RoomLine(S("Wall"), S("12345678901234"))});
  EXPECT_EQ(Bill(project)[2], BillLine(S("Board"), S("5678901234"), S("SHT")));
}

TEST(Bill, TheFirstAreaLineWithOrderUnitsPerUnitStopsShortOfColumn35) {
  BenchProject project;
  project.System(S("Opu"), S("EA"), S(""), {{S("Per Unit"), S("EA"), S("1"), S("1"), S("opu")}});
  project.System(S("Upo"), S("EA"), S(""), {{S("Per Order"), S("EA"), S("1"), S("1"), S("upo")}});
  project.Area(S("A"), {AreaLine(S("Opu"), S("12")), AreaLine(S("Upo"), S("12"))});
  const QStringList lines = Bill(project);
  EXPECT_EQ(lines[2], BillLine(S("Per Unit"), S("1"), S("EA")));
  EXPECT_EQ(lines[4], BillLine(S("Per Order"), S("12"), S("EA")));
  project.Area(S("B"), {AreaLine(S("Opu"), S("12"))});
  EXPECT_EQ(Bill(project)[2], BillLine(S("Per Unit"), S("12"), S("EA")));
}

TEST(Bill, TheElevenColumnsOfAnArea) {
  BenchProject project;
  project.System(S("Opu"), S("EA"), S(""), {{S("Per Unit"), S("EA"), S("1"), S("1"), S("opu")}});
  project.Area(S("A"), {AreaLine(S("Opu"), S("12345678901234"))});  // from column 22
  EXPECT_THROW(Bill(project), RunTimeFailure);                      // eleven digits are too wide
  project.Area(S("B"), {});
  project.Write(S("ATOs/A.ato"), {AreaLine(S("Opu"), S("1234567890.123"))});
  EXPECT_EQ(Bill(project)[2], BillLine(S("Per Unit"), S("1234567890"), S("EA")));
  project.Write(S("ATOs/A.ato"),
                {AreaLine(S("Opu"), S("0")), AreaLine(S("Opu"), S("1234567890.123"))});
  EXPECT_EQ(Bill(project)[2], BillLine(S("Per Unit"), S("4567891"), S("EA")));  // 4567890.123
}

TEST(Bill, RaisedOnceOnTheMergedTotal) {
  BenchProject project;
  project.System(S("Wall"), S("SF"), S(""), {{S("Board"), S("SHT"), S("1"), S("1"), S("opu")}});
  project.Room(S("A"), {});
  const auto bill = [&](const QString& quantity) {
    project.Write(S("Rooms/A.rfs"),
                  {S("9"), RoomLine(S("Wall"), S("0")), RoomLine(S("Wall"), quantity)});
    return Bill(project)[2];
  };
  EXPECT_EQ(bill(S("12.05")), BillLine(S("Board"), S("12"), S("SHT")));
  EXPECT_EQ(bill(S("12.15")), BillLine(S("Board"), S("13"), S("SHT")));
}

TEST(Bill, WasteIsTakenLineByLineAndNothingIsRoundedBeforeTheMerge) {
  BenchProject project;
  project.System(S("Wall"), S("SF"), S(""),
                 {{S("Board"), S("SHT"), S("1"), S("3"), S("upo"), S("1"), S("upm"), S("10")}});
  QStringList lines{RoomLine(S("Wall"), S("0"))};
  for (int i = 0; i < 9; ++i) lines += RoomLine(S("Wall"), S("1"));
  project.Room(S("A"), lines);
  NoteBook notes;
  bool partly = false;
  const std::vector<BillRow> rows = GetMaterial(project.Source(), notes, partly);
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_NEAR(rows[0].quantity, 3.3, 1e-12);
}

TEST(Bill, TheSameMaterialOfTwoSystemsIsOneRowWithTheOrderUnitReadLast) {
  BenchProject project;
  project.System(S("One"), S("SF"), S(""), {{S("Screws"), S("BX"), S("1"), S("1"), S("opu")}});
  project.System(S("Two"), S("SF"), S(""), {{S("Screws"), S(" CASE "), S("1"), S("1"), S("opu")}});
  project.Room(S("A"), {RoomLine(S("One"), S("0")), RoomLine(S("One"), S("10")),
                        RoomLine(S("Two"), S("5"))});
  EXPECT_EQ(Bill(project), (QStringList{S("Bill Of Materials"), S(""),
                                        BillLine(S("Screws"), S("15"), S("CASE")), S("")}));
}

TEST(Bill, MaterialsAreToldApartByCase) {
  BenchProject project;
  project.System(S("One"), S("SF"), S(""), {{S("Screws")}, {S("screws")}});
  project.Room(S("A"), {RoomLine(S("One"), S("0"))});
  EXPECT_EQ(Bill(project).size(), 6);
}

TEST(Bill, AMaterialNameLongerThan21CharactersStopsItWithItsNameAndLength) {
  BenchProject project;
  project.System(S("One"), S("SF"), S(""), {{S("A material of 22 chars")}});
  project.Room(S("A"), {RoomLine(S("One"), S("0"))});
  try {
    Bill(project);
    ADD_FAILURE() << "it did not stop";
  } catch (const RunTimeFailure& failure) {
    EXPECT_TRUE(failure.text.contains(S("A material of 22 chars")));
    EXPECT_TRUE(failure.text.contains(S("22 characters")));
  }
  project.System(S("One"), S("SF"), S(""), {{S("A material of 21 char")}});
  EXPECT_EQ(Bill(project)[2], BillLine(S("A material of 21 char"), S("1"), S("EA")));
}

TEST(Bill, ABlockWithoutItsTagTakesTheOrderQuantityBeforeItUnraised) {
  BenchProject project;
  project.System(S("One"), S("SF"), S(""),
                 {{S("First"), S("EA"), S("1"), S("4"), S("upo")},
                  {S("Second"), S("EA"), S("1"), S("4"), S("")}});
  project.Room(S("A"), {RoomLine(S("One"), S("0")), RoomLine(S("One"), S("10"))});
  NoteBook notes;
  bool partly = false;
  const std::vector<BillRow> rows = GetMaterial(project.Source(), notes, partly);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[1].quantity, 2.5);
}

TEST(Bill, ReadWholeQuantitiesTakesTheWholeColumn) {
  BenchProject project;
  project.System(
      S("Door"), S("EA"), S(""),
      {{S("Slab"), S("EA"), S("1"), S("1"), S("opu"), S("1"), S("upm"), S("0"), S("9")}});
  project.Room(S("A"), {RoomLine(S("Door"), S("4"), S("EA"))});
  project.Area(S("Yard"), {AreaLine(S("Door"), S("10"), S("EA"))});
  const Report part = BillofMaterial(project.Source());
  EXPECT_TRUE(part.partlyRead);
  ASSERT_EQ(part.notes.size(), 1u);
  EXPECT_EQ(part.notes[0].rows, std::vector<int>{2});
  EXPECT_EQ(part.lines[2], BillLine(S("Slab"), S("10"), S("EA")));
  EXPECT_EQ(Bill(project, true)[2], BillLine(S("Slab"), S("14"), S("EA")));
  ReportSource whole = project.Source();
  whole.wholeQuantities = true;
  EXPECT_FALSE(BillofMaterial(whole).partlyRead);
  EXPECT_TRUE(BillofMaterial(whole).notes.empty());
}

TEST(Bill, ASystemWithoutAFileAndAMaterialThatReads0AreNoted) {
  BenchProject project;
  project.System(
      S("Door"), S("EA"), S(""),
      {{S("Slab"), S("EA"), S("1"), S("1"), S("upo"), S("1"), S("upm"), S("0"), S("9")},
       {S("Free"), S("EA"), S("0"), S("1"), S("upo"), S("1"), S("upm"), S("0"), S("9")}});
  project.Room(S("A"), {RoomLine(S("Gone"), S("1")), RoomLine(S("Door"), S("0")),
                        RoomLine(S("Door"), S("5")), RoomLine(S("Gone"), S("1"))});
  const Report report = BillofMaterial(project.Source());
  ASSERT_EQ(report.notes.size(), 2u);
  EXPECT_TRUE(report.notes[0].text.contains(S("\"Gone\" has no file")));
  EXPECT_TRUE(report.notes[0].rows.empty());
  EXPECT_TRUE(report.notes[1].text.contains(S("\"Free\"")));
  EXPECT_EQ(report.notes[1].rows, std::vector<int>{4});
}

}  // namespace
}  // namespace tamo::test
