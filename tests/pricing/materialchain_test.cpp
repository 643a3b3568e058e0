#include <gtest/gtest.h>

#include "common/numbers.h"
#include "pricing/pricingroom.h"

// The chain of a material, and the list of a system's materials.

namespace tamo {
namespace {

using test::Block;
using test::Compound;
using test::Drywall;
using test::PricingRoom;
using test::Stud;

const QStringList kStud = {"Stud", "LF", ".62", ".75", "42", "5", "46.5"};
const QStringList kDrywall = {"Drywall", "SHT", "13.4", "16", "38", "10", "46.5"};

TEST(MaterialChain, TwoMaterialsFromAnEmptyLibrary) {
  PricingRoom room;
  room.NewSystem("Wall");
  for (const char* field :
       {"Material", "OrderUnits", "Price", "UPO", "MnhrPO", "Waste", "WageRate"}) {
    EXPECT_EQ(room.FocusName(), field);
    room.Enter(kDrywall[static_cast<int>(
        QStringList{"Material", "OrderUnits", "Price", "UPO", "MnhrPO", "Waste", "WageRate"}
            .indexOf(field))]);
  }
  EXPECT_EQ(room.FocusName(), "Material");
  EXPECT_EQ(room.form.Material.Text(), "");
  EXPECT_EQ(room.form.MaterialList.Rows(), (QStringList{"Drywall", ""}));
  EXPECT_EQ(room.form.MaterialList.Index(), 1);
  room.EnterAll({"Tape", "ROLL", "4", "500", "900", "0", "46.5"});
  EXPECT_EQ(room.form.MaterialList.Rows(), (QStringList{"Drywall", "Tape", ""}));
  EXPECT_EQ(room.Lines("Systems/Wall.sys").mid(8),
            Block("Drywall", "SHT", "13.40", "16", "upo", "38", "upm", "10", "46.50") +
                Block("Tape", "ROLL", "4.00", "500", "upo", "900", "upm", "0", "46.50"));
  EXPECT_EQ(room.Lines("Systems/Drywall.mat"),
            (QStringList{"Drywall", "SHT", "13.40", "16", "upo", "38", "upm", "10", "46.50"}));
  EXPECT_EQ(room.Lines("Materials.tamo"), (QStringList{"Drywall", "Tape"}));
  EXPECT_EQ(room.Lines("oUnits.tamo"), (QStringList{"SHT", "ROLL"}));
  EXPECT_EQ(room.Lines("Wages.tamo"), QStringList{"46.50"});
  // (13.40 / 16 + .0005) x 1.1 + 46.5 / 38 + .0005, and the same for the tape.
  EXPECT_NEAR(Value(room.form.EUP.Caption()), 2.2066509, 0.0000001);
}

TEST(MaterialChain, AnEmptyNameEndsTheSystem) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.EnterAll(kDrywall);
  room.Click(room.form.Command1);
  room.Go(room.form.Material);
  room.Enter();
  EXPECT_EQ(room.FocusName(), "Description");
  EXPECT_EQ(room.form.Description.Text(), "");
  EXPECT_EQ(room.form.Units.Text(), "");
  EXPECT_TRUE(room.form.System.Empty());
  EXPECT_TRUE(room.form.MaterialList.Empty());
  EXPECT_FALSE(room.form.LandMFrame.Shown());
  EXPECT_FALSE(room.form.EUP.Shown());
  EXPECT_FALSE(room.form.PricingNotes.Shown());
  EXPECT_FALSE(room.form.CopySystem.Enabled());
  EXPECT_EQ(room.form.LineColor, "");
  EXPECT_TRUE(room.form.Visible());
}

TEST(MaterialChain, AKnownMaterialFillsTheWholeChain) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.EnterAll(kDrywall);
  room.Enter("drywall");
  EXPECT_EQ(room.form.Material.Text(), "Drywall");
  EXPECT_EQ(room.form.OrderUnits.Text(), "SHT");
  EXPECT_EQ(room.form.Price.Text(), "13.40");
  EXPECT_EQ(room.form.UPO.Text(), "16");
  EXPECT_EQ(room.form.MnhrPO.Text(), "38");
  EXPECT_EQ(room.form.Waste.Text(), "10");
  EXPECT_EQ(room.form.WageRate.Text(), "46.50");
  EXPECT_EQ(room.FocusName(), "OrderUnits");
  EXPECT_EQ(room.Lines("Materials.tamo"), QStringList{"Drywall"});
}

