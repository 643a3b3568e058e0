#include "common/desk.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "support/doubles.h"

namespace tamo {
namespace {

class DeskTest : public ::testing::Test {
 protected:
  test::ScriptedMessages messages;
  Desk desk{messages};
  Form a{desk, QStringLiteral("A")};
  Form b{desk, QStringLiteral("B")};
  TextField one{a, QStringLiteral("One")};
  TextField two{a, QStringLiteral("Two")};
  TextField three{a, QStringLiteral("Three")};
  TextField far{b, QStringLiteral("Far")};
  QStringList log;

  void SetUp() override {
    for (TextField* field : {&one, &two, &three, &far}) {
      field->onGotFocus = [this, field] { log += QStringLiteral("+") + field->Name(); };
      field->onLostFocus = [this, field] { log += QStringLiteral("-") + field->Name(); };
    }
    a.Show();
    log.clear();
  }
};

TEST_F(DeskTest, TheOldFieldLosesItFirst) {
  desk.Focus(two);
  EXPECT_EQ(log, QStringList({"-One", "+Two"}));
  EXPECT_EQ(desk.Focused(), &two);
  desk.Focus(two);
  EXPECT_EQ(log.size(), 2) << "a field that has it gets no event";
}

TEST_F(DeskTest, AMoveInsideTheLostFocusHandlerWins) {
  one.onLostFocus = [this] {
    log += QStringLiteral("-One");
    desk.Focus(three);
  };
  desk.Focus(two);
  EXPECT_EQ(log, QStringList({"-One", "+Three"}));
  EXPECT_EQ(desk.Focused(), &three);
}

TEST_F(DeskTest, AMoveInsideTheGotFocusHandlerGoesOn) {
  two.onGotFocus = [this] {
    log += QStringLiteral("+Two");
    desk.Focus(three);
  };
  desk.Focus(two);
  EXPECT_EQ(log, QStringList({"-One", "+Two", "-Two", "+Three"}));
}

TEST_F(DeskTest, HiddenAndDisabledControlsGetNoFocus) {
  two.Hide();
  desk.Focus(two);
  three.SetEnabled(false);
  desk.Focus(three);
  desk.Focus(far);
  EXPECT_TRUE(log.isEmpty());
  EXPECT_EQ(desk.Focused(), &one);
}

TEST_F(DeskTest, AControlInAHiddenFrameGetsNoFocus) {
  Frame frame(a, QStringLiteral("Frame"));
  two.PutInto(frame);
  frame.Hide();
  desk.Focus(two);
  EXPECT_EQ(desk.Focused(), &one);
  EXPECT_TRUE(two.Shown()) << "its own state is another thing";
}

TEST_F(DeskTest, GoingToAnotherFormTakesTheFocusFromTheField) {
  QStringList& seen = log;
  b.onActivate = [&seen] { seen += QStringLiteral("activate B"); };
  a.onDeactivate = [&seen] { seen += QStringLiteral("deactivate A"); };
  b.Show(&a);
  EXPECT_EQ(log, QStringList({"-One", "deactivate A", "activate B", "+Far"}));
  EXPECT_EQ(desk.Active(), &b);
  EXPECT_EQ(b.OwnerForm(), &a);
}

TEST_F(DeskTest, AMoveAskedForWhileLeavingStaysInsideItsForm) {
  one.onLostFocus = [this] { desk.Focus(three); };
  b.Show();
  EXPECT_EQ(desk.Active(), &b);
  EXPECT_EQ(desk.Focused(), &far);
  EXPECT_FALSE(log.contains(QStringLiteral("+Three")));
  desk.UserActivate(a);
  EXPECT_EQ(desk.Focused(), &three) << "it stands there when the form comes back";
}

TEST_F(DeskTest, HidingTheFrontFormBringsTheNextOne) {
  b.Show();
  log.clear();
  b.Hide();
  EXPECT_EQ(log, QStringList({"-Far", "+One"}));
  EXPECT_EQ(desk.Active(), &a);
  a.Hide();
  EXPECT_EQ(desk.Active(), nullptr);
  EXPECT_EQ(desk.Focused(), nullptr);
}

TEST_F(DeskTest, AHandedOverMeasureDoesNotRunTheActivationRoutine) {
  b.Show();
  int routines = 0;
  a.onActivate = [&] { ++routines; };
  desk.FocusWithoutActivation(two);
  EXPECT_EQ(routines, 0);
  EXPECT_EQ(desk.Focused(), &two);
  b.Show();
  desk.Focus(one);
  EXPECT_EQ(routines, 1);
}

TEST_F(DeskTest, HandlersThatChaseEachOtherStop) {
  one.onLostFocus = [this] { desk.Focus(one); };
  two.onGotFocus = [this] { desk.Focus(three); };
  three.onGotFocus = [this] { desk.Focus(two); };
  desk.Focus(two);
  EXPECT_GT(log.size(), 0);
  EXPECT_LT(log.size(), 2000) << "the chase was stopped";
  one.onLostFocus = two.onGotFocus = three.onGotFocus = nullptr;
  desk.Focus(one);
  EXPECT_EQ(desk.Focused(), &one) << "the focus moves as before afterwards";
}

TEST_F(DeskTest, AFailureEndsTheEventAndIsSaid) {
  int settled = 0;
  desk.onSettled = [&] { ++settled; };
  one.onKey = [this](Key&) {
    two.SetText(QStringLiteral("before"));
    throw RunTimeFailure(kDivisionByZero, QStringLiteral("Ratio 0 of Drywall."));
  };
  desk.PressKey(one, Key::Named(Key::Name::Enter));
  EXPECT_EQ(messages.texts, QStringList({"Ratio 0 of Drywall."}));
  EXPECT_EQ(two.Text(), QStringLiteral("before"));
  EXPECT_GT(settled, 0);
  EXPECT_FALSE(desk.InEvent());
  desk.Focus(two);
  EXPECT_EQ(desk.Focused(), &two);
}

TEST_F(DeskTest, ADroppedKeyTypesNothing) {
  one.onKey = [](Key& key) {
    if (key.character == QLatin1Char(',')) key.Drop();
  };
  desk.TypeText(one, QStringLiteral("a,b"));
  EXPECT_EQ(one.Text(), QStringLiteral("ab"));
  desk.Paste(one, QStringLiteral(","));
  EXPECT_EQ(one.Text(), QStringLiteral("ab,")) << "pasting asks no key handler";
}

TEST_F(DeskTest, TypingFollowsTheFocus) {
  one.onChange = [this] { desk.Focus(two); };
  desk.TypeText(one, QStringLiteral("xy"));
  EXPECT_EQ(one.Text(), QStringLiteral("x"));
  EXPECT_EQ(two.Text(), QStringLiteral("y"));
}

TEST_F(DeskTest, TabGoesRoundTheUsableControls) {
  two.Hide();
  desk.MoveFocus(true);
  EXPECT_EQ(desk.Focused(), &three);
  desk.MoveFocus(true);
  EXPECT_EQ(desk.Focused(), &one);
  desk.MoveFocus(false);
  EXPECT_EQ(desk.Focused(), &three);
}

TEST_F(DeskTest, ARightPressSelectsTheRowFirst) {
  OrderedList list(a, QStringLiteral("List"));
  list.takesFocus = false;
  list.SetRows({QStringLiteral("x"), QStringLiteral("y")});
  list.onSelect = [&] { log += QStringLiteral("select"); };
  list.onRightClick = [&] { log += QStringLiteral("right"); };
  desk.RightClickRow(list, 1);
  EXPECT_EQ(log, QStringList({"select", "right"}));
  EXPECT_EQ(desk.Focused(), &one);
}

TEST_F(DeskTest, AHiddenMenuCantBeChosen) {
  MenuEntry bar(a, QStringLiteral("Bar"), QStringLiteral("&Bar"));
  MenuEntry entry(a, QStringLiteral("Entry"), QStringLiteral("&Entry"), &bar);
  int chosen = 0;
  entry.onClick = [&] { ++chosen; };
  desk.ChooseMenu(entry);
  bar.Hide();
  desk.ChooseMenu(entry);
  EXPECT_EQ(chosen, 1);
  MenuEntry popup(a, QStringLiteral("Popup"), {}, nullptr, true);
  MenuEntry inPopup(a, QStringLiteral("InPopup"), {}, &popup);
  inPopup.onClick = [&] { ++chosen; };
  desk.ChooseMenu(inPopup);
  EXPECT_EQ(chosen, 2);
}

TEST_F(DeskTest, ACheckBoxTurnsWithAClickAndWithSpace) {
  CheckBox box(a, QStringLiteral("Box"), {});
  desk.ClickInto(box);
  EXPECT_EQ(box.Value(), 1);
  desk.PressKey(box, Key::Named(Key::Name::Space));
  EXPECT_EQ(box.Value(), 0);
}

}  // namespace
}  // namespace tamo
