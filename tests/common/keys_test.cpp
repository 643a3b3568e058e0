#include <gtest/gtest.h>

#include "common/desk.h"
#include "common/form.h"
#include "support/doubles.h"

namespace tamo {
namespace {

struct KeyForm : Form {
  explicit KeyForm(Desk& desk)
      : Form(desk, QStringLiteral("Keys")),
        First(*this, QStringLiteral("First")),
        Second(*this, QStringLiteral("Second")),
        Drop(*this, QStringLiteral("Drop")),
        Red(*this, QStringLiteral("Red")),
        Sample(*this, QStringLiteral("Sample")) {
    First.onKey = [](Key& key) { key.Drop(); };
    Second.multiLine = true;
    Drop.dropsFrom = &First;
    Drop.takesFocus = false;
  }
  TextField First;
  TextField Second;
  OrderedList Drop;
  Swatch Red;
  Swatch Sample;
};

struct KeysTest : testing::Test {
  test::ScriptedMessages messages;
  Desk desk{messages};
  KeyForm form{desk};
  void SetUp() override {
    form.Show();
    desk.Focus(form.First);
  }
};

TEST_F(KeysTest, TabWalksOutOfAFieldThatDropsEveryKey) {
  desk.PressKey(form.First, Key::Named(Key::Name::Tab));
  EXPECT_EQ(desk.Focused(), &form.Second);
  desk.PressKey(form.Second, Key::Named(Key::Name::BackTab));
  EXPECT_EQ(desk.Focused(), &form.First);
}

TEST_F(KeysTest, TabReachesASwatchThatCanBeClickedAndEnterClicksIt) {
  int clicks = 0;
  form.Red.onClick = [&] { ++clicks; };
  desk.Focus(form.Second);
  desk.MoveFocus(true);
  EXPECT_EQ(desk.Focused(), &form.Red);
  desk.PressKey(form.Red, Key::Named(Key::Name::Enter));
  EXPECT_EQ(clicks, 1);
  desk.MoveFocus(true);
  EXPECT_EQ(desk.Focused(), &form.First);
  desk.ClickInto(form.Red);
  EXPECT_EQ(desk.Focused(), &form.First);
}

TEST_F(KeysTest, EnterBreaksTheLineOfAFieldOfSeveralLines) {
  desk.Focus(form.Second);
  desk.TypeText(form.Second, QStringLiteral("ab"));
  desk.PressKey(form.Second, Key::Named(Key::Name::Enter));
  desk.TypeText(form.Second, QStringLiteral("c"));
  EXPECT_EQ(form.Second.Text(), QStringLiteral("ab\r\nc"));
}

TEST_F(KeysTest, EscapeHidesTheDropListAndKeepsTheText) {
  form.First.onKey = nullptr;
  form.First.SetText(QStringLiteral("Paint"));
  form.Drop.Show();
  desk.PressKey(form.First, Key::Named(Key::Name::Escape));
  EXPECT_FALSE(form.Drop.Shown());
  EXPECT_EQ(form.First.Text(), QStringLiteral("Paint"));
}

TEST_F(KeysTest, PastedLineEndsBecomeThoseOfTheField) {
  desk.Paste(form.Second, QStringLiteral("a\nb\rc\r\nd"));
  EXPECT_EQ(form.Second.Text(), QStringLiteral("a\r\nb\r\nc\r\nd"));
  desk.Paste(form.First, QStringLiteral("a\nb\rc\r\nd"));
  EXPECT_EQ(form.First.Text(), QStringLiteral("a b c d"));
}

}  // namespace
}  // namespace tamo