TEST(MaterialChain, WithAnyFieldTypedInTheLibraryFillsNothing) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.EnterAll(kDrywall);
  room.Go(room.form.OrderUnits);
  EXPECT_EQ(room.FocusName(), "Description");  // an empty Material was left
  room.Go(room.form.Waste);
  room.Type("7");
  room.Go(room.form.Material);
  EXPECT_EQ(room.form.Waste.Text(), "");  // and the chain begins with empty fields
  room.Type("Drywall");
  room.Go(room.form.Waste);
  room.Type("7");
  room.Go(room.form.Material);
  room.Press(Key::Name::Enter);
  EXPECT_EQ(room.form.Waste.Text(), "7");
  EXPECT_EQ(room.form.OrderUnits.Text(), "");
  EXPECT_EQ(room.form.Price.Text(), "");
}

TEST(MaterialChain, AnotherLibraryNameReplacesWhatTheLibraryFilledButNotWhatWasTyped) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.EnterAll(kDrywall);
  room.EnterAll({"Tape", "ROLL", "4", "500", "900", "0", "46.5"});
  room.Enter("Tape");
  room.Go(room.form.Waste);
  room.form.Waste.SelectAll();
  room.Type("3");
  room.Go(room.form.Material);
  room.Enter("Drywall");
  EXPECT_EQ(room.form.OrderUnits.Text(), "SHT");
  EXPECT_EQ(room.form.Price.Text(), "13.40");
  EXPECT_EQ(room.form.Waste.Text(), "3");
}

TEST(MaterialChain, TheLibraryFlagEndsWithItsMaterial) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.EnterAll(kDrywall);
  room.Enter("Drywall");
  for (int i = 0; i < 6; ++i) room.Press(Key::Name::Enter);
  EXPECT_EQ(room.form.MaterialList.Rows(), (QStringList{"Drywall", "Drywall", ""}));
  room.Type("Drywall");
  room.Go(room.form.Waste);
  room.Type("7");
  room.Go(room.form.Material);
  room.Press(Key::Name::Enter);
  EXPECT_EQ(room.form.OrderUnits.Text(), "");
}

TEST(MaterialChain, ANameWithoutAMaterialFileLoadsNothing) {
  PricingRoom room;
  room.Write("Materials.tamo", {"Ghost"});
  room.form.vocabulary.LoadMaterials();
  room.NewSystem("Wall");
  room.Enter("ghost");
  EXPECT_EQ(room.form.OrderUnits.Text(), "");
  EXPECT_EQ(room.FocusName(), "OrderUnits");
  EXPECT_TRUE(room.messages.texts.isEmpty());
  room.EnterAll({"LF", "1", "2", "3", "0", "40"});
  EXPECT_TRUE(room.Exists("Systems/ghost.mat"));
}

TEST(MaterialChain, AMaterialOfTheLibraryKeepsItsDirections) {
  PricingRoom room;
  room.Write("Systems/Stud.mat", Stud().mid(0, 9));
  room.Write("Materials.tamo", {"Stud"});
  room.form.vocabulary.LoadMaterials();
  room.NewSystem("Wall");
  room.Enter("Stud");
  EXPECT_EQ(room.form.LabelUPO.Caption(), "LF(s) per SF:");
  for (int i = 0; i < 6; ++i) room.Press(Key::Name::Enter);
  EXPECT_EQ(room.Lines("Systems/Wall.sys").mid(8, 12),
            Block("Stud", "LF", ".62", ".75", "opu", "42", "upm", "5", "46.50"));
  EXPECT_EQ(room.Lines("Systems/Stud.mat").value(4), "opu");
}

