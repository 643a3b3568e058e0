#include "workspace/tamoform.h"

#include "workspace/workspaceroom.h"

namespace tamo::test {
namespace {

class MainForm : public WorkspaceRoom {
 protected:
  MainForm() {
    settings.EstimatorNumber.SetText(QStringLiteral("07"));
    Run([this] { form.Init(); });
    form.Show();
  }
  void Create(const char* name) {
    Run([this] { form.projects.NewProject(); });
    Enter(form.panel.JobName, QLatin1String(name));
    desk.ClickInto(form.panel.Command1);
  }
  void Open(int row) {
    Run([this] { form.projects.OpenProject(); });
    desk.ClickRow(form.panel.JobsList, row);
  }

  SettingsForm settings{kit, windows};
  TamoForm form{kit, settings, {windows, plan, followers}};
};

TEST_F(MainForm, TheStartMakesTheDataFolderAndItsNumber) {
  EXPECT_TRUE(disk.IsFolder(Path("home/Tamo/Projects")));
  EXPECT_TRUE(disk.IsFolder(Path("home/Tamo/Systems")));
  EXPECT_TRUE(disk.IsFolder(Path("home/Tamo/Plans")));
  EXPECT_EQ(Lines("home/Tamo/Project.num"), QStringList{"2112000"});
  EXPECT_EQ(shared.JobID, "");
  EXPECT_EQ(followers.pricing, 1);
  EXPECT_EQ(windows.asked, QStringList{"mode 1"});
}

TEST_F(MainForm, ASecondStartInsideTheFirstDoesNothing) {
  shared.DriveBy = QStringLiteral("True");
  Run([this] { form.Init(); });
  EXPECT_EQ(followers.pricing, 1);
}

TEST_F(MainForm, ANewProjectIsListedNumberedAndWritten) {
  Create("Clinic");
  EXPECT_EQ(Lines("home/Tamo/Jobs.lst"), QStringList{"07-2112001   Clinic"});
  EXPECT_EQ(Lines("home/Tamo/Project.num"), QStringList{"07-2112001"});
  EXPECT_EQ(Lines("home/Tamo/Projects/07-2112001/JobNFO.tamo").mid(0, 2),
            (QStringList{"07-2112001", "Clinic"}));
  for (const char* part : {"Systems", "Rooms", "ATOs", "Plans", "PM"})
    EXPECT_TRUE(disk.IsFolder(Path("home/Tamo/Projects/07-2112001/") + part)) << part;
  EXPECT_EQ(shared.OPN, "2");
  EXPECT_EQ(plan.projectName, "Clinic");
  EXPECT_EQ(followers.reports, 1);
}

TEST_F(MainForm, NothingIsWrittenWithoutAName) {
  Run([this] { form.projects.NewProject(); });
  EXPECT_EQ(shared.JobID, "07-2112001");
  EXPECT_EQ(desk.Focused(), &form.panel.JobName);
  desk.ClickInto(form.panel.Command1);
  EXPECT_EQ(shared.JobID, "");
  EXPECT_EQ(Lines("home/Tamo/Project.num"), QStringList{"2112000"});
  EXPECT_FALSE(disk.Exists(Path("home/Tamo/Jobs.lst")));
}

TEST_F(MainForm, AnIdIsCountedUpPastTheListAndTheFolders) {
  Write("home/Tamo/Jobs.lst", {"07-2112001   One", "07-2112003   Three"});
  files.MakeFolders(Path("home/Tamo/Projects/07-2112002/"));
  Create("Four");
  EXPECT_EQ(Lines("home/Tamo/Jobs.lst").last(), "07-2112004   Four");
  EXPECT_TRUE(disk.Names(Path("home/Tamo/Projects/07-2112002")).isEmpty());
}

TEST_F(MainForm, AnIdThatWasTakenMeanwhileIsCountedUpAtTheSave) {
  Run([this] { form.projects.NewProject(); });
  EXPECT_EQ(shared.JobID, "07-2112001");
  files.MakeFolders(Path("home/Tamo/Projects/07-2112001/"));
  Enter(form.panel.JobName, QStringLiteral("Late"));
  desk.ClickInto(form.panel.Command1);
  EXPECT_EQ(Lines("home/Tamo/Jobs.lst"), QStringList{"07-2112002   Late"});
  EXPECT_TRUE(disk.Names(Path("home/Tamo/Projects/07-2112001")).isEmpty());
}

// All estimators share the numbers: nobody's is as high as the new one.
TEST_F(MainForm, TheNumberIsHigherThanAnyInTheListAndOnTheDisk) {
  Write("home/Tamo/Jobs.lst", {"07-2112001   One", "08-2112005   Five", "Photos"});
  Run([this] { form.projects.NewProject(); });
  EXPECT_EQ(shared.JobID, "07-2112006");
  files.MakeFolders(Path("home/Tamo/Projects/09-2112008/"));
  Enter(form.panel.JobName, QStringLiteral("Nine"));
  desk.ClickInto(form.panel.Command1);
  EXPECT_EQ(Lines("home/Tamo/Jobs.lst").last(), "07-2112009   Nine");
}

TEST_F(MainForm, TheNumberIsHigherThanTheOneThatAnotherProgramHasSavedMeanwhile) {
  Run([this] { form.projects.NewProject(); });
  EXPECT_EQ(shared.JobID, "07-2112001");
  Write("home/Tamo/Project.num", {"08-2112004"});
  Enter(form.panel.JobName, QStringLiteral("Five"));
  desk.ClickInto(form.panel.Command1);
  EXPECT_EQ(Lines("home/Tamo/Jobs.lst"), QStringList{"07-2112005   Five"});
}

TEST_F(MainForm, AFullDiskIsNoTakenId) {
  Run([this] { form.projects.NewProject(); });
  Enter(form.panel.JobName, QStringLiteral("Kept"));
  disk.SetFull(true);
  desk.ClickInto(form.panel.Command1);
  EXPECT_EQ(shared.JobID, "07-2112001");
  disk.SetFull(false);
  EXPECT_TRUE(files.TryAgain());
  EXPECT_EQ(Lines("home/Tamo/Jobs.lst"), QStringList{"07-2112001   Kept"});
}

TEST(ProjectIdTexts, CountUp) {
  EXPECT_EQ(CountedUp("07-2112001"), "07-2112002");
  EXPECT_EQ(CountedUp("07-2112999"), "07-21121000");
  EXPECT_EQ(CountedUp("-2112009"), "-2112010");
  EXPECT_EQ(CountedUp("1-2-2112009"), "1-2-2112010")
      << "the number is what follows the last hyphen";
  EXPECT_EQ(CountedUp("07-wild"), "07-wild001") << "a wild number file ends, too";
}

TEST_F(MainForm, AnotherProjectInheritsNothing) {
  Write("home/Tamo/Jobs.lst", {"07-2112001   One", "07-2112002   Two", "07-2112003   Three"});
  Write("home/Tamo/Projects/07-2112001/JobNFO.tamo",
        {"07-2112001", "One", "1/1/22", "a", "p", "b", "i", "e", "ar", "F-Marked.pdf", "2", "5",
         "10", "20", "90", "1/4", "1", "in", "note"});
  Write("home/Tamo/Projects/07-2112002/JobNFO.tamo", {"07-2112002", "Two"});
  shared.GUIText = QStringLiteral("2");
  for (const int other : {1, 2}) {
    Open(0);
    EXPECT_EQ(form.panel.Phase.Text(), "p");
    EXPECT_EQ(plan.fields.scale1, "1/4");
    EXPECT_EQ(plan.view[2], 90);
    Open(other);
    for (const TextField* field : form.panel.Fields()) {
      if (field != &form.panel.JobName) {
        EXPECT_EQ(field->Text(), "") << field->Name().toStdString();
      }
    }
    EXPECT_EQ(plan.fields.planLocation, "");
    EXPECT_EQ(plan.fields.pageText, "");
    EXPECT_EQ(plan.fields.zoomLevel, "");
    EXPECT_EQ(plan.fields.scale1 + plan.fields.scale2 + plan.fields.text5, "");
  }
}

TEST_F(MainForm, TheSameProjectReadAgainKeepsWhatItsRecordLeavesOut) {
  Write("home/Tamo/Jobs.lst", {"07-2112001   One"});
  Write("home/Tamo/Projects/07-2112001/JobNFO.tamo", {"07-2112001", "One", "1/1/22"});
  Open(0);
  form.panel.Phase.SetText(QStringLiteral("typed"));
  Open(0);
  EXPECT_EQ(form.panel.Phase.Text(), "typed");
}

TEST_F(MainForm, TheSameIdInAnotherDataFolderIsAnotherProject) {
  Write("home/Tamo/Jobs.lst", {"07-2112001   One"});
  Write("home/Tamo/Projects/07-2112001/JobNFO.tamo", {"07-2112001", "One", "1/1/22", "add"});
  Write("Else/Tamo/Jobs.lst", {"07-2112001   One"});
  Write("Else/Tamo/Projects/07-2112001/JobNFO.tamo", {"07-2112001", "One"});
  Open(0);
  settings.DataPath.SetText(Path("Else/Tamo/"));
  Open(0);
  EXPECT_EQ(form.panel.BidDate.Text(), "");
  EXPECT_EQ(form.panel.Addenda.Text(), "");
}

TEST_F(MainForm, ALockedProjectIsNotWritten) {
  Create("Clinic");
  Run([this] { form.lock.LockProject(); });
  EXPECT_EQ(Lines("home/Tamo/Projects/07-2112001/Locked.tamo"), QStringList{"True"});
  Run([this] { form.ProjectInformation(); });
  form.panel.Phase.SetText(QStringLiteral("Permit"));
  desk.ClickInto(form.panel.Command1);
  EXPECT_EQ(messages.texts, QStringList{"Project is locked."});
  EXPECT_EQ(Lines("home/Tamo/Projects/07-2112001/JobNFO.tamo")[4], "");
  Run([this] { form.lock.LockProject(); });
  EXPECT_EQ(shared.Locked, "False") << "anyone may take the lock off";
}

TEST_F(MainForm, TheBidItemsStayWhenAProjectIsClearedOrBegun) {
  Create("Clinic");
  form.panel.BidItems.SetText(QStringLiteral("Base"));
  form.panel.Phase.SetText(QStringLiteral("Bid"));
  Run([this] { form.projects.ClearProject(); });
  EXPECT_EQ(form.panel.BidItems.Text(), "Base");
  EXPECT_EQ(form.panel.Phase.Text(), "");
  EXPECT_EQ(shared.JobID, "");
  EXPECT_EQ(plan.asked.last(), "blank");
}

TEST_F(MainForm, DeletingTakesTheEqualLineAndTheFolder) {
  Create("Clinic");
  Create("School");
  messages.answers = {true};
  Run([this] { form.copies.DeleteProject(); });
  EXPECT_EQ(Lines("home/Tamo/Jobs.lst"), QStringList{"07-2112001   Clinic"});
  EXPECT_FALSE(disk.Exists(Path("home/Tamo/Projects/07-2112002")));
  EXPECT_EQ(shared.JobID, "");
  EXPECT_EQ(shared.OPN, "3");
}

TEST_F(MainForm, WithoutAProjectTheListComesUpAndGoesAgain) {
  Write("home/Tamo/Jobs.lst", {"07-2112001   One"});
  Run([this] { EXPECT_FALSE(form.NeedProject()); });
  EXPECT_TRUE(form.panel.JobsList.Shown());
  EXPECT_TRUE(form.panel.JobNFOFrame.Shown());
  Run([this] { EXPECT_FALSE(form.NeedProject()); });
  EXPECT_FALSE(form.panel.JobsList.Shown());
  Open(0);
  Run([this] { EXPECT_TRUE(form.NeedProject()); });
}

TEST_F(MainForm, EnterWalksThePanelInARing) {
  form.panel.JobNFOFrame.Show();
  const auto chain = form.panel.Fields();
  for (size_t i = 0; i < chain.size(); ++i) {
    Enter(*chain[i], QStringLiteral("x"));
    EXPECT_EQ(desk.Focused(), chain[(i + 1) % chain.size()]) << i;
  }
  desk.PressKey(form.panel.Notes, Key::Named(Key::Name::LineFeed));
  EXPECT_TRUE(form.panel.Notes.Text().contains("\r\n"));
  desk.UserFocus(form.panel.JobName);
  desk.TypeText(form.panel.JobName, QStringLiteral("a\\,\"/b"));
  EXPECT_EQ(form.panel.JobName.Text(), "ab");
}

}  // namespace
}  // namespace tamo::test
