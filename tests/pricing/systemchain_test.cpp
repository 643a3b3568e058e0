#include <gtest/gtest.h>

#include "common/failure.h"
#include "pricing/exchange.h"
#include "pricing/palette.h"
#include "pricing/pricingroom.h"

// The chain of a system, from its name to its colour.

namespace tamo {
namespace {

using test::Block;
using test::Compound;
using test::Drywall;
using test::PricingRoom;
using test::Stud;

TEST(SystemChain, UnitPricingShowsTheFormReadyForAName) {
  PricingRoom room;
  room.Open();
  EXPECT_TRUE(room.form.Visible());
  EXPECT_TRUE(room.form.FramePricing.Shown());
  EXPECT_FALSE(room.form.LandMFrame.Shown());
  EXPECT_FALSE(room.form.EUP.Shown());
  EXPECT_EQ(room.FocusName(), "Description");
  room.Open();
  EXPECT_FALSE(room.form.Visible());
}

TEST(SystemChain, ComingFromAnotherWindowTheEntryShowsTheFormAgain) {
  PricingRoom room;
  room.Open();
  room.desk.UserActivate(room.other);
  EXPECT_FALSE(room.form.Visible());
  room.Open();
  EXPECT_TRUE(room.form.Visible());
}

TEST(SystemChain, AFixedPrice) {
  PricingRoom room;
  room.Open();
  room.Enter("Fire Caulk");
  EXPECT_EQ(room.Lines("Descriptions.tamo"), QStringList{"Fire Caulk"});
  EXPECT_FALSE(room.Exists("Systems/Fire Caulk.sys"));
  EXPECT_EQ(room.FocusName(), "Units");
  room.Enter("LF");
  EXPECT_EQ(room.FocusName(), "UnitPrice");
  EXPECT_TRUE(room.form.Label3.Shown());
  room.Enter("4.15");
  EXPECT_EQ(room.form.UnitPrice.Text(), "4.15");
  EXPECT_TRUE(room.form.ColorFrame.Shown());
  EXPECT_FALSE(room.form.LandMFrame.Shown());
  room.Click(*room.form.Palette[2]);
  EXPECT_FALSE(room.form.ColorFrame.Shown());
  EXPECT_EQ(room.form.Line1.Colour(), "000000255");
  EXPECT_EQ(room.Bytes("Systems/Fire Caulk.sys"),
            "Fire Caulk\r\nLF\r\n4.15\r\n000000255\r\n\r\n\x01\r\n\r\n\r\n");
  EXPECT_FALSE(room.Exists("Units.tamo"));
}

TEST(SystemChain, ABlankPriceLeadsToLaborAndMaterial) {
  PricingRoom room;
  room.NewSystem("Wall");
  EXPECT_EQ(room.form.UnitPrice.Text(), "0.00");
  EXPECT_TRUE(room.form.LandMFrame.Shown());
  EXPECT_TRUE(room.form.EUP.Shown());
  EXPECT_TRUE(room.form.Label9.Shown());
  EXPECT_TRUE(room.form.CopySystem.Enabled());
  EXPECT_EQ(room.FocusName(), "Material");
}

TEST(SystemChain, AMinusAloneIsNoPrice) {
  PricingRoom room;
  room.Open();
  room.EnterAll({"Wall", "SF", "-"});
  EXPECT_EQ(room.form.UnitPrice.Text(), "0.00");
  EXPECT_EQ(room.FocusName(), "Material");
}

TEST(SystemChain, UnitPriceTakesOnlyWhatMakesANumber) {
  PricingRoom room;
  room.Open();
  room.EnterAll({"Wall", "SF"});
  room.Type("a1,2.5e-x");
  EXPECT_EQ(room.form.UnitPrice.Text(), "12.5-");
}

TEST(SystemChain, NamesTakeNoCharactersOfAPath) {
  PricingRoom room;
  room.Open();
  room.Type("a,b\"c/d\\e");
  EXPECT_EQ(room.form.Description.Text(), "abcde");
}

TEST(SystemChain, ANameInAnotherCaseLoadsTheEntryInItsSpelling) {
  PricingRoom room;
  room.Library("Fire Caulk", "LF", "4.15");
  room.Open();
  room.Enter("FIRE CAULK");
  EXPECT_EQ(room.form.Description.Text(), "Fire Caulk");
  EXPECT_EQ(room.form.Units.Text(), "LF");
  EXPECT_EQ(room.FocusName(), "Units");
  EXPECT_EQ(room.Lines("Descriptions.tamo"), QStringList{"Fire Caulk"});
}

TEST(SystemChain, ALaborAndMaterialSystemComesUpWithItsFirstMaterial) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Stud() + Drywall());
  room.Open();
  room.Enter("wall");
  EXPECT_EQ(room.FocusName(), "Material");
  EXPECT_EQ(room.form.MaterialList.Rows(), (QStringList{"Stud", "Drywall"}));
  EXPECT_EQ(room.form.MaterialList.Index(), 0);
  EXPECT_EQ(room.form.Material.Text(), "Stud");
  EXPECT_EQ(room.form.UPO.Text(), ".75");
  EXPECT_EQ(room.form.LabelUPO.Caption(), "How many LF(s) per SF");
  EXPECT_EQ(room.form.LabelMnhr.Caption(), "SF per Manhour:");
  EXPECT_TRUE(room.form.CopySystem.Enabled());
  EXPECT_FALSE(room.form.PasteSystem.Enabled());
}