TEST(MaterialChain, WalkingThroughAnExistingSystem) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Stud() + Drywall() + Compound());
  room.Open();
  room.Enter("Wall");
  for (const char* name : {"Stud", "Drywall", "Compound"}) {
    EXPECT_EQ(room.FocusName(), "Material");
    EXPECT_EQ(room.form.Material.Text(), name);
    for (int i = 0; i < 7; ++i) room.Press(Key::Name::Enter);
  }
  EXPECT_EQ(room.FocusName(), "Material");
  EXPECT_EQ(room.form.Material.Text(), "");
  EXPECT_EQ(room.form.MaterialList.Rows(), (QStringList{"Stud", "Drywall", "Compound", ""}));
  EXPECT_EQ(room.form.MaterialList.Index(), 3);
  QStringList expected = Stud() + Drywall() + Compound();
  expected[2] = ".62";                                         // money of the price field
  EXPECT_EQ(room.Lines("Systems/Wall.sys").mid(9), expected);  // 9: the note grew by a line
}

TEST(MaterialChain, AnEditInTheMiddleKeepsDirectionsAndGoesOn) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Drywall() + Stud() + Compound());
  room.Open();
  room.Enter("Wall");
  room.Row(room.form.MaterialList, 1);
  EXPECT_EQ(room.FocusName(), "Material");
  EXPECT_EQ(room.form.Material.Text(), "Stud");
  room.Press(Key::Name::Enter);
  room.Press(Key::Name::Enter);
  room.Enter("0.99");
  EXPECT_EQ(room.form.LabelUPO.Caption(), "How many LF(s) per SF");
  for (int i = 0; i < 4; ++i) room.Press(Key::Name::Enter);
  EXPECT_EQ(room.form.Material.Text(), "Compound");
  EXPECT_EQ(room.form.MaterialList.Index(), 2);
  EXPECT_EQ(room.form.LabelMnhr.Caption(), "Manhours per SF of Wall:");
  EXPECT_EQ(room.Lines("Systems/Wall.sys").mid(9 + 12, 12),
            Block("Stud", "LF", ".99", ".75", "opu", "42", "upm", "5", "46.50"));
  EXPECT_EQ(room.Lines("Systems/Stud.mat"),
            (QStringList{"Stud", "LF", ".99", ".75", "opu", "42", "upm", "5", "46.50"}));
}

TEST(MaterialChain, AChangedMaterialReachesNoOtherSystem) {
  PricingRoom room;
  room.Library("Floor", "SF", "0.00", Drywall());
  const QByteArray before = room.Bytes("Systems/Floor.sys");
  room.NewSystem("Wall");
  room.EnterAll({"Drywall", "SHT", "99", "16", "38", "10", "46.5"});
  EXPECT_EQ(room.Bytes("Systems/Floor.sys"), before);
  EXPECT_EQ(room.Lines("Systems/Drywall.mat").value(2), "99.00");
}

TEST(MaterialInsert, AMaterialInTheMiddle) {
  PricingRoom room;
  const QStringList tape = Block("Tape", "ROLL", "4.00", "500", "upo", "900", "upm", "0", "46.50");
  room.Library("Wall", "SF", "0.00", Stud() + tape);
  const QByteArray before = room.Bytes("Systems/Wall.sys");
  room.Open();
  room.Enter("Wall");
  room.desk.RightClickRow(room.form.MaterialList, 1);
  EXPECT_EQ(room.form.openPopup, &room.form.MaterialMenu);
  room.Choose(room.form.MaterialInsert);
  EXPECT_EQ(room.form.MaterialList.Rows(), (QStringList{"Stud", "", "Tape"}));
  EXPECT_EQ(room.form.MaterialList.Index(), 1);
  EXPECT_EQ(room.form.Material.Text(), "");
  EXPECT_EQ(room.FocusName(), "Material");
  EXPECT_EQ(room.Bytes("Systems/Wall.sys"), before);  // nothing is saved yet
  room.EnterAll(kDrywall);
  EXPECT_EQ(
      room.Lines("Systems/Wall.sys").mid(9),
      Stud() + Block("Drywall", "SHT", "13.40", "16", "upo", "38", "upm", "10", "46.50") + tape);
  EXPECT_EQ(room.form.Material.Text(), "Tape");
  EXPECT_EQ(room.form.MaterialList.Index(), 2);
}

