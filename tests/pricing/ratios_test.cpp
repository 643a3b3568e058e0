#include <gtest/gtest.h>

#include "pricing/pricingroom.h"

// The two conversion numbers in the chain: prompts, toggles, and the direction that is stored.

namespace tamo {
namespace {

using test::Block;
using test::Drywall;
using test::PricingRoom;
using test::Stud;

// Up to UPO of the first material.
void ToUpo(PricingRoom& room, const QString& units = "SF", const QString& orderUnits = "SHT") {
  room.NewSystem("Wall", units);
  room.EnterAll({"Board", orderUnits, "13.4"});
}

TEST(Upo, ANewMaterialIsTurnedRoundAndBack) {
  PricingRoom room;
  ToUpo(room);
  EXPECT_EQ(room.form.LabelUPO.Caption(), "How many SF per SHT");
  room.Enter();
  EXPECT_EQ(room.FocusName(), "UPO");
  EXPECT_EQ(room.form.LabelUPO.Caption(), "How many SHT(s) per SF Wall");
  EXPECT_EQ(room.form.UPO.Hover(), "How many SHT(s) of Board per SF Wall");
  room.Enter();
  EXPECT_EQ(room.form.LabelUPO.Caption(), "How many SF per SHT");
  EXPECT_EQ(room.form.Label5.Caption(), "Leave blank and press Enter to use SHT(s) per SF");
}

TEST(Upo, TheDirectionTurnedToIsTheOneStored) {
  PricingRoom room;
  ToUpo(room);
  room.Enter();
  room.EnterAll({".0625", "38", "10", "46.5"});
  EXPECT_EQ(room.form.System.Row(4), "opu");
  EXPECT_EQ(room.Lines("Systems/Board.mat").value(4), "opu");
  EXPECT_EQ(room.Lines("Systems/Wall.sys").value(8 + 4), "opu");
}

TEST(Upo, ANameThatEndsInTheUnitTurnsOnceAndBack) {
  PricingRoom room;
  room.NewSystem("Wall SF", "SF");
  room.EnterAll({"Board", "SHT", "13.4"});
  room.Enter();
  EXPECT_EQ(room.form.LabelUPO.Caption(), "How many SHT(s) per SF Wall SF");
  room.Enter();
  EXPECT_EQ(room.form.LabelUPO.Caption(), "How many SF per SHT");
}

TEST(Upo, AToggleNeverChangesTheNumbers) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Drywall());
  room.Open();
  room.Enter("Wall");
  room.Go(room.form.UPO);
  room.Enter();
  EXPECT_EQ(room.form.System.Row(3), "16");
  EXPECT_EQ(room.form.System.Row(4), "opu");
  EXPECT_EQ(room.form.LabelUPO.Caption(), "How many SHT(s) per SF");
  room.Enter();
  EXPECT_EQ(room.form.System.Row(4), "upo");
  EXPECT_EQ(room.form.LabelUPO.Caption(), "How many SF per SHT");
  EXPECT_EQ(room.form.System.Row(3), "16");
}

TEST(Upo, AStoredBlockThatWasTurnedStaysTurned) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Drywall());
  room.Open();
  room.Enter("Wall");
  room.Go(room.form.UPO);
  room.Enter();
  room.EnterAll({".0625"});
  for (int i = 0; i < 3; ++i) room.Press(Key::Name::Enter);
  EXPECT_EQ(room.Lines("Systems/Wall.sys").mid(9, 12),
            Block("Drywall", "SHT", "13.40", ".0625", "opu", "38", "upm", "10", "46.50"));
}

TEST(Upo, ACountedOrderUnitAsksHowMany) {
  PricingRoom room;
  ToUpo(room, "SF", "EA");
  EXPECT_EQ(room.form.LabelUPO.Caption(), "How many per SF:");
  room.EnterAll({"24", "60", "0", "40"});
  EXPECT_EQ(room.form.System.Row(4), "opu");
}

TEST(Upo, ItCanBeLeftWithAZero) {
  PricingRoom room;
  ToUpo(room);
  room.Enter("0");
  EXPECT_EQ(room.FocusName(), "MnhrPO");
}

TEST(MnhrPO, TheFirstMaterialTurnsItsPromptsWhenTheEmptyFieldIsLeft) {
  PricingRoom room;
  ToUpo(room);
  room.Enter("16");
  EXPECT_EQ(room.form.LabelMnhr.Caption(), "SF per Manhour:");
  room.Enter();
  EXPECT_EQ(room.FocusName(), "MnhrPO");
  EXPECT_EQ(room.form.LabelMnhr.Caption(), "Manhours per SF:");
  EXPECT_EQ(room.form.Label8.Caption(), "Leave blank and press Enter to use SF per manhour");
  room.Enter();
  EXPECT_EQ(room.form.LabelMnhr.Caption(), "SF per Manhour:");
  room.Enter();
  room.EnterAll({".05", "0", "40"});
  EXPECT_EQ(room.form.System.Row(6), "mpu");
  EXPECT_EQ(room.Lines("Systems/Board.mat").value(6), "mpu");
}

