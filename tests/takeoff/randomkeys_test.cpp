// Random keys, clicks, menus and pastes into the bottom line and the adjustment: nothing crashes or
// hangs, and each save holds what is on the screen.
//
// TAMO_RANDOM_KEYS: how many keys per form (2000); TAMO_RANDOM_SEED: the player's seed (1).

#include <random>

#include "takeoff/takeoffbench.h"

namespace tamo::test {
namespace {

#define S QStringLiteral

class RandomKeys : public TakeoffTest {
 protected:
  RandomKeys() : keys_(qEnvironmentVariableIntValue("TAMO_RANDOM_KEYS")) {
    if (keys_ <= 0) keys_ = 2000;
    const int seed = qEnvironmentVariableIntValue("TAMO_RANDOM_SEED");
    random_.seed(seed > 0 ? static_cast<unsigned>(seed) : 1U);
    MakeSystem(S("Paint"), S("SF"));
    Write(Data(S("Descriptions.tamo")), {S("Wall Paint"), S("Rubber Base"), S("HM Door"),
                                         S("ACT Ceiling"), S("Carpet"), S("Paint"), S("Ghost")});
  }

  int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
  template <typename Items>
  auto OneOf(const Items& items) {
    return items[static_cast<qsizetype>(Below(static_cast<int>(items.size())))];
  }

  // Plays until the keys are used up; `open` brings the form up when it is hidden, `pause` looks.
  void Play(Form& form, const std::function<void()>& open, const std::function<void()>& pause) {
    for (int key = 0; key < keys_ && !HasFailure(); ++key) {
      if (!form.Visible() || desk.Active() != &form) desk.Dispatch(open);
      Act(form);
      messages.texts.clear();
      messages.shown.clear();
      if (key % 20 == 19) pause();
    }
    EXPECT_TRUE(files.PendingSaves().empty());
  }

  void Act(Form& form) {
    switch (Below(12)) {
      case 0:
        ClickSomewhere(form);
        break;
      case 1:
        ClickSomeRow(form);
        break;
      case 2:
        if (Below(4) == 0 && !form.Menus().empty()) Choose(*OneOf(form.Menus()));
        break;
      case 3:
        PasteSomething();
        break;
      case 4:
      case 5:
        TypeWord();
        break;
      default:
        OneKey();
    }
  }

  void OneKey() {
    Control* control = desk.Focused();
    if (control == nullptr) return;
    static const QString characters = S("0123456789.-,ab /\\\"'Z");
    using Name = Key::Name;
    static const std::vector<Name> names = {
        Name::Enter,  Name::Enter,  Name::Enter, Name::Enter, Name::Tab,    Name::Backspace,
        Name::Delete, Name::Escape, Name::Up,    Name::Down,  Name::BackTab};
    if (Below(2) == 0) {
      desk.PressKey(*control, Key::Typed(OneOf(characters)));
    } else {
      desk.PressKey(*control, Key::Named(names[static_cast<size_t>(Below(11))]));
    }
  }

  void TypeWord() {
    auto* field = dynamic_cast<TextField*>(desk.Focused());
    if (field == nullptr) return;
    static const QStringList words = {S("101"),        S("102"),         S("Lobby"),   S("lobby"),
                                      S("Wall Paint"), S("Rubber Base"), S("HM Door"), S("Paint"),
                                      S("Carpet"),     S("ACT Ceiling"), S("Ghost"),   S("CLNG"),
                                      S("FLR"),        S("NORTH WALL"),  S("8"),       S("10.3"),
                                      S("-4"),         S("99999999999"), S("0")};
    field->SelectAll();
    desk.TypeText(*field, OneOf(words));
    if (desk.Focused() != nullptr) desk.PressKey(*desk.Focused(), Key::Named(Key::Name::Enter));
  }

  void PasteSomething() {
    auto* field = dynamic_cast<TextField*>(desk.Focused());
    if (field == nullptr) return;
    static const QStringList texts = {S("../../x"),
                                      S("a\r\nb"),
                                      S("CON"),
                                      S("1,500.0"),
                                      QString(300, QLatin1Char('x')),
                                      S("ä€\u2603"),
                                      S("a,b"),
                                      QString(),
                                      S("99999999999999999999")};
    field->SelectAll();
    desk.Paste(*field, OneOf(texts));
  }

  void ClickSomewhere(Form& form) {
    Control* control = OneOf(form.Controls());
    if (!control->Usable()) return;
    switch (Below(4)) {
      case 0:
        desk.DoubleClick(*control);
        break;
      case 1:
        desk.RightClick(*control);
        break;
      default:
        desk.ClickInto(*control);
    }
  }

  void ClickSomeRow(Form& form) {
    auto* list = dynamic_cast<OrderedList*>(OneOf(form.Controls()));
    if (list == nullptr || !list->Usable() || list->Empty()) return;
    const int row = Below(list->Count());
    if (Below(4) == 0) {
      desk.RightClickRow(*list, row);
    } else {
      desk.ClickRow(*list, row);
    }
  }

 private:
  int keys_;
  std::mt19937 random_;
};

TEST_F(RandomKeys, BottomLine) {
  Play(
      bottom, [&] { bottom.BottomLineItems(&shell.ost); },
      [&] {
        desk.CloseBox(bottom);
        EXPECT_EQ(bottom.oiList.Rows(), Lines(Project(S("oItems.tamo"))));
        // Each typed name is added; without a clean-up now and then this would be about long lists.
        if (bottom.ItemList.Count() > 200) files.Remove(Data(S("Items.tamo")));
        if (bottom.oiList.Count() > 200) files.Remove(Project(S("oItems.tamo")));
      });
  EXPECT_GT(reports.count, 0);
}

TEST_F(RandomKeys, AdjustmentForm) {
  reports.onRefresh = [&] {
    EXPECT_EQ(QStringList{adjustment.Adjustment.Text()}, Lines(Project(S("Adjustment.tamo"))));
  };
  Play(
      adjustment, [&] { adjustment.PriceAdjustment(&shell.ost); }, [] {});
  EXPECT_GT(reports.count, 0);
}

}  // namespace
}  // namespace tamo::test