TEST(MaterialInsert, ThePromptInForceTellsTheDirectionOfATypedOne) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Stud() + Compound());
  room.Open();
  room.Enter("Wall");
  room.desk.RightClickRow(room.form.MaterialList, 1);
  room.Choose(room.form.MaterialInsert);
  EXPECT_EQ(room.form.LabelMnhr.Caption(), "Manhours per SF of Wall:");
  room.EnterAll({"Tape", "ROLL", "4", "500", ".01", "0", "46.5"});
  EXPECT_EQ(room.form.System.Row(12 + 4), "upo");
  EXPECT_EQ(room.form.System.Row(12 + 6), "mpu");
}

TEST(MaterialInsert, ThenAnEmptyNameEndsTheSystemAndWritesNothing) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Stud() + Compound());
  const QByteArray before = room.Bytes("Systems/Wall.sys");
  room.Open();
  room.Enter("Wall");
  room.desk.RightClickRow(room.form.MaterialList, 1);
  room.Choose(room.form.MaterialInsert);
  room.Enter();
  EXPECT_EQ(room.FocusName(), "Description");
  EXPECT_EQ(room.Bytes("Systems/Wall.sys"), before);
}

TEST(MaterialInsert, ALibraryMaterialKeepsItsDirectionThereToo) {
  PricingRoom room;
  room.Write("Systems/Stud.mat", Stud().mid(0, 9));
  room.Write("Materials.tamo", {"Stud"});
  room.form.vocabulary.LoadMaterials();
  room.Library("Wall", "SF", "0.00", Drywall() + Compound());
  room.Open();
  room.Enter("Wall");
  room.desk.RightClickRow(room.form.MaterialList, 1);
  room.Choose(room.form.MaterialInsert);
  room.Enter("Stud");
  for (int i = 0; i < 6; ++i) room.Press(Key::Name::Enter);
  EXPECT_EQ(room.form.System.Row(12 + 4), "opu");
}

TEST(MaterialDelete, TheFollowingMaterialComesUp) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Stud() + Drywall() + Compound());
  room.Open();
  room.Enter("Wall");
  room.desk.RightClickRow(room.form.MaterialList, 1);
  room.Choose(room.form.MaterialDelete);
  EXPECT_EQ(room.form.MaterialList.Rows(), (QStringList{"Stud", "Compound"}));
  EXPECT_EQ(room.form.MaterialList.Index(), 1);
  EXPECT_EQ(room.form.Material.Text(), "Compound");
  EXPECT_EQ(room.Lines("Systems/Wall.sys").mid(9), Stud() + Compound());
}

TEST(MaterialDelete, TheLastRowSelectsNothingFurther) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Stud() + Drywall());
  room.Open();
  room.Enter("Wall");
  room.desk.RightClickRow(room.form.MaterialList, 1);
  room.Choose(room.form.MaterialDelete);
  EXPECT_EQ(room.form.MaterialList.Rows(), QStringList{"Stud"});
  EXPECT_EQ(room.form.MaterialList.Index(), -1);
  EXPECT_EQ(room.Lines("Systems/Wall.sys").mid(9), Stud());
  // What is typed next is a new material.
  room.Go(room.form.Material);
  room.EnterAll(kDrywall);
  EXPECT_EQ(room.form.MaterialList.Rows(), (QStringList{"Stud", "Drywall", ""}));
  EXPECT_EQ(room.form.System.Row(12), "Drywall");
  EXPECT_EQ(room.form.MaterialList.Index(), 2);
}

TEST(MaterialDelete, TheOnlyMaterialLeavesAnEmptyRowReady) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Stud());
  room.Open();
  room.Enter("Wall");
  room.desk.RightClickRow(room.form.MaterialList, 0);
  room.Choose(room.form.MaterialDelete);
  EXPECT_TRUE(room.form.System.Empty());
  room.Go(room.form.Material);
  EXPECT_EQ(room.form.MaterialList.Rows(), QStringList{""});
  EXPECT_EQ(room.form.MaterialList.Index(), 0);
  room.EnterAll(kStud);
  EXPECT_EQ(room.form.MaterialList.Rows(), (QStringList{"Stud", ""}));
}

