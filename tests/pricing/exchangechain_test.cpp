#include <gtest/gtest.h>

#include <QFile>

#include "pricing/exchange.h"
#include "pricing/pricingroom.h"

// Copy, paste, export, import and print, as the form's menu offers them.

namespace tamo {
namespace {

using test::Block;
using test::Compound;
using test::Drywall;
using test::PricingRoom;
using test::Stud;

SystemFile Wall() {
  SystemFile system;
  system.description = "Wall";
  system.units = "SF";
  system.unitPrice = "0.00";
  system.lineColor = "000000175";
  system.blocks = Drywall() + Compound();
  return system;
}

// Puts an exported file into a folder of its own and picks it for an import.
void ImportFrom(PricingRoom& room, const QByteArray& bytes) {
  room.Write(room.folder.path() + "/inbox/it.sys", {});
  QFile file(room.folder.path() + "/inbox/it.sys");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
  file.close();
  room.Choose(room.form.ImportSystem);
  room.desk.Pick(room.form.File1, room.folder.path() + "/inbox/it.sys", false);
}

// Everything under the data folder, so that a test can see that nothing changed.
QStringList Everything(PricingRoom& room) {
  QStringList all;
  for (const QString& name : room.disk.Names(room.data)) all += name;
  for (const QString& name : room.disk.Names(room.data + "Systems"))
    all += name + ":" + room.Lines("Systems/" + name).join('|');
  return all;
}

TEST(CopyAndPaste, AreOfferedWhenThereIsSomething) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Drywall());
  room.Open();
  EXPECT_FALSE(room.form.CopySystem.Enabled());
  EXPECT_FALSE(room.form.PasteSystem.Enabled());
  room.Enter("Wall");
  EXPECT_TRUE(room.form.CopySystem.Enabled());
  EXPECT_FALSE(room.form.PasteSystem.Enabled());
  room.Choose(room.form.CopySystem);
  EXPECT_TRUE(room.form.PasteSystem.Enabled());
}

TEST(CopyAndPaste, ABlankPriceOffersPasteOnlyAfterACopyInThisRun) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Drywall());
  room.NewSystem("Other");
  EXPECT_TRUE(room.form.CopySystem.Enabled());
  EXPECT_FALSE(room.form.PasteSystem.Enabled());
  room.Enter();
  room.Enter("Wall");
  room.Choose(room.form.CopySystem);
  room.desk.UserActivate(room.other);
  room.NewSystem("Third");
  EXPECT_TRUE(room.form.PasteSystem.Enabled());
}

TEST(CopyAndPaste, LeavingByEnterDisablesPaste) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Drywall());
  room.Open();
  room.Enter("Wall");
  room.Choose(room.form.CopySystem);
  room.Go(room.form.Description);
  room.Enter();
  EXPECT_FALSE(room.form.PasteSystem.Enabled());
}

TEST(CopyAndPaste, ASystemWithoutMaterialsGetsAllTheCopiedBlocks) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Drywall() + Compound());
  room.Open();
  room.Enter("Wall");
  room.Choose(room.form.CopySystem);
  room.Go(room.form.Description);
  room.EnterAll({"Ceiling", "SY", ""});
  room.Choose(room.form.PasteSystem);
  EXPECT_EQ(room.form.MaterialList.Rows(), (QStringList{"Drywall", "Compound"}));
  EXPECT_EQ(room.form.MaterialList.Index(), 1);
  EXPECT_EQ(room.form.Material.Text(), "Compound");
  EXPECT_EQ(room.form.Units.Text(), "SY");
  EXPECT_EQ(
      room.Lines("Systems/Ceiling.sys"),
      (QStringList{"Ceiling", "SY", "0.00", "", "", "\x01", "", ""} + Drywall() + Compound()));
}

TEST(CopyAndPaste, PasteReplacesTheMaterialsNameUnitsAndPriceStay) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Drywall());
  room.Library("Floor", "SY", "0.00", Stud() + Compound());
  room.Open();
  room.Enter("Wall");
  room.Choose(room.form.CopySystem);
  room.Go(room.form.Description);
  room.Enter("Floor");
  room.Choose(room.form.PasteSystem);
  const SystemFile floor = ReadSystemFile(QString::fromUtf8(room.Bytes("Systems/Floor.sys")));
  EXPECT_EQ(floor.description, "Floor");
  EXPECT_EQ(floor.units, "SY");
  EXPECT_EQ(floor.blocks, Drywall());
}