TEST(SystemChain, AListedNameWithoutAFileIsANewSystem) {
  PricingRoom room;
  room.Write("Descriptions.tamo", {"Ghost"});
  room.form.LoadDescriptions();
  room.Open();
  room.Enter("ghost");
  EXPECT_EQ(room.FocusName(), "Units");
  EXPECT_TRUE(room.form.FramePricing.Shown());
  EXPECT_FALSE(room.form.LandMFrame.Shown());
}

TEST(SystemChain, ANewNameBeginsAnEmptySystem) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Stud());
  room.Open();
  room.Enter("Wall");
  room.Go(room.form.Description);
  room.Enter("Ceiling");
  EXPECT_EQ(room.form.Units.Text(), "");
  EXPECT_EQ(room.form.UnitPrice.Text(), "");
  EXPECT_EQ(room.form.Material.Text(), "");
  EXPECT_TRUE(room.form.System.Empty());
  EXPECT_TRUE(room.form.MaterialList.Empty());
  EXPECT_EQ(room.form.LineColor, "");
  room.EnterAll({"SF", "2"});
  EXPECT_EQ(room.Lines("Systems/Ceiling.sys"),
            (QStringList{"Ceiling", "SF", "2.00", "", "", "\x01", "", ""}));
}

TEST(SystemChain, AnEmptyNameLeavesTheForm) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Stud());
  room.Open();
  room.Enter("Wall");
  room.Choose(room.form.CopySystem);
  room.Go(room.form.Description);
  room.Enter();
  EXPECT_FALSE(room.form.Visible());
  EXPECT_FALSE(room.form.CopySystem.Enabled());
  EXPECT_FALSE(room.form.PasteSystem.Enabled());
  EXPECT_EQ(room.form.Units.Text(), "");
}

TEST(SystemChain, UnitsThatAreTypedAreNotAddedToTheList) {
  PricingRoom room;
  room.Write("Units.tamo", {"SF", "LF"});
  room.form.vocabulary.LoadUnits();
  room.Open();
  room.Enter("Wall");
  EXPECT_TRUE(room.form.UnitsList.Shown());
  room.Type("x");
  EXPECT_FALSE(room.form.UnitsList.Shown());
  room.Enter("YD");
  EXPECT_EQ(room.form.UnitsList.Rows(), (QStringList{"SF", "LF"}));
}

TEST(SystemChain, AChosenUnitLeadsToThePrice) {
  PricingRoom room;
  room.Write("Units.tamo", {"SF", "LF"});
  room.form.vocabulary.LoadUnits();
  room.Open();
  room.Enter("Wall");
  room.Row(room.form.UnitsList, 1);
  EXPECT_EQ(room.form.Units.Text(), "LF");
  EXPECT_EQ(room.FocusName(), "UnitPrice");
  EXPECT_FALSE(room.form.UnitsList.Shown());
  EXPECT_EQ(room.form.LabelMnhr.Caption(), "LF per Manhour:");
}

TEST(SystemChain, EmptyUnitsCantBeLeft) {
  PricingRoom room;
  room.Open();
  room.Enter("Wall");
  room.Enter();
  EXPECT_EQ(room.FocusName(), "Units");
  room.Go(room.form.UnitPrice);
  EXPECT_EQ(room.FocusName(), "Units");
}

TEST(SystemChain, ARowOfTheNamesOpensItsSystem) {
  PricingRoom room;
  room.Library("Caulk", "LF", "4.15");
  room.Library("Wall", "SF", "0.00", Stud() + Drywall());
  room.Library("Ghost", "", "");
  room.Open();
  room.Click(room.form.Description);
  EXPECT_TRUE(room.form.DescriptionsList.Shown());
  room.Row(room.form.DescriptionsList, 1);
  EXPECT_FALSE(room.form.DescriptionsList.Shown());
  EXPECT_EQ(room.form.DescriptionsList.Index(), -1);
  EXPECT_EQ(room.FocusName(), "Material");
  EXPECT_TRUE(room.form.Label19.Shown());
  EXPECT_EQ(room.form.Material.Text(), "Stud");
  room.Click(room.form.Description);
  room.Row(room.form.DescriptionsList, 0);
  EXPECT_EQ(room.FocusName(), "Units");
  EXPECT_FALSE(room.form.LandMFrame.Shown());
  room.Click(room.form.Description);
  room.Row(room.form.DescriptionsList, 2);
  EXPECT_EQ(room.FocusName(), "Material");
}

