#include <gtest/gtest.h>

#include "pricing/pricingroom.h"

// What is read at the start, the lists of names, and how the form comes and goes.

namespace tamo {
namespace {

using test::PricingRoom;

TEST(Lists, AnEmptyListOfNamesIsNotWrittenAnEmptyListOfMaterialsIs) {
  PricingRoom room;
  room.Write("Descriptions.tamo", {"Wall"});
  room.Write("Materials.tamo", {"Stud"});
  room.form.vocabulary.SaveDescriptions();
  room.form.vocabulary.SaveMaterials();
  room.form.vocabulary.SaveUnits();
  EXPECT_EQ(room.Lines("Descriptions.tamo"), QStringList{"Wall"});
  EXPECT_TRUE(room.Exists("Materials.tamo"));
  EXPECT_EQ(room.Bytes("Materials.tamo"), "");
  EXPECT_EQ(room.Bytes("Units.tamo"), "");
}

TEST(Init, ReadsTheListsAndTheMarkups) {
  PricingRoom room;
  room.Write("Descriptions.tamo", {"Wall", "Caulk"});
  room.Write("Units.tamo", {"SF"});
  room.Write("Materials.tamo", {"Stud, 358"});
  room.Write("oUnits.tamo", {"LF", "SHT"});
  room.Write("Wages.tamo", {"46.50"});
  room.Write("Markups.tamo", {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"});
  room.form.Init();
  EXPECT_EQ(room.form.DescriptionsList.Rows(), (QStringList{"Wall", "Caulk"}));
  EXPECT_EQ(room.form.MaterialsList.Rows(), (QStringList{"Stud, 358"}));
  EXPECT_EQ(room.form.oUnitsList.Count(), 2);
  EXPECT_TRUE(room.form.WagesList.Empty());  // wages are written, never read
  EXPECT_EQ(room.form.MIMU.Text(), "12");
  EXPECT_EQ(room.settings.loads, 0);
  EXPECT_EQ(room.seed.seeds, 0);
}

TEST(Init, WithoutADataFolderItReadsTheSettingsFirst) {
  PricingRoom room;
  room.Write("Descriptions.tamo", {"Wall"});
  room.shared.DataPath.clear();
  room.settings.onLoad = [&] { room.shared.DataPath = room.data; };
  room.form.Init();
  EXPECT_EQ(room.settings.loads, 1);
  EXPECT_EQ(room.form.DescriptionsList.Rows(), QStringList{"Wall"});
}

TEST(Init, AMissingListSeedsTheProjectNumber) {
  PricingRoom room;
  room.form.Init();
  EXPECT_EQ(room.seed.seeds, 1);
  EXPECT_TRUE(room.messages.texts.isEmpty());
}

TEST(FromTheTakeoff, AMissingSystemIsAskedForByItsName) {
  PricingRoom room;
  room.desk.Dispatch([&] { room.form.ShowWithName("Wall", &room.other); });
  EXPECT_TRUE(room.form.Visible());
  EXPECT_EQ(room.form.Description.Text(), "Wall");
  EXPECT_EQ(room.FocusName(), "Description");
  EXPECT_EQ(room.form.Description.SelectedText(), "Wall");
  room.Press(Key::Name::Enter);
  EXPECT_EQ(room.FocusName(), "Units");
  room.EnterAll({"SF", "3"});
  EXPECT_TRUE(room.Exists("Systems/Wall.sys"));
}

TEST(Leaving, AnotherWindowTakesTheSystemAndTheForm) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.desk.UserActivate(room.other);
  EXPECT_FALSE(room.form.Visible());
  EXPECT_FALSE(room.form.FramePricing.Shown());
  EXPECT_FALSE(room.form.LandMFrame.Shown());
  EXPECT_EQ(room.form.Description.Text(), "");
  EXPECT_TRUE(room.form.System.Empty());
  EXPECT_FALSE(room.form.CopySystem.Enabled());
}

TEST(Leaving, WithTheMarkupsOpenTheFormStays) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.Choose(room.form.Markups);
  room.desk.UserActivate(room.other);
  EXPECT_TRUE(room.form.Visible());
  EXPECT_FALSE(room.form.FramePricing.Shown());
  EXPECT_EQ(room.form.Description.Text(), "");
}

TEST(Leaving, ExitHidesTheMarkupsAndTheForm) {
  PricingRoom room;
  room.Open();
  room.Choose(room.form.Markups);
  room.Choose(room.form.Xit);
  EXPECT_FALSE(room.form.Visible());
  EXPECT_FALSE(room.form.MarkupsFrame.Shown());
}

}  // namespace
}  // namespace tamo