TEST(MaterialDelete, TheEmptyRowOfTheNextMaterialCanGo) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.EnterAll(kStud);
  room.Choose(room.form.MaterialDelete);
  EXPECT_EQ(room.form.MaterialList.Rows(), QStringList{"Stud"});
  EXPECT_EQ(room.form.System.Count(), 12);
  EXPECT_TRUE(room.messages.texts.isEmpty());
}

TEST(MaterialHover, OrdinalsUpToTwentyThenNumbers) {
  PricingRoom room;
  QStringList blocks;
  for (int i = 0; i < 21; ++i) blocks += Stud();
  room.Library("Wall", "SF", "0.00", blocks);
  room.Open();
  room.Enter("Wall");
  EXPECT_EQ(room.form.Material.Hover(), "First material used in Wall");
  room.Row(room.form.MaterialList, 11);
  EXPECT_EQ(room.form.Material.Hover(), "Twelfth material used in Wall");
  EXPECT_EQ(room.form.nth.Index(), 11);
  room.Row(room.form.MaterialList, 19);
  EXPECT_EQ(room.form.Material.Hover(), "Twentieth material used in Wall");
  room.Row(room.form.MaterialList, 20);
  EXPECT_EQ(room.form.Material.Hover(), "Material #21 used in Wall");
  EXPECT_EQ(room.form.nth.Index(), 19);
}

TEST(MaterialChain, TheMaterialWithoutASystemGoesToItsName) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.EnterAll(kStud);
  room.form.Description.Clear();
  room.Go(room.form.Price);
  room.Go(room.form.Material);
  EXPECT_EQ(room.FocusName(), "Description");
}

TEST(OrderUnits, TheSystemsOwnUnitCantBeUsed) {
  PricingRoom room;
  room.NewSystem("Wall", "sf");
  room.Enter("Paint");
  room.Enter("SF");
  EXPECT_EQ(room.messages.texts,
            QStringList{"The term \"SF\" Can't be used.\r\n\r\nSF is being used as the unit for "
                        "Wall"});
  EXPECT_EQ(room.FocusName(), "OrderUnits");
  EXPECT_FALSE(room.Exists("oUnits.tamo"));
  room.Enter("GL");
  EXPECT_EQ(room.FocusName(), "Price");
  EXPECT_EQ(room.form.LabelUPO.Caption(), "How many sf per GL");
  EXPECT_EQ(room.form.LabelPrice.Caption(), "Cost per GL:");
}

TEST(OrderUnits, EmptyItCantBeLeftByEnter) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.Enter("Paint");
  room.Enter("  ");
  EXPECT_EQ(room.FocusName(), "OrderUnits");
}

TEST(OrderUnits, HoverNamesTheMaterialAndAChosenRowComesBack) {
  PricingRoom room;
  room.Write("oUnits.tamo", {"GL", "SHT"});
  room.form.vocabulary.LoadOrderUnits();
  room.NewSystem("Wall");
  room.Enter("Paint");
  EXPECT_EQ(room.form.OrderUnits.Hover(), "Order units used when ordering Paint.");
  room.Click(room.form.OrderUnits);
  EXPECT_TRUE(room.form.oUnitsList.Shown());
  room.Row(room.form.oUnitsList, 1);
  EXPECT_FALSE(room.form.oUnitsList.Shown());
  EXPECT_EQ(room.form.OrderUnits.Text(), "SHT");
  EXPECT_EQ(room.FocusName(), "OrderUnits");
}

TEST(MaterialsList, AChosenRowOfTheLibraryFillsANewMaterial) {
  PricingRoom room;
  room.Write("Systems/Stud.mat", Stud().mid(0, 9));
  room.Write("Materials.tamo", {"Tape", "Stud"});
  room.form.vocabulary.LoadMaterials();
  room.NewSystem("Wall");
  room.Click(room.form.Material);
  EXPECT_TRUE(room.form.MaterialsList.Shown());
  room.Row(room.form.MaterialsList, 1);
  EXPECT_FALSE(room.form.MaterialsList.Shown());
  EXPECT_EQ(room.form.Material.Text(), "Stud");
  EXPECT_EQ(room.form.UPO.Text(), ".75");
  EXPECT_EQ(room.FocusName(), "Material");
}

