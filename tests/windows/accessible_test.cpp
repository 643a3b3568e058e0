#include "windows/accessible.h"

#include <gtest/gtest.h>

#include <QAccessible>

#include "windows/keeperroom.h"

// What a reader of screens finds in every window of the program.

namespace tamo {
namespace {

struct AccessibleTest : testing::Test, test::KeeperRoom {};

QString Name(const QAccessibleInterface& thing) {
  const QString own = thing.text(QAccessible::Name);
  return own.isEmpty() ? thing.text(QAccessible::Value) : own;
}

// Everything a person can go to has a name, and a role that says what can be done with it.
void Walk(QAccessibleInterface& thing, const QString& path) {
  const QAccessible::State state = thing.state();
  if (state.invisible) return;
  const QString here = path + QLatin1Char('/') + Name(thing);
  if (thing.role() == QAccessible::MenuItem) {
    EXPECT_FALSE(Name(thing).trimmed().isEmpty()) << path.toStdString();
  }
  if (state.focusable) {
    EXPECT_FALSE(Name(thing).isEmpty()) << here.toStdString() << " role " << thing.role();
    EXPECT_NE(thing.role(), QAccessible::NoRole) << here.toStdString();
    EXPECT_NE(thing.role(), QAccessible::Client) << here.toStdString();
  }
  // Rows of lists name themselves.
  if (thing.role() == QAccessible::List || thing.role() == QAccessible::Table) return;
  for (int i = 0; i < thing.childCount(); ++i) {
    if (QAccessibleInterface* child = thing.child(i)) Walk(*child, here);
  }
}

TEST_F(AccessibleTest, EveryWindowCanBeWalked) {
  for (Form* form : desk.Forms()) {
    desk.Dispatch([&] { desk.Show(*form); });
    test::Settle();
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(windows.WindowOf(*form));
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->role(), QAccessible::Window) << form->Name().toStdString();
    Walk(*window, form->Name());
  }
}

QAccessible::Role RoleOf(const Control& control) {
  if (dynamic_cast<const TextField*>(&control) != nullptr) return QAccessible::EditableText;
  if (dynamic_cast<const Button*>(&control) != nullptr) return QAccessible::Button;
  if (dynamic_cast<const CheckBox*>(&control) != nullptr) return QAccessible::CheckBox;
  if (dynamic_cast<const Option*>(&control) != nullptr) return QAccessible::RadioButton;
  if (dynamic_cast<const OrderedList*>(&control) != nullptr) return QAccessible::List;
  if (dynamic_cast<const ScrollBar*>(&control) != nullptr) return QAccessible::Slider;
  if (dynamic_cast<const Label*>(&control) != nullptr) return QAccessible::StaticText;
  return QAccessible::NoRole;
}

// What a control is, whether it is there, and whether it can be used is what its widget says.
TEST_F(AccessibleTest, EveryControlHasItsRoleItsNameAndItsState) {
  for (Form* form : desk.Forms()) {
    desk.Dispatch([&] { desk.Show(*form); });
    test::Settle();
    if (!form->Visible()) continue;
    for (const Control* control : form->Controls()) {
      QWidget* widget = windows.WidgetOf(*control);
      if (widget == nullptr) continue;
      const std::string name = control->FullName().toStdString();
      QAccessibleInterface* thing = QAccessible::queryAccessibleInterface(widget);
      ASSERT_NE(thing, nullptr) << name;
      const QAccessible::Role role = RoleOf(*control);
      EXPECT_TRUE(role == QAccessible::NoRole || thing->role() == role) << name;
      const bool reached = thing->state().focusable && widget->isVisible();
      EXPECT_TRUE(!reached || !Name(*thing).isEmpty()) << name;
      EXPECT_EQ(bool(thing->state().invisible), !widget->isVisible()) << name;
      EXPECT_EQ(bool(thing->state().disabled), !widget->isEnabled()) << name;
    }
  }
}

TEST_F(AccessibleTest, SpacersOfTheMenuAreSeparators) {
  Menu("Tamo", "OST1");
  for (const MenuEntry* entry : FormOf("OST").Menus()) {
    if (!entry->Name().startsWith(QStringLiteral("Spacer")) || !entry->Shown()) continue;
    EXPECT_TRUE(windows.ActionOf(*entry)->isSeparator()) << entry->Name().toStdString();
  }
}

TEST_F(AccessibleTest, SwatchesAreButtonsAndSayTheirColour) {
  Menu("Tamo", "Settings1");
  QAccessibleInterface* swatch = QAccessible::queryAccessibleInterface(
      windows.WidgetOf(*FormOf("Settings").Find(QStringLiteral("iNavy"))));
  EXPECT_EQ(swatch->role(), QAccessible::PushButton);
  EXPECT_EQ(Name(*swatch), QStringLiteral("Navy"));
  QAccessibleInterface* sample = QAccessible::queryAccessibleInterface(
      windows.WidgetOf(*FormOf("Settings").Find(QStringLiteral("Line1"))));
  EXPECT_EQ(Name(*sample), QStringLiteral("Sample line"));
}

TEST_F(AccessibleTest, OptionsSayWhichIsOn) {
  Menu("Tamo", "Settings1");
  Form& settings = FormOf("Settings");
  desk.ClickInto(*settings.Find(QStringLiteral("Option4")));
  test::Settle();
  for (const char* name : {"Option3", "Option4"}) {
    QAccessibleInterface* option = QAccessible::queryAccessibleInterface(
        windows.WidgetOf(*settings.Find(QLatin1String(name))));
    EXPECT_EQ(option->role(), QAccessible::RadioButton);
    EXPECT_TRUE(option->state().checkable);
    EXPECT_EQ(option->state().checked, std::string(name) == "Option4");
  }
}

}  // namespace
}  // namespace tamo
