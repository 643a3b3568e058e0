#include <gtest/gtest.h>

#include <random>

#include "common/desk.h"
#include "common/failure.h"
#include "support/doubles.h"

namespace tamo {
namespace {

class ControlsTest : public ::testing::Test {
 protected:
  test::ScriptedMessages messages;
  Desk desk{messages};
  Form form{desk, QStringLiteral("A")};
  OrderedList list{form, QStringLiteral("List")};
  int events = 0;

  void SetUp() override {
    list.onSelect = [this] { ++events; };
    list.SetRows({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
  }
};

TEST_F(ControlsTest, SettingTheIndexRaisesOnceAndTheSameIndexNothing) {
  list.SetIndex(1);
  EXPECT_EQ(events, 1);
  list.SetIndex(1);
  EXPECT_EQ(events, 1);
  list.SetIndex(-1);
  EXPECT_EQ(events, 2);
}

TEST_F(ControlsTest, TheSelectionFollowsItsRow) {
  list.SetIndex(1);
  list.Insert(0, QStringLiteral("z"));
  EXPECT_EQ(list.Index(), 2);
  EXPECT_EQ(list.Selected(), QStringLiteral("b"));
  list.Remove(0);
  EXPECT_EQ(list.Index(), 1);
  list.Remove(2);
  EXPECT_EQ(list.Index(), 1);
  list.Remove(1);
  EXPECT_EQ(list.Index(), -1);
  EXPECT_EQ(events, 1) << "inserting and removing raise nothing";
}

TEST_F(ControlsTest, ClearingRaisesNothing) {
  list.SetIndex(2);
  list.Clear();
  EXPECT_EQ(list.Index(), -1);
  EXPECT_EQ(events, 1);
}

TEST_F(ControlsTest, ARowThatDoesNotExistIsAFailure) {
  EXPECT_THROW(list.Row(3), RunTimeFailure);
  EXPECT_THROW(list.SetRow(-1, {}), RunTimeFailure);
  EXPECT_THROW(list.Remove(3), RunTimeFailure);
  EXPECT_THROW(list.SetIndex(3), RunTimeFailure);
  EXPECT_THROW(list.Insert(4, {}), RunTimeFailure);
  EXPECT_NO_THROW(list.Insert(3, {}));
}

// Against a plain model: rows in a vector, the selected row marked by identity.
TEST_F(ControlsTest, IndexRulesHoldForRandomChanges) {
  std::mt19937 random(99);
  std::vector<std::pair<int, bool>> model;
  list.Clear();
  for (int i = 0; i < 20000; ++i) {
    const int size = static_cast<int>(model.size());
    const int at = size == 0 ? 0 : static_cast<int>(random() % static_cast<unsigned>(size));
    switch (random() % 4) {
      case 0:
        list.Insert(at, QString::number(i));
        model.insert(model.begin() + at, {i, false});
        break;
      case 1:
        if (size == 0) break;
        list.Remove(at);
        model.erase(model.begin() + at);
        break;
      case 2:
        if (size == 0) break;
        list.SetIndex(at);
        for (auto& row : model) row.second = false;
        model[static_cast<size_t>(at)].second = true;
        break;
      default:
        if (random() % 50 == 0) {
          list.Clear();
          model.clear();
        }
    }
    int selected = -1;
    for (size_t k = 0; k < model.size(); ++k) {
      if (model[k].second) selected = static_cast<int>(k);
      ASSERT_EQ(list.Rows()[static_cast<int>(k)], QString::number(model[k].first));
    }
    ASSERT_EQ(list.Index(), selected);
    ASSERT_EQ(list.Count(), static_cast<int>(model.size()));
  }
}

TEST_F(ControlsTest, FindIgnoresOrHeedsCase) {
  list.SetRows({QStringLiteral("Drywall"), QStringLiteral("DRYWALL")});
  EXPECT_EQ(list.Find(QStringLiteral("DRYWALL")), 1);
  EXPECT_EQ(list.FindAnyCase(QStringLiteral("drywall")), 0);
  EXPECT_EQ(list.FindAnyCase(QStringLiteral("dry")), -1);
}

TEST_F(ControlsTest, TicksStayWithTheirRows) {
  CheckList checks(form, QStringLiteral("Checks"));
  checks.SetRows({QStringLiteral("a"), QStringLiteral("b")});
  int ticked = -1;
  checks.onTick = [&](int row) { ticked = row; };
  checks.TickByUser(1);
  EXPECT_EQ(ticked, 1);
  checks.Insert(0, QStringLiteral("z"));
  EXPECT_TRUE(checks.Ticked(2));
  checks.Remove(2);
  EXPECT_FALSE(checks.Ticked(1));
}

TEST_F(ControlsTest, TypingKeepsToTheLimitAndReplacesTheSelection) {
  TextField field(form, QStringLiteral("Field"), 4);
  int changes = 0;
  field.onChange = [&] { ++changes; };
  field.ReplaceSelection(QStringLiteral("abcdef"));
  EXPECT_EQ(field.Text(), QStringLiteral("abcd"));
  field.SelectAll();
  field.ReplaceSelection(QStringLiteral("x"));
  EXPECT_EQ(field.Text(), QStringLiteral("x"));
  EXPECT_EQ(changes, 2);
  field.DeleteBackward();
  EXPECT_TRUE(field.Empty());
  field.ReplaceSelection(QStringLiteral("a\r\nb"));
  EXPECT_EQ(field.Text(), QStringLiteral("a b")) << "a field of one line takes no line end";
}

TEST_F(ControlsTest, ALineEndIsDeletedWhole) {
  TextField notes(form, QStringLiteral("Notes"));
  notes.multiLine = true;
  notes.ReplaceSelection(QStringLiteral("a\r\n"));
  notes.DeleteBackward();
  EXPECT_EQ(notes.Text(), QStringLiteral("a"));
}

TEST_F(ControlsTest, OneOptionOfAGroup) {
  Option one(form, QStringLiteral("One"), {}, 1);
  Option two(form, QStringLiteral("Two"), {}, 1);
  Option other(form, QStringLiteral("Other"), {}, 2);
  one.SetSelected(true);
  other.SetSelected(true);
  two.SetSelected(true);
  EXPECT_FALSE(one.Selected());
  EXPECT_TRUE(two.Selected());
  EXPECT_TRUE(other.Selected());
}

}  // namespace
}  // namespace tamo
