#include "support/randomplayer.h"

#include <gtest/gtest.h>

#include "common/chain.h"
#include "common/files.h"
#include "support/doubles.h"
#include "support/ramdisk.h"

namespace tamo::test {
namespace {

// A form with a fault: a second "7" entered after a "3" is lost.
class FaultyForm : public Form {
 public:
  explicit FaultyForm(Desk& desk, bool faulty) : Form(desk, QStringLiteral("Faulty")) {
    OnEnter(Number, Keys::Digits, [this, faulty] {
      const QString last = entered.isEmpty() ? QString() : entered.last();
      const bool lost = faulty && last == QLatin1String("3") && Number.Text() == QLatin1String("7");
      if (!lost) Rows.Add(Number.Text());
      entered += Number.Text();
      Number.Clear();
    });
  }
  TextField Number{*this, QStringLiteral("Number")};
  OrderedList Rows{*this, QStringLiteral("Rows")};
  QStringList entered;
};

class FaultyGame : public Game {
 public:
  explicit FaultyGame(bool faulty) : form_(desk_, faulty) {}
  Desk& GetDesk() override { return desk_; }
  Form& Played() override { return form_; }
  std::vector<Deed> Doors() override {
    return {{QStringLiteral("menu Main.Faulty"), [this] { form_.Show(); }}};
  }
  QString Broken() override {
    if (form_.Rows.Rows() == form_.entered) return {};
    return QStringLiteral("What was entered stands in the list: %1 rows for %2 entries")
        .arg(form_.Rows.Count())
        .arg(form_.entered.size());
  }
  QStringList SetUp() const override { return {QStringLiteral("start")}; }

 private:
  ScriptedMessages messages_;
  Desk desk_{messages_};
  FaultyForm form_;
};

RandomPlayer PlayerOf(bool faulty) {
  Vocabulary words;
  words.words = QStringList{QStringLiteral("3"), QStringLiteral("7"), QStringLiteral("12")};
  return {[faulty] { return std::make_unique<FaultyGame>(faulty); }, words};
}

TEST(RandomPlayer, TellsAFaultInItsFewestSteps) {
  const auto finding = PlayerOf(true).Play(10000, 1);
  ASSERT_TRUE(finding.has_value());
  EXPECT_EQ(finding->scenario.first(), QStringLiteral("start"));
  EXPECT_EQ(finding->scenario.value(1), QStringLiteral("menu Main.Faulty"));
  EXPECT_TRUE(finding->scenario.contains(QStringLiteral("enter 7"))) << qPrintable(finding->Text());
  EXPECT_LE(finding->scenario.size(), 6) << qPrintable(finding->Text());
  EXPECT_TRUE(finding->broken.startsWith(QStringLiteral("What was entered"))) << "the rule's name";
}

TEST(RandomPlayer, FindsNothingWhereNothingIsWrong) {
  EXPECT_FALSE(PlayerOf(false).Play(10000, 1).has_value());
}

TEST(RamDisk, HoldsWhatWasWrittenAndSaysWhatWasTouched) {
  RamDisk disk;
  Files files(disk);
  disk.Put(QStringLiteral("/h/a.txt"), {QStringLiteral("one")});
  EXPECT_EQ(files.SaveLines(QStringLiteral("/h/B.txt"), {QStringLiteral("two")}), 0);
  EXPECT_EQ(disk.TakeTouched(), QStringList{QStringLiteral("/h/B.txt")});
  QStringList lines;
  EXPECT_EQ(files.ReadLines(QStringLiteral("/h/b.TXT"), lines), 0);
  EXPECT_EQ(lines, QStringList{QStringLiteral("two")});
  EXPECT_EQ(disk.Names(QStringLiteral("/h")),
            (QStringList{QStringLiteral("B.txt"), QStringLiteral("a.txt")}));
  EXPECT_TRUE(disk.IsFolder(QStringLiteral("/h/")));
  EXPECT_EQ(files.ReadLines(QStringLiteral("/h/c.txt"), lines), 53);
  EXPECT_EQ(files.ReadLines(QStringLiteral("/x/c.txt"), lines), 76);
  EXPECT_EQ(files.Remove(QStringLiteral("/h/a.txt")), 0);
  EXPECT_FALSE(disk.Exists(QStringLiteral("/h/a.txt")));
}

}  // namespace
}  // namespace tamo::test