TEST(SystemChain, TheProjectCopyComesFirst) {
  PricingRoom room;
  room.Library("Caulk", "LF", "4.15");
  room.OpenProject("00-2112001");
  room.Open();
  room.Enter("Caulk");
  EXPECT_FALSE(room.Exists("Projects/00-2112001/Systems/Caulk.sys"));
  room.Enter("LF");
  room.Enter("5");
  EXPECT_EQ(room.Bytes("Projects/00-2112001/Systems/Caulk.sys"), room.Bytes("Systems/Caulk.sys"));
  room.Write("Systems/Caulk.sys", {"Caulk", "LF", "9.00", "", "", "\x01", "", ""});
  room.Go(room.form.Description);
  room.Enter("Caulk");
  EXPECT_EQ(room.form.UnitPrice.Text(), "5.00");
}

TEST(SystemChain, ASaveRefreshesTheReport) {
  PricingRoom room;
  room.Open();
  room.EnterAll({"Caulk", "LF"});
  const int before = room.refresh.reports;
  QByteArray seen;
  room.refresh.onReport = [&] { seen = room.Bytes("Systems/Caulk.sys"); };
  room.Enter("4");
  EXPECT_EQ(room.refresh.reports, before + 1);
  EXPECT_TRUE(seen.contains("4.00"));
}

TEST(SystemChain, AReportThatFailsStopsNoChain) {
  PricingRoom room;
  room.refresh.onReport = [] { throw RunTimeFailure(kDivisionByZero, "no breakdown"); };
  room.NewSystem("Wall");
  EXPECT_EQ(room.FocusName(), "Material");
  room.EnterAll({"Board", "SHT", "10", "2", "4", "0", "20"});
  EXPECT_EQ(room.FocusName(), "Material");
  EXPECT_EQ(room.form.Material.Text(), "");
  EXPECT_EQ(room.form.MaterialList.Count(), 2);
  EXPECT_EQ(room.messages.texts, (QStringList{"no breakdown", "no breakdown"}));
}

TEST(SystemChain, ColourCodeAndPreviewAndSwatch) {
  PricingRoom room;
  room.form.Init();
  for (size_t i = 0; i < kPalette.size(); ++i) {
    EXPECT_EQ(room.form.Palette[i]->Colour(), kPalette[i].painted);
    EXPECT_EQ(room.form.Palette[i]->Caption(), kPalette[i].label);
  }
  room.Open();
  room.EnterAll({"Caulk", "LF", "4"});
  room.Click(*room.form.Palette[6]);
  EXPECT_EQ(room.form.LineColor, "240150255");
  EXPECT_EQ(room.form.Line1.Colour(), "240150255");
  EXPECT_EQ(room.form.Palette[6]->Colour(), "220150255");
  EXPECT_EQ(room.Lines("Systems/Caulk.sys").value(3), "240150255");
  room.Click(room.form.Command2);
  EXPECT_TRUE(room.form.ColorFrame.Shown());
  room.Click(room.form.iNoColor);
  EXPECT_EQ(room.form.LineColor, "");
  EXPECT_EQ(room.form.Line1.Colour(), "");
  EXPECT_EQ(room.Lines("Systems/Caulk.sys").value(3), "");
}

TEST(SystemChain, TheBackgroundsNumberIsNotSaved) {
  PricingRoom room;
  room.Open();
  room.EnterAll({"Caulk", "LF", "4"});
  room.Click(*room.form.Palette[0]);
  room.Click(room.form.Command2);
  room.Click(room.form.Label20);
  EXPECT_EQ(room.form.LineColor, "15790320");
  EXPECT_EQ(room.form.Line1.Colour(), "");
  EXPECT_FALSE(room.form.ColorFrame.Shown());
  EXPECT_EQ(room.Lines("Systems/Caulk.sys").value(3), "255000000");
}

TEST(SystemChain, NotesAreSavedWhenTheBoxIsPutAway) {
  PricingRoom room;
  room.Open();
  room.EnterAll({"Caulk", "LF", "4"});
  room.Click(room.form.Command1);
  EXPECT_EQ(room.FocusName(), "PricingNotes");
  room.Type("one");
  room.Press(Key::Name::Enter);
  room.Type("two");
  room.Click(room.form.Command1);
  EXPECT_FALSE(room.form.PricingNotes.Shown());
  EXPECT_EQ(room.Bytes("Systems/Caulk.sys"),
            "Caulk\r\nLF\r\n4.00\r\n\r\none\r\ntwo\r\n\x01\r\n\r\n\r\n");
}

