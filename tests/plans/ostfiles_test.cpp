#include "plans/ostfixture.h"

namespace tamo::test {
namespace {

constexpr char kMarked[] = "Tamo/Projects/00-2112002/Plans/Floor2-Marked.pdf";

class PlanFiles : public OstTest {
 protected:
  PlanFiles() { Put("Jobs/Floor2.PDF"); }

  // The record names `plan`; the keeper reads it as the real one does, in mode 2.
  void RecordNames(const QString& plan, const QString& scale1 = {}) {
    keeper.onLoad = [this, plan, scale1](const QString&) {
      shared.LoadingJobNFO = "True";
      ost.PlanLocation.SetText(plan);
      ost.LoadFN();
      ost.Scale1.SetText(scale1);
      shared.LoadingJobNFO = "False";
    };
  }
};

// --- Picking

TEST_F(PlanFiles, AClickOnAFileOpensIt) {
  Choose("GetFiles");
  desk.Pick(ost.Dir1, Path("Jobs"), false);
  EXPECT_EQ(ost.File1.Folder(), Path("Jobs"));
  Pick("Jobs/Floor2.PDF");
  EXPECT_EQ(Location(), PathText("Jobs/Floor2.PDF"));
  EXPECT_EQ(Shown(), "Floor2.PDF");
  EXPECT_FALSE(ost.Frame1.Shown());
  EXPECT_EQ(ost.ProjectName.Text(), "Clinic");
  EXPECT_EQ(desk.Focused(), &ost.PlanLocation);
  EXPECT_EQ(ost.PageText.Text(), "1/1");
  EXPECT_EQ(ost.Mode.Text(), "Released");
  EXPECT_EQ(keeper.loads, QStringList{Path("Jobs/Floor2.PDF")});
}

TEST_F(PlanFiles, ADriveSetsFolderAndFileList) {
  desk.Pick(ost.Drive1, "/", false);
  EXPECT_EQ(ost.Dir1.Folder(), "/");
  EXPECT_EQ(ost.File1.Folder(), "/");
}

TEST_F(PlanFiles, ADoubleClickShowsStepOneAndPageOneInTheFields) {
  engine.pages = 3;
  ost.ZoomLevel.SetText("7");
  Pick("Jobs/Floor2.PDF", true);
  EXPECT_EQ(ost.Mode.Text(), "Released");
  EXPECT_EQ(ost.ZoomLevel.Text(), "1");
  EXPECT_EQ(viewer.Zoom(), 100) << "the fields only";
  EXPECT_EQ(ost.PageText.Text(), "1/3");
}

TEST_F(PlanFiles, EnterInPlanLocationOpensATypedPath) {
  Choose("GetFiles");
  Enter(ost.PlanLocation, PathText("Jobs/floor2.pdf").c_str());
  EXPECT_FALSE(ost.Frame1.Shown());
  EXPECT_EQ(Shown(), "Floor2.PDF") << "a name finds its file whatever its case";
  EXPECT_EQ(ost.Mode.Text(), "Released");
}

// --- LoadPDF

TEST_F(PlanFiles, LoadPdfSetsTheZoomOfTheLevel) {
  ost.ZoomLevel.SetText("10");
  Pick("Jobs/Floor2.PDF");
  EXPECT_EQ(viewer.Zoom(), 130);
}

TEST_F(PlanFiles, OpensInBothModes) {
  for (const char* mode : {"1", "2"}) {
    shared.GUIText = mode;
    viewer.OpenFile(Path("program/Blank.pdf"), {});
    Pick("Jobs/Floor2.PDF");
    EXPECT_EQ(Shown(), "Floor2.PDF") << mode;
  }
}

TEST_F(PlanFiles, APlanThatIsGoneShowsTheBlankPageAndClearsThePath) {
  for (const char* mode : {"1", "2"}) {
    shared.GUIText = mode;
    viewer.OpenFile(Path("Jobs/Floor2.PDF"), {});
    Enter(ost.PlanLocation, PathText("Jobs/Gone.pdf").c_str());
    EXPECT_EQ(Shown(), "Blank.pdf") << mode;
    EXPECT_EQ(Location(), "");
    EXPECT_TRUE(ost.PlanProblem.Caption().contains("Gone.pdf"));
  }
  EXPECT_TRUE(messages.texts.isEmpty());
}

TEST_F(PlanFiles, AFolderIsNoPlan) {
  Enter(ost.PlanLocation, PathText("Jobs").c_str());
  EXPECT_EQ(Location(), "");
  EXPECT_EQ(Shown(), "Blank.pdf");
}

TEST_F(PlanFiles, ADamagedPlanShowsTheBlankPageAndSaysWhy) {
  engine.openError = kFileOther;
  Pick("Jobs/Floor2.PDF");
  EXPECT_EQ(Location(), "");
  EXPECT_TRUE(ost.PlanProblem.Caption().contains("Floor2.PDF"));
  engine.openError = 0;
  Pick("Jobs/Floor2.PDF");
  EXPECT_EQ(ost.PlanProblem.Caption(), "");
  EXPECT_EQ(Location(), PathText("Jobs/Floor2.PDF"));
}

TEST_F(PlanFiles, ADoubleMarkIsCutBackToOneOnlyInModeTwo) {
  Put("Jobs/Floor2-Marked.pdf");
  Put("Jobs/Floor2-Marked-Marked.pdf");
  Pick("Jobs/Floor2-Marked-Marked.pdf");
  EXPECT_EQ(Location(), PathText("Jobs/Floor2-Marked.pdf"));
  EXPECT_EQ(Shown(), "Floor2-Marked.pdf");
  shared.GUIText = "1";
  Pick("Jobs/Floor2-Marked-Marked.pdf");
  EXPECT_EQ(Location(), PathText("Jobs/Floor2-Marked-Marked.pdf"));
  EXPECT_EQ(Shown(), "Floor2-Marked-Marked.pdf");
}

TEST_F(PlanFiles, WithNoPlanOnlyThePageIsWritten) {
  ost.LoadPDF();
  EXPECT_TRUE(engine.calls.isEmpty());
  EXPECT_TRUE(keeper.loads.isEmpty());
  EXPECT_EQ(ost.PageText.Text(), "1/1");
  EXPECT_EQ(ost.ProjectName.Text(), "Clinic");
}

TEST_F(PlanFiles, APickedPlanStaysWhenTheRecordNamesAnother) {
  Choose("OneFifty");
  Pick("Jobs/Floor2.PDF");  // the keeper leaves all as it is
  EXPECT_EQ(Location(), PathText("Jobs/Floor2.PDF"));
  EXPECT_EQ(ost.Scale2.Text(), "50");
  EXPECT_EQ(viewer.Unit(), PaperUnit::Millimetres) << "the scale in the fields stays in force";
  EXPECT_EQ(ost.ScaleInForce.Caption(), "1 mm = 50 ft");
}

TEST_F(PlanFiles, AfterAnInchScaleOpeningAnotherPlanEndsTheMillimetres) {
  Choose("OneFifty");
  Choose("Quarter");
  Pick("Jobs/Floor2.PDF");
  EXPECT_EQ(viewer.Unit(), PaperUnit::Inches);
  EXPECT_EQ(viewer.UnitName(), "feet");
  EXPECT_EQ(ost.ScaleInForce.Caption(), "1/4\" = 1'");
}

TEST_F(PlanFiles, APickedPlanOfTheRecordOpensTheProjectsCopy) {
  Put(kMarked);
  RecordNames(Path(kMarked), "1/4");
  Pick("Jobs/Floor2.PDF");
  EXPECT_EQ(Location(), PathText(kMarked));
  EXPECT_EQ(Shown(), "Floor2-Marked.pdf");
  EXPECT_EQ(ost.Scale1.Text(), "1/4");
}

TEST_F(PlanFiles, APickedPlanOfTheRecordWithoutACopyStaysOnTheScreen) {
  RecordNames(Path(kMarked), "1/4");
  Pick("Jobs/Floor2.PDF");
  EXPECT_EQ(Location(), PathText("Jobs/Floor2.PDF"));
  EXPECT_EQ(Shown(), "Floor2.PDF");
  EXPECT_EQ(ost.Scale1.Text(), "1/4");
}

// --- LoadFN

TEST_F(PlanFiles, LoadFnReturnsAtOnceWhenNoRecordIsRead) {
  ost.PlanLocation.SetText("x");
  ost.LoadFN();
  EXPECT_EQ(Location(), "x");
  EXPECT_TRUE(engine.calls.isEmpty());
}

TEST_F(PlanFiles, LoadFnOpensTheProjectsCopyWhateverPathStandsThere) {
  Put(kMarked);
  shared.LoadingJobNFO = "True";
  for (const char* path : {"C:\\Tamo\\projects\\11-2001001\\plans\\Floor2-Marked.pdf",
                           "E:\\Jobs\\Floor2.PDF", "/jobs/Floor2.pdf", "Floor2"}) {
    viewer.OpenFile(Path("program/Blank.pdf"), {});
    ost.PlanLocation.SetText(path);
    ost.LoadFN();
    EXPECT_EQ(Location(), PathText(kMarked)) << path;
    EXPECT_EQ(Shown(), "Floor2-Marked.pdf");
  }
}

TEST_F(PlanFiles, AMarkedPlanMovedByHandShowsTheBlankPage) {
  shared.LoadingJobNFO = "True";
  ost.PlanLocation.SetText(Path(kMarked));
  ost.LoadFN();
  EXPECT_EQ(Location(), "");
  EXPECT_EQ(Shown(), "Blank.pdf");
}

TEST_F(PlanFiles, OfTheRecordWithDotsStayInTheProjectsFolder) {
  Put("Tamo/Projects/00-2112002/x-Marked.pdf");
  shared.LoadingJobNFO = "True";
  ost.PlanLocation.SetText("Plans/../x.pdf");
  ost.LoadFN();
  EXPECT_EQ(Location(), "") << "only the file name counts";
}

// --- About

TEST_F(PlanFiles, AboutIsShownByNameAndGetsNoMarkedCopy) {
  Put("Other/About.pdf");
  Pick("Other/About.pdf");
  EXPECT_EQ(Location(), PathText("program/About.pdf"));
  EXPECT_EQ(viewer.ShownPath(), Path("program/About.pdf"));
  EXPECT_TRUE(keeper.loads.isEmpty()) << "the record's page and scale are not asked for";
  ost.Scale1.SetText("1/4");
  ost.Scale2.SetText("1");
  viewer.DrawLine({1, 1}, {100, 1});
  engine.calls.clear();
  keeper.asked = 0;
  Choose("Save");
  ost.SaveIt();
  EXPECT_TRUE(engine.calls.isEmpty());
  EXPECT_EQ(keeper.asked, 0);
  EXPECT_FALSE(OnDisk("Tamo/Projects/00-2112002/Plans/About-Marked.pdf"));
}

TEST_F(PlanFiles, AboutOfTheRecordOpensFromTheProgramFolder) {
  shared.LoadingJobNFO = "True";
  ost.PlanLocation.SetText(Path("Tamo/Projects/00-2112002/Plans/About-Marked.pdf"));
  ost.LoadFN();
  EXPECT_EQ(Location(), PathText("program/About.pdf"));
  EXPECT_EQ(Shown(), "About.pdf");
}

// --- Save and SaveIt

TEST_F(PlanFiles, APlanFromAnywhereLandsInTheProjectsFolder) {
  Pick("Jobs/Floor2.PDF");
  Choose("Save");
  EXPECT_TRUE(OnDisk(kMarked));
  EXPECT_EQ(Location(), PathText(kMarked));
  EXPECT_EQ(keeper.record.planLocation, Path(kMarked));
  EXPECT_EQ(Content("Jobs/Floor2.PDF"), "%PDF-1.4\n") << "the picked plan is not touched";
}

TEST_F(PlanFiles, SaveItHasTheSameTarget) {
  for (const char* plan : {"Jobs/Floor2.PDF", "Jobs/Floor2-Marked.pdf",
                           "Jobs/Floor2-Marked-Marked.pdf", "Jobs/Up-Marked-Down.pdf"}) {
    shared.GUIText = "1";
    Put(plan);
    Pick(plan);
    Choose("Save");
    const std::string saved = Location();
    Pick(plan);
    ost.SaveIt();
    EXPECT_EQ(Location(), saved) << plan;
  }
}

TEST_F(PlanFiles, WithoutAPlanNothingIsSaved) {
  Choose("Save");
  ost.SaveIt();
  EXPECT_TRUE(engine.calls.isEmpty());
  EXPECT_EQ(keeper.asked, 0);
}

TEST_F(PlanFiles, TheBlankPageIsNeverSavedAsAPlan) {
  ost.OpenBlank();
  engine.calls.clear();
  ost.PlanLocation.SetText(Path("Jobs/Floor2.PDF"));
  Choose("Save");
  ost.SaveIt();
  EXPECT_TRUE(engine.calls.isEmpty());
  EXPECT_FALSE(OnDisk(kMarked));
}

TEST_F(PlanFiles, ATypedPathThatWasNotEnteredTakesNoOtherPlansMarks) {
  Put("Tamo/Projects/00-2112002/Plans/Floor3-Marked.pdf", "three");
  Pick("Jobs/Floor2.PDF");
  ost.PlanLocation.SetText(Path("Jobs/Floor3.pdf"));
  ost.SaveIt();
  EXPECT_EQ(Content("Tamo/Projects/00-2112002/Plans/Floor3-Marked.pdf"), "three");
  EXPECT_TRUE(OnDisk(kMarked));
}

TEST_F(PlanFiles, WithNoProjectOpenTheFolderOfUnknownIdsMustExist) {
  shared.JobID.clear();
  Pick("Jobs/Floor2.PDF");
  Choose("Save");
  EXPECT_FALSE(OnDisk("Tamo/Projects/Unknown Job ID"));
  EXPECT_TRUE(messages.texts.isEmpty());
  EXPECT_FALSE(files.Notice().isEmpty());
  QDir().mkpath(Path("Tamo/Projects/Unknown Job ID/Plans"));
  Choose("Save");
  EXPECT_TRUE(OnDisk("Tamo/Projects/Unknown Job ID/Plans/Floor2-Marked.pdf"));
  EXPECT_TRUE(files.Notice().isEmpty());
}

TEST_F(PlanFiles, SaveItHasNoFolderForUnknownIds) {
  shared.JobID.clear();
  QDir().mkpath(Path("Tamo/Projects/Unknown Job ID/Plans"));
  Pick("Jobs/Floor2.PDF");
  ost.SaveIt();
  EXPECT_FALSE(OnDisk("Tamo/Projects/Unknown Job ID/Plans/Floor2-Marked.pdf"));
}

TEST_F(PlanFiles, ACopyThatCantBeWrittenWaitsAndIsTriedAgain) {
  Pick("Jobs/Floor2.PDF");
  viewer.DrawLine({1, 1}, {100, 1});
  engine.updateError = kDiskFull;
  messages.texts.clear();
  ost.SaveIt();
  EXPECT_FALSE(OnDisk(kMarked));
  EXPECT_TRUE(messages.texts.isEmpty());
  EXPECT_TRUE(files.Notice().contains("the disk is full")) << files.Notice().toStdString();
  EXPECT_TRUE(files.Notice().contains("Floor2-Marked.pdf"));
  EXPECT_FALSE(ost.PlanProblem.Caption().isEmpty());
  EXPECT_EQ(viewer.Marks().size(), 1U);
  engine.updateError = 0;
  files.SaveText(Path("Tamo/Project.num"), "next save of anything");
  EXPECT_TRUE(OnDisk(kMarked));
  EXPECT_TRUE(files.Notice().isEmpty());
  EXPECT_EQ(ost.PlanProblem.Caption(), "");
  EXPECT_FALSE(viewer.HasUnsavedMarks());
}

TEST_F(PlanFiles, AWaitingCopyIsWrittenFromItsOwnPlan) {
  Put("Jobs/Other.pdf");
  Pick("Jobs/Floor2.PDF");
  viewer.DrawLine({1, 1}, {100, 1});
  engine.updateError = kDiskFull;
  ost.SaveIt();
  Pick("Jobs/Other.pdf");
  viewer.DrawLine({1, 50}, {100, 50});
  viewer.DrawLine({1, 60}, {100, 60});
  engine.updateError = 0;
  EXPECT_TRUE(files.TryAgain());
  EXPECT_TRUE(OnDisk(kMarked));
  EXPECT_TRUE(files.Notice().isEmpty());
  EXPECT_EQ(viewer.Marks().size(), 2U);
  Pick("Jobs/Floor2.PDF");
  viewer.OpenFile(Path("Tamo/Projects/00-2112002/Plans/Floor2-Marked.pdf"), {});
  EXPECT_EQ(viewer.Marks().size(), 1U);
}

TEST_F(PlanFiles, LeavingAPlanTriesItsWaitingCopyOnceMore) {
  Put("Jobs/Other.pdf");
  Pick("Jobs/Floor2.PDF");
  viewer.DrawLine({1, 1}, {100, 1});
  engine.updateError = kDiskFull;
  ost.SaveIt();
  engine.updateError = 0;
  Pick("Jobs/Other.pdf");
  EXPECT_TRUE(OnDisk(kMarked));
}

// --- Path.tam

TEST_F(PlanFiles, OpeningRemembersTheFoldersOfTheBrowser) {
  desk.Pick(ost.Dir1, Path("Jobs"), false);
  Pick("Jobs/Floor2.PDF");
  EXPECT_EQ(Content("Tamo/Plans/Path.tam"), Path("Jobs") + "\r\n" + Path("Jobs") + "\r\n");
}

TEST_F(PlanFiles, TheBrowserStartsAtTheRememberedFolders) {
  EXPECT_EQ(ost.Dir1.Folder(), shared.zDir) << "with no Path.tam at the program folder";
  Put("Tamo/Plans/Path.tam", (Path("Jobs") + "\r\n" + Path("Other") + "\r\n").toUtf8());
  ost.Load();
  EXPECT_EQ(ost.Dir1.Folder(), Path("Jobs"));
  EXPECT_EQ(ost.File1.Folder(), Path("Other"));
}

TEST_F(PlanFiles, AMissingOrBrokenPathFileChangesNothing) {
  ost.Dir1.SetFolder(Path("Jobs"));
  ost.LoadPath();
  EXPECT_EQ(ost.Dir1.Folder(), Path("Jobs"));
  for (const QByteArray& bytes : {QByteArray(), QByteArray("Z:\\gone\r\n"), QByteArray(50, '\0')}) {
    Put("Tamo/Plans/Path.tam", bytes);
    ost.LoadPath();
    EXPECT_EQ(ost.Dir1.Folder(), Path("Jobs"));
  }
}

// --- Plan notes

TEST_F(PlanFiles, EnterInTheNotesSavesThemAndThenBreaksTheLine) {
  Click(ost.Command3);
  desk.TypeText(ost.PlanNotes, "Wall A");
  desk.PressKey(ost.PlanNotes, Key::Named(Key::Name::Enter));
  EXPECT_EQ(Content("Tamo/Projects/00-2112002/Plans/PlanNotes.tamo"), "Wall A\r\n");
  EXPECT_EQ(ost.PlanNotes.Text(), "Wall A\r\n");
}

TEST_F(PlanFiles, LeavingTheNotesDoesNotSaveThem) {
  Click(ost.Command3);
  desk.TypeText(ost.PlanNotes, "Wall A");
  Click(ost.Command3);
  EXPECT_FALSE(OnDisk("Tamo/Projects/00-2112002/Plans/PlanNotes.tamo"));
}

TEST_F(PlanFiles, NotesGrowByAnEmptyLineWithEachLoadAndSave) {
  ost.PlanNotes.SetText("a\r\n\r\nb");
  ost.SavePlanNotes();
  EXPECT_EQ(Content("Tamo/Projects/00-2112002/Plans/PlanNotes.tamo"), "a\r\n\r\nb\r\n");
  ost.LoadPlanNotes();
  EXPECT_EQ(ost.PlanNotes.Text(), "a\r\n\r\nb\r\n");
  ost.SavePlanNotes();
  ost.LoadOSTNotes();
  EXPECT_EQ(ost.PlanNotes.Text(), "a\r\n\r\nb\r\n\r\n");
}

TEST_F(PlanFiles, NotesOfAProjectWithoutAFileAreEmpty) {
  ost.PlanNotes.SetText("of another project");
  ost.LoadPlanNotes();
  EXPECT_EQ(ost.PlanNotes.Text(), "");
}

TEST_F(PlanFiles, WithNoProjectNotesAreNeitherReadNorWritten) {
  shared.JobID.clear();
  ost.PlanNotes.SetText("x");
  ost.SavePlanNotes();
  EXPECT_TRUE(files.Notice().isEmpty());
  ost.LoadPlanNotes();
  EXPECT_EQ(ost.PlanNotes.Text(), "");
}

}  // namespace
}  // namespace tamo::test