TEST(ExportChain, WithoutASystemAMessage) {
  PricingRoom room;
  room.Open();
  room.Choose(room.form.ExportSystem);
  EXPECT_EQ(room.messages.texts, QStringList{"Please load system that you wish to export."});
  EXPECT_FALSE(room.form.IEFrame.Shown());
}

TEST(ExportChain, AnyKeyInTheFolderWritesTheFile) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Drywall());
  room.disk.MakeFolder(room.folder.path() + "/outbox");
  room.Open();
  room.Enter("Wall");
  room.Choose(room.form.ExportSystem);
  EXPECT_TRUE(room.form.IEFrame.Shown());
  EXPECT_FALSE(room.form.File1.Shown());
  room.desk.Pick(room.form.Dir1, room.folder.path() + "/outbox", false);
  EXPECT_EQ(room.form.File1.Folder(), room.folder.path() + "/outbox");
  room.Go(room.form.Dir1);
  room.Type("x");
  EXPECT_FALSE(room.form.IEFrame.Shown());
  EXPECT_EQ(room.Lines(room.folder.path() + "/outbox/Wall.sys"),
            (QStringList{"Wall", "SF", "0.00", "", "", "", ""} + Drywall()));
}

TEST(ExportChain, AFolderThatCantBeWrittenIsNotSilent) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Drywall());
  room.disk.Deny(room.folder.path() + "/outbox");
  room.Open();
  room.Enter("Wall");
  room.Choose(room.form.ExportSystem);
  room.desk.Pick(room.form.Dir1, room.folder.path() + "/outbox", false);
  room.Go(room.form.Dir1);
  room.Press(Key::Name::Enter);
  EXPECT_TRUE(room.files.Notice().contains("Wall.sys"));
}

TEST(ExportChain, EscapePutsThePickerAway) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Drywall());
  room.Open();
  room.Enter("Wall");
  room.Choose(room.form.ExportSystem);
  EXPECT_EQ(room.FocusName(), "Dir1");
  room.Press(Key::Name::Escape);
  EXPECT_FALSE(room.form.IEFrame.Shown());
  EXPECT_FALSE(room.Exists(room.folder.path() + "/Wall.sys"));
}

TEST(ImportChain, WritesTheMasterAndTheProjectsCopyAndTheMaterials) {
  PricingRoom room;
  room.OpenProject("00-2112001");
  room.Write("Systems/Drywall.mat", {"Drywall", "old"});
  room.Open();
  ImportFrom(room, ExportedText(Wall()).toUtf8());
  EXPECT_FALSE(room.form.IEFrame.Shown());
  EXPECT_EQ(room.form.Description.Text(), "Wall");
  EXPECT_EQ(room.form.Line1.Colour(), "000000175");
  EXPECT_EQ(room.form.MaterialList.Rows(), (QStringList{"Drywall", "Compound"}));
  EXPECT_EQ(room.form.MaterialList.Index(), 0);
  EXPECT_TRUE(room.form.LandMFrame.Shown());
  EXPECT_EQ(room.Lines("Systems/Wall.sys"),
            (QStringList{"Wall", "SF", "0.00", "000000175", "", "\x01", "", ""} + Drywall() +
             Compound()));
  EXPECT_EQ(room.Bytes("Projects/00-2112001/Systems/Wall.sys"), room.Bytes("Systems/Wall.sys"));
  EXPECT_EQ(room.Lines("Systems/Drywall.mat"), Drywall().mid(0, 9));
  EXPECT_EQ(room.Lines("Systems/Compound.mat"), Compound().mid(0, 9));
  // The names enter the lists when they are typed.
  EXPECT_TRUE(room.form.DescriptionsList.Empty());
  EXPECT_FALSE(room.Exists("Descriptions.tamo"));
  EXPECT_TRUE(room.messages.texts.isEmpty());
}

