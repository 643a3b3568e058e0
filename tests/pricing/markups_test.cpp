#include "records/markupsfile.h"

#include <gtest/gtest.h>

#include "pricing/pricingroom.h"

namespace tamo {
namespace {

using test::PricingRoom;

const QStringList kTwelve = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"};

TEST(MarkupsChain, TheRingIsWrittenAtEachEnter) {
  PricingRoom room;
  room.Open();
  room.Choose(room.form.Markups);
  EXPECT_TRUE(room.form.MarkupsFrame.Shown());
  EXPECT_EQ(room.refresh.disabled, 1);
  const QStringList ring = {"MOH",  "MTX",  "MMU",  "LOH",  "LTX",  "LMU",
                            "BLOH", "BLTX", "BLMU", "MIOH", "MITX", "MIMU"};
  for (int i = 0; i < 12; ++i) {
    EXPECT_EQ(room.FocusName(), ring[i]);
    EXPECT_EQ(room.desk.Focused() == nullptr, false);
    const int reports = room.refresh.reports;
    room.Enter(kTwelve[i]);
    EXPECT_GT(room.refresh.reports, reports);
    EXPECT_EQ(room.Lines("Markups.tamo").value(i), kTwelve[i]);
  }
  EXPECT_EQ(room.FocusName(), "MOH");
  EXPECT_EQ(room.Lines("Markups.tamo"), kTwelve);
}

TEST(MarkupsChain, TheLaborMarkupAloneIsSavedWhenItIsEntered) {
  PricingRoom room;
  room.Open();
  room.Choose(room.form.Markups);
  room.Go(room.form.LOH);
  EXPECT_FALSE(room.Exists("Markups.tamo"));
  room.Go(room.form.LMU);
  EXPECT_TRUE(room.Exists("Markups.tamo"));
  EXPECT_EQ(room.refresh.reports, 1);
}

TEST(MarkupsChain, EnteringAFieldSelectsItsText) {
  PricingRoom room;
  room.Write("Markups.tamo", kTwelve);
  room.Open();
  room.Choose(room.form.Markups);
  room.Go(room.form.MIMU);
  EXPECT_EQ(room.form.MIMU.SelectedText(), "12");
}

TEST(MarkupsFiles, WithoutAProjectTheMasterIsWritten) {
  PricingRoom room;
  room.Open();
  room.Choose(room.form.Markups);
  room.Enter(".1");
  EXPECT_EQ(room.Lines("Markups.tamo").value(0), ".1");
}

TEST(MarkupsFiles, WithAProjectOnlyItsOwnFileIsWritten) {
  PricingRoom room;
  room.Write("Markups.tamo", kTwelve);
  room.OpenProject("00-2112001");
  room.Open();
  room.Choose(room.form.Markups);
  EXPECT_EQ(room.form.MOH.Text(), "1");  // the master's, as long as there is no own file
  room.Enter(".1");
  EXPECT_EQ(room.Lines("Markups.tamo"), kTwelve);
  EXPECT_EQ(room.Lines("Projects/00-2112001/Markups.tamo").value(0), ".1");
  EXPECT_EQ(room.Lines("Projects/00-2112001/Markups.tamo").value(11), "12");
}

TEST(MarkupsFiles, TheProjectFileHidesLaterChangesOfTheMaster) {
  PricingRoom room;
  room.OpenProject("00-2112001");
  room.Write("Projects/00-2112001/Markups.tamo", kTwelve);
  room.Write("Markups.tamo", {"99"});
  room.form.LoadMarkups();
  EXPECT_EQ(room.form.MOH.Text(), "1");
}

TEST(MarkupsFiles, AShortFileKeepsTheFieldsItDoesNotReach) {
  PricingRoom room;
  room.Write("Markups.tamo", kTwelve);
  room.form.LoadMarkups();
  room.Write("Markups.tamo", {"a", "b"});
  room.form.LoadMarkups();
  EXPECT_EQ(room.form.MOH.Text(), "a");
  EXPECT_EQ(room.form.MTX.Text(), "b");
  EXPECT_EQ(room.form.MMU.Text(), "3");
  EXPECT_TRUE(room.messages.texts.isEmpty());
}

TEST(MarkupsFiles, WithNeitherFileTheFieldsStay) {
  PricingRoom room;
  room.form.MOH.SetText("kept");
  room.form.LoadMarkups();
  EXPECT_EQ(room.form.MOH.Text(), "kept");
}

TEST(MarkupsChain, TheUnitPriceFollows) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.EnterAll({"Board", "SHT", "10", "2", "4", "0", "20"});
  EXPECT_EQ(room.form.EUP.Caption(), "10.001");
  room.Choose(room.form.Markups);
  room.Enter(".1");
  EXPECT_EQ(room.form.EUP.Caption(), "10.50105");
  room.Go(room.form.MOH);
  room.Enter("10");  // ten for ten percent: nothing stops it
  EXPECT_EQ(room.form.EUP.Caption(), "60.006");
}

TEST(MarkupsChain, ExitMarkupsHidesTheFormWhenNothingElseIsShown) {
  PricingRoom room;
  room.Open();
  room.Choose(room.form.Markups);
  room.Click(room.form.ExitMarkups);
  EXPECT_TRUE(room.form.Visible());
  room.Choose(room.form.Markups);
  room.desk.UserActivate(room.other);
  room.desk.UserActivate(room.form);
  room.Click(room.form.ExitMarkups);
  EXPECT_FALSE(room.form.Visible());
}

TEST(MarkupsChain, TheEntryTogglesTheFrame) {
  PricingRoom room;
  room.Open();
  room.Choose(room.form.Markups);
  room.Choose(room.form.Markups);
  EXPECT_FALSE(room.form.MarkupsFrame.Shown());
  EXPECT_TRUE(room.form.Visible());
  EXPECT_EQ(room.refresh.disabled, 2);
}

}  // namespace
}  // namespace tamo
