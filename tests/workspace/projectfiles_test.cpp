#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "common/failure.h"
#include "support/faultdisk.h"
#include "workspace/projectcopy.h"
#include "workspace/projectdelete.h"

namespace tamo::test {
namespace {

class ProjectFiles : public ::testing::Test {
 protected:
  ProjectFiles() {
    for (const char* id : {"00-2112001", "00-2112002"}) {
      for (const char* part : {"Systems", "Rooms", "ATOs", "Plans", "PM"}) {
        QDir().mkpath(Path("Projects/") + id + '/' + part);
      }
    }
    Put("Projects/00-2112001/JobNFO.tamo", "00-2112001\r\nClinic\r\n1/15/21\r\n");
    Put("Projects/00-2112001/Markups.tamo", ".05\r\n");
    Put("Projects/00-2112001/Systems/GWB.sys", "GWB\r\nSF\r\n");
    Put("Projects/00-2112001/Rooms/Rooms.tamo", "Lobby\r\n\r\n");
    Put("Projects/00-2112001/Rooms/Lobby.rfs", "GWB   10 SF\r\n");
    Put("Projects/00-2112001/ATOs/Roof.ato", "GWB 5\r\n");
    Put("Projects/00-2112001/Plans/Floor-Marked.pdf", "%PDF");
    Put("Projects/00-2112001/Plans/PlanNotes.tamo", "note\r\n");
    Put("Projects/00-2112001/PM/Office.pmo", "x\r\n");
    Put("Projects/other.txt", "stays");
    Put("outside.txt", "stays");
  }
  QString Path(const QString& name) const { return dir.path() + '/' + name; }
  QString Path(const char* name) const { return Path(QString(QLatin1String(name))); }
  void Put(const char* name, const QByteArray& bytes) {
    int handle = -1;
    ASSERT_EQ(disk.OpenNew(Path(name), handle), kNoError) << name;
    disk.Write(handle, bytes);
    disk.Close(handle);
  }
  std::string Content(const char* name) {
    QByteArray bytes;
    return disk.Read(Path(name), bytes) == kNoError ? bytes.toStdString() : "(no file)";
  }
  DataFolder Data() const { return {Path(""), "/"}; }
  ProjectCopy Paste() { return CopyProjectFiles(files, Data(), "00-2112001", "00-2112002"); }
  QStringList Delete(const char* id) {
    return DeleteProjectFiles(files, Data(), QLatin1String(id));
  }
  bool There(const char* name) { return disk.Exists(Path(name)); }