TEST(ImportChain, ExportThenImportLosesTheNotes) {
  PricingRoom room;
  SystemFile wall = Wall();
  wall.notes = "a note";
  room.files.SaveText(MasterSystemPath(room.shared, "Wall"), SystemFileText(wall));
  room.form.DescriptionsList.Add("Wall");
  room.disk.MakeFolder(room.folder.path() + "/outbox");
  room.Open();
  room.Enter("Wall");
  EXPECT_EQ(room.form.PricingNotes.Text(), "a note\r\n");
  room.Choose(room.form.ExportSystem);
  room.desk.Pick(room.form.Dir1, room.folder.path() + "/outbox", false);
  room.Go(room.form.Dir1);
  room.Press(Key::Name::Enter);
  room.Choose(room.form.ImportSystem);
  EXPECT_TRUE(room.form.File1.Shown());
  EXPECT_EQ(room.form.IELabel.Caption(), "Import System");
  room.desk.Pick(room.form.File1, room.folder.path() + "/outbox/Wall.sys", false);
  EXPECT_EQ(room.form.PricingNotes.Text(), "");
  EXPECT_EQ(room.Lines("Systems/Wall.sys").mid(4, 4), (QStringList{"", "\x01", "", ""}));
}

TEST(ImportChain, AFixedPriceHidesLaborAndMaterial) {
  PricingRoom room;
  SystemFile caulk;
  caulk.description = "Caulk";
  caulk.units = "LF";
  caulk.unitPrice = "4.15";
  caulk.lineColor = "NoColor";
  room.NewSystem("Other");
  ImportFrom(room, ExportedText(caulk).toUtf8());
  EXPECT_FALSE(room.form.LandMFrame.Shown());
  EXPECT_FALSE(room.form.EUP.Shown());
  EXPECT_EQ(room.form.Line1.Colour(), "");
  EXPECT_EQ(room.Lines("Systems/Caulk.sys").value(3), "NoColor");
}

TEST(ImportChain, WhatCantBeTakenLeavesEverythingAsItWas) {
  QByteArray garbage;
  for (int i = 0; i < 5000; ++i) garbage += static_cast<char>(i * 31 % 251);
  SystemFile leaving = Wall();
  leaving.description = "../../outside";
  SystemFile material = Wall();
  material.blocks[12] = "..\\outside";
  QByteArray half = ExportedText(Wall()).toUtf8();
  half.chop(40);
  for (const QByteArray& bytes : {garbage, ExportedText(leaving).toUtf8(),
                                  ExportedText(material).toUtf8(), half, QByteArray()}) {
    PricingRoom room;
    room.Library("Caulk", "LF", "4.15");
    room.Open();
    room.Enter("Caulk");
    const QStringList before = Everything(room);
    ImportFrom(room, bytes);
    ASSERT_EQ(room.messages.texts.size(), 1);
    EXPECT_TRUE(room.messages.texts[0].startsWith("it.sys can't be imported: "))
        << room.messages.texts[0].toStdString();
    EXPECT_EQ(Everything(room), before);
    EXPECT_EQ(room.form.Description.Text(), "Caulk");
    EXPECT_TRUE(room.files.PendingSaves().empty());
  }
}

TEST(ImportChain, AZeroRatioIsToldAfterEverythingIsWritten) {
  PricingRoom room;
  SystemFile wall = Wall();
  wall.blocks[3] = "0";
  room.Open();
  ImportFrom(room, ExportedText(wall).toUtf8());
  EXPECT_EQ(room.messages.texts.size(), 1);
  EXPECT_TRUE(room.Exists("Systems/Wall.sys"));
  EXPECT_TRUE(room.Exists("Systems/Compound.mat"));
  EXPECT_EQ(room.FocusName(), "UPO");
}

TEST(ImportChain, KeysInTheFolderListExportNothingMeanwhile) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Drywall());
  room.Open();
  room.Enter("Wall");
  room.Choose(room.form.ImportSystem);
  room.Go(room.form.Dir1);
  room.Press(Key::Name::Enter);
  EXPECT_TRUE(room.form.IEFrame.Shown());
  EXPECT_FALSE(room.Exists(room.folder.path() + "/Wall.sys"));
}

TEST(PrintChain, OnePageInAFixedFont) {
  PricingRoom room;
  room.Library("Caulk", "LF", "4.15");
  room.Open();
  room.Choose(room.form.PrintSystem);
  EXPECT_TRUE(room.printer.TakePrinted().isEmpty());
  room.Enter("Caulk");
  room.Choose(room.form.PrintSystem);
  EXPECT_EQ(room.printer.TakePrinted(),
            (QStringList{"-- job", "-- font MS Gothic, size 12", "",
                         "System Name                   Caulk", "TakeOff Units                LF",
                         "Unit Price                    4.15", "", ""}));
}

}  // namespace
}  // namespace tamo
