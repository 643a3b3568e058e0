#include <gtest/gtest.h>

#include <memory>

#include "plans/pdfdraw.h"
#include "program/program.h"
#include "support/fakeplanengine.h"
#include "support/room.h"

namespace tamo {
namespace {

// What waits in a form for its last step when the program ends without being asked.
class RecoveryTest : public ::testing::Test, public test::MachineRoom {
 protected:
  RecoveryTest() {
    PutLines(Path("program/Settings.tamo"), {"00",        "",  "",  "",    Path("home/Tamo/"),
                                             "255000000", "3", "1", " 0 ", "3",
                                             "",          "",  "",  "",    "",
                                             "",          "",  "",  "",    "",
                                             ""});
    Begin();
  }

  void Begin() {
    viewer = std::make_unique<PdfDraw>(planFiles, engine);
    program = std::make_unique<Program>(platform, *viewer);
    program->Start();
  }
  void Crash() {
    program.reset();
    viewer.reset();
  }
  Form& Of(const char* form) { return *program->FindForm(QLatin1String(form)); }
  TextField& Field(const char* form, const char* name) {
    return dynamic_cast<TextField&>(*Of(form).Find(QLatin1String(name)));
  }
  void Run(const char* form, const char* entry) {
    MenuEntry& menu = *Of(form).FindMenu(QLatin1String(entry));
    program->GetDesk().Dispatch([&] { menu.onClick(); });
  }
  void Click(const char* form, const char* button) {
    program->GetDesk().ClickInto(*Of(form).Find(QLatin1String(button)));
  }
  void Type(const char* form, const char* field, const char* text) {
    program->GetDesk().UserFocus(Field(form, field));
    program->GetDesk().TypeText(Field(form, field), QLatin1String(text));
  }
  void Enter(const char* form, const char* field, const char* text) {
    Type(form, field, text);
    program->GetDesk().PressKey(Field(form, field), Key{Key::Name::Enter, {}});
  }
  void MakeProject() {
    Run("Tamo", "NewProject");
    Type("Tamo", "JobName", "Clinic");
    Click("Tamo", "Command1");
  }
  void Open() {
    Run("Tamo", "OpenProject");
    auto& list = dynamic_cast<OrderedList&>(*Of("Tamo").Find(QStringLiteral("JobsList")));
    program->GetDesk().ClickRow(list, 0);
  }
  void EnterItem() {
    Run("Tamo", "BottomLineItems");
    Enter("BottomLine", "Item", "Dumpsters");
    Enter("BottomLine", "iPrice", "1250");
  }
  QStringList Rows() {
    return dynamic_cast<OrderedList&>(*Of("BottomLine").Find(QStringLiteral("oiList"))).Rows();
  }
  QStringList Kept() { return disk.Names(platform.configFolder).filter("recovery"); }

