#include "records/recentfile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "common/disk.h"

namespace tamo {
namespace {

QString S(const char* text) {
  return QString::fromUtf8(text);
}

struct RecentFile : testing::Test {
  QTemporaryDir folder;
  RealDisk disk;
  Files files{disk};
  RecentThings Read() { return ReadRecent(files, folder.path(), S("/")); }
};

TEST_F(RecentFile, TheNewestFirstAndFiveOfEach) {
  RecentThings recent;
  for (int i = 0; i < 7; ++i) {
    EXPECT_TRUE(recent.NoteProject({S("/d/"), QString::number(i), S("Name")}));
    EXPECT_TRUE(recent.NotePlan(QStringLiteral("/p/%1.pdf").arg(i)));
  }
  EXPECT_FALSE(recent.NoteProject({S("/d/"), S("6"), S("Name")}));
  EXPECT_TRUE(recent.NoteProject({S("/d/"), S("4"), S("Other Name")}));
  WriteRecent(files, folder.path(), S("/"), recent);
  const RecentThings back = Read();
  ASSERT_EQ(back.projects.size(), 5U);
  EXPECT_EQ(back.projects[0].id, S("4"));
  EXPECT_EQ(back.projects[0].name, S("Other Name"));
  EXPECT_EQ(back.projects[1].id, S("6"));
  EXPECT_EQ(back.plans, QStringList({S("/p/6.pdf"), S("/p/5.pdf"), S("/p/4.pdf"), S("/p/3.pdf"),
                                     S("/p/2.pdf")}));
}

TEST_F(RecentFile, WhatIsNoSuchFileGivesNothing) {
  EXPECT_TRUE(Read().projects.empty());
  QFile file(folder.path() + S("/Recent.tamo"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("project\r\nplan\tx\ty\r\n\r\n\xff\xfe\tnonsense\r\nplan\t/a.pdf\r\n");
  file.close();
  EXPECT_TRUE(Read().projects.empty());
  EXPECT_EQ(Read().plans, QStringList{S("/a.pdf")});
}

}  // namespace
}  // namespace tamo