TEST(SystemChain, NotesThatAreLeftOpenAreNotLost) {
  PricingRoom room;
  room.Open();
  room.EnterAll({"Caulk", "LF", "4"});
  room.Click(room.form.Command1);
  room.Type("kept");
  room.desk.UserActivate(room.other);
  EXPECT_EQ(room.Lines("Systems/Caulk.sys").value(4), "kept");
}

TEST(SystemChain, NotesGrowByOneEmptyLineWithEachLoadAndSave) {
  PricingRoom room;
  room.Write("Systems/Caulk.sys", {"Caulk", "LF", "4.00", "", "a", "\x01", "", ""});
  room.form.DescriptionsList.Add("Caulk");
  room.Open();
  room.Enter("Caulk");
  EXPECT_EQ(room.form.PricingNotes.Text(), "a\r\n");
  room.EnterAll({"LF", "4"});
  room.Go(room.form.Description);
  room.Enter("Caulk");
  EXPECT_EQ(room.form.PricingNotes.Text(), "a\r\n\r\n");
}

TEST(SystemChain, AnExportedFileInTheLibraryLoadsAsNotes) {
  PricingRoom room;
  room.Write("Systems/Wall.sys", QStringList{"Wall", "SF", "0.00", "", "", "", ""} + Stud());
  room.form.DescriptionsList.Add("Wall");
  room.Open();
  room.Enter("Wall");
  EXPECT_TRUE(room.form.System.Empty());
  EXPECT_TRUE(room.form.PricingNotes.Text().startsWith("\r\n\r\n\r\nStud\r\n"));
  EXPECT_EQ(room.form.EUP.Caption(), "0.00");
  EXPECT_EQ(room.form.MaterialList.Rows(), QStringList{""});
  EXPECT_EQ(room.form.MaterialList.Index(), 0);
}

TEST(SystemDelete, WithoutAProjectTheMasterGoes) {
  PricingRoom room;
  room.Library("Caulk", "LF", "4.15");
  room.Library("Wall", "SF", "1.00");
  room.Open();
  room.Enter("Caulk");
  room.Go(room.form.Description);
  room.desk.RightClick(room.form.Description);
  EXPECT_EQ(room.form.openPopup, &room.form.SystemMenu);
  room.Choose(room.form.SystemDelete);
  EXPECT_EQ(room.Lines("Descriptions.tamo"), QStringList{"Wall"});
  EXPECT_FALSE(room.Exists("Systems/Caulk.sys"));
  EXPECT_EQ(room.form.Description.Text(), "");
  EXPECT_EQ(room.FocusName(), "Description");
}

TEST(SystemDelete, WithAProjectTheNameLeavesTheListAndOnlyTheProjectsFileTheDisk) {
  PricingRoom room;
  room.Library("Caulk", "LF", "4.15");
  room.Library("Wall", "SF", "1.00");
  room.OpenProject("00-2112001");
  room.Open();
  room.EnterAll({"Caulk", "LF", "5"});
  ASSERT_TRUE(room.Exists("Projects/00-2112001/Systems/Caulk.sys"));
  room.Choose(room.form.SystemDelete);
  EXPECT_EQ(room.Lines("Descriptions.tamo"), QStringList{"Wall"});
  EXPECT_TRUE(room.Exists("Systems/Caulk.sys"));
  EXPECT_FALSE(room.Exists("Projects/00-2112001/Systems/Caulk.sys"));
}

TEST(SystemDelete, CancelDoesNothing) {
  PricingRoom room;
  room.Library("Caulk", "LF", "4.15");
  room.Open();
  room.Enter("Caulk");
  room.Choose(room.form.SystemCancel);
  EXPECT_TRUE(room.Exists("Systems/Caulk.sys"));
  EXPECT_EQ(room.form.Description.Text(), "Caulk");
}

TEST(SystemDelete, AMissingFileIsNoReasonToKeepTheName) {
  PricingRoom room;
  room.Library("Caulk", "LF", "4.15");
  room.Library("Wall", "SF", "1.00");
  room.disk.RemoveFile(room.Path("Systems/Caulk.sys"));
  room.Open();
  room.Type("Caulk");
  room.Choose(room.form.SystemDelete);
  EXPECT_EQ(room.Lines("Descriptions.tamo"), QStringList{"Wall"});
  EXPECT_TRUE(room.messages.texts.isEmpty());
}

TEST(SystemDelete, TheLastNameStaysInTheFile) {
  PricingRoom room;
  room.Library("Caulk", "LF", "4.15");
  room.Open();
  room.Enter("Caulk");
  room.Choose(room.form.SystemDelete);
  EXPECT_TRUE(room.form.DescriptionsList.Empty());
  EXPECT_EQ(room.Lines("Descriptions.tamo"), QStringList{"Caulk"});
}

}  // namespace
}  // namespace tamo