  Files planFiles{disk};
  test::FakePlanEngine engine;
  std::unique_ptr<PdfDraw> viewer;
  std::unique_ptr<Program> program;
};

TEST_F(RecoveryTest, NothingIsKeptWhereNothingWaits) {
  MakeProject();
  EXPECT_TRUE(Kept().isEmpty());
}

TEST_F(RecoveryTest, ANumberThatWasOnlyFilledInDoesNotWait) {
  Crash();
  disk.RemoveFile(Path("program/Settings.tamo"));
  Begin();
  Run("Tamo", "Settings1");
  program->GetDesk().UserFocus(Field("Settings", "EstimatorNumber"));
  program->GetDesk().UserFocus(Field("Settings", "EstimatorName"));
  EXPECT_EQ(Field("Settings", "EstimatorNumber").Text(), "00");
  EXPECT_TRUE(Kept().isEmpty());
}

TEST_F(RecoveryTest, BottomLineItemsComeBackWhenTheirProjectIsOpened) {
  MakeProject();
  EnterItem();
  const QStringList rows = Rows();
  Crash();
  Begin();
  EXPECT_TRUE(messages.texts.isEmpty());
  messages.answers = {true};
  Open();
  ASSERT_EQ(messages.texts.size(), 1);
  EXPECT_TRUE(messages.texts[0].contains("bottom line items of \"Clinic\""));
  EXPECT_EQ(Rows(), rows);
  EXPECT_TRUE(Of("BottomLine").Visible());
  program->GetDesk().PressKey(Field("BottomLine", "Item"), Key{Key::Name::Enter, {}});
  const QString file = program->Shared().DataPath + QStringLiteral("Projects/") +
                       program->Shared().JobID + QStringLiteral("/oItems.tamo");
  EXPECT_EQ(WholeLinesOf(file), rows);
  EXPECT_TRUE(Kept().isEmpty());
}

TEST_F(RecoveryTest, NoDropsThem) {
  MakeProject();
  EnterItem();
  Crash();
  Begin();
  messages.answers = {false};
  Open();
  EXPECT_TRUE(Rows().isEmpty());
  EXPECT_TRUE(Kept().isEmpty());
  Open();
  EXPECT_EQ(messages.texts.size(), 1) << "asked once";
}

TEST_F(RecoveryTest, WhatWasOfferedToNobodyOutlivesAnotherCrash) {
  MakeProject();
  EnterItem();
  const QStringList rows = Rows();
  for (int i = 0; i < 3; ++i) {
    Crash();
    Begin();
    EXPECT_EQ(Kept().size(), 1);
  }
  messages.answers = {true};
  Open();
  EXPECT_EQ(Rows(), rows);
}

TEST_F(RecoveryTest, TheChangedPanelComesBackWithItsProject) {
  MakeProject();
  Run("Tamo", "ProjectInformation");
  Enter("Tamo", "BidDate", "May 5");
  Type("Tamo", "Notes", "two = lines \\ here");
  program->KeepWaiting();
  Crash();
  Begin();
  messages.answers = {true};
  Open();
  ASSERT_EQ(messages.texts.size(), 1);
  EXPECT_TRUE(messages.texts[0].contains("project information of \"Clinic\""));
  EXPECT_EQ(Field("Tamo", "BidDate").Text(), "May 5");
  EXPECT_EQ(Field("Tamo", "Notes").Text(), "two = lines \\ here");
  Click("Tamo", "Command1");
  EXPECT_TRUE(Kept().isEmpty());
}

TEST_F(RecoveryTest, ANewProjectComesBackAtTheStart) {
  Run("Tamo", "NewProject");
  Enter("Tamo", "JobName", "School");
  Enter("Tamo", "BidDate", "June 1");
  Crash();
  messages.answers = {true};
  Begin();
  ASSERT_EQ(messages.texts.size(), 1);
  EXPECT_TRUE(messages.texts[0].contains("new project \"School\""));
  EXPECT_EQ(Field("Tamo", "JobName").Text(), "School");
  EXPECT_EQ(Field("Tamo", "BidDate").Text(), "June 1");
  Click("Tamo", "Command1");
  EXPECT_EQ(WholeLinesOf(program->Shared().DataPath + QStringLiteral("Jobs.lst")).size(), 1);
}

TEST_F(RecoveryTest, ChangedSettingsComeBackAtTheStart) {
  Run("Tamo", "Settings1");
  Enter("Settings", "EstimatorName", "Ann");
  Crash();
  messages.answers = {true};
  Begin();
  ASSERT_EQ(messages.texts.size(), 1);
  EXPECT_TRUE(Of("Settings").Visible());
  EXPECT_EQ(Field("Settings", "EstimatorName").Text(), "Ann");
  Click("Settings", "Command1");
  EXPECT_TRUE(Kept().isEmpty());
}

TEST_F(RecoveryTest, AnOrderlyEndKeepsNothing) {
  Run("Tamo", "Settings1");
  Enter("Settings", "EstimatorName", "Ann");
  EXPECT_EQ(Kept().size(), 1);
  Run("Tamo", "Exit");
  EXPECT_TRUE(Kept().isEmpty());
}

TEST_F(RecoveryTest, ARequestToEndSavesAllThatWaits) {
  MakeProject();
  EnterItem();
  const QStringList rows = Rows();
  Run("Tamo", "Settings1");
  Type("Settings", "EstimatorName", "Ann");
  const QString file = program->Shared().DataPath + QStringLiteral("Projects/") +
                       program->Shared().JobID + QStringLiteral("/oItems.tamo");
  program->SaveAll();
  EXPECT_TRUE(messages.texts.isEmpty());
  EXPECT_EQ(WholeLinesOf(file), rows);
  Crash();
  messages.answers = {true};
  Begin();
  EXPECT_EQ(Field("Settings", "EstimatorName").Text(), "Ann");
}

// The machine goes down: the project is nobody's, and no other program must wait for it.
TEST_F(RecoveryTest, ARequestToEndGivesTheProjectBack) {
  MakeProject();
  const QString sign = program->Shared().DataPath + QStringLiteral("Projects/") +
                       program->Shared().JobID + QStringLiteral("/InUse.lock");
  EXPECT_TRUE(disk.Exists(sign));
  program->SaveAll();
  EXPECT_TRUE(disk.Exists(sign)) << "the user may think better of it";
  Crash();
  EXPECT_FALSE(disk.Exists(sign));
}

TEST_F(RecoveryTest, ALivingProgramsEntriesAreItsOwn) {
  Run("Tamo", "Settings1");
  Enter("Settings", "EstimatorName", "Ann");
  PdfDraw otherViewer(planFiles, engine);
  Program other(platform, otherViewer);
  other.Start();
  EXPECT_TRUE(messages.texts.isEmpty());
  EXPECT_EQ(Kept().size(), 1);
}

TEST_F(RecoveryTest, ADamagedFileIsNoObstacle) {
  Run("Tamo", "Settings1");
  Enter("Settings", "EstimatorName", "Ann");
  const QString file = platform.configFolder + QLatin1Char('/') + Kept().value(0);
  const QByteArray whole = Bytes(file);
  for (int cut = 0; cut < whole.size(); cut += 7) {
    Crash();
    for (const QString& name : Kept()) disk.RemoveFile(platform.configFolder + '/' + name);
    Put(file, whole.left(cut) + QByteArray(cut % 2, '\xff'));
    messages.answers = {false, false, false};
    Begin();
    EXPECT_TRUE(program->Running());
  }
}

}  // namespace
}  // namespace tamo