TEST(MnhrPO, ALaterMaterialTurnsToo) {
  PricingRoom room;
  ToUpo(room);
  room.EnterAll({"16", "38", "0", "40"});
  room.EnterAll({"Tape", "ROLL", "4", "500"});
  room.Enter();
  EXPECT_EQ(room.FocusName(), "MnhrPO");
  EXPECT_EQ(room.form.LabelMnhr.Caption(), "Manhours per SF of Wall:");
  EXPECT_EQ(room.form.MnhrPO.Hover(), "How many manhours per SF of Wall");
  room.EnterAll({".01", "0", "40"});
  EXPECT_EQ(room.form.System.Row(12 + 6), "mpu");
  EXPECT_EQ(room.form.System.Row(6), "upm");
}

TEST(MnhrPO, AStoredBlockTurnsItsTagAndBack) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Drywall());
  room.Open();
  room.Enter("Wall");
  room.Go(room.form.MnhrPO);
  room.Enter();
  EXPECT_EQ(room.FocusName(), "MnhrPO");
  EXPECT_EQ(room.form.System.Row(6), "mpu");
  EXPECT_EQ(room.form.LabelMnhr.Caption(), "Manhours per SF of Wall:");
  EXPECT_EQ(room.form.System.Row(5), "38");
  room.Enter();
  EXPECT_EQ(room.form.System.Row(6), "upm");
  EXPECT_EQ(room.form.LabelMnhr.Caption(), "SF per Manhour:");
}

TEST(MnhrPO, AZeroCantBeLeftByEnter) {
  PricingRoom room;
  ToUpo(room);
  room.EnterAll({"16", "0"});
  EXPECT_EQ(room.FocusName(), "MnhrPO");
  room.Enter("-");
  EXPECT_EQ(room.FocusName(), "MnhrPO");
  room.Enter("38");
  EXPECT_EQ(room.FocusName(), "Waste");
}

TEST(MnhrPO, CountedTakeoffUnitsAskHowManyPerManhour) {
  PricingRoom room;
  ToUpo(room, "ea", "BX");
  EXPECT_EQ(room.form.LabelMnhr.Caption(), "How many per Manhour:");
  room.Enter("10");
  room.Enter();
  EXPECT_EQ(room.form.LabelMnhr.Caption(), "Manhours per ea:");
  EXPECT_EQ(room.form.Label8.Caption(), "Leave blank and press Enter to use How many per manhour");
}

TEST(MnhrPO, EachIsNoCountUnitForLabor) {
  PricingRoom room;
  ToUpo(room, "EACH", "BX");
  EXPECT_EQ(room.form.LabelMnhr.Caption(), "EACH per Manhour:");
}

TEST(LoadedPrompts, ATagOfTheLibraryWinsOverTheEndOfThePrompt) {
  PricingRoom room;
  room.Write("Systems/Stud.mat", Stud().mid(0, 9));
  room.Write("Materials.tamo", {"Stud"});
  room.form.vocabulary.LoadMaterials();
  room.NewSystem("Wall");
  room.Enter("Stud");
  room.Press(Key::Name::Enter);
  EXPECT_EQ(room.form.LabelUPO.Caption(), "How many LF(s) per SF");
  // Turned and turned back it is what it was.
  room.Go(room.form.UPO);
  room.Enter();
  EXPECT_EQ(room.form.LabelUPO.Caption(), "How many SF per LF");
  room.Enter();
  EXPECT_EQ(room.form.LabelUPO.Caption(), "How many LF(s) per SF Wall");
}

TEST(LoadedPrompts, AMaterialFileWithALostTagLineLoadsShiftedByTheLetter) {
  PricingRoom room;
  QStringList lines = Drywall().mid(0, 9);
  lines.removeAt(4);
  room.Write("Systems/Board.mat", lines);
  room.Write("Materials.tamo", {"Board"});
  room.form.vocabulary.LoadMaterials();
  room.NewSystem("Wall");
  room.Enter("Board");
  EXPECT_EQ(room.form.UPO.Text(), "16");
  EXPECT_EQ(room.form.MnhrPO.Text(), "upm");
  EXPECT_EQ(room.form.Waste.Text(), "46.50");
  EXPECT_EQ(room.form.WageRate.Text(), "");
}

TEST(LoadedPrompts, ASystemOpenedWithoutBlocksStoresBothDirections) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00");
  room.Open();
  room.Enter("Wall");
  EXPECT_EQ(room.FocusName(), "Material");
  room.EnterAll({"Board", "SHT", "13.4", "16", "38", "10", "46.5"});
  EXPECT_EQ(room.form.System.Row(4), "upo");
  EXPECT_EQ(room.form.System.Row(6), "upm");
}

}  // namespace
}  // namespace tamo
