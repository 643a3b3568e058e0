#include "common/chain.h"

#include <gtest/gtest.h>

#include "common/desk.h"
#include "common/form.h"
#include "support/doubles.h"

namespace tamo {
namespace {

class ChainTest : public ::testing::Test {
 protected:
  test::ScriptedMessages messages;
  Desk desk{messages};
  Form form{desk, QStringLiteral("Form")};
  TextField field{form, QStringLiteral("Field")};
  TextField other{form, QStringLiteral("Other")};
  OrderedList list{form, QStringLiteral("List")};
  QStringList log;

  Step Log(const QString& what) {
    return [this, what] { log += what; };
  }
  QString Typed(Keys keys) {
    OnEnter(field, keys, [] {});
    field.Clear();
    desk.TypeText(field, QStringLiteral("a1 -.,\"/\\é"));
    return field.Text();
  }
  void SetUp() override { form.Show(); }
};

TEST_F(ChainTest, TheSetsOfCharactersThatAFieldLetsThrough) {
  EXPECT_EQ(Typed(Keys::Any), QStringLiteral("a1 -.,\"/\\é"));
  EXPECT_EQ(Typed(Keys::FileName), QStringLiteral("a1 -.é"));
  EXPECT_EQ(Typed(Keys::Number), QStringLiteral("1-."));
  EXPECT_EQ(Typed(Keys::WholeNumber), QStringLiteral("1-"));
  EXPECT_EQ(Typed(Keys::Digits), QStringLiteral("1"));
}

TEST_F(ChainTest, KeysThatAreNoCharactersAlwaysPass) {
  for (const Key::Name name : {Key::Name::Enter, Key::Name::Backspace, Key::Name::Delete,
                               Key::Name::Escape, Key::Name::Left, Key::Name::LineFeed})
    EXPECT_TRUE(Passes(Key::Named(name), Keys::Digits));
}

TEST_F(ChainTest, EnterRunsTheStepAndTypesNothing) {
  field.multiLine = true;
  OnEnter(field, Log(QStringLiteral("step")));
  desk.PressKey(field, Key::Named(Key::Name::Enter));
  EXPECT_EQ(log, QStringList{QStringLiteral("step")});
  EXPECT_TRUE(field.Empty());
}

TEST_F(ChainTest, AnEmptyFieldStepsOut) {
  OnEnter(field, Keys::Any, Log(QStringLiteral("step")), Log(QStringLiteral("out")));
  desk.PressKey(field, Key::Named(Key::Name::Enter));
  field.SetText(QStringLiteral(" "));
  desk.PressKey(field, Key::Named(Key::Name::Enter));
  EXPECT_EQ(log, (QStringList{QStringLiteral("out"), QStringLiteral("step")}));
}

TEST_F(ChainTest, AnyKeyHidesTheListAndStillDoesItsWork) {
  OnEnter(field, Keys::Digits, Log(QStringLiteral("step")));
  HideOnKey(field, list);
  desk.TypeText(field, QStringLiteral("x1"));
  EXPECT_FALSE(list.Shown());
  EXPECT_EQ(field.Text(), QStringLiteral("1"));
  list.Show();
  desk.PressKey(field, Key::Named(Key::Name::Enter));
  EXPECT_FALSE(list.Shown());
  EXPECT_EQ(log, QStringList{QStringLiteral("step")});
}

TEST_F(ChainTest, AFieldThatGetsTheFocusIsSelected) {
  OnFocusSelectAll(other, Log(QStringLiteral("also")));
  other.SetText(QStringLiteral("old"));
  desk.Focus(other);
  EXPECT_EQ(other.SelectedText(), QStringLiteral("old"));
  EXPECT_EQ(log, QStringList{QStringLiteral("also")});
  OnFocusSelectAll(field);
  desk.Focus(field);  // nothing more to do is allowed
}

TEST_F(ChainTest, ADropListWaitsUnseenUnderItsField) {
  DropFrom(field, list);
  EXPECT_FALSE(list.Shown());
  EXPECT_FALSE(list.takesFocus);
  EXPECT_FALSE(list.inTabOrder);
  EXPECT_EQ(list.dropsFrom, &field);
  Toggle(list);
  EXPECT_TRUE(list.Shown());
  desk.PressKey(field, Key::Named(Key::Name::Escape));
  EXPECT_FALSE(list.Shown());
}

}  // namespace
}  // namespace tamo
