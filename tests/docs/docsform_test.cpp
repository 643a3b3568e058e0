#include "docs/docsform.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "common/failure.h"
#include "docs/topics.h"
#include "support/room.h"
#include "support/sourcefile.h"

namespace tamo::test {
namespace {

class Docs : public ::testing::Test, public FormRoom {
 protected:
  Docs() {
    QDir().mkpath(Path("program/Docs"));
    docs.Show();
  }
  void Put(const char* name, const QByteArray& bytes) {
    int handle = -1;
    ASSERT_EQ(disk.OpenNew(Path(name), handle), kNoError);
    disk.Write(handle, bytes);
    disk.Close(handle);
  }
  std::string Content(const char* name) {
    QByteArray bytes;
    return disk.Read(Path(name), bytes) == kNoError ? bytes.toStdString() : "(no file)";
  }
  void ChooseRow(const char* row) {
    const int at = docs.MenuList.Find(QLatin1String(row));
    ASSERT_GE(at, 0) << row;
    desk.ClickRow(docs.MenuList, at);
  }
  void TypeName(const char* name) {
    desk.UserFocus(docs.Text1);
    docs.Text1.SelectAll();
    desk.TypeText(docs.Text1, QLatin1String(name));
    desk.PressKey(docs.Text1, Key::Named(Key::Name::Enter));
  }
  std::string Text() { return docs.DocText.Text().toStdString(); }

