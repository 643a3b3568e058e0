#include <gtest/gtest.h>

#include <QCheckBox>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "support/doubles.h"
#include "windows/application.h"
#include "windows/fieldbinding.h"
#include "windows/formwindow.h"
#include "windows/keys.h"
#include "windows/listbinding.h"
#include "windows/look.h"
#include "windows/plainbindings.h"

// Real keys and a real mouse on a form of the test's own.

namespace tamo {
namespace {

struct ToyForm : Form {
  explicit ToyForm(Desk& desk)
      : Form(desk, QStringLiteral("Toy")),
        First(*this, QStringLiteral("First"), 10),
        Second(*this, QStringLiteral("Second")),
        Long(*this, QStringLiteral("Long")),
        Drop(*this, QStringLiteral("Drop")),
        Lines(*this, QStringLiteral("Lines")),
        Ticks(*this, QStringLiteral("Ticks")),
        Choice(*this, QStringLiteral("Choice"), QStringLiteral("Choice"), 1),
        Box(*this, QStringLiteral("Box"), QStringLiteral("Box")),
        Push(*this, QStringLiteral("Push"), QStringLiteral("&Push")),
        Menu(*this, QStringLiteral("Menu"), QStringLiteral("&Menu")),
        Entry(*this, QStringLiteral("Entry"), QStringLiteral("&Entry"), &Menu),
        Other(*this, QStringLiteral("Other"), QStringLiteral("&Other")),
        Popup(*this, QStringLiteral("Popup"), QString(), nullptr, true),
        Remove(*this, QStringLiteral("Remove"), QStringLiteral("Remove"), &Popup) {
    Long.multiLine = true;
    Drop.dropsFrom = &First;
    Drop.takesFocus = false;
    Drop.Hide();
    First.onGotFocus = [this] { First.SelectAll(); };
    First.onClick = [this] { Drop.SetShown(!Drop.Shown()); };
    First.onKey = [this](Key& key) {
      if (key.Is(Key::Name::Character) && key.character == QLatin1Char(',')) key.Drop();
      if (!key.IsEnter()) return;
      key.Drop();
      GetDesk().Focus(Second);
    };
    Drop.onSelect = [this] {
      First.SetText(Drop.Selected());
      Drop.Hide();
    };
    Lines.onRightClick = [this] { PopUp(Popup); };
  }

  TextField First, Second, Long;
  OrderedList Drop, Lines;
  CheckList Ticks;
  Option Choice;
  CheckBox Box;
  Button Push;
  MenuEntry Menu, Entry, Other, Popup, Remove;
};

struct BinderTest : test::WithApplication, testing::Test {
  BinderTest() {
    ApplyLook(Look::Light());
    for (int i = 0; i < 30; ++i) form.Drop.Add(QStringLiteral("name %1").arg(i));
    window = std::make_unique<FormWindow>(form, display);
    QVBoxLayout& body = window->Body();
    for (QWidget* widget :
         std::initializer_list<QWidget*>{first, second, area, lines, ticks, radio, check, push})
      body.addWidget(widget);
    display.Add(std::make_unique<LineBinding>(display, form.First, *first));
    display.Add(std::make_unique<LineBinding>(display, form.Second, *second));
    display.Add(std::make_unique<TextBinding>(display, form.Long, *area));
    auto dropBinding = std::make_unique<ListBinding>(display, form.Drop, *drop);
    dropBinding->DropFrom(form.First, *first, *window);
    display.Add(std::move(dropBinding));
    display.Add(std::make_unique<ListBinding>(display, form.Lines, *lines));
    display.Add(std::make_unique<ListBinding>(display, form.Ticks, *ticks));
    display.Add(std::make_unique<ButtonBinding>(display, form.Choice, *radio));
    display.Add(std::make_unique<ButtonBinding>(display, form.Box, *check));
    display.Add(std::make_unique<ButtonBinding>(display, form.Push, *push));
    display.windowOf = [this](Form&) { return window.get(); };
    display.syncWindows = [this] { window->Menus().Apply(); };
    display.afterSync = [this] { window->Menus().ShowPopup(QPoint(50, 50)); };
    window->resize(500, 700);
    window->show();
    window->activateWindow();
    form.Show();
    desk.UserFocus(form.First);
    display.SyncNow();
    test::Settle();
  }
  ~BinderTest() override {
    while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
  }

