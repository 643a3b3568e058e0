#include <gtest/gtest.h>

#include <QFile>

#include "pricing/pricingroom.h"

// What nobody should type, paste or leave in a folder, and what becomes of it: a clear message,
// nothing lost, never a crash.

namespace tamo {
namespace {

using test::Block;
using test::Compound;
using test::Drywall;
using test::PricingRoom;
using test::Stud;

const char* const kBadNames[] = {"../up", "..",  ".",        "a/b",      "a\\b",
                                 "CON",   "nul", "LPT1.txt", "tab\tbed", "   "};

QStringList AllFiles(PricingRoom& room) {
  return room.disk.Names(room.folder.path()) + room.disk.Names(room.data) +
         room.disk.Names(room.data + "Systems");
}

TEST(BadNames, APastedSystemNameThatCantBeAFilesNameIsRefused) {
  for (const char* name : kBadNames) {
    PricingRoom room;
    room.Open();
    const QStringList before = AllFiles(room);
    room.desk.Paste(room.form.Description, name);
    room.Press(Key::Name::Enter);
    EXPECT_EQ(room.messages.texts.size(), 1) << name;
    EXPECT_EQ(room.FocusName(), "Description");
    EXPECT_EQ(AllFiles(room), before);
    EXPECT_TRUE(room.form.DescriptionsList.Empty());
  }
}

TEST(BadNames, OneThatStandsInTheListIsRefusedToo) {
  for (const char* name : kBadNames) {
    PricingRoom room;
    room.Write("Descriptions.tamo", {name});
    room.form.LoadDescriptions();
    room.Open();
    room.Row(room.form.DescriptionsList, 0);
    EXPECT_EQ(room.messages.texts.size(), 1) << name;
    room.Go(room.form.Description);
    room.Press(Key::Name::Enter);
    EXPECT_EQ(room.messages.texts.size(), 2) << name;
  }
}

TEST(BadNames, DeletingOneRemovesNoFileOutsideTheLibrary) {
  PricingRoom room;
  room.Write("up.sys", {"keep me"});
  room.Write("Descriptions.tamo", {"../up", "Wall"});
  room.form.LoadDescriptions();
  room.Open();
  room.desk.Paste(room.form.Description, "../up");
  room.Choose(room.form.SystemDelete);
  EXPECT_TRUE(room.Exists("up.sys"));
  EXPECT_EQ(room.Lines("Descriptions.tamo"), QStringList{"Wall"});
}

TEST(BadNames, ASystemPastedOverTheOpenOneIsNotSavedUnderABadName) {
  PricingRoom room;
  room.Library("Wall", "SF", "0.00", Drywall());
  room.Open();
  room.Enter("Wall");
  room.form.Description.SetText("../up");
  room.Go(room.form.WageRate);
  room.Press(Key::Name::Enter);
  EXPECT_EQ(room.messages.texts.size(), 1);
  EXPECT_FALSE(room.Exists("up.sys"));
  EXPECT_FALSE(room.Exists("Systems/Drywall.mat"));
}

TEST(BadNames, AMaterialNameThatCantBeAFilesNameIsRefused) {
  for (const char* name : kBadNames) {
    PricingRoom room;
    room.NewSystem("Wall");
    const QStringList before = AllFiles(room);
    room.desk.Paste(room.form.Material, name);
    room.Press(Key::Name::Enter);
    EXPECT_EQ(room.messages.texts.size(), 1) << name;
    EXPECT_EQ(room.FocusName(), "Material");
    // Nor does it get past the others when the chain is gone round.
    room.Go(room.form.WageRate);
    room.Press(Key::Name::Enter);
    EXPECT_EQ(room.messages.texts.size(), 2) << name;
    EXPECT_EQ(AllFiles(room), before);
    EXPECT_TRUE(room.form.System.Empty());
  }
}

TEST(BadNames, AFileThatNamesAnotherPlaceIsNotTaken) {
  PricingRoom room;
  room.Write("Systems/Wall.sys", {"../../up", "SF", "1.00", "", "", "\x01", "", ""});
  room.form.DescriptionsList.Add("Wall");
  room.Open();
  room.Enter("Wall");
  EXPECT_EQ(room.messages.texts.size(), 1);
  EXPECT_EQ(room.form.Description.Text(), "Wall");
  EXPECT_EQ(room.form.Units.Text(), "");
}

TEST(WildTexts, EveryFieldTakesThemAndTheSystemComesBack) {
  const QStringList wild = {QString(100000, 'x'),
                            "\u202Eright to left \u05D0\u05D1",
                            QString::fromUtf8("\x07\x1b[31m"),
                            "a\r\nb\nc",
                            QString(QChar(0xD800)),
                            ", \" / \\ ; '"};
  for (const QString& text : wild) {
    PricingRoom room;
    room.NewSystem("Wall");
    room.EnterAll({"Board", "SHT", "13.4", "16", "38", "10", "46.5"});
    room.Row(room.form.MaterialList, 0);
    for (TextField* field : {&room.form.Units, &room.form.UnitPrice, &room.form.OrderUnits,
                             &room.form.UPO, &room.form.MnhrPO, &room.form.Waste}) {
      room.Go(*field);
      field->SelectAll();
      room.desk.Paste(*field, text);
    }
    room.Go(room.form.WageRate);
    room.Press(Key::Name::Enter);
    room.Click(room.form.Command1);
    room.desk.Paste(room.form.PricingNotes, text);
    room.Click(room.form.Command1);
    const SystemFile read = ReadSystemFile(QString::fromUtf8(room.Bytes("Systems/Wall.sys")));
    EXPECT_EQ(read.description, "Wall");
    EXPECT_EQ(read.blocks.size(), 12);
    EXPECT_EQ(read.blocks.value(0), "Board");
  }
}

TEST(WildTexts, ANumberTooLargeIsAMessageAndNothingIsLost) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.EnterAll({"Board", "SHT"});
  room.desk.Paste(room.form.Price, QString(400, '9'));
  room.Press(Key::Name::Enter);
  EXPECT_EQ(room.messages.texts.size(), 1);
  EXPECT_EQ(room.FocusName(), "Price");
  room.Enter("13.4");
  EXPECT_EQ(room.FocusName(), "UPO");
}

TEST(CutFiles, ASystemCutAtAnyByteOpensAndSaves) {
  SystemFile wall;
  wall.description = "Wall";
  wall.units = "SF";
  wall.unitPrice = "0.00";
  wall.notes = "note";
  wall.blocks = Stud() + Drywall();
  const QByteArray whole = SystemFileText(wall).toUtf8();
  PricingRoom room;
  room.form.DescriptionsList.Add("Wall");
  for (qsizetype size = 0; size <= whole.size(); size += 9) {
    QFile file(room.Path("Systems/Wall.sys"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(whole.left(size));
    file.close();
    room.Open();
    room.Enter("Wall");
    for (int i = 0; i < 8; ++i) room.Press(Key::Name::Enter);
    if (room.form.Visible()) room.desk.CloseBox(room.form);
  }
}

TEST(CutFiles, ABlockCutShortIsFilledUpWhenItIsFinished) {
  PricingRoom room;
  room.Write("Systems/Wall.sys",
             QStringList{"Wall", "SF", "0.00", "", "", "\x01", "", ""} + Drywall().mid(0, 6));
  room.form.DescriptionsList.Add("Wall");
  room.Open();
  room.Enter("Wall");
  EXPECT_EQ(room.form.MnhrPO.Text(), "38");
  room.Go(room.form.Waste);
  room.EnterAll({"10", "46.5"});
  EXPECT_EQ(room.form.System.Count(), 12);
  EXPECT_EQ(room.form.System.Row(8), "46.50");
}

TEST(CutFiles, AMaterialFileCutShortLeavesTheRestToBeTyped) {
  PricingRoom room;
  room.Write("Systems/Board.mat", {"Board", "SHT", "13.40"});
  room.Write("Materials.tamo", {"Board"});
  room.form.vocabulary.LoadMaterials();
  room.NewSystem("Wall");
  room.Enter("Board");
  EXPECT_EQ(room.form.Price.Text(), "13.40");
  EXPECT_EQ(room.form.UPO.Text(), "");
  EXPECT_EQ(room.FocusName(), "OrderUnits");
}

TEST(DeniedFiles, ASaveThatFailsIsKeptAndTriedAgain) {
  PricingRoom room;
  room.Library("Caulk", "LF", "4.15");
  room.disk.Deny(room.Path("Systems/Caulk.sys"));
  room.Open();
  room.EnterAll({"Caulk", "LF", "5"});
  EXPECT_TRUE(room.messages.texts.isEmpty());
  EXPECT_TRUE(room.files.Notice().contains("Caulk.sys"));
  EXPECT_EQ(room.Lines("Systems/Caulk.sys").value(2), "4.15");
  // The newer text is what is read.
  room.Go(room.form.Description);
  room.Enter("Caulk");
  EXPECT_EQ(room.form.UnitPrice.Text(), "5.00");
  room.disk.Allow(room.Path("Systems/Caulk.sys"));
  EXPECT_TRUE(room.files.TryAgain());
  EXPECT_EQ(room.Lines("Systems/Caulk.sys").value(2), "5.00");
}

TEST(DeniedFiles, AFolderInAFilesPlaceIsToldAndNothingIsOverwritten) {
  PricingRoom room;
  room.disk.MakeFolder(room.Path("Systems/Wall.sys"));
  room.form.DescriptionsList.Add("Wall");
  room.Open();
  room.Enter("Wall");
  EXPECT_EQ(room.messages.texts.size(), 1);
  EXPECT_TRUE(room.messages.texts[0].contains("Wall"));
  EXPECT_EQ(room.FocusName(), "Description");
}

TEST(OtherCases, SavingUnderAnotherCaseReplacesTheFile) {
  PricingRoom room;
  room.Write("Systems/DRYWALL.mat", Drywall().mid(0, 9));
  room.NewSystem("Wall");
  room.EnterAll({"Drywall", "SHT", "99", "16", "38", "10", "46.5"});
  EXPECT_EQ(room.Lines("Systems/DRYWALL.mat").value(2), "99.00");
  EXPECT_FALSE(room.disk.Names(room.data + "Systems").contains("Drywall.mat"));
}

TEST(Saves, AFullDiskNeitherCrashesNorForgets) {
  PricingRoom room;
  room.NewSystem("Wall");
  room.disk.SetFull(true);
  room.EnterAll({"Board", "SHT", "13.4", "16", "38", "10", "46.5"});
  EXPECT_FALSE(room.files.PendingSaves().empty());
  EXPECT_EQ(room.FocusName(), "Material");
  room.disk.SetFull(false);
  EXPECT_TRUE(room.files.TryAgain());
  EXPECT_EQ(room.Lines("Systems/Wall.sys").value(8), "Board");
  EXPECT_EQ(room.Lines("Systems/Board.mat").value(0), "Board");
}

}  // namespace
}  // namespace tamo