TEST(MaterialsList, AMaterialBeforeTheLastIsOnlyRenamed) {
  PricingRoom room;
  room.Write("Systems/Stud.mat", Stud().mid(0, 9));
  room.Write("Materials.tamo", {"Stud"});
  room.form.vocabulary.LoadMaterials();
  room.Library("Wall", "SF", "0.00", Drywall() + Compound());
  room.Open();
  room.Enter("Wall");
  room.Click(room.form.Material);
  room.Row(room.form.MaterialsList, 0);
  EXPECT_EQ(room.form.Material.Text(), "Stud");
  EXPECT_EQ(room.form.OrderUnits.Text(), "SHT");
}

TEST(WageRate, ChosenFromTheRatesOfThisRun) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.EnterAll(kStud);
  room.EnterAll({"Tape", "ROLL", "4", "500", "900", "0"});
  room.Click(room.form.WageRate);
  EXPECT_TRUE(room.form.WagesList.Shown());
  room.Row(room.form.WagesList, 0);
  EXPECT_EQ(room.form.WageRate.Text(), "46.50");
  EXPECT_EQ(room.FocusName(), "WageRate");
  room.Press(Key::Name::Enter);
  EXPECT_EQ(room.Lines("Wages.tamo"), QStringList{"46.50"});
}

TEST(Waste, TakesNoPoint) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.EnterAll({"Tape", "ROLL", "4", "500", "900"});
  room.Type("1.5x");
  EXPECT_EQ(room.form.Waste.Text(), "15");
}

TEST(ZeroUpo, IsToldOnceAndTheFocusGoesToTheNumber) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.EnterAll(kDrywall);
  room.EnterAll({"Tape", "ROLL", "4", "0", "900", "0", "46.5"});
  ASSERT_EQ(room.messages.texts.size(), 1);
  EXPECT_TRUE(room.messages.texts[0].contains("Wall"));
  EXPECT_TRUE(room.messages.texts[0].contains("Tape"));
  EXPECT_EQ(room.FocusName(), "UPO");
  EXPECT_EQ(room.form.Material.Text(), "Tape");
  EXPECT_EQ(room.Lines("Systems/Wall.sys").value(8 + 12), "Tape");  // all up to it is saved
  // The number is corrected on the spot.
  room.Enter("500");
  for (int i = 0; i < 3; ++i) room.Press(Key::Name::Enter);
  EXPECT_EQ(room.messages.texts.size(), 1);
  EXPECT_EQ(room.Lines("Systems/Wall.sys").value(8 + 15), "500");
  EXPECT_EQ(room.FocusName(), "Material");
}

TEST(ZeroUpo, ASystemThatHoldsOneStillOpens) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00",
               Drywall() + Block("Bad", "SHT", "1", "0", "upo", "4", "upm", "0", "2"));
  room.Open();
  room.Enter("Wall");
  EXPECT_EQ(room.messages.texts.size(), 1);
  EXPECT_EQ(room.form.MaterialList.Count(), 2);
  EXPECT_EQ(room.FocusName(), "UPO");
  EXPECT_EQ(room.form.Material.Text(), "Bad");
  // EUP shows the sum of the blocks before.
  EXPECT_NEAR(Value(room.form.EUP.Caption()), 2.14598, 0.00001);
}

TEST(ManyMaterials, ThereIsNoLimit) {
  PricingRoom room;
  room.NewSystem("Wall");
  for (int i = 0; i < 25; ++i)
    room.EnterAll({QString("M%1").arg(i), "SHT", "1", "2", "3", "0", "40"});
  EXPECT_EQ(room.form.System.Count(), 25 * 12);
  EXPECT_EQ(room.form.MaterialList.Count(), 26);
  EXPECT_EQ(room.Lines("Systems/Wall.sys").size(), 8 + 25 * 12);
}

}  // namespace
}  // namespace tamo