  void Click(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    test::Press(widget, at, button);
    test::Release(widget, at, button);
  }
  void ClickRow(RowsView& view, int row, Qt::MouseButton button = Qt::LeftButton) {
    Click(*view.viewport(), view.visualRect(view.model()->index(row, 0)).center(), button);
  }

  test::ScriptedMessages messages;
  Desk desk{messages};
  ToyForm form{desk};
  std::unique_ptr<FormWindow> window;
  QLineEdit* first = new QLineEdit;
  QLineEdit* second = new QLineEdit;
  QPlainTextEdit* area = new QPlainTextEdit;
  RowsView* drop = new RowsView(form.Drop);
  RowsView* lines = new RowsView(form.Lines);
  RowsView* ticks = new RowsView(form.Ticks);
  QRadioButton* radio = new QRadioButton;
  QCheckBox* check = new QCheckBox;
  QPushButton* push = new QPushButton;
  Display display{desk};
};

TEST_F(BinderTest, ADroppedKeyTypesNothing) {
  test::Type(*first, QStringLiteral("a,b"));
  EXPECT_EQ(form.First.Text(), QStringLiteral("ab"));
  EXPECT_EQ(first->text(), QStringLiteral("ab"));
}

TEST_F(BinderTest, AComposedCharacterPassesTheSameHandlers) {
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("x,y"));
  QApplication::sendEvent(first, &composed);
  EXPECT_EQ(form.First.Text(), QStringLiteral("xy"));
}

TEST_F(BinderTest, EnterGoesWhereTheChainSays) {
  test::Press(*first, Qt::Key_Return);
  EXPECT_EQ(desk.Focused(), &form.Second);
  EXPECT_EQ(window->focusWidget(), second);
}

TEST_F(BinderTest, TabFollowsTheOrderOfTheForm) {
  test::Press(*first, Qt::Key_Tab);
  EXPECT_EQ(window->focusWidget(), second);
  test::Press(*second, Qt::Key_Tab);
  EXPECT_EQ(window->focusWidget(), area);
  test::Press(*area, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(window->focusWidget(), second);
}

TEST_F(BinderTest, ALettersWayIntoAFieldSelectsWhatTheFormSelects) {
  form.Second.SetText(QStringLiteral("WALLS"));
  form.Second.onGotFocus = [this] { form.Second.Select(5, 0); };
  second->setFocus(Qt::ShortcutFocusReason);
  EXPECT_EQ(desk.Focused(), &form.Second);
  EXPECT_FALSE(second->hasSelectedText());
  EXPECT_EQ(second->cursorPosition(), 5);
  EXPECT_EQ(form.Second.SelectedText(), QString());
  first->setFocus(Qt::ShortcutFocusReason);
  EXPECT_EQ(desk.Focused(), &form.First);
}

TEST_F(BinderTest, AClickIntoAFieldSelectsItsTextAndTheNextClickPlacesTheCaret) {
  form.First.SetText(QStringLiteral("Paint"));
  desk.UserFocus(form.Second);
  Click(*first, first->rect().center());
  EXPECT_EQ(desk.Focused(), &form.First);
  EXPECT_EQ(first->selectedText(), QStringLiteral("Paint"));
  EXPECT_EQ(form.First.SelectedText(), QStringLiteral("Paint"));
  Click(*first, first->rect().center());
  EXPECT_EQ(first->selectedText(), QString());
  EXPECT_EQ(form.First.SelectedText(), QString());
}

TEST_F(BinderTest, TypingReplacesTheSelectionAndStopsAtTheLimit) {
  form.First.SetText(QStringLiteral("Paint"));
  desk.UserFocus(form.Second);
  desk.UserFocus(form.First);
  test::Type(*first, QStringLiteral("0123456789ab"));
  EXPECT_EQ(form.First.Text(), QStringLiteral("0123456789"));
}

TEST_F(BinderTest, PastingIsSeenByNoKeyHandler) {
  QApplication::clipboard()->setText(QStringLiteral("a,b\nc"));
  test::Press(*first, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form.First.Text(), QStringLiteral("a,b c"));
  EXPECT_EQ(first->text(), QStringLiteral("a,b c"));
}

TEST_F(BinderTest, ALongerTextOfTheProgramStaysWhole) {
  form.First.SetText(QString(40, QLatin1Char('x')));
  display.SyncNow();
  EXPECT_EQ(first->text().size(), 40);
}

TEST_F(BinderTest, LinesOfALongFieldEndInCrLf) {
  desk.UserFocus(form.Long);
  test::Type(*area, QStringLiteral("ab"));
  test::Press(*area, Qt::Key_Return);
  test::Type(*area, QStringLiteral("c"));
  EXPECT_EQ(form.Long.Text(), QStringLiteral("ab\r\nc"));
  EXPECT_EQ(area->toPlainText(), QStringLiteral("ab\nc"));
  EXPECT_EQ(form.Long.SelectionStart(), 5);
  test::Press(*area, Qt::Key_Backspace);
  test::Press(*area, Qt::Key_Backspace);
  EXPECT_EQ(form.Long.Text(), QStringLiteral("ab"));
}

TEST_F(BinderTest, ADropListLiesUnderItsFieldAsWideAndAtMostTwelveRowsHigh) {
  Click(*first, first->rect().center());
  ASSERT_TRUE(drop->isVisible());
  EXPECT_EQ(drop->geometry().topLeft(), first->mapTo(window.get(), QPoint(0, first->height())));
  EXPECT_EQ(drop->width(), first->width());
  EXPECT_LE(drop->viewport()->height() / drop->RowHeight(), 12);
  EXPECT_EQ(window->focusWidget(), first);
  ClickRow(*drop, 3);
  EXPECT_FALSE(drop->isVisible());
  EXPECT_EQ(first->text(), QStringLiteral("name 3"));
  EXPECT_EQ(window->focusWidget(), first);
}

TEST_F(BinderTest, TheArrowKeysOpenADropListAndEnterChooses) {
  test::Press(*first, Qt::Key_Down);
  EXPECT_TRUE(form.Drop.Shown());
  test::Press(*first, Qt::Key_Down);
  EXPECT_EQ(form.Drop.Index(), -1) << "walking selects nothing yet";
  test::Press(*first, Qt::Key_Return);
  EXPECT_EQ(form.First.Text(), QStringLiteral("name 1"));
  EXPECT_EQ(desk.Focused(), &form.First);
}

TEST_F(BinderTest, EscapeClosesADropListAndKeepsTheText) {
  form.First.SetText(QStringLiteral("ab"));
  form.Drop.Show();
  test::Press(*first, Qt::Key_Escape);
  EXPECT_FALSE(drop->isVisible());
  EXPECT_EQ(form.First.Text(), QStringLiteral("ab"));
}

TEST_F(BinderTest, ARightClickSelectsTheRowAndOpensThePopUp) {
  form.Lines.AddAll({QStringLiteral("a"), QStringLiteral("b")});
  display.SyncNow();
  ClickRow(*lines, 1, Qt::RightButton);
  EXPECT_EQ(form.Lines.Index(), 1);
  EXPECT_EQ(lines->currentIndex().row(), 1);
  EXPECT_EQ(QApplication::activePopupWidget(), window->Menus().ActionOf(form.Popup)->menu());
}

TEST_F(BinderTest, ATickBoxTicksAndTheRestOfTheRowSelects) {
  form.Ticks.AddAll({QStringLiteral("a"), QStringLiteral("b")});
  display.SyncNow();
  Click(*ticks->viewport(), ticks->TickRect(1).center());
  EXPECT_TRUE(form.Ticks.Ticked(1));
  EXPECT_EQ(form.Ticks.Index(), -1);
  ClickRow(*ticks, 0);
  EXPECT_EQ(form.Ticks.Index(), 0);
  EXPECT_FALSE(form.Ticks.Ticked(0));
}

TEST_F(BinderTest, OnlyTheUsersScrollingIsReported) {
  int scrolled = 0;
  form.Lines.onUserScroll = [&] { ++scrolled; };
  QStringList rows;
  for (int i = 0; i < 20000; ++i) rows += QString::number(i);
  form.Lines.SetRows(rows);
  form.Lines.SetIndex(5000);
  form.Lines.SetTop(9000);
  display.SyncNow();
  test::Settle();
  EXPECT_EQ(scrolled, 0);
  EXPECT_EQ(lines->verticalScrollBar()->value(), form.Lines.Top());
  lines->verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_EQ(scrolled, 1);
  EXPECT_EQ(form.Lines.Top(), lines->verticalScrollBar()->value());
}

TEST_F(BinderTest, AnOptionThatIsClickedTwiceStaysSelected) {
  int clicks = 0;
  form.Choice.onClick = [&] { ++clicks; };
  radio->click();
  radio->click();
  EXPECT_EQ(clicks, 2);
  EXPECT_TRUE(radio->isChecked());
  EXPECT_TRUE(form.Choice.Selected());
}

TEST_F(BinderTest, ACheckBoxShowsWhatTheFormMakesOfAClick) {
  form.Box.onChange = [this] { form.Box.SetValue(0); };
  check->click();
  EXPECT_EQ(form.Box.Value(), 0);
  EXPECT_FALSE(check->isChecked());
}

TEST_F(BinderTest, TheMnemonicOfAHiddenMenuDoesNothing) {
  int chosen = 0;
  form.Other.onClick = [&] { ++chosen; };
  test::Press(*first, Qt::Key_O, Qt::AltModifier);
  EXPECT_EQ(chosen, 1);
  form.Other.Hide();
  display.SyncNow();
  test::Press(*first, Qt::Key_O, Qt::AltModifier);
  EXPECT_EQ(chosen, 1);
}

TEST_F(BinderTest, GoingToAnotherProgramReportsNothing) {
  int lost = 0;
  form.First.onLostFocus = [&] { ++lost; };
  form.First.SetText(QStringLiteral("Paint"));
  form.First.SelectAll();
  display.SyncNow();
  QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  QApplication::sendEvent(first, &out);
  QFocusEvent menu(QEvent::FocusOut, Qt::MenuBarFocusReason);
  QApplication::sendEvent(first, &menu);
  EXPECT_EQ(lost, 0);
  EXPECT_EQ(desk.Focused(), &form.First);
  EXPECT_EQ(form.First.SelectedText(), QStringLiteral("Paint"));
}

TEST_F(BinderTest, AFailureInAHandlerIsTold) {
  form.Push.onClick = [this] { (void)form.Lines.Row(7); };
  push->click();
  EXPECT_EQ(messages.texts.size(), 1);
}

TEST_F(BinderTest, AHiddenControlGivesItsFocusAway) {
  form.First.Hide();
  display.SyncNow();
  EXPECT_FALSE(first->isVisible());
  EXPECT_NE(window->focusWidget(), first);
  test::Press(*window, Qt::Key_Tab);
  EXPECT_NE(desk.Focused(), nullptr);
}

}  // namespace
}  // namespace tamo