  int returned = 0;
  DocsForm docs{kit, [this] { ++returned; }};
};

TEST_F(Docs, ListsItsTopicsInOrder) {
  ASSERT_EQ(docs.MenuList.Count(), 43);
  EXPECT_EQ(docs.MenuList.Row(0), "Mission Statement");
  EXPECT_EQ(docs.MenuList.Row(7), "     Lock/Unlock Project");
  EXPECT_EQ(docs.MenuList.Row(21), "          Enter Room Finish Schedule");
  EXPECT_EQ(docs.MenuList.Row(33), "DSW");
  EXPECT_EQ(docs.MenuList.Row(42), "Exit");
  for (const QString& row : docs.MenuList.Rows())
    EXPECT_TRUE(FileOfTopic(row).endsWith("Docs.tamo")) << row.toStdString();
}

TEST_F(Docs, AClickShowsTheTopicInTextAndList) {
  Put("program/Docs/ScaleDocs.tamo", "Pick the scale.\r\n\r\nThen draw.\r\n");
  ChooseRow("     Scale");
  EXPECT_EQ(Text(), "Pick the scale.\r\n\r\nThen draw.\r\n");
  EXPECT_EQ(docs.DocList.Rows(), (QStringList{"Pick the scale.", "", "Then draw."}));
  EXPECT_TRUE(docs.DocText.Shown());
  EXPECT_TRUE(docs.DocList.Shown());
  EXPECT_EQ(docs.Text1.Text(), "scaledocs") << "the stem, in lower case";
}

TEST_F(Docs, BothRowsOfProjectInformationShareOneFile) {
  Put("program/Docs/ProjectInformationDocs.tamo", "About a project\r\n");
  const int first = docs.MenuList.Find("     Project Information");
  for (const int row : {first, 27}) {
    EXPECT_EQ(docs.MenuList.Row(row), "     Project Information");
    desk.ClickRow(docs.MenuList, 0);
    EXPECT_EQ(Text(), "");
    desk.ClickRow(docs.MenuList, row);
    EXPECT_EQ(Text(), "About a project\r\n");
  }
}

TEST_F(Docs, ATopicWithoutAFileIsEmptyWithoutAMessage) {
  docs.DocText.SetText("before");
  ChooseRow("Pricing");
  EXPECT_EQ(Text(), "");
  EXPECT_TRUE(docs.DocList.Empty());
  EXPECT_TRUE(docs.DocText.Shown());
  EXPECT_TRUE(messages.texts.isEmpty());
}

TEST_F(Docs, ATopicThatEndsInALineEndGrowsByAnEmptyLineWithEachSaveAndLoad) {
  Put("program/Docs/ScaleDocs.tamo", "one\r\n");
  ChooseRow("     Scale");
  EXPECT_EQ(Text(), "one\r\n");
  desk.ClickInto(docs.Command1);
  EXPECT_EQ(Content("program/Docs/ScaleDocs.tamo"), "one\r\n\r\n");
  desk.ClickInto(docs.Command2);
  EXPECT_EQ(Text(), "one\r\n\r\n");
  EXPECT_EQ(docs.DocList.Count(), 2);
}

TEST_F(Docs, ATypedNameIsTakenByEnterAndShownByLoad) {
  Put("program/Docs/Own.tamo", "mine\r\n");
  TypeName("Own");
  EXPECT_EQ(Text(), "") << "Enter loads nothing";
  desk.ClickInto(docs.Command2);
  EXPECT_EQ(Text(), "mine\r\n");
}

TEST_F(Docs, LoadWithoutEnterShowsTheTopicBefore) {
  Put("program/Docs/ScaleDocs.tamo", "scale\r\n");
  Put("program/Docs/Own.tamo", "mine\r\n");
  ChooseRow("     Scale");
  desk.UserFocus(docs.Text1);
  docs.Text1.SelectAll();
  desk.TypeText(docs.Text1, "Own");
  desk.ClickInto(docs.Command2);
  EXPECT_EQ(Text(), "scale\r\n");
}

TEST_F(Docs, ANameThatWouldLeaveTheFolderIsRefused) {
  Put("program/secret.tamo", "no topic\r\n");
  Put("program/Docs/ScaleDocs.tamo", "scale\r\n");
  ChooseRow("     Scale");
  for (const char* name : {"../secret", "..\\secret", "/etc/x", "..", "CON"}) {
    messages.texts.clear();
    TypeName(name);
    EXPECT_EQ(messages.texts.size(), 1) << name;
    desk.ClickInto(docs.Command2);
    EXPECT_EQ(Text(), "scale\r\n") << "the topic before stays in work";
  }
}

TEST_F(Docs, SavingWithNoTopicSaysSo) {
  desk.ClickInto(docs.Command1);
  EXPECT_EQ(messages.texts.size(), 1);
  EXPECT_TRUE(disk.Names(Path("program/Docs")).isEmpty());
}

TEST_F(Docs, AnEditedTopicIsSavedWhole) {
  ChooseRow("     Print");
  desk.UserFocus(docs.DocText);
  desk.TypeText(docs.DocText, "a");
  desk.PressKey(docs.DocText, Key::Named(Key::Name::Enter));
  desk.TypeText(docs.DocText, "b");
  desk.ClickInto(docs.Command1);
  EXPECT_EQ(Content("program/Docs/PrintDocs.tamo"), "a\r\nb\r\n");
  EXPECT_TRUE(messages.texts.isEmpty());
}

TEST_F(Docs, AProgramFolderThatCantBeWrittenGivesTheUserAFolderOfTheirOwn) {
  Put("program/Docs/ScaleDocs.tamo", "shipped\r\n");
  disk.Deny(Path("program"));
  ChooseRow("     Scale");
  docs.DocText.SetText("edited");
  desk.ClickInto(docs.Command1);
  EXPECT_EQ(Content("program/Docs/ScaleDocs.tamo"), "shipped\r\n");
  EXPECT_EQ(Content("config/Docs/ScaleDocs.tamo"), "edited\r\n");
  EXPECT_TRUE(messages.texts.isEmpty());
  desk.ClickInto(docs.Command2);
  EXPECT_EQ(Text(), "edited\r\n") << "their own folder is looked at first";
}

TEST_F(Docs, ASaveThatFailsSaysSoAndKeepsTheText) {
  Put("program/Docs/ScaleDocs.tamo", "old\r\n");
  ChooseRow("     Scale");
  docs.DocText.SetText("new");
  disk.SetFull(true);
  desk.ClickInto(docs.Command1);
  ASSERT_EQ(messages.texts.size(), 1);
  EXPECT_TRUE(messages.texts[0].contains("ScaleDocs.tamo"));
  EXPECT_TRUE(messages.texts[0].contains("the disk is full"));
  EXPECT_EQ(Content("program/Docs/ScaleDocs.tamo"), "old\r\n");
  EXPECT_EQ(Text(), "new");
}

TEST_F(Docs, LeavingHidesItAndShowsTheShell) {
  EXPECT_EQ(docs.ExitDocs.Caption(), "  &Exit Docs");
  desk.ChooseMenu(docs.ExitDocs);
  EXPECT_FALSE(docs.Visible());
  EXPECT_EQ(returned, 1);
}

TEST_F(Docs, HelpOpensAtTheTopicOfAFieldOrOfItsForm) {
  Put("program/Docs/MarkupsDocs.tamo", "markups\r\n");
  docs.ShowTopic(FileOfField("Pricing", "LTX"));
  EXPECT_EQ(docs.MenuList.Selected(), "     Markups");
  EXPECT_EQ(Text(), "markups\r\n");
  docs.ShowTopic(FileOfField("Pricing", "Description"));
  EXPECT_EQ(docs.MenuList.Selected(), "Pricing");
  docs.ShowTopic(FileOfField("Nothing", ""));
  EXPECT_EQ(docs.MenuList.Selected(), "Documentation");
}

TEST_F(Docs, EveryTopicOfAFieldOrAReportIsShipped) {
  for (const char* form : {"Tamo", "Settings", "Pricing", "RFSForm", "EstimateForm", "BottomLine",
                           "AdjustmentForm", "OST", "Reports", "Docs", "Versions", "Schedule"}) {
    for (const char* field : {"", "JobsList", "Notes", "MOH", "File1", "Price", "Scale1"}) {
      const QString file = FileOfField(form, field);
      EXPECT_TRUE(QFile::exists(test::SourceFile(QStringLiteral("data/Docs/")) + file))
          << file.toStdString();
    }
  }
  for (const char* title : {"Recap Sheet", "Quantities", "Bill Of Materials", "BreakDown"})
    EXPECT_TRUE(
        QFile::exists(test::SourceFile(QStringLiteral("data/Docs/")) + FileOfReport(title)));
}

// A topic beside the list is shown, too; no row is selected then.
TEST_F(Docs, HelpOpensATopicThatHasNoRow) {
  Put("program/Docs/VersionsDocs.tamo", "versions\r\n");
  docs.ShowTopic(FileOfField("Pricing", ""));
  docs.ShowTopic(FileOfField("Versions", ""));
  EXPECT_EQ(docs.MenuList.Index(), -1);
  EXPECT_EQ(Text(), "versions\r\n");
  EXPECT_EQ(docs.Text1.Text(), "versionsdocs");
}

}  // namespace
}  // namespace tamo::test