  QTemporaryDir dir;
  FaultDisk disk;
  Files files{disk};
};

// --- Copy

TEST_F(ProjectFiles, RoomsAreasSystemsAndTheProjectsOwnFilesComeAcross) {
  const ProjectCopy copy = Paste();
  EXPECT_TRUE(copy.done);
  EXPECT_EQ(copy.copied, 6);
  EXPECT_TRUE(copy.left.isEmpty());
  EXPECT_EQ(Content("Projects/00-2112002/Markups.tamo"), ".05\r\n");
  EXPECT_EQ(Content("Projects/00-2112002/Systems/GWB.sys"), "GWB\r\nSF\r\n");
  EXPECT_EQ(Content("Projects/00-2112002/Rooms/Lobby.rfs"), "GWB   10 SF\r\n");
  EXPECT_EQ(Content("Projects/00-2112002/Rooms/Rooms.tamo"), "Lobby\r\n\r\n");
  EXPECT_EQ(Content("Projects/00-2112002/ATOs/Roof.ato"), "GWB 5\r\n");
}

TEST_F(ProjectFiles, PlansAndProjectManagerFilesDoNotComeAcross) {
  Paste();
  EXPECT_TRUE(disk.Names(Path("Projects/00-2112002/Plans")).isEmpty());
  EXPECT_TRUE(disk.Names(Path("Projects/00-2112002/PM")).isEmpty());
}

TEST_F(ProjectFiles, ABidDateOfSevenCharactersComesOutAsTheTargetsId) {
  Paste();
  EXPECT_EQ(Content("Projects/00-2112002/JobNFO.tamo"), "00-2112001\r\nClinic\r\n00-2112002\r\n")
      << "an id of ten characters stays the source's";
}

TEST_F(ProjectFiles, OnlyTheRecordsSevenCharacterLinesAreReplaced) {
  EXPECT_EQ(CopiedText("JobNFO.tamo", "1234567\r\n123456\r\n12345678\r\n", "id"),
            "id\r\n123456\r\n12345678\r\n");
  EXPECT_EQ(CopiedText("jobnfo.TAMO", "1234567", "id"), "id\r\n");
  EXPECT_EQ(CopiedText("Markups.tamo", "1234567\r\n", "id"), "1234567\r\n");
  EXPECT_EQ(CopiedText("JobNFO.tamo", QString::fromUtf8("äöüßéèê\n"), "id"), "id\r\n")
      << "characters count, not bytes";
}

TEST_F(ProjectFiles, LineEndsBecomeCarriageReturnAndLineFeed) {
  EXPECT_EQ(CopiedText("a.rfs", "one\ntwo\rthree", "id"), "one\r\ntwo\r\nthree\r\n");
  EXPECT_EQ(CopiedText("a.rfs", "", "id"), "");
}

TEST_F(ProjectFiles, FilesOfTheSameNameInTheTargetAreReplaced) {
  Put("Projects/00-2112002/JobNFO.tamo", "00-2112002\r\nTyped just now\r\n");
  Put("Projects/00-2112002/Rooms/Other.rfs", "stays\r\n");
  Paste();
  EXPECT_EQ(Content("Projects/00-2112002/JobNFO.tamo"), "00-2112001\r\nClinic\r\n00-2112002\r\n");
  EXPECT_EQ(Content("Projects/00-2112002/Rooms/Other.rfs"), "stays\r\n");
}

TEST_F(ProjectFiles, APasteIntoTheSourceItselfChangesNothing) {
  const ProjectCopy copy = CopyProjectFiles(files, Data(), "00-2112001", "00-2112001");
  EXPECT_FALSE(copy.done);
  EXPECT_EQ(Content("Projects/00-2112001/JobNFO.tamo"), "00-2112001\r\nClinic\r\n1/15/21\r\n");
}

TEST_F(ProjectFiles, AnIdThatIsNoFolderCopiesNothing) {
  for (const char* id : {"", "..", ".", "../x", "00-9999999"}) {
    EXPECT_FALSE(CopyProjectFiles(files, Data(), "00-2112001", id).done) << id;
    EXPECT_FALSE(CopyProjectFiles(files, Data(), id, "00-2112002").done) << id;
  }
  EXPECT_FALSE(There("Projects/JobNFO.tamo"));
  EXPECT_FALSE(There("JobNFO.tamo"));
}

TEST_F(ProjectFiles, AFileThatCantBeReadLeavesNoHalfProject) {
  QFile::link("/nowhere/at all", Path("Projects/00-2112001/Rooms/A.rfs"));
  const ProjectCopy copy = Paste();
  EXPECT_FALSE(copy.done);
  EXPECT_EQ(copy.copied, 0);
  EXPECT_EQ(copy.left, QStringList{Path("Projects/00-2112001/Rooms/A.rfs")});
  EXPECT_FALSE(There("Projects/00-2112002/ATOs/Roof.ato"));
}

TEST_F(ProjectFiles, ASaveThatWaitsIsCopiedAlthoughItHasNoFileYet) {
  disk.Deny(Path("Projects/00-2112001/Rooms/New.rfs"));
  files.SaveText(Path("Projects/00-2112001/Rooms/New.rfs"), "new\r\n");
  EXPECT_TRUE(Paste().left.isEmpty());
  EXPECT_EQ(Content("Projects/00-2112002/Rooms/New.rfs"), "new\r\n");
}

TEST_F(ProjectFiles, AFileThatCantBeWrittenDoesNotStopTheRest) {
  disk.Deny(Path("Projects/00-2112002/Rooms/Lobby.rfs"));
  const ProjectCopy copy = Paste();
  EXPECT_EQ(copy.copied, 5);
  EXPECT_EQ(copy.waiting, QStringList{Path("Projects/00-2112002/Rooms/Lobby.rfs")});
  EXPECT_EQ(Content("Projects/00-2112002/ATOs/Roof.ato"), "GWB 5\r\n");
}

TEST_F(ProjectFiles, HalfMadeSavesAndNestedFoldersStayBehind) {
  Put("Projects/00-2112001/Rooms/Lobby.rfs.tamo-unfinished", "half");
  QDir().mkpath(Path("Projects/00-2112001/Rooms/nested"));
  Paste();
  EXPECT_FALSE(There("Projects/00-2112002/Rooms/Lobby.rfs.tamo-unfinished"));
  EXPECT_FALSE(There("Projects/00-2112002/Rooms/nested"));
}

TEST_F(ProjectFiles, AnUnsavedTextOfTheSourceIsWhatIsCopied) {
  disk.Deny(Path("Projects/00-2112001/Rooms/Lobby.rfs"));
  files.SaveText(Path("Projects/00-2112001/Rooms/Lobby.rfs"), "newer\r\n");
  Paste();
  EXPECT_EQ(Content("Projects/00-2112002/Rooms/Lobby.rfs"), "newer\r\n");
}

TEST_F(ProjectFiles, ATargetWithoutAFolderGetsIt) {
  QDir(Path("Projects/00-2112002/ATOs")).removeRecursively();
  EXPECT_TRUE(Paste().left.isEmpty());
  EXPECT_EQ(Content("Projects/00-2112002/ATOs/Roof.ato"), "GWB 5\r\n");
}

// --- Delete

TEST_F(ProjectFiles, DeleteRemovesTheWholeTreeAndNothingElse) {
  EXPECT_TRUE(Delete("00-2112001").isEmpty());
  EXPECT_FALSE(There("Projects/00-2112001"));
  EXPECT_TRUE(There("Projects/00-2112002/Rooms"));
  EXPECT_EQ(Content("Projects/other.txt"), "stays");
  EXPECT_EQ(Content("outside.txt"), "stays");
}

TEST_F(ProjectFiles, AnIdThatLeavesTheFolderDeletesNothing) {
  for (const char* id : {"", " ", ".", "..", "../Projects", "00-2112001/Rooms", "00-2112001\\Rooms",
                         "/", "..\\.."}) {
    EXPECT_TRUE(Delete(id).isEmpty()) << id;
    EXPECT_EQ(Content("Projects/00-2112001/Rooms/Lobby.rfs"), "GWB   10 SF\r\n") << id;
    EXPECT_EQ(Content("Projects/other.txt"), "stays");
  }
}

TEST_F(ProjectFiles, LinksInsideAreTakenAwayAndNeverFollowed) {
  QDir().mkpath(Path("elsewhere"));
  Put("elsewhere/precious.txt", "stays");
  QDir(Path("Projects/00-2112001/Plans")).removeRecursively();
  ASSERT_TRUE(QFile::link(Path("elsewhere"), Path("Projects/00-2112001/Plans")));
  ASSERT_TRUE(QFile::link(Path("elsewhere"), Path("Projects/00-2112001/Rooms/folder")));
  ASSERT_TRUE(QFile::link(Path("outside.txt"), Path("Projects/00-2112001/Rooms/file.rfs")));
  EXPECT_TRUE(Delete("00-2112001").isEmpty());
  EXPECT_FALSE(There("Projects/00-2112001"));
  EXPECT_EQ(Content("elsewhere/precious.txt"), "stays");
  EXPECT_EQ(Content("outside.txt"), "stays");
}

TEST_F(ProjectFiles, AProjectThatIsALinkLosesTheLinkOnly) {
  QDir().mkpath(Path("elsewhere/Rooms"));
  Put("elsewhere/Rooms/a.rfs", "stays");
  ASSERT_TRUE(QFile::link(Path("elsewhere"), Path("Projects/00-2112003")));
  EXPECT_TRUE(Delete("00-2112003").isEmpty());
  EXPECT_FALSE(There("Projects/00-2112003"));
  EXPECT_EQ(Content("elsewhere/Rooms/a.rfs"), "stays");
}

TEST_F(ProjectFiles, FoldersThatAProjectDoesNotHaveByItselfStay) {
  QDir().mkpath(Path("Projects/00-2112001/Photos"));
  Put("Projects/00-2112001/Photos/site.jpg", "stays");
  QDir().mkpath(Path("Projects/00-2112001/Rooms/old"));
  Put("Projects/00-2112001/Rooms/old/a.rfs", "stays");
  const QStringList left = Delete("00-2112001");
  EXPECT_EQ(Content("Projects/00-2112001/Photos/site.jpg"), "stays");
  EXPECT_EQ(Content("Projects/00-2112001/Rooms/old/a.rfs"), "stays");
  EXPECT_FALSE(There("Projects/00-2112001/JobNFO.tamo"));
  EXPECT_FALSE(There("Projects/00-2112001/Rooms/Lobby.rfs"));
  EXPECT_TRUE(left.contains(Path("Projects/00-2112001/Photos/site.jpg")));
  EXPECT_FALSE(HoldsProjectFiles(files, Data(), "00-2112001"));
}

TEST_F(ProjectFiles, AFolderInAnotherCaseIsTheSameFolder) {
  ASSERT_TRUE(QDir().rename(Path("Projects/00-2112001/ATOs"), Path("Projects/00-2112001/Atos")));
  EXPECT_TRUE(Delete("00-2112001").isEmpty());
  EXPECT_FALSE(There("Projects/00-2112001"));
}

TEST_F(ProjectFiles, AFileThatCantBeRemovedDoesNotStopTheRest) {
  disk.Deny(Path("Projects/00-2112001/Rooms/Lobby.rfs"));
  const QStringList left = Delete("00-2112001");
  EXPECT_TRUE(left.contains(Path("Projects/00-2112001/Rooms/Lobby.rfs")));
  EXPECT_TRUE(HoldsProjectFiles(files, Data(), "00-2112001"));
  EXPECT_FALSE(There("Projects/00-2112001/ATOs"));
  EXPECT_FALSE(There("Projects/00-2112001/JobNFO.tamo"));
}

TEST_F(ProjectFiles, AWaitingSaveDoesNotBringADeletedProjectBack) {
  disk.SetFull(true);
  files.SaveText(Path("Projects/00-2112001/Rooms/New.rfs"), "x");
  files.SaveText(Path("Projects/00-2112002/Rooms/New.rfs"), "y");
  disk.SetFull(false);
  Delete("00-2112001");
  files.TryAgain();
  EXPECT_FALSE(There("Projects/00-2112001"));
  EXPECT_TRUE(There("Projects/00-2112002/Rooms/New.rfs"));
}

}  // namespace
}  // namespace tamo::test
